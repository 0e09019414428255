#include "reports/standings.h"

#include <gmock/gmock.h>

#include "data/datafixture.h"
#include "reports/schedulereport.h"

namespace tarvane {
namespace {

using ::testing::ElementsAre;

std::int64_t N(int number) {
    return number;
}

struct StandingsTest : ::testing::Test {
    TestDatabase season{TableHome::Season};

    std::int32_t Add(const std::string& code, int won, int lost, int lgIdx = 1, int divIdx = 1) {
        const double pct = won + lost > 0 ? static_cast<double>(won) / (won + lost) : 0;
        return static_cast<std::int32_t>(season.Add("KorvTeams", {{"teamID", code},
                                                                  {"fullName", code + "  "},
                                                                  {"W", N(won)},
                                                                  {"L", N(lost)},
                                                                  {"Pct", pct},
                                                                  {"lgIdx", N(lgIdx)},
                                                                  {"divIdx", N(divIdx)}}));
    }
    void AddLeague(int lgIdx, const std::string& name, std::vector<std::pair<int, std::string>> divisions) {
        season.Add("Leagues", {{"lgIdx", N(lgIdx)}, {"lgName", name}});
        for (const auto& [divIdx, division] : divisions)
            season.Add("Divisions", {{"lgIdx", N(lgIdx)}, {"divIdx", N(divIdx)}, {"divName", division}});
    }
};

std::vector<std::string> Column(const ReportTable& table, const std::string& key) {
    std::vector<std::string> cells;
    for (const auto& row : table.rows)
        for (std::size_t c = 0; c < row.size(); ++c)
            if (table.columns[c].key == key) cells.push_back(FieldText(row[c], table.columns[c].format));
    return cells;
}

std::vector<std::string> Titles(const std::vector<ReportTable>& tables) {
    std::vector<std::string> titles;
    for (const ReportTable& table : tables) titles.push_back(table.title);
    return titles;
}

TEST_F(StandingsTest, OrderTiesAndGamesBehind) {
    Add("six-four", 6, 4);
    Add("none-five", 0, 5);
    Add("five-none", 5, 0);
    Add("three-two", 3, 2);
    Add("none-three", 0, 3);
    Add("ten-none", 10, 0);
    Add("also-three-two", 3, 2);
    const ReportTable table = Standings(season.db).at(0);
    EXPECT_THAT(Column(table, "Team"), ElementsAre("ten-none", "five-none", "three-two", "also-three-two", "six-four",
                                                   "none-three", "none-five"));
    EXPECT_THAT(Column(table, "GB"), ElementsAre("", "2.5", "4.5", "4.5", "4", "6.5", "7.5"));
    EXPECT_THAT(Column(table, "Pct"), ElementsAre("1.000", "1.000", ".600", ".600", ".600", ".000", ".000"));
}

TEST_F(StandingsTest, NobodyIsAheadOfTheFirst) {
    Add("more games", 60, 40);
    Add("fewer", 2, 1);
    EXPECT_THAT(Column(Standings(season.db).at(0), "GB"), ElementsAre("", "0"));
}

TEST_F(StandingsTest, FormOfATeam) {
    Add("new", 0, 0);
    const std::int32_t old = Add("old", 5, 3);
    season.db.Execute(
        "UPDATE KorvTeams SET WinLossStreak = 'L', StreakNumberGames = 2, HomeWins = 4, HomeLosses = 1, DivWins = 2, "
        "DivLosses = 3, Game1WL = 'W', Game2WL = 'W', Game3WL = 'L', RF = 40, RA = 31 WHERE TeamIdx = ?",
        {N(old)});
    const ReportTable table = Standings(season.db).at(0);
    EXPECT_EQ(RenderTables({table}, ReportForm::Text),
              "Standings\n"
              "     W  L   Pct  GB  RF  RA  Home  Div  Strk  WL10\n"
              "old  5  3  .625      40  31   4-1  2-3    L2   2-1\n"
              "new  0  0  .000   1   0   0   0-0  0-0         0-0\n\n");
    StandingsChoice plain;
    plain.expanded = false;
    EXPECT_EQ(Standings(season.db, plain).at(0).columns.size(), 7U);
}

TEST_F(StandingsTest, GroupsOfTheSeason) {
    AddLeague(1, "American League", {{1, "East"}, {2, "West"}});
    AddLeague(2, "National League", {{1, "East"}, {3, "Nobody"}});
    Add("a", 1, 0, 1, 1);
    Add("b", 0, 1, 1, 2);
    Add("c", 2, 0, 2, 1);  // the same number as the other league's division
    EXPECT_THAT(Titles(Standings(season.db)),
                ElementsAre("American League East", "American League West", "National League East"));
    EXPECT_THAT(Column(Standings(season.db).at(0), "Team"), ElementsAre("a"));
    StandingsChoice one;
    one.oneLeague = true;
    EXPECT_THAT(Column(Standings(season.db, one).at(0), "Team"), ElementsAre("1. c", "2. a", "3. b"));
    season.db.Execute("DELETE FROM Divisions");
    const auto leagues = Standings(season.db);
    EXPECT_THAT(Titles(leagues), ElementsAre("American League", "National League"));
    EXPECT_THAT(Column(leagues.at(0), "Team"), ElementsAre("a", "b"));
}

TEST_F(StandingsTest, TeamVersusTeam) {
    AddLeague(1, "A League", {});
    AddLeague(2, "B League", {});
    for (const auto& [code, league] : {std::pair{"a1", 1}, {"b1", 2}, {"a2", 1}}) Add(code, 9, 8, league);
    for (int a = 1; a <= 3; ++a)
        for (int b = 1; b <= 3; ++b)
            season.Add("TeamVsTeam", {{"TeamIndex", N(a)}, {"vsTeamIndex", N(b)}, {"vsTeamWins", N(10 * a + b)}});
    const auto tables = TeamVersusTeam(season.db);
    EXPECT_EQ(RenderTables({tables}, ReportForm::Text),
              "A League (read across for wins, down for losses)\n"
              "    a1  a2\na1      13\na2  31\n\n"
              "B League (read across for wins, down for losses)\n"
              "    b1\nb1\n\n");
    TeamVsTeamChoice choice;
    choice.interLeague = true;
    const auto all = TeamVersusTeam(season.db, choice);
    ASSERT_EQ(all.size(), 4U);
    EXPECT_EQ(all[1].title, "A League vs B League (read across for wins)");
    EXPECT_THAT(Column(all[1], "b1"), ElementsAre("12", "32"));
    choice.list = true;
    choice.team = 3;
    EXPECT_THAT(Column(TeamVersusTeam(season.db, choice).at(0), "Wins"), ElementsAre("9", "31", "32"));
    EXPECT_THAT(Column(TeamVersusTeam(season.db, choice).at(0), "Losses"), ElementsAre("8", "13", "23"));
    choice.interLeague = false;
    EXPECT_THAT(Column(TeamVersusTeam(season.db, choice).at(0), "Abbrev"), ElementsAre("a2", "a1"));
}

TEST_F(StandingsTest, ScheduleReport) {
    for (const char* code : {"a", "b", "c"}) Add(code, 0, 0);
    for (const auto& [visitor, home] : {std::pair{1, 2}, {1, 2}, {2, 1}, {3, 1}})
        season.Add("Schedule", {{"VisitorTeamIndex", N(visitor)}, {"HomeTeamIndex", N(home)}});
    EXPECT_EQ(RenderTables({ScheduleReport(season.db)}, ReportForm::Csv),
              "Team,Abbrev,Road,Home\n"
              "a,a,2,2\n      Versus,b,2,1\n      Versus,c,0,1\n"
              "b,b,1,2\n      Versus,a,1,2\n"
              "c,c,1,0\n      Versus,a,1,0\n");
}

}  // namespace
}  // namespace tarvane
