#pragma once

// Inside the engine only: the context of one step and the routines that the step is made of, file by file.

#include "engine/game.h"

namespace tarvane {

// What every routine of a step works on. Events go out through Tell, after the state has changed.
struct Step {
    const GameData& data;
    GameState& state;
    GameListener* listener = nullptr;

    Play& play() { return state.play; }
    TeamState& batting() { return state.Batting(); }
    TeamState& fielding() { return state.Fielding(); }

    void Tell(const GameEvent& event) {
        if (listener) listener->OnEvent(data, state, event);
    }
    void Narrate(Tag tag);
    void Animate(Tag tag);
    void Sound();
};

// --- determination.cpp, runners.cpp, fielding.cpp, yellowx.cpp: reading cells and moving runners ---

void ApplyResult(Step& step);
void ResolveFielding(Step& step);
void FinishPlay(Step& step);  // the one end of every play: box score, end of half or game, next batter, next sheet
void ArriveAtPitcherSheet(Step& step);

// --- boxscore.cpp, decisions.cpp: what a play writes into the lines ---

// Takes the play into the lines of both teams and zeroes its counters. ErrorBy is charged here on E, on a sacrifice
// with SHE, on SB and on CSE; only the error of a manager decision is booked by BookDecisionError.
void UpdateBoxScore(Step& step);
// Wins, losses and saves after runs have scored; runs is the number on this play.
void UpdateDecisions(Step& step, int runs);
// The end of a half: the lone pitcher's win, the relief win, the men left on base. See EndOfPlay for when which runs.
void SumLeftOnBase(GameState& state, Side battingSide);
void LonePitcherWin(GameState& state, Side side);
void ReliefWin(GameState& state, Side side);
void DropLosersSave(GameState& state);
// The out or error of a runner on a manager decision, booked at once; base is the position that takes the throw.
void BookDecisionOut(Step& step, Position base);
void BookDecisionError(Step& step, Position by);

BatterLine* FindBatterLine(TeamState& team, int slot);
FielderLine* FindFielderLine(TeamState& team, Position position);
PitchingLine& CurrentPitchingLine(TeamState& team);

// --- lineup.cpp, lineupcheck.cpp, lineupchange.cpp: who plays ---

// Lines for the first pitch, from slots' players and positions and the pitchers in the state; marks the men as used and
// enters both pitchers. The slots' details are RebuildLineupDetails' business, in either order.
void SetupBoxScore(const GameData& data, GameState& state);
// Throws, fatigue ratings (a park moves them under its rule) and a fresh state for the pitcher who has just come in;
// his stamina check becomes due if his side is in the field.
void EnterPitcher(const GameData& data, GameState& state, Side side);
// Puts a new line-up of one side into the game: lines closed and opened, the leaving starter's win, the entering
// pitcher's save flag and stamina, details rebuilt. What the state awaits is the caller's to set anew.
void ChangeLineup(Step& step, const LineupInput& lineup);
Reject CheckLineupChange(const GameData& data, const GameState& state, const LineupInput& lineup);
// The nine positions of the side that takes the field stand once each and a pitcher is in the game; if not, the state
// awaits a line-up change.
void ValidatePositions(Step& step, Side side);

// --- stamina.cpp: fatigue ---

// The roll of the stamina check is due now (the pending flag is taken); false if nothing can change.
bool TakeStaminaCheck(GameState& state, const LeagueRules& rules);
// Reads a roll on the stamina rows.
void ReadStamina(Step& step, int chartRoll);
// Reminders and the reliever's limit for the side in the field; may leave the state awaiting a line-up change.
void FatigueReminders(Step& step, Side side);
// From the sixth inning on: the pitcher of that side is next to bat, or leads off its next turn. Told once, and again
// after he has batted.
void BattingReminder(Step& step, Side side);

}  // namespace tarvane
