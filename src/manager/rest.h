#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "records/team.h"

namespace tarvane {

// Rest and injuries as the day before a game finds them. Days are days of the calendar year, 1 to 366: a rest that
// crosses the new year isn't followed.

struct RestingPitcher {
    std::string name;
    std::int32_t playerID = 0;
    int daysLeft = 0;
};

// Days of rest still owed on a day, that day included; 0 when he is free. A man who worked on day 100 and owes 4 days
// has one day left on day 104 and is free on day 105.
int RestDaysLeft(const Pitcher& pitcher, int dayNumber);

// The pitchers who rest on a day, in roster order. Rests that are over are cleared in the records, so that afterwards
// PitcherRestDays above 0 means: resting today.
std::vector<RestingPitcher> GetPitcherRest(TeamRoster& roster, int dayNumber);

// True if any record under the man's name rests: a starter who relieved yesterday has two records and one arm.
bool IsResting(const TeamRoster& roster, const Pitcher& pitcher);

// Takes one day off every rest and every injury of the roster.
void ReduceRestAndInjuries(TeamRoster& roster);

// The pitchers who could come into a game today: fit, free of rest, by roster index.
std::vector<int> GetUnrestedPitchers(const TeamRoster& roster);

// What is left of a resting man's stuff: every fourth ball is a single on which a runner scores from second, and of the
// rest none is an out of his own. He gives up some two runs an inning, but the inning ends: he may be the last man.
void MakeIneffective(Pitcher& pitcher);

// The chart above for every man who rests; call it once the rests are settled, before the charts are compiled. They may
// only come in when nobody else is left.
void MakeRestingIneffective(TeamRoster& roster);

}  // namespace tarvane
