#pragma once

#include <map>
#include <string>

#include "core/database.h"

namespace tarvane {

// The factors of the park in which a club plays at home, 1 for a park like the others.
struct ParkFactor {
    std::string stadium;
    double singles = 1, doubles = 1, triples = 1, HR = 1;
};

// By the club's code; all 1 if the season plays without the effects of parks.
std::map<std::string, ParkFactor> ReadParkFactors(Database& common, Database& season);

}  // namespace tarvane
