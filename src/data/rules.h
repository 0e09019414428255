#pragma once

#include "core/database.h"
#include "records/rules.h"

namespace tarvane {

// Reads the row of LeagueRules and the rows of PitcherRestSettings. columnsBefore is the count of columns that the
// table had before this opening brought it up to date: rules that came later keep what rules holds, except TourneyType,
// which is then empty. DefChartEraID stays as it was where the table holds Null. Throws DatabaseError if there is no
// row.
void LoadLeagueRules(Database& season, int columnsBefore, LeagueRules& rules);

// The rules of a season whose tables are up to date.
LeagueRules LoadLeagueRules(Database& season);

// Writes the rules that a user sets, and the ten rows of rest, into their rows. The caller's transaction.
void SaveLeagueRules(Database& season, const LeagueRules& rules);

// Counts the running number of the documents up, once for a game.
inline constexpr const char* kCountResultsFile =
    "UPDATE LeagueRules SET NextResultsFile = coalesce(NextResultsFile, 1) + 1";

}  // namespace tarvane
