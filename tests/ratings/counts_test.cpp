// The weights that statistics ask of a chart.

#include <gtest/gtest.h>

#include "ratings/batting_counts.h"
#include "ratings/pitching_counts.h"
#include "sample_lines.h"

namespace tarvane {
namespace {

const LeagueBaseline kLeague = test::SampleLeague();

SplitLine Batting(int AB, int H, int doubles, int triples, int HR, int BB, int SO) {
    SplitLine line;
    line.AB = AB, line.H = H, line.Doubles = doubles, line.Triples = triples, line.HR = HR, line.BB = BB, line.SO = SO;
    return line;
}

CountsDerivation Counts(const SplitLine& line, int limit = kLeftSampleLimit, double F = 0.915) {
    Random random(1);
    return BatterCounts(line, limit, F, 0.94, kLeague, random);
}

TEST(BatterCounts, SharesBecomeWeights) {
    SplitLine line = Batting(200, 60, 10, 2, 8, 30, 40);
    line.HBP = 3, line.RBI = 40;
    const CountsDerivation d = Counts(line);
    EXPECT_EQ(d.counts.n1B, 40);  // 40 / 200 * 0.915 * 216 = 39.5
    EXPECT_EQ(d.counts.n2B, 10);  // 9.88
    EXPECT_EQ(d.counts.n3B, 2);
    EXPECT_EQ(d.counts.nHR, 8);
    EXPECT_EQ(d.counts.nBB, 9);   // 30 * 0.94 / 200 * 0.9 - 0.085 = 0.0419
    EXPECT_EQ(d.counts.nSO, 39);  // by the era's 0.9, not by 0.915
    EXPECT_EQ(d.counts.nHBP, 2);  // 0.0085
    EXPECT_EQ(d.counts.nOut, 107);
    EXPECT_DOUBLE_EQ(d.RBIRate, 0.18);
    EXPECT_DOUBLE_EQ(d.sfShare, 0.18);
    line.RBI = 10;
    EXPECT_DOUBLE_EQ(Counts(line).sfShare, 0.09);
}

TEST(BatterCounts, WalksBelowTheLeagueAreNegativeAndTheMostAre54) {
    EXPECT_EQ(Counts(Batting(200, 60, 0, 0, 0, 2, 40)).counts.nBB, -17);
    EXPECT_GT(Counts(Batting(200, 60, 0, 0, 0, 2, 40)).counts.nOut,
              Counts(Batting(200, 60, 0, 0, 0, 22, 40)).counts.nOut);
    const CountsDerivation walker = Counts(Batting(100, 20, 0, 0, 0, 60, 10));
    EXPECT_EQ(walker.counts.nBB, 54);
    EXPECT_TRUE(walker.walksCapped);
    EXPECT_NEAR(walker.shares.pOut, 1 - (0.2 * 0.915 + 0.6 * 0.94 * 0.9 - 0.085 + 0.09 - 0.005), 1e-9);
}

TEST(BatterCounts, FewAtBatsShrinkAllButTheHitBatter) {
    SplitLine line = Batting(24, 8, 2, 0, 1, 6, 5);
    line.HBP = 2, line.RBI = 6;
    const CountsDerivation d = Counts(line);
    EXPECT_TRUE(d.smallSample);
    EXPECT_EQ(d.counts.n1B, 39);  // 41.18 -> 41 -> 39.36: the rounded weight shrinks, or it would be 40
    EXPECT_EQ(d.full.n1B, 41);
    EXPECT_EQ(d.counts.nHBP, d.full.nHBP);
    const BattingWeights& c = d.counts;
    EXPECT_EQ(c.nOut, 216 - (c.n1B + c.n2B + c.n3B + c.nHR + c.nBB + c.nSO));
    EXPECT_DOUBLE_EQ(d.RBIRate, 6 / 24.0 * 0.9 * 24 / 25);

    line.AB = 25;
    EXPECT_FALSE(Counts(line).smallSample);
    line.AB = 49;
    EXPECT_TRUE(Counts(line, kRightSampleLimit).smallSample);
    line.AB = 50;
    EXPECT_FALSE(Counts(line, kRightSampleLimit).smallSample);
}

TEST(BatterCounts, TheUnknownBatter) {
    const BattingWeights fallback{13, 3, 0, 0, 0, 70, 0, 128, 2};
    EXPECT_EQ(fallback.n1B + fallback.n2B + fallback.nSO + fallback.nOut + fallback.nE, 216);
    EXPECT_EQ(Counts({}).counts, fallback);
    EXPECT_EQ(Counts(Batting(60, 0, 0, 0, 0, 30, 5)).counts, fallback);  // walks alone don't save him
    EXPECT_EQ(Counts(Batting(-1, 3, 0, 0, 0, 0, 0)).counts, fallback);
    // The test comes after the shrinking: a hit in one at bat of fifty can round away.
    const CountsDerivation shrunk = Counts(Batting(1, 0, 0, 0, 0, 0, 0), kRightSampleLimit);
    EXPECT_TRUE(shrunk.fallback);
    // More extra-base hits than hits (splits round one by one): singles are negative, but it is no blank line.
    const CountsDerivation odd = Counts(Batting(40, 2, 3, 0, 0, 2, 5));
    EXPECT_FALSE(odd.fallback);
    EXPECT_LT(odd.counts.n1B, 0);
}

TEST(BatterCounts, ErrorsAreThreeAbout64TimesIn100) {
    Random random(11);
    int threes = 0;
    constexpr int kDraws = 20000;
    for (int i = 0; i < kDraws; ++i) {
        const int nE = BatterCounts(Batting(200, 50, 9, 1, 4, 20, 30), 25, 0.9, 0.94, kLeague, random).counts.nE;
        ASSERT_TRUE(nE == 3 || nE == 4);
        threes += nE == 3 ? 1 : 0;
    }
    EXPECT_NEAR(threes / static_cast<double>(kDraws), 0.64, 0.015);
}

TEST(BatterCounts, IntentionalWalksAndControl) {
    LahmanBattingRow row;
    row.AB = 500, row.BB = 40, row.SO = 0;
    EXPECT_DOUBLE_EQ(NonIntentionalShare(row), 0.94);
    row.IBB = 0;
    EXPECT_DOUBLE_EQ(NonIntentionalShare(row), 0.94);
    row.IBB = 10;
    EXPECT_DOUBLE_EQ(NonIntentionalShare(row), 0.8);

    // 0.072 of 0.085 is 84.7 %; no strikeout at all is 10 for a batter and 40 for a pitcher.
    EXPECT_EQ(BatterControl(row, kLeague).BBRating, 36);
    EXPECT_EQ(BatterControl(row, kLeague).SORating, 10);
    EXPECT_EQ(PitcherControl(row, kLeague).SORating, 40);
    EXPECT_EQ(PitcherControl(row, kLeague).BBRating, 36);
    row.AB = 0;
    EXPECT_EQ(BatterControl(row, kLeague).BBRating, 40);
    EXPECT_EQ(BatterControl(row, kLeague).SORating, 40);
    LeagueBaseline unknown = kLeague;
    unknown.SOAvg = 0;
    row.AB = 500;
    EXPECT_EQ(BatterControl(row, unknown).SORating, 40);
    EXPECT_EQ(PitcherControl(row, unknown).SORating, 40);
}

TEST(PitcherAtBat, EraShareAndNoCap) {
    LahmanBattingRow row;
    row.AB = 50, row.H = 10, row.Doubles = 2, row.BB = 40, row.SO = 15;
    Random random(1);
    const PitcherBattingCounts batting = PitcherBattingCountsOf(row, kLeague, random);
    EXPECT_TRUE(batting.usable);
    EXPECT_EQ(batting.derivation.counts.n1B, 31);   // 8 / 50 * 0.9 * 216
    EXPECT_EQ(batting.derivation.counts.nBB, 137);  // no share for intentional walks, no limit
    EXPECT_EQ(batting.derivation.counts.nHBP, 0);   // not recorded
    row.HBP = 0;
    EXPECT_EQ(PitcherBattingCountsOf(row, kLeague, random).derivation.counts.nHBP, -1);
    row.H = 0, row.Doubles = 0;
    EXPECT_FALSE(PitcherBattingCountsOf(row, kLeague, random).usable);
    row.AB = 0, row.H = 0;
    EXPECT_FALSE(PitcherBattingCountsOf(row, kLeague, random).usable);
}

LahmanPitchingRow Pitching(int BFP, int H, int HR, int BB, int SO) {
    LahmanPitchingRow row;
    row.G = 30, row.IPouts = 600, row.H = H, row.HR = HR, row.BB = BB, row.SO = SO, row.BFP = BFP;
    row.IBB = 0;
    return row;
}

TEST(PitcherCounts, DifferencesFromTheLeague) {
    const PitchingDerivation good = DerivePitching(Pitching(1000, 180, 10, 60, 200), kLeague, 1);
    EXPECT_EQ(good.counts.nPitchBB, 13);
    EXPECT_EQ(good.counts.nPitchSO, 19);   // 197 * 0.075 / 0.775
    EXPECT_EQ(good.counts.nPitchOut, 15);  // 197 * 0.05 / 0.67
    EXPECT_EQ(good.counts.nPitchHit, 0);
    EXPECT_EQ(good.counts.nPitchHRDown, 2);  // 2.1
    EXPECT_DOUBLE_EQ(good.chances.SO, 19 / 210.0);
    EXPECT_EQ(DerivePitching(Pitching(1000, 180, 10, 60, 200), kLeague, 2).counts.nPitchOut, 29);

    const PitchingDerivation bad = DerivePitching(Pitching(1000, 260, 40, 60, 80), kLeague, 2);
    EXPECT_EQ(bad.counts.nPitchSO, 0);
    EXPECT_EQ(bad.counts.nPitchOut, 0);
    EXPECT_EQ(bad.counts.nPitchHit, 7);  // 203 * 0.03 / 0.67 = 9, then 6.975; the out factor doesn't enter
    EXPECT_EQ(bad.counts.nPitchHRUp, 4);
}

TEST(PitcherCounts, EdgesOfRounding) {
    // A hair above the league in strikeouts still shows; a hair above it in hits doesn't.
    const PitchingDerivation hair = DerivePitching(Pitching(1000, 231, 20, 60, 126), kLeague, 1);
    EXPECT_EQ(hair.counts.nPitchSO, 1);
    EXPECT_EQ(hair.counts.nPitchHit, 0);
    EXPECT_EQ(DerivePitching(Pitching(1000, 229, 20, 60, 126), kLeague, 1).counts.nPitchOut, 1);
    const PitchingCounts even = DerivePitching(Pitching(1000, 230, 20, 60, 125), kLeague, 1).counts;
    EXPECT_EQ(even.nPitchSO + even.nPitchHit + even.nPitchOut + even.nPitchHRUp + even.nPitchHRDown, 0);

    // Hits: 4 stays 4, 5 becomes 4, more than 36 is held to 28. The base is 216 less the walks (none here).
    const auto hits = [](int H) {
        return DerivePitching(Pitching(100000, H, 2000, 0, 0), kLeague, 1).counts.nPitchHit;
    };
    EXPECT_EQ(hits(23000 + 1241), 4);
    EXPECT_EQ(hits(23000 + 1551), 4);
    EXPECT_EQ(hits(23000 + 1862), 5);    // 6 becomes 4.65
    EXPECT_EQ(hits(23000 + 12408), 28);  // 40 becomes 31
    EXPECT_EQ(DerivePitching(Pitching(100, 0, 0, 60, 90), kLeague, 1).counts.nPitchBB, 42);
    EXPECT_EQ(DerivePitching(Pitching(100, 0, 0, 0, 90), kLeague, 1).counts.nPitchSO, 48);
    EXPECT_EQ(DerivePitching(Pitching(100, 0, 0, 0, 90), kLeague, 1).counts.nPitchOut, 48);
}

TEST(PitcherCounts, WhatWasNotRecorded) {
    LahmanPitchingRow row = Pitching(0, 200, 10, 50, 100);
    row.BFP.reset(), row.IBB.reset();
    const PitchingDerivation d = DerivePitching(row, kLeague, 1);
    EXPECT_DOUBLE_EQ(d.BF, 900);
    EXPECT_DOUBLE_EQ(d.NetBB, 46);
    row.BFP = 0;  // no batter at all: nothing to divide by, and nothing to tell
    EXPECT_EQ(DerivePitching(row, kLeague, 1).counts, PitchingCounts{});
    row.CG = 30;
    EXPECT_EQ(DerivePitching(row, kLeague, 1).secondWindRating, 40);
    row.G = 0;
    EXPECT_EQ(DerivePitching(row, kLeague, 1).secondWindRating, 10);
}

}  // namespace
}  // namespace tarvane
