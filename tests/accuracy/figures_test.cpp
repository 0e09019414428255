#include "accuracy/figures.h"

#include <gtest/gtest.h>

#include "accuracy/replays.h"
#include "base/error.h"
#include "data/teams.h"
#include "sample/sampleleague.h"
#include "season/balancedschedule.h"
#include "season/seasonhash.h"
#include "season/seasonplay.h"
#include "season/seasons.h"

namespace tarvane {
namespace {

TEST(StarterOuts, FollowFromSeasonLinesWhereStartsAndReliefAreEven) {
    // 20 outs a start and 4 a relief game, whoever does what.
    EXPECT_NEAR(*EstimateStarterOuts({{30, 30, 600}, {40, 10, 320}, {50, 0, 200}}), 20, 1e-9);
    EXPECT_NEAR(*EstimateStarterOuts({{30, 30, 750}, {10, 10, 250}}), 25, 1e-9);  // nobody relieved
    EXPECT_FALSE(EstimateStarterOuts({{50, 0, 200}}));
}

TEST(SacrificeFlies, AreBookedAsTheRealSeasonBookedThem) {
    SeasonFigures replayed;
    replayed.leagues.resize(1);
    Counts& counts = replayed.leagues[0].counts;
    counts[Figure::AB] = 100, counts[Figure::SH] = 10, counts[Figure::SF] = 4;
    replayed.batters[{"a", "X"}].total = {.AB = 50, .SH = 2, .SF = 3};
    SeasonFigures real;
    real.leagues.resize(1);

    real.year = 1936;
    SeasonFigures asAtBats = replayed;
    BookSacrificeFlies(asAtBats, real);
    EXPECT_EQ(asAtBats.leagues[0].counts.Of(Figure::AB), 104);
    EXPECT_FALSE(asAtBats.leagues[0].counts[Figure::SF]);
    EXPECT_EQ((asAtBats.batters.at({"a", "X"}).total.AB), 53);

    real.year = 1927;
    SeasonFigures asSacrifices = replayed;
    BookSacrificeFlies(asSacrifices, real);
    EXPECT_EQ(asSacrifices.leagues[0].counts.Of(Figure::SH), 14);
    EXPECT_EQ((asSacrifices.batters.at({"a", "X"}).total.SH), 5);

    real.leagues[0].counts[Figure::SF] = 30;
    SeasonFigures kept = replayed;
    BookSacrificeFlies(kept, real);
    EXPECT_EQ(kept.leagues[0].counts.Of(Figure::SF), 4);
}

// The fictional league with its first games played.
class PlayedSample : public ::testing::Test {
  protected:
    static constexpr long kPlayed = 60, kAll = 80;
    static void SetUpTestSuite() {
        const auto csv = std::filesystem::temp_directory_path() / ("tarvane-accuracy-" + std::to_string(getpid()));
        WriteSampleLeague(csv, 1975);
        made_ = std::make_unique<testing::PlayableSeason>(csv, kSampleYear);
        std::filesystem::remove_all(csv);
        ReplaceSchedule(*made_->season, BalancedSchedule(LoadTeamList(*made_->season, {}), kSampleYear, 10));
        EXPECT_THROW(ReadReplayedFigures(*made_->season), UserError);  // nothing is played yet
        SeasonWatcher nobody;
        SeasonRun run;
        run.games = kPlayed;
        SeasonPlayer(*made_->common, *made_->season).Run(run, nobody);
    }
    static void TearDownTestSuite() { made_.reset(); }
    static std::unique_ptr<testing::PlayableSeason> made_;
};
std::unique_ptr<testing::PlayableSeason> PlayedSample::made_;

double Sum(const SeasonFigures& figures, Figure figure) {
    double sum = 0;
    for (const LeagueFigures& league : figures.leagues) sum += league.counts.Of(figure);
    return sum;
}

TEST_F(PlayedSample, TotalsOfLeaguesTeamsMenAndParksAgree) {
    const SeasonFigures replayed = ReadReplayedFigures(*made_->season);
    EXPECT_EQ(replayed.games, kPlayed);
    EXPECT_EQ(Sum(replayed, Figure::Games), 2 * kPlayed);
    double runs = 0, against = 0, AB = 0, HR = 0, BF = 0, parkRuns = 0, won = 0;
    for (const TeamFigures& team : replayed.teams) runs += team.RF, against += team.RA, won += team.W;
    for (const auto& [key, man] : replayed.batters) AB += man.total.AB, HR += man.vsLeft.HR + man.vsRight.HR;
    for (const auto& [key, man] : replayed.pitchers) BF += man.BF;
    for (const ParkFigures& park : replayed.parks) parkRuns += park.homeRuns;
    EXPECT_EQ(runs, Sum(replayed, Figure::R));
    EXPECT_EQ(runs, against);
    EXPECT_EQ(runs, parkRuns);
    EXPECT_EQ(won, kPlayed);
    EXPECT_EQ(AB, Sum(replayed, Figure::AB));
    EXPECT_EQ(BF, Sum(replayed, Figure::PA));
    EXPECT_LE(HR, Sum(replayed, Figure::HR));  // pitchers at bat have no splits
}

TEST_F(PlayedSample, RealTotalsAreThoseOfTheImportedTables) {
    const SeasonFigures real = ReadRealFigures(*made_->season);
    Statement sums = made_->season->Prepare(
        "SELECT sum(H), sum(BB) - sum(IBB), sum(SO), (SELECT sum(GS) FROM LahmanPitching), "
        "(SELECT sum(PB) FROM LahmanFielding) FROM LahmanBatting");
    ASSERT_TRUE(sums.Step());
    const std::pair<Figure, int> columns[] = {
        {Figure::H, 0}, {Figure::BB, 1}, {Figure::SO, 2}, {Figure::Games, 3}, {Figure::PB, 4}};
    for (const auto& [count, column] : columns) EXPECT_EQ(Sum(real, count), sums.Double(column)) << column;
    for (const TeamFigures& team : real.teams) EXPECT_GT(team.games, 100) << team.teamID;

    // Steals caught that only a few rows have are no count of the league.
    Transaction transaction(*made_->season);
    made_->season->Execute("UPDATE LahmanBatting SET CS = NULL WHERE rowid % 2 = 0");
    EXPECT_FALSE(ReadRealFigures(*made_->season).leagues[0].counts[Figure::CS]);
}

TEST_F(PlayedSample, ReplaysAreTheSameWithAnyCrewAndLeaveNothingBehind) {
    const auto folder = std::filesystem::temp_directory_path() / ("tarvane-crew-" + std::to_string(getpid()));
    std::filesystem::create_directories(folder);
    const char* before = std::getenv("TMPDIR");
    const std::string kept = before == nullptr ? "" : before;
    setenv("TMPDIR", folder.c_str(), 1);
    const std::uint64_t hash = HashSeason(*made_->season);

    const auto two = PlayReplays(*made_->common, *made_->season, {.replays = 2, .workers = 2});
    const auto one = PlayReplays(*made_->common, *made_->season, {.replays = 1, .workers = 1});
    ASSERT_EQ(two.size(), 2U);
    EXPECT_EQ(two[0].games, kAll);  // from the first game on
    EXPECT_EQ(Sum(two[0], Figure::H), Sum(one[0], Figure::H));
    EXPECT_EQ(Sum(two[0], Figure::SO), Sum(one[0], Figure::SO));
    EXPECT_NE(Sum(two[0], Figure::SO), Sum(two[1], Figure::SO));
    EXPECT_EQ(HashSeason(*made_->season), hash);
    EXPECT_TRUE(std::filesystem::is_empty(folder));

    // A replay that fails says why, and its files go too.
    made_->season->Execute(
        "UPDATE KorvPitchers SET teamID = '999' WHERE teamID IN (SELECT min(teamID) FROM KorvTeams)");
    try {
        PlayReplays(*made_->common, *made_->season, {.replays = 2});
        FAIL() << "a club without pitchers has played";
    } catch (const UserError& error) {
        EXPECT_NE(std::string(error.what()).find("replay"), std::string::npos) << error.what();
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder));
    kept.empty() ? unsetenv("TMPDIR") : setenv("TMPDIR", kept.c_str(), 1);
    std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace tarvane
