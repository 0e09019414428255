// Where weights go on a chart.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <set>
#include <stdexcept>

#include "ratings/batting_plans.h"
#include "ratings/derivation.h"
#include "ratings/explain.h"
#include "ratings/splits.h"
#include "sample_lines.h"

namespace tarvane {
namespace {

const LeagueBaseline kLayoutLeague = test::SampleLeague();

int WeightOf(const ChartCells& cells, std::string_view text, std::int32_t color) {
    int weight = 0;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (cells[i].text == text && cells[i].color == color) weight += kCellWeight[i];
    }
    return weight;
}

std::set<int> RollsOf(const ChartCells& cells, std::string_view text) {
    std::set<int> rolls;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (cells[i].text == text) rolls.insert(static_cast<int>(i) + kFirstRoll);
    }
    return rolls;
}

int Place(std::string_view plan, int n, ChartCells& cells) {
    Random random(1);
    return PlaceByPlan(ParsePlan(plan), Draws::PerStage, n, "x", kGreenWord, cells, random);
}

TEST(Plan, WalksTakeWhatFits) {
    ChartCells cells = FreeCells();
    EXPECT_EQ(Place("10>39", 3, cells), 0);
    EXPECT_EQ(RollsOf(cells, "x"), (std::set<int>{10, 19}));  // 2, then 11 to 18 are too heavy for the 1 that is left
    EXPECT_EQ(Place("12>12", 3, cells), 3);

    cells = FreeCells();
    EXPECT_EQ(Place("10>10~", 1, cells), -1);  // one unit short is near enough
    cells = FreeCells();
    EXPECT_EQ(Place("24>27~", 20, cells), 0);  // 12, then 8; 25 needs 11
    EXPECT_EQ(RollsOf(cells, "x"), (std::set<int>{24, 26}));
    cells = FreeCells();
    EXPECT_EQ(Place("39>30 / 10>39", 0, cells), 0);
    EXPECT_EQ(Place("39>30 / 10>39", -5, cells), -5);
    EXPECT_TRUE(RollsOf(cells, "x").empty());
}

TEST(Plan, TestsJoinedByOrElseTakeTheFirstThatHolds) {
    ChartCells cells = FreeCells();
    EXPECT_EQ(Place("n12: 24>24 ; n6: 21>21 ; 10>10", 13, cells), 1);
    EXPECT_EQ(RollsOf(cells, "x"), std::set<int>{24});
    EXPECT_EQ(Place("n12: 25>25 ; n6: 21>21 ; 10>10", 7, cells), 1);
    EXPECT_EQ(Place("n12: 25>25 ; n6: 21>21 ; 10>10", 3, cells), 1);
    EXPECT_EQ(RollsOf(cells, "x"), (std::set<int>{10, 21, 24}));
}

TEST(Plan, RoutesFollowTheDraw) {
    Random random(4);
    const Plan plan = ParsePlan("r25: 24>24 | r75: 25>25 | 34>34 / r50: 10>10 | 39>39");
    std::map<int, int> taken;
    bool mixed = false;
    constexpr int kRuns = 20000;
    for (int i = 0; i < kRuns; ++i) {
        ChartCells cells = FreeCells();
        PlaceByPlan(plan, Draws::PerStage, 21, "x", kGreenWord, cells, random);
        for (const int roll : RollsOf(cells, "x")) ++taken[roll];
        // With one draw for all, the last route of the first stage excludes the first of the second.
        ChartCells once = FreeCells();
        PlaceByPlan(plan, Draws::Once, 21, "x", kGreenWord, once, random);
        const std::set<int> rolls = RollsOf(once, "x");
        mixed =
            mixed || (rolls.count(34) == 1 && rolls.count(10) == 1) || (rolls.count(24) == 1 && rolls.count(39) == 1);
    }
    EXPECT_FALSE(mixed);
    EXPECT_NEAR(taken[24] / double{kRuns}, 0.25, 0.015);
    EXPECT_NEAR(taken[25] / double{kRuns}, 0.50, 0.015);
    EXPECT_NEAR(taken[10] / double{kRuns}, 0.50, 0.015);
}

TEST(Plan, RefusesWhatIsNoPlan) {
    for (const char* text : {"", "10", "10>40", "9>20", "r50: 10>20", "nx: 10>20", "10>20 |", "10>20,", "r50 10>20"}) {
        EXPECT_THROW(ParsePlan(text), std::logic_error) << text;
    }
}

// The least weight of a cell that nothing wanted.
int LeastFiller(const ChartCells& cells) {
    int least = 1000;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (cells[i].text == "G" || cells[i].text == "F") least = std::min(least, kCellWeight[i]);
    }
    return least;
}

// The last stage of most plans searches the whole chart, so that what is dropped fitted no cell that stayed free.
bool EndsWithWholeChart(const Plan& plan, bool& tolerant) {
    tolerant = true;
    for (const Choice& choice : plan.stages.back().choices) {
        for (const Route& route : choice.routes) {
            const Walk& walk = route.walks.back();
            if (std::min(walk.from, walk.to) != kFirstRoll || std::max(walk.from, walk.to) != kLastRoll) return false;
            tolerant = tolerant && walk.tolerant;
        }
    }
    return true;
}

void CheckBattingChart(const BattingChart& chart, bool left) {
    static const std::map<std::string, std::set<std::int32_t>> kLegal{{"1", {kGreenWord}},
                                                                      {"1*", {kGreenWord}},
                                                                      {"1+", {kGreenWord}},
                                                                      {"(1)", {kGreenWord}},
                                                                      {"(1+)", {kGreenWord}},
                                                                      {"2", {kGreenWord}},
                                                                      {"2*", {kGreenWord}},
                                                                      {"(2)", {kGreenWord}},
                                                                      {"3", {kGreenWord}},
                                                                      {"HR", {kGreenWord}},
                                                                      {"E", {kWhiteWord}},
                                                                      {"H", {kStoredYellowWord}},
                                                                      {" ", {kStoredYellowWord, kBlueWord}},
                                                                      {"SF", {kRedWord}},
                                                                      {"G*", {kRedWord}},
                                                                      {"DP", {kRedWord}},
                                                                      {"G", {kRedWord}},
                                                                      {"F", {kRedWord}}};
    for (const ChartCell& cell : chart.cells) {
        const auto legal = kLegal.find(cell.text);
        ASSERT_TRUE(legal != kLegal.end()) << '"' << cell.text << '"';
        ASSERT_TRUE(legal->second.count(cell.color)) << cell.text << ' ' << cell.color;
    }
    std::size_t index = 0;
    for (const BattingBlock& block : BatterPlans()) {
        for (const BattingResultPlan& plan : block) {
            const PlacedResult& placed = chart.placed.at(index++);
            ASSERT_EQ(placed.text, plan.text);
            ASSERT_EQ(WeightOf(chart.cells, placed.text, placed.color), std::max(placed.Placed(), 0)) << placed.text;
            bool tolerant = false;
            const bool whole = EndsWithWholeChart(left ? plan.left : plan.right, tolerant);
            if (placed.asked <= 0) {
                ASSERT_EQ(placed.rest, placed.asked);
            } else {
                ASSERT_GE(placed.rest, -1) << placed.text;
                if (whole && placed.rest > 0) {
                    ASSERT_LT(placed.rest, LeastFiller(chart.cells) - (tolerant ? 1 : 0)) << placed.text;
                }
            }
        }
    }
    const BattingChances& c = chart.chances;
    const int others = WeightOf(chart.cells, "E", kWhiteWord) + WeightOf(chart.cells, "SF", kRedWord) +
                       WeightOf(chart.cells, "G*", kRedWord) + WeightOf(chart.cells, "DP", kRedWord) +
                       WeightOf(chart.cells, "G", kRedWord) + WeightOf(chart.cells, "F", kRedWord);
    ASSERT_NEAR((c.Singles + c.Doubles + c.Triples + c.HR + c.BBorHBP + c.SO) * 216 + others, 216, 1e-9);
}

TEST(BatterChart, ThousandsOfRandomLinesGiveWholeCharts) {
    Random random(20);
    for (int i = 0; i < 6000; ++i) {
        LahmanBattingRow line = test::RandomBattingLine(random);
        SplitMix mix;
        mix.LeftOuts = 1 + i % 40;
        mix.RightOuts = 70;
        GenerateSplitRow(line, i % 2 == 0 ? kLeftHand : kRightHand, mix, {}, random);
        const BatterDerivation d = DeriveBatter(line, kLayoutLeague, {}, i % 7, random);
        ASSERT_NO_FATAL_FAILURE(CheckBattingChart(d.charts.vsL, true)) << i;
        ASSERT_NO_FATAL_FAILURE(CheckBattingChart(d.charts.vsR, false)) << i;
    }
}

TEST(BatterChart, HostileLinesAreLaidOutAsWell) {
    Random random(8);
    const auto any = [&] { return static_cast<int>(random.Below(4000)) - 500; };
    for (int i = 0; i < 3000; ++i) {
        CountsDerivation left, right;
        for (CountsDerivation* d : {&left, &right}) {
            d->counts = {any(), any(), any(), any(), any(), any(), any(), any(), any()};
        }
        const BattingChartPair charts = PlaceBatterChart(left, right, i % 9 - 2, random);
        for (const BattingChart* chart : {&charts.vsL, &charts.vsR}) {
            for (const ChartCell& cell : chart->cells) ASSERT_FALSE(IsFree(cell));
        }
    }
}

TEST(BatterChart, TheWeightsAskedForComeOutOnAverage) {
    // A common regular. Hits are placed first and keep their weight; the error's weight is the outs' loss.
    LahmanBattingRow line;
    line.AB = 560;
    line.vsRight.AB = 400, line.vsRight.H = 112, line.vsRight.Doubles = 20, line.vsRight.Triples = 3,
    line.vsRight.HR = 12;
    line.vsRight.BB = 50, line.vsRight.SO = 60, line.vsRight.HBP = 4, line.vsRight.RBI = 40;
    line.vsLeft = line.vsRight;
    Random random(77);
    BattingChances sum;
    constexpr int kCharts = 2000;
    for (int i = 0; i < kCharts; ++i) {
        const BattingChances c = DeriveBatter(line, kLayoutLeague, {}, 2, random).charts.vsR.chances;
        sum.Singles += c.Singles, sum.Doubles += c.Doubles, sum.HR += c.HR, sum.SO += c.SO, sum.BBorHBP += c.BBorHBP;
    }
    const BattingWeights n = DeriveBatter(line, kLayoutLeague, {}, 2, random).vsR.counts;
    EXPECT_NEAR(sum.HR * 216 / kCharts, n.nHR, 1);
    EXPECT_NEAR(sum.Doubles * 216 / kCharts, n.n2B, 1.5);
    EXPECT_NEAR(sum.Singles * 216 / kCharts, n.n1B + 2.5, 2);  // five tolerances
    EXPECT_NEAR(sum.SO * 216 / kCharts, n.nSO - 1, 2);         // no tolerance, and few light cells are left
    EXPECT_NEAR(sum.BBorHBP * 216 / kCharts, n.nBB + n.nHBP, 2);
}

TEST(BatterChart, HalvesOfSinglesRoundToEven) {
    const auto asked = [](int n1B) {
        CountsDerivation d;
        d.counts.n1B = n1B;
        Random random(1);
        std::vector<int> weights;
        for (const PlacedResult& p : PlaceBatterChart(d, d, 0, random).vsL.placed) {
            if (p.text.find('1') != std::string_view::npos) weights.push_back(p.asked);
        }
        return weights;
    };
    EXPECT_EQ(asked(4), (std::vector<int>{0, 1, 0, 1, 1}));
    EXPECT_EQ(asked(12), (std::vector<int>{2, 3, 2, 3, 3}));
    EXPECT_EQ(asked(10), (std::vector<int>{1, 2, 1, 2, 2}));
}

TEST(BatterChart, HomeRunsOfTwentyStartAtTheHeavyCells) {
    CountsDerivation d;
    d.counts.nHR = 20;
    Random random(6);
    for (int i = 0; i < 200; ++i) {
        const BattingChartPair charts = PlaceBatterChart(d, d, 0, random);
        for (const BattingChart* chart : {&charts.vsL, &charts.vsR}) {
            // Either 33 (15) first, or 36 (12) and then what still fits going down.
            const std::set<int> rolls = RollsOf(chart->cells, "HR");
            ASSERT_TRUE(rolls.count(33) == 1 || rolls.count(36) == 1);
        }
    }
}

TEST(BatterChart, RunnersAndRunProducersShapeTheOuts) {
    CountsDerivation d;
    d.counts.nOut = 100;
    d.sfShare = 0.18;
    Random random(1);
    const auto askedFor = [&](std::string_view text, int runRating) {
        const BattingChartPair charts = PlaceBatterChart(d, d, runRating, random);
        const auto& placed = charts.vsR.placed;
        return std::find_if(placed.begin(), placed.end(), [&](const PlacedResult& p) { return p.text == text; })->asked;
    };
    EXPECT_EQ(askedFor("DP", 5), 10);
    EXPECT_EQ(askedFor("DP", 0), 25);
    EXPECT_EQ(askedFor("SF", 3), 18);
    EXPECT_EQ(askedFor("G*", 3), 18);
    d.sfShare = 0.09;
    EXPECT_EQ(askedFor("SF", 3), 9);
}

TEST(PitchingChart, ThousandsOfRandomLines) {
    Random random(31);
    for (int i = 0; i < 6000; ++i) {
        const LahmanPitchingRow line = test::RandomPitchingLine(random);
        const LahmanBattingRow batting = test::RandomBattingLine(random);
        const PitcherDerivation d = DerivePitcher(line, i % 3 == 0 ? nullptr : &batting, kLayoutLeague, {}, random);
        const ChartCells& cells = d.chart.cells;
        for (int roll = 10; roll <= 15; ++roll)
            ASSERT_EQ(cells[static_cast<std::size_t>(roll - 10)], (ChartCell{"D", kGreenWord}));
        ASSERT_EQ(cells[28], (ChartCell{"X", kStoredYellowWord}));
        ASSERT_EQ(cells[6], (ChartCell{" ", kGreenWord})) << "no walk reaches cell 16";
        int total = 26 + 6;
        for (const PlacedResult& p : d.chart.placed) {
            const int weight = p.text == "G/F" ? WeightOf(cells, "G", kRedWord) + WeightOf(cells, "F", kRedWord)
                                               : WeightOf(cells, p.text, p.color);
            ASSERT_EQ(weight, std::max(p.Placed(), 0)) << p.text;
            ASSERT_GE(p.rest, std::min(p.asked, -1));
            total += weight;
        }
        ASSERT_EQ(total + WeightOf(cells, " ", kGreenWord), 216);
        for (const ChartCell& cell : d.batChart.cells) ASSERT_FALSE(IsFree(cell));
        ASSERT_TRUE(d.pitching.tiredRating >= 13 && d.pitching.tiredRating <= 40);
    }
}

TEST(PitchingChart, AnAverageManLeavesAllToTheBatter) {
    Random random(1);
    const PitchingChart chart = PlacePitchingChart({}, random);
    EXPECT_EQ(WeightOf(chart.cells, " ", kGreenWord), 216 - 26 - 6);
}

TEST(PitchingChart, Cell39TakesWhatIsLeftInTurn) {
    // Two units of strikeouts find cell 18 or 29 first; a chart without light cells gives them cell 39.
    Random random(2);
    for (int i = 0; i < 300; ++i) {
        PitchingCounts counts;
        counts.nPitchSO = 48, counts.nPitchOut = 48, counts.nPitchBB = 42, counts.nPitchHit = 28;
        const PitchingChart chart = PlacePitchingChart(counts, random);
        const ChartCell& last = chart.cells[29];
        for (const PlacedResult& p : chart.placed) {
            // Whoever has two units or more left found cell 39 taken.
            if (p.asked > 0 && p.rest >= 2) {
                ASSERT_FALSE(last.text == " " && last.color == kGreenWord) << p.text;
            }
        }
        if (last.color == kRedWord) {
            ASSERT_TRUE(last.text == "G" || last.text == "F");
        }
    }
}

TEST(PitcherAtBat, FlatPlanAndStockChart) {
    LahmanBattingRow batting;
    batting.AB = 80, batting.H = 16, batting.Doubles = 3, batting.BB = 10, batting.SO = 25, batting.HR = 1;
    LahmanPitchingRow line;
    line.G = 30, line.IPouts = 600, line.H = 180, line.SO = 120, line.BB = 60, line.BFP = 830;
    Random random(1), other(2);
    const PitcherDerivation d = DerivePitcher(line, &batting, kLayoutLeague, {}, random);
    const PitcherDerivation e = DerivePitcher(line, &batting, kLayoutLeague, {}, other);
    EXPECT_FALSE(d.stockBatting);
    EXPECT_DOUBLE_EQ(d.batChart.chances.Singles, 29 / 216.0);  // asked for, not placed
    // No draw decides where his hits go.
    for (std::size_t i = 0; i < kChartRows; ++i) {
        if (d.batting.counts.nE == e.batting.counts.nE && d.batChart.cells[i].color == kGreenWord) {
            EXPECT_EQ(d.batChart.cells[i], e.batChart.cells[i]);
        }
    }
    EXPECT_EQ(WeightOf(d.batChart.cells, "DP", kRedWord), 0);

    const PitcherDerivation stock = DerivePitcher(line, nullptr, kLayoutLeague, {}, random);
    const BattingChances held = ChancesOf(stock.batChart.cells);
    EXPECT_DOUBLE_EQ(held.Singles, stock.batChart.chances.Singles);
    EXPECT_DOUBLE_EQ(held.Doubles, stock.batChart.chances.Doubles);
    EXPECT_DOUBLE_EQ(held.SO, 90 / 216.0);
    EXPECT_DOUBLE_EQ(stock.batChart.chances.SO, 88 / 216.0);
    EXPECT_EQ(stock.control.BBRating, 40);
    batting.H = batting.Doubles = batting.HR = 0;
    EXPECT_TRUE(DerivePitcher(line, &batting, kLayoutLeague, {}, random).stockBatting);
}

TEST(Derivation, ASeedGivesItsCharts) {
    LahmanBattingRow line;
    line.AB = 400, line.BB = 40;
    line.vsLeft.AB = 120, line.vsLeft.H = 35, line.vsLeft.HR = 5, line.vsRight.AB = 280, line.vsRight.H = 70;
    const auto charts = [&](std::uint64_t seed) {
        Random random(seed);
        const BatterDerivation d = DeriveBatter(line, kLayoutLeague, {}, 3, random);
        return std::pair(d.charts.vsL.cells, d.charts.vsR.cells);
    };
    EXPECT_EQ(charts(1), charts(1));
    EXPECT_NE(charts(1), charts(2));
}

TEST(Explain, ChartsAndWeightsInText) {
    LahmanBattingRow line;
    line.AB = 300;
    line.vsLeft.AB = 12, line.vsLeft.H = 3, line.vsRight.AB = 0;
    Random random(1);
    const BatterDerivation d = DeriveBatter(line, kLayoutLeague, {}, 3, random);
    const std::string text = ChartText({{"vsL", &d.charts.vsL.cells}, {"vsR", &d.charts.vsR.cells}});
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 31);
    EXPECT_NE(text.find("\n  34     18  "), std::string::npos);
    EXPECT_EQ(text.find('?'), std::string::npos);
    const std::string why = ExplainBatter(d, "Test Batter");
    EXPECT_NE(why.find("Fewer than 25 at bats"), std::string::npos);
    EXPECT_NE(why.find("the chart of an unknown batter"), std::string::npos);
}

}  // namespace
}  // namespace tarvane
