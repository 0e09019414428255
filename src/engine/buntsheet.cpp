#include <algorithm>

#include "engine/sheets.h"

namespace tarvane {

namespace {

constexpr Moves kAllUpOne{{Goes::First, Goes::Second, Goes::Third, Goes::Home}};
constexpr Moves kRunnersUpOne{{Goes::Stays, Goes::Second, Goes::Third, Goes::Home}};

// The words of the chart that mean something; whatever else it holds, the bunt came to nothing.
Result BuntResultOf(const Cell& cell) {
    switch (cell.result) {
        case Result::Single:
        case Result::SH:
        case Result::FC:
        case Result::E:
        case Result::F:
        case Result::G:
        case Result::DP: return cell.result;
        default: return Result::None;
    }
}

// The colour doesn't matter here: these results put the batter out, the others never do.
bool PutsBatterOut(Result result) {
    return result == Result::SH || result == Result::F || result == Result::G || result == Result::DP;
}

void BuntSafe(Step& step, BuntResult how) {
    step.play().PlayResult = Result::SH;
    step.play().buntResult = how;
}

void SacrificeGrounder(Step& step) {
    TeamState& team = step.batting();
    if (!Occupied(team, 1) || Occupied(team, 3)) return;
    const Runner batter = BatterRunner(team, team.runner[1].Unearned);
    MoveRunners(step, {{Goes::First, Goes::Out, Goes::Third, Goes::Stays}}, {}, batter);
    step.play().PlayResult = Result::FC;
    step.play().playAt = PlayAt::Second;
}

// Two outs only with a man on first and nobody on third. When they end the half with a man on second as well, the play
// counts as a ground out; the lines book both outs all the same.
void SacrificeDoublePlay(Step& step) {
    Play& play = step.play();
    const TeamState& team = step.batting();
    if (!Occupied(team, 1) || Occupied(team, 3)) {
        play.PlayResult = Result::G;
    } else if (Occupied(team, 2) && step.state.Outs >= 2) {
        ++step.state.Outs;
        play.PlayResult = Result::G;
    } else {
        ++step.state.Outs;
        MoveRunners(step, {{Goes::Stays, Goes::Out, Goes::Third, Goes::Stays}}, {}, {});
    }
}

void ApplySacrifice(Step& step) {
    switch (step.play().PlayResult) {
        case Result::G: SacrificeGrounder(step); break;
        case Result::DP: SacrificeDoublePlay(step); break;
        default: break;
    }
}

bool FirstAndThirdOnly(const TeamState& team) {
    return Occupied(team, 1) && !Occupied(team, 2) && Occupied(team, 3);
}

void SqueezeGrounder(Step& step) {
    TeamState& team = step.batting();
    if (FirstAndThirdOnly(team)) return AwaitDefensiveDecision(step);
    if (!BasesFull(team)) return;
    const Runner batter = BatterRunner(team, team.runner[3].Unearned);
    MoveRunners(step, {{Goes::First, Goes::Second, Goes::Third, Goes::Out}}, {}, batter);
    step.play().PlayResult = Result::FC;
    step.play().playAt = PlayAt::Home;
}

void SqueezeDoublePlay(Step& step) {
    Play& play = step.play();
    const TeamState& team = step.batting();
    if (!FirstAndThirdOnly(team) && !BasesFull(team)) {
        play.PlayResult = Result::G;
    } else if (step.state.Outs < 2) {
        AwaitDefensiveDecision(step);
    } else {
        ++step.state.Outs;
        play.PlayResult = Result::G;
    }
}

void ApplySqueeze(Step& step) {
    Play& play = step.play();
    switch (play.PlayResult) {
        case Result::F:
            play.SqueezeDoubledOff = true;
            ++step.state.Outs;
            step.batting().runner[3] = {};
            break;
        case Result::G: SqueezeGrounder(step); break;
        case Result::DP: SqueezeDoublePlay(step); break;
        default: break;
    }
}

// On a sacrifice the man on third stays where he is: only with men on first and third is there one.
void ApplyBunt(Step& step) {
    Play& play = step.play();
    const bool squeeze = play.buntTypeOnPlay == BuntType::Squeeze;
    Moves all = kAllUpOne, runners = kRunnersUpOne;
    if (!squeeze) all.from[3] = runners.from[3] = Goes::Stays;
    switch (play.PlayResult) {
        case Result::Single:
            ++step.batting().Hits;
            MoveRunners(step, all, {}, BatterRunner(step.batting()));
            break;
        case Result::SH: MoveRunners(step, runners, {}, {}); break;
        case Result::FC:
            MoveRunners(step, all, {}, BatterRunner(step.batting()));
            BuntSafe(step, BuntResult::SHF);
            break;
        case Result::E:
            ++step.fielding().Errors;
            step.state.ErrorInInning = true;
            MoveRunners(step, all, {}, BatterRunner(step.batting(), true));
            BuntSafe(step, BuntResult::SHE);
            break;
        default: squeeze ? ApplySqueeze(step) : ApplySacrifice(step);
    }
}

BuntType BuntOf(const TeamState& team, BuntType asked) {
    if (!Occupied(team, 3)) return BuntType::Sacrifice;
    if (!FirstAndThirdOnly(team)) return BuntType::Squeeze;
    return asked == BuntType::Squeeze ? BuntType::Squeeze : BuntType::Sacrifice;
}

// The squeeze was missed: the man from third is on his way.
void MissSqueeze(Step& step) {
    Play& play = step.play();
    play.buntType = BuntType::None;
    play.buntResult = BuntResult::None;
    play.SecondBuntAttempt = false;
    play.DisplayResult = Result::BuntMiss;
    StartSteal(step, 'H');
}

void FoulOnTwoStrikes(Step& step) {
    Play& play = step.play();
    ++step.state.Outs;
    play.buntResult = BuntResult::None;
    play.PlayResult = Result::K;
    play.BuntFoulOut = true;
    EndBuntSheet(step);
}

void AskForFurtherBunt(Step& step) {
    step.play().buntResult = BuntResult::TwoK;
    step.Narrate(Tag::PitcherThrow);
    step.Animate(Tag::BuntFoul);
    step.Narrate(Tag::BuntFoul);
    step.state.awaited = {
        Await::Decision, DecisionKind::FurtherBunt, LineupCause::None, step.state.BattingSide, Position::None, 0};
}

// Nothing came of it: a strike, and the pitcher throws again.
void BuntComesToNothing(Step& step) {
    Play& play = step.play();
    play.buntType = BuntType::None;
    play.buntResult = BuntResult::None;
    play.SecondBuntAttempt = false;
    NextSheet(step);
}

}  // namespace

std::uint8_t BuntRowOf(BuntType type, char rating) {
    const int row = (type == BuntType::Squeeze ? 3 : 1) + (rating == 'A' ? 0 : 1);
    return static_cast<std::uint8_t>(row);
}

void StartBunt(Step& step, BuntType asked) {
    Play& play = step.play();
    play.SecondBuntAttempt = play.buntResult == BuntResult::TwoK;
    play.buntType = BuntOf(step.batting(), asked);
    play.BuntRow = BuntRowOf(play.buntType, step.state.AtBat().BuntRating);
    step.state.sheet = SheetCode::Bt;
    step.Narrate(Tag::BuntTry);
}

void ReadBuntSheet(Step& step) {
    Play& play = step.play();
    BeginPlay(play);
    if (step.state.computer[step.state.BattingSide].game) play.BuntTriedThisAtBat = true;
    play.buntTypeOnPlay = play.buntType;
    const Cell& cell = CellAt(step.data.compiled.Bunt[play.BuntRow - 1U], play.ChartRoll);
    const bool squeeze = play.buntType == BuntType::Squeeze;
    if (cell.color == CellColor::Blue) return squeeze ? MissSqueeze(step) : BuntComesToNothing(step);
    if (cell.text == CellText::TwoK)
        return play.buntResult == BuntResult::TwoK ? FoulOnTwoStrikes(step) : AskForFurtherBunt(step);
    play.PlayResult = BuntResultOf(cell);
    if (play.PlayResult == Result::None) return BuntComesToNothing(step);
    play.buntResult = BuntResult::None;
    if (PutsBatterOut(play.PlayResult)) ++step.state.Outs;
    ApplyBunt(step);
    if (!Suspended(step)) EndBuntSheet(step);
}

void AnswerFurtherBunt(Step& step, bool yes) {
    Play& play = step.play();
    play.SecondBuntAttempt = yes;
    if (yes) {
        play.BuntRow = BuntRowOf(play.buntType, step.state.AtBat().BuntRating);
        return;
    }
    play.buntType = BuntType::None;
    NextSheet(step);
}

void EndBuntSheet(Step& step) {
    Play& play = step.play();
    step.Sound();
    step.Narrate(Tag::PitcherThrow);
    play.DisplayResult = play.PlayResult;
    ResolveFielding(step);
    play.buntType = BuntType::None;
    play.SecondBuntAttempt = false;
    FinishPlay(step);
}

}  // namespace tarvane
