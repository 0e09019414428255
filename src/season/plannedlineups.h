#pragma once

#include "core/database.h"

namespace tarvane {

// Whether the season's managers go by real use (the rule FactorActualUsage) and by fixed line-ups, and it has the
// statistics for that: then line-ups are planned with every new schedule.
bool GoesByRealUse(Database& season);

// Plans the line-ups and starters of all unplayed games by the real use of the clubs' men (manager/useplan.h) and fixes
// them for their games. Line-ups that are fixed already, such as those of a game log, stay and count. Nothing is planned
// for a club without real statistics. Returns the number of line-ups planned. One transaction.
int PlanScheduledLineups(Database& season);

}  // namespace tarvane
