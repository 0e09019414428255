#pragma once

#include "core/database.h"
#include "records/team.h"

namespace tarvane {

// Takes one day off every rest and every injury of the season's players, or of the tournament's. Throws UserError if a
// table of players is empty; batters already lowered stay lowered.
void ReduceRestAndInjuries(Database& season, bool tourney);

// Writes the rests and injuries that a game has left in a roster's records.
void SaveRestAndInjuries(Database& season, const TeamRoster& roster, bool tourney);

}  // namespace tarvane
