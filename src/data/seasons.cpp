#include "data/seasons.h"

#include <fmt/core.h>

#include <algorithm>

#include "base/text.h"
#include "data/rules.h"
#include "data/seeds.h"
#include "data/upgrade.h"

namespace tarvane {

namespace fs = std::filesystem;

void CheckSeasonName(std::string_view name) {
    if (Trim(name).empty()) throw UserError("Please specify a Season Name");
    // ' is refused because the name is a key; the others because they don't stand in file names everywhere.
    constexpr std::string_view kRefused = "'\\/:*?\"<>|";
    const bool bad = std::any_of(name.begin(), name.end(), [kRefused](char c) {
        return kRefused.find(c) != std::string_view::npos || static_cast<unsigned char>(c) < ' ';
    });
    if (bad || Trim(name) != name || name.front() == '.' || name.back() == '.' || name.size() > 100)
        throw UserError(
            fmt::format("\"{}\" can't name a season: it becomes a file name, without any of {} and without a "
                        "blank or a point at its ends, and up to 100 letters long.",
                        name, kRefused));
}

void CreateSeasonFile(const DataPaths& paths, const std::string& name, bool overwrite) {
    CheckSeasonName(name);
    const fs::path file = paths.SeasonFile(name);
    if (!overwrite && fs::exists(file))
        throw UserError(fmt::format("There is a season \"{}\" already: {}. Choose another name.", name, file.string()));
    if (!fs::exists(paths.BaseFile()))
        throw UserError(fmt::format("The template of seasons, {}, is missing. Start the program again to make it.",
                                    paths.BaseFile().string()));
    fs::path temporary = file;
    temporary += ".part";
    std::error_code error;
    fs::create_directories(paths.GameResults(name), error);
    if (!error) fs::copy_file(paths.BaseFile(), temporary, fs::copy_options::overwrite_existing, error);
    // A side file of the season that is replaced must not be taken for one of the new season.
    std::error_code ignored;
    for (const char* side : {"-wal", "-shm"}) fs::remove(file.string() + side, ignored);
    if (!error) fs::rename(temporary, file, error);
    if (!error) return;
    fs::remove(temporary, ignored);
    throw UserError(fmt::format("Unable to build league database {} - please close open data files. ({})",
                                file.string(), error.message()));
}

std::int64_t AddSeasonEntry(Database& common, const std::string& name) {
    Transaction transaction(common);
    Recordset rs = common.OpenRecordset("SeasonsDB", "LeagueName = ?", {name});
    const bool found = !rs.EndOfFile();
    if (found) {
        rs.Edit();
    } else {
        rs.AddNew();
        rs.Set("LeagueName", name);
    }
    for (const char* mark :
         {"Active", "TourneyMode", "LRSplitsGenerated", "PlayerRatingsGenerated", "ManagersGenerated"})
        rs.SetBool(mark, false);
    rs.Update();
    const std::int64_t id = found ? rs.GetInt("LeagueID") : common.LastInsertId();
    transaction.Commit();
    return id;
}

std::vector<SeasonEntry> ListSeasons(Database& common) {
    std::vector<SeasonEntry> seasons;
    for (Recordset rs = common.OpenRecordset("SeasonsDB", {}, {}, "LeagueName COLLATE NOCASE"); !rs.EndOfFile();
         rs.MoveNext())
        seasons.push_back({rs.GetInt("LeagueID"), rs.GetText("LeagueName"), rs.GetBool("Active")});
    return seasons;
}

SeasonCatalogue::SeasonCatalogue(DataPaths paths, Database& common, MessageSink& messages, ErrorLog& log)
    : paths_(std::move(paths)), common_(common), messages_(messages), log_(log) {}

Database& SeasonCatalogue::Season() {
    if (!season_)
        throw UserError("There is no Active Season. Click on Work with Seasons, then Choose an Active Season.");
    return *season_;
}

void SeasonCatalogue::CloseSeason() {
    season_.reset();
}

void SeasonCatalogue::DropActive(Recordset& row, const std::string& warning) {
    row.Edit();
    row.SetBool("Active", false);
    row.Update();
    season_.reset();
    activeSeason_.clear();
    messages_.Warn("Tarvane Baseball", warning);
}

void SeasonCatalogue::CheckActiveSeason() {
    try {
        CheckActive();
    } catch (const std::exception& failure) {
        log_.errorFlag = true;
        log_.LogRuntimeError("Module1, CheckActiveSeason", failure);
    }
}

void SeasonCatalogue::CheckActive() {
    season_.reset();
    Recordset row = common_.OpenRecordset("SeasonsDB", "Active <> 0");
    if (row.EndOfFile()) {
        activeSeason_.clear();
        return;
    }
    const std::string name = row.GetText("LeagueName");
    const fs::path file = paths_.SeasonFile(name);
    if (!fs::exists(file)) {
        DropActive(row, "Active season database file not found. Choose another Active Season.");
        return;
    }
    seasonPath_ = file;
    seasonTempPath_ = paths_.SeasonTempFile(name);
    try {
        season_ = std::make_unique<Database>(file);
    } catch (const UserError&) {
        DropActive(row, "There was an error opening the Active Season database - please choose another Active Season.");
        return;
    }
    activeSeason_ = name;
    PrepareSeason();
}

void SeasonCatalogue::PrepareSeason() {
    hasBaseballReference_ = season_->HasTable("BaseballReferenceBatting");
    UpgradeSeasonTables(*season_);
    const int columnsBefore = UpgradeLeagueRules(*season_);
    EnsureDefensiveEras(common_, paths_.DefensiveErasFile());
    LoadLeagueRules(*season_, columnsBefore, rules_);
    // The rules tell only now that the tournament tables are in use.
    if (rules_.TourneyMode) UpgradeSeasonTables(*season_);
}

bool SeasonCatalogue::SetActiveSeason(std::int64_t leagueID) {
    Recordset chosen = common_.OpenRecordset("SeasonsDB", "LeagueID = ?", {leagueID});
    if (chosen.EndOfFile() || !fs::exists(paths_.SeasonFile(chosen.GetText("LeagueName")))) {
        messages_.Warn("Choose an Active Season", "Season database file not found. Choose another Season.");
        return false;
    }
    Transaction transaction(common_);
    for (Recordset active = common_.OpenRecordset("SeasonsDB", "Active <> 0"); !active.EndOfFile(); active.MoveNext()) {
        active.Edit();
        active.SetBool("Active", false);
        active.Update();
    }
    CloseSeason();
    chosen.Edit();
    chosen.SetBool("Active", true);
    chosen.Update();
    transaction.Commit();
    CheckActiveSeason();
    return SeasonOpen();
}

}  // namespace tarvane
