#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "core/database.h"
#include "records/cell.h"

namespace tarvane {

// Reads the rows of a query into records. A loader asks every row for the same columns in the same order, so names are
// looked up on the first row alone and the places found are played back on the others. A loader that leaves out a
// column on some rows would get the wrong ones: ask first, decide afterwards. Throws DatabaseError for a column that
// isn't there.
class RowReader {
  public:
    explicit RowReader(Statement statement);

    // Goes to the next row; false at the end.
    bool Next();

    // Null reads as ifNull; a number outside T is brought to its nearest limit.
    template <class T>
    T Number(std::string_view name, T ifNull = 0) {
        return ReadNumber(Place(name), ifNull);
    }
    double Double(std::string_view name, double ifNull = 0);
    std::string Text(std::string_view name, std::string_view ifNull = {});
    bool Bool(std::string_view name, bool ifNull = false);
    // The first letter of a text, ifEmpty if there is none or a blank.
    char Letter(std::string_view name, char ifEmpty);

    // A column <prefix><number><suffix>; the name is formed on the first row alone.
    template <class T>
    T NumberOf(std::string_view prefix, int number, std::string_view suffix = {}) {
        return ReadNumber(Place(prefix, number, suffix), T{});
    }
    std::string TextOf(std::string_view prefix, int number, std::string_view suffix = {});

    // The thirty cells <prefix>10 to <prefix>39 with their colours. Null is a blank in green.
    void Cells(std::string_view prefix, ChartCells& cells);

  private:
    int Place(std::string_view prefix, int number = -1, std::string_view suffix = {});
    template <class T>
    T ReadNumber(int column, T ifNull) const;

    Statement statement_;
    std::map<std::string, int, LessIgnoreCase> index_;
    std::vector<int> places_;
    std::size_t at_ = 0;
    bool firstRow_ = true;
    bool started_ = false;
};

template <class T>
T RowReader::ReadNumber(int column, T ifNull) const {
    if (statement_.IsNull(column)) return ifNull;
    const std::int64_t value = statement_.Int(column);
    constexpr auto kLow = static_cast<std::int64_t>(std::numeric_limits<T>::min());
    constexpr auto kHigh = static_cast<std::int64_t>(std::numeric_limits<T>::max());
    return static_cast<T>(std::clamp(value, kLow, kHigh));
}

}  // namespace tarvane
