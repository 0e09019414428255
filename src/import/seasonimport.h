#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "base/tempfolder.h"
#include "import/choices.h"
#include "import/lahmansource.h"
#include "import/seasonwriter.h"

namespace tarvane {

// Makes the line-ups and tendencies of all teams of a season whose charts stand. The layer that knows how is above this
// one, so whoever asks for an import brings it.
using ManagerGenerator = std::function<void(Database& season, const LineupChoice& lineups, Progress* progress)>;

// A new season out of real statistics, in the steps in which a person chooses: the clubs of the source, the season
// filled with those chosen, its leagues and charts. It is built in a folder of its own and takes its place in the data
// folder with the last step; a fault, a stop or an end before that leaves the data folder as it was.
class SeasonImport {
  public:
    // source: folder of CSV files, a file in it, or an Access file. Throws UserError if it is none of these.
    SeasonImport(const std::filesystem::path& source, const MdbHelper& helper, DataPaths paths, Database& common);
    SeasonImport(const SeasonImport&) = delete;
    SeasonImport& operator=(const SeasonImport&) = delete;
    ~SeasonImport();

    // Throws UserError on a damaged source, as the next one does.
    std::vector<LahmanTeam> ReadTeams(Progress* progress);

    // Teams, players and their real statistics. It may be called again with other choices.
    ImportCounts Fill(const ImportSettings& settings, Progress* progress);

    // Leagues, splits, ratings, charts, pictures and managers of the filled season, which then takes its place; an
    // earlier season of that name must not be open. Gives the LeagueID. Throws UserError if CheckFinish finds fault.
    std::int64_t Finish(const FinishSettings& finish, std::uint64_t seed, const ManagerGenerator& generateManagers,
                        Progress* progress);

  private:
    void Generate(const FinishSettings& finish, std::uint64_t seed, const ManagerGenerator& generateManagers,
                  Progress* progress);

    DataPaths paths_;
    Database& common_;
    LahmanSource source_;
    ImportSettings settings_;
    std::unique_ptr<TempFolder> work_;
    std::optional<Database> season_;
};

}  // namespace tarvane
