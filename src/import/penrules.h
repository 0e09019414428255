#pragma once

#include <vector>

#include "core/database.h"
#include "import/teamlist.h"

namespace tarvane {

// How the relievers of a time were used, as rules of a season: the days before a reliever comes back after a short,
// a middle and a long outing, and the outs after which he must be replaced. Until the 1960s a spare pitcher was called on
// once in a while and then stayed, and starters finished; today a man pitches an inning and pitches again tomorrow.
struct PenRules {
    int firstYear;  // of the time; it lasts until the next one begins
    int shortRest, middleRest, longRest;
    int mostOuts;
};

// Of a year from 1901 on; an earlier one is taken as 1901.
const PenRules& PenRulesOf(int year);

// Sets the rules of the year that most of the teams are of: how long relievers rest and how long they may pitch. The
// starters' rest stays as it is.
void WritePenRules(Database& season, const std::vector<LahmanTeam>& teams);

}  // namespace tarvane
