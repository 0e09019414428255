#pragma once

#include <cstdint>

namespace tarvane {

// The control rating of a percentage of the league's rate: 10 for a man who (almost) never does it to 40 for the
// league's rate or more. The rows of the table don't quite meet: a value between two of them has no rating and gives 0,
// which a loader takes as 40.
std::uint8_t RatingFromPercent(double percent);

}  // namespace tarvane
