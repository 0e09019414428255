#include "season/calendar.h"

#include <fmt/core.h>

#include <charconv>
#include <chrono>

namespace tarvane {

namespace {

template <class Number>
bool ReadNumber(std::string_view text, Number& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

std::optional<std::chrono::year_month_day> ReadDate(std::string_view date) {
    if (date.size() != 10 || date[4] != '-' || date[7] != '-') return {};
    int year = 0;
    unsigned month = 0, day = 0;
    if (!ReadNumber(date.substr(0, 4), year) || !ReadNumber(date.substr(5, 2), month) ||
        !ReadNumber(date.substr(8, 2), day))
        return {};
    const std::chrono::year_month_day read{std::chrono::year{year}, std::chrono::month{month}, std::chrono::day{day}};
    return read.ok() ? std::optional{read} : std::nullopt;
}

}  // namespace

std::optional<long> DayCount(std::string_view date) {
    const auto read = ReadDate(date);
    if (!read) return {};
    return std::chrono::sys_days{*read}.time_since_epoch().count();
}

std::string DateText(long days) {
    const std::chrono::year_month_day date{std::chrono::sys_days{std::chrono::days{days}}};
    return fmt::format("{:04}-{:02}-{:02}", static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                       static_cast<unsigned>(date.day()));
}

std::optional<int> DayOfYear(std::string_view date) {
    const auto read = ReadDate(date);
    if (!read) return {};
    const std::chrono::sys_days first{read->year() / std::chrono::January / 1};
    return static_cast<int>((std::chrono::sys_days{*read} - first).count()) + 1;
}

}  // namespace tarvane
