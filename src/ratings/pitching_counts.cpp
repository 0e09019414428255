#include "ratings/pitching_counts.h"

#include <algorithm>
#include <array>

#include "base/rounding.h"
#include "ratings/rating_table.h"

namespace tarvane {

namespace {

constexpr double kPitchingWeight = 210;
constexpr double kSpan = 0.9;  // the share of batters faced over which a difference from the league is spread
constexpr double kUsualNetWalks = 0.92;
constexpr int kBattersPerGame = 30;

int RoundedWeight(double weight) {
    return static_cast<int>(RoundHalfEven(weight));
}

// A pitcher better than the league takes at least a little of it.
int AboveLeague(double difference, double average, double outFactor, int walks) {
    const double share = difference / (kSpan - average) * outFactor;
    const int weight = RoundedWeight((kPitchingWeight - walks) * share);
    return std::min(weight == 0 ? 1 : weight, 48);
}

int HitsAllowed(double difference, double average, int walks) {
    const double share = difference / (kSpan - average);
    int weight = RoundedWeight((216 - walks) * share);
    if (weight > 4) weight = RoundedWeight(weight * 0.775);
    return std::min(weight, 28);
}

PitchingCounts CountsOf(const PitchingDerivation& d, const LeagueBaseline& league, double outFactor) {
    PitchingCounts c;
    c.nPitchBB = std::min(RoundedWeight(d.NetBB / d.BF * 216), 42);
    if (d.SODiff > 0) c.nPitchSO = AboveLeague(d.SODiff, league.AvgSOBFP, outFactor, c.nPitchBB);
    if (d.HitDiff > 0) c.nPitchHit = HitsAllowed(d.HitDiff, league.AvgHBFP, c.nPitchBB);
    if (d.HitDiff < 0) c.nPitchOut = AboveLeague(-d.HitDiff, league.AvgHBFP, outFactor, c.nPitchBB);
    if (d.HRDiff > 0) c.nPitchHRUp = RoundedWeight(d.HRDiff * kPitchingWeight);
    if (d.HRDiff < 0) c.nPitchHRDown = RoundedWeight(-d.HRDiff * kPitchingWeight);
    return c;
}

PitchingChances ChancesOfCounts(const PitchingCounts& c) {
    PitchingChances chances;
    chances.SO = c.nPitchSO / kPitchingWeight;
    chances.Out = c.nPitchOut / kPitchingWeight;
    chances.BBorHBP = c.nPitchBB / kPitchingWeight;
    chances.HRReduce = c.nPitchHRDown / kPitchingWeight;
    chances.HRIncrease = c.nPitchHRUp / kPitchingWeight;
    chances.AllowHit = c.nPitchHit / kPitchingWeight;
    return chances;
}

// Lower bounds of the ratings 40 down to 13, in innings a game.
constexpr std::array<double, 28> kTiredFrom{0,   0.15, 0.2,  0.3,  0.35, 0.45, 0.55, 0.65, 0.8,  0.9,
                                            1.0, 1.05, 1.1,  1.15, 1.25, 1.5,  1.8,  2.2,  2.65, 3.15,
                                            3.6, 3.9,  4.05, 4.4,  5.0,  6.2,  8.5,  12.7};
constexpr double kTiredRowGap =
    0.00001;  // a row ends this much below the next, so that a value between them has no rating
constexpr double kSameInnings = 1e-9;  // 23 innings in 20 games are 1.15, whatever the last bit of the quotient says
constexpr int kTiredHighest = 40;
constexpr double kStarterInnings = 4.05;

void RateStamina(PitchingDerivation& d) {
    const LahmanPitchingRow& line = d.line;
    if (line.G > 0) {
        d.IPG = static_cast<double>(line.IPouts) / line.G / 3;
        d.CGPct = 100.0 * line.CG / line.G;
    }
    d.dominance = d.counts.nPitchSO + d.counts.nPitchOut;
    d.IPGFactor = DominanceFactor(d.IPG, d.dominance);
    d.tiredRating = TiredRatingOf(d.IPG * d.IPGFactor);
    d.secondWindRating = RatingFromPercent(d.CGPct);
}

}  // namespace

double DominanceFactor(double inningsPerGame, int dominance) {
    const bool reliever = inningsPerGame < kStarterInnings;
    if (dominance > 54) return reliever ? 3.0 : 1.5;
    if (dominance >= 37) return reliever ? 2.25 : 1.3;
    if (dominance >= (reliever ? 18 : 19)) return reliever ? 1.5 : 1.15;
    return 1;
}

std::uint8_t TiredRatingOf(double inningsPerGame) {
    for (std::size_t row = kTiredFrom.size(); row-- > 0;) {
        if (inningsPerGame + kSameInnings < kTiredFrom[row]) continue;
        const bool last = row + 1 == kTiredFrom.size();
        const bool inGap = !last && inningsPerGame > kTiredFrom[row + 1] - kTiredRowGap + kSameInnings;
        return inGap ? std::uint8_t{0} : static_cast<std::uint8_t>(kTiredHighest - static_cast<int>(row));
    }
    return 0;
}

PitchingDerivation DerivePitching(const LahmanPitchingRow& line, const LeagueBaseline& league, double outFactor) {
    PitchingDerivation d;
    d.line = line;
    d.BF = line.BFP ? *line.BFP : line.G * kBattersPerGame;
    d.NetBB = line.IBB ? line.BB - *line.IBB : line.BB * kUsualNetWalks;
    if (d.BF > 0) {
        d.SODiff = line.SO / d.BF - league.AvgSOBFP;
        d.HitDiff = line.H / d.BF - league.AvgHBFP;
        d.HRDiff = line.HR / d.BF - league.AvgHRBFP;
        d.counts = CountsOf(d, league, outFactor);
        d.chances = ChancesOfCounts(d.counts);
    }
    RateStamina(d);
    return d;
}

}  // namespace tarvane
