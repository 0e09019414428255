#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/side.h"
#include "engine/gamestate.h"
#include "records/team.h"

namespace tarvane {

// What a computer manager must find in a team's lists before a game. Each check gives the first fault, as the box that
// a user sees: lines are joined by line feeds; an empty text is no fault.
struct ManagerFault {
    std::string title, text;
    bool Any() const { return !text.empty(); }
};

// For a side whose line-ups the computer makes. scheduledLineup is the lineupID fixed for the game, 0 for none.
ManagerFault CheckComputerLineups(const TeamRoster& roster, Side side, bool dhUsed, std::int32_t scheduledLineup = 0);

// For a side whose substitutions it makes.
ManagerFault CheckComputerDepth(const TeamRoster& roster, Side side);

// What of the two a side needs by what the computer manages of it; line-ups first.
ManagerFault CheckManagerLists(const TeamRoster& roster, Side side, const SideControl& control, bool dhUsed,
                               std::int32_t scheduledLineup = 0);

}  // namespace tarvane
