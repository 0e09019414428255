#pragma once

#include "data/session.h"
#include "season/managerchecks.h"
#include "season/schedulesetup.h"
#include "ui/seasonaccess.h"

namespace tarvane {

// What keeps a game of the schedule from being played with these managers, as the box that the user sees: a team or its
// park is missing, or a computer manager's lists.
ManagerFault CheckScheduledGame(Session& session, const ScheduledGame& game, const PerSide<SideControl>& control);

// The game with both line-ups made: those fixed for it, else the stored ones. Throws UserError that says what is
// missing.
GamePtr PrepareScheduledGame(Session& session, const ScheduledGame& game, const PerSide<SideControl>& control);

}  // namespace tarvane
