#include <cassert>
#include <type_traits>

#include "engine/sheets.h"

namespace tarvane {

namespace {

constexpr std::array<std::string_view, 23> kRejectTexts{"",
                                                        "The game is over.",
                                                        "That isn't awaited now.",
                                                        "The roll is out of range.",
                                                        "The other side has to act.",
                                                        "That can't be done on this chart.",
                                                        "There is no runner who could go.",
                                                        "Two men are out already.",
                                                        "The next base is occupied.",
                                                        "A player isn't on the roster.",
                                                        "A player is missing in the lineup.",
                                                        "A position is missing in the lineup.",
                                                        "A player stands in the lineup twice.",
                                                        "The lineup's positions are incomplete.",
                                                        "The lineup has no pitcher.",
                                                        "A relief pitcher can't start a game.",
                                                        "The pitcher is resting.",
                                                        "A player is injured.",
                                                        "A player is inactive.",
                                                        "A player has left the game already.",
                                                        "The team has used all pitchers that a game can record.",
                                                        "The selected player can't pitch.",
                                                        "Nobody bunts with such a lead so late."};
static_assert(kRejectTexts.size() == static_cast<std::size_t>(Reject::LeadTooGreat) + 1);

bool InRange(int value, int low, int high) {
    return value >= low && value <= high;
}
bool IsPercent(int value) {
    return InRange(value, 1, 100);
}
bool IsChartRoll(int value) {
    return InRange(value, kFirstRoll, kLastRoll);
}

bool ValuesInRange(const PlayValues& v) {
    return IsPercent(v.NarrationRoll) && IsPercent(v.RunnerRoll) && IsPercent(v.CoverRoll) &&
           IsPercent(v.FlyFielderRoll) && IsPercent(v.ErrorSpotRoll) && IsPercent(v.SpareRoll) &&
           IsPercent(v.InfieldRoll) && IsChartRoll(v.FieldingRoll) && IsChartRoll(v.ErrorRoll) &&
           IsChartRoll(v.ErrorKindRoll) && InRange(v.ErrorColumn, 1, 5);
}

// A pitch may be thrown now: what can be ordered before it is legal only here.
Reject BeforeThePitch(const GameState& state) {
    if (state.awaited.kind != Await::Roll) return Reject::NotAwaited;
    return state.sheet == SheetCode::P ? Reject::None : Reject::WrongSheet;
}

Reject CheckRoll(const GameState& state, const RollInput& roll) {
    if (state.awaited.kind != Await::Roll) return Reject::NotAwaited;
    return IsChartRoll(roll.chartRoll) && ValuesInRange(roll.values) ? Reject::None : Reject::BadRoll;
}

Reject CheckDecision(const GameState& state, const DecisionInput& decision) {
    if (state.awaited.kind != Await::Decision) return Reject::NotAwaited;
    return state.awaited.side == decision.side ? Reject::None : Reject::WrongSide;
}

Reject CheckWalk(const GameState& state, const IntentionalWalkInput& walk) {
    if (const Reject reject = BeforeThePitch(state); reject != Reject::None) return reject;
    return ValuesInRange(walk.values) ? Reject::None : Reject::BadRoll;
}

// The computer manager of the home team holds to this also when a user asks for a bunt; the visitors' doesn't.
bool HomeLeadForbidsBunt(const GameState& state) {
    return state.BattingSide == Side::Home && state.computer[Side::Home].game && state.Inning >= 8 &&
           state[Side::Home].Runs - state[Side::Visitor].Runs > 3;
}

Reject CheckBunt(const GameState& state) {
    if (const Reject reject = BeforeThePitch(state); reject != Reject::None) return reject;
    if (!AnyoneOn(state.Batting())) return Reject::NoRunner;
    if (state.Outs >= 2) return Reject::TooManyOuts;
    return HomeLeadForbidsBunt(state) ? Reject::LeadTooGreat : Reject::None;
}

Reject CheckSteal(const GameState& state, const StealInput& steal) {
    if (const Reject reject = BeforeThePitch(state); reject != Reject::None) return reject;
    const TeamState& team = state.Batting();
    if (steal.target != '2' && steal.target != '3' && steal.target != 'H') return Reject::NoRunner;
    const int from = steal.target == '2' ? 1 : steal.target == '3' ? 2 : 3;
    if (!Occupied(team, from)) return Reject::NoRunner;
    return from < 3 && Occupied(team, from + 1) ? Reject::BaseOccupied : Reject::None;
}

void TakeRoll(Step& step, const RollInput& roll) {
    Play& play = step.play();
    play.values = roll.values;
    play.ChartRoll = roll.chartRoll;
    play.Notes = 0;
    play.SqueezeDoubledOff = false;
    play.MDResult = ManagerDecisionResult::None;
    if (step.listener) {
        step.Tell({EventKind::RollRead, Tag::None, step.state.BattingSide, step.state.sheet, roll.chartRoll});
    }
    switch (step.state.sheet) {
        case SheetCode::None: break;
        case SheetCode::P: return ReadPitcherSheet(step);
        case SheetCode::B: return ReadBatterSheet(step);
        case SheetCode::BBSO: return ReadRatingTest(step);
        case SheetCode::PS: ReadStamina(step, roll.chartRoll); return ArriveAtPitcherSheet(step);
        case SheetCode::Bt: return ReadBuntSheet(step);
        case SheetCode::S: return ReadStealSheet(step);
        case SheetCode::M: return ReadDecisionSheet(step);
        case SheetCode::X: return ReadYellowX(step);
        case SheetCode::XI: return ReadYellowXInjury(step);
    }
}

void TakeDecision(Step& step, const DecisionInput& answer) {
    const DecisionKind kind = step.state.awaited.decision;
    step.state.awaited = {};
    switch (kind) {
        case DecisionKind::None: break;
        case DecisionKind::ExtraBase: return AnswerExtraBase(step, answer.yes);
        case DecisionKind::Defensive: return AnswerDefensiveDecision(step, answer.yes);
        case DecisionKind::FurtherBunt: return AnswerFurtherBunt(step, answer.yes);
    }
}

void TakeWalk(Step& step, const IntentionalWalkInput& walk) {
    step.play().values = walk.values;
    step.play().Notes = 0;
    step.play().ChartRoll = 0;  // no chart is read: what the play is told by
    WalkIntentionally(step);
}

void TakeSteal(Step& step, const StealInput& steal) {
    step.play().DisplayResult = Result::None;
    step.play().StealHomeTried = steal.target == 'H';
    StartSteal(step, steal.target);
}

void TakeLineup(Step& step, const LineupInput& lineup) {
    ChangeLineup(step, lineup);
    step.state.awaited = {};
    NextSheet(step);
}

}  // namespace

std::string_view RejectText(Reject reject) {
    return kRejectTexts[static_cast<std::size_t>(reject)];
}

Reject Check(const GameData& data, const GameState& state, const Input& input) {
    if (state.GameOverFlag) return Reject::GameOver;
    return std::visit(
        [&](const auto& in) {
            using T = std::decay_t<decltype(in)>;
            if constexpr (std::is_same_v<T, RollInput>)
                return CheckRoll(state, in);
            else if constexpr (std::is_same_v<T, DecisionInput>)
                return CheckDecision(state, in);
            else if constexpr (std::is_same_v<T, IntentionalWalkInput>)
                return CheckWalk(state, in);
            else if constexpr (std::is_same_v<T, BuntInput>)
                return CheckBunt(state);
            else if constexpr (std::is_same_v<T, StealInput>)
                return CheckSteal(state, in);
            else
                return CheckLineupChange(data, state, in);
        },
        input);
}

Reject Advance(const GameData& data, GameState& state, const Input& input, GameListener* listener) {
    if (const Reject reject = Check(data, state, input); reject != Reject::None) return reject;
    Step step{data, state, listener};
    ++state.steps;
    std::visit(
        [&](const auto& in) {
            using T = std::decay_t<decltype(in)>;
            if constexpr (std::is_same_v<T, RollInput>)
                TakeRoll(step, in);
            else if constexpr (std::is_same_v<T, DecisionInput>)
                TakeDecision(step, in);
            else if constexpr (std::is_same_v<T, IntentionalWalkInput>)
                TakeWalk(step, in);
            else if constexpr (std::is_same_v<T, BuntInput>)
                StartBunt(step, in.type);
            else if constexpr (std::is_same_v<T, StealInput>)
                TakeSteal(step, in);
            else
                TakeLineup(step, in);
        },
        input);
#ifdef TARVANE_CHECKS
    assert(StateOk(data, state).empty());
#endif
    return Reject::None;
}

Reject StartGame(const GameData& data, const LineupInput& visitor, const LineupInput& home, GameState& state) {
    for (const LineupInput* lineup : {&visitor, &home})
        if (const Reject reject = CheckStartingLineup(data, *lineup); reject != Reject::None) return reject;
    const PerSide<SideControl> computer = state.computer;
    state = GameState{};
    state.computer = computer;
    for (const LineupInput* lineup : {&visitor, &home}) {
        TeamState& team = state[lineup->side];
        for (std::size_t i = 0; i < team.lineup.size(); ++i) {
            team.lineup[i].player = lineup->player[i];
            team.lineup[i].position = lineup->position[i];
        }
        team.pitcher = lineup->pitcher;
    }
    SetupBoxScore(data, state);
    for (const Side side : kBothSides) RebuildLineupDetails(data, state, side);
    Step step{data, state, nullptr};
    NextSheet(step);
    return Reject::None;
}

}  // namespace tarvane
