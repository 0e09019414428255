#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "import/lahmanrows.h"

namespace tarvane {

// A club of one year as the import lists it.
struct LahmanTeam {
    int yearID = 0;
    std::string lgID;          // "AL", "NL", "FL" and others
    std::string LahmanTeamID;  // code in the statistics database
    std::string KorvTeamID;    // code in the season; the same until a duplicate is given another
    std::string franchID;      // key of the colours
    std::string divID;         // "E", "C", "W" or empty
    std::string name;
    int W = 0, L = 0;
    bool Selected = false;

    friend bool operator==(const LahmanTeam&, const LahmanTeam&) = default;
};

// A chosen club on a command line: a year, or a year and a code.
struct TeamChoice {
    int yearID = 0;
    std::string teamID;  // empty: all of the year
};

// The year most teams are of; of several the one nearest to the mean of all teams' years. teams isn't empty.
int MainYear(const std::vector<LahmanTeam>& teams);

std::vector<LahmanTeam> ListTeams(const std::vector<TeamLine>& teams);

// "1927 New York Yankees (NYA - AL)     Wins: 110   Losses: 44"
std::string TeamEntryText(const LahmanTeam& team);

// "1 team for import", "16 teams for import".
std::string TeamCountText(std::size_t count);

// Last word of the name, but both of the Red Sox, the White Sox and the Blue Jays of Toronto.
std::string ShortName(std::string_view name);

// The teams chosen, in the order of the list, each once. Throws UserError for a year or code that isn't there.
std::vector<LahmanTeam> ChooseTeams(const std::vector<LahmanTeam>& list, const std::vector<TeamChoice>& choices);

// The first pair of teams with one code: places in the list.
std::optional<std::pair<std::size_t, std::size_t>> FindDuplicateCode(const std::vector<LahmanTeam>& teams);

// What is wrong with the new codes of such a pair, as the user is told it; empty if they will do.
std::string CheckNewCodes(std::string_view teamID1, std::string_view teamID2);

// Without a person to ask: of the teams with one code the first keeps it, the others get the code and two digits of
// their year ("NYA61"), or four, or a letter too if that is taken. Gives a line to tell for each change.
std::vector<std::string> MakeCodesUnique(std::vector<LahmanTeam>& teams);

}  // namespace tarvane
