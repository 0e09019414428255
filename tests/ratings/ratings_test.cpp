// Ratings that are no chart: the percentage table, running, bunting, fielding, arms, stamina.

#include <gmock/gmock.h>

#include "ratings/fielding.h"
#include "ratings/pitching_counts.h"
#include "ratings/rating_table.h"
#include "ratings/running.h"
#include "sample_lines.h"

namespace tarvane {
namespace {

TEST(RatingTable, RowsHoldFromTheirBoundAndLeaveSliversBetween) {
    struct Case {
        double percent;
        int rating;
    };
    for (const Case& c : {Case{-3, 10},
                          {0, 10},
                          {1.099, 10},
                          {1.0995, 0},
                          {1.1, 11},
                          {2.099, 11},
                          {17.5, 20},
                          {50, 29},
                          {50.05, 29},
                          {50.1, 30},
                          {52.0995, 0},
                          {98.099, 38},
                          {98.0995, 0},
                          {98.1, 39},
                          {99.59, 39},
                          {99.595, 0},
                          {99.6, 40},
                          {100, 40},
                          {250, 40}}) {
        EXPECT_EQ(RatingFromPercent(c.percent), c.rating) << c.percent;
    }
}

TEST(Running, AManWhoNeverRanIsRatedZero) {
    LahmanBattingRow row;
    row.AB = 20;
    EXPECT_NEAR(RateRunning(row, false).value, 0.5714 * 10 / 32 / 1.5, 1e-3);
    EXPECT_EQ(RateRunning(row, false).runRating, 0);
    EXPECT_EQ(RateRunning(row, false).BuntRating, 'B');
}

TEST(Running, TheFastestAreCappedAndTheCaughtAreNotNegative) {
    LahmanBattingRow thief;
    thief.AB = 600, thief.H = 190, thief.Triples = 15, thief.BB = 60, thief.SB = 110, thief.CS = 15, thief.R = 120;
    EXPECT_GT(RateRunning(thief, false).value, 5);
    EXPECT_EQ(RateRunning(thief, false).runRating, 5);

    LahmanBattingRow caught;
    caught.AB = 400, caught.H = 100, caught.BB = 3000, caught.CS = 8;  // seldom tries, never makes it
    EXPECT_LT(RateRunning(caught, true).value, 0);
    EXPECT_EQ(RateRunning(caught, true).runRating, 0);
}

TEST(Running, PitchersAreMeasuredByAnEasierStandard) {
    LahmanBattingRow row;
    row.AB = 500, row.H = 140, row.BB = 40, row.SB = 20, row.CS = 8, row.R = 80, row.SH = 1;
    const RunningDerivation batter = RateRunning(row, false);
    const RunningDerivation pitcher = RateRunning(row, true);
    EXPECT_DOUBLE_EQ(pitcher.value, batter.value * 1.5);
    EXPECT_EQ(batter.BuntRating, 'A');
    // Runs and double plays don't weigh.
    row.R = 30, row.GIDP = 30;
    EXPECT_DOUBLE_EQ(RateRunning(row, false).value, batter.value);
}

LahmanFieldingRow Line(const char* pos, double G, double PO, double A, double E, double DP = 0) {
    LahmanFieldingRow row;
    row.Pos = pos, row.G = G, row.PO = PO, row.A = A, row.E = E, row.DP = DP;
    return row;
}

// A line that is the league's average but for a surplus (or want) of assists and for its errors.
LahmanFieldingRow NearAverage(const char* pos, const PositionBaseline& rate, double G, double assistsMore, double E) {
    return Line(pos, G, rate.PORate * G, (rate.ARate + assistsMore) * G, E, rate.DPRate * G);
}

TEST(Fielding, TheAverageManIsZeroAndLetterV) {
    const LeagueBaseline league = test::SampleLeague();
    for (const FielderKind kind : {FielderKind::Batter, FielderKind::Pitcher}) {
        const auto rated = RateFieldingLine(NearAverage("SS", league.SS, 150, 0, 0.17 * 150), league, kind);
        ASSERT_TRUE(rated);
        EXPECT_EQ(rated->entry, (PositionRating{Position::SS, 0, 'V'}));
    }
    EXPECT_FALSE(RateFieldingLine(Line("DH", 20, 0, 0, 0), league, FielderKind::Batter));
    EXPECT_FALSE(RateFieldingLine(Line("P", 20, 5, 5, 0), league, FielderKind::Batter));
    EXPECT_FALSE(RateFieldingLine(Line("C", 20, 5, 5, 0), league, FielderKind::Pitcher));
    EXPECT_FALSE(RateFieldingLine(Line("SS", 0, 5, 5, 0), league, FielderKind::Batter));
}

TEST(Fielding, FewGamesShrinkARatingAndBadOnesAreDamped) {
    const LeagueBaseline league = test::SampleLeague();
    struct Case {
        const char* pos;
        const PositionBaseline& rate;
        double G, assistsMore;
        int raw, rating;
    };
    // Errors at the league's rate, so that the raw rating is the assists' alone: assistsMore * 4.5 * the position's
    // factor.
    for (const Case& c : {Case{"SS", league.SS, 9, 12 / (4.5 * 4.75), 12, 0},  // 12 -> 1 of 9 games -> 0
                          {"SS", league.SS, 50, 5 / (4.5 * 4.75), 5, 2},       // 2.5 -> 2, the even one
                          {"SS", league.SS, 120, 30 / (4.5 * 4.75), 30, 18},
                          {"1B", league.B1, 150, -20 / (4.5 * 1.5), -20, -3},  // -7, then the limit
                          {"C", league.C, 150, -10 / (4.5 * 4.0), -10, -3}}) {
        const auto rated = RateFieldingLine(NearAverage(c.pos, c.rate, c.G, c.assistsMore, c.rate.ErrorsRate * c.G),
                                            league, FielderKind::Batter);
        ASSERT_TRUE(rated);
        EXPECT_EQ(rated->rawRating, c.raw) << c.pos << c.G;
        EXPECT_EQ(rated->entry.rating, c.rating) << c.pos << c.G;
    }
}

TEST(Fielding, APitchersOwnPositionKeepsItsRatingInFewGames) {
    const LeagueBaseline league = test::SampleLeague();
    const double more = 6 / (4.5 * 1.5);
    EXPECT_EQ(RateFieldingLine(NearAverage("P", league.P, 8, more, 0.24), league, FielderKind::Pitcher)->entry.rating,
              6);
    EXPECT_EQ(RateFieldingLine(NearAverage("1B", league.B1, 8, more, 0.64), league, FielderKind::Pitcher)->entry.rating,
              0);
    EXPECT_EQ(RateFieldingLine(NearAverage("P", league.P, 8, -more, 0.24), league, FielderKind::Pitcher)->entry.rating,
              -2);
}

TEST(Fielding, ErrorLetters) {
    const LeagueBaseline league = test::SampleLeague();
    const auto letter = [&](const char* pos, double G, double E, FielderKind kind) {
        return RateFieldingLine(Line(pos, G, 1, 1, E), league, kind)->entry.errorRating;
    };
    EXPECT_EQ(letter("SS", 20, 0, FielderKind::Batter), 'A');
    EXPECT_EQ(letter("SS", 19, 0, FielderKind::Batter), 'V');
    EXPECT_EQ(letter("SS", 100, 34, FielderKind::Batter), 'Z');
    // Centre fielders are granted 15 % more errors, but only among the batters.
    EXPECT_EQ(letter("CF", 100, 4.6, FielderKind::Batter), 'V');
    EXPECT_EQ(letter("CF", 100, 4.6, FielderKind::Pitcher), 'W');
    EXPECT_EQ(letter("LF", 100, 4.6, FielderKind::Batter), 'W');

    std::string letters;
    for (int index = 0; index <= 40; ++index) letters += ErrorLetter(index);
    EXPECT_EQ(letters, "AABBCCCCDDEFGHJKLLLMMNPRSTUVWWWWWXYYZZZZZ");
}

TEST(Fielding, CatchersArmsAndStrikeouts) {
    const LeagueBaseline league = test::SampleLeague();
    // Twice the putouts, all of them his pitchers' strikeouts: only a tenth of the surplus counts.
    LahmanFieldingRow line = NearAverage("C", league.C, 100, 0, 8);
    line.PO += 100;
    EXPECT_EQ(RateFieldingLine(line, league, FielderKind::Batter)->rawRating, 2);  // 0.1 * 4.5 * 4 = 1.8

    const auto arm = [&](double assists) {
        return *RateFieldingLine(Line("C", 100, 550, assists, 8), league, FielderKind::Batter);
    };
    EXPECT_TRUE(arm(57).strongArm);
    EXPECT_FALSE(arm(56).strongArm);
    EXPECT_TRUE(arm(33).weakArm);
    EXPECT_FALSE(arm(34).weakArm);
}

TEST(Fielding, ListsKeepTheirOrderAndLength) {
    const LeagueBaseline league = test::SampleLeague();
    std::vector<LahmanFieldingRow> lines;
    for (const char* pos : {"P", "LF", "DH", "LF", "1B", "2B", "3B", "SS", "RF"})
        lines.push_back(Line(pos, 50, 60, 5, 1));
    const auto positions = [&](FielderKind kind) {
        std::string text;
        for (const FieldingDerivation& d : RateFielding(lines, league, kind)) text += PositionText(d.entry.position);
        return text;
    };
    EXPECT_EQ(positions(FielderKind::Batter), "LFLF1B2B3BSS");  // the ninth line isn't looked at
    EXPECT_EQ(positions(FielderKind::Pitcher), "P LFLF1B");
    lines.clear();
    EXPECT_EQ(positions(FielderKind::Batter), "");
    EXPECT_EQ(positions(FielderKind::Pitcher), "P ");
}

TEST(Fielding, AnEraWithoutFiguresRatesNobody) {
    LeagueBaseline league = test::SampleLeague();
    league.OF = {};
    const auto rated = RateFieldingLine(Line("LF", 100, 200, 10, 3), league, FielderKind::Batter);
    ASSERT_TRUE(rated);
    EXPECT_TRUE(rated->noBaseline);
    EXPECT_EQ(rated->entry, (PositionRating{Position::LF, 0, 'V'}));
}

TEST(Stamina, RowsAndDominance) {
    EXPECT_EQ(TiredRatingOf(0), 40);
    EXPECT_EQ(TiredRatingOf(0.149), 40);
    EXPECT_EQ(TiredRatingOf(0.15), 39);
    EXPECT_EQ(TiredRatingOf(69.0 / 20 / 3), 27);  // 1.15 but for the last bit
    EXPECT_EQ(TiredRatingOf(9), 14);
    EXPECT_EQ(TiredRatingOf(20), 13);
    EXPECT_EQ(TiredRatingOf(1.0 * DominanceFactor(1, 60)), 22);
    EXPECT_EQ(TiredRatingOf(6.0 * DominanceFactor(6, 60)), 14);
    // 18 raises a reliever; a starter's row begins at 19.
    EXPECT_EQ(DominanceFactor(4.04, 18), 1.5);
    EXPECT_EQ(DominanceFactor(4.05, 18), 1);
    EXPECT_EQ(DominanceFactor(4.05, 19), 1.15);
    EXPECT_EQ(DominanceFactor(4.04, 17), 1);
    EXPECT_EQ(DominanceFactor(4.04, 54), 2.25);
    EXPECT_EQ(DominanceFactor(4.04, 55), 3);
    EXPECT_EQ(DominanceFactor(4.05, 37), 1.3);
}

}  // namespace
}  // namespace tarvane
