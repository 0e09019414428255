#include "data/players.h"

#include <gmock/gmock.h>

#include "base/file.h"
#include "data/datafixture.h"

namespace tarvane {

using Fields = std::vector<std::pair<std::string, Value>>;

struct PlayersTest : testing::Test {
    TestDatabase season{TableHome::Season};
    LeagueRules rules;

    std::int64_t AddBatter(Fields fields) {
        fields.emplace_back("teamID", "BOS");
        return season.Add("KorvBatters", fields);
    }
    Batter Only(const Fields& fields) {
        AddBatter(fields);
        return LoadTeamBatters(season.db, "BOS", rules).back();
    }
    std::vector<std::string> Names(const PlayerLoad& load = {}) {
        std::vector<std::string> names;
        for (const Batter& batter : LoadTeamBatters(season.db, "BOS", rules, load)) names.push_back(batter.playerName);
        return names;
    }
};

TEST_F(PlayersTest, DefaultsForWhatIsNotThere) {
    const Batter batter = Only({{"playerName", "Al Bo  "},
                                {"SORating", 55},
                                {"vsLPowerRating", Value{}},
                                {"vsR20", Value{}},
                                {"vsR20Color", Value{}},
                                {"vsR21", ""}});
    EXPECT_EQ(batter.playerName, "Al Bo");
    EXPECT_EQ(batter.BBRating, 40);
    EXPECT_EQ(batter.SORating, 40);
    EXPECT_EQ(batter.vsLPowerRating, 0);
    EXPECT_EQ(batter.vsR[10], (ChartCell{" ", kGreenWord}));
    EXPECT_EQ(batter.vsR[11].text, " ");
    EXPECT_EQ(batter.injury.InjuryDate, " ");
    EXPECT_EQ(batter.DefText, "");
    EXPECT_EQ(batter.positionsShown, 0);
    EXPECT_TRUE(LoadTeamBatters(season.db, "NYA", rules).empty());
}

TEST_F(PlayersTest, ReadsChartsAndTotalsOfEachRow) {
    AddBatter({{"playerName", "First"},
               {"vsL10", "HR"},
               {"vsL39Color", -1},
               {"Doubles", 31},
               {"vsRight2B", 7},
               {"vsRSOChance", 0.25},
               {"Avg", 0.3125},
               {"runRating", 5}});
    AddBatter({{"playerName", "Second"}, {"vsL10", "K"}, {"vsR39", "(1+)"}, {"GIDP", 12}, {"vsLeftRC", 4.5}});
    const std::vector<Batter> batters = LoadTeamBatters(season.db, "BOS", rules);
    ASSERT_EQ(batters.size(), 2U);
    EXPECT_EQ(batters[0].vsL[0].text, "HR");
    EXPECT_EQ(batters[0].vsL[29].color, kStoredYellowWord);
    EXPECT_EQ(batters[0].total.Doubles, 31);
    EXPECT_EQ(batters[0].vsRight.Doubles, 7);
    EXPECT_EQ(batters[0].vsRChance.SO, 0.25);
    EXPECT_EQ(batters[0].rates.Avg, 0.3125);
    EXPECT_EQ(batters[0].runRating, 5);
    EXPECT_EQ(batters[1].vsL[0].text, "K");
    EXPECT_EQ(batters[1].vsR[29].text, "(1+)");
    EXPECT_EQ(batters[1].total.GIDP, 12);
    EXPECT_EQ(batters[1].vsLeftRates.RC, 4.5);
    EXPECT_EQ(batters[1].total.Doubles, 0);
}

TEST_F(PlayersTest, TextOfPositions) {
    EXPECT_EQ(Only({{"Pos1", "C "}, {"CatcherIRating", 1}, {"Pos1ErrorRating", "K"}}).DefText, "C  (I)K");
    const Fields several{{"Pos1", "SS"}, {"Pos1Rating", 2},  {"Pos1ErrorRating", "A"},
                         {"Pos3", "C"},  {"Pos3Rating", -3}, {"CatcherORating", 1},
                         {"Pos2", " "},  {"Pos2Rating", 9},  {"DefText", "old"}};
    const Batter batter = Only(several);
    EXPECT_EQ(batter.DefText, "SS+2A, C -3(O)V");
    EXPECT_EQ(batter.positionsShown, 2);
    EXPECT_EQ(batter.Pos[1], PositionRating{});
    EXPECT_EQ(batter.Pos[0].errorRating, 'A');
    rules.UseErrorRatings = false;
    EXPECT_EQ(Only(several).DefText, "SS+2, C -3(O)");
    EXPECT_EQ(Only({{"DefText", "as stored"}}).DefText, "as stored");
}

TEST_F(PlayersTest, OrderFollowsRulesAndTables) {
    AddBatter({{"playerName", "carl"}, {"LahmanPlayerID", "b"}});
    AddBatter({{"playerName", "Bob"}, {"LahmanPlayerID", "c"}});
    AddBatter({{"playerName", "Al"}, {"LahmanPlayerID", "a"}});
    using testing::ElementsAre;
    EXPECT_THAT(Names(), ElementsAre("carl", "Bob", "Al"));
    PlayerLoad load;
    load.hasBaseballReference = true;
    EXPECT_THAT(Names(load), ElementsAre("Al", "Bob", "carl"));
    load.chartEditorLoad = true;
    EXPECT_THAT(Names(load), ElementsAre("carl", "Bob", "Al"));
    rules.EnhancedInjury = true;
    EXPECT_THAT(Names(load), ElementsAre("Al", "carl", "Bob"));
}

TEST_F(PlayersTest, PositionsInOrderOfRealGames) {
    AddBatter({{"LahmanPlayerID", "x"}, {"Pos1", "SS"}, {"Pos1Rating", 1}, {"Pos2", "2B"}, {"Pos3", "LF"}});
    for (const auto& [position, games] : std::vector<std::pair<std::string, int>>{{"SS", 20}, {"2B", 90}, {"1B", 99}})
        season.Add("LahmanFielding", {{"playerID", "x"}, {"KorvTeamID", "BOS"}, {"Pos", position}, {"G", games}});
    season.Add("LahmanFielding", {{"playerID", "x"}, {"KorvTeamID", "NYA"}, {"Pos", "LF"}, {"G", 200}});
    const ActualPositions actual = LoadActualPositions(season.db, "BOS");
    PlayerLoad load;
    load.actualPositions = &actual;
    Batter batter = LoadTeamBatters(season.db, "BOS", rules, load).at(0);
    EXPECT_EQ(batter.DefText, "2B V, SS+1V");
    EXPECT_EQ(batter.positionsShown, 2);
    EXPECT_EQ(batter.Pos[0].position, Position::SS);  // the slots keep their order
    load.hasBaseballReference = true;
    EXPECT_EQ(LoadTeamBatters(season.db, "BOS", rules, load).at(0).DefText, "SS+1V, 2B V, LF V");
}

TEST_F(PlayersTest, ReleasedMenShowWhereTheyAre) {
    season.Add("KorvBatters", {{"teamID", "998"}, {"ActualTeamID", "f/a"}});
    EXPECT_EQ(LoadTeamBatters(season.db, "998", rules).at(0).teamID, "f/a");
}

TEST_F(PlayersTest, InjuriesAndImagesOnlyWhereTheyCount) {
    WriteFile(season.folder / "Al.jpg", "x");
    AddBatter({{"InjuredDays", 9}, {"InjuryDate", "June 1"}, {"ImageFile", "Al.jpg"}});
    PlayerLoad load;
    load.playerImages = season.folder.Path();
    const Batter hurt = LoadTeamBatters(season.db, "BOS", rules, load).at(0);
    EXPECT_EQ(hurt.injury.InjuredDays, 9);
    EXPECT_EQ(hurt.imagePath, (season.folder / "Al.jpg").string());
    rules.UseYellowXInjuryChart = false;
    EXPECT_EQ(LoadTeamBatters(season.db, "BOS", rules).at(0).injury, Injury{});
    EXPECT_EQ(LoadTeamBatters(season.db, "BOS", rules).at(0).imagePath, "");
}

TEST_F(PlayersTest, TournamentStatisticsReplaceTheLeague) {
    const std::int64_t played = AddBatter({{"HR", 40}, {"InjuredDays", 3}});
    AddBatter({{"HR", 11}});
    season.Add("TourneyBatters", {{"playerID", Value(played)}, {"teamID", "BOS"}, {"HR", 2}, {"InjuredDays", 8}});
    season.Add("TourneyBatters", {{"playerID", 999}, {"teamID", "BOS"}, {"HR", 5}});
    PlayerLoad load;
    load.useTourneyStats = true;
    const std::vector<Batter> batters = LoadTeamBatters(season.db, "BOS", rules, load);
    EXPECT_EQ(batters[0].total.HR, 2);
    EXPECT_EQ(batters[0].injury.InjuredDays, 8);
    EXPECT_EQ(batters[1].total.HR, 11);
    load.chartEditorLoad = true;
    EXPECT_EQ(LoadTeamBatters(season.db, "BOS", rules, load)[0].total.HR, 40);
    load.chartEditorLoad = false;
    rules.UseYellowXInjuryChart = false;
    EXPECT_EQ(LoadTeamBatters(season.db, "BOS", rules, load)[0].injury.InjuredDays, 0);
}

TEST_F(PlayersTest, Pitchers) {
    const Fields man{{"teamID", "BOS"}, {"playerName", "Cy "},  {"THROWS", 255},      {"pitch10", "K"},
                     {"pitch16", "1+"}, {"PitcherRestDays", 3}, {"PitchedOnDay", 40}, {"PitchLessRest", 2},
                     {"2B", 6},         {"IPOuts", 700},        {"Pos1", "P"},        {"Pos1Rating", -1}};
    for (const char* type : {"S", "R"}) {
        Fields row = man;
        row.emplace_back("pitcherType", type);
        season.Add("KorvPitchers", row);
    }
    std::vector<Pitcher> pitchers = LoadTeamPitchers(season.db, "BOS", rules);
    ASSERT_EQ(pitchers.size(), 2U);
    EXPECT_EQ(pitchers[0].pitcherType, 'S');
    EXPECT_EQ(pitchers[1].pitcherType, 'R');
    EXPECT_EQ(pitchers[0].throws_, kLeftHand);
    EXPECT_EQ(pitchers[0].pitch[0].text, "K");
    EXPECT_EQ(pitchers[0].batting.Doubles, 6);
    EXPECT_EQ(pitchers[0].total.IPOuts, 700);
    EXPECT_EQ(pitchers[0].DefText, "P -1V");
    EXPECT_EQ(pitchers[0].PitchLessRest, 0);
    EXPECT_EQ(pitchers[0].PitcherRestDays, 3);
    rules.DefChartEraID = 1;
    rules.TourneyType = "P";
    rules.EnhancedPitcherRestRule = true;
    pitchers = LoadTeamPitchers(season.db, "BOS", rules);
    EXPECT_EQ(pitchers[0].pitch[5], (ChartCell{"tbd", kGreenWord}));
    EXPECT_EQ(pitchers[0].pitch[6].text, "1+");
    EXPECT_EQ(pitchers[0].PitcherRestDays, 0);
    EXPECT_EQ(pitchers[0].PitchLessRest, 2);
    EXPECT_EQ(GetPitcherName(season.db, pitchers[0].playerID), "Cy");
    EXPECT_EQ(GetPitcherName(season.db, 77), "Unknown");
}

}  // namespace tarvane
