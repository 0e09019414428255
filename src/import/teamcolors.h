#pragma once

#include <cstdint>
#include <string_view>

namespace tarvane {

// Colours of a club on the screens, as 32-bit values in blue-green-red order.
struct TeamColors {
    std::int32_t HmForeClr = 0, HmBackClr = 0, RdForeClr = 0, RdBackClr = 0;
    friend bool operator==(const TeamColors&, const TeamColors&) = default;
};

// Black on white at home, white on black on the road: what a team has whose colours aren't known or wanted.
inline constexpr TeamColors kPlainColors{0, 16777215, 16777215, 0};

// By the code of the franchise, so that a club keeps its colours through the years and towns.
TeamColors ColorsOf(std::string_view franchID);

}  // namespace tarvane
