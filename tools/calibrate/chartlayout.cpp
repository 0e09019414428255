#include "chartlayout.h"

#include <array>
#include <cmath>
#include <string_view>
#include <utility>

namespace tarvane::calibrate {

namespace {

// The texts that the charts may hold; the first is a cell without effect.
constexpr std::array<std::string_view, 10> kTexts{" ", "2", "(2)", "3", "(3)", "HR", "(HR)", "K", "F", "1+"};
constexpr std::size_t kStrikeout = 7, kSingle = 9;
using Labels = std::array<std::size_t, kChartRows>;  // places in kTexts

bool Allowed(ChartKind kind, std::size_t label) {
    return kind == ChartKind::Year ? label <= kStrikeout : label != kStrikeout;
}

struct Change {
    double Singles = 0, Doubles = 0, Triples = 0, HR = 0, SO = 0;
};

// What a cell does to a share p of the rolls, all of which reach the batter's sheet.
Change ChangeOf(std::size_t label, double p, const SheetRates& r) {
    switch (label) {
        case 1: return {-p * r.Singles, p * r.Singles, 0, 0, 0};
        case 2: return {p * r.Doubles, -p * r.Doubles, 0, 0, 0};
        case 3: return {-p * r.Singles, -p * r.Doubles, p * (r.Singles + r.Doubles), 0, 0};
        case 4: return {p * r.Triples, 0, -p * r.Triples, 0, 0};
        case 5:
            return {-p * r.Singles, -p * r.Doubles, -p * r.Triples, p * (r.Singles + r.Doubles + r.Triples), 0};
        case 6: return {p * r.HR, 0, 0, -p * r.HR, 0};
        case kStrikeout: return {0, 0, 0, 0, p * (1 - r.Singles - r.Doubles - r.Triples - r.HR - r.SO)};
        case 8: return {-p * r.Singles, -p * r.Doubles, -p * r.Triples, -p * r.HR, -p * r.SO};
        case kSingle: return {p * (1 - r.Singles), -p * r.Doubles, -p * r.Triples, -p * r.HR, -p * r.SO};
        default: return {};
    }
}

Change SumOf(const Labels& labels, const SheetRates& rates, const Openness& open) {
    Change sum;
    for (std::size_t cell = 0; cell < kChartRows; ++cell) {
        if (labels[cell] == 0) continue;
        const Change c = ChangeOf(labels[cell], kCellWeight[cell] * open[cell] / 216.0, rates);
        sum.Singles += c.Singles, sum.Doubles += c.Doubles, sum.Triples += c.Triples, sum.HR += c.HR, sum.SO += c.SO;
    }
    return sum;
}

double Share(double change, double rate) {
    return rate > 0 ? change / rate : 0;
}

ChartWishes AsShares(const Change& c, const SheetRates& r) {
    return {Share(c.Doubles, r.Doubles), Share(c.Triples, r.Triples), Share(c.HR, r.HR), Share(c.SO, r.SO),
            Share(c.Singles, r.Singles)};
}

// What a chart is laid for.
struct Task {
    ChartKind kind;
    const ChartWishes& wishes;
    const SheetRates& rates;
    const Openness& open;
};

// How far off a chart is. Triples may miss by more than the others; a fuller chart must earn its cells, a
// year's more, as the parks' charts lie beside it and the two don't add up on the same roll. Strikeouts are
// the year's alone, and singles the park's: the year has better means for them.
double Miss(const Labels& labels, const Task& task) {
    constexpr double kTriplesTolerance = 2.5;
    const double cellCost = task.kind == ChartKind::Year ? 1e-6 : 1e-7;
    const ChartWishes e = AsShares(SumOf(labels, task.rates, task.open), task.rates);
    const ChartWishes& w = task.wishes;
    const double last = task.kind == ChartKind::Year ? e.SO - w.SO : e.Singles - w.Singles;
    double miss = std::pow(e.Doubles - w.Doubles, 2) + std::pow((e.Triples - w.Triples) / kTriplesTolerance, 2) +
                  std::pow(e.HR - w.HR, 2) + std::pow(last, 2);
    for (std::size_t cell = 0; cell < kChartRows; ++cell) miss += labels[cell] != 0 ? cellCost * kCellWeight[cell] : 0;
    return miss;
}

// Takes a change for good if it comes nearer.
bool Keep(Labels& labels, const Labels& tried, double& best, const Task& task) {
    const double miss = Miss(tried, task);
    if (miss >= best - 1e-12) return false;
    best = miss;
    labels = tried;
    return true;
}

// Every cell alone, then every pair of cells of which one takes what the other held.
bool ImproveOnce(Labels& labels, double& best, const Task& task) {
    bool better = false;
    for (std::size_t cell = 0; cell < kChartRows; ++cell) {
        for (std::size_t label = 0; label < kTexts.size() && task.open[cell] > 0; ++label) {
            if (!Allowed(task.kind, label)) continue;
            Labels tried = labels;
            tried[cell] = label;
            better |= Keep(labels, tried, best, task);
        }
    }
    for (std::size_t a = 0; a < kChartRows; ++a) {
        for (std::size_t b = 0; b < a; ++b) {
            if (task.open[a] == 0 || task.open[b] == 0) continue;
            for (std::size_t label = 0; label < kTexts.size(); ++label) {
                if (!Allowed(task.kind, label)) continue;
                Labels tried = labels;
                tried[a] = labels[b];
                tried[b] = label;
                better |= Keep(labels, tried, best, task);
            }
        }
    }
    return better;
}

std::pair<Labels, double> Improved(Labels labels, const Task& task) {
    double best = Miss(labels, task);
    while (ImproveOnce(labels, best, task)) {
    }
    return {labels, best};
}

}  // namespace

// Most pitchers carry their walks on the heavy cells. The six lightest give automatic outs and, to a tired pitcher,
// singles, by the team in the field; so nothing is laid there, nor on the cell that leads to the Yellow X chart.
const Openness kUsualOpenness{0,    0,   0,    0,    0,    0,    1.0,  0.66, 0.62, 0.75, 0.80, 0.73, 0.58, 0.78, 0.94,
                              0.99, 0.9, 0.93, 0.67, 0.23, 0.76, 0.93, 0.71, 0.91, 0.97, 1.0,  0.86, 0.61, 0,    0.9};

ChartCell EffectCell(const std::string& text) {
    return {text, text == "K" ? kBlueWord : text == "F" ? kRedWord : kGreenWord};
}

ChartWishes EffectOf(const ChartCells& chart, const SheetRates& rates, const Openness& open) {
    Labels labels{};
    for (std::size_t cell = 0; cell < kChartRows; ++cell) {
        for (std::size_t label = 0; label < kTexts.size(); ++label)
            if (chart[cell].text == kTexts[label]) labels[cell] = label;
    }
    return AsShares(SumOf(labels, rates, open), rates);
}

ChartCells LayChart(ChartKind kind, const ChartWishes& wishes, const SheetRates& rates, const Openness& open) {
    constexpr int kLight = 4;
    const Task task{kind, wishes, rates, open};
    auto [labels, best] = Improved({}, task);
    // A single of the park does so much that the search from an empty chart may never take the right one.
    for (std::size_t cell = 0; cell < kChartRows && kind == ChartKind::Park; ++cell) {
        if (open[cell] == 0 || kCellWeight[cell] > kLight) continue;
        Labels start{};
        start[cell] = kSingle;
        const auto [tried, miss] = Improved(start, task);
        if (miss < best) labels = tried, best = miss;
    }
    ChartCells chart;
    for (std::size_t cell = 0; cell < kChartRows; ++cell) chart[cell] = EffectCell(std::string(kTexts[labels[cell]]));
    return chart;
}

}  // namespace tarvane::calibrate
