#include "facttable.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <fstream>
#include <sstream>

#include "base/csv.h"
#include "base/error.h"
#include "base/text.h"

namespace tarvane::calibrate {

namespace {

// Seven places, without zeros at the end.
std::string Digits(double value) {
    std::string text = fmt::format("{:.7f}", value);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text;
}

std::string Quoted(const std::string& text) {
    return text.find_first_of(",\"") == std::string::npos ? text : "\"" + text + "\"";
}

// A field is empty where the column's default is meant: a blank green cell.
std::string FieldOf(const Value& value) {
    if (const auto* number = std::get_if<double>(&value)) return Digits(*number);
    if (const auto* whole = std::get_if<std::int64_t>(&value))
        return *whole == kGreenWord ? "" : fmt::format("{}", *whole);
    const auto* text = std::get_if<std::string>(&value);
    return text == nullptr || *text == " " ? "" : Quoted(*text);
}

}  // namespace

std::string ReadWhole(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) throw UserError(file.string() + " can't be read");
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

FactTable::FactTable(const std::filesystem::path& file) {
    const std::string text = ReadWhole(file);
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line) && line.starts_with('#');) comments += line + '\n';
    CsvReader reader(text, file.string(), {',', true});
    std::vector<std::string_view> cells;
    reader.Next(cells);
    columns.assign(cells.begin(), cells.end());
    while (reader.Next(cells)) {
        if (cells.size() != columns.size()) reader.Fail("a line has another number of fields than the heading");
        auto& row = rows[static_cast<std::int32_t>(ParseInt(cells[0]).value_or(0))];
        for (std::size_t i = 0; i < columns.size(); ++i) row[columns[i]] = std::string(cells[i]);
    }
}

double FactTable::Number(std::int32_t row, const std::string& column) const {
    const auto found = rows.find(row);
    if (found == rows.end()) throw UserError(fmt::format("the facts have no row {}; run tools/make-eras", row));
    return ParseDouble(found->second.at(column)).value_or(0);
}

void AddChart(const ChartCells& chart, ChangedRow& row) {
    for (int roll = kFirstRoll; roll <= kLastRoll; ++roll) {
        const ChartCell& cell = chart[static_cast<std::size_t>(roll - kFirstRoll)];
        row[fmt::format("Roll{}", roll)] = cell.text;
        row[fmt::format("Roll{}Color", roll)] = std::int64_t{cell.color};
    }
}

void WriteSeedTable(const std::filesystem::path& file, const FactTable& facts, const std::string& note,
                    const std::map<std::int32_t, ChangedRow>& changed) {
    std::vector<std::string> columns = facts.columns;
    for (const char* kind : {"", "Color"})
        for (int roll = kFirstRoll; roll <= kLastRoll; ++roll) columns.push_back(fmt::format("Roll{}{}", roll, kind));
    std::string text = fmt::format("{}# {}\n{}\n", facts.comments, note, fmt::join(columns, ","));
    for (const auto& [id, row] : facts.rows) {
        const ChangedRow& change = changed.at(id);
        std::vector<std::string> fields;
        for (const std::string& column : columns) {
            const auto found = change.find(column);
            fields.push_back(found == change.end() ? Quoted(row.at(column)) : FieldOf(found->second));
        }
        text += fmt::format("{}\n", fmt::join(fields, ","));
    }
    std::ofstream out(file, std::ios::binary);
    out << text;
    if (!out.flush()) throw UserError(file.string() + " can't be written");
}

}  // namespace tarvane::calibrate
