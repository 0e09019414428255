#include <algorithm>

#include "engine/sheets.h"

namespace tarvane {

namespace {

enum class HalfStands : std::uint8_t { GoesOn, Ended, GameOver };

// Which plays end a batter's turn. A runner's third out on a decision does: the play is the batter's hit.
bool EndsTurn(SheetCode sheet, Result result) {
    switch (sheet) {
        case SheetCode::X:
        case SheetCode::XI: return result == Result::HBP;
        case SheetCode::S: return false;
        default: return result != Result::WP && result != Result::PB;
    }
}

bool MarksScoreSheet(SheetCode sheet, Result result) {
    if (sheet == SheetCode::X || sheet == SheetCode::XI) return result == Result::HBP;
    return sheet != SheetCode::S;
}

// What belongs to one turn at bat ends with it.
void ForgetTurn(Play& play) {
    play.buntResult = BuntResult::None;
    play.BuntTriedThisAtBat = play.SecondBuntAttempt = false;
}

void NextBatter(GameState& state) {
    TeamState& team = state.Batting();
    team.BatterSlot = static_cast<std::uint8_t>(team.BatterSlot % 9 + 1);
    ForgetTurn(state.play);
}

bool Leads(const GameState& state, Side side) {
    return state[side].Runs > state[Other(side)].Runs;
}

void EndGame(Step& step) {
    GameState& state = step.state;
    DropLosersSave(state);
    state.GameOverFlag = true;
    state.awaited = {};
    state.awaited.kind = Await::GameOver;
    if (state.WalkOff) step.Narrate(Tag::WalkOff);
    step.Tell({EventKind::GameEnded, Tag::GameOver, state.BattingSide, state.sheet});
}

// After a runner's out on a steal the same batter leads off the next inning.
void CloseHalf(Step& step, Result result) {
    GameState& state = step.state;
    const Side ended = state.BattingSide;
    if (result != Result::CS && result != Result::PK) NextBatter(state);
    step.Narrate(ended == Side::Visitor ? Tag::EndOfInningMiddle : Tag::EndOfInning);
    ForgetTurn(state.play);
    state[ended].runner = {};
    state.HalfInningRuns = 0;
    state.Outs = 0;
    state.ErrorInInning = false;
    if (ended == Side::Home && state.Inning < 255) ++state.Inning;
    state.BattingSide = Other(ended);
    step.Tell({EventKind::HalfEnded, Tag::None, ended});
    state.StaminaCheckPending = step.data.rules.PitcherStamina;
    ValidatePositions(step, ended);
    if (!Suspended(step)) FatigueReminders(step, ended);
}

// The two halves end differently: the Visitors' only at three outs, the Home team's also by the winning run, so that
// their relief win is looked at on every play and the men left on base of a decided game are never summed.
HalfStands EndOfVisitorPlay(Step& step, Result result) {
    GameState& state = step.state;
    if (state.Outs < 3) return HalfStands::GoesOn;
    LonePitcherWin(state, Side::Visitor);
    SumLeftOnBase(state, Side::Visitor);
    ReliefWin(state, Side::Visitor);
    if (state.Inning >= 9 && Leads(state, Side::Home)) {
        state.BottomNotPlayed = true;
        EndGame(step);
        return HalfStands::GameOver;
    }
    CloseHalf(step, result);
    return HalfStands::Ended;
}

HalfStands EndOfHomePlay(Step& step, Result result) {
    GameState& state = step.state;
    ReliefWin(state, Side::Home);
    if (state.Inning >= 9 && Leads(state, Side::Home)) {
        state.WalkOff = true;
        EndGame(step);
        return HalfStands::GameOver;
    }
    if (state.Inning >= 9 && Leads(state, Side::Visitor) && state.Outs >= 3) {
        EndGame(step);
        return HalfStands::GameOver;
    }
    if (state.Outs < 3) return HalfStands::GoesOn;
    LonePitcherWin(state, Side::Home);
    SumLeftOnBase(state, Side::Home);
    CloseHalf(step, result);
    return HalfStands::Ended;
}

HalfStands EndOfPlay(Step& step, Result result) {
    GameState& state = step.state;
    if (state.Inning <= kMaxInnings) state.Batting().InningRuns[state.Inning - 1U] = state.HalfInningRuns;
    return state.BattingSide == Side::Visitor ? EndOfVisitorPlay(step, result) : EndOfHomePlay(step, result);
}

}  // namespace

void FinishPlay(Step& step) {
    GameState& state = step.state;
    const SheetCode sheet = state.sheet;
    const Result result = state.play.PlayResult;
    const std::uint8_t slot = state.Batting().BatterSlot;
    UpdateBoxScore(step);
    if (step.listener && MarksScoreSheet(sheet, result))
        step.Tell({EventKind::ScoreSheet, Tag::None, state.BattingSide, sheet, state.play.ChartRoll,
                   state.play.PlayResult, state.play.FieldedBy, slot});
    const HalfStands stands = EndOfPlay(step, result);
    if (stands == HalfStands::GameOver) return;
    if (stands == HalfStands::GoesOn) {
        if (EndsTurn(sheet, result)) NextBatter(state);
        FatigueReminders(step, state.FieldingSide());
    }
    NextSheet(step);
}

void NextSheet(Step& step) {
    GameState& state = step.state;
    if (Suspended(step)) return;
    if (state.play.InjuryPending) {
        state.sheet = SheetCode::XI;
    } else if (state.StaminaCheckPending && TakeStaminaCheck(state, step.data.rules)) {
        state.sheet = SheetCode::PS;
    } else {
        ArriveAtPitcherSheet(step);
    }
}

void ArriveAtPitcherSheet(Step& step) {
    step.state.sheet = SheetCode::P;
    step.state.awaited = {};
    for (const Side side : kBothSides) BattingReminder(step, side);
}

}  // namespace tarvane
