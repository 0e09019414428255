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

// Puts a pitcher into a line-up: without a DH into the place of the pitcher, of the man who batted or ran for him, or
// of the one just hurt. False if no slot is left for him.
bool SetPitcher(LineupInput& lineup, int index, bool dhUsed) {
    lineup.pitcher = {'P', static_cast<std::int16_t>(index)};
    if (dhUsed) return true;
    for (std::size_t slot = 0; slot < 9; ++slot) {
        const Position at = lineup.position[slot];
        if (at != Position::P && at != Position::PH && at != Position::PR && at != Position::Inj) continue;
        lineup.player[slot] = lineup.pitcher;
        lineup.position[slot] = Position::P;
        return true;
    }
    return false;
}

bool HasPosition(const LineupInput& lineup, Position position) {
    return std::find(lineup.position.begin(), lineup.position.end(), position) != lineup.position.end();
}

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
    LineupInput lineup = CurrentLineup(state, side_);
    if (!SetPitcher(lineup, found.index, data.DHUsed) || !Propose(data, state, lineup, input)) return false;
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
    const auto slot = static_cast<std::size_t>((team.runner[2].On() ? team.runner[2] : team.runner[1]).slot - 1);
    const Position position = team.lineup[slot].position;
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
        LineupInput lineup = CurrentLineup(state, side_);
        lineup.player[slot] = {'B', static_cast<std::int16_t>(man)};
        if (pitcher) lineup.position[slot] = Position::PR;
        if (!Propose(data, state, lineup, input)) return false;
        pinchMove_ = TurnOf(state);
        return true;
    }
    return false;
}

bool ComputerManager::SendPinchHitter(const GameData& data, const GameState& state, Input& input) {
    const TeamRoster& roster = data[side_].roster;
    const auto slot = static_cast<std::size_t>(state[side_].BatterSlot - 1);
    const LineupSlot& batter = state[side_].lineup[slot];
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
        LineupInput lineup = CurrentLineup(state, side_);
        lineup.player[slot] = {'B', static_cast<std::int16_t>(man)};
        if (pitcher) lineup.position[slot] = Position::PH;
        if (!Propose(data, state, lineup, input)) return false;
        pinchMove_ = TurnOf(state);
        return true;
    }
    return false;
}

// --- changes that the game asks for ---

// The depth chart of the position, then the roster; then whoever has not played, use or no use; then a spare pitcher.
PlayerRef ComputerManager::ReplacementAt(const GameData& data, const GameState& state, Position position) {
    std::vector<int> men = DepthMen(data[side_].roster, position);
    AppendRoster(data[side_].roster, men);
    for (const int man : men)
        if (MayEnter(data, state, man)) return {'B', static_cast<std::int16_t>(man)};
    const auto allowed = [&](PlayerRef man) {
        return !InGame(data, state, side_, man) && CheckEntering(data, state, side_, man) == Reject::None;
    };
    for (const int man : men)
        if (const PlayerRef batter{'B', static_cast<std::int16_t>(man)}; allowed(batter)) return batter;
    for (std::size_t i = 0; i < data[side_].roster.pitchers.size(); ++i)
        if (const PlayerRef arm{'P', static_cast<std::int16_t>(i)}; allowed(arm)) return arm;
    return {};
}

bool ComputerManager::PutPitcherIn(const GameData& data, const GameState& state, LineupInput& lineup) {
    PitcherSearch search(data, state, side_, knowledge_, random_);
    const int lead = state[side_].Runs - state[Other(side_)].Runs;
    const bool wantsCloser = lead >= 1 && lead <= 3 && state.Inning >= 9;
    PitcherFound found =
        state.awaited.cause == LineupCause::InjuredFielder ? search.FindForInjury() : search.Find(wantsCloser);
    if (found.index < 0) found = search.FindAnybody();
    if (found.index < 0 || !SetPitcher(lineup, found.index, data.DHUsed)) return false;
    closerIn_ = found.closer;
    return true;
}

// Gives every slot without a place in the field one of the places left: its own man if he knows the place, else a man
// of its depth chart, else its own man after all.
void ComputerManager::FillField(const GameData& data, const GameState& state, LineupInput& lineup) {
    std::vector<Position> open;
    for (int p = static_cast<int>(Position::C); p <= static_cast<int>(Position::RF); ++p)
        if (!HasPosition(lineup, static_cast<Position>(p))) open.push_back(static_cast<Position>(p));
    if (data.DHUsed && !HasPosition(lineup, Position::DH)) open.push_back(Position::DH);
    for (const bool known : {true, false})
        for (std::size_t slot = 0; slot < 9; ++slot) {
            const Position at = lineup.position[slot];
            if (IsFielder(at) || at == Position::DH || open.empty()) continue;
            const auto knows = [&](Position p) {
                return p == Position::DH || RatingAt(data[side_].roster, lineup.player[slot], p);
            };
            auto place = std::find_if(open.begin(), open.end(), knows);
            if (place == open.end()) {
                if (known) continue;
                place = open.begin();
                GameState others = state;  // the men placed so far are in the game
                for (std::size_t i = 0; i < 9; ++i) others[side_].lineup[i].player = lineup.player[i];
                const PlayerRef man = ReplacementAt(data, others, *place);
                if (!man.Nobody() && RatingAt(data[side_].roster, man, *place)) lineup.player[slot] = man;
            }
            lineup.position[slot] = *place;
            open.erase(place);
        }
}

bool ComputerManager::ForcedLineup(const GameData& data, const GameState& state, Side side, LineupInput& lineup) {
    if (!state.computer[side].subs) return Manager::ForcedLineup(data, state, side, lineup);
    LineupInput next = CurrentLineup(state, side);
    const Awaited& awaited = state.awaited;
    const bool injury = awaited.cause == LineupCause::InjuredFielder || awaited.cause == LineupCause::InjuredBatter;
    const bool pitcherHurt = injury && awaited.position == Position::P;
    const bool fielding = side == state.FieldingSide();
    bool done = true;
    if (injury && !pitcherHurt && awaited.slot >= 1) {
        const auto slot = static_cast<std::size_t>(awaited.slot - 1);
        next.player[slot] = ReplacementAt(data, state, awaited.position);
        if (awaited.position != Position::None) next.position[slot] = awaited.position;
        done = !next.player[slot].Nobody();
    }
    const bool needsPitcher = pitcherHurt || awaited.cause == LineupCause::RelieverLimit || next.pitcher.Nobody() ||
                              (fielding && !data.DHUsed && !HasPosition(next, Position::P));
    if (done && needsPitcher) done = PutPitcherIn(data, state, next);
    if (done && fielding) FillField(data, state, next);
    if (done && Check(data, state, Input{next}) == Reject::None) {
        lineup = next;
        return true;
    }
    return Manager::ForcedLineup(data, state, side, lineup);
}

}  // namespace tarvane
