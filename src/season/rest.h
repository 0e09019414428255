#pragma once

#include <string_view>

#include "engine/boxlines.h"
#include "records/rules.h"
#include "records/team.h"

namespace tarvane {

// What a played game does to arms and injuries. These work on the records of a roster; the posting writes them back.

// The days of rest that so many outs cost in a role ('S' or 'R'): the first bracket of that role with the outs in it; 0
// where none fits.
int RestForOuts(const LeagueRules& rules, char role, int outs);

// Adds the rest of everyone who pitched, in order of appearance. The first man and every starter go by the starters'
// brackets; a reliever's outs add up over the games of one day.
void AssignPitcherRest(TeamRoster& roster, const BoxLines& box, const LeagueRules& rules, int dayNumber);

// Recomputes every injury of the roster from the date of the game just played (yyyy-mm-dd) and clears those that are
// over. A man hurt in this very game has the day of the game behind him. An injury without a readable date stands.
void CountDownInjuries(TeamRoster& roster, std::string_view gameDate);

}  // namespace tarvane
