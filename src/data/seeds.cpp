#include "data/seeds.h"

#include <fmt/core.h>

#include <algorithm>
#include <functional>

#include "base/csv.h"
#include "base/file.h"
#include "base/text.h"
#include "data/schema.h"

namespace tarvane {

namespace fs = std::filesystem;

namespace {

Value SeedValue(std::string_view cell) {
    if (EqualsIgnoreCase(cell, "True")) return std::int64_t{-1};
    if (EqualsIgnoreCase(cell, "False")) return std::int64_t{0};
    return std::string(cell);
}

void SetSeedCell(Recordset& rows, const CsvReader& reader, const std::string& column, std::string_view cell) {
    try {
        rows.Set(column, SeedValue(cell));
    } catch (const DatabaseError& error) {
        reader.Fail(fmt::format("column {}: {}", column, error.what()));
    }
}

std::vector<std::string> SeedColumns(CsvReader& reader, Database& database, std::string_view table) {
    std::vector<std::string_view> cells;
    if (!reader.Next(cells))
        throw UserError(fmt::format("{} is empty: it has no line of column names.", reader.Name()));
    const std::vector<std::string> known = database.ColumnNames(table);
    std::vector<std::string> columns;
    for (const std::string_view cell : cells) {
        const auto same = [cell](const std::string& name) { return EqualsIgnoreCase(name, Trim(cell)); };
        if (std::none_of(known.begin(), known.end(), same))
            reader.Fail(fmt::format("the table {} has no column \"{}\".", table, cell));
        if (std::any_of(columns.begin(), columns.end(), same))
            reader.Fail(fmt::format("the column \"{}\" stands twice in the heading.", cell));
        columns.emplace_back(Trim(cell));
    }
    return columns;
}

// Makes a file by way of a temporary one, so that a failure leaves nothing.
void MakeDatabase(const fs::path& file, const std::function<void(Database&)>& fill) {
    if (fs::exists(file)) return;
    fs::path temporary = file;
    temporary += ".part";
    for (const char* side : {"", "-wal", "-shm"}) fs::remove(temporary.string() + side);
    try {
        Database database(temporary, Database::Mode::Create);
        fill(database);
        database.Close();
        fs::rename(temporary, file);
    } catch (...) {
        std::error_code ignored;
        fs::remove(temporary, ignored);
        throw;
    }
}

void FillFromSeeds(Database& database, TableHome home, const fs::path& seeds) {
    Transaction transaction(database);
    CreateTables(database, home);
    for (const TableDef& table : AllTables()) {
        const fs::path file = seeds / (table.name + ".csv");
        if (table.home == home && !table.onDemand && fs::exists(file)) LoadSeed(database, table.name, file);
    }
    transaction.Commit();
}

// The program can't do without these.
void RequireRows(Database& database, std::initializer_list<const char*> tables, const fs::path& seeds) {
    for (const char* table : tables)
        if (database.OpenRecordset(table).RecordCount() == 0)
            throw UserError(fmt::format("{} is missing or holds no rows. Install the program again.",
                                        (seeds / table).string() + ".csv"));
}

}  // namespace

void LoadSeed(Database& database, std::string_view table, const fs::path& file) {
    const std::string text = ReadFile(file);
    CsvReader reader(text, file.string(), {.hashComments = true});
    const std::vector<std::string> columns = SeedColumns(reader, database, table);
    Transaction transaction(database);
    Recordset rows = database.OpenRecordset(table, "0");
    for (std::vector<std::string_view> cells; reader.Next(cells);) {
        if (cells.size() != columns.size())
            reader.Fail(fmt::format("{} fields where the heading has {}.", cells.size(), columns.size()));
        rows.AddNew();
        for (std::size_t i = 0; i < cells.size(); ++i)
            if (!cells[i].empty()) SetSeedCell(rows, reader, columns[i], cells[i]);
        try {
            rows.Update();
        } catch (const DatabaseError& error) {
            reader.Fail(error.what());
        }
    }
    transaction.Commit();
}

void MakeDataFiles(const DataPaths& paths, const fs::path& seeds) {
    try {
        MakeDatabase(paths.CommonFile(), [&](Database& database) {
            FillFromSeeds(database, TableHome::Common, seeds);
            RequireRows(database, {"GameSettings", "ScreenSettings", "KorvYears", "KorvMgrDecChart"}, seeds);
        });
        MakeDatabase(paths.BaseFile(), [&](Database& database) {
            FillFromSeeds(database, TableHome::Season, seeds);
            RequireRows(database, {"LeagueRules", "PitcherRestSettings"}, seeds);
        });
        if (!fs::exists(paths.DefensiveErasFile()))
            WriteFile(paths.DefensiveErasFile(), ReadFile(seeds / "DefensiveEras.txt"));
    } catch (const fs::filesystem_error& error) {
        throw UserError(fmt::format("The data folder can't be filled: {}", error.what()));
    }
}

void EnsureDefensiveEras(Database& common, const fs::path& text) {
    if (common.HasTable("DefensiveEras")) return;
    const TableDef& def = *FindTableDef("DefensiveEras");
    const std::string content = ReadFile(text);
    CsvReader reader(content, text.string());
    Transaction transaction(common);
    CreateTable(common, def);
    Recordset rows = common.OpenRecordset("DefensiveEras");
    for (std::vector<std::string_view> cells; reader.Next(cells);) {
        if (cells.size() != def.columns.size())
            reader.Fail(fmt::format("{} fields in place of {}.", cells.size(), def.columns.size()));
        rows.AddNew();
        for (std::size_t i = 0; i < cells.size(); ++i)
            SetSeedCell(rows, reader, def.columns[i].name, cells[i].empty() ? " " : cells[i]);
        rows.Update();
    }
    transaction.Commit();
}

}  // namespace tarvane
