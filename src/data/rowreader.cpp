#include "data/rowreader.h"

#include <fmt/core.h>

namespace tarvane {

RowReader::RowReader(Statement statement) : statement_(std::move(statement)) {
    for (int i = 0; i < statement_.ColumnCount(); ++i) index_.emplace(statement_.ColumnName(i), i);
}

bool RowReader::Next() {
    firstRow_ = !started_;
    started_ = true;
    at_ = 0;
    return statement_.Step();
}

int RowReader::Place(std::string_view prefix, int number, std::string_view suffix) {
    if (!firstRow_) return places_[at_++];
    const std::string name = number < 0 ? std::string(prefix) : fmt::format("{}{}{}", prefix, number, suffix);
    const auto found = index_.find(name);
    if (found == index_.end())
        throw DatabaseError(DatabaseError::kNoSuchField, fmt::format("The table has no column {}.", name));
    places_.push_back(found->second);
    return found->second;
}

double RowReader::Double(std::string_view name, double ifNull) {
    const int column = Place(name);
    return statement_.IsNull(column) ? ifNull : statement_.Double(column);
}

std::string RowReader::Text(std::string_view name, std::string_view ifNull) {
    const int column = Place(name);
    return statement_.IsNull(column) ? std::string(ifNull) : statement_.Text(column);
}

bool RowReader::Bool(std::string_view name, bool ifNull) {
    const int column = Place(name);
    return statement_.IsNull(column) ? ifNull : statement_.Int(column) != 0;
}

char RowReader::Letter(std::string_view name, char ifEmpty) {
    const std::string text = statement_.Text(Place(name));
    return text.empty() || text[0] == ' ' ? ifEmpty : text[0];
}

std::string RowReader::TextOf(std::string_view prefix, int number, std::string_view suffix) {
    return statement_.Text(Place(prefix, number, suffix));
}

void RowReader::Cells(std::string_view prefix, ChartCells& cells) {
    for (int roll = kFirstRoll; roll <= kLastRoll; ++roll) {
        ChartCell& cell = cells[static_cast<std::size_t>(roll - kFirstRoll)];
        const int text = Place(prefix, roll);
        const int color = Place(prefix, roll, "Color");
        cell.text = statement_.IsNull(text) ? " " : statement_.Text(text);
        if (cell.text.empty()) cell.text = " ";
        cell.color = ReadNumber<std::int32_t>(color, kGreenWord);
    }
}

}  // namespace tarvane
