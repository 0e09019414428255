#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "ratings/batting_counts.h"
#include "ratings/plan.h"

namespace tarvane {

// Which share of a count a result takes. Fixed shares are of its own count; outs that move runners go by how the man
// drives runs in, double plays by how he runs.
enum class ShareBy { Fixed, RunsBattedIn, Running };

// One result of a batting chart: what it looks like, how much of which count it takes, and where it goes on the chart
// against left-handers and on the one against right-handers.
struct BattingResultPlan {
    std::string_view text;
    std::int32_t color = 0;
    int BattingWeights::*count = nullptr;
    ShareBy shareBy = ShareBy::Fixed;
    double share = 1;
    Plan left, right;
};

// Results that are placed together, first all of one chart, then all of the other.
using BattingBlock = std::vector<BattingResultPlan>;

// The layout of a batter's two charts, in the order of placing.
const std::vector<BattingBlock>& BatterPlans();

// The layout of a pitcher's one chart at bat; left and right are the same.
const BattingBlock& PitcherBattingPlan();

// The chart of a pitcher about whose batting nothing is known.
const ChartCells& StockBattingChart();

}  // namespace tarvane
