#pragma once

#include <string>
#include <vector>

#include "core/database.h"

namespace tarvane {

// What of a season's books doesn't balance, a line each: what was held against what, where, and the two numbers. Empty
// for a season whose statistics all come from its posted games. Held against each other are teams, their men, logs,
// fielding rows and the schedule; the two sides of each game; splits and totals; rates and counts; rest, injuries and
// streaks and the games they follow from. Tournament games aren't looked at. Changes nothing.
std::vector<std::string> AuditSeason(Database& season);

}  // namespace tarvane
