#pragma once

#include <functional>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/progress.h"

namespace tarvane {

// What is wanted of one table of a statistics database.
struct TableRequest {
    std::vector<std::string> names;    // by which the table may be known; the first is the one told to the user
    std::vector<std::string> columns;  // all of them must be there
    int yearColumn = -1;               // which column holds the year to filter by; -1: all rows
    bool optional = false;             // a source without the table gives no rows
};

// One row of a table: the cells of the wanted columns in the order of the request, good until the sink returns.
struct RawRow {
    std::string_view source;  // "Batting.csv", "lahman2024.mdb, table Batting"
    std::string_view unit;    // "line" or "row": what number counts
    long number = 0;
    std::span<const std::string_view> cells;
};

// The years wanted; empty means all.
using YearSet = std::set<int>;

// True if the row's year is wanted, or isn't a number: then the decoder tells the user where.
bool YearWanted(const YearSet& years, std::string_view text);

// A source of tables that doesn't know what is in them. Two ways to keep the same tables: a folder of CSV files and an
// Access file.
class RawTables {
  public:
    using Sink = std::function<void(std::size_t table, const RawRow& row)>;

    virtual ~RawTables() = default;

    // Gives the rows of each request in turn to the sink, in the source's order. Throws UserError for a missing table
    // or column and for a damaged source, Cancelled if progress says so (its total is 0: nobody knows it beforehand).
    virtual void Read(const std::vector<TableRequest>& requests, const YearSet& years, const Sink& sink,
                      Progress* progress) = 0;
};

// Reads the cells of a row as what they should be; throws UserError with source, line, column and cell if one is not.
class RowCells {
  public:
    RowCells(const TableRequest& request, const RawRow& row) : request_(request), row_(row) {}

    std::string Text(std::size_t column) const;                // UTF-8, blanks at the ends cut
    std::string Key(std::size_t column) const;                 // a text that may not be empty
    int Whole(std::size_t column, int least, int most) const;  // may not be empty
    std::optional<int> Count(std::size_t column) const;        // 0 to 32767; empty or "NA": not recorded
    std::optional<double> Number(std::size_t column) const;    // not negative; empty, "NA" or "inf": not recorded

  private:
    [[noreturn]] void Fail(std::size_t column, std::string_view what) const;

    const TableRequest& request_;
    const RawRow& row_;
};

// A text that is UTF-8, as it is; else read as Latin-1, in which older editions were written.
std::string ToUtf8(std::string_view text);

}  // namespace tarvane
