#include "parktable.h"

#include "eratable.h"

namespace tarvane::calibrate {

namespace {

// By what replays of five seasons did more or less than the reckoning: a cell that takes home runs away also takes those
// that pitchers and the year chart give, an out of the park also takes walks, and a single of the park comes from fewer
// rolls than pass to the batter.
constexpr double kHRDown = 0.78, kSinglesUp = 1.25, kSinglesDown = 0.9;

}  // namespace

ChartWishes ParkWishes(const FactTable& parks, std::int32_t parkID) {
    const auto wish = [&](const char* column, double up, double down) {
        const double change = parks.Number(parkID, column) - 1;
        return change > 0 ? change * up : change * down;
    };
    return {wish("DoublesRate", 1, 1), wish("TriplesRate", 1, 1), wish("HRRate", 1, kHRDown), 0,
            wish("SinglesRate", kSinglesUp, kSinglesDown)};
}

void WriteParkSeed(const std::filesystem::path& file, const FactTable& parks, const ParkFences& fences,
                   const FactTable& eras) {
    std::map<std::int32_t, ChangedRow> changed;
    for (const auto& [id, row] : parks.rows) {
        const int year = static_cast<int>(parks.Number(id, "yearID"));
        for (const auto& [column, feet] : fences.Of(row.at("Stadium"), row.at("LOCATION"), year))
            changed[id][column] = std::int64_t{feet};
        const auto combined = static_cast<std::int32_t>(year * 10);
        ChartCells chart;
        if (eras.rows.contains(combined))
            chart = LayChart(ChartKind::Park, ParkWishes(parks, id), SheetRatesOf(eras, combined), kUsualOpenness);
        else
            chart.fill(EffectCell(" "));
        AddChart(chart, changed[id]);
    }
    WriteSeedTable(file, parks, "The charts are laid by tarvane-calibrate, so that each gives its park's factors; the "
                   "distances are those of tools/calibrate/ParkFences.csv.", changed);
}

}  // namespace tarvane::calibrate
