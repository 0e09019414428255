#pragma once

#include <vector>

#include "manager/realuse.h"
#include "records/team.h"

namespace tarvane {

// Line-ups planned for a whole season, so that each man of a club comes to play as often, at the positions and against
// the hands as he really did. A stored line-up plays the same nine every day, who then bat a sixth more than they
// should; a club's real season had its days of rest, its platoons and its reserves.

// A game of a club's schedule. Games are planned in the order in which they are played.
struct PlanGame {
    long day = 0;                       // any count of days
    bool dhUsed = false;
    bool opponentThrowsLeft = false;    // the starter; unused by PlanStarters
    const LineupList* fixed = nullptr;  // stands already: it counts, and isn't planned
};

// Roster indexes of the pitchers who start, by their real shares of starts, nobody with less than restDays days of rest
// between two if that can be had; -1 for all games if the real statistics know no starter.
std::vector<int> PlanStarters(const TeamRoster& roster, const RealUse& real, int restDays,
                              const std::vector<PlanGame>& games);

// The nine of each game, starters as PlanStarters gave them: by real plate appearances, games at each position and
// appearances against each hand; in the order of the club's own line-up, men it doesn't know behind. A list without
// men (playerIDP 0) where the game has a fixed one or the club can't fill a position.
std::vector<LineupList> PlanLineups(const TeamRoster& roster, const RealUse& real, const std::vector<PlanGame>& games,
                                    const std::vector<int>& starters);

}  // namespace tarvane
