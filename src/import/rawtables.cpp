#include "import/rawtables.h"

#include <fmt/core.h>

#include <charconv>
#include <cmath>

#include "base/error.h"
#include "base/text.h"

namespace tarvane {

namespace {

bool NotRecorded(std::string_view text) {
    return text.empty() || text == "NA" || text == "NULL";
}

// Length of the UTF-8 character at the start of text, 0 if there is none: overlong forms, surrogates and values past
// U+10FFFF are none.
std::size_t Utf8Character(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char first = byte(0);
    if (first < 0x80) return 1;
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || text.size() < length) return 0;
    for (std::size_t i = 1; i < length; ++i)
        if ((byte(i) & 0xC0) != 0x80) return 0;
    const unsigned char second = byte(1);
    if ((first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F)) return 0;
    if ((first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F)) return 0;
    return length;
}

bool IsUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = Utf8Character(text);
        if (length == 0) return false;
        text.remove_prefix(length);
    }
    return true;
}

}  // namespace

bool YearWanted(const YearSet& years, std::string_view text) {
    if (years.empty()) return true;
    int year = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), year);
    if (error != std::errc{} || end != text.data() + text.size()) return true;
    return years.contains(year);
}

std::string ToUtf8(std::string_view text) {
    if (IsUtf8(text)) return std::string(text);
    std::string result;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80) {
            result += c;
        } else {
            result += static_cast<char>(0xC0 | (byte >> 6));
            result += static_cast<char>(0x80 | (byte & 0x3F));
        }
    }
    return result;
}

void RowCells::Fail(std::size_t column, std::string_view what) const {
    std::string cell = ToUtf8(row_.cells[column]);
    if (cell.size() > 40) cell = std::string(Utf8Truncate(cell, 40)) + "...";
    throw UserError(fmt::format("{}, {} {}, column {}: \"{}\" {}.", row_.source, row_.unit, row_.number,
                                request_.columns[column], cell, what));
}

std::string RowCells::Text(std::size_t column) const {
    return ToUtf8(Trim(row_.cells[column]));
}

std::string RowCells::Key(std::size_t column) const {
    std::string text = Text(column);
    if (text.empty()) Fail(column, "is empty, but the row needs it");
    return text;
}

int RowCells::Whole(std::size_t column, int least, int most) const {
    const std::string_view text = Trim(row_.cells[column]);
    std::optional<std::int64_t> number = ParseInt(text);
    if (!number) {
        const std::optional<double> real = ParseDouble(text);  // a table may keep a count as 12.0
        if (real && std::abs(*real) < 1e9 && *real == std::floor(*real)) number = static_cast<std::int64_t>(*real);
    }
    if (!number || *number < least || *number > most)
        Fail(column, fmt::format("is not a whole number from {} to {}", least, most));
    return static_cast<int>(*number);
}

std::optional<int> RowCells::Count(std::size_t column) const {
    if (NotRecorded(Trim(row_.cells[column]))) return std::nullopt;
    return Whole(column, 0, 32767);
}

std::optional<double> RowCells::Number(std::size_t column) const {
    const std::string_view text = Trim(row_.cells[column]);
    if (NotRecorded(text) || EqualsIgnoreCase(text, "inf")) return std::nullopt;  // an ERA of runs in no innings
    const std::optional<double> number = ParseDouble(text);
    if (!number || *number < 0) Fail(column, "is not a number from 0 up");
    return number;
}

}  // namespace tarvane
