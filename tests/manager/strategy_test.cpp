#include "manager/strategy.h"

#include <gtest/gtest.h>

#include <functional>

namespace tarvane {
namespace {

using Least = std::array<int, 3>;  // the least draw with which tendencies 1, 2, 3 go; 101 if never
constexpr Least kNo{101, 101, 101};

template <class Rule>
Least LeastOf(Rule rule) {
    Least least{};
    for (int tendency = 1; tendency <= 3; ++tendency) {
        int r = 1;
        while (r <= 100 && !rule(tendency, r)) ++r;
        least[static_cast<std::size_t>(tendency - 1)] = r;
    }
    return least;
}

struct Situation {
    const char* what;
    std::function<void(StrategySituation&)> set;
    Least least;
};

// First inning, tied, a man on first of run rating 3, an A bunter in slot 8.
StrategySituation Opening() {
    StrategySituation s;
    s.on1 = true;
    s.batterSlot = 8;
    s.BuntRating = 'A';
    for (int base = 1; base <= 3; ++base) s.runRating[base] = s.stealRating[base] = 3;
    return s;
}

void Put(StrategySituation& s, bool first, bool second, bool third) {
    s.on1 = first, s.on2 = second, s.on3 = third;
}

TEST(Bunt, SacrificeBySituation) {
    const std::vector<Situation> cases = {
        {"A", [](auto&) {}, {71, 81, 89}},
        {"B", [](auto& s) { s.BuntRating = 'B'; }, {86, 91, 97}},
        {"C", [](auto& s) { s.BuntRating = 'C'; }, kNo},
        {"one out", [](auto& s) { s.Outs = 1; }, {83, 101, 101}},
        {"two out", [](auto& s) { s.Outs = 2; }, kNo},
        {"pitcher", [](auto& s) { s.pitcherBats = true; }, {48, 54, 60}},
        {"cleanup man", [](auto& s) { s.batterSlot = 4; }, kNo},
        {"late", [](auto& s) { s.Inning = 7; }, {57, 65, 71}},
        {"tried once", [](auto& s) { s.BuntTriedThisAtBat = true; }, kNo},
        {"second alone", [](auto& s) { Put(s, false, true, false); }, {71, 81, 89}},
        {"first and third", [](auto& s) { Put(s, true, false, true); }, {71, 81, 89}},
        {"tied in the ninth, man on second",
         [](auto& s) {
             s.Inning = 9;
             Put(s, true, true, false);
         },
         kNo},
        {"behind by four in the fifth", [](auto& s) { s.Inning = 5, s.lead = -4; }, kNo},
        {"behind by four in the fourth", [](auto& s) { s.Inning = 4, s.lead = -4; }, {71, 81, 89}},
        {"ahead by five", [](auto& s) { s.lead = 5; }, kNo},
        {"ahead by four in the eighth", [](auto& s) { s.Inning = 8, s.lead = 4; }, kNo},
        {"ahead by four in the seventh", [](auto& s) { s.Inning = 7, s.lead = 4; }, {57, 65, 71}},
    };
    for (const Situation& c : cases) {
        StrategySituation s = Opening();
        c.set(s);
        EXPECT_EQ(LeastOf([&](int t, int r) { return BuntDecision(s, t, r) == BuntType::Sacrifice; }), c.least)
            << c.what;
    }
    StrategySituation empty = Opening();
    empty.on1 = false;
    EXPECT_EQ(BuntDecision(empty, 1, 100), BuntType::None);
    EXPECT_EQ(BuntDecision(Opening(), 0, 100), BuntType::None);
}

TEST(Bunt, SqueezeBySituationAndTheHomeGate) {
    const std::vector<Situation> cases = {
        {"A", [](auto&) {}, {81, 87, 96}},
        {"B", [](auto& s) { s.BuntRating = 'B'; }, {91, 95, 99}},
        {"second and third", [](auto& s) { s.on2 = true; }, {81, 87, 96}},
        {"loaded, pitcher", [](auto& s) { s.on1 = s.on2 = s.pitcherBats = true; }, {62, 67, 74}},
        {"late", [](auto& s) { s.Inning = 7; }, {71, 76, 84}},
        {"one out", [](auto& s) { s.Outs = 1; }, {81, 87, 101}},
        {"visitors, ninth, tied", [](auto& s) { s.Inning = 9; }, {71, 76, 84}},
        {"home, ninth, tied", [](auto& s) { s.Inning = 9, s.side = Side::Home; }, kNo},
        {"home, ninth, behind by one", [](auto& s) { s.Inning = 9, s.side = Side::Home, s.lead = -1; }, kNo},
        {"home, eighth, tied", [](auto& s) { s.Inning = 8, s.side = Side::Home; }, {71, 76, 84}},
    };
    for (const Situation& c : cases) {
        StrategySituation s = Opening();
        Put(s, false, false, true);
        c.set(s);
        EXPECT_EQ(LeastOf([&](int t, int r) { return BuntDecision(s, t, r) == BuntType::Squeeze; }), c.least) << c.what;
    }
}

TEST(Bunt, FurtherBuntNeverFollowsOneTriedByAComputer) {
    StrategySituation s = Opening();
    EXPECT_EQ(LeastOf([&](int t, int r) { return FurtherBuntDecision(s, t, r); }), (Least{86, 95, 101}));
    s.BuntRating = 'B';
    EXPECT_EQ(LeastOf([&](int t, int r) { return FurtherBuntDecision(s, t, r); }), (Least{95, 99, 101}));
    s.BuntTriedThisAtBat = true;
    EXPECT_EQ(LeastOf([&](int t, int r) { return FurtherBuntDecision(s, t, r); }), kNo);
}

TEST(Steal, BaseByBase) {
    const std::vector<Situation> second = {
        {"rating 3", [](auto&) {}, {74, 86, 98}},
        {"rating 5", [](auto& s) { s.stealRating[1] = 5; }, {63, 63, 74}},
        {"rating 2", [](auto& s) { s.stealRating[1] = 2; }, {86, 98, 101}},
        {"rating 1", [](auto& s) { s.stealRating[1] = 1; }, {98, 101, 101}},
        {"rating 0", [](auto& s) { s.stealRating[1] = 0; }, kNo},
        {"late, rating 1", [](auto& s) { s.stealRating[1] = 1, s.Inning = 7; }, {78, 101, 101}},
        {"cleanup man up", [](auto& s) { s.batterSlot = 4; }, {98, 101, 101}},
        {"visitors far behind", [](auto& s) { s.lead = -3, s.Inning = 7, s.stealRating[1] = 5; }, kNo},
        {"home far behind", [](auto& s) { s.lead = -3, s.Inning = 7, s.stealRating[1] = 5, s.side = Side::Home; }, kNo},
        {"first and third", [](auto& s) { s.on3 = true; }, {74, 86, 98}},
        {"ahead by five", [](auto& s) { s.lead = 5; }, kNo},
        {"ahead by four in the eighth", [](auto& s) { s.lead = 4, s.Inning = 8; }, kNo},
    };
    for (const Situation& c : second) {
        StrategySituation s = Opening();
        c.set(s);
        EXPECT_EQ(LeastOf([&](int t, int r) { return StealDecision(s, t, 100, r) == '2'; }), c.least) << c.what;
    }
    const std::vector<Situation> third = {
        {"rating 3", [](auto&) {}, {85, 93, 98}},
        {"rating 4", [](auto& s) { s.stealRating[2] = 4; }, {72, 85, 93}},
        {"rating 5 with a man behind him", [](auto& s) { s.stealRating[2] = 5, s.on1 = true; }, {72, 72, 85}},
        {"tied in the ninth", [](auto& s) { s.stealRating[2] = 5, s.Inning = 9; }, kNo},
        {"ahead in the ninth", [](auto& s) { s.stealRating[2] = 5, s.Inning = 9, s.lead = 1; }, {58, 58, 68}},
    };
    for (const Situation& c : third) {
        StrategySituation s = Opening();
        Put(s, false, true, false);
        c.set(s);
        EXPECT_EQ(LeastOf([&](int t, int r) { return StealDecision(s, t, 100, r) == '3'; }), c.least) << c.what;
    }
}

TEST(Steal, HomeByItsOwnDrawAndThePlainRating) {
    StrategySituation s = Opening();
    Put(s, false, false, true);
    s.stealRating[3] = 5;
    EXPECT_EQ(LeastOf([&](int t, int r) { return StealDecision(s, t, r, 100) == 'H'; }), kNo);
    s.runRating[3] = 4;
    EXPECT_EQ(LeastOf([&](int t, int r) { return StealDecision(s, t, r, 1) == 'H'; }), (Least{93, 101, 101}));
    s.runRating[3] = 5;
    EXPECT_EQ(LeastOf([&](int t, int r) { return StealDecision(s, t, r, 1) == 'H'; }), (Least{93, 97, 101}));
    s.on2 = true, s.stealRating[2] = 5;  // the man on second stays while the base ahead is taken
    EXPECT_EQ(StealDecision(s, 3, 100, 100), ' ');
}

TEST(StealRating, CatchersMoveItWithinItsEnds) {
    struct Case {
        int rating;
        bool i, o;
        int expected;
    };
    for (const Case& c : {Case{3, true, false, 2},
                          {3, false, true, 4},
                          {3, true, true, 2},
                          {0, true, false, 0},
                          {0, true, true, 1},
                          {5, false, true, 5},
                          {5, true, false, 4},
                          {4, false, true, 5}})
        EXPECT_EQ(StealRating(c.rating, c.i, c.o), c.expected);
}

struct ExtraCase {
    const char* what;
    Result result;
    ExtraBaseCase extraBase;
    std::function<void(StrategySituation&)> set;
    Least least;
};

TEST(ExtraBase, ByTriggerSideAndOuts) {
    const auto none = [](StrategySituation&) {};
    const auto home = [](StrategySituation& s) { s.side = Side::Home; };
    const auto twoOut = [](StrategySituation& s) { s.Outs = 2; };
    const std::vector<ExtraCase> cases = {
        {"(1) of r2", Result::SingleDecision, ExtraBaseCase::Second, none, {51, 66, 81}},
        {"(1) of r2 at home", Result::SingleDecision, ExtraBaseCase::Second, home, {51, 66, 85}},
        {"error", Result::E, ExtraBaseCase::Both, home, {51, 66, 85}},
        {"(2)", Result::DoubleDecision, ExtraBaseCase::None, home, {51, 66, 81}},
        {"(F)", Result::FDecision, ExtraBaseCase::None, [](auto& s) { s.runRating[3] = 1; }, {81, 95, 100}},
        {"(F) at home",
         Result::FDecision,
         ExtraBaseCase::None,
         [](auto& s) { s.side = Side::Home, s.runRating[3] = 1; },
         {81, 95, 96}},
        {"slow man", Result::SFDecision, ExtraBaseCase::Second, [](auto& s) { s.runRating[2] = 0; }, kNo},
        {"(1) of r1 looks at r1",
         Result::SingleDecision,
         ExtraBaseCase::First,
         [](auto& s) { s.runRating[1] = 5; },
         {36, 36, 51}},
        {"(1+) looks at r1",
         Result::SinglePlusDecision,
         ExtraBaseCase::None,
         [](auto& s) { s.runRating[1] = 5; },
         {36, 36, 51}},
        {"(1+) two out", Result::SinglePlusDecision, ExtraBaseCase::None, twoOut, {60, 94, 101}},
        {"(1) of r1 two out", Result::SingleDecision, ExtraBaseCase::First, twoOut, {60, 94, 101}},
        {"(1) of r2 two out", Result::SingleDecision, ExtraBaseCase::Second, twoOut, {51, 66, 81}},
        {"(SF) of both two out", Result::SFDecision, ExtraBaseCase::Both, twoOut, {60, 94, 101}},
        {"(SF) of r2 two out", Result::SFDecision, ExtraBaseCase::Second, twoOut, {51, 66, 81}},
        {"late", Result::DoubleDecision, ExtraBaseCase::None, [](auto& s) { s.Inning = 7; }, {41, 53, 65}},
        {"late, visitors, two out",
         Result::DoubleDecision,
         ExtraBaseCase::None,
         [](auto& s) { s.Inning = 7, s.Outs = 2; },
         {51, 66, 81}},
        {"late, home, two out",
         Result::DoubleDecision,
         ExtraBaseCase::None,
         [](auto& s) { s.Inning = 7, s.Outs = 2, s.side = Side::Home; },
         {41, 53, 65}},
        {"ahead by five", Result::DoubleDecision, ExtraBaseCase::None, [](auto& s) { s.lead = 5; }, kNo},
        {"behind by five in the eighth",
         Result::DoubleDecision,
         ExtraBaseCase::None,
         [](auto& s) { s.lead = -5, s.Inning = 8; },
         {41, 101, 101}},
        {"no trigger", Result::Single, ExtraBaseCase::None, none, kNo},
    };
    for (const ExtraCase& c : cases) {
        StrategySituation s = Opening();
        c.set(s);
        EXPECT_EQ(LeastOf([&](int t, int r) { return ExtraBaseDecision(s, c.result, c.extraBase, t, r); }), c.least)
            << c.what;
    }
}

TEST(GiveUpRun, MoreReadilyInALopsidedGame) {
    StrategySituation s = Opening();
    EXPECT_FALSE(GiveUpRun(s, 90));
    EXPECT_TRUE(GiveUpRun(s, 91));
    for (const int lead : {5, -5}) {
        s.Inning = 5, s.lead = lead;
        EXPECT_FALSE(GiveUpRun(s, 60));
        EXPECT_TRUE(GiveUpRun(s, 61));
    }
    s.Inning = 4;
    EXPECT_FALSE(GiveUpRun(s, 90));
}

}  // namespace
}  // namespace tarvane
