// The computer manager's moves: whom he brings in once a rule of substitution.h says that he moves.

#include <algorithm>
#include <vector>

#include "engine/availability.h"
#include "manager/changes.h"
#include "manager/computermanager.h"
#include "manager/roster.h"

namespace tarvane {

namespace {

constexpr int kSeasonGamesOfUse = 154;
constexpr int kGamesBeforeUse = 3;

std::vector<int> DepthMen(const TeamRoster& roster, Position position) {
    std::vector<int> men;
    const LineupList* list = FindList(roster, 'D', position);
    for (std::size_t i = 0; list && i < 5; ++i) {
        const PlayerRef man = ManInSlot(roster, list->slot[i]);
        if (man.type == 'B' && !man.Nobody()) men.push_back(man.index);
    }
    return men;
}

void AppendRoster(const TeamRoster& roster, std::vector<int>& men) {
    for (std::size_t i = 0; i < roster.batters.size(); ++i) men.push_back(static_cast<int>(i));
}

}  // namespace

// --- who may come in ---

bool ComputerManager::MayEnter(const GameData& data, const GameState& state, int batter) {
    const PlayerRef man{'B', static_cast<std::int16_t>(batter)};
    if (InGame(data, state, side_, man) || CheckEntering(data, state, side_, man) != Reject::None) return false;
    if (!data.DHUsed && SameMan(data[side_], state[side_].pitcher, man)) return false;
    const TeamRoster& roster = data[side_].roster;
    const int teamGames = roster.team.W + roster.team.L, realAB = knowledge_.real.BatterAt(batter).AB;
    if (!knowledge_.actualUsage || realAB == 0 || teamGames <= kGamesBeforeUse) return true;
    if (roster.batters[static_cast<std::size_t>(batter)].total.AB * kSeasonGamesOfUse <= realAB * teamGames)
        return true;
    return random_.RandomPercent() > 40 + 10 * roster.tendencies.PinchHitting;
}

bool ComputerManager::PitcherInReserve(const GameData& data, const GameState& state) {
    return PitcherSearch(data, state, side_, knowledge_, random_).Find(false).index >= 0;
}

// --- the side in the field ---

bool ComputerManager::ChangePitcher(const GameData& data, const GameState& state, Input& input) {
    const int usage = data[side_].roster.tendencies.RelieverUsage;
    const PitchingMove move = PitchingChange(SubsSituationOf(state), usage, random_.RandomPercent());
    if (move == PitchingMove::Stay) return false;
    PitcherSearch search(data, state, side_, knowledge_, random_);
    const PitcherFound found = search.Find(move == PitchingMove::Closer);
    if (found.index < 0) return false;
    const auto lineup = BringInPitcher(data, state, side_, {'P', static_cast<std::int16_t>(found.index)});
    if (!Propose(data, state, lineup, input)) return false;
    closerIn_ = found.closer;
    return true;
}

// --- the side at bat ---

bool ComputerManager::SlowRunnersOnly(const GameState& state) const {
    const TeamState& team = state[side_];
    if (!team.runner[1].On() && !team.runner[2].On()) return false;
    for (std::size_t base = 1; base <= 2; ++base)
        if (team.runner[base].On() && team.lineup[team.runner[base].slot - 1U].runRating > 1) return false;
    return true;
}

bool ComputerManager::BattingSubs(const GameData& data, const GameState& state, Input& input) {
    const ManagerTendencies& tendency = data[side_].roster.tendencies;
    const LineupSlot& batter = state.AtBat();
    const bool pitcherBats = batter.position == Position::P;
    if (state.Inning <= 6 && !pitcherBats) return false;
    const SubsSituation s = SubsSituationOf(state);
    if (SlowRunnersOnly(state) && RunForRunner(s, tendency.PinchRunning, random_.RandomPercent()))
        return SendPinchRunner(data, state, input);
    if (batter.position == Position::PH) return false;
    const int r = random_.RandomPercent();
    const bool hit =
        pitcherBats ? HitForPitcher(s, tendency.RelieverUsage, r) : HitForBatter(s, tendency.PinchHitting, r);
    return hit && SendPinchHitter(data, state, input);
}

bool ComputerManager::SendPinchRunner(const GameData& data, const GameState& state, Input& input) {
    const TeamState& team = state[side_];
    const TeamRoster& roster = data[side_].roster;
    const int slot = (team.runner[2].On() ? team.runner[2] : team.runner[1]).slot - 1;
    const Position position = team.lineup[static_cast<std::size_t>(slot)].position;
    const bool pitcher = position == Position::P;
    if (pitcher && !PitcherInReserve(data, state)) return false;
    std::vector<int> men;
    if (pitcher) {
        AppendRoster(roster, men);
    } else {
        men = DepthMen(roster, position);
    }
    const auto speed = [&roster](int man) { return roster.batters[static_cast<std::size_t>(man)].runRating; };
    std::stable_sort(men.begin(), men.end(), [&speed](int a, int b) { return speed(a) > speed(b); });
    for (const int man : men) {
        if (speed(man) <= 1) return false;
        if (!MayEnter(data, state, man)) continue;
        const PlayerRef runner{'B', static_cast<std::int16_t>(man)};
        const auto lineup = Pinch(data, state, side_, slot + 1, runner, pitcher ? Position::PR : position);
        if (!Propose(data, state, lineup, input)) return false;
        pinchMove_ = TurnOf(state);
        return true;
    }
    return false;
}

bool ComputerManager::SendPinchHitter(const GameData& data, const GameState& state, Input& input) {
    const TeamRoster& roster = data[side_].roster;
    const int slot = state[side_].BatterSlot - 1;
    const LineupSlot& batter = state.AtBat();
    const bool pitcher = batter.position == Position::P;
    if (batter.position == Position::None || (pitcher && !PitcherInReserve(data, state))) return false;
    std::vector<int> men = DepthMen(roster, pitcher ? Position::PH : batter.position);
    if (pitcher) {
        AppendRoster(roster, men);
        men.resize(std::min(men.size(), roster.batters.size()));
    } else if (!men.empty() && PlayerRef{'B', static_cast<std::int16_t>(men.front())} == batter.player) {
        return false;  // the best at his position bats for himself
    }
    for (const int man : men) {
        if (!MayEnter(data, state, man)) continue;
        const PlayerRef hitter{'B', static_cast<std::int16_t>(man)};
        const auto lineup = Pinch(data, state, side_, slot + 1, hitter, pitcher ? Position::PH : batter.position);
        if (!Propose(data, state, lineup, input)) return false;
        pinchMove_ = TurnOf(state);
        return true;
    }
    return false;
}

// --- changes that the game asks for ---

// The depth chart of the position, then the roster in its order, use or no use; nobody if only spare pitchers are left.
PlayerRef ComputerManager::ReplacementAt(const GameData& data, const GameState& state, Position position) {
    std::vector<int> men = DepthMen(data[side_].roster, position);
    AppendRoster(data[side_].roster, men);
    for (const int man : men)
        if (MayEnter(data, state, man)) return {'B', static_cast<std::int16_t>(man)};
    return {};
}

PlayerRef ComputerManager::ForcedPitcher(const GameData& data, const GameState& state) {
    PitcherSearch search(data, state, side_, knowledge_, random_);
    const int lead = state[side_].Runs - state[Other(side_)].Runs;
    const bool wantsCloser = lead >= 1 && lead <= 3 && state.Inning >= 9;
    const bool hurt = state.awaited.cause == LineupCause::InjuredFielder;
    PitcherFound found = hurt ? search.FindForInjury() : search.Find(wantsCloser);
    if (found.index < 0) found = search.FindAnybody();
    closerIn_ = found.closer;
    return {'P', static_cast<std::int16_t>(found.index)};
}

bool ComputerManager::ForcedLineup(const GameData& data, const GameState& state, Side side, LineupInput& lineup) {
    if (!state.computer[side].subs) return Manager::ForcedLineup(data, state, side, lineup);
    const Awaited& awaited = state.awaited;
    const auto& slots = state[side].lineup;
    const bool injury = awaited.cause == LineupCause::InjuredFielder || awaited.cause == LineupCause::InjuredBatter;
    const bool stands = data.DHUsed || std::any_of(slots.begin(), slots.end(),
                                                   [](const LineupSlot& s) { return s.position == Position::P; });
    std::optional<LineupInput> next;
    if (injury && awaited.position != Position::P) {
        next = ReplaceInjured(data, state, side, ReplacementAt(data, state, awaited.position));
    } else if (injury || awaited.cause == LineupCause::RelieverLimit || state[side].pitcher.Nobody() || !stands) {
        next = BringInPitcher(data, state, side, ForcedPitcher(data, state));
    }
    if (!next) next = AnswerForcedChange(data, state, side);
    if (!next || Check(data, state, Input{*next}) != Reject::None)
        return Manager::ForcedLineup(data, state, side, lineup);
    lineup = *next;
    return true;
}

}  // namespace tarvane
