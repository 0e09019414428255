#pragma once

#include <optional>
#include <string>
#include <vector>

#include "engine/gamestate.h"
#include "ui/seasonaccess.h"

namespace tarvane {

// What has been chosen for an exhibition game; -1 is nothing yet.
struct ExhibitionChoice {
    int visitor = -1, home = -1, park = -1;  // places in the lists
};

// The message that keeps the game from going on, or nothing.
std::optional<std::string> ExhibitionFault(const ExhibitionChoice& choice);

// Who manages a team once it is chosen: its own row can decide for the computer or for a human, and only a team without
// either keeps what was set before.
struct ManagerChoice {
    SideControl control;
    bool locked = false;  // the user can't change it
};
ManagerChoice ManagerChoiceOf(const TeamEntry& team, const SideControl& before);

// Where a team's own park stands in the list, or -1.
int ParkOf(const TeamEntry& team, const std::vector<ParkEntry>& parks);

// "1975 Stadium"; an average park of no year has none before it.
std::string ParkText(const ParkEntry& park);

}  // namespace tarvane
