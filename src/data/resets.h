#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

#include "core/database.h"
#include "core/messages.h"
#include "core/paths.h"
#include "records/rules.h"

namespace tarvane {

// Works out the running streak and the last ten results of one team, or of all, from the games played, in the order of
// the schedule. A tie counts as a loss for both.
void RebuildStreaks(Database& season, std::optional<std::int32_t> teamIdx = std::nullopt);

// Takes all games of the schedule (in tournament mode, of the bracket) back to not played. An empty schedule is warned
// of.
void ResetScheduleStats(Database& season, const LeagueRules& rules, MessageSink& messages);

// Clears records, statistics, injuries, logs and fielding rows of the league, or of the tournament while it is on,
// deletes the saved results files of that kind in gameResults, and starts their numbers at 1.
void ResetLeagueStats(Database& season, LeagueRules& rules, const std::filesystem::path& gameResults,
                      MessageSink& messages);

}  // namespace tarvane
