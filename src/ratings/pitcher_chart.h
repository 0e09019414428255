#pragma once

#include <vector>

#include "ratings/batter_chart.h"
#include "ratings/pitching_counts.h"

namespace tarvane {

// A pitcher's own chart. The cells 10 to 15 are the defence's, cell 38 is the Yellow X, and where nothing was placed
// the play goes to the batter.
struct PitchingChart {
    ChartCells cells{};
    std::vector<PlacedResult> placed;  // in the order of placing
};

PitchingChart PlacePitchingChart(const PitchingCounts& counts, Random& random);

}  // namespace tarvane
