#pragma once

#include "engine/gamestate.h"
#include "records/team.h"
#include "season/statcolumns.h"

namespace tarvane {

// The arithmetic of the books: rates from totals, and what a game adds to the records of men and teams. Nothing here
// touches a table.

// A ratio whose numerator or denominator is 0 is 0.
BattingRates RatesOf(const BattingTotals& totals);
double WinningPct(int wins, int losses);
double EarnedRunAverage(int earnedRuns, int outs);  // a third of an inning counts .333, two .667
double WhipOf(int walks, int hits, int outs);
double FieldingPctOf(const FieldingTotals& fielding);

// What one team did in a game: summed from its lines, except hits and the hits against, which the line score has.
struct TeamGame {
    int runs = 0, runsAgainst = 0;
    BattingTotals batting;
    PitchingTotals pitching;  // Games: pitchers used; SHO: the opponent didn't score
    int autoOuts = 0;
    FieldingTotals fielding;  // of men at a position
    bool Won() const { return runs > runsAgainst; }
    bool Lost() const { return runs < runsAgainst; }
};
TeamGame SumTeamGame(const GameState& state, Side side);

void AddFielding(FieldingTotals& to, const FielderLine& line);

// A line's counts, with R, SB and CS, added to totals; and those of one hand.
void AddBatting(BattingTotals& to, const BatterLine& line);
void AddSplit(BattingTotals& to, const BattingCounts& counts);
// A line's pitching. used is the number of the team's pitchers, place the line's among them from 0.
void AddPitching(PitchingTotals& to, const PitchingLine& line, std::size_t place, std::size_t used);

// Works the rates of a record out again.
void RenewRates(Batter& batter);
void RenewRates(Pitcher& pitcher);

// Adds a game's batting and pitching lines to the records of a roster, their rates included. A man with several lines
// has played one game.
void AddGameToRecords(TeamRoster& roster, const BoxLines& box);

// Marks the men hurt in the game; the count starts on its date.
void AddInjuries(TeamRoster& roster, const GameState& state, Side side, const std::string& gameDate, int dayNumber);

// True for the man's first line among the team's batting lines.
bool FirstBatterLine(const BoxLines& box, std::size_t line);

}  // namespace tarvane
