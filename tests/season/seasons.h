#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "base/tempfolder.h"
#include "core/paths.h"
#include "data/seeds.h"
#include "import/importseason.h"
#include "season/managerlists.h"

namespace tarvane::testing {

namespace fs = std::filesystem;

// A data folder with one season, made by the program's own road: import of CSV files, then the computer managers by
// actual use. Gone with the object.
class PlayableSeason {
  public:
    PlayableSeason(const fs::path& csv, int year) {
        const DataPaths paths{folder_ / "data"};
        fs::create_directories(paths.Data08());
        MakeDataFiles(paths, AssetsPath() / "seeds");
        common = std::make_unique<Database>(paths.CommonFile());
        ImportRequest request;
        request.seasonName = "Test";
        request.source = csv;
        request.teams = {{year, ""}};
        request.lineups.basedOnUsage = true;
        request.generateManagers = GenerateImportedManagers;
        ImportSeason(request, paths, *common);
        season = std::make_unique<Database>(paths.SeasonFile("Test"));
    }
    PlayableSeason(const PlayableSeason&) = delete;
    PlayableSeason& operator=(const PlayableSeason&) = delete;
    ~PlayableSeason() {
        season.reset();
        common.reset();
    }

    std::unique_ptr<Database> common, season;

  private:
    TempFolder folder_;
};

}  // namespace tarvane::testing
