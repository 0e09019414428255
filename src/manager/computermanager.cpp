#include "manager/computermanager.h"

#include <algorithm>
#include <numeric>

#include "manager/roster.h"
#include "manager/strategy.h"

namespace tarvane {

ComputerManager::Turn ComputerManager::TurnOf(const GameState& state) {
    const BoxLines& box = state.Fielding().box;
    const int faced = std::accumulate(box.pitching.begin(), box.pitching.begin() + box.PitchersUsed, 0,
                                      [](int sum, const PitchingLine& line) { return sum + line.BF; });
    return {faced, state.Inning};
}

SubsSituation ComputerManager::SubsSituationOf(const GameState& state) const {
    SubsSituation s = MakeSubsSituation(state, side_);
    s.closerIn = closerIn_;
    s.actualUsage = knowledge_.actualUsage;
    if (s.actualUsage) {
        const RealPitching& known = knowledge_.real.PitcherAt(state[side_].pitcher.index);
        s.pitcherRealOuts = RoundedShare(known.IPOuts, known.G);
    }
    const LineupSlot& batter = state.AtBat();
    if (side_ != state.BattingSide || batter.player.type != 'B' || batter.player.Nobody()) return s;
    const auto index = static_cast<std::size_t>(batter.player.index);
    s.topBatter = index < knowledge_.topBatter.size() && knowledge_.topBatter[index];
    if (!s.actualUsage) return s;
    const RealBatting& known = knowledge_.real.BatterAt(batter.player.index);
    s.batterRealAB = RoundedShare(known.AB, known.G);
    for (const BatterLine& line : state[side_].box.batter)
        if (line.Active && line.Slot == state[side_].BatterSlot) s.batterAB = line.total.AB;
    return s;
}

bool ComputerManager::Decide(const GameData& data, const GameState& state, Side side) {
    if (!state.computer[side].game) return Manager::Decide(data, state, side);
    const StrategySituation s = MakeStrategySituation(state, side, data.rules);
    const ManagerTendencies& tendency = data[side].roster.tendencies;
    const int r = random_.RandomPercent();
    switch (state.awaited.decision) {
        case DecisionKind::ExtraBase:
            return ExtraBaseDecision(s, state.play.PlayResult, state.play.extraBase, tendency.BaseRunning, r);
        case DecisionKind::Defensive: return GiveUpRun(s, r);
        case DecisionKind::FurtherBunt: return FurtherBuntDecision(s, tendency.Bunting, r);
        case DecisionKind::None: break;
    }
    return false;
}

// The side in the field is asked first. Every question is a fresh look at the game with fresh draws, so a change of
// either side starts the round again.
bool ComputerManager::BeforePitch(const GameData& data, const GameState& state, Side side, Input& input) {
    if (state.awaited.kind != Await::Roll || state.sheet != SheetCode::P) return false;
    if (side != state.BattingSide) return state.computer[side].subs && ChangePitcher(data, state, input);
    const bool pinchMoveMade = pinchMove_ == TurnOf(state);
    if (state.computer[side].subs && !pinchMoveMade && BattingSubs(data, state, input)) return true;
    return state.computer[side].game && Strategy(data, state, input);
}

bool ComputerManager::Strategy(const GameData& data, const GameState& state, Input& input) {
    const StrategySituation s = MakeStrategySituation(state, side_, data.rules);
    if ((!s.on1 && !s.on2 && !s.on3) || state.play.StealHomeTried) return false;
    const ManagerTendencies& tendency = data[side_].roster.tendencies;
    const int home = random_.RandomPercent(), other = random_.RandomPercent();
    if (const char target = StealDecision(s, tendency.BaseStealing, home, other); target != ' ') {
        input = StealInput{target};
        if (Check(data, state, input) == Reject::None) return true;
    }
    if (pinchMove_ == TurnOf(state) || state.play.buntResult == BuntResult::TwoK) return false;
    const BuntType bunt = BuntDecision(s, tendency.Bunting, random_.RandomPercent());
    if (bunt == BuntType::None) return false;
    input = BuntInput{bunt};
    return Check(data, state, input) == Reject::None;
}

bool ComputerManager::Propose(const GameData& data, const GameState& state, const std::optional<LineupInput>& lineup,
                              Input& input) {
    if (!lineup) return false;
    input = *lineup;
    return Check(data, state, input) == Reject::None;
}

}  // namespace tarvane
