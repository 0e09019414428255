#include "import/importseason.h"

#include <fmt/core.h>


#include "base/error.h"
#include "core/paths.h"
#include "data/parks.h"
#include "data/seasons.h"
#include "import/retrosplits.h"
#include "ratings/generators.h"

namespace tarvane {

namespace fs = std::filesystem;

namespace {

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

std::array<std::optional<std::int32_t>, 3> ErasOf(const ImportRequest& request, const std::vector<LahmanTeam>& teams,
                                                  Database& common) {
    const std::size_t leagues = LeagueCount(teams, request.align);
    if (!request.eras.empty() && request.eras.size() != leagues)
        throw UserError(
            fmt::format("The season has {} leagues, but {} year effects were chosen.", leagues, request.eras.size()));
    for (const std::int32_t era : request.eras)
        if (common.OpenRecordset("KorvYears", "EraID = ?", {std::int64_t{era}}).EndOfFile())
            throw UserError(fmt::format("There is no year effect with the number {}.", era));
    std::array<std::optional<std::int32_t>, 3> eras;
    const auto proposed = ProposedEras(common, teams, request.align);
    for (std::size_t i = 0; i < leagues; ++i) {
        eras.at(i) = request.eras.empty() ? proposed[i] : request.eras[i];
        if (!eras.at(i))
            throw UserError(fmt::format("There is no year effect for {}. Choose the year effects to import it with.",
                                        MainYear(teams)));
    }
    return eras;
}

FinishSettings FinishOf(const ImportRequest& request, const std::vector<LahmanTeam>& teams, Database& common) {
    FinishSettings finish;
    finish.eras = ErasOf(request, teams, common);
    finish.align = request.align;
    std::vector<std::int32_t> eras;
    for (const auto& era : finish.eras)
        if (era) eras.push_back(*era);
    finish.PAFactor = request.PAFactor ? *request.PAFactor : DefaultPAFactor(common, eras);
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

}  // namespace

std::optional<std::int32_t> FindEra(Database& common, int year, const std::string& shortName) {
    for (const std::string& name : {shortName, std::string("Combined")}) {
        Recordset era = common.OpenRecordset("KorvYears", "yearID = ? AND EraName = ? COLLATE NOCASE",
                                             {std::int64_t{year}, fmt::format("{} {}", year, name)});
        if (!era.EndOfFile()) return static_cast<std::int32_t>(era.GetInt("EraID"));
    }
    return std::nullopt;
}

std::vector<std::optional<std::int32_t>> ProposedEras(Database& common, const std::vector<LahmanTeam>& teams,
                                                      bool align) {
    std::vector<std::optional<std::int32_t>> eras;
    const std::vector<std::string> names = LeaguesOf(teams);
    const std::size_t leagues = LeagueCount(teams, align);
    for (std::size_t i = 0; i < leagues; ++i)
        eras.push_back(FindEra(common, MainYear(teams), names.size() == leagues ? names[i] : "Combined"));
    return eras;
}

double DefaultPAFactor(Database& common, const std::vector<std::int32_t>& eras) {
    std::vector<LeagueBaseline> baselines;
    for (const std::int32_t era : eras) {
        LeagueBaseline baseline;
        if (LoadEraBaseline(common, era, 0, baseline)) baselines.push_back(baseline);
    }
    return MeanPAFactor(baselines);
}

ImportResult ImportSeason(const ImportRequest& request, const DataPaths& paths, Database& common, Progress* progress) {
    CheckRequest(request, paths);
    SeasonImport import(request.source, request.helper, paths, common);
    ImportResult result;
    std::vector<std::string> notes;
    const ImportSettings settings = SettingsOf(request, import.ReadTeams(progress), notes);
    const FinishSettings finish = FinishOf(request, settings.teams, common);
    if (const auto fault = CheckFinish(finish, LeagueCount(settings.teams, finish.align)))
        throw UserError(fault->message);
    result.counts = import.Fill(settings, progress);
    result.counts.notes.insert(result.counts.notes.begin(), notes.begin(), notes.end());
    result.LeagueID = import.Finish(finish, request.seed, request.generateManagers, progress);
    return result;
}

}  // namespace tarvane
