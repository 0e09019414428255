#include "import/seasonimport.h"

#include <fmt/core.h>

#include "base/error.h"
#include "base/tempfolder.h"
#include "core/paths.h"
#include "data/seasons.h"
#include "import/playerimages.h"
#include "import/retrosplits.h"
#include "ratings/generators.h"

namespace tarvane {

namespace fs = std::filesystem;

namespace {

fs::path CopyTemplate(const DataPaths& paths, const fs::path& folder) {
    const fs::path file = folder / "Season.mdb";
    std::error_code error;
    fs::copy_file(paths.BaseFile(), file, error);
    if (error)
        throw UserError(fmt::format("Unable to build league database - please close open data files. ({}: {})",
                                    paths.BaseFile().string(), error.message()));
    return file;
}

// The sheet of the season's own name, else of the year of all its teams.
std::unique_ptr<RetroSheet> RetroSheetOf(const DataPaths& paths, const ImportSettings& settings) {
    const fs::path workbook = paths.Data08() / kRetroWorkbook;
    auto sheet = ReadRetroSplits(workbook, settings.seasonName);
    if (sheet || !SameYear(settings.teams)) return sheet;
    return ReadRetroSplits(workbook, std::to_string(settings.teams.front().yearID));
}

// The new season's file takes its place, and its row stands in the catalogue: both or neither.
std::int64_t MoveIntoPlace(const fs::path& file, const std::string& name, const DataPaths& paths, Database& common) {
    const fs::path target = paths.SeasonFile(name);
    const bool newFolder = !fs::exists(paths.SeasonFolder(name));
    Transaction transaction(common);
    const std::int64_t id = AddSeasonEntry(common, name);
    std::error_code error, ignored;
    fs::create_directories(paths.GameResults(name), error);
    // A side file of the season that is replaced must not be taken for one of the new season.
    for (const char* side : {"-wal", "-shm"}) fs::remove(target.string() + side, ignored);
    if (!error) fs::rename(file, target, error);
    if (error) {
        if (newFolder) fs::remove_all(paths.SeasonFolder(name), ignored);
        throw UserError(fmt::format("The season can't be moved to {}: {}.", target.string(), error.message()));
    }
    transaction.Commit();
    return id;
}

}  // namespace

SeasonImport::SeasonImport(const fs::path& source, const MdbHelper& helper, DataPaths paths, Database& common)
    : paths_(std::move(paths)), common_(common), source_(source, helper) {}

SeasonImport::~SeasonImport() = default;

std::vector<LahmanTeam> SeasonImport::ReadTeams(Progress* progress) {
    return ListTeams(source_.ReadTeams(progress));
}

ImportCounts SeasonImport::Fill(const ImportSettings& settings, Progress* progress) {
    season_.reset();
    work_.reset();
    settings_ = settings;
    YearSet years;
    for (const LahmanTeam& team : settings.teams) years.insert(team.yearID);
    const LahmanTables tables = source_.ReadYears(years, progress);
    auto work = std::make_unique<TempFolder>(paths_.Data08(), "Import");
    Database season(CopyTemplate(paths_, work->Path()));
    ImportCounts counts = FillSeason(season, settings, tables,
                                     ReadHomeParks(common_, AssetsPath() / "seeds/TeamParks.csv"), paths_, progress);
    work_ = std::move(work);
    season_ = std::move(season);
    return counts;
}

std::int64_t SeasonImport::Finish(const FinishSettings& finish, std::uint64_t seed,
                                  const ManagerGenerator& generateManagers, Progress* progress) {
    if (!season_) throw UserError("No teams have been imported yet. Import them first, then finish the season.");
    if (const auto fault = CheckFinish(finish, LeagueCount(settings_.teams, finish.align)))
        throw UserError(fault->message);
    Generate(finish, seed, generateManagers, progress);
    const fs::path file = season_->Path();
    season_.reset();
    const std::int64_t id = MoveIntoPlace(file, settings_.seasonName, paths_, common_);
    work_.reset();
    return id;
}

void SeasonImport::Generate(const FinishSettings& finish, std::uint64_t seed, const ManagerGenerator& generateManagers,
                            Progress* progress) {
    Transaction transaction(*season_);
    Random random(seed);
    ReportProgress(progress, "Building League Data ... Please Wait", 0, 0);
    WriteAlignment(*season_, AlignTeams(settings_.teams, finish.align, settings_.seasonName, finish.eras));
    if (finish.genLRSplits) {
        const auto retro = finish.retro ? RetroSheetOf(paths_, settings_) : nullptr;
        GenerateSplits(*season_, {*finish.LHBAdjust, *finish.RHBAdjust, finish.randomNoSplit}, retro.get(), random,
                       progress);
    }
    const GeneratorScope scope{{}, {*finish.PAFactor, *finish.PitcherOutFactor}};
    if (finish.genRatings) GeneratePlayerRatings(*season_, common_, scope, progress);
    if (finish.genBatterPitcherCells) {
        GenerateBatterCells(*season_, common_, scope, random, progress);
        GeneratePitcherCells(*season_, common_, scope, random, progress);
        if (finish.assignImages) AssignPlayerImages(*season_, paths_);
    }
    if (finish.genComputerMgr && generateManagers) generateManagers(*season_, finish.lineups, progress);
    transaction.Commit();
}

}  // namespace tarvane
