#pragma once

#include <optional>
#include <vector>

#include "records/era.h"
#include "records/lahman.h"
#include "records/player.h"

namespace tarvane {

// Batters and pitchers are rated by their own scales: a pitcher who plays shortstop is measured more generously.
enum class FielderKind { Batter, Pitcher };

// How one fielding line became an entry of a player's positions. Differences are per game against the league.
struct FieldingDerivation {
    LahmanFieldingRow line;
    PositionRating entry;
    double PODiff = 0, ADiff = 0, DPDiff = 0, EDiff = 0;
    int Gain = 0;       // plays above the league, times the position's worth
    double Loss = 0;    // errors above the league, times the same
    int rawRating = 0;  // before few games, the damping of bad ratings and the limits
    double errorRatio = 0;
    int ErrorIndex = 27;
    bool noBaseline = false;  // the era has no figures of this position: rating 0, letter V
    bool strongArm = false;   // catcher's "(I)": a quarter more assists than the league
    bool weakArm = false;     // catcher's "(O)": a quarter less
};

// One line. Empty if the position isn't rated for this kind of player (such as "DH"), or the line has no games.
std::optional<FieldingDerivation> RateFieldingLine(const LahmanFieldingRow& line, const LeagueBaseline& league,
                                                   FielderKind kind);

// A player's lines in the table's order, of which the first eight are looked at. Gives at most eight entries for a
// batter, at most four for a pitcher; a pitcher without any gets the position P, rating 0, letter V.
std::vector<FieldingDerivation> RateFielding(const std::vector<LahmanFieldingRow>& lines, const LeagueBaseline& league,
                                             FielderKind kind);

// The letter of an error index; 27 is the league's average.
char ErrorLetter(int errorIndex);

}  // namespace tarvane
