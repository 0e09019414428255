#pragma once

#include <cstdint>

#include "base/random.h"
#include "records/era.h"
#include "records/lahman.h"

namespace tarvane {

// Chances of one plate appearance, each a share of 1. Walks and hit batters are what goes beyond the league's rate and
// can be negative; outs in play are the rest.
struct BattingShares {
    double p1B = 0, p2B = 0, p3B = 0, pHR = 0, pBB = 0, pSO = 0, pHBP = 0, pOut = 0;
};

// The weight, of 216, that each result asks of a batting chart. A negative count places nothing.
struct BattingWeights {
    int n1B = 0, n2B = 0, n3B = 0, nHR = 0, nBB = 0, nSO = 0, nHBP = 0, nOut = 0, nE = 0;
    friend bool operator==(const BattingWeights&, const BattingWeights&) = default;
};

// How the counts of one chart came about.
struct CountsDerivation {
    SplitLine line;        // the statistics they rest on
    BattingShares shares;  // all 0 without at bats
    BattingWeights full;    // the shares as weights
    BattingWeights counts;  // after a small sample or the fallback chart: what the layout gets
    int sampleLimit = 0;   // at bats below which the weights shrink
    bool smallSample = false;
    bool fallback = false;  // no at bats or no hit: the chart of an unknown batter
    bool walksCapped = false;
    double RBIRate = 0;
    bool drivesRunsIn = false;  // RBIRate above the league's
    double sfShare = 0.09;      // of nOut: "SF", and the same again for "G*"; twice that for a man who drives runs in
};

// One side of a batter. F is the share of plate appearances that counts as at bats, with which the hits are scaled; all
// else goes by the era's own share. nonIntentional is the share of his walks that count (NIBBRatio).
CountsDerivation BatterCounts(const SplitLine& line, int sampleLimit, double F, double nonIntentional,
                              const LeagueBaseline& league, Random& random);

// A pitcher at bat: the season's line, the era's share on all results, no cap on walks. Without a hit he has no counts
// and gets the stock chart; usable is false then.
struct PitcherBattingCounts {
    CountsDerivation derivation;
    bool usable = false;
};
PitcherBattingCounts PitcherBattingCountsOf(const LahmanBattingRow& line, const LeagueBaseline& league, Random& random);

inline constexpr int kLeftSampleLimit = 25;
inline constexpr int kRightSampleLimit = 50;

// The share of walks that weren't intentional; 0.94 where nothing is known.
double NonIntentionalShare(const LahmanBattingRow& line);

// The walk and strikeout tests of a batting line against the league, from percentages of the league's rates. A line
// without at bats, or an era without figures, gives 40: no test.
struct ControlRatings {
    double BBPct = 100, SOPct = 100;
    std::uint8_t BBRating = 40, SORating = 40;
};
ControlRatings BatterControl(const LahmanBattingRow& line, const LeagueBaseline& league);
ControlRatings PitcherControl(const LahmanBattingRow& line,
                              const LeagueBaseline& league);  // nothing at all counts as 100

}  // namespace tarvane
