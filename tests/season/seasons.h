#pragma once

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

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
        std::string name = (fs::temp_directory_path() / "tarvane-season-XXXXXX").string();
        folder_ = mkdtemp(name.data());
        const DataPaths paths{folder_ / "data"};
        fs::create_directories(paths.Data08());
        MakeDataFiles(paths, AssetsPath() / "seeds");
        common = std::make_unique<Database>(paths.CommonFile());
        ImportRequest request;
        request.seasonName = "Test";
        request.source = csv;
        request.teams = {{year, ""}};
        request.generateManagers = [](Database& made, const LineupChoice&, Progress* progress) {
            GenerateOptions options;
            options.basedOnUsage = true;
            GenerateSeasonManagers(made, options, progress);
        };
        ImportSeason(request, paths, *common);
        season = std::make_unique<Database>(paths.SeasonFile("Test"));
    }
    PlayableSeason(const PlayableSeason&) = delete;
    PlayableSeason& operator=(const PlayableSeason&) = delete;
    ~PlayableSeason() {
        season.reset();
        common.reset();
        fs::remove_all(folder_);
    }

    std::unique_ptr<Database> common, season;

  private:
    fs::path folder_;
};

}  // namespace tarvane::testing
