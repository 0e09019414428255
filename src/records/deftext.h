#pragma once

#include <cstddef>
#include <string>

#include "records/player.h"

namespace tarvane {

// The text of positions as line-ups show it, "C +2(I)(O)K, 1B-1V": for each slot in use the code, the rating with its
// sign (a blank for 0), the catcher's marks, and the error letter if error ratings count. Empty if no slot is in use.
std::string PositionsText(const PositionRating* slots, std::size_t count, bool catcherIRating, bool catcherORating,
                          bool useErrorRatings);

}  // namespace tarvane
