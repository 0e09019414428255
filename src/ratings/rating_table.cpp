#include "ratings/rating_table.h"

#include <array>
#include <cmath>

namespace tarvane {

namespace {

// Lower bounds of the ratings 40 down to 11. A row ends just under the bound of the row above it.
constexpr std::array<double, 30> kRatingFrom{99.6, 98.1, 94.1, 89.1, 82.1, 74.1, 66.1, 60.1, 55.1, 52.1,
                                             50.1, 49.1, 46.1, 43.1, 38.1, 33.1, 28.1, 24.1, 20.1, 18.1,
                                             17.1, 16.1, 15.1, 13.1, 11.1, 8.1,  6.1,  4.1,  2.1,  1.1};
constexpr double kUpperEndOf39 = 99.59;
constexpr double kUpperEndOf10 = 1.099;
constexpr std::uint8_t kHighestRating = 40;
constexpr std::uint8_t kLowestRating = 10;

// A thousandth below a bound, as the decimal fraction that it is.
double EndBelow(double bound) {
    return (std::round(bound * 1000) - 1) / 1000;
}

}  // namespace

std::uint8_t RatingFromPercent(double percent) {
    if (percent <= kUpperEndOf10) return kLowestRating;
    for (std::size_t row = 0; row < kRatingFrom.size(); ++row) {
        if (percent < kRatingFrom[row]) continue;
        const double end = row == 1 ? kUpperEndOf39 : row > 1 ? EndBelow(kRatingFrom[row - 1]) : percent;
        return percent <= end ? static_cast<std::uint8_t>(kHighestRating - row) : std::uint8_t{0};
    }
    return 0;
}

}  // namespace tarvane
