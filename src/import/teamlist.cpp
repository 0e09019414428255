#include "import/teamlist.h"

#include <fmt/core.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

#include "base/error.h"
#include "base/text.h"

namespace tarvane {

namespace {

constexpr std::size_t kLongestCode = 10;  // the width of the column

bool CodeTaken(const std::vector<LahmanTeam>& teams, std::string_view code) {
    return std::any_of(teams.begin(), teams.end(), [&](const LahmanTeam& team) { return team.KorvTeamID == code; });
}

std::string FreeCode(const std::vector<LahmanTeam>& teams, const LahmanTeam& team) {
    const std::string byTwo = fmt::format("{}{:02}", team.LahmanTeamID, team.yearID % 100);
    if (!CodeTaken(teams, byTwo)) return byTwo;
    std::string code = fmt::format("{}{}", team.LahmanTeamID, team.yearID);
    for (char letter = 'A'; CodeTaken(teams, code) && letter <= 'Z'; ++letter)
        code = fmt::format("{}{}{}", team.LahmanTeamID, team.yearID, letter);
    return code;
}

}  // namespace

int MainYear(const std::vector<LahmanTeam>& teams) {
    std::map<int, int> counts;
    double mean = 0;
    for (const LahmanTeam& team : teams) {
        ++counts[team.yearID];
        mean += static_cast<double>(team.yearID) / static_cast<double>(teams.size());
    }
    const auto less = [mean](const auto& a, const auto& b) {
        if (a.second != b.second) return a.second < b.second;
        return std::abs(a.first - mean) > std::abs(b.first - mean);
    };
    return std::max_element(counts.begin(), counts.end(), less)->first;
}

std::vector<LahmanTeam> ListTeams(const std::vector<TeamLine>& teams) {
    std::vector<LahmanTeam> list;
    for (const TeamLine& line : teams) {
        LahmanTeam& team = list.emplace_back();
        team.yearID = line.yearID;
        team.lgID = line.lgID;
        team.LahmanTeamID = team.KorvTeamID = line.teamID;
        team.franchID = line.franchID;
        team.divID = line.divID;
        team.name = line.name;
        team.W = line.W;
        team.L = line.L;
    }
    return list;
}

std::string TeamEntryText(const LahmanTeam& team) {
    return fmt::format("{} {} ({} - {})     Wins: {}   Losses: {}", team.yearID, team.name, team.KorvTeamID, team.lgID,
                       team.W, team.L);
}

std::string TeamCountText(std::size_t count) {
    return count == 1 ? "1 team for import" : fmt::format("{} teams for import", count);
}

std::string ShortName(std::string_view name) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 3> kTwoWords{
        {{"Toronto Blue Jays", "Blue Jays"}, {"Chicago White Sox", "White Sox"}, {"Boston Red Sox", "Red Sox"}}};
    name = Trim(name);
    for (const auto& [full, last] : kTwoWords)
        if (name == full) return std::string(last);
    const std::size_t blank = name.rfind(' ');
    return std::string(blank == std::string_view::npos ? name : name.substr(blank + 1));
}

std::vector<LahmanTeam> ChooseTeams(const std::vector<LahmanTeam>& list, const std::vector<TeamChoice>& choices) {
    std::vector<LahmanTeam> chosen = list;
    for (const TeamChoice& choice : choices) {
        bool found = false;
        for (LahmanTeam& team : chosen) {
            if (team.yearID != choice.yearID) continue;
            if (!choice.teamID.empty() && !EqualsIgnoreCase(team.LahmanTeamID, choice.teamID)) continue;
            team.Selected = found = true;
        }
        if (!found && choice.teamID.empty())
            throw UserError(fmt::format(
                "The statistics database has no teams of {}. Seasons from 1901 can be imported.", choice.yearID));
        if (!found)
            throw UserError(
                fmt::format("The statistics database has no team {} in {}. Codes are as in its table Teams.",
                            choice.teamID, choice.yearID));
    }
    std::erase_if(chosen, [](const LahmanTeam& team) { return !team.Selected; });
    return chosen;
}

std::optional<std::pair<std::size_t, std::size_t>> FindDuplicateCode(const std::vector<LahmanTeam>& teams) {
    for (std::size_t i = 0; i < teams.size(); ++i)
        for (std::size_t j = i + 1; j < teams.size(); ++j)
            if (teams[i].KorvTeamID == teams[j].KorvTeamID) return std::pair(i, j);
    return std::nullopt;
}

std::string CheckNewCodes(std::string_view teamID1, std::string_view teamID2) {
    if (Trim(teamID1).empty() || Trim(teamID2).empty()) return "Please specify Team ID.";
    const auto taken = [](std::string_view code) { return code == "998" || code == "999"; };
    const auto unfit = [](std::string_view code) {  // keys of tables and parts of file names
        return Utf8Length(code) > kLongestCode || code.find_first_of("'/\\") != std::string_view::npos;
    };
    if (teamID1 == "f/a" || taken(teamID1) || taken(teamID2) || unfit(teamID1) || unfit(teamID2))
        return "Invalid Team ID.";
    return {};
}

std::vector<std::string> MakeCodesUnique(std::vector<LahmanTeam>& teams) {
    std::vector<std::string> told;
    while (const auto pair = FindDuplicateCode(teams)) {
        LahmanTeam& later = teams[pair->second];
        const std::string code = FreeCode(teams, later);
        told.push_back(fmt::format("{} {} has the code {}, because {} is taken by {} {}.", later.yearID, later.name,
                                   code, later.KorvTeamID, teams[pair->first].yearID, teams[pair->first].name));
        later.KorvTeamID = code;
    }
    return told;
}

}  // namespace tarvane
