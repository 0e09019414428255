#include "base/text.h"

#include <fmt/core.h>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace tarvane {

namespace {
constexpr std::string_view kBlanks = " \t\r\n";

constexpr char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr bool IsContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

// Where the character that starts at position begins the next one.
std::size_t NextCharacter(std::string_view text, std::size_t position) {
    const auto lead = static_cast<unsigned char>(text[position]);
    const std::size_t length = lead >= 0xF8 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
    std::size_t end = position + 1;
    while (end < text.size() && end < position + length && IsContinuation(text[end])) ++end;
    return end;
}

template <class T>
std::optional<T> ParseWhole(std::string_view text) {
    text = Trim(text);
    if (!text.empty() && text.front() == '+' && text.size() > 1 && text[1] != '-') text.remove_prefix(1);
    T value{};
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc{} || stop != end || text.empty()) return std::nullopt;
    return value;
}
}  // namespace

std::string_view TrimRight(std::string_view text) {
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

std::string_view Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == std::string_view::npos ? std::string_view{} : TrimRight(text.substr(first));
}

std::string ToLower(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), Lower);
    return lower;
}

int CompareIgnoreCase(std::string_view a, std::string_view b) {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const auto x = static_cast<unsigned char>(Lower(a[i]));
        const auto y = static_cast<unsigned char>(Lower(b[i]));
        if (x != y) return x < y ? -1 : 1;
    }
    if (a.size() == b.size()) return 0;
    return a.size() < b.size() ? -1 : 1;
}

bool EqualsIgnoreCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && CompareIgnoreCase(a, b) == 0;
}

std::optional<std::int64_t> ParseInt(std::string_view text) {
    return ParseWhole<std::int64_t>(text);
}

std::optional<double> ParseDouble(std::string_view text) {
    const std::optional<double> value = ParseWhole<double>(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

std::string FormatDouble(double value) {
    return fmt::format("{}", value);
}

std::size_t Utf8Length(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); at = NextCharacter(text, at)) ++count;
    return count;
}

std::string_view Utf8Truncate(std::string_view text, std::size_t count) {
    std::size_t at = 0;
    while (at < text.size() && count-- > 0) at = NextCharacter(text, at);
    return text.substr(0, at);
}

int TextWidth(std::string_view text) {
    int width = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const bool continues = (byte & 0xC0U) == 0x80U;
        const auto next = i + 1 < text.size() ? static_cast<unsigned char>(text[i + 1]) : 0U;
        const bool combines = byte == 0xCCU || (byte == 0xCDU && next < 0xB0U);  // U+0300 to U+036F
        if (!continues && !combines) ++width;
    }
    return width;
}

std::string PadRight(std::string text, int width) {
    text.append(static_cast<std::size_t>(std::max(0, width - TextWidth(text))), ' ');
    return text;
}

std::string PadLeft(const std::string& text, int width) {
    return std::string(static_cast<std::size_t>(std::max(0, width - TextWidth(text))), ' ') + text;
}

}  // namespace tarvane
