#include <fmt/core.h>

#include <map>

#include "data/teams.h"
#include "reports/standings.h"

namespace tarvane {

namespace {

using WinsTable = std::map<std::pair<std::int32_t, std::int32_t>, std::int64_t>;  // of the first over the second

WinsTable ReadWins(Database& season) {
    WinsTable wins;
    Statement rows = season.Prepare("SELECT TeamIndex, vsTeamIndex, vsTeamWins FROM TeamVsTeam");
    while (rows.Step())
        wins[{static_cast<std::int32_t>(rows.Int(0)), static_cast<std::int32_t>(rows.Int(1))}] = rows.Int(2);
    return wins;
}

std::vector<Team> TeamsOf(const std::vector<Team>& teams, std::int16_t lgIdx) {
    std::vector<Team> found;
    for (const Team& team : teams)
        if (team.lgIdx == lgIdx) found.push_back(team);
    return found;
}

ReportTable CrossTable(std::string title, const std::vector<Team>& down, const std::vector<Team>& across,
                       const WinsTable& wins) {
    ReportTable table{std::move(title), {{"", "Team", CellFormat::Text}}, {}};
    for (const Team& team : across) table.columns.push_back({team.teamID, team.teamID, CellFormat::Whole});
    for (const Team& team : down) {
        std::vector<Value>& row = table.rows.emplace_back();
        row.emplace_back(team.teamID);
        for (const Team& other : across) {
            const auto found = wins.find({team.TeamIdx, other.TeamIdx});
            Value& cell = row.emplace_back();
            if (team.TeamIdx != other.TeamIdx && found != wins.end()) cell = found->second;
        }
    }
    return table;
}

std::vector<ReportTable> CrossTables(const std::vector<Team>& teams, const std::vector<League>& leagues,
                                     const WinsTable& wins, const TeamVsTeamChoice& choice) {
    constexpr const char* kBothWays = "{} (read across for wins, down for losses)";
    if (leagues.size() < 2)
        return {
            CrossTable(fmt::format(kBothWays, leagues.empty() ? "All teams" : leagues[0].lgName), teams, teams, wins)};
    std::vector<ReportTable> tables;
    for (const League& league : leagues) {
        if (choice.lgIdx != 0 && league.lgIdx != choice.lgIdx) continue;
        const std::vector<Team> down = TeamsOf(teams, league.lgIdx);
        tables.push_back(CrossTable(fmt::format(kBothWays, league.lgName), down, down, wins));
        if (!choice.interLeague) continue;
        for (const League& other : leagues)
            if (other.lgIdx != league.lgIdx)
                tables.push_back(CrossTable(fmt::format("{} vs {} (read across for wins)", league.lgName, other.lgName),
                                            down, TeamsOf(teams, other.lgIdx), wins));
    }
    return tables;
}

ReportTable VersusList(const std::vector<Team>& teams, const WinsTable& wins, const TeamVsTeamChoice& choice) {
    ReportTable table{"Team vs Team",
                      {{"Team Name", "Team", CellFormat::Text},
                       {"Abbrev", "Abbrev", CellFormat::Text},
                       {"Wins", "Wins", CellFormat::Whole},
                       {"Losses", "Losses", CellFormat::Whole}},
                      {}};
    for (const Team& team : teams) {
        if (choice.team != 0 && team.TeamIdx != choice.team) continue;
        table.rows.push_back({team.fullName, team.teamID, std::int64_t{team.W}, std::int64_t{team.L}});
        for (const Team& other : teams) {
            const auto won = wins.find({team.TeamIdx, other.TeamIdx});
            if (other.TeamIdx == team.TeamIdx || won == wins.end()) continue;
            if (other.lgIdx != team.lgIdx && !choice.interLeague) continue;
            const auto lost = wins.find({other.TeamIdx, team.TeamIdx});
            table.rows.push_back({std::string("      Versus"), other.teamID, won->second,
                                  lost == wins.end() ? std::int64_t{0} : lost->second});
        }
    }
    return table;
}

}  // namespace

std::vector<ReportTable> TeamVersusTeam(Database& season, const TeamVsTeamChoice& choice) {
    const std::vector<Team> teams = LoadTeamList(season, {});
    const WinsTable wins = ReadWins(season);
    if (choice.list) return {VersusList(teams, wins, choice)};
    return CrossTables(teams, LoadLeagues(season).leagues, wins, choice);
}

}  // namespace tarvane
