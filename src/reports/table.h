#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/database.h"

namespace tarvane {

// A report without its looks: screens fill grids from it, the command line prints it.

enum class CellFormat {
    Text,     // left; all others stand right
    Record,   // a text that stands right: "40-37", "W3"
    Whole,    // 12
    Rate,     // .275, 1.000: three places, no 0 in front
    Fixed1,   // 87.4
    Fixed2,   // 3.25
    Fixed3,   // 0.873
    Fixed4,   // 0.0231
    Percent,  // the cell is a share off: 0.013 is +1.3 %
    Halves,   // 2, 1.5
    Innings,  // the cell is outs: 646 is 215.1
};

struct ReportColumn {
    std::string title;  // the head of the column; may be empty
    std::string key;    // its name in CSV and JSON; of outs it says so
    CellFormat format = CellFormat::Text;
};

struct ReportTable {
    std::string title;
    std::vector<ReportColumn> columns;
    std::vector<std::vector<Value>> rows;  // a Null cell is shown empty
};

// The cell as people read it. Halves are rounded up: .0625 is .063.
std::string FieldText(const Value& cell, CellFormat format);

enum class ReportForm { Text, Csv, Json };

// Text: each table under its title, columns aligned, a blank line after it; abreast says how many tables stand side by
// side. CSV: one head for tables of the same columns, and with more than one table a first column "Table"; numbers are
// whole. JSON: a list of {"title", "rows": [{key: value}]}; Null is null.
std::string RenderTables(const std::vector<ReportTable>& tables, ReportForm form, std::size_t abreast = 1);

}  // namespace tarvane
