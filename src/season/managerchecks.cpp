#include "season/managerchecks.h"

#include <fmt/core.h>

#include <algorithm>

#include "manager/lineups.h"
#include "manager/roster.h"

namespace tarvane {

namespace {

constexpr const char* kTitleLineups = "Computer Manager Lineups";
constexpr const char* kTitleRelievers = "Computer Manager Relievers";
constexpr const char* kTitleSubs = "Computer Manager Substitution";
constexpr const char* kSetLineups = "Go to Team Management screen to set lineups or use Generate Computer Manager.";
constexpr const char* kSetDepth = "Go to Team Management screen to set Depth or use Generate Computer Manager.";

const char* SideName(Side side) {
    return side == Side::Visitor ? "Visitor" : "Home";
}

ManagerFault Fault(Side side, const char* title, const std::string& text, const char* advice = "") {
    ManagerFault fault{title, fmt::format("{} Lineups - {}", SideName(side), text)};
    if (*advice != '\0') fault.text += fmt::format("\n{}", advice);
    return fault;
}

bool Used(const LineupList& list) {
    return std::any_of(list.slot.begin(), list.slot.end(), [](const ListSlot& s) { return s.playerID != 0; });
}

bool HasDuplicate(const LineupList& list) {
    for (std::size_t i = 0; i < list.slot.size(); ++i)
        for (std::size_t j = i + 1; j < list.slot.size(); ++j)
            if (list.slot[i].playerID != 0 && list.slot[i].playerID == list.slot[j].playerID &&
                list.slot[i].PlayerType == list.slot[j].PlayerType)
                return true;
    return false;
}

int MenOn(const TeamRoster& roster, char type) {
    const LineupList* list = FindList(roster, type);
    if (!list) return 0;
    return static_cast<int>(
        std::count_if(list->slot.begin(), list->slot.end(), [](const ListSlot& s) { return s.playerID != 0; }));
}

// The eight fielders stand, and the DH or the pitcher whose slot waits for the starter.
bool Complete(const LineupList& list, bool dhUsed) {
    const auto filled = [&list](Position position) {
        return std::any_of(list.slot.begin(), list.slot.end(), [position](const ListSlot& s) {
            return s.position == position && (s.playerID != 0 || position == Position::P);
        });
    };
    for (int p = static_cast<int>(Position::C); p <= static_cast<int>(Position::RF); ++p)
        if (!filled(static_cast<Position>(p))) return false;
    return dhUsed ? filled(Position::DH) : filled(Position::P) || filled(Position::DH);
}

const LineupList* ById(const TeamRoster& roster, std::int32_t lineupID) {
    for (const LineupList& list : roster.lists)
        if (lineupID != 0 && list.LineupType == 'L' && list.lineupID == lineupID) return &list;
    return nullptr;
}

ManagerFault CheckDuplicates(const TeamRoster& roster, Side side) {
    for (const LineupList& list : roster.lists)
        if (list.LineupType == 'L' && HasDuplicate(list))
            return Fault(
                side, kTitleLineups,
                fmt::format("{} team has duplicate player in saved lineup. ({})", SideName(side), list.LineupName),
                kSetLineups);
    return {};
}

ManagerFault CheckStaff(const TeamRoster& roster, Side side) {
    constexpr int kLeastStarters = 4, kLeastRelievers = 2;
    if (MenOn(roster, 'S') < kLeastStarters)
        return Fault(side, kTitleRelievers, "Computer Manager require at least four pitchers saved in Starters chart.",
                     kSetDepth);
    if (MenOn(roster, 'R') < kLeastRelievers)
        return Fault(side, kTitleRelievers, "Computer Manager requires at least two pitchers saved in Relievers chart.",
                     kSetDepth);
    return {};
}

// In a game with a DH some list must have one; lists without him are for other games.
ManagerFault CheckDH(const TeamRoster& roster, Side side, bool dhUsed) {
    if (!dhUsed) return {};
    for (const LineupList& list : roster.lists)
        if (list.LineupType == 'L' && HasDH(list)) return {};
    return Fault(
        side, kTitleLineups,
        fmt::format("{} Lineups is missing the DH position. go to Team Management screen to set lineups or use "
                    "Generate Lineups option on Computer Manager screen with DH option selected.",
                    SideName(side)));
}

ManagerFault CheckMarked(const TeamRoster& roster, Side side, bool dhUsed) {
    bool marked[2] = {false, false}, complete[2] = {false, false};
    for (const LineupList& list : roster.lists) {
        if (list.LineupType != 'L' || !Used(list)) continue;
        const int marks[2] = {list.BattingvsL, list.BattingvsR};
        for (int hand = 0; hand < 2; ++hand) {
            if (marks[hand] == 0) continue;
            marked[hand] = true;
            complete[hand] = complete[hand] || Complete(list, dhUsed);
        }
    }
    if (!marked[0] || !marked[1])
        return Fault(side, kTitleLineups, "Computer Manager requires at least one vs Left and vs Right Saved Lineup.",
                     kSetLineups);
    if (!complete[0] || !complete[1])
        return Fault(
            side, kTitleLineups,
            "Computer Manager requires all positions to be filled for at least one vs Left and vs Right Saved Lineup.",
            kSetLineups);
    return {};
}

}  // namespace

ManagerFault CheckComputerLineups(const TeamRoster& roster, Side side, bool dhUsed, std::int32_t scheduledLineup) {
    if (ManagerFault fault = CheckDuplicates(roster, side); fault.Any()) return fault;
    if (ManagerFault fault = CheckStaff(roster, side); fault.Any()) return fault;
    if (ManagerFault fault = CheckDH(roster, side, dhUsed); fault.Any()) return fault;
    const LineupList* scheduled = ById(roster, scheduledLineup);
    if (scheduled && !Complete(*scheduled, dhUsed))
        return Fault(side, kTitleLineups, "Computer Manager requires all positions to be filled for Scheduled Lineup.",
                     "Go to Team Management screen to set scheduled lineup or remove scheduled lineup.");
    return CheckMarked(roster, side, dhUsed);
}

ManagerFault CheckComputerDepth(const TeamRoster& roster, Side side) {
    for (const Position position : kDepthPositions) {
        const LineupList* list = FindList(roster, 'D', position);
        if (!list || !Used(*list))
            return Fault(side, kTitleSubs,
                         "Computer Manager requires at least one player for each Depth Chart position.", kSetDepth);
    }
    return {};
}

ManagerFault CheckManagerLists(const TeamRoster& roster, Side side, const SideControl& control, bool dhUsed,
                               std::int32_t scheduledLineup) {
    ManagerFault fault;
    if (control.lineups) fault = CheckComputerLineups(roster, side, dhUsed, scheduledLineup);
    if (!fault.Any() && control.subs) fault = CheckComputerDepth(roster, side);
    return fault;
}

}  // namespace tarvane
