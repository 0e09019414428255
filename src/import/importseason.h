#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "import/choices.h"
#include "import/mdbreader.h"
#include "import/seasonimport.h"

namespace tarvane {

// A whole import in one go: what a person would choose on the screens.
struct ImportRequest {
    std::string seasonName;
    std::filesystem::path source;  // folder of CSV files, or an Access file
    MdbHelper helper;
    std::vector<TeamChoice> teams;
    int minIPOuts = 0, minAB = 0;
    bool includeYear = false, freeAgents = false, align = true, colors = true;
    bool overwrite = false;
    std::vector<std::int32_t> eras;  // EraID of each league; empty: those of the leagues and year
    std::optional<double> PAFactor;  // empty: the mean of the eras
    double PitcherOutFactor = 1;
    SplitSettings splits;
    bool retro = false;
    bool assignImages = false;
    std::uint64_t seed = 1;
    LineupChoice lineups;
    ManagerGenerator generateManagers;  // empty: no computer managers
};

struct ImportResult {
    std::int64_t LeagueID = 0;  // of the catalogue
    ImportCounts counts;
};

// Makes a season out of real statistics: reads the source, writes teams, players and statistics, runs the generators
// and enters the season in the catalogue. The season is built in a folder of its own and moved into its place when it
// is whole: a fault (UserError), a stop (Cancelled) or a crash leaves the data folder as it was. The same request gives
// the same file. The season must not be open.
ImportResult ImportSeason(const ImportRequest& request, const DataPaths& paths, Database& common,
                          Progress* progress = nullptr);

// The era of a league and year, "<year> AL", else that of all leagues, "<year> Combined"; nothing if neither is there.
std::optional<std::int32_t> FindEra(Database& common, int year, const std::string& shortName);

// The era of each league that a season of these teams will have, where there is one.
std::vector<std::optional<std::int32_t>> ProposedEras(Database& common, const std::vector<LahmanTeam>& teams,
                                                      bool align);

// The mean of the PAFactor of these eras to three decimals; 0.95 if there are none.
double DefaultPAFactor(Database& common, const std::vector<std::int32_t>& eras);

}  // namespace tarvane
