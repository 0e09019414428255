#include "data/schema.h"

#include <fmt/core.h>

#include <algorithm>
#include <map>
#include <set>

#include "base/text.h"
#include "data/columnlist.h"

namespace tarvane {

namespace {

std::string QuotedName(std::string_view name) {
    return fmt::format("\"{}\"", name);
}

std::string DefaultClause(const Value& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) return fmt::format(" DEFAULT {}", *whole);
    if (const auto* number = std::get_if<double>(&value)) return fmt::format(" DEFAULT {}", FormatDouble(*number));
    if (const auto* text = std::get_if<std::string>(&value)) return fmt::format(" DEFAULT '{}'", *text);
    return {};
}

std::vector<TableDef> MakeTables() {
    std::vector<TableDef> tables;
    AddCommonTables(tables);
    AddSettingsTables(tables);
    AddTeamTables(tables);
    AddScheduleTables(tables);
    AddPlayerTables(tables);
    AddLahmanTables(tables);
    return tables;
}

}  // namespace

const std::vector<TableDef>& AllTables() {
    static const std::vector<TableDef> tables = MakeTables();
    return tables;
}

const TableDef* FindTableDef(std::string_view name) {
    for (const TableDef& table : AllTables())
        if (EqualsIgnoreCase(table.name, name)) return &table;
    return nullptr;
}

void CreateTable(Database& database, const TableDef& table) {
    std::string columns;
    for (const ColumnDef& column : table.columns) {
        if (!columns.empty()) columns += ", ";
        columns += QuotedName(column.name) + ' ' + DeclareColumnType(column.type) + DefaultClause(column.defaultValue);
    }
    Transaction transaction(database);
    database.Execute(fmt::format("CREATE TABLE {} ({})", QuotedName(table.name), columns));
    int number = 0;
    for (const std::string& index : table.indexes)
        database.Execute(
            fmt::format("CREATE INDEX \"{}_{}\" ON {} ({})", table.name, ++number, QuotedName(table.name), index));
    transaction.Commit();
}

void CreateTables(Database& database, TableHome home) {
    Transaction transaction(database);
    for (const TableDef& table : AllTables())
        if (table.home == home && !table.onDemand) CreateTable(database, table);
    transaction.Commit();
}

std::vector<const ColumnDef*> MissingColumns(Database& database, const TableDef& table, UpgradeStage stage) {
    std::vector<const ColumnDef*> missing;
    const int count = database.FieldCount(table.name);
    if (count == 0 || table.upgrade == UpgradeRule::None) return missing;
    const auto came = [stage](const ColumnDef& column) { return column.missingAt > 0 && column.stage == stage; };
    const bool known = std::any_of(table.columns.begin(), table.columns.end(),
                                   [&](const ColumnDef& column) { return came(column) && column.missingAt == count; });
    if (table.upgrade == UpgradeRule::Exactly && !known) return missing;
    const std::vector<std::string> names = database.ColumnNames(table.name);
    const std::set<std::string, LessIgnoreCase> present(names.begin(), names.end());
    for (const ColumnDef& column : table.columns)
        if (came(column) && column.missingAt >= count && present.count(column.name) == 0) missing.push_back(&column);
    // A table that lacks less comes first: columns are appended in the order in which the versions brought them.
    std::stable_sort(missing.begin(), missing.end(),
                     [](const ColumnDef* a, const ColumnDef* b) { return a->missingAt < b->missingAt; });
    return missing;
}

void AppendColumn(Database& database, const TableDef& table, const ColumnDef& column) {
    const bool boolean = column.type.kind == ColumnKind::Boolean;
    database.Execute(fmt::format("ALTER TABLE {} ADD COLUMN {} {}{}", QuotedName(table.name), QuotedName(column.name),
                                 DeclareColumnType(column.type), boolean ? " DEFAULT 0" : ""));
}

std::vector<const ColumnDef*> UpgradeTable(Database& database, std::string_view table, UpgradeStage stage) {
    const TableDef* def = FindTableDef(table);
    if (def == nullptr) return {};
    const std::vector<const ColumnDef*> missing = MissingColumns(database, *def, stage);
    if (missing.empty()) return missing;
    Transaction transaction(database);
    for (const ColumnDef* column : missing) AppendColumn(database, *def, *column);
    transaction.Commit();
    return missing;
}

}  // namespace tarvane
