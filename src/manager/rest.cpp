#include "manager/rest.h"

#include "manager/roster.h"

namespace tarvane {

int RestDaysLeft(const Pitcher& pitcher, int dayNumber) {
    if (pitcher.PitcherRestDays == 0) return 0;
    const int lastDay = pitcher.PitchedOnDay + pitcher.PitcherRestDays;
    return lastDay < dayNumber ? 0 : lastDay - dayNumber + 1;
}

std::vector<RestingPitcher> GetPitcherRest(TeamRoster& roster, int dayNumber) {
    std::vector<RestingPitcher> resting;
    for (Pitcher& pitcher : roster.pitchers) {
        if (pitcher.PitcherRestDays == 0) continue;
        if (const int left = RestDaysLeft(pitcher, dayNumber); left > 0) {
            resting.push_back({pitcher.playerName, pitcher.playerID, left});
        } else {
            pitcher.PitcherRestDays = 0;
            pitcher.PitchedOnDay = 0;
        }
    }
    return resting;
}

bool IsResting(const TeamRoster& roster, const Pitcher& pitcher) {
    for (const Pitcher& other : roster.pitchers)
        if (other.PitcherRestDays > 0 && other.playerName == pitcher.playerName) return true;
    return false;
}

void ReduceRestAndInjuries(TeamRoster& roster) {
    for (Batter& batter : roster.batters)
        if (batter.injury.InjuredDaysRemaining > 0) --batter.injury.InjuredDaysRemaining;
    for (Pitcher& pitcher : roster.pitchers) {
        if (pitcher.PitcherRestDays > 0) --pitcher.PitcherRestDays;
        if (pitcher.injury.InjuredDaysRemaining > 0) --pitcher.injury.InjuredDaysRemaining;
    }
}

std::vector<int> GetUnrestedPitchers(const TeamRoster& roster) {
    std::vector<int> free;
    for (std::size_t i = 0; i < roster.pitchers.size(); ++i)
        if (CanPlay(roster.pitchers[i]) && !IsResting(roster, roster.pitchers[i])) free.push_back(static_cast<int>(i));
    return free;
}

void MakeIneffective(Pitcher& pitcher) {
    constexpr int kLastDefenceRoll = 15, kCatchAllRoll = 38;
    constexpr int kFirstSingle = 21, kLastSingle = 26;  // 56 of 216 rolls
    for (int roll = kFirstRoll; roll <= kLastRoll; ++roll) {
        ChartCell& cell = pitcher.pitch[static_cast<std::size_t>(roll - kFirstRoll)];
        if (roll <= kLastDefenceRoll) {
            cell = {"D", kGreenWord};
        } else if (roll == kCatchAllRoll) {
            cell = {"X", kStoredYellowWord};
        } else {
            cell = {roll >= kFirstSingle && roll <= kLastSingle ? "1+" : " ", kGreenWord};
        }
    }
}

void MakeRestingIneffective(TeamRoster& roster) {
    for (Pitcher& pitcher : roster.pitchers)
        if (pitcher.PitcherRestDays > 0) MakeIneffective(pitcher);
}

}  // namespace tarvane
