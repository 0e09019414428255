#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "import/choices.h"
#include "import/mdbreader.h"
#include "import/seasonwriter.h"

namespace tarvane {

// Makes the line-ups and tendencies of all teams of a season whose charts stand. The layer that knows how is above this
// one, so whoever asks for an import brings it.
using ManagerGenerator = std::function<void(Database& season, const LineupChoice& lineups, Progress* progress)>;

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

// --- its two halves, for screens that ask between them ---

// The steps of the last screen over a filled season: leagues, splits, ratings, cells, pictures, managers. Throws
// UserError if CheckFinish finds fault.
void FinishSeason(Database& season, Database& common, const DataPaths& paths, const ImportSettings& settings,
                  const FinishSettings& finish, std::uint64_t seed, const ManagerGenerator& generateManagers,
                  Progress* progress);

// The era of a league and year, "<year> AL", else that of all leagues, "<year> Combined"; nothing if neither is there.
std::optional<std::int32_t> FindEra(Database& common, int year, const std::string& shortName);

}  // namespace tarvane
