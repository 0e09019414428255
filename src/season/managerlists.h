#pragma once

#include <string>

#include "base/progress.h"
#include "core/database.h"
#include "manager/generate.h"
#include "records/settings.h"

namespace tarvane {

// Generates the lists and tendencies of one team, or of every team of the season, and writes them to Lineups and
// ComputerManager: everything or nothing. Returns the number of teams. Throws UserError for a team that isn't there.
void GenerateTeamManager(Database& season, const std::string& teamID, const GenerateOptions& options);
int GenerateSeasonManagers(Database& season, const GenerateOptions& options, Progress* progress = nullptr);

// What an import has made for the clubs of a new season, by its choice of line-ups.
void GenerateImportedManagers(Database& season, const LineupChoice& choice, Progress* progress);

// Writes the tendencies to the team's row.
void SaveTendencies(Database& season, const std::string& teamID, const ManagerTendencies& tendencies);

// Writes a roster's lists and tendencies over the rows that they came from. Lists without a row of theirs get one.
void SaveManager(Database& season, const TeamRoster& roster);

}  // namespace tarvane
