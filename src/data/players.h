#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "core/database.h"
#include "records/player.h"
#include "records/rules.h"

namespace tarvane {

// Real games at each position by LahmanPlayerID, in the order of the source. It says in which order positions are
// shown.
using ActualPositions = std::map<std::string, std::vector<std::pair<Position, double>>>;

// How a team's players are read, besides the rules of the season.
struct PlayerLoad {
    bool hasBaseballReference = false;  // the season holds such tables: players come by name
    bool chartEditorLoad = false;       // for editing: by key, and never with tournament statistics
    bool useTourneyStats = false;       // the game in hand is a tournament game
    const ActualPositions* actualPositions = nullptr;
    std::filesystem::path playerImages;  // folder of the photographs
};

// The players of a team in the order in which every list shows them. Empty if the team has none.
std::vector<Batter> LoadTeamBatters(Database& season, const std::string& teamID, const LeagueRules& rules,
                                    const PlayerLoad& load = {});
std::vector<Pitcher> LoadTeamPitchers(Database& season, const std::string& teamID, const LeagueRules& rules,
                                      const PlayerLoad& load = {});

// The real games at each position of a team's players (of all players if teamID is "999"), from LahmanFielding.
ActualPositions LoadActualPositions(Database& season, const std::string& teamID);

// The name of a player, without trailing blanks; "Unknown" if no row has that key.
std::string GetBatterName(Database& season, std::int64_t playerID);
std::string GetPitcherName(Database& season, std::int64_t playerID);

}  // namespace tarvane
