#include "season/seasonhash.h"

#include <fmt/core.h>

#include <algorithm>
#include <cstring>

namespace tarvane {

namespace {

// FNV-1a, over values with their kinds so that 1, "1" and 1.0 differ.
class RowHash {
  public:
    void AddByte(std::uint8_t byte) { hash_ = (hash_ ^ byte) * 0x100000001B3ULL; }
    void AddWord(std::uint64_t word) {
        for (int shift = 0; shift < 64; shift += 8) AddByte(static_cast<std::uint8_t>(word >> shift));
    }
    void AddText(const std::string& text) {
        AddWord(text.size());
        for (const char letter : text) AddByte(static_cast<std::uint8_t>(letter));
    }
    void Add(const Value& value) {
        AddByte(static_cast<std::uint8_t>(value.index()));
        if (const auto* number = std::get_if<std::int64_t>(&value)) {
            AddWord(static_cast<std::uint64_t>(*number));
        } else if (const auto* real = std::get_if<double>(&value)) {
            std::uint64_t bits = 0;
            std::memcpy(&bits, real, sizeof bits);
            AddWord(bits);
        } else if (const auto* text = std::get_if<std::string>(&value)) {
            AddText(*text);
        }
    }
    std::uint64_t Value64() const { return hash_; }

  private:
    std::uint64_t hash_ = 0xCBF29CE484222325ULL;
};

std::vector<std::uint64_t> HashRows(Database& season, const std::string& table) {
    std::vector<std::uint64_t> rows;
    Statement statement = season.Prepare(fmt::format("SELECT * FROM \"{}\"", table));
    const int columns = statement.ColumnCount();
    while (statement.Step()) {
        RowHash row;
        for (int column = 0; column < columns; ++column) row.Add(statement.Column(column));
        rows.push_back(row.Value64());
    }
    return rows;
}

}  // namespace

std::uint64_t HashSeason(Database& season) {
    std::vector<std::string> tables = season.TableNames();
    std::sort(tables.begin(), tables.end());
    RowHash all;
    for (const std::string& table : tables) {
        all.AddText(table);
        for (const std::string& column : season.ColumnNames(table)) all.AddText(column);
        std::vector<std::uint64_t> rows = HashRows(season, table);
        std::sort(rows.begin(), rows.end());
        all.AddWord(rows.size());
        for (const std::uint64_t row : rows) all.AddWord(row);
    }
    return all.Value64();
}

}  // namespace tarvane
