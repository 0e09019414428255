#include "data/teams.h"

#include <fmt/core.h>

#include <algorithm>

#include "base/text.h"
#include "data/lineups.h"
#include "data/rowreader.h"

namespace tarvane {

namespace {

Team ReadTeam(RowReader& row, std::int16_t place) {
    Team team;
    team.TeamIdx = row.Number<std::int32_t>("TeamIdx");
    team.teamID = row.Text("teamID");
    team.fullName = TrimRight(row.Text("fullName"));
    team.shortName = TrimRight(row.Text("shortName"));
    team.yearID = row.Number<std::int16_t>("yearID", place);
    team.lgIdx = row.Number<std::int16_t>("lgIdx");
    team.divIdx = row.Number<std::int16_t>("divIdx");
    team.lgId = row.Text("lgId");
    team.divId = row.Text("divId");
    team.HomeDH = row.Bool("HomeDH");
    team.ParkID = row.Number<std::int32_t>("ParkID");
    team.AnthemType = row.Letter("AnthemType", 'U');
    team.ComputerManaged = row.Bool("ComputerManaged");
    team.AlwaysHumanManaged = row.Bool("AlwaysHumanManaged");
    team.ImageFile = row.Text("ImageFile");
    team.HmBackClr = row.Number<std::int32_t>("HmBackClr");
    team.HmForeClr = row.Number<std::int32_t>("HmForeClr");
    team.RdBackClr = row.Number<std::int32_t>("RdBackClr");
    team.RdForeClr = row.Number<std::int32_t>("RdForeClr");
    team.ActualWins = row.Number<std::int16_t>("ActualWins");
    team.ActualLosses = row.Number<std::int16_t>("ActualLosses");
    team.W = row.Number<std::int16_t>("W");
    team.L = row.Number<std::int16_t>("L");
    return team;
}

// A team in the bracket is known by its tournament row.
void OverlayTourneyTeams(Database& season, std::vector<Team>& teams) {
    RowReader row(season.Prepare("SELECT * FROM TourneyTeams ORDER BY rowid"));
    while (row.Next()) {
        const auto index = row.Number<std::int32_t>("TeamIdx");
        const std::string code = row.Text("teamID");
        const auto wins = row.Number<std::int16_t>("W");
        const auto losses = row.Number<std::int16_t>("L");
        for (Team& team : teams) {
            if (team.TeamIdx != index) continue;
            team.teamID = code;
            team.W = wins;
            team.L = losses;
            team.inTournament = true;
        }
    }
}

std::vector<Team> ReadTeams(Database& season) {
    std::vector<Team> teams;
    RowReader row(season.Prepare("SELECT * FROM KorvTeams ORDER BY TeamIdx"));
    while (row.Next()) teams.push_back(ReadTeam(row, static_cast<std::int16_t>(teams.size() + 1)));
    return teams;
}

}  // namespace

std::vector<Team> LoadTeamList(Database& season, const LeagueRules& rules) {
    std::vector<Team> teams = ReadTeams(season);
    if (rules.TourneyType == "D" || rules.TourneyType == "T")
        for (Team& team : teams) team.lgIdx = 0;
    if (rules.TourneyMode) OverlayTourneyTeams(season, teams);
    return teams;
}

const Team* FindTeamByIndex(const std::vector<Team>& teams, std::int32_t teamIdx) {
    const auto found =
        std::find_if(teams.begin(), teams.end(), [teamIdx](const Team& team) { return team.TeamIdx == teamIdx; });
    return found == teams.end() || teamIdx == 0 ? nullptr : &*found;
}

const Team* FindTeamByCode(const std::vector<Team>& teams, std::string_view teamID) {
    const auto found =
        std::find_if(teams.begin(), teams.end(), [teamID](const Team& team) { return team.teamID == teamID; });
    return found == teams.end() ? nullptr : &*found;
}

LeagueTables LoadLeagues(Database& season) {
    LeagueTables tables;
    RowReader league(season.Prepare("SELECT * FROM Leagues ORDER BY rowid LIMIT 3"));
    while (league.Next())
        tables.leagues.push_back({league.Number<std::int16_t>("lgIdx"), league.Text("lgName"), league.Text("shortName"),
                                  league.Number<std::int32_t>("EraID")});
    RowReader division(season.Prepare("SELECT * FROM Divisions ORDER BY rowid LIMIT 12"));
    while (division.Next())
        tables.divisions.push_back({division.Number<std::int16_t>("lgIdx"), division.Number<std::int16_t>("divIdx"),
                                    division.Text("divName")});
    return tables;
}

ManagerTendencies LoadTendencies(Database& season, const std::string& teamID) {
    Statement statement = season.Prepare("SELECT * FROM ComputerManager WHERE teamID = ?");
    statement.Bind(1, teamID);
    RowReader row(std::move(statement));
    ManagerTendencies tendencies;
    int rows = 0;
    while (row.Next()) {
        ++rows;
        const auto tendency = [&row](std::string_view name) {
            const auto value = row.Number<std::uint8_t>(name, 2);
            return value >= 1 && value <= 3 ? value : std::uint8_t{2};
        };
        tendencies.Bunting = tendency("Bunting");
        tendencies.BaseStealing = tendency("BaseStealing");
        tendencies.BaseRunning = tendency("BaseRunning");
        tendencies.PinchHitting = tendency("PinchHitting");
        tendencies.PinchRunning = tendency("PinchRunning");
        tendencies.RelieverUsage = tendency("RelieverUsage");
        tendencies.DefensiveSubs = tendency("DefensiveSubs");
    }
    if (rows != 1)
        throw DatabaseError(DatabaseError::kNoCurrentRecord,
                            fmt::format("{}: the table ComputerManager has {} rows for the team {} in place of one.",
                                        season.Path().string(), rows, teamID));
    return tendencies;
}

std::vector<FieldingRow> LoadTeamFielding(Database& season, const std::string& teamID, bool tourneyStats) {
    Statement statement = season.Prepare(fmt::format("SELECT * FROM {} WHERE teamID = ? ORDER BY rowid",
                                                     tourneyStats ? "TourneyFieldingStats" : "FieldingStats"));
    statement.Bind(1, teamID);
    RowReader row(std::move(statement));
    std::vector<FieldingRow> rows;
    while (row.Next()) {
        FieldingRow& line = rows.emplace_back();
        line.teamID = row.Text("teamID");
        line.playerID = row.Number<std::int32_t>("playerID");
        line.playerType = row.Letter("playerType", 'B');
        line.PlayerName = TrimRight(row.Text("PlayerName"));
        line.position = PositionFromText(row.Text("Position"));
        line.GamesAtPos = row.Number<std::int16_t>("GamesAtPos");
        line.PutOuts = row.Number<std::int16_t>("PutOuts");
        line.Assists = row.Number<std::int16_t>("Assists");
        line.DoublePlays = row.Number<std::int16_t>("DoublePlays");
        line.Errors = row.Number<std::int16_t>("Errors");
        line.PassBalls = row.Number<std::int16_t>("PassBalls");
        line.OpponentSB = row.Number<std::int16_t>("OpponentSB");
        line.OpponentCS = row.Number<std::int16_t>("OpponentCS");
        line.FieldingPct = row.Double("FieldingPct");
        line.GreatDefensivePlays = row.Number<std::int16_t>("GreatDefensivePlays");
    }
    return rows;
}

TeamRoster LoadTeamRoster(Database& season, const std::string& teamID, const LeagueRules& rules,
                          const PlayerLoad& load) {
    TeamRoster roster;
    const std::vector<Team> teams = LoadTeamList(season, rules);
    const Team* team = FindTeamByCode(teams, teamID);
    if (team == nullptr) throw UserError(fmt::format("{}: the season has no team {}.", season.Path().string(), teamID));
    roster.team = *team;
    roster.batters = LoadTeamBatters(season, teamID, rules, load);
    roster.pitchers = LoadTeamPitchers(season, teamID, rules, load);
    roster.lists = LoadTeamLineups(season, teamID);
    roster.tendencies = LoadTendencies(season, teamID);
    return roster;
}

void CreateTeamVsTeam(Database& season) {
    Transaction transaction(season);
    season.Execute("DELETE FROM TeamVsTeam");
    season.Execute(
        "INSERT INTO TeamVsTeam (TeamIndex, vsTeamIndex, vsTeamWins) SELECT a.TeamIdx, b.TeamIdx, 0 "
        "FROM KorvTeams a, KorvTeams b ORDER BY a.TeamIdx, b.TeamIdx");
    transaction.Commit();
}

}  // namespace tarvane
