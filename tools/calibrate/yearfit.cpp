#include "yearfit.h"

#include <algorithm>
#include <cmath>

namespace tarvane::calibrate {

namespace {

// By how much the replayed rate changes with what the generators measure against; found by trials with one value
// changed. They need not be exact: the iteration ends where nothing is left to change.
constexpr double kHitsPerBaseline = -0.6, kStrikeoutsPerBaseline = -0.6, kWalksPerBaseline = -0.8,
                 kHomeRunsPerBaseline = -0.25, kHitBatsmenPerBaseline = -0.5, kRunsPerRBIBaseline = 0.04;

// The factor that takes a rate from where it is to where it shall be, within limits.
double Moved(double factor, double fact, double real, double replay, double perBaseline, double gain, double lowest,
             double highest) {
    if (fact <= 0) return factor;
    return std::clamp(factor + gain * (real - replay) / perBaseline / fact, lowest, highest);
}

double PerPA(const Counts& counts, Figure figure) {
    return counts.Of(figure) / counts.Of(Figure::PA);
}

double PerGame(const Counts& counts, Figure figure) {
    return counts.Of(figure) / counts.Of(Figure::Games);
}

double Wish(double effect, double fact, double real, double replay, double gain) {
    return fact > 0 ? effect + gain * (real - replay) / fact : effect;
}

}  // namespace

Adjustment UsualAdjustment() {
    Adjustment usual;
    usual.AvgSOBFP = 0.8;
    usual.AvgHRBFP = 0.3;
    usual.BBAvg = 0.95;
    usual.HBPRate = 0.5;
    usual.Errors = 0.8;
    usual.chart = {0.2, -0.1, 0, 0};
    return usual;
}

Adjustment NextAdjustment(const Adjustment& now, const EraTable& facts, std::int32_t eraID, const Counts& real,
                          const Counts& replay, const Openness& open, double gain) {
    constexpr double kLeastStrikeouts = 0.3;
    constexpr double kMostHomeRunBaseline = 2, kLeastWish = 0.01;
    // Below zero everybody is hit more often than his record says: what pitchers' cards keep from reaching his.
    constexpr double kFewestHitBatsmen = -1.5;
    const auto fact = [&](const char* column) { return facts.Fact(eraID, column); };
    const SheetRates rates = facts.RatesOf(eraID);
    Adjustment next = now;
    next.AvgHBFP = Moved(now.AvgHBFP, fact("AvgHBFP"), PerPA(real, Figure::H), PerPA(replay, Figure::H),
                         kHitsPerBaseline, gain, 0.7, 1.4);
    next.BBAvg = Moved(now.BBAvg, fact("BBAvg"), PerPA(real, Figure::BB), PerPA(replay, Figure::BB), kWalksPerBaseline,
                       gain, 0.3, 2);
    next.HBPRate = Moved(now.HBPRate, fact("HBPRate"), PerPA(real, Figure::HBP), PerPA(replay, Figure::HBP),
                         kHitBatsmenPerBaseline, gain, kFewestHitBatsmen, 4);
    next.RBIAvg = std::clamp(
        now.RBIAvg + gain * (PerGame(replay, Figure::R) / PerGame(real, Figure::R) - 1) / kRunsPerRBIBaseline, 0.0,
        3.0);
    next.Errors =
        std::clamp(now.Errors * std::pow(PerGame(replay, Figure::E) / PerGame(real, Figure::E), gain), 0.4, 1.6);
    // A chart has thirty cells and so misses its wishes by a little: what it really gives is what was measured.
    const ChartWishes effect =
        EffectOf(now.cells ? *now.cells : LayChart(ChartKind::Year, now.chart, rates, kUsualOpenness), rates, open);
    next.chart.Doubles =
        Wish(effect.Doubles, rates.Doubles, PerPA(real, Figure::Doubles), PerPA(replay, Figure::Doubles), gain);
    next.chart.Triples =
        Wish(effect.Triples, rates.Triples, PerPA(real, Figure::Triples), PerPA(replay, Figure::Triples), gain);
    // Home runs come from the pitchers' own records as long as these can give them; they go by each man, and without the
    // coarse steps of a chart. What is still missing then, or too many, the chart gives or takes.
    next.chart.HR = now.AvgHRBFP <= 0 || now.AvgHRBFP >= kMostHomeRunBaseline
                        ? Wish(effect.HR, rates.HR, PerPA(real, Figure::HR), PerPA(replay, Figure::HR), gain)
                        : 0;
    if (std::abs(next.chart.HR) < kLeastWish) {
        next.chart.HR = 0;
        next.AvgHRBFP = Moved(now.AvgHRBFP, fact("AvgHRBFP"), PerPA(real, Figure::HR), PerPA(replay, Figure::HR),
                              kHomeRunsPerBaseline, gain, 0, kMostHomeRunBaseline);
    }
    // Once the pitchers' baseline has reached its end the chart gives the strikeouts that are still missing.
    next.chart.SO =
        now.AvgSOBFP <= kLeastStrikeouts
            ? std::max(0.0, Wish(effect.SO, rates.SO, PerPA(real, Figure::SO), PerPA(replay, Figure::SO), gain))
            : 0;
    if (next.chart.SO == 0)
        next.AvgSOBFP = Moved(now.AvgSOBFP, fact("AvgSOBFP"), PerPA(real, Figure::SO), PerPA(replay, Figure::SO),
                              kStrikeoutsPerBaseline, gain, kLeastStrikeouts, 2);
    next.cells = LayChart(ChartKind::Year, next.chart, rates, open);
    return next;
}

double MissOf(const Counts& real, const Counts& replay) {
    double miss = 0;
    for (const LeagueRate& rate : LeagueRates()) {
        if (rate.per != Figure::PA && rate.figure != Figure::R && rate.figure != Figure::E) continue;
        const auto was = RateOf(rate, real), is = RateOf(rate, replay);
        if (was && is && *was > 0) miss += std::pow((*is / *was - 1) / rate.bound, 2);
    }
    return miss;
}

}  // namespace tarvane::calibrate
