#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/database.h"
#include "data/players.h"
#include "records/fielding.h"
#include "records/rules.h"
#include "records/team.h"

namespace tarvane {

// The teams of the season by TeamIdx, with the names that reports show. In a tournament a team in the bracket bears its
// tournament record, and inTournament is set; lgIdx is 0 for all teams in one of type "D" or "T".
std::vector<Team> LoadTeamList(Database& season, const LeagueRules& rules);

// Null if there is none.
const Team* FindTeamByIndex(const std::vector<Team>& teams, std::int32_t teamIdx);
const Team* FindTeamByCode(const std::vector<Team>& teams, std::string_view teamID);

// Up to 3 leagues and up to 12 divisions, in stored order.
struct LeagueTables {
    std::vector<League> leagues;
    std::vector<Division> divisions;
};
LeagueTables LoadLeagues(Database& season);

// The tendencies of the team's computer manager. Throws DatabaseError unless the team has exactly one row.
ManagerTendencies LoadTendencies(Database& season, const std::string& teamID);

// The fielding rows of a team; those of the tournament if tourneyStats is set.
std::vector<FieldingRow> LoadTeamFielding(Database& season, const std::string& teamID, bool tourneyStats);

// Everything of a team that a game plays with. Throws UserError if the season has no such team.
TeamRoster LoadTeamRoster(Database& season, const std::string& teamID, const LeagueRules& rules,
                          const PlayerLoad& load = {});

// Deletes all rows of TeamVsTeam and adds one for each ordered pair of teams, a team with itself included.
void CreateTeamVsTeam(Database& season);

}  // namespace tarvane
