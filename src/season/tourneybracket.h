#pragma once

#include <cstdint>

#include "core/database.h"

namespace tarvane {

// A series has ended and one of its teams goes on: what is left of the series isn't needed, and in the games of the
// series that the team goes to (0: it goes nowhere) it takes its place, at home or on the road as the length of that
// series and the number of the one it comes from say.
void UpdateTourneyBracket(Database& season, int series, int targetSeries, std::int32_t teamIdx);

}  // namespace tarvane
