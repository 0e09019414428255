#pragma once

#include <string>
#include <vector>

#include "engine/game.h"
#include "manager/realuse.h"
#include "manager/rest.h"

namespace tarvane {

// --- The starting pitcher --------------------------------------------------------------------------------------------

struct StarterRequest {
    Side side = Side::Visitor;          // for the head of a message
    std::int32_t scheduledStarter = 0;  // playerID named by the schedule's line-up; 0 for none
    std::int32_t lastStarter = 0;       // playerID of the team's last starter; 0 before the first game
    int dayNumber = 0;
    bool ignoreScheduled = false;  // the rule IgnoreSchedLineups
    bool actualUsage = false;      // the rule FactorActualUsage, with real statistics at hand
    bool mayReduceRest = true;     // the computer takes a day off all rests rather than call the game off
};

struct ChosenStarter {
    int pitcher = -1;     // roster index; -1 if nobody can start
    int daysReduced = 0;  // days taken off rests and injuries to find him, for the tables
    std::vector<std::string> messages;
};

// The man who starts for a computer-managed side: the scheduled one if he can, else the rotation from the man after the
// last starter on. Rests of the roster must be settled (GetPitcherRest). A rotation that can't supply anybody is helped
// by the other starters of the staff; if all rest, days are taken off the rests and injuries of roster until one is
// free.
ChosenStarter ChooseStarter(TeamRoster& roster, const StarterRequest& request, const RealUse* real = nullptr);

// --- The nine --------------------------------------------------------------------------------------------------------

struct LineupRequest {
    Side side = Side::Visitor;
    bool dhUsed = false;
    bool opponentThrowsLeft = false;
    int pitcher = -1;                  // roster index of the starter
    std::int32_t scheduledLineup = 0;  // lineupID fixed for the game; 0 for none
};

struct ChosenLineup {
    LineupInput lineup;
    std::vector<std::string> messages;  // who was replaced
    std::string trouble;                // why no legal nine exists; empty if lineup is one
};

// The line-up of a computer-managed side: the stored list marked for the hand of the opposing starter and made for the
// game's kind (DH or not), men who can't play replaced from the depth chart of their position. Without such a list, or
// where it has holes, the best men by their positions fill up: a healthy nine always gives a legal line-up.
ChosenLineup ChooseLineup(const TeamRoster& roster, const LineupRequest& request);

// A list in which the DH bats.
bool HasDH(const LineupList& list);

}  // namespace tarvane
