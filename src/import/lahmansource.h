#pragma once

#include <filesystem>
#include <memory>

#include "import/lahmanrows.h"
#include "import/mdbreader.h"
#include "import/rawtables.h"

namespace tarvane {

// The first season that can be imported.
inline constexpr int kFirstYear = 1901;

// A statistics database of real seasons: the folder of its CSV edition (of any year: the people stand in People.csv or
// Master.csv, the outfield split may be missing) or an Access file. The same season is the same rows from either.
class LahmanSource {
  public:
    // path: a folder, a CSV file in it, or an Access file. Throws UserError if it is none of these.
    explicit LahmanSource(const std::filesystem::path& path, const MdbHelper& helper = {});

    // The clubs of all years from kFirstYear on, by year, league and code. Throws UserError on a damaged source.
    std::vector<TeamLine> ReadTeams(Progress* progress = nullptr);

    // All other tables, of these years alone. Throws UserError on a damaged source.
    LahmanTables ReadYears(const YearSet& years, Progress* progress = nullptr);

  private:
    std::unique_ptr<RawTables> tables_;
};

}  // namespace tarvane
