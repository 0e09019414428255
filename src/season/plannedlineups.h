#pragma once

#include "core/database.h"

namespace tarvane {

// Plans the line-ups and starters of all unplayed games by the real use of the clubs' men (manager/useplan.h) and fixes
// them for their games. Line-ups that are fixed already, such as those of a game log, stay and count. Nothing is planned
// for a club without real statistics, nor under the rule IgnoreSchedLineups or without FactorActualUsage. Returns the
// number of line-ups planned. One transaction.
int PlanScheduledLineups(Database& season);

}  // namespace tarvane
