#pragma once

#include <string>

#include "engine/game.h"
#include "narration/wordings.h"

namespace tarvane {

// What a name in a sentence stands for at this moment of this game. A player goes by his last name, a team by its short
// name without a bracketed year.
std::string NameText(Name name, const GameData& data, const GameState& state, const GameEvent& event);

std::string LastName(const std::string& playerName);
std::string ShortTeamName(const Team& team);
std::string PlayerName(const GameData& data, Side side, PlayerRef player);

// The man at a fielding position of one side: in a slot, or the pitcher who bats in none. Nobody if the place is empty.
PlayerRef FielderAt(const GameState& state, Side side, Position position);

// The base that a runner goes for on a manager's decision (2, 3, or 4 for home), and the slot of that runner.
struct ExtraBase {
    int base = 0;
    std::uint8_t runner = 0;
};
ExtraBase ExtraBaseOf(const GameState& state);

}  // namespace tarvane
