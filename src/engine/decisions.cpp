#include <algorithm>

#include "engine/step.h"

namespace tarvane {

namespace {

constexpr int kOutsForStarterWin = 15;

void ClearDecisions(PitchingLine& line) {
    line.Win = line.Loss = line.Save = false;
}

void ClearEarlierPitchers(TeamState& team) {
    for (int i = 0; i + 1 < team.box.PitchersUsed; ++i) ClearDecisions(team.box.pitching[static_cast<std::size_t>(i)]);
}

// The current pitcher of the team that went ahead is the winner of the moment. A lone starter isn't before five
// innings, but a loss of his is wiped out all the same: his team is no longer behind.
void CreditLead(TeamState& team) {
    ClearEarlierPitchers(team);
    PitchingLine& current = CurrentPitchingLine(team);
    current.Loss = false;
    if (team.box.PitchersUsed > 1) {
        current.Win = true;
        current.Save = false;
    } else if (current.IPOuts >= kOutsForStarterWin) {
        current.Win = true;
    }
}

// The loss goes to the man on the mound if the lead came from runs of his own, else to the one before him.
void ChargeLead(TeamState& team, int ahead, int behind) {
    ClearEarlierPitchers(team);
    PitchingLine& current = CurrentPitchingLine(team);
    const bool own = team.box.PitchersUsed < 2 || ahead - current.R <= behind;
    PitchingLine& loser = own ? current : team.box.pitching[team.box.PitchersUsed - 2U];
    loser.Loss = true;
    loser.Win = false;
    if (own && team.box.PitchersUsed > 1) loser.Save = false;
}

bool HoldsWin(const TeamState& team) {
    const auto end = team.box.pitching.begin() + team.box.PitchersUsed;
    return std::any_of(team.box.pitching.begin(), end, [](const PitchingLine& line) { return line.Win; });
}

}  // namespace

void UpdateDecisions(Step& step, int runs) {
    TeamState& batting = step.batting();
    TeamState& fielding = step.fielding();
    const int ahead = batting.Runs;
    const int other = fielding.Runs;
    if (ahead - runs <= other && ahead > other) {
        CreditLead(batting);
        ChargeLead(fielding, ahead, other);
    } else if (ahead - runs < other && ahead == other) {
        // A tie takes only from those who are in the game: a starter who left with a win keeps it until the lead
        // changes.
        ClearDecisions(CurrentPitchingLine(batting));
        ClearDecisions(CurrentPitchingLine(fielding));
    }
    if (ahead <= other) CurrentPitchingLine(batting).Save = false;
}

void SumLeftOnBase(GameState& state, Side battingSide) {
    BoxLines& box = state[Other(battingSide)].box;
    for (int i = 0; i < box.PitchersUsed; ++i) {
        PitchingLine& line = box.pitching[static_cast<std::size_t>(i)];
        state[battingSide].LOB = static_cast<std::int16_t>(state[battingSide].LOB + line.RunnersCharged);
        line.RunnersCharged = 0;
    }
}

void LonePitcherWin(GameState& state, Side side) {
    TeamState& team = state[side];
    PitchingLine& line = team.box.pitching[0];
    if (team.box.PitchersUsed != 1 || team.Runs <= state[Other(side)].Runs || line.IPOuts < kOutsForStarterWin) return;
    line.Win = true;
    line.Loss = false;
}

void ReliefWin(GameState& state, Side side) {
    TeamState& team = state[side];
    if (team.box.PitchersUsed < 2 || team.Runs <= state[Other(side)].Runs || HoldsWin(team)) return;
    PitchingLine& current = CurrentPitchingLine(team);
    current.Win = true;
    current.Save = false;  // no man saves a game that he wins
}

void DropLosersSave(GameState& state) {
    for (const Side side : kBothSides) {
        TeamState& team = state[side];
        if (team.Runs >= state[Other(side)].Runs || team.box.PitchersUsed < 2) continue;
        const auto end = team.box.pitching.begin() + team.box.PitchersUsed;
        const auto held = std::find_if(team.box.pitching.begin(), end, [](const PitchingLine& l) { return l.Save; });
        if (held != end) held->Save = false;
    }
}

}  // namespace tarvane
