#include "yearchart.h"

#include <array>
#include <cmath>
#include <string_view>

namespace tarvane::calibrate {

namespace {

constexpr std::array<std::string_view, 8> kTexts{" ", "2", "(2)", "3", "(3)", "HR", "(HR)", "K"};
using Labels = std::array<std::size_t, kChartRows>;  // places in kTexts

struct Change {
    double Doubles = 0, Triples = 0, HR = 0, SO = 0;
};

Change ChangeOf(std::size_t label, double p, const SheetRates& r) {
    switch (label) {
        case 1: return {p * r.Singles, 0, 0, 0};
        case 2: return {-p * r.Doubles, 0, 0, 0};
        case 3: return {-p * r.Doubles, p * (r.Singles + r.Doubles), 0, 0};
        case 4: return {0, -p * r.Triples, 0, 0};
        case 5: return {-p * r.Doubles, -p * r.Triples, p * (r.Singles + r.Doubles + r.Triples), 0};
        case 6: return {0, 0, -p * r.HR, 0};
        case 7: return {0, 0, 0, p * (1 - r.Singles - r.Doubles - r.Triples - r.HR - r.SO)};
        default: return {};
    }
}

Change SumOf(const Labels& labels, const SheetRates& rates, const Openness& open) {
    Change sum;
    for (std::size_t cell = 0; cell < kChartRows; ++cell) {
        const Change c = ChangeOf(labels[cell], kCellWeight[cell] * open[cell] / 216.0, rates);
        sum.Doubles += c.Doubles, sum.Triples += c.Triples, sum.HR += c.HR, sum.SO += c.SO;
    }
    return sum;
}

double Share(double change, double rate) {
    return rate > 0 ? change / rate : 0;
}

ChartWishes AsShares(const Change& c, const SheetRates& r) {
    return {Share(c.Doubles, r.Doubles), Share(c.Triples, r.Triples), Share(c.HR, r.HR), Share(c.SO, r.SO)};
}

// How far off a chart is. Triples may miss by more than the others; a fuller chart must earn its cells.
double Miss(const Labels& labels, const ChartWishes& wishes, const SheetRates& rates, const Openness& open) {
    constexpr double kTriplesTolerance = 2.5, kCellCost = 1e-7;
    const ChartWishes e = AsShares(SumOf(labels, rates, open), rates);
    const double triples = (e.Triples - wishes.Triples) / kTriplesTolerance;
    double miss = std::pow(e.Doubles - wishes.Doubles, 2) + triples * triples + std::pow(e.HR - wishes.HR, 2) +
                  std::pow(e.SO - wishes.SO, 2);
    for (std::size_t cell = 0; cell < kChartRows; ++cell) miss += labels[cell] != 0 ? kCellCost * kCellWeight[cell] : 0;
    return miss;
}

// Takes a change for good if it comes nearer.
bool Keep(Labels& labels, const Labels& tried, double& best, const ChartWishes& wishes, const SheetRates& rates,
          const Openness& open) {
    const double miss = Miss(tried, wishes, rates, open);
    if (miss >= best - 1e-12) return false;
    best = miss;
    labels = tried;
    return true;
}

bool ImproveOnce(Labels& labels, double& best, const ChartWishes& wishes, const SheetRates& rates,
                 const Openness& open) {
    bool better = false;
    for (std::size_t cell = 0; cell < kChartRows; ++cell) {
        if (open[cell] == 0) continue;
        for (std::size_t label = 0; label < kTexts.size(); ++label) {
            Labels tried = labels;
            tried[cell] = label;
            better |= Keep(labels, tried, best, wishes, rates, open);
        }
    }
    for (std::size_t a = 0; a < kChartRows; ++a) {
        for (std::size_t b = 0; b < a; ++b) {
            if (open[a] == 0 || open[b] == 0) continue;
            for (std::size_t label = 0; label < kTexts.size(); ++label) {
                Labels tried = labels;
                tried[a] = labels[b];
                tried[b] = label;
                better |= Keep(labels, tried, best, wishes, rates, open);
            }
        }
    }
    return better;
}

}  // namespace

// Most pitchers carry their walks on the heavy cells. The six lightest give automatic outs and, to a tired pitcher,
// singles, by the team in the field; so nothing is laid there, nor on the cell that leads to the Yellow X chart.
const Openness kUsualOpenness{0,    0,   0,    0,    0,    0,    1.0,  0.66, 0.62, 0.75, 0.80, 0.73, 0.58, 0.78, 0.94,
                              0.99, 0.9, 0.93, 0.67, 0.23, 0.76, 0.93, 0.71, 0.91, 0.97, 1.0,  0.86, 0.61, 0,    0.9};

ChartCell YearCell(const std::string& text) {
    return {text, text == "K" ? kBlueWord : kGreenWord};
}

ChartWishes EffectOf(const ChartCells& chart, const SheetRates& rates, const Openness& open) {
    Labels labels{};
    for (std::size_t cell = 0; cell < kChartRows; ++cell) {
        for (std::size_t label = 0; label < kTexts.size(); ++label)
            if (chart[cell].text == kTexts[label]) labels[cell] = label;
    }
    return AsShares(SumOf(labels, rates, open), rates);
}

ChartCells LayYearChart(const ChartWishes& wishes, const SheetRates& rates, const Openness& open) {
    Labels labels{};
    double best = Miss(labels, wishes, rates, open);
    while (ImproveOnce(labels, best, wishes, rates, open)) {
    }
    ChartCells chart;
    for (std::size_t cell = 0; cell < kChartRows; ++cell) {
        chart[cell] = YearCell(std::string(kTexts[labels[cell]]));
    }
    return chart;
}

}  // namespace tarvane::calibrate
