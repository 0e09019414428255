#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarvane {

// Texts are UTF-8. Nothing here follows the user's locale: case is told apart for ASCII letters alone, and numbers are
// written with a point whatever the language of the desktop.

std::string_view Trim(std::string_view text);
std::string_view TrimRight(std::string_view text);

std::string ToLower(std::string_view text);
// Less than, equal to or greater than 0 as a is before, like or after b.
int CompareIgnoreCase(std::string_view a, std::string_view b);
bool EqualsIgnoreCase(std::string_view a, std::string_view b);

struct LessIgnoreCase {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return CompareIgnoreCase(a, b) < 0; }
};

// The whole text as a number, blanks at both ends allowed; anything else (also an empty text, inf and nan) is no value.
std::optional<std::int64_t> ParseInt(std::string_view text);
std::optional<double> ParseDouble(std::string_view text);

// The shortest text that reads back as the same number: 3, 0.25, 1e+300.
std::string FormatDouble(double value);

// Places a text takes in a line of equal letters: code points, without marks that combine with the letter before.
int TextWidth(std::string_view text);
// Filled up with blanks to that width.
std::string PadRight(std::string text, int width);
std::string PadLeft(const std::string& text, int width);

// Characters (code points), each byte that isn't part of one counted as one.
std::size_t Utf8Length(std::string_view text);
// The first count characters; never half of one.
std::string_view Utf8Truncate(std::string_view text, std::size_t count);

}  // namespace tarvane
