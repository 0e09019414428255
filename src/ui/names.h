#pragma once

#include <string>

#include "engine/gamedata.h"
#include "engine/gamestate.h"
#include "narration/naming.h"

namespace tarvane {

std::string LastNameOf(const GameData& data, Side side, PlayerRef player);
// The man in a lineup slot (1 to 9).
std::string SlotLastName(const GameData& data, const GameState& state, Side side, int slot);

// A team as the game calls it: its short name without a bracketed year.
std::string TeamName(const GameData& data, Side side);

// Which way the man at bat stands: a switch hitter turns against the pitcher's arm.
bool StandsLeft(const GameState& state);

// "1st", "2nd", "3rd", "11th".
std::string Ordinal(int number);

}  // namespace tarvane
