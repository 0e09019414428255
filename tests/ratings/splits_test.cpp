// Splits of a season line by the pitcher's hand.

#include "ratings/splits.h"

#include <gtest/gtest.h>

#include <cmath>

#include "base/error.h"
#include "records/cell.h"
#include "sample_lines.h"

namespace tarvane {
namespace {

SplitMix Mix(double left, double right) {
    SplitMix mix;
    mix.LeftOuts = left;
    mix.RightOuts = right;
    return mix;
}

TEST(Splits, RoundTwiceAsTheColumnsDo) {
    LahmanBattingRow row;
    row.AB = 100, row.H = 20, row.Doubles = 40, row.BB = 40;
    Random random(1);
    GenerateSplitRow(row, kLeftHand, Mix(30, 70), {}, random);
    EXPECT_EQ(row.vsLeft.AB, 30);
    EXPECT_EQ(row.vsLeft.H, 5);  // 6, then 5.25
    EXPECT_EQ(row.vsRight.H, 15);
    EXPECT_EQ(row.vsLeft.BB, 10);  // 12, then 10.5: the even one
    EXPECT_EQ(row.vsRight.BB, 30);

    // Where one rounding of the product would give another figure.
    row.H = 85;
    GenerateSplitRow(row, kLeftHand, Mix(30, 70), {}, random);
    EXPECT_EQ(row.vsLeft.H, 23);  // 25.5 -> 26 -> 22.75, where 25.5 * 0.875 would be 22.3
}

TEST(Splits, LeaveWhatIsNeverAdjustedAndSwitchHittersAlone) {
    LahmanBattingRow row;
    row.AB = 500, row.H = 150, row.SO = 90, row.SH = 10, row.SF = 7, row.GIDP = 13;
    Random random(3);
    for (const std::int32_t bats : {kLeftHand, kRightHand, kSwitchHitter}) {
        const SplitTrace trace = GenerateSplitRow(row, bats, Mix(1, 3), {}, random);
        EXPECT_EQ(row.vsLeft.AB, 125);
        EXPECT_EQ(row.vsLeft.SH, 2);
        EXPECT_EQ(row.vsLeft.SF, 2);
        EXPECT_EQ(row.vsLeft.GIDP, 3);
        EXPECT_EQ(row.vsLeft.H, bats == kLeftHand ? 33 : bats == kRightHand ? 40 : 38);
        EXPECT_EQ(trace.adjustment == SplitAdjustment::None, bats == kSwitchHitter);
        if (bats == kSwitchHitter) {
            EXPECT_EQ(row.vsLeft.SO, 22);
        }
    }
}

TEST(Splits, StrikeoutsFollowInEightyFiveOf216) {
    Random random(17);
    int followed = 0;
    constexpr int kRows = 20000;
    for (int i = 0; i < kRows; ++i) {
        LahmanBattingRow row;
        row.SO = 80;
        const SplitTrace trace = GenerateSplitRow(row, kLeftHand, Mix(1, 1), {}, random);
        ASSERT_EQ(row.vsLeft.SO, trace.strikeoutsAdjusted ? 45 : 40);
        ASSERT_EQ(row.vsLeft.SO + row.vsRight.SO, 80);
        followed += trace.strikeoutsAdjusted ? 1 : 0;
    }
    EXPECT_NEAR(followed / static_cast<double>(kRows), 85.0 / 216, 0.015);
}

TEST(Splits, RandomlyUnconventional) {
    Random random(5);
    SplitSettings settings;
    settings.RandomNoSplit = true;
    int opposite = 0, none = 0;
    constexpr int kRows = 20000;
    for (int i = 0; i < kRows; ++i) {
        LahmanBattingRow row;
        row.H = 100;
        const SplitTrace trace = GenerateSplitRow(row, kRightHand, Mix(1, 1), settings, random);
        opposite += trace.adjustment == SplitAdjustment::LeftHanded ? 1 : 0;
        none += trace.adjustment == SplitAdjustment::None ? 1 : 0;
        ASSERT_EQ(trace.adjustment == SplitAdjustment::LeftHanded, trace.chance >= 40 && trace.chance <= 50);
        ASSERT_EQ(trace.adjustment == SplitAdjustment::None, trace.chance >= 150 && trace.chance <= 170);
    }
    EXPECT_NEAR(opposite / static_cast<double>(kRows), 11.0 / 216, 0.008);
    EXPECT_NEAR(none / static_cast<double>(kRows), 21.0 / 216, 0.008);
}

TEST(Splits, MixOfTheSeason) {
    SplitMix mix;
    mix.AddPitcher(300, kLeftHand);
    mix.AddPitcher(700, kRightHand);
    mix.AddPitcher(0, kLeftHand);
    mix.AddBatter(100, kSwitchHitter);
    mix.AddBatter(10, kLeftHand);
    EXPECT_DOUBLE_EQ(mix.LeftShare(), 0.3);
    EXPECT_DOUBLE_EQ(mix.RightBattersAB, 30);
    EXPECT_DOUBLE_EQ(mix.LeftBattersAB, 80);

    // Left-handed pitching only: nothing is left for the other side.
    LahmanBattingRow row;
    row.AB = 77, row.H = 20, row.BB = 9;
    Random random(2);
    GenerateSplitRow(row, kSwitchHitter, Mix(10, 0), {}, random);
    EXPECT_EQ(row.vsRight, SplitLine{});
    EXPECT_THROW(Mix(0, 0).LeftShare(), UserError);
}

TEST(Splits, TheTwoSidesAlwaysSumToTheSeason) {
    Random random(99);
    for (int i = 0; i < 5000; ++i) {
        LahmanBattingRow row = test::RandomBattingLine(random);
        const std::int32_t bats = i % 3 == 0 ? kLeftHand : i % 3 == 1 ? kRightHand : kSwitchHitter;
        GenerateSplitRow(row, bats, Mix(20 + i % 20, 70), {}, random);
        const auto sum = [&](int SplitLine::*column) { return row.vsLeft.*column + row.vsRight.*column; };
        ASSERT_EQ(sum(&SplitLine::AB), row.AB);
        ASSERT_EQ(sum(&SplitLine::H), row.H);
        ASSERT_EQ(sum(&SplitLine::HR), row.HR);
        ASSERT_EQ(sum(&SplitLine::BB), row.BB);
        ASSERT_EQ(sum(&SplitLine::SO), row.SO.value_or(0));
        ASSERT_EQ(sum(&SplitLine::HBP), row.HBP.value_or(0));
        ASSERT_EQ(sum(&SplitLine::GIDP), row.GIDP.value_or(0));
    }
}

TEST(Splits, RealFiguresReplaceAllButDoublePlays) {
    LahmanBattingRow row;
    row.vsLeft.GIDP = 4, row.vsRight.GIDP = 6, row.vsLeft.AB = 50;
    RetroLine retro;
    retro.vsLeft.AB = 120, retro.vsRight.H = 70, retro.vsLeft.GIDP = 99;
    ApplyRetroLine(row, retro);
    EXPECT_EQ(row.vsLeft.AB, 120);
    EXPECT_EQ(row.vsRight.H, 70);
    EXPECT_EQ(row.vsLeft.GIDP, 4);
    EXPECT_EQ(row.vsRight.GIDP, 6);
}

TEST(Splits, SettingsOutOfRangeAreRefused) {
    EXPECT_NO_THROW(CheckSplitSettings({}));
    EXPECT_THROW(CheckSplitSettings({-1, 0.065, false}), UserError);
    EXPECT_THROW(CheckSplitSettings({0, 0.065, false}), UserError);
    EXPECT_THROW(CheckSplitSettings({-0.1, 0, false}), UserError);
    EXPECT_THROW(CheckSplitSettings({-0.1, 1, false}), UserError);
    EXPECT_THROW(CheckSplitSettings({-0.1, std::nan(""), false}), UserError);
}

}  // namespace
}  // namespace tarvane
