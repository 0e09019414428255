#pragma once

#include <vector>

#include "data/teams.h"
#include "season/scheduleimport.h"

namespace tarvane {

inline constexpr int kUsualGames = 154;

// A schedule for a season that has no file: every league for itself plays rounds of series from April to September, at
// home and away by turns, each pair of teams as often as the others (one game apart at most). All teams play
// gamesPerTeam games; in a league with an odd number of teams, where one rests each round, one fewer at most. Leagues
// of one team play with the others. The same teams give the same schedule. Throws UserError for fewer than two teams or
// more games than days.
std::vector<NewGame> BalancedSchedule(const std::vector<Team>& teams, int year, int gamesPerTeam = kUsualGames);

}  // namespace tarvane
