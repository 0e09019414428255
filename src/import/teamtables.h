#pragma once

#include <string>

#include "core/database.h"
#include "core/paths.h"

namespace tarvane {

// The 64 lists of a new team: batting line-ups, a depth chart of each kind, starters, relievers, closers. Does nothing
// for an empty code.
void CreateTeamLineups(Database& season, const std::string& teamID);

// One row for every ordered pair of teams, a team with itself included; replaces what was there.
void CreateTeamVsTeam(Database& season);

// Gives each batter and pitcher the photograph named after him and his team, else after him alone. A player without one
// keeps what he has.
void AssignPlayerImages(Database& season, const DataPaths& paths);

}  // namespace tarvane
