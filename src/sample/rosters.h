#pragma once

#include "base/random.h"
#include "sample/league.h"

namespace tarvane::sample {

// Sixteen clubs in two leagues of two divisions, with invented cities, nicknames and players; no game played yet.
MadeLeague MakeLeague(Random& random);

}  // namespace tarvane::sample
