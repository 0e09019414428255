#include <algorithm>

#include "engine/availability.h"
#include "engine/step.h"

namespace tarvane {

namespace {

using SlotPlayers = std::array<PlayerRef, 9>;
using SlotPositions = std::array<Position, 9>;

// The first of the positions that a side in the field needs and lacks; None if each stands exactly once. With a DH the
// pitcher stands outside the order and the DH takes his place in it.
Position OpenPosition(const SlotPositions& positions, bool dhUsed) {
    const auto missing = [&](Position position) {
        return std::count(positions.begin(), positions.end(), position) != 1;
    };
    if (missing(dhUsed ? Position::DH : Position::P)) return dhUsed ? Position::DH : Position::P;
    for (int p = static_cast<int>(Position::C); p <= static_cast<int>(Position::RF); ++p) {
        if (missing(static_cast<Position>(p))) return static_cast<Position>(p);
    }
    return Position::None;
}

Reject SlotsFilled(const TeamData& team, const LineupInput& lineup) {
    const auto nobody = [](PlayerRef player) { return player.Nobody(); };
    if (std::any_of(lineup.player.begin(), lineup.player.end(), nobody)) return Reject::PlayerMissing;
    const auto open = [](Position position) { return position == Position::None || position == Position::Inj; };
    if (std::any_of(lineup.position.begin(), lineup.position.end(), open)) return Reject::PositionMissing;
    const auto known = [&](PlayerRef player) { return KnownPlayer(team, player); };
    return std::all_of(lineup.player.begin(), lineup.player.end(), known) ? Reject::None : Reject::UnknownPlayer;
}

// The slot of the first man who stands twice; -1 if nobody does.
int DuplicateSlot(const TeamData& team, const SlotPlayers& players) {
    for (std::size_t i = 0; i < players.size(); ++i) {
        for (std::size_t j = i + 1; j < players.size(); ++j) {
            if (SameMan(team, players[i], players[j])) return static_cast<int>(j);
        }
    }
    return -1;
}

// The pitcher and the order fit together: without a DH he is the man in slot P and nowhere else; with one he may bat
// for himself only as the DH.
Reject PitcherFits(const GameData& data, const LineupInput& lineup) {
    const TeamData& team = data[lineup.side];
    if (lineup.pitcher.Nobody()) return Reject::PitcherMissing;
    if (lineup.pitcher.type != 'P') return Reject::CannotPitch;
    if (!KnownPlayer(team, lineup.pitcher)) return Reject::UnknownPlayer;
    for (std::size_t i = 0; i < lineup.player.size(); ++i) {
        const Position position = lineup.position[i];
        if (position == (data.DHUsed ? Position::P : Position::DH)) return Reject::PositionsIncomplete;
        const bool same = SameMan(team, lineup.player[i], lineup.pitcher);
        if (position == Position::P) {
            if (lineup.player[i].type != 'P') return Reject::CannotPitch;
            if (lineup.player[i] != lineup.pitcher) return same ? Reject::DuplicatePlayer : Reject::PitcherMissing;
        } else if (same && position != Position::DH) {
            return Reject::DuplicatePlayer;
        }
    }
    return Reject::None;
}

Reject Fit(const TeamRoster& roster, PlayerRef player) {
    const auto index = static_cast<std::size_t>(player.index);
    const auto check = [](const auto& record) {
        if (record.injury.InjuredDaysRemaining > 0) return Reject::Injured;
        return record.Inactive || record.NoLongerWithTeam ? Reject::Inactive : Reject::None;
    };
    return player.type == 'P' ? check(roster.pitchers[index]) : check(roster.batters[index]);
}

// The moment allows a change: before a pitch, or when this very side's change is awaited.
Reject ChangeAllowedNow(const GameState& state, Side side) {
    switch (state.awaited.kind) {
        case Await::GameOver: return Reject::GameOver;
        case Await::Decision: return Reject::NotAwaited;
        case Await::LineupChange: return state.awaited.side == side ? Reject::None : Reject::WrongSide;
        case Await::Roll: break;
    }
    return state.sheet == SheetCode::P ? Reject::None : Reject::WrongSheet;
}

// Each man in the new order stands in the slot he had, or is one who may still enter.
Reject MenMayEnter(const GameData& data, const GameState& state, const LineupInput& lineup) {
    const TeamState& team = state[lineup.side];
    const TeamData& roster = data[lineup.side];
    for (std::size_t i = 0; i < lineup.player.size(); ++i) {
        const PlayerRef player = lineup.player[i];
        if (SameMan(roster, team.lineup[i].player, player)) continue;
        for (const LineupSlot& slot : team.lineup) {
            // Leaving a place in the order is leaving the game.
            if (SameMan(roster, slot.player, player)) return Reject::AlreadyOut;
        }
        const bool pitchesOutside = data.DHUsed && SameMan(roster, team.pitcher, player);
        if (pitchesOutside) continue;
        if (const Reject reject = CheckEntering(data, state, lineup.side, player); reject != Reject::None)
            return reject;
    }
    return Reject::None;
}

// No man stands at one position of the field together with another, whichever half it is.
bool PositionsDistinct(const SlotPositions& positions) {
    for (std::size_t i = 0; i < positions.size(); ++i) {
        const bool place = IsFielder(positions[i]) || positions[i] == Position::DH;
        if (place && std::count(positions.begin(), positions.end(), positions[i]) != 1) return false;
    }
    return true;
}

Reject PitcherMayEnter(const GameData& data, const GameState& state, const LineupInput& lineup) {
    const TeamState& team = state[lineup.side];
    if (lineup.pitcher != team.pitcher) return CheckEnteringPitcher(data, state, lineup.side, lineup.pitcher);
    const bool used = team.box.PitchersUsed > 0;
    const bool mustGo = used && team.box.pitching[team.box.PitchersUsed - 1U].MustBeReplaced;
    return mustGo ? Reject::CannotPitch : Reject::None;
}

// The pitcher is batted for and nobody could pitch the next half: a change that nothing could mend.
bool LeavesNoPitcher(const GameData& data, const GameState& state, const LineupInput& lineup) {
    if (data.DHUsed || lineup.side == state.FieldingSide()) return false;
    const auto& positions = lineup.position;
    if (std::find(positions.begin(), positions.end(), Position::P) != positions.end()) return false;
    return !PitcherLeft(data, state, lineup.side, &lineup);
}

}  // namespace

Reject CheckStartingLineup(const GameData& data, const LineupInput& lineup, std::string* name) {
    const TeamData& team = data[lineup.side];
    const auto blame = [&](PlayerRef player, Reject reject) {
        if (name) *name = PlayerName(team, player);
        return reject;
    };
    if (const Reject reject = SlotsFilled(team, lineup); reject != Reject::None) return reject;
    if (const int slot = DuplicateSlot(team, lineup.player); slot >= 0) {
        return blame(lineup.player[static_cast<std::size_t>(slot)], Reject::DuplicatePlayer);
    }
    if (OpenPosition(lineup.position, data.DHUsed) != Position::None) return Reject::PositionsIncomplete;
    if (const Reject reject = PitcherFits(data, lineup); reject != Reject::None) return blame(lineup.pitcher, reject);
    const Pitcher& starter = team.roster.pitchers[static_cast<std::size_t>(lineup.pitcher.index)];
    if (starter.pitcherType != 'S') return blame(lineup.pitcher, Reject::NotAStarter);
    if (IsResting(starter, data.dayNumber)) return blame(lineup.pitcher, Reject::Resting);
    for (const PlayerRef player : lineup.player) {
        if (const Reject reject = Fit(team.roster, player); reject != Reject::None) return blame(player, reject);
    }
    return blame(lineup.pitcher, Fit(team.roster, lineup.pitcher));
}

Reject CheckLineupChange(const GameData& data, const GameState& state, const LineupInput& lineup) {
    const TeamData& team = data[lineup.side];
    if (const Reject reject = ChangeAllowedNow(state, lineup.side); reject != Reject::None) return reject;
    if (const Reject reject = SlotsFilled(team, lineup); reject != Reject::None) return reject;
    if (DuplicateSlot(team, lineup.player) >= 0) return Reject::DuplicatePlayer;
    if (const Reject reject = PitcherFits(data, lineup); reject != Reject::None) return reject;
    if (const Reject reject = MenMayEnter(data, state, lineup); reject != Reject::None) return reject;
    if (const Reject reject = PitcherMayEnter(data, state, lineup); reject != Reject::None) return reject;
    if (!PositionsDistinct(lineup.position)) return Reject::PositionsIncomplete;
    if (LeavesNoPitcher(data, state, lineup)) return Reject::PitcherMissing;
    // Pinch hitters and runners get their places in the field when their half is over.
    const bool inField = lineup.side == state.FieldingSide();
    const bool complete = OpenPosition(lineup.position, data.DHUsed) == Position::None;
    return inField && !complete ? Reject::PositionsIncomplete : Reject::None;
}

void ValidatePositions(Step& step, Side side) {
    const TeamState& team = step.state[side];
    SlotPositions positions{};
    for (std::size_t i = 0; i < positions.size(); ++i) positions[i] = team.lineup[i].position;
    Position open = OpenPosition(positions, step.data.DHUsed);
    if (open == Position::None && team.pitcher.Nobody()) open = Position::P;
    if (open == Position::None) return;

    Awaited awaited;
    awaited.kind = Await::LineupChange;
    awaited.cause = LineupCause::Positions;
    awaited.side = side;
    awaited.position = open;
    for (std::size_t i = 0; i < positions.size() && awaited.slot == 0; ++i) {
        const bool place = IsFielder(positions[i]) || positions[i] == Position::DH;
        if (!place) awaited.slot = static_cast<std::uint8_t>(i + 1);
    }
    step.state.awaited = awaited;
}

}  // namespace tarvane
