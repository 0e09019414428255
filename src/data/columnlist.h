#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/schema.h"

namespace tarvane {

// Builds the columns of a table; names stand in one text, separated by blanks.
class ColumnList {
  public:
    ColumnList& Counter(std::string_view names) { return Add(names, {ColumnKind::Counter}, {}); }
    ColumnList& Boolean(std::string_view names) { return Add(names, {ColumnKind::Boolean}, std::int64_t{0}); }
    ColumnList& Byte(std::string_view names) { return Add(names, {ColumnKind::Byte}, std::int64_t{0}); }
    ColumnList& Integer(std::string_view names) { return Add(names, {ColumnKind::Integer}, std::int64_t{0}); }
    ColumnList& Long(std::string_view names) { return Add(names, {ColumnKind::Long}, std::int64_t{0}); }
    ColumnList& Double(std::string_view names) { return Add(names, {ColumnKind::Double}, 0.0); }
    ColumnList& Text(int size, std::string_view names) { return Add(names, {ColumnKind::Text, size}, {}); }
    ColumnList& Date(std::string_view names) { return Add(names, {ColumnKind::Date}, {}); }
    // Texts that hold a blank while there is nothing to say.
    ColumnList& BlankText(int size, std::string_view names) {
        return Add(names, {ColumnKind::Text, size}, std::string(" "));
    }
    // Columns without a default, where Null tells "not recorded".
    ColumnList& Nullable(ColumnKind kind, std::string_view names) { return Add(names, {kind}, {}); }
    // The thirty cells <prefix>10 to <prefix>39, then their thirty colours.
    ColumnList& Cells(std::string_view prefix);
    // <prefix><name> for each name.
    ColumnList& Integers(std::string_view prefix, std::string_view names);
    ColumnList& Doubles(std::string_view prefix, std::string_view names);
    // Spare1 to Spare<count>.
    ColumnList& Spares(int count);
    ColumnList& Append(const ColumnList& other);
    // The columns named, which must be in the list, were missing in tables of up to count columns.
    ColumnList& MissingAt(int count, std::string_view names, UpgradeStage stage = UpgradeStage::Open);

    std::vector<ColumnDef> columns;

  private:
    ColumnList& Add(std::string_view names, ColumnType type, const Value& defaultValue);
};

// Splits at blanks.
std::vector<std::string> Words(std::string_view text);

// The parts of AllTables.
void AddPlayerTables(std::vector<TableDef>& tables);
void AddTeamTables(std::vector<TableDef>& tables);
void AddScheduleTables(std::vector<TableDef>& tables);
void AddSettingsTables(std::vector<TableDef>& tables);
void AddCommonTables(std::vector<TableDef>& tables);
void AddLahmanTables(std::vector<TableDef>& tables);

}  // namespace tarvane
