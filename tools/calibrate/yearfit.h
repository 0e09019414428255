#pragma once

#include "eratable.h"

namespace tarvane::calibrate {

// Where the iteration begins, the same for every year: about what most years need.
Adjustment UsualAdjustment();

// One step of the fixed-point iteration: what was measured with an adjustment gives the next one. gain is how much of
// the way it goes, 1 at first, less as the measured rates come near enough for their noise to count.
Adjustment NextAdjustment(const Adjustment& now, const EraTable& facts, std::int32_t eraID, const Counts& real,
                          const Counts& replay, const Openness& open, double gain);

// How far a replay is off in what the era's row can change: the squares of the misses, each in units of its bound.
double MissOf(const Counts& real, const Counts& replay);

}  // namespace tarvane::calibrate
