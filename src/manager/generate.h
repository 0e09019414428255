#pragma once

#include "manager/realuse.h"
#include "records/team.h"

namespace tarvane {

// Which line-ups are made: with a DH, without, or first the one kind and then the other.
enum class DHLists { None, DH, NoDH, Both };

struct GenerateOptions {
    DHLists lineups = DHLists::Both;
    bool depth = true, starters = true, relievers = true, closers = true;
    bool tendencies = true;
    bool ignoreInactive = false;  // leaves inactive and injured men out
    bool basedOnUsage = false;    // real statistics decide; counts as off where there are none
};

// The names of the generated line-ups, in the order in which the lists are filled: vs Left, then vs Right.
inline constexpr const char* kGeneratedNames[2][2] = {{"#1 vs Left DH", "#1 vs Right DH"},
                                                      {"#1 vs Left No DH", "#1 vs Right No DH"}};

inline constexpr int kDepthMen = 5;  // men on a generated depth chart or pitching list

// Fills a team's lists and tendencies from its players: the first line-ups, the ten depth charts, the rotation, the
// relievers and the closers, as far as the options ask for them. Lists that the team lacks are added to roster.lists
// with lineupID 0. real may be null. Equal men stand in the order of their playerID.
void GenerateComputerManager(TeamRoster& roster, const GenerateOptions& options, const RealUse* real = nullptr);

// --- its three parts ---

// usage: real is there and decides. RelieverUsage keeps its value: nothing in a roster tells it.
void GenerateTendencies(TeamRoster& roster, const RealUse* real, bool usage);
// Returns whether the option of actual usage still holds: a pitcher without statistics ends it.
void GenerateHitters(TeamRoster& roster, const GenerateOptions& options, const RealUse* real, bool usage);
void GeneratePitchers(TeamRoster& roster, const GenerateOptions& options, const RealUse* real, bool usage);

// The list of that type, added to the roster if it isn't there; number counts the line-ups from 1.
LineupList& EnsureList(TeamRoster& roster, char type, Position depth = Position::None, int number = 1);

}  // namespace tarvane
