#include "ratings/batting_counts.h"

#include <algorithm>

#include "base/rounding.h"
#include "ratings/rating_table.h"

namespace tarvane {

namespace {

constexpr double kChartWeight = 216;
constexpr int kMostWalks = 54;
constexpr double kUsualNonIntentional = 0.94;
constexpr int kThreeErrorsBelow = 65;  // of 100 draws: an error cell of weight 3, else of 4

int Weight(double share) {
    return static_cast<int>(RoundHalfEven(share * kChartWeight));
}

int HitsOtherThanSingles(const SplitLine& line) {
    return line.Doubles + line.Triples + line.HR;
}

double RestOf(const BattingShares& s) {
    return 1 - (s.p2B + s.p1B + s.p3B + s.pHR + s.pBB + s.pSO + s.pHBP);
}

BattingShares SharesOf(const SplitLine& line, double hitFactor, double nonIntentional, const LeagueBaseline& league) {
    const double AB = line.AB;
    BattingShares s;
    s.p1B = (line.H - HitsOtherThanSingles(line)) / AB * hitFactor;
    s.p2B = line.Doubles / AB * hitFactor;
    s.p3B = line.Triples / AB * hitFactor;
    s.pHR = line.HR / AB * hitFactor;
    s.pBB = line.BB * nonIntentional / AB * league.PAFactor - league.BBAvg;
    s.pSO = line.SO / AB * league.PAFactor;
    s.pHBP = line.HBP / AB * league.PAFactor - league.HBPRate;
    s.pOut = RestOf(s);
    return s;
}

BattingWeights CountsOf(const BattingShares& s) {
    return {Weight(s.p1B),  Weight(s.p2B),  Weight(s.p3B),
            Weight(s.pHR),  Weight(s.pBB),  Weight(s.pSO),
            Weight(s.pHBP), Weight(s.pOut), 0};
}

// Few at bats prove little: every result but the hit batter shrinks in proportion, and outs take the room.
void ShrinkToSample(CountsDerivation& d) {
    d.smallSample = true;
    BattingWeights& c = d.counts;
    for (int* count : {&c.n1B, &c.n2B, &c.n3B, &c.nHR, &c.nBB, &c.nSO}) {
        *count = static_cast<int>(RoundHalfEven(static_cast<double>(*count) * d.line.AB / d.sampleLimit));
    }
    d.RBIRate = d.RBIRate * d.line.AB / d.sampleLimit;
    c.nOut = 216 - (c.n1B + c.n2B + c.n3B + c.nHR + c.nBB + c.nSO);
}

bool HasNoHit(const BattingWeights& c) {
    return c.n1B == 0 && c.n2B == 0 && c.n3B == 0 && c.nHR == 0;
}

void TakeFallback(CountsDerivation& d) {
    d.fallback = true;
    d.counts = {13, 3, 0, 0, 0, 70, 0, 128, 2};
    d.RBIRate = 0;
}

void JudgeRunsBattedIn(CountsDerivation& d, const LeagueBaseline& league) {
    d.drivesRunsIn = d.RBIRate > league.RBIAvg;
    d.sfShare = d.drivesRunsIn ? 0.18 : 0.09;
}

int DrawErrors(Random& random) {
    return random.RandomPercent() < kThreeErrorsBelow ? 3 : 4;
}

double PercentOfLeague(int count, int AB, double factor, double average) {
    return static_cast<double>(count) / AB * factor / average * 100;
}

}  // namespace

CountsDerivation BatterCounts(const SplitLine& line, int sampleLimit, double F, double nonIntentional,
                              const LeagueBaseline& league, Random& random) {
    CountsDerivation d;
    d.line = line;
    d.sampleLimit = sampleLimit;
    if (line.AB > 0) {
        d.shares = SharesOf(line, F, nonIntentional, league);
        d.full = CountsOf(d.shares);
        d.walksCapped = d.full.nBB > kMostWalks;
        d.full.nBB = std::min(d.full.nBB, kMostWalks);
        d.counts = d.full;
        d.RBIRate = line.RBI / static_cast<double>(line.AB) * league.PAFactor;
        if (line.AB < sampleLimit) ShrinkToSample(d);
    }
    d.counts.nE = DrawErrors(random);
    if (line.AB <= 0 || HasNoHit(d.counts)) TakeFallback(d);
    JudgeRunsBattedIn(d, league);
    return d;
}

PitcherBattingCounts PitcherBattingCountsOf(const LahmanBattingRow& line, const LeagueBaseline& league,
                                            Random& random) {
    PitcherBattingCounts result;
    if (line.AB <= 0) return result;
    CountsDerivation& d = result.derivation;
    d.line = {line.AB,
              line.H,
              line.Doubles,
              line.Triples,
              line.HR,
              line.RBI,
              line.BB,
              line.SO.value_or(0),
              line.HBP.value_or(0),
              line.SH.value_or(0),
              line.SF.value_or(0),
              line.GIDP.value_or(0)};
    d.sampleLimit = kLeftSampleLimit;
    d.shares = SharesOf(d.line, league.PAFactor, 1.0, league);
    if (!line.HBP) {
        d.shares.pHBP = 0;  // not recorded in his day: nothing above or below the league
        d.shares.pOut = RestOf(d.shares);
    }
    d.full = CountsOf(d.shares);
    d.counts = d.full;
    d.RBIRate = line.RBI / static_cast<double>(line.AB) * league.PAFactor;
    if (line.AB < d.sampleLimit) ShrinkToSample(d);
    d.counts.nE = DrawErrors(random);
    JudgeRunsBattedIn(d, league);
    const BattingWeights& c = d.counts;
    result.usable = c.n1B > 0 || c.n2B > 0 || c.n3B > 0 || c.nHR > 0;
    return result;
}

double NonIntentionalShare(const LahmanBattingRow& line) {
    const int IBB = line.IBB.value_or(0);
    if (line.BB <= 0 || IBB <= 0) return kUsualNonIntentional;
    return static_cast<double>(line.BB) / (line.BB + IBB);
}

ControlRatings BatterControl(const LahmanBattingRow& line, const LeagueBaseline& league) {
    ControlRatings r;
    if (line.AB <= 0) return r;
    if (league.BBAvg > 0) {
        r.BBPct = PercentOfLeague(line.BB, line.AB, league.PAFactor, league.BBAvg);
        r.BBRating = RatingFromPercent(r.BBPct);
    }
    if (league.SOAvg > 0) {
        r.SOPct = PercentOfLeague(line.SO.value_or(0), line.AB, league.PAFactor, league.SOAvg);
        r.SORating = RatingFromPercent(r.SOPct);
    }
    return r;
}

ControlRatings PitcherControl(const LahmanBattingRow& line, const LeagueBaseline& league) {
    ControlRatings r = BatterControl(line, league);
    if (r.BBPct == 0) r.BBRating = RatingFromPercent(100);
    if (r.SOPct == 0) r.SORating = RatingFromPercent(100);
    return r;
}

}  // namespace tarvane
