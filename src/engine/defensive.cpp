#include "engine/sheets.h"

namespace tarvane {

namespace {

constexpr std::uint8_t kEarnedByTest = 0;

bool FlagOf(const TeamState& team, std::size_t base) {
    return team.runner[base].Unearned;
}

void GiveUpRunOnGrounder(Step& step) {
    Play& play = step.play();
    TeamState& team = step.batting();
    play.PlayResult = Result::FC;
    play.playAt = PlayAt::Second;
    play.ForcePivot = play.values.CoverRoll < 51 ? Position::B2 : Position::SS;
    MoveRunners(step, {{Goes::First, Goes::Out, Goes::Stays, Goes::Home}}, {true, kEarnedByTest},
                BatterRunner(team, FlagOf(team, 1)));
}

// The batter is out at first, and only the man from first moves up: scored as a choice all the same.
void HoldOnGrounder(Step& step) {
    step.play().PlayResult = Result::FC;
    MoveRunners(step, {{Goes::Stays, Goes::Second, Goes::Stays, Goes::Stays}}, {}, {});
}

// Two are out; a man on second moves up behind the run.
void TurnDoublePlay(Step& step) {
    ++step.state.Outs;
    MoveRunners(step, {{Goes::Stays, Goes::Out, Goes::Third, Goes::Home}}, {true, kEarnedByTest}, {});
}

// The man from third is out at home, everybody else moves up one.
void ForceAtHome(Step& step) {
    TeamState& team = step.batting();
    step.play().PlayResult = Result::FC;
    step.play().playAt = PlayAt::Home;
    MoveRunners(step, {{Goes::First, Goes::Second, Goes::Third, Goes::Out}}, {}, BatterRunner(team, FlagOf(team, 3)));
}

}  // namespace

void AwaitDefensiveDecision(Step& step) {
    step.state.awaited = {Await::Decision,           DecisionKind::Defensive, LineupCause::None,
                          step.state.FieldingSide(), Position::None,          0};
}

void AnswerDefensiveDecision(Step& step, bool yes) {
    const bool doublePlay = step.play().PlayResult == Result::DP;
    if (doublePlay && yes)
        TurnDoublePlay(step);
    else if (doublePlay)
        ForceAtHome(step);
    else if (yes)
        GiveUpRunOnGrounder(step);
    else
        HoldOnGrounder(step);
    switch (step.state.sheet) {
        case SheetCode::P: return EndPitcherSheet(step);
        case SheetCode::Bt: return EndBuntSheet(step);
        default: return EndBatterSheet(step);
    }
}

}  // namespace tarvane
