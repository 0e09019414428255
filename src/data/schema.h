#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/columntype.h"
#include "core/database.h"

namespace tarvane {

// What every table looks like: the one list from which tables are created, brought up to date, filled from seeds and
// checked. A file tells its age by a table's count of columns, so the counts here are part of the format; columns named
// Spare<n> hold nothing and are there to keep them.

enum class TableHome { Common, Season };

// How a table of an earlier version is recognised.
enum class UpgradeRule {
    None,     // the table never changed
    Exactly,  // only the counts at which columns came are touched
    AtMost,   // any count up to the one at which a column came
};

// Who brings a column: the opening of the file, or the set-up of a tournament.
enum class UpgradeStage { Open, Tourney };

struct ColumnDef {
    std::string name;
    ColumnType type;
    Value defaultValue;  // Null: none
    int missingAt = 0;   // the greatest count of columns of a table that lacks it; 0: there from the start
    UpgradeStage stage = UpgradeStage::Open;
};

struct TableDef {
    std::string name;
    TableHome home = TableHome::Season;
    std::vector<ColumnDef> columns;
    std::vector<std::string> indexes;  // each a list of columns
    UpgradeRule upgrade = UpgradeRule::None;
    bool onDemand = false;  // not in a new file: whoever needs it first makes it
};

const std::vector<TableDef>& AllTables();
// Null if there is no such table. The name's case doesn't matter.
const TableDef* FindTableDef(std::string_view name);

// Creates the table with its indexes; throws DatabaseError if it is there already.
void CreateTable(Database& database, const TableDef& table);
// All tables of a new file.
void CreateTables(Database& database, TableHome home);

// The columns that a table lacks, by its present count of columns and the table's rule, in the order of the list.
std::vector<const ColumnDef*> MissingColumns(Database& database, const TableDef& table, UpgradeStage stage);
// Appends a column; rows that are there read Null in it, False if it is a boolean.
void AppendColumn(Database& database, const TableDef& table, const ColumnDef& column);
// Appends all that MissingColumns names; gives what was appended.
std::vector<const ColumnDef*> UpgradeTable(Database& database, std::string_view table,
                                           UpgradeStage stage = UpgradeStage::Open);

}  // namespace tarvane
