// Real statistics in memory.

#include "ratings/lahman_records.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "season_fixture.h"

namespace tarvane {
namespace {

TEST(LahmanRecords, RatesOfALine) {
    SplitLine counts;
    counts.AB = 100, counts.H = 30, counts.Doubles = 5, counts.Triples = 1, counts.HR = 4, counts.BB = 18,
    counts.HBP = 2;
    const RealBattingLine line = MakeRealBattingLine(counts, 0);
    EXPECT_EQ(line.PA, 120);
    EXPECT_DOUBLE_EQ(line.AVG, 0.3);
    EXPECT_DOUBLE_EQ(line.OBP, 50 / 120.0);
    EXPECT_DOUBLE_EQ(line.SLG, 0.49);  // 20 singles, 10, 3 and 16 bases
    EXPECT_DOUBLE_EQ(line.OPS, line.SLG + line.OBP);
    EXPECT_DOUBLE_EQ(line.RunsCreated, line.SLG * line.OBP * 100);
    EXPECT_EQ(MakeRealBattingLine({}, 0).OBP, 0);

    counts.AB = 105, counts.HR = 5;
    const RealBattingLine half = MakeRealBattingLine(counts, 2);
    EXPECT_EQ(half.counts.AB, 52);  // 52.5: the even one
    EXPECT_EQ(half.counts.HR, 2);
    EXPECT_EQ(half.PA, 52 + 9 + 1);
}

TEST(LahmanRecords, ATeamOrAll) {
    test::SeasonFixture f;
    f.AddRandomPlayers(5, 3, 1);
    Random random(1);
    GenerateSplits(f.season, {}, nullptr, random);
    f.season.Execute("UPDATE LahmanBatting SET KorvTeamID = 'BBB' WHERE playerID = 'b4'");
    f.season.Execute("UPDATE LahmanFielding SET yearID = 1975");
    f.season.Execute("UPDATE LahmanBatting SET HitRunRating = 2 WHERE playerID = 'b2'");
    f.season.Execute("UPDATE LahmanPitching SET EPC = 3, IPouts = 30 WHERE playerID = 'p1'");

    const LahmanRecordSet team = LoadLahmanRecords(f.season, "AAA");
    EXPECT_EQ(team.batters.size(), 7U);
    EXPECT_EQ(team.pitchers.size(), 3U);
    EXPECT_TRUE(team.Present());
    EXPECT_EQ(team.FindBatter("b4"), nullptr);
    EXPECT_EQ(team.FindPitcher("p1")->IPOuts, 10);
    const LahmanRecord* shared = team.FindBatter("b2");
    ASSERT_NE(shared, nullptr);
    EXPECT_LE(std::abs(2 * shared->total.counts.AB - f.Int("SELECT AB FROM LahmanBatting WHERE playerID = 'b2'")), 1);
    ASSERT_EQ(shared->positions.size(), 2U);
    EXPECT_EQ(shared->positions[0].position, Position::B1);  // in the order of positions, not of games
    EXPECT_EQ(shared->positions[1].G, 100);
    EXPECT_EQ(team.SH, f.Int("SELECT SUM(CASE WHEN playerID = 'b2' THEN 0 ELSE COALESCE(SH, 0) END) FROM LahmanBatting "
                             "WHERE KorvTeamID = 'AAA'") +
                           shared->total.counts.SH);

    EXPECT_EQ(LoadLahmanRecords(f.season, "AAA", true).batters.size(), 8U);
    EXPECT_EQ(LoadLahmanRecords(f.season, "999").batters.size(), 8U);
    EXPECT_FALSE(LoadLahmanRecords(f.season, "CCC").Present());
}

}  // namespace
}  // namespace tarvane
