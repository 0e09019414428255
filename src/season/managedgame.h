#pragma once

#include <cstdint>

#include "season/gamesetup.h"

namespace tarvane {

// Brings a set-up to its first pitch, with what the computer manages. Throws UserError if a line-up is refused.
void StartSetup(const GameSetup& setup, GameState& state);

// Plays a started game to its end by the computer managers of both sides. One seed gives the dice and, by generators of
// their own, both managers, so that the same set-up and seed are the same game.
void PlayByComputers(const GameSetup& setup, std::uint64_t seed, GameState& state, GameListener* listener = nullptr);

}  // namespace tarvane
