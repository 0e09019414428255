#pragma once

// Inside the engine only: what the files of the single sheets offer one another, beside step.h.

#include "engine/step.h"

namespace tarvane {

// What changed a result on its way, in the order in which it is told once the play is out.
enum class Note : std::uint16_t {
    OutIsError = 1 << 0,
    ParkResultOut = 1 << 1,
    ParkResultHit = 1 << 2,
    YearResultHit = 1 << 3,
    YearResultOut = 1 << 4,
    ErrorIsOut = 1 << 5,
    YearResultIncreased = 1 << 6,
    YearResultReduced = 1 << 7,
    YearResultGreenK = 1 << 8,
    ParkResultReduced = 1 << 9,
    ParkResultIncreased = 1 << 10,
    PitcherResultReduced = 1 << 11,
    PitcherResultIncreased = 1 << 12
};
inline void AddNote(Play& play, Note note) {
    play.Notes = static_cast<std::uint16_t>(play.Notes | static_cast<std::uint16_t>(note));
}
void TellNotes(Step& step);
// Moves everybody for the present result. The batter's own out is already counted.
void AdvanceRunners(Step& step);

// --- Where a runner goes, and how his run counts ---

enum class Goes : std::uint8_t { Stays, First, Second, Third, Home, Out, Asks };

// One movement of everybody: index 0 is the batter, 1 to 3 the man on that base. Stays keeps a runner on his base and
// the batter where he is; Asks leaves him to a decision.
struct Moves {
    std::array<Goes, 4> from{};
};

// RBI: each run bats in one. unearnedFrom has bit n set when a run from base n is not earned whatever the half has seen
// (bit 0 the batter); the others are earned by the usual test.
struct RunRule {
    bool RBI = true;
    std::uint8_t unearnedFrom = 0;
};
inline constexpr std::uint8_t kNoneEarned = 0x0F;

// Moves everyone, the man nearest home first. The batter enters as the runner given.
void MoveRunners(Step& step, const Moves& moves, RunRule rule, Runner batter);

inline bool Occupied(const TeamState& team, int base) {
    return team.runner[static_cast<std::size_t>(base)].On();
}
inline bool AnyoneOn(const TeamState& team) {
    return Occupied(team, 1) || Occupied(team, 2) || Occupied(team, 3);
}
inline bool BasesFull(const TeamState& team) {
    return Occupied(team, 1) && Occupied(team, 2) && Occupied(team, 3);
}
inline Runner BatterRunner(const TeamState& team, bool unearned = false) {
    return {team.BatterSlot, unearned};
}

// --- The sheets, each with the reading of its roll ---

void ReadPitcherSheet(Step& step);
void WalkIntentionally(Step& step);
void EndPitcherSheet(Step& step);  // the rest of a pitcher's play, at once or after a decision
void ReadRatingTest(Step& step);
void ReadBatterSheet(Step& step);
void EndBatterSheet(Step& step);  // the rest of a batter's play, at once or after a decision
void ReadBuntSheet(Step& step);
void EndBuntSheet(Step& step);  // the rest of a bunt that is in play
void ReadStealSheet(Step& step);
void ReadDecisionSheet(Step& step);
void ReadYellowX(Step& step);
void ReadYellowXInjury(Step& step);

// The chart cell of a roll on the pitcher's own chart; under a defensive era rolls 10 to 15 come from the era.
const Cell& PitcherCell(const GameData& data, const GameState& state, int chartRoll);
const Chart& BatterChart(const GameData& data, const GameState& state);
inline const Cell& CellAt(const Chart& chart, int chartRoll) {
    return chart[static_cast<std::size_t>(chartRoll - kFirstRoll)];
}

// Forgets the play before: a pitch, a bunt, a steal or an intentional walk starts from nothing.
void BeginPlay(Play& play);
// The rules shared by pitcher and batter sheet: a red cell, and a possible error on a white one.
void ReadOut(Step& step, const Cell& cell, bool pitcherSheet);
void ReadPossibleError(Step& step);

// --- Fielding and errors ---

void PlaceBall(Step& step);  // fills FieldedBy from DisplayResult; nothing more
void DefenceCell(Step& step);
bool ErrorOnOut(Step& step);  // true if the out became an error, which then stands in ErrorBy
ErrorKind PickErrorKind(const Step& step);
// Whether a possible error of the man at this position stands against his error rating.
bool ErrorStands(const Step& step, Position by);
bool BatsLeft(const GameState& state);

// --- Decisions in the middle of a play ---

inline bool Suspended(const Step& step) {
    return step.state.awaited.kind != Await::Roll;
}
// The extra base on the present result: awaits the batting side's answer, or leaves everything when there is nothing to
// decide any more because the game is won.
void OfferExtraBase(Step& step);
void AnswerExtraBase(Step& step, bool yes);
void AwaitDefensiveDecision(Step& step);
void AnswerDefensiveDecision(Step& step, bool yes);
void AnswerFurtherBunt(Step& step, bool yes);

void StartBunt(Step& step, BuntType asked);
void StartSteal(Step& step, char target);
std::uint8_t StealRowOf(const GameData& data, const GameState& state, char target);
std::uint8_t BuntRowOf(BuntType type, char rating);

// The next chart after a play, a check or a change of line-up: injury, stamina, else the pitcher's sheet.
void NextSheet(Step& step);

}  // namespace tarvane
