#include <fmt/core.h>

#include "manager/lineups.h"
#include "manager/roster.h"

namespace tarvane {

namespace {

constexpr int kLeastGamesForUse = 4;
constexpr int kMostDaysReduced = 120;  // the longest rest or injury there is stays well under it

std::string LineupsHead(Side side) {
    return side == Side::Visitor ? "Visitor Lineups - " : "Home Lineups - ";
}

bool FreeToStart(const TeamRoster& roster, const Pitcher& pitcher) {
    return pitcher.pitcherType == 'S' && CanPlay(pitcher) && !IsResting(roster, pitcher);
}

// His share of the team's starts is above the share that he really had.
bool StartedEnough(const TeamRoster& roster, int index, const RealUse& real) {
    const int teamGames = roster.team.W + roster.team.L;
    if (teamGames < kLeastGamesForUse || real.teamGames <= 0) return false;
    const RealPitching& known = real.PitcherAt(index);
    return known.found &&
           roster.pitchers[static_cast<std::size_t>(index)].total.GS * real.teamGames > known.GS * teamGames;
}

struct Rotation {
    std::vector<int> men;  // roster indexes from the man after the last starter on
};

Rotation RotationFrom(const TeamRoster& roster, std::int32_t lastStarter) {
    Rotation rotation;
    const LineupList* list = FindList(roster, 'S');
    if (!list) return rotation;
    std::vector<std::int32_t> ids;
    for (const ListSlot& slot : list->slot)
        if (slot.playerID != 0) ids.push_back(slot.playerID);
    std::size_t first = 0;
    for (std::size_t i = 0; i < ids.size(); ++i)
        if (ids[i] == lastStarter) first = i + 1;
    for (std::size_t i = 0; i < ids.size(); ++i) {
        const int index = PitcherIndexOf(roster, ids[(first + i) % ids.size()]);
        if (index >= 0) rotation.men.push_back(index);
    }
    return rotation;
}

int WalkRotation(const TeamRoster& roster, const Rotation& rotation, const RealUse* usage) {
    for (const int index : rotation.men)
        if (FreeToStart(roster, roster.pitchers[static_cast<std::size_t>(index)]) &&
            !(usage && StartedEnough(roster, index, *usage)))
            return index;
    return -1;
}

// The best of the free starters outside the rotation.
int SpareStarter(const TeamRoster& roster) {
    int best = -1;
    for (std::size_t i = 0; i < roster.pitchers.size(); ++i) {
        if (!FreeToStart(roster, roster.pitchers[i])) continue;
        if (best < 0 || OutShare(roster.pitchers[i]) > OutShare(roster.pitchers[static_cast<std::size_t>(best)]))
            best = static_cast<int>(i);
    }
    return best;
}

int ScheduledStarter(const TeamRoster& roster, const StarterRequest& request, std::vector<std::string>& messages) {
    if (request.scheduledStarter == 0 || request.ignoreScheduled) return -1;
    const int index = PitcherIndexOf(roster, request.scheduledStarter);
    if (index < 0) return -1;
    const Pitcher& pitcher = roster.pitchers[static_cast<std::size_t>(index)];
    if (pitcher.pitcherType != 'S') {
        messages.push_back(
            fmt::format("{}Starting pitcher in scheduled lineup {} is reliever and cannot be used as Starting "
                        "Pitcher. Go to Team Management screen to update scheduled starting pitcher.",
                        LineupsHead(request.side), pitcher.playerName));
        return -1;
    }
    return FreeToStart(roster, pitcher) ? index : -1;
}

void NameRelievers(const TeamRoster& roster, const Rotation& rotation, Side side, std::vector<std::string>& messages) {
    for (const int index : rotation.men) {
        const Pitcher& pitcher = roster.pitchers[static_cast<std::size_t>(index)];
        if (pitcher.pitcherType != 'S')
            messages.push_back(
                fmt::format("{}Saved starting rotation pitcher {} is reliever and cannot be used as Starting "
                            "Pitcher. Go to Team Management screen to update saved Starting Rotation.",
                            LineupsHead(side), pitcher.playerName));
    }
}

}  // namespace

ChosenStarter ChooseStarter(TeamRoster& roster, const StarterRequest& request, const RealUse* real) {
    ChosenStarter choice;
    choice.pitcher = ScheduledStarter(roster, request, choice.messages);
    if (choice.pitcher >= 0) return choice;
    const Rotation rotation = RotationFrom(roster, request.lastStarter);
    NameRelievers(roster, rotation, request.side, choice.messages);
    const RealUse* usage = request.actualUsage && real && real->present ? real : nullptr;
    while (true) {
        // The share of starts gives way before a man outside the rotation starts, and that before a man without his
        // rest.
        if (usage) choice.pitcher = WalkRotation(roster, rotation, usage);
        if (choice.pitcher < 0) choice.pitcher = WalkRotation(roster, rotation, nullptr);
        if (choice.pitcher < 0) choice.pitcher = SpareStarter(roster);
        if (choice.pitcher >= 0 || !request.mayReduceRest || choice.daysReduced == kMostDaysReduced) break;
        ReduceRestAndInjuries(roster);
        GetPitcherRest(roster, request.dayNumber);
        ++choice.daysReduced;
    }
    if (choice.pitcher < 0)
        choice.messages.push_back(LineupsHead(request.side) + "Computer Manager cannot resolve Starting Pitcher. ");
    return choice;
}

}  // namespace tarvane
