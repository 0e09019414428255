#pragma once

#include <filesystem>

#include "import/rawtables.h"

namespace tarvane {

// A folder of CSV files, one a table, named as the table with ".csv" in any letter case, each with a line of column
// names. Any order of columns and any further columns will do.
class CsvTables : public RawTables {
  public:
    explicit CsvTables(std::filesystem::path folder) : folder_(std::move(folder)) {}

    void Read(const std::vector<TableRequest>& requests, const YearSet& years, const Sink& sink,
              Progress* progress) override;

    // The file of a table, or an empty path.
    std::filesystem::path FindFile(const TableRequest& request) const;

  private:
    std::filesystem::path folder_;
};

}  // namespace tarvane
