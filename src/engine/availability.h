#pragma once

#include <string>

#include "engine/game.h"

namespace tarvane {

// Who a record of the roster is, and whether he can still be put into a game. A man can have up to three records: as a
// batter, as a starter and as a reliever; what he did under one of them counts for all.

inline constexpr int kMaxRosterRecords = 128;  // of each kind: the masks of used men hold so many

// The reference names a record of the roster that a game can hold.
bool KnownPlayer(const TeamData& team, PlayerRef player);

// The player's name; empty for nobody.
const std::string& PlayerName(const TeamData& team, PlayerRef player);

// Both references name the same person: one record, one Lahman key, or, where a key is missing, one name.
bool SameMan(const TeamData& team, PlayerRef a, PlayerRef b);

// A pitcher rests up to and including the day PitchedOnDay + PitcherRestDays.
bool IsResting(const Pitcher& pitcher, int dayNumber);

// The man stands in the batting order, or pitches while a DH bats for him.
bool InGame(const GameData& data, const GameState& state, Side side, PlayerRef player);

// The man has been in the game under any of his records and isn't any more: he can't come back.
bool IsOutOfGame(const GameData& data, const GameState& state, Side side, PlayerRef player);

// Whether a man who isn't in the game may enter it: UnknownPlayer, AlreadyOut, Injured, Inactive or None.
Reject CheckEntering(const GameData& data, const GameState& state, Side side, PlayerRef player);

// Whether he may take over as pitcher; besides the above CannotPitch, TooManyPitchers and Resting. Resting pitchers are
// refused only while a rested one is left.
Reject CheckEnteringPitcher(const GameData& data, const GameState& state, Side side, PlayerRef player);

// At least one man from outside the game may take over as pitcher now; with a line-up to come, one outside that too.
bool PitcherLeft(const GameData& data, const GameState& state, Side side, const LineupInput* coming = nullptr);

// Notes that the record has been in the game.
void MarkUsed(TeamState& team, PlayerRef player);

}  // namespace tarvane
