#pragma once

#include "engine/gamestate.h"
#include "records/rules.h"

namespace tarvane {

// The decisions of the game itself: bunt, steal, the extra base, and a run given up in the field. As in the
// substitutions a percentage draw r (1 to 100) is scaled by the situation and must pass a bound by the tendency.

// The situation from the point of view of the team that decides.
struct StrategySituation {
    Side side = Side::Visitor;
    int Inning = 1, Outs = 0;
    int lead = 0;
    bool on1 = false, on2 = false, on3 = false;
    int batterSlot = 1;
    bool pitcherBats = false;
    char BuntRating = 'B';
    bool BuntTriedThisAtBat = false;
    int runRating[4] = {0, 0, 0, 0};    // of the men on first, second and third, as they stand in their records
    int stealRating[4] = {0, 0, 0, 0};  // the same as the other team's catcher changes them

    bool Bases(bool first, bool second, bool third) const { return on1 == first && on2 == second && on3 == third; }
};

StrategySituation MakeStrategySituation(const GameState& state, Side side, const LeagueRules& rules);

// A catcher who holds runners takes one off a run rating, one whom they run on adds one; 0 and 5 are the ends.
int StealRating(int runRating, bool catcherI, bool catcherO);

// What a team at bat tries with the next pitch; BuntType::None for nothing. On first and third a computer sacrifices.
BuntType BuntDecision(const StrategySituation& s, int bunting, int r);

// After a foul with two strikes: does he bunt on?
bool FurtherBuntDecision(const StrategySituation& s, int bunting, int r);

// '2', '3', 'H', or ' ' for no steal. home and other are the draws of the steal of home and of the base before it: with
// a man on third the first is used, otherwise the second.
char StealDecision(const StrategySituation& s, int baseStealing, int home, int other);

// Whether the runner of a bracketed result goes on. result is the play's (an error with a choice counts as "(1)"),
// which of its runners is asked stands in extraBase.
bool ExtraBaseDecision(const StrategySituation& s, Result result, ExtraBaseCase extraBase, int baseRunning, int r);

// Whether the team in the field gives up the run of the man on third; no tendency tells it.
bool GiveUpRun(const StrategySituation& s, int r);

}  // namespace tarvane
