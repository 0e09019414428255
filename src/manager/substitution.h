#pragma once

#include "engine/gamestate.h"

namespace tarvane {

// When a computer manager changes men. Every rule is a percentage draw r (1 to 100) that the situation scales, step by
// step and rounded half to even each time, against a bound by the team's tendency: 1 is the busiest manager, 3 the
// laziest, and any other value never moves.

// What the rules look at, from the point of view of the team that decides. The pitcher is always its own man, whether
// it bats or fields.
struct SubsSituation {
    Side side = Side::Visitor;
    int Inning = 1, Outs = 0;
    int lead = 0;  // own runs less the other's; negative when behind
    bool basesEmpty = true;
    int HalfInningRuns = 0;
    int pitchersUsed = 1;
    int R = 0, H = 0, IPOuts = 0, BF = 0;  // his line in this game
    bool tired = false, intermediate = false, closerIn = false;
    int pitcherLastBatted = 0;  // inning; 0 if he hasn't
    bool actualUsage = false;   // the two real figures count
    int pitcherRealOuts = 0;    // his real outs a game; 0: unknown
    int batterRealAB = 0;       // the batter's real at bats a game
    int batterAB = 0;           // and those in this game
    bool topBatter = false;     // among the best tenth of the league

    bool Behind(int least, int most) const { return -lead >= least && -lead <= most; }
};

SubsSituation MakeSubsSituation(const GameState& state, Side side);

enum class PitchingMove : std::uint8_t { Stay, Change, Closer };

// A team in the field looks at its pitcher. Closer: the search begins with the closers.
PitchingMove PitchingChange(const SubsSituation& s, int relieverUsage, int r);

// A team at bat: does somebody hit for the pitcher who is up?
bool HitForPitcher(const SubsSituation& s, int relieverUsage, int r);

// A team at bat: does somebody hit for a position player who is up, from the seventh on?
bool HitForBatter(const SubsSituation& s, int pinchHitting, int r);

// A team at bat, from the seventh on and behind by one or two: does somebody run? The caller has seen to the runners.
bool RunForRunner(const SubsSituation& s, int pinchRunning, int r);

}  // namespace tarvane
