#include "manager/substitution.h"

#include <gtest/gtest.h>

#include <functional>

namespace tarvane {
namespace {

using Setting = std::function<void(SubsSituation&)>;

// The least draw with which a rule moves at each tendency; 101 if none does. Rules rise with the draw.
template <class Rule>
std::array<int, 3> LeastDraws(Rule rule) {
    std::array<int, 3> least{};
    for (int tendency = 1; tendency <= 3; ++tendency) {
        int r = 1;
        while (r <= 100 && !rule(tendency, r)) ++r;
        least[static_cast<std::size_t>(tendency - 1)] = r;
        for (int above = r; above <= 100; ++above) EXPECT_TRUE(rule(tendency, above)) << tendency << " " << above;
    }
    return least;
}

constexpr std::array<int, 3> kNever{101, 101, 101}, kAlways{1, 1, 1};

struct Case {
    const char* what;
    Setting set;
    std::array<int, 3> least;
};

// A visiting starter in the seventh of a tied game, eighteen outs and two runs behind him.
SubsSituation InField() {
    SubsSituation s;
    s.Inning = 7;
    s.Outs = 1;
    s.R = 2, s.H = 6, s.IPOuts = 18, s.BF = 26;
    return s;
}

TEST(PitchingChange, LeastDrawsThatTakeAPitcherOut) {
    const std::vector<Case> cases = {
        {"runs allowed, three", [](auto& s) { s.R = 3; }, {41, 71, 101}},
        {"runs allowed, none", [](auto& s) { s.R = 0; }, kNever},
        {"runs allowed, one", [](auto& s) { s.R = 1; }, {94, 101, 101}},
        {"runs allowed, two", [](auto&) {}, {56, 101, 101}},
        {"four", [](auto& s) { s.R = 4; }, {41, 59, 90}},
        {"five", [](auto& s) { s.R = 5; }, {41, 59, 68}},
        {"two and tired", [](auto& s) { s.tired = true; }, {33, 74, 101}},
        {"two and getting tired", [](auto& s) { s.intermediate = true; }, {37, 83, 101}},
        {"seventeen outs", [](auto& s) { s.IPOuts = 17; }, kNever},
        {"no batter faced, in ruins", [](auto& s) { s.BF = 0, s.R = 9; }, kNever},
        {"seven runs", [](auto& s) { s.R = 7, s.IPOuts = 3; }, kAlways},
        {"twelve innings", [](auto& s) { s.IPOuts = 36, s.R = 0; }, kAlways},
        {"ten innings", [](auto& s) { s.IPOuts = 30, s.R = 0; }, {1, 101, 101}},
        {"ten innings, not the first man", [](auto& s) { s.IPOuts = 30, s.pitchersUsed = 2; }, {56, 101, 101}},
        {"knocked about", [](auto& s) { s.R = 4, s.IPOuts = 5; }, {67, 78, 89}},
        {"six runs late", [](auto& s) { s.R = 6; }, {67, 78, 89}},
        {"five runs in three innings", [](auto& s) { s.R = 5, s.IPOuts = 9; }, kNever},
        {"reliever's three", [](auto& s) { s.R = 3, s.IPOuts = 3, s.pitchersUsed = 2; }, {54, 68, 82}},
        {"reliever's three, tired",
         [](auto& s) { s.R = 3, s.IPOuts = 3, s.pitchersUsed = 2, s.tired = true; },
         {32, 45, 62}},
        {"the eighth man's three", [](auto& s) { s.R = 3, s.IPOuts = 3, s.pitchersUsed = 8; }, {77, 97, 101}},
        {"starter's three in an inning", [](auto& s) { s.R = 3, s.IPOuts = 3; }, kNever},
        {"over his real outs", [](auto& s) { s.actualUsage = true, s.pitcherRealOuts = 17; }, {37, 84, 101}},
        {"at his real outs", [](auto& s) { s.actualUsage = true, s.pitcherRealOuts = 18; }, {56, 101, 101}},
        {"real outs without the rule", [](auto& s) { s.pitcherRealOuts = 17; }, {56, 101, 101}},
    };
    for (const Case& c : cases) {
        SubsSituation s = InField();
        c.set(s);
        EXPECT_EQ(LeastDraws([&](int t, int r) { return PitchingChange(s, t, r) == PitchingMove::Change; }), c.least)
            << c.what;
    }
    SubsSituation ruins = InField();
    ruins.R = 9;
    for (const int tendency : {0, 4, 255}) EXPECT_EQ(PitchingChange(ruins, tendency, 100), PitchingMove::Stay);
}

TEST(PitchingChange, ClosingALead) {
    const std::vector<Case> cases = {
        {"second man", [](auto&) {}, {21, 41, 61}},
        {"clean second man", [](auto& s) { s.R = 0; }, {42, 82, 101}},
        {"second man starts the eighth", [](auto& s) { s.Outs = 0; }, {35, 82, 101}},
        {"second man starts the ninth", [](auto& s) { s.Outs = 0, s.Inning = 9; }, {15, 33, 56}},
        {"starter with a shut-out", [](auto& s) { s.pitchersUsed = 1, s.R = 0; }, {42, 101, 101}},
        {"starter with a no-hitter", [](auto& s) { s.pitchersUsed = 1, s.R = s.H = 0; }, kNever},
        {"starter with a run", [](auto& s) { s.pitchersUsed = 1; }, {21, 41, 61}},
        {"perfect closer", [](auto& s) { s.closerIn = true, s.R = s.H = 0; }, kNever},
        {"good closer", [](auto& s) { s.closerIn = true, s.R = 1, s.H = 2; }, {69, 101, 101}},
        {"closer hit three times", [](auto& s) { s.closerIn = true, s.H = 3; }, {21, 41, 61}},
        {"tired", [](auto& s) { s.tired = true; }, {13, 28, 46}},
        {"lead of three", [](auto& s) { s.lead = 3; }, {21, 41, 61}},
        {"lead of four", [](auto& s) { s.lead = 4; }, kNever},
        {"seventh", [](auto& s) { s.Inning = 7; }, kNever},
        {"tied", [](auto& s) { s.lead = 0; }, kNever},
    };
    for (const Case& c : cases) {
        SubsSituation s = InField();
        s.Inning = 8, s.lead = 2, s.pitchersUsed = 2, s.IPOuts = 4, s.R = 1, s.H = 4;
        c.set(s);
        EXPECT_EQ(LeastDraws([&](int t, int r) { return PitchingChange(s, t, r) == PitchingMove::Closer; }), c.least)
            << c.what;
    }
}

TEST(PitchingChange, ManJustLetBatIsLeftInUntilSomethingHappens) {
    for (const Side side : kBothSides) {
        SubsSituation s = InField();
        s.side = side;
        s.R = 7;
        s.pitcherLastBatted = side == Side::Home ? 6 : 7;  // the last half of each side
        s.Outs = 0, s.HalfInningRuns = 1;
        EXPECT_EQ(PitchingChange(s, 2, 50), PitchingMove::Stay);
        s.basesEmpty = false;
        EXPECT_EQ(PitchingChange(s, 2, 50), PitchingMove::Change);
        s.HalfInningRuns = 0, s.Outs = 2;
        EXPECT_EQ(PitchingChange(s, 2, 50), PitchingMove::Stay);
        s.pitcherLastBatted = side == Side::Home ? 7 : 6;
        EXPECT_EQ(PitchingChange(s, 2, 50), PitchingMove::Change);
    }
}

TEST(HitForPitcher, LeastDrawsThatSendAHitter) {
    const std::vector<Case> cases = {
        {"behind in the seventh", [](auto&) {}, {13, 19, 27}},
        {"behind by five", [](auto& s) { s.lead = -5; }, {31, 38, 46}},
        {"few outs and not behind", [](auto& s) { s.lead = 0, s.IPOuts = 15, s.R = 9; }, kNever},
        {"starter without a run", [](auto& s) { s.R = 0; }, kNever},
        {"starter without a run, 22 outs", [](auto& s) { s.R = 0, s.IPOuts = 22; }, {13, 19, 27}},
        {"starter early", [](auto& s) { s.IPOuts = 12, s.R = 3; }, kNever},
        {"twelve innings", [](auto& s) { s.IPOuts = 36, s.lead = 3; }, kAlways},
        {"nine innings of the starter", [](auto& s) { s.IPOuts = 27, s.lead = 3; }, {1, 76, 91}},
        {"eighth and behind", [](auto& s) { s.Inning = 8; }, kAlways},
        {"tied, starter with two runs", [](auto& s) { s.lead = 0; }, {24, 34, 45}},
        {"tied, starter with three runs", [](auto& s) { s.lead = 0, s.R = 3; }, {17, 34, 45}},
        {"tied, starter with four runs", [](auto& s) { s.lead = 0, s.R = 4; }, {17, 25, 36}},
        {"tied, second man", [](auto& s) { s.lead = 0, s.pitchersUsed = 2, s.IPOuts = 16; }, {17, 25, 36}},
        {"ahead by two, second man", [](auto& s) { s.lead = 2, s.pitchersUsed = 2, s.IPOuts = 16; }, {36, 49, 65}},
        {"ahead by three", [](auto& s) { s.lead = 3; }, {61, 76, 91}},
        {"fifth, behind, roughed up", [](auto& s) { s.Inning = 5, s.R = 4, s.IPOuts = 13; }, {31, 38, 46}},
        {"fifth, behind", [](auto& s) { s.Inning = 5, s.IPOuts = 13; }, {37, 46, 56}},
        {"tired", [](auto& s) { s.tired = true; }, {8, 12, 17}},
        {"over his real outs", [](auto& s) { s.actualUsage = true, s.pitcherRealOuts = 10; }, {10, 15, 24}},
    };
    for (const Case& c : cases) {
        SubsSituation s = InField();
        s.lead = -1;
        c.set(s);
        EXPECT_EQ(LeastDraws([&](int t, int r) { return HitForPitcher(s, t, r); }), c.least) << c.what;
    }
    SubsSituation done = InField();
    done.IPOuts = 36;
    EXPECT_FALSE(HitForPitcher(done, 0, 100));
}

TEST(HitForBatter, LeastDraws) {
    const std::vector<Case> cases = {
        {"seventh", [](auto&) {}, {64, 80, 96}},
        {"sixth", [](auto& s) { s.Inning = 6; }, kNever},
        {"ahead by six", [](auto& s) { s.lead = 6; }, {51, 64, 77}},
        {"behind by six", [](auto& s) { s.lead = -6; }, {51, 64, 77}},
        {"behind by five", [](auto& s) { s.lead = -5; }, {64, 80, 96}},
        {"one of the best", [](auto& s) { s.topBatter = true; }, {85, 101, 101}},
        {"over his real at bats",
         [](auto& s) { s.actualUsage = true, s.batterRealAB = 2, s.batterAB = 3; },
         {46, 64, 85}},
        {"an everyday man", [](auto& s) { s.actualUsage = true, s.batterRealAB = 4, s.batterAB = 5; }, {64, 80, 96}},
    };
    for (const Case& c : cases) {
        SubsSituation s = InField();
        c.set(s);
        EXPECT_EQ(LeastDraws([&](int t, int r) { return HitForBatter(s, t, r); }), c.least) << c.what;
    }
}

TEST(RunForRunner, OnlyLateAndBehindByOneOrTwo) {
    for (const auto& [lead, least] : {std::pair{-1, 51}, {-2, 51}, {-3, 101}, {0, 101}, {1, 101}}) {
        SubsSituation s = InField();
        s.lead = lead;
        const auto draws = LeastDraws([&](int t, int r) { return RunForRunner(s, t, r); });
        EXPECT_EQ(draws[0], least) << lead;
        EXPECT_EQ(draws[2], least == 51 ? 81 : 101);
    }
    SubsSituation early = InField();
    early.Inning = 6, early.lead = -1;
    EXPECT_FALSE(RunForRunner(early, 1, 100));
}

}  // namespace
}  // namespace tarvane
