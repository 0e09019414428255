// Games of a bracket: posted to the tournament's tables, leaving the league's alone.

#include <gtest/gtest.h>

#include "postingseason.h"
#include "season/seasonhash.h"
#include "season/tourneybracket.h"

namespace tarvane {
namespace {

class Tournament : public ::testing::Test {
  protected:
    // Teams 1 to 4 in two series of at most three games and a final of five, after a part of the league's season.
    void SetUp() override {
        made_ = testing::MakeScheduledSeason(3);
        testing::PlaySome(*made_, 16);
        Database& db = *made_->season;
        db.Execute("UPDATE LeagueRules SET TourneyMode = -1, TourneyType = 'P'");
        db.Execute(
            "INSERT INTO TourneyTeams (TeamIdx, teamID) SELECT TeamIdx, teamID FROM KorvTeams WHERE TeamIdx < 5");
        const std::string men = " WHERE teamID IN (SELECT teamID FROM TourneyTeams)";
        db.Execute(
            "INSERT INTO TourneyBatters (playerID, teamID, playerName) SELECT playerID, teamID, playerName FROM "
            "KorvBatters" +
            men);
        db.Execute(
            "INSERT INTO TourneyPitchers (playerID, teamID, playerName, PitcherRestDays, PitchedOnDay) SELECT "
            "playerID, teamID, playerName, PitcherRestDays, PitchedOnDay FROM KorvPitchers" +
            men);
        AddSeries(1, 1, 3, 3, 1, 2);
        AddSeries(2, 1, 3, 3, 3, 4);
        AddSeries(3, 2, 5, 0, 0, 0);
    }
    void AddSeries(int series, int round, int games, int next, int home, int visitor) {
        for (int game = 1; game <= games; ++game) {
            const std::string date = fmt::format("1975-10-{:02}", 4 + 10 * (round - 1) + 2 * game);
            made_->season->Execute(
                "INSERT INTO TourneySchedule (SeriesNbr, TourneyRound, NbrOfRounds, GamesNeededToWin, "
                "AdvanceToSeriesNbr, GameDate, HomeTeamIndex, VisitorTeamIndex) VALUES (?, ?, 2, ?, ?, ?, ?, ?)",
                {std::int64_t{series}, std::int64_t{round}, std::int64_t{(games + 1) / 2}, std::int64_t{next}, date,
                 std::int64_t{home}, std::int64_t{visitor}});
        }
    }
    std::int64_t Number(const std::string& sql) {
        Statement row = made_->season->Prepare(sql);
        return row.Step() ? row.Int(0) : -1;
    }
    // What the league's tables say, in one text.
    std::string League() {
        std::string all;
        for (const char* sql :
             {"SELECT sum(W), sum(L), sum(AB), sum(IPOuts), sum(PutOuts), group_concat(WinLossStreak || "
              "StreakNumberGames) FROM KorvTeams",
              "SELECT sum(AB), sum(R), sum(G), sum(InjuredDaysRemaining) FROM KorvBatters",
              "SELECT sum(IPOuts), sum(W), sum(PitcherRestDays), sum(PitchedOnDay) FROM KorvPitchers",
              "SELECT sum(GamesAtPos), sum(PutOuts) FROM FieldingStats", "SELECT sum(vsTeamWins) FROM TeamVsTeam",
              "SELECT sum(Played), sum(HomeScore) FROM Schedule",
              "SELECT count(*) FROM KorvBatterResultsLog WHERE TourneyGame = 0"}) {
            Statement row = made_->season->Prepare(sql);
            row.Step();
            for (int column = 0; column < row.ColumnCount(); ++column) all += row.Text(column) + " ";
        }
        return all;
    }
    std::unique_ptr<testing::PlayableSeason> made_;
};

TEST_F(Tournament, IsPlayedToItsEndInTablesOfItsOwn) {
    const std::string league = League();
    const long played = testing::PlaySome(*made_, 1000).played;
    EXPECT_EQ(League(), league);
    EXPECT_EQ(testing::PlaySome(*made_, 1000).played, 0);
    EXPECT_EQ(Number("SELECT count(*) FROM TourneySchedule WHERE Played <> 0"), played);
    EXPECT_EQ(Number("SELECT count(*) FROM TourneySchedule WHERE Played = 0 AND GameNotNeeded = 0"), 0);
    EXPECT_EQ(Number("SELECT sum(W) FROM TourneyTeams"), played);
    EXPECT_EQ(Number("SELECT sum(Round1W + Round2W) FROM TourneyTeams"), played);
    EXPECT_EQ(Number("SELECT sum(Round1L + Round2L) FROM TourneyTeams"), played);
    EXPECT_EQ(Number("SELECT count(*) FROM TourneyTeams WHERE Round1W = 2"), 2);
    EXPECT_EQ(Number("SELECT count(*) FROM TourneyTeams WHERE Round2W = 3 AND Round1W = 2"), 1);
    // The winner of the odd series has the third and fourth game of the final at home.
    const std::int64_t first = Number("SELECT TeamIdx FROM TourneyTeams WHERE TeamIdx < 3 AND Round1W = 2");
    EXPECT_EQ(
        Number("SELECT sum(HomeTeamIndex = " + std::to_string(first) + ") FROM TourneySchedule WHERE SeriesNbr = 3"),
        2);
    EXPECT_EQ(Number("SELECT HomeTeamIndex FROM TourneySchedule WHERE SeriesNbr = 3 AND GameDate = '1975-10-20'"),
              first);

    EXPECT_EQ(Number("SELECT sum(DivWins + DivLosses) FROM TourneyTeams"), 0);
    EXPECT_EQ(Number("SELECT sum(HomeWins + HomeLosses) FROM TourneyTeams"), played);
    for (const char* column : {"AB", "H", "HR", "BB", "SO"}) {
        const std::string sum = fmt::format("SELECT sum({}) FROM ", column);
        const std::int64_t teams = Number(sum + "TourneyTeams");
        EXPECT_GT(teams, 0);
        EXPECT_EQ(teams, Number(sum + "TourneyBatters") + Number(sum + "TourneyPitchers")) << column;
        EXPECT_EQ(teams, Number(sum + "KorvBatterResultsLog WHERE TourneyGame <> 0") +
                             Number(sum + "KorvPitcherResultsLog WHERE TourneyGame <> 0"));
        EXPECT_EQ(teams, Number(fmt::format("SELECT sum(Visitor{0} + Home{0}) FROM TourneySchedule", column)));
    }
    EXPECT_EQ(Number("SELECT sum(PutOuts) FROM TourneyTeams"),
              Number("SELECT sum(PutOuts) FROM TourneyFieldingStats WHERE Position NOT IN ('PH', 'PR', 'DH')"));
    EXPECT_GT(Number("SELECT sum(PitcherRestDays > 0 AND PitchedOnDay > 270) FROM TourneyPitchers"), 3);
}

TEST_F(Tournament, StoppedAndTakenUpIsTheSameTournament) {
    for (int part = 0; part < 20; ++part) testing::PlaySome(*made_, 1);
    const std::uint64_t parted = HashSeason(*made_->season);
    SetUp();
    testing::PlaySome(*made_, 1000);
    EXPECT_EQ(HashSeason(*made_->season), parted);
}

// Of eight teams with a losers' bracket the series 11 and 13 feed the final: both odd.
TEST_F(Tournament, TwoTeamsOfOddSeriesMeet) {
    UpdateTourneyBracket(*made_->season, 11, 3, 21);
    UpdateTourneyBracket(*made_->season, 13, 3, 22);
    EXPECT_EQ(
        Number("SELECT count(*) FROM TourneySchedule WHERE SeriesNbr = 3 AND HomeTeamIndex + VisitorTeamIndex = 43"),
        5);
    EXPECT_EQ(Number("SELECT sum(HomeTeamIndex = 21) FROM TourneySchedule WHERE SeriesNbr = 3"), 2);
}

}  // namespace
}  // namespace tarvane
