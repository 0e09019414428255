#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/database.h"
#include "season/scheduleimport.h"

namespace tarvane {

// A series: games between the same two teams on so many days in a row from first (yyyy-mm-dd) on. Throws UserError for
// a date that is none.
void AddSeries(Database& season, const std::string& first, int games, const PerSide<std::int32_t>& teamIdx);

// Takes games out of the schedule, and with each the line-ups made for it. Throws UserError, with nothing changed, if
// one of them isn't there or has been played: its results stand in the season's statistics.
void RemoveGames(Database& season, const std::vector<std::int32_t>& gameIDs);

// Fixes a stored line-up of a team for one of its games; 0 takes a fixed one back. Throws UserError if the game or the
// line-up isn't the team's.
void FixLineup(Database& season, std::int32_t gameID, Side side, std::int32_t lineupID);

// Fixes the line-ups and starting pitchers of a game log for the unplayed games that the schedule already has: same
// date, same teams, doubleheaders in the order of the file. Line-ups fixed before give way. In the result games counts
// the unplayed games that were found in the log.
ScheduleImportResult ImportLineups(Database& season, const ScheduleFile& log);

}  // namespace tarvane
