#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "import/xlsreader.h"
#include "ratings/splits.h"

namespace tarvane {

// Name of the workbook of real splits in the folder of the databases.
inline constexpr const char* kRetroWorkbook = "Retrosheet_Splits_1961-1977.xls";

// The real splits of one season out of the workbook: a sheet a season, a row a player with his name in column B and his
// club's code in column 8.
class RetroSheet : public RetroSplitLookup {
  public:
    explicit RetroSheet(XlsSheet sheet);

    // The first row with this name whose club holds this code; nothing if there is none.
    std::optional<RetroLine> Find(std::string_view playerName, std::string_view teamID) override;

  private:
    XlsSheet sheet_;
    std::unordered_map<std::string, std::vector<int>> rowsByName_;  // looked up only; rows in order
};

// The sheet of this season, or nothing if the workbook has none. Throws UserError on a missing or damaged workbook.
std::unique_ptr<RetroSheet> ReadRetroSplits(const std::filesystem::path& workbook, std::string_view season);

}  // namespace tarvane
