#include "engine/availability.h"

#include <algorithm>
#include <bit>

namespace tarvane {

namespace {

// Nobody's for a record that came after the team was compiled.
ManIdentity IdentityOf(const TeamData& team, PlayerRef player) {
    const auto& identities = player.type == 'P' ? team.pitcherIdentity : team.batterIdentity;
    const auto index = static_cast<std::size_t>(player.index);
    return index < identities.size() ? identities[index] : ManIdentity{};
}

int RecordCount(const TeamRoster& roster, char type) {
    return static_cast<int>(type == 'P' ? roster.pitchers.size() : roster.batters.size());
}

using UsedMask = decltype(TeamState::battersUsed);

// One of the records that have been in the game is the man's.
bool AnyUsed(const TeamData& team, const UsedMask& mask, char type, PlayerRef player) {
    for (std::size_t word = 0; word < mask.size(); ++word)
        for (std::uint64_t left = mask[word]; left != 0; left &= left - 1) {
            const auto index = static_cast<std::int16_t>(word * 64 + static_cast<std::size_t>(std::countr_zero(left)));
            if (SameMan(team, player, {type, index})) return true;
        }
    return false;
}

bool ManUsed(const GameData& data, const TeamState& team, Side side, PlayerRef player) {
    return AnyUsed(data[side], team.battersUsed, 'B', player) || AnyUsed(data[side], team.pitchersUsedMask, 'P', player);
}

bool HasPitched(const GameData& data, const TeamState& team, Side side, PlayerRef player) {
    const auto end = team.box.pitching.begin() + team.box.PitchersUsed;
    return std::any_of(team.box.pitching.begin(), end,
                       [&](const PitchingLine& line) { return SameMan(data[side], line.player, player); });
}

// Everything that can keep a man from the mound but his rest.
Reject CheckRestedPitcher(const GameData& data, const GameState& state, Side side, PlayerRef player) {
    const TeamState& team = state[side];
    if (player.type != 'P') return Reject::CannotPitch;
    if (!KnownPlayer(data[side], player)) return Reject::UnknownPlayer;
    if (team.box.PitchersUsed >= kMaxPitchingLines) return Reject::TooManyPitchers;
    if (HasPitched(data, team, side, player)) return Reject::AlreadyOut;
    return InGame(data, state, side, player) ? Reject::None : CheckEntering(data, state, side, player);
}

// A man who is in the game already, or in the line-up to come, leaves a hole behind if he takes the mound.
bool AnyPitcher(const GameData& data, const GameState& state, Side side, bool restedOnly, const LineupInput* coming) {
    const TeamData& team = data[side];
    for (std::size_t i = 0; i < team.roster.pitchers.size() && i < kMaxRosterRecords; ++i) {
        if (restedOnly && IsResting(team.roster.pitchers[i], data.dayNumber)) continue;
        const PlayerRef player{'P', static_cast<std::int16_t>(i)};
        const auto his = [&](PlayerRef other) { return SameMan(team, other, player); };
        if (coming && std::any_of(coming->player.begin(), coming->player.end(), his)) continue;
        if (InGame(data, state, side, player)) continue;
        if (CheckRestedPitcher(data, state, side, player) == Reject::None) return true;
    }
    return false;
}

}  // namespace

bool KnownPlayer(const TeamData& team, PlayerRef player) {
    if (player.type != 'B' && player.type != 'P') return false;
    return player.index >= 0 && player.index < std::min(RecordCount(team.roster, player.type), kMaxRosterRecords);
}

const std::string& PlayerName(const TeamData& team, PlayerRef player) {
    static const std::string nobody;
    if (!KnownPlayer(team, player)) return nobody;
    const auto index = static_cast<std::size_t>(player.index);
    return player.type == 'P' ? team.roster.pitchers[index].playerName : team.roster.batters[index].playerName;
}

bool SameMan(const TeamData& team, PlayerRef a, PlayerRef b) {
    if (!KnownPlayer(team, a) || !KnownPlayer(team, b)) return false;
    if (a == b) return true;
    const ManIdentity first = IdentityOf(team, a), second = IdentityOf(team, b);
    if (first.key != 0 && second.key != 0) return first.key == second.key;
    return first.name != 0 && first.name == second.name;
}

bool IsResting(const Pitcher& pitcher, int dayNumber) {
    return pitcher.PitcherRestDays > 0 && pitcher.PitchedOnDay + pitcher.PitcherRestDays >= dayNumber;
}

bool InGame(const GameData& data, const GameState& state, Side side, PlayerRef player) {
    const TeamState& team = state[side];
    const TeamData& roster = data[side];
    if (data.DHUsed && SameMan(roster, team.pitcher, player)) return true;
    return std::any_of(team.lineup.begin(), team.lineup.end(),
                       [&](const LineupSlot& slot) { return SameMan(roster, slot.player, player); });
}

bool IsOutOfGame(const GameData& data, const GameState& state, Side side, PlayerRef player) {
    return !InGame(data, state, side, player) && ManUsed(data, state[side], side, player);
}

Reject CheckEntering(const GameData& data, const GameState& state, Side side, PlayerRef player) {
    if (!KnownPlayer(data[side], player)) return Reject::UnknownPlayer;
    if (IsOutOfGame(data, state, side, player)) return Reject::AlreadyOut;
    const auto check = [](const auto& record) {
        if (record.injury.InjuredDaysRemaining > 0) return Reject::Injured;
        return record.Inactive || record.NoLongerWithTeam ? Reject::Inactive : Reject::None;
    };
    const auto index = static_cast<std::size_t>(player.index);
    return player.type == 'P' ? check(data[side].roster.pitchers[index]) : check(data[side].roster.batters[index]);
}

Reject CheckEnteringPitcher(const GameData& data, const GameState& state, Side side, PlayerRef player) {
    if (const Reject reject = CheckRestedPitcher(data, state, side, player); reject != Reject::None) return reject;
    const Pitcher& pitcher = data[side].roster.pitchers[static_cast<std::size_t>(player.index)];
    const bool resting = IsResting(pitcher, data.dayNumber);
    return resting && AnyPitcher(data, state, side, true, nullptr) ? Reject::Resting : Reject::None;
}

bool PitcherLeft(const GameData& data, const GameState& state, Side side, const LineupInput* coming) {
    return AnyPitcher(data, state, side, false, coming);
}

void MarkUsed(TeamState& team, PlayerRef player) {
    if (player.index < 0 || player.index >= kMaxRosterRecords) return;
    auto& mask = player.type == 'P' ? team.pitchersUsedMask : team.battersUsed;
    const auto index = static_cast<std::size_t>(player.index);
    mask[index / 64] |= std::uint64_t{1} << (index % 64);
}

}  // namespace tarvane
