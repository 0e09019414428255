#pragma once

#include <cstdint>
#include <vector>

#include "core/database.h"
#include "reports/table.h"

namespace tarvane {

struct StandingsChoice {
    bool expanded = true;    // with the columns Home, Div, Strk and WL10
    bool oneLeague = false;  // all teams in one table, numbered
    std::int16_t lgIdx = 0;  // groups of this league alone; 0: of all
};

// One table for each division that has teams; without divisions one for each league; without leagues one for all.
// Teams stand by Pct; of equal ones first those with fewer losses, then those with more wins, then in stored order. So
// 3-2 stands before 6-4, and 10-0 before 5-0. Games behind (key "GB") count against the first row, which shows none:
// half the wins and losses that it is better by, never below 0.
std::vector<ReportTable> Standings(Database& season, const StandingsChoice& choice = {});

struct TeamVsTeamChoice {
    bool interLeague = false;
    bool list = false;       // one list instead of tables
    std::int32_t team = 0;   // TeamIdx: the list is of this team alone; 0: of all
    std::int16_t lgIdx = 0;  // tables of this league alone; 0: of all
};

// Who won how often against whom: a table for each league to be read across for wins, with tables of the teams of one
// league against those of another if interLeague is set; or a list with wins and losses.
std::vector<ReportTable> TeamVersusTeam(Database& season, const TeamVsTeamChoice& choice = {});

}  // namespace tarvane
