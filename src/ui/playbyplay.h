#pragma once

#include <string>
#include <vector>

#include "engine/game.h"

namespace tarvane {

// The line-up announcement before the first pitch.
std::string TellOpening(const GameData& data, const GameState& state);

// What one input did, told plainly from the states before and after it; empty while a play is still on its way. scorers
// are the lineup slots of the men who came home, in order. intentional marks a walk that was ordered.
std::string TellStep(const GameData& data, const GameState& before, const GameState& after,
                     const std::vector<int>& scorers, bool intentional);

// A man who came into the game.
std::string TellChange(const GameData& data, const GameState& state, const GameEvent& event);

}  // namespace tarvane
