#pragma once

#include "core/database.h"

namespace tarvane {

// Old files are brought up to date when they are opened: a table's count of columns tells its age, and what it lacks is
// added in place with the value that keeps the old behaviour.

// GameSettings and ScreenSettings of the common database.
void UpgradeCommonTables(Database& common);

// The tables of a season. Tournament tables are touched only while LeagueRules.TourneyMode is on.
void UpgradeSeasonTables(Database& season);

// LeagueRules; gives the count of columns that the table had before, which LoadLeagueRules wants.
int UpgradeLeagueRules(Database& season);

}  // namespace tarvane
