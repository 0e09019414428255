#include "accuracy/plots.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "documents/page.h"

namespace tarvane {

namespace {

// Measures in pixels of the drawing; the page scales it.
constexpr double kSide = 250, kLeft = 52, kTop = 30, kRight = 14, kBottom = 44;

// A round distance of ticks, so that about count of them stand in the range.
double TickStep(double range, int count) {
    if (range <= 0) return 1;
    const double rough = range / count;
    const double power = std::pow(10, std::floor(std::log10(rough)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (rough <= factor * power) return factor * power;
    return 10 * power;
}

struct Range {
    double low = 0, high = 1;
    double Place(double value) const { return (value - low) / (high - low) * kSide; }
};

Range RangeOf(const std::vector<PlotPoint>& points) {
    if (points.empty()) return {};
    Range range{points.front().x, points.front().x};
    for (const PlotPoint& p : points) {
        range.low = std::min({range.low, p.x, p.y});
        range.high = std::max({range.high, p.x, p.y});
    }
    const double margin = std::max((range.high - range.low) * 0.05, 1e-6);
    range.low = range.low >= 0 ? std::max(0.0, range.low - margin) : range.low - margin;
    range.high += margin;
    return range;
}

// The area within width standard deviations of the even line.
std::string Band(const ScatterPlot& plot, const Range& range, double width, const char* name) {
    constexpr int kSteps = 40;
    std::string upper, lower;
    for (int i = 0; i <= kSteps; ++i) {
        const double x = range.low + (range.high - range.low) * i / kSteps;
        const double off = width * plot.noise(x);
        upper += fmt::format("{:.1f},{:.1f} ", range.Place(x), kSide - range.Place(x + off));
        lower.insert(0, fmt::format("{:.1f},{:.1f} ", range.Place(x), kSide - range.Place(x - off)));
    }
    return fmt::format("<polygon class=\"{}\" points=\"{}{}\"/>\n", name, upper, lower);
}

std::string Axes(const ScatterPlot& plot, const Range& range) {
    std::string svg;
    const double step = TickStep(range.high - range.low, 6);
    for (double tick = std::ceil(range.low / step) * step; tick <= range.high + step * 1e-6; tick += step) {
        const double at = range.Place(tick), down = kTop + kSide - at;
        svg += fmt::format(
            "<line class=\"grid\" x1=\"{0:.1f}\" y1=\"{1}\" x2=\"{0:.1f}\" y2=\"{2}\"/>\n"
            "<line class=\"grid\" x1=\"{3}\" y1=\"{4:.1f}\" x2=\"{5}\" y2=\"{4:.1f}\"/>\n"
            "<text class=\"tick\" text-anchor=\"middle\" x=\"{0:.1f}\" y=\"{6}\">{7:.{8}f}</text>\n"
            "<text class=\"tick\" text-anchor=\"end\" x=\"{9}\" y=\"{10:.1f}\">{7:.{8}f}</text>\n",
            kLeft + at, kTop, kTop + kSide, kLeft, down, kLeft + kSide, kTop + kSide + 14, tick, plot.decimals,
            kLeft - 5, down + 4);
    }
    return svg +
           fmt::format(
               "<text class=\"axis\" text-anchor=\"middle\" x=\"{0}\" y=\"{1}\">{2}</text>\n"
               "<text class=\"axis\" text-anchor=\"middle\" transform=\"translate(12 {3}) rotate(-90)\">{4}</text>\n",
               kLeft + kSide / 2, kTop + kSide + 34, EscapeHtml(plot.across), kTop + kSide / 2, EscapeHtml(plot.up));
}

std::string OpenSvg(double width, double height, const std::string& title) {
    return fmt::format(
        "<svg class=\"plot\" viewBox=\"0 0 {0} {1}\" role=\"img\" aria-label=\"{2}\">\n"
        "<text class=\"title\" text-anchor=\"middle\" x=\"{3}\" y=\"18\">{2}</text>\n",
        width, height, EscapeHtml(title), width / 2);
}

}  // namespace

std::string ScatterSvg(const ScatterPlot& plot) {
    const Range range = RangeOf(plot.points);
    std::string svg = OpenSvg(kLeft + kSide + kRight, kTop + kSide + kBottom, plot.title) + Axes(plot, range);
    // An inner drawing cuts off what leaves the field.
    svg += fmt::format("<svg x=\"{}\" y=\"{}\" width=\"{}\" height=\"{}\">\n", kLeft, kTop, kSide, kSide);
    if (plot.noise) {
        svg += Band(plot, range, 2, "band");
        if (plot.replays > 1) svg += Band(plot, range, 2 / std::sqrt(plot.replays), "inner");
    }
    svg += fmt::format("<line class=\"even\" x1=\"0\" y1=\"{0}\" x2=\"{0}\" y2=\"0\"/>\n", kSide);
    for (const PlotPoint& p : plot.points)
        svg += fmt::format("<circle class=\"dot\" cx=\"{:.1f}\" cy=\"{:.1f}\" r=\"3\"><title>{}</title></circle>\n",
                           range.Place(p.x), kSide - range.Place(p.y), EscapeHtml(p.label));
    return svg + "</svg>\n</svg>\n";
}

std::string BarsSvg(const std::string& title, const std::vector<PlotBar>& bars) {
    constexpr double kLabels = 110, kField = 340, kNumbers = 62, kRow = 20;
    double reach = 0.05;
    for (const PlotBar& bar : bars) reach = std::max({reach, std::abs(bar.off), bar.bound});
    reach = std::min(reach, 0.5) * 1.05;
    const double middle = kLabels + kField / 2;
    const auto at = [&](double share) { return middle + std::clamp(share / reach, -1.0, 1.0) * kField / 2; };
    std::string svg = OpenSvg(kLabels + kField + kNumbers, kTop + kRow * static_cast<double>(bars.size()) + 24, title);
    double y = kTop;
    for (const PlotBar& bar : bars) {
        const double from = std::min(at(0), at(bar.off)), to = std::max(at(0), at(bar.off));
        svg += fmt::format(
            "<text class=\"tick\" text-anchor=\"end\" x=\"{}\" y=\"{:.1f}\">{}</text>\n"
            "<rect class=\"band\" x=\"{:.1f}\" y=\"{:.1f}\" width=\"{:.1f}\" height=\"{}\"/>\n"
            "<rect class=\"{}\" x=\"{:.1f}\" y=\"{:.1f}\" width=\"{:.1f}\" height=\"{}\"/>\n"
            "<text class=\"tick\" text-anchor=\"end\" x=\"{}\" y=\"{:.1f}\">{:+.1f} %</text>\n",
            kLabels - 8, y + 14, EscapeHtml(bar.label), at(-bar.bound), y + 1, at(bar.bound) - at(-bar.bound), kRow - 2,
            std::abs(bar.off) <= bar.bound ? "bar" : "bad", from, y + 5, std::max(to - from, 0.5), kRow - 10,
            kLabels + kField + kNumbers - 4, y + 14, bar.off * 100);
        y += kRow;
    }
    svg += fmt::format(
        "<line class=\"even\" x1=\"{0}\" y1=\"{1}\" x2=\"{0}\" y2=\"{2}\"/>\n"
        "<text class=\"axis\" text-anchor=\"middle\" x=\"{0}\" y=\"{3}\">as really</text>\n"
        "<text class=\"axis\" x=\"{4}\" y=\"{3}\">too few</text>\n"
        "<text class=\"axis\" text-anchor=\"end\" x=\"{5}\" y=\"{3}\">too many</text>\n",
        middle, kTop, y, y + 16, kLabels, kLabels + kField);
    return svg + "</svg>\n";
}

}  // namespace tarvane
