#include "data/teams.h"

#include <gmock/gmock.h>

#include "data/datafixture.h"
#include "data/lineups.h"

namespace tarvane {

struct TeamsTest : testing::Test {
    TestDatabase season{TableHome::Season};
    LeagueRules rules;

    void AddTeams(std::initializer_list<const char*> codes) {
        for (const char* code : codes) {
            season.Add("KorvTeams", {{"teamID", code}, {"fullName", std::string(code) + " Club  "}, {"lgIdx", 1}});
            season.Add("ComputerManager", {{"teamID", code}, {"Bunting", 3}, {"PinchHitting", 9}});
        }
    }
};

TEST_F(TeamsTest, ListAndTournamentOverlay) {
    EXPECT_TRUE(LoadTeamList(season.db, rules).empty());
    AddTeams({"BOS", "NYA", "DET"});
    season.Add("TourneyTeams", {{"TeamIdx", 2}, {"teamID", "NYX"}, {"W", 3}, {"L", 1}});
    std::vector<Team> teams = LoadTeamList(season.db, rules);
    EXPECT_EQ(teams[2].yearID, 3);  // no year: its place
    EXPECT_EQ(teams[1].fullName, "NYA Club");
    EXPECT_EQ(teams[1].lgIdx, 1);
    EXPECT_EQ(FindTeamByIndex(teams, 2)->teamID, "NYA");
    EXPECT_EQ(FindTeamByIndex(teams, 0), nullptr);
    EXPECT_EQ(FindTeamByCode(teams, "nya"), nullptr);
    rules.TourneyMode = true;
    rules.TourneyType = "D";
    teams = LoadTeamList(season.db, rules);
    EXPECT_EQ(teams[1].teamID, "NYX");
    EXPECT_EQ(teams[1].W, 3);
    EXPECT_TRUE(teams[1].inTournament);
    EXPECT_FALSE(teams[0].inTournament);
    EXPECT_EQ(teams[0].lgIdx, 0);
    rules.TourneyType = "P";
    EXPECT_EQ(LoadTeamList(season.db, rules)[0].lgIdx, 1);
}

TEST_F(TeamsTest, LineupsComeByThemselvesAndLosePlayers) {
    CreateTeamLineups(season.db, "");
    EXPECT_EQ(season.db.OpenRecordset("Lineups").RecordCount(), 0);
    std::vector<LineupList> lists = LoadTeamLineups(season.db, "BOS");
    ASSERT_EQ(lists.size(), 64U);
    EXPECT_EQ(LoadTeamLineups(season.db, "BOS").size(), 64U);
    std::string types;
    for (const LineupList& list : lists) types += list.LineupType;
    EXPECT_EQ(types, std::string(50, 'L') + "DDDDDDDDDDSRCL");
    EXPECT_EQ(lists[53].DepthType, "SS");

    lists[0].slot[8] = {77, Position::C, 'B'};
    lists[0].slot[0] = {77, Position::P, 'P'};
    lists[0].LineupName = "#1 vs Left DH";
    lists[0].playerIDP = 5;
    lists[0].GameID = 12;
    SaveLineup(season.db, lists[0]);
    lists[63].slot[4] = {77, Position::None, 'B'};
    SaveLineup(season.db, lists[63]);
    LoadTeamLineups(season.db, "NYA");
    LineupList other = LoadTeamLineups(season.db, "NYA")[0];
    other.slot[2] = {77, Position::SS, 'B'};
    SaveLineup(season.db, other);

    EXPECT_EQ(LoadTeamLineups(season.db, "BOS")[0].slot[8].position, Position::C);
    RemovePlayerFromLineups(season.db, "BOS", 77, 'B');
    const std::vector<LineupList> after = LoadTeamLineups(season.db, "BOS");
    EXPECT_EQ(after[0].slot[8].playerID, 0);
    EXPECT_EQ(after[0].slot[8].position, Position::None);
    EXPECT_EQ(after[0].slot[0].playerID, 77);  // the pitcher of the same number
    EXPECT_EQ(after[0].LineupName, "#1 vs Left DH");
    EXPECT_EQ(after[0].playerIDP, 5);
    EXPECT_EQ(after[0].GameID, 12);
    EXPECT_EQ(after[63].slot[4].playerID, 0);
    EXPECT_EQ(LoadTeamLineups(season.db, "NYA")[0].slot[2].playerID, 77);
    other.lineupID = 9999;
    EXPECT_THROW(SaveLineup(season.db, other), DatabaseError);
}

TEST_F(TeamsTest, AnOldLineupsTableGetsItsLastColumn) {
    season.db.Execute("ALTER TABLE Lineups DROP COLUMN GameID");
    EXPECT_EQ(LoadTeamLineups(season.db, "BOS").at(0).GameID, 0);
    EXPECT_EQ(season.db.FieldCount("Lineups"), 36);
}

TEST_F(TeamsTest, EveryPairOfTeams) {
    AddTeams({"A", "B", "C", "D"});
    CreateTeamVsTeam(season.db);
    season.db.Execute("UPDATE TeamVsTeam SET vsTeamWins = 5");
    CreateTeamVsTeam(season.db);
    EXPECT_EQ(season.db.OpenRecordset("TeamVsTeam").RecordCount(), 16);
    EXPECT_EQ(season.db.OpenRecordset("TeamVsTeam", "TeamIndex = 3 AND vsTeamIndex = 3").GetInt("vsTeamWins", 7), 0);
}

TEST_F(TeamsTest, RosterNeedsTeamAndOneManager) {
    AddTeams({"BOS"});
    const TeamRoster roster = LoadTeamRoster(season.db, "BOS", rules);
    EXPECT_EQ(roster.tendencies.Bunting, 3);
    EXPECT_EQ(roster.tendencies.PinchHitting, 2);  // 9 is none of the three
    EXPECT_EQ(roster.lists.size(), 64U);
    EXPECT_THROW(LoadTeamRoster(season.db, "NYA", rules), UserError);
    season.Add("ComputerManager", {{"teamID", "BOS"}});
    EXPECT_THROW(LoadTeamRoster(season.db, "BOS", rules), DatabaseError);
}

TEST_F(TeamsTest, FieldingAndLeagues) {
    season.Add("FieldingStats",
               {{"teamID", "BOS"}, {"Position", "C "}, {"GreatDefensivePlays", Value{}}, {"Errors", 3}});
    season.Add("TourneyFieldingStats", {{"teamID", "BOS"}, {"Position", "SS"}, {"PutOuts", 4}});
    EXPECT_EQ(LoadTeamFielding(season.db, "BOS", false).at(0).position, Position::C);
    EXPECT_EQ(LoadTeamFielding(season.db, "BOS", false).at(0).GreatDefensivePlays, 0);
    EXPECT_EQ(LoadTeamFielding(season.db, "BOS", true).at(0).PutOuts, 4);
    for (int i = 1; i <= 5; ++i) season.Add("Leagues", {{"lgIdx", i}, {"lgName", "L"}});
    for (int i = 1; i <= 14; ++i) season.Add("Divisions", {{"lgIdx", 1}, {"divIdx", i}});
    EXPECT_EQ(LoadLeagues(season.db).leagues.size(), 3U);
    EXPECT_EQ(LoadLeagues(season.db).divisions.size(), 12U);
}

}  // namespace tarvane
