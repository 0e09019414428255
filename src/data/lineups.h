#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/database.h"
#include "records/team.h"

namespace tarvane {

// A new team's lists: 50 line-ups "L", a depth chart "D" for each of ten depth types, one each of starters "S",
// relievers "R" and closers "C", and one more line-up to make up the count. Lists are found by their types, never by
// their place.
inline constexpr int kLineupsPerTeam = 64;

// The lists of a team by lineupID. A team without lists gets them first; a table from before GameID gets the column.
std::vector<LineupList> LoadTeamLineups(Database& season, const std::string& teamID);

// Adds the empty lists of a team; does nothing if the code is empty.
void CreateTeamLineups(Database& season, const std::string& teamID);

// Writes a list back to the row of its lineupID; all columns but the keys lineupID, teamID, LineupType and DepthType.
void SaveLineup(Database& season, const LineupList& list);

// Empties each slot of the team's lists that names the player. playerType 'B' or 'P' says in which table he is.
void RemovePlayerFromLineups(Database& season, const std::string& teamID, std::int32_t playerID, char playerType);

}  // namespace tarvane
