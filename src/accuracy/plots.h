#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tarvane {

// Plots as SVG elements that stand in a page by themselves. Their looks are classes of the page's style sheet: plot,
// title, axis, grid, tick, dot, band, inner, even, bar, bad.

struct PlotPoint {
    double x = 0, y = 0;
    std::string label;  // shown by a pointer that rests on the point
};

// Replay (up) against reality (across), both axes in one scale, with the line on which they are equal. noise gives the
// standard deviation of a single replay at a value, or is empty; the wide band is twice that, the narrow one twice that
// of the mean of so many replays.
struct ScatterPlot {
    std::string title;
    int decimals = 3;  // of the ticks
    std::vector<PlotPoint> points;
    std::function<double(double)> noise;
    double replays = 1;
    std::string across = "real", up = "replay";
};
std::string ScatterSvg(const ScatterPlot& plot);

// Shares off, 0 in the middle, each with its allowance behind it.
struct PlotBar {
    std::string label;
    double off = 0, bound = 0;
};
std::string BarsSvg(const std::string& title, const std::vector<PlotBar>& bars);

}  // namespace tarvane
