#pragma once

#include <string>
#include <vector>

#include "engine/gamedata.h"
#include "engine/gamestate.h"

namespace tarvane {

// The line score of a game that is over, as texts: a column for each inning played, then R, H, E and LOB. A bottom half
// that wasn't played reads "x".
struct LineScoreView {
    std::vector<std::string> heads;
    PerSide<std::string> name;
    PerSide<std::vector<std::string>> cells;  // as many as heads
};

LineScoreView MakeLineScore(const GameData& data, const GameState& state);

// "Homers 5, Visitors 3 (11 innings)": the winner first; the innings only if they aren't nine.
std::string FinalScoreText(const GameData& data, const GameState& state);

// "Winning pitcher: Reed   Losing pitcher: Vail   Save: Post"; a part that nobody has is left out.
std::string DecisionsText(const GameData& data, const GameState& state);

}  // namespace tarvane
