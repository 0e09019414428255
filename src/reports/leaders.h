#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/database.h"
#include "reports/table.h"

namespace tarvane {

struct LeadersChoice {
    int top = 10;             // rows of each list; 0: all
    std::int16_t lgIdx = 0;   // players of this league alone; 0: of all
    std::string category;     // one list, by its heading or column, case aside; empty: all
    bool tournament = false;  // the tournament's statistics
};

// What a player needs to be in a list of rates, from the mean of games that a team has played.
struct LeaderMinimums {
    long plateAppearances = 0;  // AB + BB + HBP: 3.098 a game, in a tournament 2.5
    long outs = 3;              // three for each game, of one game at least
    long decisions = 1;         // W + L: 0.123 a game, one at least
};
LeaderMinimums LeaderMinimumsOf(Database& season, bool tournament = false);

// Twelve lists each: player, team, value. Equal values stand in stored order, and a list ends at its length whoever
// ties its last row. A man whose row follows one of the same name is left out, so that nobody stands there twice for
// two rows with one value. Rows marked NoLongerWithTeam are out. Who has left his team (998) stands under ActualTeamID.
std::vector<ReportTable> BattingLeaders(Database& season, const LeadersChoice& choice = {});
std::vector<ReportTable> PitchingLeaders(Database& season, const LeadersChoice& choice = {});

// The headings of the lists, batting first.
std::vector<std::string> LeaderCategories();

}  // namespace tarvane
