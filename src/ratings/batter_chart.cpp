#include "ratings/batter_chart.h"

#include <algorithm>
#include <array>

#include "base/rounding.h"
#include "ratings/batting_plans.h"

namespace tarvane {

namespace {

constexpr double kAllRolls = 216;
constexpr int kHalfOfRolls = 108;

constexpr std::array<double, 6> kDoublePlayShares{0.25, 0.225, 0.185, 0.17, 0.135, 0.10};

double ShareOf(const BattingResultPlan& result, const CountsDerivation& counts, int runRating) {
    switch (result.shareBy) {
        case ShareBy::RunsBattedIn: return counts.sfShare;
        case ShareBy::Running: return DoublePlayShare(runRating);
        case ShareBy::Fixed: break;
    }
    return result.share;
}

void PlaceOne(const BattingResultPlan& result, const Plan& plan, const CountsDerivation& counts, int runRating,
              BattingChart& chart, Random& random) {
    const double asked = counts.counts.*result.count * ShareOf(result, counts, runRating);
    PlacedResult placed{result.text, result.color, static_cast<int>(RoundHalfEven(asked)), 0};
    placed.rest = PlaceByPlan(plan, Draws::PerStage, placed.asked, result.text, result.color, chart.cells, random);
    chart.placed.push_back(placed);
}

void FillWithOuts(ChartCells& cells, Random& random) {
    for (ChartCell& cell : cells) {
        if (IsFree(cell)) cell = {random.RandomRoll216() <= kHalfOfRolls ? "G" : "F", kRedWord};
    }
}

double* ChanceOf(const ChartCell& cell, BattingChances& chances) {
    const auto isOneOf = [&](std::initializer_list<std::string_view> texts) {
        return std::find(texts.begin(), texts.end(), cell.text) != texts.end();
    };
    if (isOneOf({"1", "(1+)", "1+", "(1)", "1*"})) return &chances.Singles;
    if (isOneOf({"2", "2*", "(2)"})) return &chances.Doubles;
    if (cell.text == "3") return &chances.Triples;
    if (cell.text == "HR") return &chances.HR;
    if (cell.color == kBlueWord) return &chances.SO;
    if (cell.color == kStoredYellowWord) return &chances.BBorHBP;
    return nullptr;
}

}  // namespace

double DoublePlayShare(int runRating) {
    return kDoublePlayShares[static_cast<std::size_t>(std::clamp(runRating, 0, 5))];
}

BattingChances ChancesOf(const ChartCells& cells) {
    BattingChances weights;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (double* chance = ChanceOf(cells[i], weights)) *chance += kCellWeight[i];
    }
    for (double* weight :
         {&weights.Singles, &weights.Doubles, &weights.Triples, &weights.HR, &weights.BBorHBP, &weights.SO}) {
        *weight /= kAllRolls;
    }
    return weights;
}

BattingChartPair PlaceBatterChart(const CountsDerivation& vsL, const CountsDerivation& vsR, int runRating, Random& random) {
    BattingChartPair charts;
    for (const BattingBlock& block : BatterPlans()) {
        for (const auto& result : block) PlaceOne(result, result.left, vsL, runRating, charts.vsL, random);
        for (const auto& result : block) PlaceOne(result, result.right, vsR, runRating, charts.vsR, random);
    }
    for (BattingChart* chart : {&charts.vsL, &charts.vsR}) FillWithOuts(chart->cells, random);
    for (BattingChart* chart : {&charts.vsL, &charts.vsR}) chart->chances = ChancesOf(chart->cells);
    return charts;
}

BattingChart PlacePitcherBatting(const CountsDerivation& counts, Random& random) {
    BattingChart chart;
    for (const auto& result : PitcherBattingPlan()) PlaceOne(result, result.left, counts, 0, chart, random);
    FillWithOuts(chart.cells, random);
    const BattingWeights& c = counts.counts;
    chart.chances = {c.n1B / kAllRolls, c.n2B / kAllRolls, c.n3B / kAllRolls, c.nHR / kAllRolls, 0, c.nSO / kAllRolls};
    if (c.nBB + c.nHBP > 0) chart.chances.BBorHBP = c.nBB / kAllRolls + c.nHBP / kAllRolls;
    return chart;
}

BattingChart StockPitcherBatting() {
    BattingChart chart;
    chart.cells = StockBattingChart();
    chart.chances = {19 / kAllRolls, 2 / kAllRolls, 0, 0, 0, 88 / kAllRolls};
    return chart;
}

}  // namespace tarvane
