#pragma once

#include <vector>

#include "core/database.h"
#include "manager/pitchersearch.h"
#include "records/rules.h"
#include "records/team.h"

namespace tarvane {

// The real statistics of a roster's club, from the season's Lahman tables. Not present if the season holds none.
RealUse LoadRealUse(Database& season, const TeamRoster& roster);

// The best tenth of the season's batters by average, slugging and home runs, as flags by roster index. Nobody is marked
// before ten team decisions are in. tourney: by the tournament's tables.
std::vector<bool> FindTopBatters(Database& season, const TeamRoster& roster, bool tourney);

// All that a computer manager of the team knows besides the game.
ManagerKnowledge LoadManagerKnowledge(Database& season, const TeamRoster& roster, const LeagueRules& rules);

}  // namespace tarvane
