#include "ratings/batting_plans.h"

#include <array>

namespace tarvane {

namespace {

struct PlanRow {
    std::string_view text;
    std::int32_t color;
    int BattingWeights::*count;
    ShareBy shareBy;
    double share;
    std::string_view left;
    std::string_view right;  // empty: as left
};

using Counts = BattingWeights;
constexpr auto kFixed = ShareBy::Fixed;
constexpr auto kByRBI = ShareBy::RunsBattedIn;
constexpr auto kByRunning = ShareBy::Running;

// Each result has its home on the chart; where two routes differ by direction only, they make charts of equal weight
// look different. The two charts of a batter differ a little in their plans, so that the same roll seldom is the same
// result.
constexpr PlanRow kTriples[] = {
    {"3", kGreenWord, &Counts::n3B, kFixed, 1, "n4: r33: 12>16 | r66: 16>12~ | 28>20~ / r50: 10>39~ | 39>10~",
     "n4: r33: 12>17~ | r66: 16>12~ | 20>28~ / r50: 10>39~ | 39>10~"},
};

constexpr PlanRow kDoublesAndErrors[] = {
    {"(2)", kGreenWord, &Counts::n2B, kFixed, 0.4,
     "n8: r50: 31>38, 26>22 | 22>27, 37>30 ; n4: r40: 28>21, 12>17 | 16>13, 20>28"
     " / r40: 10>39 | r65: 28>21 | 39>10 / r50: 10>39~ | 39>10~",
     "n8: r50: 31>38, 26>22 | 22>27, 37>30 ; n4: r40: 13>16, 28>21 | 28>21, 16>14"
     " / r50: 11>17, 20>28 | 28>21, 17>11 / r50: 10>39 | 39>10"},
    {"E", kWhiteWord, &Counts::nE, kFixed, 1, "r50: 10>39 | 39>10", ""},
    {"2", kGreenWord, &Counts::n2B, kFixed, 0.2,
     "n6: r50: 21>27, 14>16 | 38>30, 27>21 / r40: 20>29, 10>39 | r65: 28>21, 18>11 | 11>17, 39>10"
     " / r50: 10>39~ | 39>10~",
     "n6: r50: 21>27, 14>16 | 38>30, 27>21 / r40: 20>29, 10>39 | r65: 28>21, 18>11 | 11>17, 39>10"
     " / r50: 10>39 | 39>10"},
    {"2*", kGreenWord, &Counts::n2B, kFixed, 0.4,
     "n8: r50: 37>30, 26>21 | 31>38, 22>27 ; n4: r40: 30>27, 13>16 | 28>21, 16>12"
     " / r40: 20>29, 11>17 | r65: 17>11, 29>11 | 10>30, 39>10 / r50: 10>39~ | 39>10~",
     "n8: r50: 37>30, 26>21 | 31>38, 22>27 ; n4: r40: 30>27, 13>16 | 28>21, 16>12"
     " / r40: 20>29, 11>17 | r65: 17>11, 29>11 | 10>30, 39>10 / r50: 10>39 | 39>10"},
};

constexpr PlanRow kHomeRuns[] = {
    {"HR", kGreenWord, &Counts::nHR, kFixed, 1,
     "n15: r50: 33>36~, 31>37~ | 36>33~, 25>24~ ; n8: r50: 37>32, 22>26~ | 31>37~, 26>22"
     " ; n6: r50: 30>21, 15>13 | 14>16~, 30>38~ ; r50: 12>17~ | 28>20"
     " / r50: 12>17, 28>20 | 20>28, 17>12 / r50: 10>39 | 39>10",
     "n15: r50: 33>36~, 31>37~ | 36>33~, 25>24~ ; n8: r50: 37>32, 22>26~ | 31>37~, 26>22"
     " ; n6: r50: 30>21, 14>17~ | 38>30, 14>16~ ; r50: 13>17~ | 27>22 / r50: 10>39 | 39>10"},
};

constexpr PlanRow kSingles[] = {
    {"(1+)", kGreenWord, &Counts::n1B, kFixed, 0.125,
     "n6: r50: 14>16~, 27>30~ | 30>27~, 21>13~ / r59: 39>10~ | 10>39~ / r50: 10>39~ | 39>10~",
     "n6: r50: 14>16~, 27>30~ | 30>27~, 21>13~ / r59: 39>10~ | 10>39~ / r50: 39>10~ | 10>39~"},
    {"(1)", kGreenWord, &Counts::n1B, kFixed, 0.25,
     "n12: r33: 32>36~, 23>25~ | r66: 25>23~, 36>32~ | 36>32~, 23>25~"
     " / r33: 31>37~, 22>26~ | r66: 26>22~, 31>37~ | 22>26~, 37>31~ / r51: 10>39~ | 39>10~",
     "n12: r33: 32>36~, 25>23~ | r66: 23>25~, 36>32~ | 32>36~, 23>25~"
     " / r33: 37>31~, 22>26~ | r66: 31>37~, 26>22~ | 22>26~, 37>31~ / r51: 10>39~ | 39>10~"},
    {"1", kGreenWord, &Counts::n1B, kFixed, 0.125,
     "n6: r50: 30>27~, 14>21~ | 27>30~, 21>15~ / r50: 23>20~, 16>12~ | 12>16~, 27>30~ / r50: 39>10~ | 10>39~",
     "n6: r50: 30>27~, 14>21~ | 27>30~, 21>15~ / r50: 16>12~, 23>20~ | 27>30~, 12>16~ / r50: 10>39~ | 39>10~"},
    {"1*", kGreenWord, &Counts::n1B, kFixed, 0.25,
     "n12: r33: 25>24, 36>32 | r67: 32>36, 23>25 | 23>25, 36>32"
     " / r34: 22>26, 31>37 | r67: 37>31, 26>22 | 31>37, 22>26 / r49: 39>10~ | 10>39~",
     "n12: r34: 32>36, 25>23 | r67: 23>25, 32>36 | 36>32, 25>23"
     " / r33: 22>26, 31>37 | r67: 37>31, 26>22 | 31>37, 22>26 / r50: 10>39~ | 39>10~"},
    {"1+", kGreenWord, &Counts::n1B, kFixed, 0.25,
     "n12: r60: 25>23~, 36>32~ | 32>36~, 23>25~ / r50: 22>26~, 31>37~ | 31>37~, 26>22~ / r50: 10>39~ | 39>10~",
     "n12: r33: 23>25~, 37>31~ | r66: 32>36~, 26>22~ | 36>32~, 22>26~"
     " / r33: 22>26~, 37>31~ | r66: 26>22~, 31>37~ | 31>37~, 22>26~ / r50: 10>39~ | 39>10~"},
};

constexpr PlanRow kWalks[] = {
    {" ", kStoredYellowWord, &Counts::nBB, kFixed, 1,
     "n12: r50: 32>36~, 26>22~ | 23>26~, 36>31~"
     " ; n6: r33: 30>38~, 21>27~ | r66: 38>30~, 27>21~ | 21>27~, 30>38~"
     " / r25: 30>20 | r50: 30>39 | r74: 20>29 | 11>17 / 10>39~",
     "n12: r50: 32>36~, 26>22~ | 23>26~, 36>31~"
     " ; n6: r33: 30>38~, 21>27~ | r66: 38>30~, 27>21~ | 21>27~, 30>38~"
     " / r50: 39>30 | r74: 21>28 | 11>17 / 39>10~"},
};

constexpr PlanRow kHitBatters[] = {
    {"H", kStoredYellowWord, &Counts::nHBP, kFixed, 1, "10>39", ""},
};

constexpr PlanRow kStrikeoutRows[] = {
    {" ", kBlueWord, &Counts::nSO, kFixed, 1,
     "n36: r25: 35>33, 23>25 | r50: 25>23, 32>35 | r75: 23>25, 36>33 | 33>35, 25>23"
     " ; n18: r33: 22>26 | r67: 36>31 | 31>36 ; n8: r33: 31>37 | r67: 37>31 | 22>26"
     " / r22: 39>10 | r45: 31>39 | r67: 21>28 | r88: 27>20 | 10>39 / 39>10",
     "n36: r25: 35>33, 23>25 | r50: 25>23, 33>36 | r75: 32>36, 23>25 | 32>36"
     " ; n18: r33: 31>36 | r67: 26>23 | 36>31 ; n8: r33: 31>37 | r67: 37>31 | 22>26"
     " / r22: 39>10 | r45: 31>39 | r67: 21>28 | r88: 27>20 | 10>39 / 39>10"},
};

constexpr PlanRow kSacrificeFlies[] = {{"SF", kRedWord, &Counts::nOut, kByRBI, 1, "39>10", ""}};
constexpr PlanRow kAdvancingGrounders[] = {{"G*", kRedWord, &Counts::nOut, kByRBI, 1, "10>39", ""}};
constexpr PlanRow kDoublePlays[] = {{"DP", kRedWord, &Counts::nOut, kByRunning, 1, "10>39", ""}};

constexpr PlanRow kPitcherBattingRows[] = {
    {"3", kGreenWord, &Counts::n3B, kFixed, 1, "10>39", ""},
    {"(2)", kGreenWord, &Counts::n2B, kFixed, 0.2, "10>39", ""},
    {"E", kWhiteWord, &Counts::nE, kFixed, 1, "10>39", ""},
    {"2", kGreenWord, &Counts::n2B, kFixed, 0.35, "10>39", ""},
    {"2*", kGreenWord, &Counts::n2B, kFixed, 0.45, "10>39", ""},
    {"(1+)", kGreenWord, &Counts::n1B, kFixed, 0.1, "39>10", ""},
    {"(1)", kGreenWord, &Counts::n1B, kFixed, 0.15, "39>10", ""},
    {"1", kGreenWord, &Counts::n1B, kFixed, 0.2, "39>10~", ""},
    {"1*", kGreenWord, &Counts::n1B, kFixed, 0.25, "22>26~, 39>10~", ""},
    {"1+", kGreenWord, &Counts::n1B, kFixed, 0.25, "22>26~, 39>10~", ""},
    {"HR", kGreenWord, &Counts::nHR, kFixed, 1, "39>10", ""},
    {" ", kStoredYellowWord, &Counts::nBB, kFixed, 1, "39>10", ""},
    {" ", kBlueWord, &Counts::nSO, kFixed, 1, "39>10", ""},
    {"SF", kRedWord, &Counts::nOut, kByRBI, 1, "39>10", ""},
    {"G*", kRedWord, &Counts::nOut, kByRBI, 1, "10>39", ""},
};

template <std::size_t N>
BattingBlock MakeBlock(const PlanRow (&rows)[N]) {
    BattingBlock block;
    for (const PlanRow& row : rows) {
        block.push_back({row.text, row.color, row.count, row.shareBy, row.share, ParsePlan(row.left),
                         ParsePlan(row.right.empty() ? row.left : row.right)});
    }
    return block;
}

struct StockCell {
    std::string_view text;
    std::int32_t color;
};
constexpr StockCell kStockStrikeout{" ", kBlueWord};
constexpr std::array<StockCell, kChartRows> kStockCells{{
    {"E", kWhiteWord},  {"SF", kRedWord}, {"(F)", kRedWord},  {"1*", kGreenWord},  kStockStrikeout,
    {"DP", kRedWord},   kStockStrikeout,  {"(SF)", kRedWord}, {"2", kGreenWord},   {"(1+)", kGreenWord},
    {"1+", kGreenWord}, kStockStrikeout,  {"F", kRedWord},    kStockStrikeout,     {"G", kRedWord},
    {"G", kRedWord},    kStockStrikeout,  kStockStrikeout,    {"G*", kRedWord},    kStockStrikeout,
    {"DP", kRedWord},   {"G*", kRedWord}, kStockStrikeout,    kStockStrikeout,     {"F", kRedWord},
    {"DP", kRedWord},   kStockStrikeout,  kStockStrikeout,    {"(1)", kGreenWord}, {"1", kGreenWord},
}};

}  // namespace

const std::vector<BattingBlock>& BatterPlans() {
    static const std::vector<BattingBlock> plans{MakeBlock(kTriples),
                                                 MakeBlock(kDoublesAndErrors),
                                                 MakeBlock(kHomeRuns),
                                                 MakeBlock(kSingles),
                                                 MakeBlock(kWalks),
                                                 MakeBlock(kHitBatters),
                                                 MakeBlock(kStrikeoutRows),
                                                 MakeBlock(kSacrificeFlies),
                                                 MakeBlock(kAdvancingGrounders),
                                                 MakeBlock(kDoublePlays)};
    return plans;
}

const BattingBlock& PitcherBattingPlan() {
    static const BattingBlock plan = MakeBlock(kPitcherBattingRows);
    return plan;
}

const ChartCells& StockBattingChart() {
    static const ChartCells chart = [] {
        ChartCells cells;
        for (std::size_t i = 0; i < kChartRows; ++i)
            cells[i] = {std::string(kStockCells[i].text), kStockCells[i].color};
        return cells;
    }();
    return chart;
}

}  // namespace tarvane
