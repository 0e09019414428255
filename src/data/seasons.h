#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/database.h"
#include "core/errorlog.h"
#include "core/messages.h"
#include "core/paths.h"
#include "records/rules.h"

namespace tarvane {

// A row of the catalogue.
struct SeasonEntry {
    std::int64_t LeagueID = 0;
    std::string LeagueName;
    bool Active = false;
};

// Throws UserError unless the text can name a season: it becomes a folder and a file, and holds no '.
void CheckSeasonName(std::string_view name);

// Makes the file of a new season from the template, with its folder. An earlier file of that season is replaced if
// overwrite is set. Throws UserError; nothing half-made is left.
void CreateSeasonFile(const DataPaths& paths, const std::string& name, bool overwrite = false);

// The row of a season, made if there is none, with all its marks off. Gives its LeagueID.
std::int64_t AddSeasonEntry(Database& common, const std::string& name);

// In the order of LeagueName.
std::vector<SeasonEntry> ListSeasons(Database& common);

// The list of seasons and the one season that is open.
class SeasonCatalogue {
  public:
    SeasonCatalogue(DataPaths paths, Database& common, MessageSink& messages, ErrorLog& log);

    // Opens the season that the catalogue calls active, brings its tables up to date and reads its rules; called after
    // everything that may have changed the active season or closed its file. A file that is missing or can't be opened
    // loses its mark and the user is told; any other failure is logged and sets the error flag.
    void CheckActiveSeason();

    // Makes another season the active one. A season whose file is missing is refused with a warning and nothing
    // changes.
    bool SetActiveSeason(std::int64_t leagueID);

    // Closes the season's file, so that it can be copied or replaced; CheckActiveSeason opens it again.
    void CloseSeason();

    bool SeasonOpen() const { return season_ != nullptr; }
    // The open season; throws UserError if there is none.
    Database& Season();
    const std::string& ActiveSeason() const { return activeSeason_; }  // empty: none
    bool HasBaseballReference() const { return hasBaseballReference_; }
    const LeagueRules& Rules() const { return rules_; }
    LeagueRules& Rules() { return rules_; }
    const std::filesystem::path& SeasonPath() const { return seasonPath_; }
    const std::filesystem::path& SeasonTempPath() const { return seasonTempPath_; }
    const DataPaths& Paths() const { return paths_; }

  private:
    void CheckActive();
    void DropActive(Recordset& row, const std::string& warning);
    void PrepareSeason();

    DataPaths paths_;
    Database& common_;
    MessageSink& messages_;
    ErrorLog& log_;
    std::unique_ptr<Database> season_;
    std::string activeSeason_;
    std::filesystem::path seasonPath_, seasonTempPath_;
    bool hasBaseballReference_ = false;
    LeagueRules rules_;
};

}  // namespace tarvane
