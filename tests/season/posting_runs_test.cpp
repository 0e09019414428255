// Runs over a season that are stopped, taken up again or go wrong.

#include <gmock/gmock.h>

#include <cstdlib>

#include "base/error.h"
#include "data/resets.h"
#include "data/teams.h"
#include "postingseason.h"
#include "season/calendar.h"
#include "season/seasonhash.h"

namespace tarvane {
namespace {

using ::testing::HasSubstr;

constexpr long kGames = 40;

std::int64_t Number(Database& season, const std::string& sql) {
    Statement row = season.Prepare(sql);
    return row.Step() ? row.Int(0) : -1;
}

class StopAfter final : public SeasonWatcher {
  public:
    explicit StopAfter(long games) : games_(games) {}
    bool GoOn(const ScheduledGame&, long done, long) override { return done < games_; }

  private:
    long games_;
};

// The same pairing twice on one day, after a day without it.
TEST(SeasonRuns, AStarterIsKeptForTheOtherGameOfADoubleheader) {
    const auto made = testing::MakeScheduledSeason(1);
    made->season->Execute(
        "INSERT INTO Schedule (GameDate, VisitorTeamIndex, HomeTeamIndex) SELECT '1975-05-20', VisitorTeamIndex, "
        "HomeTeamIndex FROM Schedule WHERE GameID = 1");
    made->season->Execute(
        "INSERT INTO Schedule (GameDate, VisitorTeamIndex, HomeTeamIndex) SELECT '1975-05-20', VisitorTeamIndex, "
        "HomeTeamIndex FROM Schedule WHERE GameID = 1");
    const auto games = UnplayedGames(*made->season);
    for (const bool doubleheader : {false, true}) {
        ScheduleSetup setup(*made->common, *made->season);
        const GameSetup& ready = setup.SetUp(doubleheader ? games.back() : games.front());
        for (const Side side : kBothSides) {
            const auto& pitchers = ready.data[side].roster.pitchers;
            const auto starters = std::count_if(pitchers.begin(), pitchers.end(),
                                                [](const Pitcher& p) { return p.pitcherType == 'S'; });
            ASSERT_GT(starters, 2);
            EXPECT_EQ(ready.knowledge[side].startersAvailable, starters - (doubleheader ? 1 : 0));
        }
    }
}

TEST(SeasonRuns, AStoppedAndResumedSeasonIsThatOfOneRun) {
    const auto whole = testing::MakeScheduledSeason(5);
    EXPECT_EQ(testing::PlaySome(*whole, 1000).played, kGames);
    const auto parted = testing::MakeScheduledSeason(5);
    EXPECT_NE(HashSeason(*whole->season), HashSeason(*parted->season));
    {
        SeasonPlayer player(*parted->common, *parted->season);
        StopAfter watcher(7);
        SeasonRun run;
        run.seed = 7;
        const SeasonRunResult result = player.Run(run, watcher);
        EXPECT_EQ(result.played, 7);
        EXPECT_TRUE(result.stopped);
        // The same player goes on with what it holds in memory; a new one reads the tables.
        run.through = "1975-04-05";
        SeasonWatcher nobody;
        EXPECT_EQ(player.Run(run, nobody).played, 3 * 8 - 7);
    }
    EXPECT_EQ(testing::PlaySome(*parted, 5).played, 5);
    EXPECT_EQ(testing::PlaySome(*parted, 1000).played, kGames - 29);
    EXPECT_EQ(HashSeason(*whole->season), HashSeason(*parted->season));

    const auto other = testing::MakeScheduledSeason(5);
    testing::PlaySome(*other, 1000, 8);
    EXPECT_NE(HashSeason(*whole->season), HashSeason(*other->season));
}

TEST(SeasonRuns, AWriteThatFailsInTheMiddleLeavesNothingOfTheGame) {
    const auto made = testing::MakeScheduledSeason(2);
    Database& season = *made->season;
    testing::PlaySome(*made, 5);
    const std::uint64_t before = HashSeason(season);
    // The pitchers' log is the last but one of what a game writes.
    season.Execute("ALTER TABLE KorvPitcherResultsLog RENAME TO Away");
    EXPECT_ANY_THROW(testing::PlaySome(*made, 1));
    season.Execute("ALTER TABLE Away RENAME TO KorvPitcherResultsLog");
    EXPECT_EQ(HashSeason(season), before);
    season.Execute(
        "CREATE TRIGGER Refuse BEFORE UPDATE OF Played ON Schedule BEGIN SELECT RAISE(ABORT, 'refused'); END");
    SeasonPlayer player(*made->common, season);
    SeasonWatcher nobody;
    SeasonRun run;
    run.seed = 7;
    run.games = 1;
    EXPECT_THROW(player.Run(run, nobody), UserError);
    EXPECT_EQ(HashSeason(season), before);
    // The same player, whose memory held half a game, goes on rightly.
    season.Execute("DROP TRIGGER Refuse");
    run.games = 11;
    EXPECT_EQ(player.Run(run, nobody).played, 11);
    const auto smooth = testing::MakeScheduledSeason(2);
    testing::PlaySome(*smooth, 16);
    EXPECT_EQ(HashSeason(season), HashSeason(*smooth->season));
}

TEST(SeasonRuns, MissingRowsCostNoMoreThanThemselves) {
    const auto made = testing::MakeScheduledSeason(1);
    Database& season = *made->season;
    ScheduleSetup teams(*made->common, season);
    const std::vector<ScheduledGame> games = UnplayedGames(season);
    GameSetup& setup = teams.SetUp(games[0]);
    GameState state;
    ASSERT_EQ(StartGame(setup.data, setup.lineup[Side::Visitor], setup.lineup[Side::Home], state), Reject::None);
    Random dice(3);
    Manager hold;
    PlayOut(setup.data, state, dice, hold, hold);
    const auto gone = [&](Side side, PlayerRef man) {
        return std::int64_t{setup.data[side].roster.batters[static_cast<std::size_t>(man.index)].playerID};
    };
    season.Execute("DELETE FROM KorvBatters WHERE playerID = ?",
                   {gone(Side::Visitor, state[Side::Visitor].box.batter[0].player)});
    season.Execute("DELETE FROM KorvTeams WHERE TeamIdx = ?", {std::int64_t{games[0].teamIdx[Side::Home]}});
    season.Execute("DELETE FROM Schedule WHERE GameID = ?", {std::int64_t{games[0].GameID}});
    GamePoster poster(season);
    GameToPost posting;
    posting.GameID = games[0].GameID;
    const PostingReport report = poster.Post(posting, setup.data, state);
    ASSERT_EQ(report.messages.size(), 3U);
    EXPECT_THAT(report.messages[0], HasSubstr("Batter database error - contact Tarvane"));
    EXPECT_THAT(report.messages[1], HasSubstr("Team data error - contact Tarvane"));
    EXPECT_THAT(report.messages[2], HasSubstr("Schedule data error - contact Tarvane"));
    EXPECT_FALSE(report.schedulePosted);
    // The visitors' books are closed on the game, the home team's men have none.
    EXPECT_EQ(Number(season, "SELECT sum(GS) FROM KorvPitchers"), 1);
    EXPECT_EQ(Number(season, "SELECT sum(W + L) FROM KorvTeams"), 1);
    EXPECT_EQ(Number(season, "SELECT count(DISTINCT TeamID) FROM KorvBatterResultsLog"), 1);
}

TEST(SeasonRuns, AGamePostedOutOfOrderFindsItsPlaceInTheStreaks) {
    const auto made = testing::MakeScheduledSeason(3);
    Database& season = *made->season;
    season.Execute("UPDATE Schedule SET Played = 1 WHERE GameDate = '1975-04-03'");  // held back
    testing::PlaySome(*made, 16);
    season.Execute("UPDATE Schedule SET Played = 0 WHERE Innings = 0");
    testing::PlaySome(*made, 8);
    EXPECT_EQ(Number(season, "SELECT count(*) FROM Schedule WHERE Innings > 0"), 24);
    const std::uint64_t posted = HashSeason(season);
    RebuildStreaks(season);
    EXPECT_EQ(HashSeason(season), posted);
}

TEST(SeasonRuns, GamesOfAMovedManAlsoCountInHisCommonRow) {
    const auto made = testing::MakeScheduledSeason(2);
    Database& season = *made->season;
    // Every fifth batter and pitcher has a common row with statistics of an earlier team.
    for (const std::string table : {"KorvBatters", "KorvPitchers"}) {
        const std::string ids = "SELECT max(playerID) FROM " + table;
        const std::int64_t offset = Number(season, ids) + 1000;
        season.Execute(
            fmt::format("UPDATE {0} SET CombinedPlayerID = playerID + {1} WHERE playerID % 5 = 0", table, offset));
        season.Execute(
            fmt::format("INSERT INTO {0} (playerID, teamID, playerName, AB, H, HR) SELECT playerID + {1}, "
                        "'998', playerName, 10, 4, 1 FROM {0} WHERE playerID % 5 = 0",
                        table, offset));
    }
    testing::PlaySome(*made, 16);
    EXPECT_GT(Number(season, "SELECT sum(AB - 10) FROM KorvBatters WHERE teamID = '998'"), 50);
    for (const char* column : {"G", "AB - 10", "H - 4", "Doubles", "RBI", "vsLeftAB", "SB"})
        EXPECT_EQ(Number(season, fmt::format("SELECT sum({}) FROM KorvBatters WHERE teamID = '998'", column)),
                  Number(season, fmt::format("SELECT sum({}) FROM KorvBatters WHERE CombinedPlayerID <> 0",
                                             std::string(column).substr(0, std::string(column).find(' ')))))
            << column;
    EXPECT_EQ(Number(season, "SELECT sum(IPOuts) + sum(W) * 1000 FROM KorvPitchers WHERE teamID = '998'"),
              Number(season, "SELECT sum(IPOuts) + sum(W) * 1000 FROM KorvPitchers WHERE CombinedPlayerID <> 0"));
    EXPECT_EQ(Number(season,
                     "SELECT count(*) FROM KorvBatters WHERE teamID = '998' AND abs(Avg - H / (AB + 0.0)) > "
                     "1e-12 AND G > 0"),
              0);
}

TEST(SeasonRuns, WithoutTheInjuryRuleInjuriesStandUntouched) {
    const auto made = testing::MakeScheduledSeason(2);
    Database& season = *made->season;
    season.Execute("UPDATE LeagueRules SET UseYellowXInjuryChart = 0");
    season.Execute("UPDATE KorvBatters SET InjuryDate = '1975-03-01', InjuredDays = 60, InjuredDaysRemaining = 60");
    EXPECT_EQ(testing::PlaySome(*made, 16).played, 16);
    EXPECT_EQ(Number(season, "SELECT count(*) FROM KorvBatters WHERE InjuredDaysRemaining <> 60"), 0);
    EXPECT_EQ(Number(season, "SELECT count(*) FROM KorvBatterResultsLog WHERE InjuredDays <> 0"), 0);
    EXPECT_EQ(Number(season, "SELECT sum(W) FROM KorvTeams"), 16);
}

TEST(SeasonRuns, AGameThatCantBePlayedIsNamed) {
    const auto made = testing::MakeScheduledSeason(1);
    Database& season = *made->season;
    season.Execute("UPDATE Schedule SET HomeTeamIndex = 77 WHERE GameID = 3");
    try {
        testing::PlaySome(*made, 8);
        ADD_FAILURE() << "game 3 was played";
    } catch (const UserError& fault) {
        EXPECT_THAT(fault.what(), HasSubstr("Game 3 of 1975-04-03"));
        EXPECT_THAT(fault.what(), HasSubstr("there is no team 77"));
    }
    EXPECT_EQ(Number(season, "SELECT count(*) FROM Schedule WHERE Played <> 0"), 2);
}

}  // namespace
}  // namespace tarvane
