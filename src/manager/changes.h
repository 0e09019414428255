#pragma once

#include <optional>
#include <vector>

#include "engine/game.h"

namespace tarvane {

// Changes of a line-up during a game. Each gives a whole line-up that CheckLineupChange takes at this moment, or
// nothing if no legal one exists; the state is only read. Who has been in the game and left it is never named again,
// and a side in the field is left with nine men in nine places.

// The line-up that stands now.
LineupInput CurrentLineup(const GameState& state, Side side);

// The men who could still enter as batters or fielders, in roster order; pitchers only if no batter is left.
std::vector<PlayerRef> Bench(const GameData& data, const GameState& state, Side side);

// The pitchers who could come in, the best chart first: most outs and strikeouts, then fewest home runs.
std::vector<PlayerRef> Bullpen(const GameData& data, const GameState& state, Side side);

// A new pitcher; nobody named, the first of the bullpen. Without a DH he takes the first slot that holds the pitcher, a
// pinch hitter or a pinch runner. A side in the field gets its other open places filled at the same time.
std::optional<LineupInput> BringInPitcher(const GameData& data, const GameState& state, Side side,
                                          PlayerRef man = {'P', -1});

// A man for the slot (1 to 9) of the side at bat, standing there as PH or PR or at the position that he inherits.
// Nothing if he bats or runs for the pitcher and no other pitcher is left.
std::optional<LineupInput> Pinch(const GameData& data, const GameState& state, Side side, int slot, PlayerRef man,
                                 Position as);

// All nine places of the field after pinch hitters and runners, a new pitcher among them where the old one is gone. Men
// who stand in the field keep their places if the rest can be filled with rated men; then those in the order who have
// no place are tried, and a man of the bench where he is rated and they aren't. Whoever remains stands out of position.
std::optional<LineupInput> FullDefence(const GameData& data, const GameState& state, Side side);

// A man for the slot that an injury has emptied, or a pitcher where he was hurt, when that change is awaited. The man
// named takes the place; nobody named, the best of the bench for it.
std::optional<LineupInput> ReplaceInjured(const GameData& data, const GameState& state, Side side, PlayerRef man = {});

// The answer to whatever change of the side's line-up is awaited.
std::optional<LineupInput> AnswerForcedChange(const GameData& data, const GameState& state, Side side);

}  // namespace tarvane
