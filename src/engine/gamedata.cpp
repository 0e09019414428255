#include "engine/gamedata.h"

#include <algorithm>

namespace tarvane {

namespace {

// A rating of 40 means that no test is made. An empty one counts as 40, and no chart roll is below 10.
std::uint8_t TestRating(int stored) {
    if (stored <= 0 || stored > 40) return 40;
    return static_cast<std::uint8_t>(std::max(stored, 10));
}

bool AnyOutCell(const Chart& chart) {
    return std::any_of(chart.begin(), chart.end(),
                       [](const Cell& c) { return c.color == CellColor::Red || c.color == CellColor::Blue; });
}

void CompileTeam(TeamData& team) {
    team.batterCharts.clear();
    for (const Batter& b : team.roster.batters)
        team.batterCharts.push_back(
            {CompileChart(b.vsL), CompileChart(b.vsR), TestRating(b.BBRating), TestRating(b.SORating)});
    team.pitcherCharts.clear();
    for (const Pitcher& p : team.roster.pitchers) {
        PitcherCharts charts{CompileChart(p.pitch), CompileChart(p.Bat), false, TestRating(p.BBRating),
                             TestRating(p.SORating)};
        charts.HasOutCells = AnyOutCell(charts.pitch);
        team.pitcherCharts.push_back(charts);
    }
}

template <class Rows>
int IndexOf(const Rows& rows, std::int32_t playerID) {
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const auto& r) { return r.playerID == playerID; });
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

}  // namespace

int TeamData::BatterIndex(std::int32_t playerID) const {
    return IndexOf(roster.batters, playerID);
}
int TeamData::PitcherIndex(std::int32_t playerID) const {
    return IndexOf(roster.pitchers, playerID);
}

void CompileGameData(GameData& data) {
    for (const Side side : kBothSides) CompileTeam(data.team[side]);
    data.compiled = CompileGameCharts(data.charts);
    data.parkChart = CompileChart(data.park.Roll);
    data.yearChart = CompileChart(data.year.Roll);
    for (std::size_t range = 0; range < data.eraCells.size(); ++range)
        for (std::size_t roll = 0; roll < 6; ++roll)
            data.eraCells[range][roll] = CompileCell(data.defensiveEra.range[range].cell[roll]);
}

}  // namespace tarvane
