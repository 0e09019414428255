#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "chartlayout.h"
#include "core/database.h"

namespace tarvane::calibrate {

// Columns of one row with the values that take the place of the facts.
using ChangedRow = std::map<std::string, Value>;

// A table of facts as tools/make-eras writes it: comment lines, column names, rows with a number in the first column.
struct FactTable {
    std::string comments;
    std::vector<std::string> columns;
    std::map<std::int32_t, std::map<std::string, std::string>> rows;

    explicit FactTable(const std::filesystem::path& file);
    double Number(std::int32_t row, const std::string& column) const;
};

// The thirty cells of a chart as columns of a row.
void AddChart(const ChartCells& chart, ChangedRow& row);

// The facts with the columns of a chart added and each row changed, as a seed table; note is a further comment line. The
// map holds a row for each of the facts.
void WriteSeedTable(const std::filesystem::path& file, const FactTable& facts, const std::string& note,
                    const std::map<std::int32_t, ChangedRow>& changed);

// The whole file; UserError if it can't be read.
std::string ReadWhole(const std::filesystem::path& file);

}  // namespace tarvane::calibrate
