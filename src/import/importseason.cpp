#include "import/importseason.h"

#include <fmt/core.h>

#include <algorithm>
#include <map>

#include "base/tempfolder.h"
#include "data/parks.h"
#include "data/seasons.h"
#include "import/lahmansource.h"
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

// What can be seen before anything is read.
void CheckRequest(const ImportRequest& request, const DataPaths& paths) {
    CheckSeasonName(request.seasonName);
    if (!request.overwrite && fs::exists(paths.SeasonFile(request.seasonName)))
        throw UserError(
            fmt::format("Data already exists for Season Name \"{}\". Choose another name, or confirm that all its "
                        "data will be lost.",
                        request.seasonName));
    if (request.retro && !fs::exists(paths.Data08() / kRetroWorkbook))
        throw UserError(
            fmt::format("Retro Splits need the workbook {} in the folder {}. Put it there, or import without them.",
                        kRetroWorkbook, paths.Data08().string()));
}

ImportSettings SettingsOf(const ImportRequest& request, const std::vector<LahmanTeam>& list,
                          std::vector<std::string>& notes) {
    ImportSettings settings;
    settings.seasonName = request.seasonName;
    settings.teams = ChooseTeams(list, request.teams);
    settings.minIPOuts = request.minIPOuts;
    settings.minAB = request.minAB;
    settings.setTeamColors = request.colors;
    settings.yearInName = request.includeYear;
    settings.freeAgents = request.freeAgents;
    notes = MakeCodesUnique(settings.teams);
    if (const auto fault = CheckSelection(settings.teams)) throw UserError(fault->message);
    return settings;
}

// The year most teams are of, the earliest of several.
int MainYear(const std::vector<LahmanTeam>& teams) {
    std::map<int, int> counts;
    for (const LahmanTeam& team : teams) ++counts[team.yearID];
    return std::max_element(counts.begin(), counts.end(),
                            [](const auto& a, const auto& b) { return a.second < b.second; })
        ->first;
}

std::array<std::optional<std::int32_t>, 3> ErasOf(const ImportRequest& request, const std::vector<LahmanTeam>& teams,
                                                  Database& common) {
    std::array<std::optional<std::int32_t>, 3> eras;
    const std::size_t leagues = LeagueCount(teams, request.align);
    if (!request.eras.empty() && request.eras.size() != leagues)
        throw UserError(
            fmt::format("The season has {} leagues, but {} year effects were chosen.", leagues, request.eras.size()));
    for (const std::int32_t era : request.eras)
        if (common.OpenRecordset("KorvYears", "EraID = ?", {std::int64_t{era}}).EndOfFile())
            throw UserError(fmt::format("There is no year effect with the number {}.", era));
    const std::vector<std::string> names = LeaguesOf(teams);
    const int year = MainYear(teams);
    for (std::size_t i = 0; i < leagues; ++i) {
        if (!request.eras.empty())
            eras[i] = request.eras[i];
        else if (names.size() == leagues)
            eras[i] = FindEra(common, year, names[i]);
        else
            eras[i] = FindEra(common, year, "Combined");
        if (!eras[i])
            throw UserError(
                fmt::format("There is no year effect for {}. Choose the year effects to import it with.", year));
    }
    return eras;
}

FinishSettings FinishOf(const ImportRequest& request, const std::vector<LahmanTeam>& teams, Database& common) {
    FinishSettings finish;
    finish.eras = ErasOf(request, teams, common);
    finish.align = request.align;
    std::vector<LeagueBaseline> baselines;
    for (const auto& era : finish.eras) {
        LeagueBaseline baseline;
        if (era && LoadEraBaseline(common, *era, 0, baseline)) baselines.push_back(baseline);
    }
    finish.PAFactor = request.PAFactor ? *request.PAFactor : MeanPAFactor(baselines);
    finish.PitcherOutFactor = request.PitcherOutFactor;
    finish.LHBAdjust = request.splits.LHBAdjust;
    finish.RHBAdjust = request.splits.RHBAdjust;
    finish.randomNoSplit = request.splits.RandomNoSplit;
    finish.retro = request.retro;
    finish.assignImages = request.assignImages;
    finish.genComputerMgr = static_cast<bool>(request.generateManagers);
    finish.lineups = finish.genComputerMgr ? request.lineups : LineupChoice{false, false, false, false};
    return finish;
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

std::optional<std::int32_t> FindEra(Database& common, int year, const std::string& shortName) {
    for (const std::string& name : {shortName, std::string("Combined")}) {
        Recordset era = common.OpenRecordset("KorvYears", "yearID = ? AND EraName = ? COLLATE NOCASE",
                                             {std::int64_t{year}, fmt::format("{} {}", year, name)});
        if (!era.EndOfFile()) return static_cast<std::int32_t>(era.GetInt("EraID"));
    }
    return std::nullopt;
}

void FinishSeason(Database& season, Database& common, const DataPaths& paths, const ImportSettings& settings,
                  const FinishSettings& finish, std::uint64_t seed, const ManagerGenerator& generateManagers,
                  Progress* progress) {
    if (const auto fault = CheckFinish(finish, LeagueCount(settings.teams, finish.align)))
        throw UserError(fault->message);
    Transaction transaction(season);
    Random random(seed);
    ReportProgress(progress, "Building League Data ... Please Wait", 0, 0);
    WriteAlignment(season, AlignTeams(settings.teams, finish.align, settings.seasonName, finish.eras));
    if (finish.genLRSplits) {
        const auto retro = finish.retro ? RetroSheetOf(paths, settings) : nullptr;
        GenerateSplits(season, {*finish.LHBAdjust, *finish.RHBAdjust, finish.randomNoSplit}, retro.get(), random,
                       progress);
    }
    const GeneratorScope scope{{}, {*finish.PAFactor, *finish.PitcherOutFactor}};
    if (finish.genRatings) GeneratePlayerRatings(season, common, scope, progress);
    if (finish.genBatterPitcherCells) {
        GenerateBatterCells(season, common, scope, random, progress);
        GeneratePitcherCells(season, common, scope, random, progress);
        if (finish.assignImages) AssignPlayerImages(season, paths);
    }
    if (finish.genComputerMgr && generateManagers) generateManagers(season, finish.lineups, progress);
    transaction.Commit();
}

ImportResult ImportSeason(const ImportRequest& request, const DataPaths& paths, Database& common, Progress* progress) {
    CheckRequest(request, paths);
    LahmanSource source(request.source, request.helper);
    ImportResult result;
    std::vector<std::string> notes;
    const ImportSettings settings = SettingsOf(request, ListTeams(source.ReadTeams(progress)), notes);
    const FinishSettings finish = FinishOf(request, settings.teams, common);
    if (const auto fault = CheckFinish(finish, LeagueCount(settings.teams, finish.align)))
        throw UserError(fault->message);
    YearSet years;
    for (const LahmanTeam& team : settings.teams) years.insert(team.yearID);
    const LahmanTables tables = source.ReadYears(years, progress);

    const TempFolder work(paths.Data08(), "Import");
    const fs::path file = CopyTemplate(paths, work.Path());
    Database season(file);
    result.counts = FillSeason(season, settings, tables, ReadHomeParks(common, AssetsPath() / "seeds/TeamParks.csv"),
                               paths, progress);
    result.counts.notes.insert(result.counts.notes.begin(), notes.begin(), notes.end());
    FinishSeason(season, common, paths, settings, finish, request.seed, request.generateManagers, progress);
    season.Close();
    result.LeagueID = MoveIntoPlace(file, settings.seasonName, paths, common);
    return result;
}

}  // namespace tarvane
