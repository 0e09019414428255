#pragma once

#include "base/random.h"
#include "sample/league.h"

namespace tarvane::sample {

inline constexpr int kSeasonDays = 162;  // every club plays every day

// Plays the whole season: line-ups, rotations, injuries, call-ups, a few trades; then the standings and the titles.
void PlaySeason(Random& random, MadeLeague& league);

}  // namespace tarvane::sample
