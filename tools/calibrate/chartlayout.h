#pragma once

#include <array>

#include "records/cell.h"

namespace tarvane::calibrate {

// Of the rolls on each cell of the pitcher's sheet, how many go on to the batter's: the rest are walks, strikeouts and
// outs of his own. Index is the roll minus 10.
using Openness = std::array<double, kChartRows>;

// What a batter's sheet yields in an era, per plate appearance.
struct SheetRates {
    double Singles = 0, Doubles = 0, Triples = 0, HR = 0, SO = 0;
};

// By how much a chart is to change the rates of an era, in shares of each rate: 0.1 gives a tenth more. A year chart
// leaves singles as they come, a park chart strikeouts.
struct ChartWishes {
    double Doubles = 0, Triples = 0, HR = 0, SO = 0, Singles = 0;
};

enum class ChartKind { Year, Park };

// What a chart changes by reckoning: each cell's weight, less the rolls that end on the pitcher's sheet, times what the
// batter's sheet would have yielded there.
ChartWishes EffectOf(const ChartCells& chart, const SheetRates& rates, const Openness& open);

// The chart whose effect comes nearest to the wishes, by a search over the cells from the empty chart
// and, for a park, from charts with one single. The same wishes give the same chart.
ChartCells LayChart(ChartKind kind, const ChartWishes& wishes, const SheetRates& rates, const Openness& open);

// The openness of a league of average pitchers, where theirs isn't known.
extern const Openness kUsualOpenness;

// A cell of a park or year chart of this text, in its colour.
ChartCell EffectCell(const std::string& text);

}  // namespace tarvane::calibrate
