#include <gtest/gtest.h>

#include <map>

#include "fixture.h"

namespace tarvane {
namespace {

TEST(Dice, EachRawRollHasItsCell) {
    std::map<int, int> count;
    int last = 0;
    for (int raw = 1; raw <= 216; ++raw) {
        const int roll = ChartRollFromRaw(raw);
        ASSERT_GE(roll, last);
        last = roll;
        ++count[roll];
    }
    ASSERT_EQ(count.size(), 30U);
    for (const auto& [roll, weight] : count) EXPECT_EQ(weight, CellWeight(roll)) << roll;
    EXPECT_EQ(count[19], 1);
    EXPECT_EQ(count[34] + count[35], 36);
}

// The hidden values stay in range, have the shares of their dice, and come in a fixed number of draws.
TEST(Dice, HiddenValues) {
    Random random(7);
    constexpr int kDraws = 360000;
    std::array<int, 6> column{};
    std::array<int, 40> kind{};
    for (int i = 0; i < kDraws; ++i) {
        const PlayValues v = DrawPlayValues(random);
        for (const int percent : {v.NarrationRoll, v.RunnerRoll, v.CoverRoll, v.FlyFielderRoll, v.ErrorSpotRoll,
                                  v.SpareRoll, v.InfieldRoll})
            ASSERT_TRUE(percent >= 1 && percent <= 100);
        ASSERT_TRUE(v.ErrorColumn >= 1 && v.ErrorColumn <= 5);
        ++column[v.ErrorColumn];
        ++kind.at(v.ErrorKindRoll);
    }
    constexpr std::array<int, 6> kShares{0, 12, 11, 9, 3, 1};
    for (std::size_t c = 1; c <= 5; ++c) EXPECT_NEAR(column[c], kShares[c] * kDraws / 36, 1000) << c;
    for (int roll = 10; roll <= 39; ++roll)
        EXPECT_NEAR(kind[static_cast<std::size_t>(roll)], CellWeight(roll) * kDraws / 216.0, 900) << roll;
    Random one(3), other(3);
    DrawPlayValues(one);
    for (int draw = 0; draw < 11; ++draw) other.Next();
    EXPECT_EQ(one, other);
}

TEST(Dice, ShownPairAddsUpToTheUnits) {
    std::array<std::map<int, int>, 10> pairs;
    for (int roll = 10; roll <= 39; ++roll)
        for (int raw = 1; raw <= 216; ++raw) {
            const auto dice = ShowDice(roll, raw);
            ASSERT_EQ(dice[0] + dice[1], roll % 10);
            ASSERT_TRUE(dice[0] >= 0 && dice[0] <= 5 && dice[1] >= 0 && dice[1] <= 4);
            if (roll < 20) ++pairs[static_cast<std::size_t>(roll - 10)][dice[0]];
        }
    const std::array<std::map<int, int>, 10> expected{{{{0, 216}},
                                                       {{0, 109}, {1, 107}},
                                                       {{0, 72}, {1, 71}, {2, 73}},
                                                       {{0, 54}, {1, 53}, {2, 54}, {3, 55}},
                                                       {{0, 43}, {1, 43}, {2, 43}, {3, 43}, {4, 44}},
                                                       {{5, 43}, {4, 43}, {3, 43}, {2, 43}, {1, 44}},
                                                       {{5, 54}, {4, 53}, {3, 54}, {2, 55}},
                                                       {{5, 72}, {4, 71}, {3, 73}},
                                                       {{5, 107}, {4, 109}},
                                                       {{5, 216}}}};
    EXPECT_EQ(pairs, expected);
}

TEST(ChartCompile, Cells) {
    struct Case {
        const char* text;
        std::int32_t color;
        CellText cls;
        Result result;
        Position position;
        int number;
    };
    const Case cases[]{{" ", kGreenWord, CellText::Blank, Result::None, Position::None, 0},
                       {"", kGreenWord, CellText::Blank, Result::None, Position::None, 0},
                       {"(1+)", kGreenWord, CellText::Result, Result::SinglePlusDecision, Position::None, 0},
                       {"K", kGreenWord, CellText::K, Result::K, Position::None, 0},
                       {"D", kGreenWord, CellText::D, Result::Defence, Position::None, 0},
                       {"H", kYellowWord, CellText::H, Result::HBP, Position::None, 0},
                       {"X", kStoredYellowWord, CellText::X, Result::None, Position::None, 0},
                       {"(hr)", kGreenWord, CellText::HRReduced, Result::None, Position::None, 0},
                       {"(HR)", kGreenWord, CellText::HRReduced, Result::None, Position::None, 0},
                       {"(3)", kGreenWord, CellText::TripleReduced, Result::None, Position::None, 0},
                       {"2", kWhiteWord, CellText::Result, Result::Double, Position::None, 2},
                       {"15", kWhiteWord, CellText::Number, Result::None, Position::None, 15},
                       {"2K", kWhiteWord, CellText::TwoK, Result::None, Position::None, 0},
                       {"P ", kWhiteWord, CellText::PositionName, Result::None, Position::P, 0},
                       {"1B", kWhiteWord, CellText::PositionName, Result::None, Position::B1, 0},
                       {"IM", kWhiteWord, CellText::InfieldMiddle, Result::None, Position::None, 0},
                       {"Swing", kGreenWord, CellText::Other, Result::None, Position::None, 0},
                       {"1 ", kGreenWord, CellText::Number, Result::None, Position::None, 1},
                       {"99999999", kGreenWord, CellText::Other, Result::None, Position::None, 0}};
    for (const Case& c : cases) {
        const Cell cell = CompileCell({c.text, c.color});
        EXPECT_EQ(cell.text, c.cls) << c.text;
        EXPECT_EQ(cell.result, c.result) << c.text;
        EXPECT_EQ(cell.position, c.position) << c.text;
        EXPECT_EQ(cell.number, c.number) << c.text;
    }
}

TEST(ChartCompile, ColoursAndTexts) {
    EXPECT_EQ(CellColorFromWord(kYellowWord), CellColor::Yellow);
    EXPECT_EQ(CellColorFromWord(kStoredYellowWord), CellColor::Yellow);
    EXPECT_EQ(ColorWord(CellColor::Yellow), -1);
    EXPECT_EQ(CellColorFromWord(12345), CellColor::Other);
    for (int i = 1; i < kResultCount; ++i) {
        const auto result = static_cast<Result>(i);
        EXPECT_EQ(ResultFromText(ResultText(result)), result) << i;
    }
    EXPECT_EQ(ResultFromText(""), Result::None);
    EXPECT_EQ(ResultFromText("hr"), Result::None);
    for (const char* code : {"P", "B", "BBSO", "PS", "Bt", "S", "M", "X", "XI"})
        EXPECT_EQ(SheetCodeText(SheetCodeFromText(code)), code);
}

TEST(ChartCompile, TablesKeepTheirLimits) {
    GameCharts charts = fixture::Charts();
    const CompiledGameCharts compiled = CompileGameCharts(charts);
    EXPECT_EQ(ErrorRatingRowOf('A'), 0);
    EXPECT_EQ(ErrorRatingRowOf('V'), 18);
    EXPECT_EQ(ErrorRatingRowOf('Z'), 22);
    EXPECT_EQ(ErrorRatingRowOf('I'), ErrorRatingRowOf('V'));
    EXPECT_EQ(compiled.ErrorStands[22], (std::array<bool, 5>{true, true, true, true, true}));
    EXPECT_EQ(compiled.ErrorStands[0], (std::array<bool, 5>{false, false, false, false, true}));
    charts.MgrDec.push_back({});
    EXPECT_THROW(CompileGameCharts(charts), std::length_error);
    const CompiledGameCharts empty = CompileGameCharts({});
    EXPECT_EQ(empty.YellowXInjuries[2][5].color, CellColor::White);
    EXPECT_EQ(empty.YellowXInjuries[2][5].text, CellText::Blank);
}

TEST(ChartCompile, RatingsOfTheLoadAreClamped) {
    GameData data = fixture::MakeGameData();
    data.team[Side::Home].roster.batters[0].BBRating = 0;
    data.team[Side::Home].roster.batters[0].SORating = 77;
    data.team[Side::Home].roster.batters[1].BBRating = 3;
    CompileGameData(data);
    const auto& charts = data.team[Side::Home].batterCharts;
    EXPECT_EQ(charts.size(), 18U);
    EXPECT_EQ(charts[0].BBRating, 40);
    EXPECT_EQ(charts[0].SORating, 40);
    EXPECT_EQ(charts[1].BBRating, 10);
    EXPECT_EQ(data[Side::Home].BatterIndex(2001), 1);
    EXPECT_EQ(data[Side::Home].PitcherIndex(1), -1);
}

}  // namespace
}  // namespace tarvane
