#include "eratable.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>

#include "base/csv.h"
#include "base/error.h"
#include "base/text.h"

namespace tarvane::calibrate {

namespace {

constexpr std::array<double Adjustment::*, 7> kFactors{
    &Adjustment::AvgHBFP, &Adjustment::AvgSOBFP, &Adjustment::AvgHRBFP, &Adjustment::BBAvg,
    &Adjustment::HBPRate, &Adjustment::RBIAvg,   &Adjustment::Errors};
constexpr std::array<double ChartWishes::*, 4> kWishes{&ChartWishes::Doubles, &ChartWishes::Triples, &ChartWishes::HR,
                                                       &ChartWishes::SO};
constexpr const char* kPositions[] = {"P", "C", "1B", "2B", "3B", "SS", "OF"};
constexpr int kAL = 1, kNL = 2, kSpan = 9;

double NumberOf(std::string_view text) {
    return ParseDouble(text).value_or(0);
}

Adjustment Mix(const Adjustment& a, const Adjustment& b, double shareOfB) {
    Adjustment mixed;
    for (const auto member : kFactors) mixed.*member = a.*member + (b.*member - a.*member) * shareOfB;
    for (const auto member : kWishes)
        mixed.chart.*member = a.chart.*member + (b.chart.*member - a.chart.*member) * shareOfB;
    return mixed;
}

// One old league's in any year, by its nearest calibrated years before and after.
Adjustment OfLeague(int digit, int year, const Adjustments& adjustments) {
    const Adjustment* before = nullptr;
    int yearBefore = 0;
    for (const auto& [id, adjustment] : adjustments) {
        if (id % 10 != digit) continue;
        const int at = id / 10;
        if (at == year || (at > year && before == nullptr)) return adjustment;
        if (at > year) return Mix(*before, adjustment, (year - yearBefore) / static_cast<double>(at - yearBefore));
        before = &adjustment;
        yearBefore = at;
    }
    return before != nullptr ? *before : Adjustment{};
}

// A chart as its cells that hold something, "16:HR 20:(2)".
std::string TextOf(const ChartCells& chart) {
    std::string text;
    for (int roll = kFirstRoll; roll <= kLastRoll; ++roll) {
        const std::string& cell = chart[static_cast<std::size_t>(roll - kFirstRoll)].text;
        if (cell != " ") text += fmt::format("{}{}:{}", text.empty() ? "" : " ", roll, cell);
    }
    return text;
}

ChartCells ChartOf(std::string_view text) {
    ChartCells chart;
    std::istringstream words{std::string(text)};
    for (std::string word; words >> word;) {
        const auto roll = ParseInt(std::string_view(word).substr(0, 2));
        if (!roll || *roll < kFirstRoll || *roll > kLastRoll || word.size() < 4)
            throw UserError("'" + word + "' is no cell of a chart: write 16:HR");
        chart[static_cast<std::size_t>(*roll - kFirstRoll)] = EffectCell(word.substr(3));
    }
    return chart;
}

}  // namespace

Adjustments ReadAdjustments(const std::filesystem::path& file) {
    Adjustments adjustments;
    if (!std::filesystem::exists(file)) return adjustments;
    const std::string text = ReadWhole(file);
    CsvReader reader(text, file.string(), {',', true});
    std::vector<std::string_view> cells;
    reader.Next(cells);  // the heading
    while (reader.Next(cells)) {
        if (cells.size() != 2 + kFactors.size() + kWishes.size()) reader.Fail("a line has another number of fields");
        Adjustment a;
        for (std::size_t i = 0; i < kFactors.size(); ++i) a.*kFactors[i] = NumberOf(cells[1 + i]);
        for (std::size_t i = 0; i < kWishes.size(); ++i) a.chart.*kWishes[i] = NumberOf(cells[1 + kFactors.size() + i]);
        if (!cells.back().empty()) a.cells = ChartOf(cells.back());
        adjustments[static_cast<std::int32_t>(NumberOf(cells[0]))] = a;
    }
    return adjustments;
}

void WriteAdjustments(const std::filesystem::path& file, const Adjustments& adjustments) {
    std::string text =
        "# What tarvane-calibrate found for each league and year: factors of the facts in EraFacts.csv that the\n"
        "# generators measure players against, and by what share the year chart is to change doubles and so on.\n"
        "EraId,AvgHBFP,AvgSOBFP,AvgHRBFP,BBAvg,HBPRate,RBIAvg,Errors,Doubles,Triples,HR,SO,Chart\n";
    for (const auto& [id, a] : adjustments) {
        text += fmt::format("{}", id);
        for (const auto member : kFactors) text += fmt::format(",{:.4f}", a.*member);
        for (const auto member : kWishes) text += fmt::format(",{:.4f}", a.chart.*member);
        text += ',' + (a.cells ? TextOf(*a.cells) : "") + '\n';
    }
    std::ofstream out(file, std::ios::binary);
    out << text;
    if (!out.flush()) throw UserError(file.string() + " can't be written");
}

Adjustment AdjustmentFor(std::int32_t eraID, int year, int lastYear, const Adjustments& adjustments) {
    const int digit = eraID % 10;
    if (digit == kAL || digit == kNL) return OfLeague(digit, year, adjustments);
    const auto both = [&](int at) { return Mix(OfLeague(kAL, at, adjustments), OfLeague(kNL, at, adjustments), 0.5); };
    if (digit != kSpan) return both(year);
    Adjustment mean = both(year);
    for (int at = year + 1; at <= lastYear; ++at) mean = Mix(mean, both(at), 1.0 / (at - year + 1));
    return mean;
}

SheetRates SheetRatesOf(const FactTable& eras, std::int32_t eraID) {
    const auto rate = [&](const char* column) { return eras.Number(eraID, column); };
    return {rate("SinglesAvg"), rate("DoublesAvg"), rate("TriplesAvg"), rate("HRAvg"), rate("SOAvg")};
}

ChangedRow EraTable::Adjusted(std::int32_t eraID, const Adjustment& a) const {
    ChangedRow row;
    const auto scale = [&](const std::string& column, double factor) { row[column] = Fact(eraID, column) * factor; };
    scale("AvgHBFP", a.AvgHBFP);
    scale("AvgSOBFP", a.AvgSOBFP);
    scale("AvgHRBFP", a.AvgHRBFP);
    scale("BBAvg", a.BBAvg);
    scale("HBPRate", a.HBPRate);
    scale("RBIAvg", a.RBIAvg);
    for (const char* position : kPositions) scale(std::string(position) + "ErrorsRate", a.Errors);
    const ChartCells chart = a.cells ? *a.cells : LayChart(ChartKind::Year, a.chart, RatesOf(eraID), kUsualOpenness);
    AddChart(chart, row);
    return row;
}

void EraTable::WriteSeed(const std::filesystem::path& file, const Adjustments& adjustments) const {
    std::map<std::int32_t, ChangedRow> changed;
    for (const auto& [id, row] : facts_.rows) {
        const auto year = [&, id = id](const char* column) { return static_cast<int>(Fact(id, column)); };
        changed[id] = Adjusted(id, AdjustmentFor(id, year("yearID"), year("EraRangeEnd"), adjustments));
    }
    WriteSeedTable(file, facts_,
                   "Calibrated by tarvane-calibrate, so that a replayed season comes out as the real one: AvgHBFP, "
                   "AvgSOBFP, AvgHRBFP, BBAvg, HBPRate, RBIAvg, the ...ErrorsRate and the chart.",
                   changed);
}

}  // namespace tarvane::calibrate
