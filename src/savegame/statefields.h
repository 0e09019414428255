#pragma once

#include "engine/gamestate.h"
#include "savegame/savefields.h"

namespace tarvane {

// What the older records don't have of a state: the play under way, what is awaited, flags, injuries, and of each team
// its line-up as it stands and everything besides its lines.
void SaveSituation(SaveFields& f, GameState& state);
void SavePlay(SaveFields& f, Play& play);
void SaveInjuries(SaveFields& f, GameState& state);
void SaveTeamState(SaveFields& f, TeamState& team, const std::string& who);
void SaveLineMarks(SaveFields& f, BoxLines& box, const std::string& who);
void SaveManRef(SaveFields& f, PlayerRef& man);
void SaveControl(SaveFields& f, SideControl& control);

}  // namespace tarvane
