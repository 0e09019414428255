#include "reports/leaders.h"

#include <gmock/gmock.h>

#include "base/error.h"
#include "data/datafixture.h"
#include "reports/playerlog.h"

namespace tarvane {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

using Fields = std::vector<std::pair<std::string, Value>>;

std::int64_t N(int number) {
    return number;
}

struct LeadersTest : ::testing::Test {
    TestDatabase season{TableHome::Season};

    std::int64_t Add(const std::string& table, const std::string& name, Fields fields) {
        Fields all{{"playerName", name}, {"teamID", "AAA"}, {"lgIdx", N(1)}};
        all.insert(all.end(), fields.begin(), fields.end());
        return season.Add(table, all);
    }
    void PlayGames(int games) {
        season.Add("KorvTeams", {{"teamID", "AAA"}, {"lgIdx", N(1)}, {"W", N(games)}});
        season.Add("KorvTeams", {{"teamID", "BBB"}, {"lgIdx", N(2)}, {"L", N(games)}});
    }
    // "name value" of the one list of that heading.
    std::vector<std::string> List(const std::string& category, LeadersChoice choice = {}) {
        choice.category = category;
        std::vector<std::string> lines;
        for (const auto& tables : {BattingLeaders(season.db, choice), PitchingLeaders(season.db, choice)})
            for (const ReportTable& table : tables)
                for (const auto& row : table.rows)
                    lines.push_back(FieldText(row[0], CellFormat::Text) + " " + FieldText(row[1], CellFormat::Text) +
                                    " " + FieldText(row[2], table.columns[2].format));
        return lines;
    }
};

TEST_F(LeadersTest, Minimums) {
    const LeaderMinimums before = LeaderMinimumsOf(season.db);
    EXPECT_EQ(before.plateAppearances, 0);
    EXPECT_EQ(before.outs, 3);
    EXPECT_EQ(before.decisions, 1);
    PlayGames(162);
    const LeaderMinimums full = LeaderMinimumsOf(season.db);
    EXPECT_EQ(full.plateAppearances, 502);
    EXPECT_EQ(full.outs, 486);
    EXPECT_EQ(full.decisions, 20);
    for (int games : {4, 5}) season.Add("TourneyTeams", {{"W", N(games)}});
    EXPECT_EQ(LeaderMinimumsOf(season.db, true).plateAppearances, 11);
    EXPECT_EQ(LeaderMinimumsOf(season.db, true).outs, 12);  // 4.5 games: the even number
}

TEST_F(LeadersTest, CountsAreInOrderWithTiesAsStored) {
    Add("KorvBatters", "Ann", {{"HR", N(3)}});
    Add("KorvBatters", "Bob", {{"HR", N(7)}});
    Add("KorvBatters", "Cal", {{"HR", N(3)}});
    Add("KorvBatters", "Dan", {{"HR", N(0)}});
    Add("KorvBatters", "Eve", {{"HR", N(9)}, {"NoLongerWithTeam", N(-1)}});
    EXPECT_THAT(List("hr"), ElementsAre("Bob AAA 7", "Ann AAA 3", "Cal AAA 3"));
    LeadersChoice two;
    two.top = 2;
    EXPECT_THAT(List("HR", two), ElementsAre("Bob AAA 7", "Ann AAA 3"));
    EXPECT_EQ(BattingLeaders(season.db).size(), 12U);
    EXPECT_EQ(PitchingLeaders(season.db).size(), 12U);
    EXPECT_THAT(List("no such list"), IsEmpty());
}

TEST_F(LeadersTest, MovedMenAndLeagues) {
    PlayGames(1);
    Add("KorvBatters", "Twice", {{"R", N(9)}, {"teamID", "998"}, {"ActualTeamID", "BBB"}});
    Add("KorvBatters", "Twice", {{"R", N(9)}});
    Add("KorvBatters", "Other", {{"R", N(8)}});
    Add("KorvBatters", "Free", {{"R", N(7)}, {"teamID", "998"}, {"ActualTeamID", "f/a"}});
    Add("KorvBatters", "Twice", {{"R", N(6)}});
    EXPECT_THAT(List("Runs"), ElementsAre("Twice BBB 9", "Other AAA 8", "Free f/a 7", "Twice AAA 6"));
    LeadersChoice league;
    league.lgIdx = 2;
    EXPECT_THAT(List("Runs", league), ElementsAre("Twice BBB 9"));
    league.lgIdx = 1;
    EXPECT_THAT(List("Runs", league), ElementsAre("Twice AAA 9", "Other AAA 8", "Twice AAA 6"));
}

TEST_F(LeadersTest, RatesAdmitThoseWithEnough) {
    PlayGames(10);  // 31 plate appearances, 30 outs, 1 decision
    Add("KorvBatters", "Walker",
        {{"AB", N(29)}, {"BB", N(1)}, {"HBP", N(1)}, {"Avg", 0.0625}, {"OBP", 0.2}, {"OPS", 0.7}});
    Add("KorvBatters", "Sitter", {{"AB", N(30)}, {"Avg", 0.5}, {"OBP", 0.5}, {"OPS", 1.0}});
    Add("KorvBatters", "Slugger", {{"AB", N(40)}, {"Avg", 1.0}, {"OPS", 2.0}});
    EXPECT_THAT(List("Average"), ElementsAre("Slugger AAA 1.000", "Walker AAA .063"));
    EXPECT_THAT(List("OPS"), ElementsAre("Walker AAA .700"));  // by OBP

    Add("KorvPitchers", "Ace", {{"IPOuts", N(30)}, {"ERA", 0.0}, {"WHIP", 1.006}, {"W", N(1)}, {"Pct", 1.0}});
    Add("KorvPitchers", "Mop", {{"IPOuts", N(31)}, {"ERA", 4.5}, {"WHIP", 0.8}, {"L", N(1)}});
    Add("KorvPitchers", "Arm", {{"IPOuts", N(29)}, {"ERA", 1.0}, {"WHIP", 0.5}});
    EXPECT_THAT(List("ERA"), ElementsAre("Ace AAA 0.00", "Mop AAA 4.50"));
    EXPECT_THAT(List("WHIP"), ElementsAre("Mop AAA 0.80", "Ace AAA 1.01"));
    EXPECT_THAT(List("W-L Pct"), ElementsAre("Ace AAA 1.000", "Mop AAA .000"));
    EXPECT_THAT(List("Innings Pitched"), ElementsAre("Mop AAA 10.1", "Ace AAA 10", "Arm AAA 9.2"));
}

struct PlayerLogTest : LeadersTest {
    void AddGame(const std::string& log, std::int64_t player, int game, const std::string& date, Fields fields) {
        Fields all{{"PlayerID", player}, {"GameID", N(game)}, {"GameDate", date}, {"TeamID", "AAA"}};
        all.insert(all.end(), fields.begin(), fields.end());
        season.Add(log, all);
    }
    std::string Fault(const std::string& name) {
        try {
            PlayerLog(season.db, name);
        } catch (const UserError& error) {
            return error.what();
        }
        return {};
    }
};

TEST_F(PlayerLogTest, GamesOfAManInBothRoles) {
    const std::int64_t bat = Add("KorvBatters", "Joe Both", {{"LahmanPlayerID", "both"}});
    const std::int64_t arm = Add("KorvPitchers", "Joe Both", {{"LahmanPlayerID", "both"}});
    const std::int64_t rest = Add("KorvPitchers", "Joe Both", {{"LahmanPlayerID", "both"}});
    AddGame("KorvBatterResultsLog", bat, 9, "1975-04-08", {{"AB", N(4)}, {"H", N(2)}});
    AddGame("KorvBatterResultsLog", bat, 3, "1975-04-07", {{"AB", N(5)}});
    AddGame("KorvBatterResultsLog", bat, 4, "1975-10-07", {{"TourneyGame", N(-1)}});
    AddGame("KorvPitcherResultsLog", arm, 3, "1975-04-07", {{"Games", N(1)}, {"IPOuts", N(7)}, {"OppHits", N(3)}});
    AddGame("KorvPitcherResultsLog", arm, 3, "1975-04-07", {{"AB", N(2)}});
    AddGame("KorvPitcherResultsLog", rest, 2, "1975-04-06", {{"Games", N(1)}, {"BF", N(2)}});
    EXPECT_EQ(RenderTables(PlayerLog(season.db, "joe both"), ReportForm::Csv),
              "Table,Date,Team,AB,R,H,HR,RBI,SB,BB,SO\n"
              "Game Log: joe both (batting),1975-04-07,AAA,5,0,0,0,0,0,0,0\n"
              "Game Log: joe both (batting),1975-04-08,AAA,4,0,2,0,0,0,0,0\n"
              "\nTable,Date,Team,IPOuts,OppHits,OppHR,OppBB,OppSO,OppRuns,ER,BF\n"
              "Game Log: joe both (pitching),1975-04-06,AAA,0,0,0,0,0,0,0,2\n"
              "Game Log: joe both (pitching),1975-04-07,AAA,7,3,0,0,0,0,0,0\n");
    EXPECT_EQ(PlayerLog(season.db, "Joe Both", "", true).at(0).rows.size(), 1U);
    EXPECT_THAT(Fault("Nobody"), HasSubstr("no player \"Nobody\""));
    Add("KorvBatters", "Joe Both", {{"LahmanPlayerID", "another"}, {"teamID", "BBB"}});
    EXPECT_THAT(Fault("Joe Both"), HasSubstr("--team"));
    EXPECT_EQ(PlayerLog(season.db, "Joe Both", "BBB").size(), 1U);
}

TEST(ReportForms, CsvAndJsonOfOddTexts) {
    const ReportTable table{
        "A \"title\"",
        {{"", "Name", CellFormat::Text}, {"", "GB", CellFormat::Halves}, {"", "Avg", CellFormat::Rate}},
        {{std::string("O'Hara, \"Ed\"\n"), Value(), 0.25}, {std::string("Peña"), 2.5, N(1)}}};
    EXPECT_EQ(RenderTables({table}, ReportForm::Csv), "Name,GB,Avg\n\"O'Hara, \"\"Ed\"\"\n\",,0.25\nPeña,2.5,1\n");
    EXPECT_EQ(RenderTables({table}, ReportForm::Json),
              "[\n {\"title\": \"A \\\"title\\\"\", \"rows\": [\n"
              "  {\"Name\": \"O'Hara, \\\"Ed\\\"\\u000a\", \"GB\": null, \"Avg\": 0.25},\n"
              "  {\"Name\": \"Peña\", \"GB\": 2.5, \"Avg\": 1}]}\n]\n");
    // Side by side, the second list shorter than the first; characters count, not bytes.
    const ReportTable one{"One",
                          {{"", "a", CellFormat::Text}, {"", "b", CellFormat::Whole}},
                          {{std::string("Peña"), N(7)}, {std::string("B"), N(10)}}};
    const ReportTable two{"Two", {{"", "a", CellFormat::Text}}, {{std::string("x")}}};
    EXPECT_EQ(RenderTables({one, two, one}, ReportForm::Text, 2),
              "One         Two\nPeña   7    x\nB     10\n\nOne\nPeña   7\nB     10\n\n");
}

}  // namespace
}  // namespace tarvane
