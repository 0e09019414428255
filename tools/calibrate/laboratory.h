#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "accuracy/counts.h"
#include "core/database.h"
#include "core/paths.h"
#include "facttable.h"
#include "import/teamlist.h"

namespace tarvane::calibrate {

// A data folder of its own in which seasons are made from a Lahman folder, as a user makes them, and replayed.
class Laboratory {
  public:
    // folder is emptied first. seeds is where the seed tables lie.
    Laboratory(const std::filesystem::path& folder, const std::filesystem::path& seeds,
               const std::filesystem::path& source);

    // Era rows for all seasons made from now on.
    void SetEra(std::int32_t eraID, const ChangedRow& row);

    // Makes the season of a year, or of clubs of several years, anew. Leagues() are then its leagues.
    void MakeSeason(int year);
    void MakeSeason(const std::vector<TeamChoice>& teams);
    const std::vector<std::string>& Leagues() const { return leagues_; }

    // Of the league's pitchers, by the batters they really faced; nothing is to be laid on the cells where it is 0.
    Openness OpennessOf(const std::string& league);
    Counts Real(const std::string& league);
    // The whole season so many times, by computer managers and the rules it was made with, seeds 1 and up. What all
    // replays add up to, by league.
    std::map<std::string, Counts> Replay(int replays, int workers);

    Database& Common() { return *common_; }

  private:
    DataPaths paths_;
    std::filesystem::path source_;
    std::unique_ptr<Database> common_, season_;
    std::vector<std::string> leagues_;
};

}  // namespace tarvane::calibrate
