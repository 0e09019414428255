#include "data/resets.h"

#include <gmock/gmock.h>

#include <set>

#include "base/file.h"
#include "data/datafixture.h"
#include "data/images.h"
#include "data/toplists.h"

namespace tarvane {

namespace fs = std::filesystem;

struct ResetsTest : testing::Test {
    TestDatabase season{TableHome::Season};
    LeagueRules rules;
    MessageList messages;

    void Play(int visitor, int home, int visitorScore, int homeScore, bool played = true) {
        season.Add("Schedule", {{"VisitorTeamIndex", visitor},
                                {"HomeTeamIndex", home},
                                {"VisitorScore", visitorScore},
                                {"HomeScore", homeScore},
                                {"Played", played ? -1 : 0}});
    }
    std::string LastTen(int team) {
        std::string text;
        for (int i = 1; i <= 10; ++i)
            text += std::get<std::string>(season.Get("KorvTeams", "Game" + std::to_string(i) + "WL", team));
        return text + std::get<std::string>(season.Get("KorvTeams", "WinLossStreak", team)) +
               std::to_string(std::get<std::int64_t>(season.Get("KorvTeams", "StreakNumberGames", team)));
    }
    int Count(const std::string& table) { return season.db.OpenRecordset(table).RecordCount(); }
    std::int64_t Number(const std::string& table, const std::string& field) {
        return season.db.OpenRecordset(table).GetInt(field, -99);
    }
};

TEST_F(ResetsTest, Streaks) {
    season.Add("KorvTeams", {{"teamID", "A"}, {"WinLossStreak", "L"}});
    season.Add("KorvTeams", {{"teamID", "B"}, {"WinLossStreak", "L"}, {"Game4WL", "W"}});
    Play(1, 2, 3, 3);  // a tie: both lose
    Play(2, 1, 0, 9, false);
    Play(2, 1, 2, 5);
    Play(1, 2, 4, 1);
    RebuildStreaks(season.db, 1);
    EXPECT_EQ(LastTen(1), "LWW       W2");
    EXPECT_EQ(LastTen(2), "   W      L0");
    for (int i = 0; i < 9; ++i) Play(1, 2, 0, i + 1);
    RebuildStreaks(season.db);
    EXPECT_EQ(LastTen(1), "WLLLLLLLLLL9");  // the first two are gone
    EXPECT_EQ(LastTen(2), "LWWWWWWWWWW9");
}

TEST_F(ResetsTest, ScheduleGoesBackToUnplayed) {
    ResetScheduleStats(season.db, rules, messages);
    EXPECT_THAT(messages.lines, testing::ElementsAre("Reset League Stats: Schedule data error - contact Tarvane"));
    season.Add("Schedule", {{"Played", 1},
                            {"DivGame", 1},
                            {"Innings", 9},
                            {"ResultsFile1", "B1.htm"},
                            {"HomeHR", 3},
                            {"HomePitcherAutoOuts", 2},
                            {"VisitorTeamIndex", 4},
                            {"VisitorLineupNbr", 7}});
    ResetScheduleStats(season.db, rules, messages);
    for (const char* field : {"Played", "DivGame", "Innings", "HomeHR", "HomePitcherAutoOuts"})
        EXPECT_EQ(Number("Schedule", field), 0) << field;
    EXPECT_EQ(season.db.OpenRecordset("Schedule").GetText("ResultsFile1"), " ");
    EXPECT_EQ(Number("Schedule", "VisitorTeamIndex"), 4);
    EXPECT_EQ(Number("Schedule", "VisitorLineupNbr"), 7);

    rules.TourneyMode = true;
    for (const auto& [round, losers] : {std::pair{1, 0}, std::pair{2, 0}, std::pair{1, -1}})
        season.Add("TourneySchedule", {{"TourneyRound", round},
                                       {"LosersBracket", losers},
                                       {"HomeTeamIndex", 3},
                                       {"GameNotNeeded", 1},
                                       {"SeriesNbr", 5},
                                       {"VisitorScore", 1}});
    ResetScheduleStats(season.db, rules, messages);
    std::string kept;
    for (Recordset rs = season.db.OpenRecordset("TourneySchedule"); !rs.EndOfFile(); rs.MoveNext()) {
        kept += std::to_string(rs.GetInt("HomeTeamIndex"));
        EXPECT_FALSE(rs.GetBool("GameNotNeeded"));
        EXPECT_EQ(rs.GetInt("SeriesNbr"), 5);
        EXPECT_EQ(rs.GetInt("VisitorScore"), 0);
    }
    EXPECT_EQ(kept, "300");
}

TEST_F(ResetsTest, LeagueStatistics) {
    season.Add("LeagueRules", {{"NextResultsFile", 88}});
    season.Add("KorvTeams", {{"ParkID", 6},
                             {"ActualWins", 90},
                             {"W", 5},
                             {"Game10WL", "W"},
                             {"FieldingPct", 0.9},
                             {"Round4L", 1},
                             {"WinLossStreak", "W"},
                             {"HmBackClr", 12}});
    season.Add("TeamVsTeam", {{"vsTeamWins", 3}});
    season.Add("KorvBatters", {{"runRating", 5},
                               {"HR", 40},
                               {"vsRightRC", 2.5},
                               {"InjuredDays", 3},
                               {"vsL20", "2"},
                               {"InjuryDate", "May 1"},
                               {"NoLongerWithTeam", 1},
                               {"ImageFile", "x.jpg"}});
    season.Add(
        "KorvPitchers",
        {{"tiredRating", 20}, {"OppHR", 4}, {"RC", 1.5}, {"PitcherRestDays", 3}, {"IPOutsToday", 9}, {"Inactive", 1}});
    season.Add("TourneyBatters", {{"HR", 2}});
    season.Add("FieldingStats", {{"Errors", 1}});
    season.Add("TourneyFieldingStats", {{"Errors", 1}});
    for (const char* log : {"KorvBatterResultsLog", "KorvPitcherResultsLog"})
        for (int tourney : {0, -1}) season.Add(log, {{"TourneyGame", tourney}});
    const fs::path results = season.folder / "Game Results";
    fs::create_directories(results / "Bsub");
    for (const char* name : {"B1.htm", "s2.txt", "G3.xls", "T4.htm", "P5.htm", "Bfile"}) WriteFile(results / name, "");

    ResetLeagueStats(season.db, rules, results, messages);
    for (const char* field : {"W", "FieldingPct", "Round4L"}) EXPECT_EQ(Number("KorvTeams", field), 0) << field;
    for (const char* field : {"HR", "vsRightRC", "InjuredDays"}) EXPECT_EQ(Number("KorvBatters", field), 0) << field;
    for (const char* field : {"OppHR", "RC", "PitcherRestDays", "IPOutsToday"})
        EXPECT_EQ(Number("KorvPitchers", field), 0) << field;
    EXPECT_EQ(season.db.OpenRecordset("KorvTeams").GetText("Game10WL"), " ");
    EXPECT_EQ(season.db.OpenRecordset("KorvTeams").GetText("WinLossStreak"), "");
    EXPECT_EQ(season.db.OpenRecordset("KorvBatters").GetText("InjuryDate"), " ");
    // What isn't a statistic stays.
    EXPECT_EQ(Number("KorvTeams", "ParkID"), 6);
    EXPECT_EQ(Number("KorvTeams", "ActualWins"), 90);
    EXPECT_EQ(Number("KorvTeams", "HmBackClr"), 12);
    EXPECT_EQ(Number("KorvBatters", "runRating"), 5);
    EXPECT_EQ(Number("KorvBatters", "NoLongerWithTeam"), -1);
    EXPECT_EQ(season.db.OpenRecordset("KorvBatters").GetText("vsL20"), "2");
    EXPECT_EQ(season.db.OpenRecordset("KorvBatters").GetText("ImageFile"), "x.jpg");
    EXPECT_EQ(Number("KorvPitchers", "tiredRating"), 20);
    EXPECT_EQ(Number("KorvPitchers", "Inactive"), -1);
    EXPECT_EQ(Number("TourneyBatters", "HR"), 2);
    EXPECT_EQ(Number("TeamVsTeam", "vsTeamWins"), 0);
    EXPECT_EQ(Count("FieldingStats"), 0);
    EXPECT_EQ(Count("TourneyFieldingStats"), 1);
    EXPECT_EQ(Count("KorvBatterResultsLog"), 1);
    EXPECT_EQ(Number("KorvPitcherResultsLog", "TourneyGame"), -1);
    EXPECT_EQ(Number("LeagueRules", "NextResultsFile"), 1);
    std::set<std::string> left;
    for (const auto& entry : fs::directory_iterator(results)) left.insert(entry.path().filename().string());
    EXPECT_THAT(left, testing::ElementsAre("Bsub", "P5.htm", "T4.htm"));
    EXPECT_EQ(messages.lines.back(), "Organize Teams and Leagues: League stats have been reset");
}

TEST_F(ResetsTest, TournamentStatistics) {
    rules.TourneyMode = true;
    rules.TourneyType = "P";
    season.Add("LeagueRules", {});
    season.Add("KorvTeams", {{"W", 5}});
    season.Add("TeamVsTeam", {{"vsTeamWins", 3}});
    season.Add("TourneyTeams", {{"RF", 5}, {"LRound2W", 1}});
    season.Add("TourneyPitchers", {{"PitcherRestDays", 3}, {"W", 2}});
    season.Add("KorvBatterResultsLog", {{"TourneyGame", 0}});
    ResetLeagueStats(season.db, rules, season.folder / "none", messages);
    EXPECT_EQ(Number("KorvTeams", "W"), 5);
    EXPECT_EQ(Number("TeamVsTeam", "vsTeamWins"), 3);
    EXPECT_EQ(Number("TourneyTeams", "RF"), 0);
    EXPECT_EQ(Number("TourneyTeams", "LRound2W"), 0);
    EXPECT_EQ(Number("TourneyPitchers", "PitcherRestDays"), 3);
    EXPECT_EQ(Number("TourneyPitchers", "W"), 0);
    EXPECT_EQ(Count("KorvBatterResultsLog"), 1);
}

TEST_F(ResetsTest, LogsOfAnOldFile) {
    season.Add("LeagueRules", {});
    season.Add("KorvBatterResultsLog", {});
    season.db.Execute("ALTER TABLE KorvBatterResultsLog DROP COLUMN TourneyGame");
    rules.TourneyMode = true;
    ResetLeagueStats(season.db, rules, season.folder / "none", messages);
    EXPECT_EQ(Count("KorvBatterResultsLog"), 1);
    rules.TourneyMode = false;
    ResetLeagueStats(season.db, rules, season.folder / "none", messages);
    EXPECT_EQ(Count("KorvBatterResultsLog"), 0);
}

TEST_F(ResetsTest, TopTenth) {
    TopBatterLists lists;
    lists.TopHRPlayers = {7};
    season.Add("KorvTeams", {{"W", 5}, {"L", 4}});
    season.Add("KorvTeams", {});
    for (int i = 1; i <= 30; ++i)
        season.Add("KorvBatters", {{"AB", i == 29 ? 10 : 20},
                                   {"Avg", i / 100.0},
                                   {"SLG", 0.9 - i / 100.0},
                                   {"HR", i % 5},
                                   {"NoLongerWithTeam", i == 1 ? -1 : 0}});
    BuildTopBatterLists(season.db, false, lists);
    EXPECT_THAT(lists.TopHRPlayers, testing::ElementsAre(7));  // nine games: too early
    season.db.Execute("UPDATE KorvTeams SET W = 6 WHERE TeamIdx = 1");
    BuildTopBatterLists(season.db, false, lists);  // 15 plate appearances needed, three places
    EXPECT_THAT(lists.TopAvgPlayers, testing::ElementsAre(30, 28));
    EXPECT_THAT(lists.TopSLGPlayers, testing::ElementsAre(2, 3, 4));
    EXPECT_THAT(lists.TopHRPlayers, testing::ElementsAre(4, 9, 14));
}

TEST_F(ResetsTest, Photographs) {
    for (const char* name : {"Al_Smith.png", "al_smithBOS.JPG", "Al_Smith.bmp", "Bo.jpg", "Ty_van Dyke.jpg"})
        WriteFile(season.folder / name, "");
    season.Add("KorvBatters", {{"playerName", "Al Smith "}, {"teamID", "BOS"}});
    season.Add("KorvBatters", {{"playerName", "Al Smith"}, {"teamID", "NYA"}});
    season.Add("KorvBatters", {{"playerName", "Cy Young"}, {"teamID", "NYA"}, {"ImageFile", "kept.jpg"}});
    season.Add("KorvPitchers", {{"playerName", "Ty van Dyke"}, {"teamID", "NYA"}});
    EXPECT_EQ(AssignPlayerImages(season.db, season.folder.Path()), 3);
    EXPECT_EQ(season.Get("KorvBatters", "ImageFile", 1), Value(std::string("al_smithBOS.JPG")));
    EXPECT_EQ(season.Get("KorvBatters", "ImageFile", 2), Value(std::string("Al_Smith.bmp")));
    EXPECT_EQ(season.Get("KorvBatters", "ImageFile", 3), Value(std::string("kept.jpg")));
    EXPECT_EQ(season.Get("KorvPitchers", "ImageFile", 1), Value(std::string("Ty_van Dyke.jpg")));
}

}  // namespace tarvane
