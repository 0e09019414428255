#include "reports/standings.h"

#include <fmt/core.h>

#include <algorithm>
#include <functional>

#include "base/text.h"
#include "data/rowreader.h"
#include "data/teams.h"

namespace tarvane {

namespace {

struct StandingsRow {
    std::int16_t lgIdx = 0, divIdx = 0;
    double Pct = 0;
    std::string TeamName;
    std::int64_t Won = 0, Lost = 0, RunsFor = 0, RunsAgainst = 0;
    std::string HomeRecord, DivRecord, Streak, LastTen;
};

std::string LastTenOf(RowReader& row) {
    int won = 0, lost = 0;
    for (int game = 1; game <= 10; ++game) {
        const std::string result = row.TextOf("Game", game, "WL");
        won += result == "W" ? 1 : 0;
        lost += result == "L" ? 1 : 0;
    }
    return fmt::format("{}-{}", won, lost);
}

std::string StreakOf(RowReader& row) {
    const std::string kind = row.Text("WinLossStreak");
    const auto length = row.Number<std::int16_t>("StreakNumberGames");
    return Trim(kind).empty() ? std::string("   ") : fmt::format("{}{}", kind, length);
}

std::vector<StandingsRow> ReadStandings(Database& season) {
    std::vector<StandingsRow> rows;
    RowReader row(season.Prepare("SELECT * FROM KorvTeams ORDER BY TeamIdx"));
    while (row.Next()) {
        StandingsRow& team = rows.emplace_back();
        team.lgIdx = row.Number<std::int16_t>("lgIdx");
        team.divIdx = row.Number<std::int16_t>("divIdx");
        team.Pct = row.Double("Pct");
        team.TeamName = TrimRight(row.Text("fullName"));
        team.Won = row.Number<std::int16_t>("W");
        team.Lost = row.Number<std::int16_t>("L");
        team.RunsFor = row.Number<std::int16_t>("RF");
        team.RunsAgainst = row.Number<std::int16_t>("RA");
        const auto homeWins = row.Number<std::int16_t>("HomeWins");
        team.HomeRecord = fmt::format("{}-{}", homeWins, row.Number<std::int16_t>("HomeLosses"));
        const auto divWins = row.Number<std::int16_t>("DivWins");
        team.DivRecord = fmt::format("{}-{}", divWins, row.Number<std::int16_t>("DivLosses"));
        team.Streak = StreakOf(row);
        team.LastTen = LastTenOf(row);
    }
    return rows;
}

bool StandsBefore(const StandingsRow& a, const StandingsRow& b) {
    if (a.Pct != b.Pct) return a.Pct > b.Pct;
    if (a.Lost != b.Lost) return a.Lost < b.Lost;
    return a.Won > b.Won;
}

std::vector<ReportColumn> StandingsColumns(bool expanded) {
    std::vector<ReportColumn> columns{{"", "Team", CellFormat::Text},   {"W", "W", CellFormat::Whole},
                                      {"L", "L", CellFormat::Whole},    {"Pct", "Pct", CellFormat::Rate},
                                      {"GB", "GB", CellFormat::Halves}, {"RF", "RF", CellFormat::Whole},
                                      {"RA", "RA", CellFormat::Whole}};
    if (expanded)
        for (const char* title : {"Home", "Div", "Strk", "WL10"}) columns.push_back({title, title, CellFormat::Record});
    return columns;
}

ReportTable StandingsTable(std::string title, std::vector<StandingsRow> teams, const StandingsChoice& choice) {
    std::stable_sort(teams.begin(), teams.end(), StandsBefore);
    ReportTable table{std::move(title), StandingsColumns(choice.expanded), {}};
    for (const StandingsRow& team : teams) {
        const StandingsRow& first = teams.front();
        const auto lead = (first.Won - team.Won) + (team.Lost - first.Lost);
        const Value behind =
            table.rows.empty() ? Value() : Value(static_cast<double>(std::max<std::int64_t>(lead, 0)) / 2);
        const std::string name =
            choice.oneLeague ? fmt::format("{}. {}", table.rows.size() + 1, team.TeamName) : team.TeamName;
        std::vector<Value>& row = table.rows.emplace_back();
        row = {name, team.Won, team.Lost, team.Pct, behind, team.RunsFor, team.RunsAgainst};
        if (choice.expanded)
            for (const std::string& text : {team.HomeRecord, team.DivRecord, team.Streak, team.LastTen})
                row.emplace_back(text);
    }
    return table;
}

using InGroup = std::function<bool(const StandingsRow&)>;

void AddGroup(const std::string& title, const std::vector<StandingsRow>& all, const InGroup& inGroup,
              const StandingsChoice& choice, std::vector<ReportTable>& tables) {
    std::vector<StandingsRow> teams;
    std::copy_if(all.begin(), all.end(), std::back_inserter(teams), inGroup);
    if (!teams.empty()) tables.push_back(StandingsTable(title, std::move(teams), choice));
}

const League* LeagueOf(const LeagueTables& groups, std::int16_t lgIdx) {
    for (const League& league : groups.leagues)
        if (league.lgIdx == lgIdx) return &league;
    return nullptr;
}

}  // namespace

std::vector<ReportTable> Standings(Database& season, const StandingsChoice& choice) {
    const std::vector<StandingsRow> teams = ReadStandings(season);
    const LeagueTables groups = LoadLeagues(season);
    std::vector<ReportTable> tables;
    if (choice.oneLeague || (groups.divisions.empty() && groups.leagues.empty())) {
        AddGroup(
            "Standings", teams, [](const StandingsRow&) { return true; }, choice, tables);
    } else if (!groups.divisions.empty()) {
        const bool manyLeagues = groups.leagues.size() > 1;
        for (const Division& division : groups.divisions) {
            if (choice.lgIdx != 0 && division.lgIdx != choice.lgIdx) continue;
            const League* league = LeagueOf(groups, division.lgIdx);
            const std::string title = fmt::format("{} {}", league ? league->lgName : "", division.divName);
            AddGroup(
                std::string(Trim(title)), teams,
                [&](const StandingsRow& team) {
                    return team.divIdx == division.divIdx && (!manyLeagues || team.lgIdx == division.lgIdx);
                },
                choice, tables);
        }
    } else {
        for (const League& league : groups.leagues) {
            if (choice.lgIdx != 0 && league.lgIdx != choice.lgIdx) continue;
            AddGroup(
                league.lgName, teams, [&](const StandingsRow& team) { return team.lgIdx == league.lgIdx; }, choice,
                tables);
        }
    }
    return tables;
}

}  // namespace tarvane
