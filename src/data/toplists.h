#pragma once

#include <cstdint>
#include <vector>

#include "core/database.h"

namespace tarvane {

// The batters of the top tenth of a season by batting average, slugging and home runs; playerID, the best first.
struct TopBatterLists {
    std::vector<std::int32_t> TopAvgPlayers, TopSLGPlayers, TopHRPlayers;
};

// Fills the lists, from the tournament tables if tournament is set. They stay as they are until ten team games (wins
// and losses of all teams together) are played.
void BuildTopBatterLists(Database& season, bool tournament, TopBatterLists& lists);

}  // namespace tarvane
