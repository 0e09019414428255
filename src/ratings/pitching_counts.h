#pragma once

#include <cstdint>

#include "records/era.h"
#include "records/lahman.h"
#include "records/player.h"

namespace tarvane {

// The weight each result asks of a pitching chart. All but the walks are differences from the league, counted against
// the 210 that are left when the cell of the Yellow X is taken off.
struct PitchingCounts {
    int nPitchBB = 0;      // walks, at most 42
    int nPitchSO = 0;      // strikeouts beyond the league's, at most 48
    int nPitchOut = 0;     // outs in place of hits, at most 48
    int nPitchHit = 0;     // hits beyond the league's, at most 28
    int nPitchHRUp = 0;    // home runs beyond the league's
    int nPitchHRDown = 0;  // home runs kept away
    friend bool operator==(const PitchingCounts&, const PitchingCounts&) = default;
};

struct PitchingDerivation {
    LahmanPitchingRow line;
    double BF = 0;                               // batters faced; 30 a game where they weren't counted
    double NetBB = 0;                            // without the intentional ones
    double SODiff = 0, HitDiff = 0, HRDiff = 0;  // per batter faced, against the league
    PitchingCounts counts;
    PitchingChances chances;  // the counts over 210, before placing
    double IPG = 0;           // innings a game
    int dominance = 0;        // nPitchSO + nPitchOut
    double IPGFactor = 1;     // a dominant pitcher is good for more than he was used for
    std::uint8_t tiredRating = 0;
    double CGPct = 0;
    std::uint8_t secondWindRating = 0;
};

// outFactor ("Pitcher Out Normalization") scales the shares of a pitcher better than the league; above 0, usually 1.
PitchingDerivation DerivePitching(const LahmanPitchingRow& line, const LeagueBaseline& league, double outFactor);

// The inning rating at which a pitcher tires, 13 to 40, from his innings a game: the shorter, the higher.
std::uint8_t TiredRatingOf(double inningsPerGame);

// By how much the innings of a pitcher count who takes this much weight of outs to himself.
double DominanceFactor(double inningsPerGame, int dominance);

}  // namespace tarvane
