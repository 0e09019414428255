#pragma once

#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "base/progress.h"
#include "core/database.h"
#include "core/paths.h"
#include "import/alignment.h"
#include "import/choices.h"
#include "import/lahmanrows.h"

namespace tarvane {

// What an import wrote, and what the user should know of it.
struct ImportCounts {
    int teams = 0, batters = 0, pitchers = 0;  // rows of the season's tables
    std::vector<std::string> notes;
};

// Home parks by year, league and the club's code in the statistics database.
using HomeParks = std::map<std::tuple<int, std::string, std::string>, std::int32_t>;

// From the table of home parks that is shipped; parks that the common database doesn't have are left out.
HomeParks ReadHomeParks(Database& common, const std::filesystem::path& file);

// Fills the tables of an empty season with the chosen teams, their players and the players' real statistics.
ImportCounts FillSeason(Database& season, const ImportSettings& settings, const LahmanTables& tables,
                        const HomeParks& parks, const DataPaths& paths, Progress* progress);

// Writes Leagues and Divisions anew and puts teams and players into them.
void WriteAlignment(Database& season, const Alignment& alignment);

// The first picture in the folder, by name, whose name holds the short name without its blanks; empty if none does.
std::string FindTeamImage(const std::filesystem::path& folder, const std::string& shortName);

}  // namespace tarvane
