#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "ratings/batting_counts.h"
#include "ratings/plan.h"
#include "records/player.h"

namespace tarvane {

// What became of one result: the weight it asked for and what found no cell. rest can be -1 (one unit too much placed)
// and is what was asked where nothing was placed.
struct PlacedResult {
    std::string_view text;
    std::int32_t color = 0;
    int asked = 0;
    int rest = 0;
    int Placed() const { return asked - rest; }
};

// One finished batting chart: no cell is free.
struct BattingChart {
    ChartCells cells = FreeCells();
    std::vector<PlacedResult> placed;  // in the order of placing; the grounders and flies that fill up are not listed
    BattingChances chances;            // of what the finished chart holds
};

struct BattingChartPair {
    BattingChart vsL, vsR;
};

// Lays out the two charts of a batter. runRating is 0 to 5: who runs well seldom hits into a double play.
BattingChartPair PlaceBatterChart(const CountsDerivation& vsL, const CountsDerivation& vsR, int runRating, Random& random);

// Lays out the one chart of a pitcher at bat. His chances are those asked for, not those placed.
BattingChart PlacePitcherBatting(const CountsDerivation& counts, Random& random);

// The chart and the chances of a pitcher whose batting line says nothing.
BattingChart StockPitcherBatting();

// Sums the weights of a chart by what its cells hold; each sum over 216.
BattingChances ChancesOf(const ChartCells& cells);

// The share of outs in play that are double plays, by running rating.
double DoublePlayShare(int runRating);

}  // namespace tarvane
