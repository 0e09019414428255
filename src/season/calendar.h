#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarvane {

// Dates as the tables hold them: yyyy-mm-dd.

// Days since 1970-01-01; nothing for a text that is no date.
std::optional<long> DayCount(std::string_view date);

// The date of such a count of days.
std::string DateText(long days);

// The day of the year, 1 to 366, in which rest is counted; nothing for a text that is no date.
std::optional<int> DayOfYear(std::string_view date);

}  // namespace tarvane
