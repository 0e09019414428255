#pragma once

#include "engine/game.h"

namespace tarvane {

// Sums over the box scores of many games, both sides together: what a league's season totals would be.
struct GameTally {
    long games = 0;  // team games: two a game
    long PA = 0, AB = 0, R = 0, H = 0, Doubles = 0, Triples = 0, HR = 0, BB = 0, SO = 0, HBP = 0, SH = 0, SF = 0,
         GIDP = 0, SB = 0, CS = 0;
    long E = 0, PB = 0, PinchHitters = 0, PinchRunners = 0;
    long PitchersUsed = 0, CG = 0, SV = 0, SHO = 0, ER = 0, IPOuts = 0, StarterOuts = 0;
    long Injuries = 0, HomeWins = 0, ExtraInnings = 0, Innings = 0, LongestGame = 0;

    void Add(const GameState& state);

  private:
    void AddSide(const GameState& state, Side side);
};

}  // namespace tarvane
