#include "scene.h"

namespace tarvane {
namespace {

class BuntScene : public Scene {
  public:
    explicit BuntScene(const char* bases, int outs = 0, BuntType asked = BuntType::Sacrifice) : Scene(PlainRules()) {
        Scene::Put(bases, outs);
        EXPECT_EQ(Put(BuntInput{asked}), Reject::None);
        EXPECT_EQ(state.sheet, SheetCode::Bt);
    }
    void Read(const char* text, std::int32_t color) {
        data.compiled.Bunt.fill(Filled(text, color));
        Roll();
    }
    using Scene::Put;
};

TEST(Bunt, RowByRunnersAndRating) {
    struct Case {
        const char* bases;
        BuntType asked;
        char rating;
        int row;
    };
    const auto S = BuntType::Sacrifice, Z = BuntType::Squeeze;
    const Case cases[]{{"1--", Z, 'A', 1}, {"-2-", S, 'B', 2}, {"12-", S, 'C', 2}, {"--3", S, 'A', 3},
                       {"-23", S, 'B', 4}, {"123", S, 'D', 4}, {"1-3", S, 'A', 1}, {"1-3", Z, 'A', 3}};
    for (const Case& c : cases) {
        Scene scene;
        scene.Put(c.bases);
        scene.state.AtBat().BuntRating = c.rating;
        scene.Put(BuntInput{c.asked});
        EXPECT_EQ(scene.state.play.BuntRow, c.row) << c.bases << c.rating;
    }
}

// Bases after it, runs batted in, outs, the result booked and the batters faced by then.
struct BuntCase {
    const char* bases;
    int outs;
    BuntType asked;
    const char* text;
    std::int32_t color;
    const char* after;
    int outsAfter;  // 3: the half is over
    Result result;
};

TEST(Bunt, EveryResult) {
    const auto S = BuntType::Sacrifice, Z = BuntType::Squeeze;
    const BuntCase cases[]{
        {"1--", 0, S, "1", kG, "b1-:", 0, Result::Single},  {"12-", 0, S, "1", kG, "b12:", 0, Result::Single},
        {"1-3", 0, S, "1", kG, "b13:", 0, Result::Single},  {"12-", 0, S, "SH", kR, "-12:", 1, Result::SH},
        {"-2-", 1, S, "SH", kG, "--2:", 2, Result::SH},     {"1-3", 0, S, "SH", kR, "-13:", 1, Result::SH},
        {"1--", 0, S, "FC", kW, "b1-:", 0, Result::SH},     {"12-", 1, S, "FC", kR, "b12:", 1, Result::SH},
        {"1--", 0, S, "E", kW, "b1-:", 0, Result::SH},      {"12-", 0, S, "F", kR, "12-:", 1, Result::F},
        {"1--", 0, S, "G", kR, "b--:", 1, Result::FC},      {"12-", 0, S, "G", kR, "b-2:", 1, Result::FC},
        {"-2-", 0, S, "G", kR, "-2-:", 1, Result::G},       {"1-3", 0, S, "G", kR, "1-3:", 1, Result::G},
        {"1--", 0, S, "DP", kR, "---:", 2, Result::DP},     {"12-", 0, S, "DP", kR, "--2:", 2, Result::DP},
        {"-2-", 0, S, "DP", kR, "-2-:", 1, Result::G},      {"1-3", 0, S, "DP", kR, "1-3:", 1, Result::G},
        {"12-", 1, S, "DP", kR, "---:", 3, Result::G},      {"1--", 1, S, "DP", kR, "---:", 3, Result::DP},
        {"--3", 0, Z, "1", kG, "b--:3", 0, Result::Single}, {"123", 0, Z, "1", kG, "b12:3", 0, Result::Single},
        {"-23", 0, Z, "SH", kR, "--2:3", 1, Result::SH},    {"1-3", 1, Z, "SH", kR, "-1-:3", 2, Result::SH},
        {"--3", 0, Z, "FC", kW, "b--:3", 0, Result::SH},    {"123", 0, Z, "E", kW, "b12:3", 0, Result::SH},
        {"-23", 0, Z, "F", kR, "-2-:", 2, Result::F},       {"--3", 1, Z, "F", kR, "---:", 3, Result::F},
        {"123", 0, Z, "G", kR, "b12:", 1, Result::FC},      {"-23", 0, Z, "G", kR, "-23:", 1, Result::G},
        {"123", 1, Z, "DP", kR, "---:", 3, Result::G},      {"--3", 0, Z, "DP", kR, "--3:", 1, Result::G}};
    for (const BuntCase& c : cases) {
        SCOPED_TRACE(fmt::format("{} with {}, {} out", c.text, c.bases, c.outs));
        BuntScene scene(c.bases, c.outs, c.asked);
        scene.Read(c.text, c.color);
        EXPECT_EQ(scene.Bases(), c.after);
        EXPECT_EQ(scene.state.play.PlayResult, c.result);
        const bool over = scene.state.BattingSide == Side::Home;
        EXPECT_EQ(over, c.outsAfter == 3);
        if (!over) {
            EXPECT_EQ(scene.state.Outs, c.outsAfter);
        }
        EXPECT_EQ(scene.RBI(), scene.state[Side::Visitor].Runs);
        EXPECT_EQ(scene.state[Side::Visitor].BatterSlot, 2);
        EXPECT_EQ(scene.state[Side::Home].box.pitching[0].BF, 1);
        EXPECT_EQ(scene.state.play.buntResult, BuntResult::None);
    }
}

// Who is charged and who is credited: on an error its man and the half's mark, on a pop-up the man at third as well.
TEST(Bunt, CreditsAndMarks) {
    BuntScene error("1--");
    error.Read("E", kW);
    EXPECT_EQ(error.Fielder(Position::SS).Errors, 1);
    EXPECT_TRUE(error.state.ErrorInInning);
    EXPECT_TRUE(error.state.Batting().runner[1].Unearned);
    EXPECT_EQ(error.state[Side::Visitor].box.batter[0].total.SH, 1);
    BuntScene popped("--3", 0, BuntType::Squeeze);
    popped.Read("F", kR);
    EXPECT_EQ(popped.Fielder(Position::B3).PutOuts, 1);
    EXPECT_EQ(popped.Fielder(Position::SS).PutOuts, 1);
    BuntScene forced("1--");
    forced.Read("G", kR);
    EXPECT_EQ(forced.Fielder(Position::B2).PutOuts, 1);
    BuntScene home("123");
    home.Read("G", kR);
    EXPECT_EQ(home.Fielder(Position::C).PutOuts, 1);
}

TEST(Bunt, FoulOnTheSecondStrike) {
    for (const bool again : {true, false}) {
        BuntScene scene("1--");
        scene.Read("2K", kW);
        ASSERT_EQ(scene.state.awaited.decision, DecisionKind::FurtherBunt);
        ASSERT_EQ(scene.state.awaited.side, Side::Visitor);
        scene.Answer(again);
        EXPECT_EQ(scene.state.sheet, again ? SheetCode::Bt : SheetCode::P);
        if (again) {
            scene.Read("2K", kW);
            EXPECT_EQ(scene.state.play.PlayResult, Result::K);
            EXPECT_EQ(scene.state.Outs, 1);
            EXPECT_EQ(scene.state.Batting().BatterSlot, 2);
            EXPECT_EQ(scene.Fielder(Position::C).PutOuts, 1);
            continue;
        }
        // Held back: the strikes stay, and one more foul on the pitcher's sheet is an out there.
        Scene out = scene, in = scene;
        out.Pitcher("1+", kG);
        in.Pitcher("1+", kG);
        out.Roll(36);
        EXPECT_EQ(out.state.play.PlayResult, Result::K);
        in.Roll(37);
        EXPECT_EQ(in.state.play.PlayResult, Result::SinglePlus);
        in.Roll(36);  // the next man starts without strikes
        EXPECT_EQ(in.state.play.PlayResult, Result::SinglePlus);
        EXPECT_EQ(in.state.Outs, 0);
    }
}

TEST(Bunt, StrikesGoWithTheBatter) {
    BuntScene walked("1--");  // an intentional walk
    walked.Read("2K", kW);
    walked.Answer(false);
    walked.Put(IntentionalWalkInput{walked.values});
    EXPECT_EQ(walked.Bases(), "b1-:");
    walked.Pitcher("1+", kG);
    walked.Roll(35);
    EXPECT_EQ(walked.state.play.PlayResult, Result::SinglePlus);
    BuntScene caught("1--", 1);  // a further bunt may be asked for at the next pitch
    caught.Read("2K", kW);
    caught.Answer(false);
    EXPECT_EQ(caught.Put(BuntInput{BuntType::Sacrifice}), Reject::None);
    caught.Read("2K", kW);
    EXPECT_EQ(caught.state.play.PlayResult, Result::K);
    EXPECT_EQ(caught.state.Outs, 2);
}

TEST(Bunt, NothingComesOfAnUnknownCell) {
    for (const auto& [text, color] : {std::pair{" ", kB}, std::pair{" ", kW}, std::pair{"HR", kG}}) {
        BuntScene scene("1--");
        scene.Read(text, color);
        EXPECT_EQ(scene.state.sheet, SheetCode::P);
        EXPECT_EQ(scene.Bases(), "1--:");
        EXPECT_EQ(scene.state.Outs, 0);
        EXPECT_EQ(scene.state.Batting().BatterSlot, 1);
        EXPECT_EQ(scene.state[Side::Home].box.pitching[0].BF, 0);
    }
}

// A missed squeeze is a steal of home by the man's own rating; the batter stays up.
TEST(Bunt, MissedSqueeze) {
    for (const bool safe : {true, false}) {
        BuntScene scene("-23", 0, BuntType::Squeeze);
        scene.Read(" ", kB);
        ASSERT_EQ(scene.state.sheet, SheetCode::S);
        EXPECT_EQ(scene.state.play.StealRow, 13 + scene.state.Batting().lineup[5].runRating);
        EXPECT_EQ(scene.state.play.buntResult, BuntResult::None);
        scene.data.compiled.StolenBase.fill(Scene::Filled(" ", safe ? kG : kR));
        scene.Roll();
        EXPECT_EQ(scene.Bases(), safe ? "-2-:3" : "-2-:");
        EXPECT_EQ(scene.state.Outs, safe ? 0 : 1);
        EXPECT_EQ(scene.state.Batting().BatterSlot, 1);
        EXPECT_EQ(scene.state.sheet, SheetCode::P);
    }
}

TEST(Bunt, DefensiveDecisionOnASqueeze) {
    for (const bool yes : {true, false}) {
        BuntScene scene("1-3", 0, BuntType::Squeeze);
        scene.Read("G", kR);
        ASSERT_EQ(scene.state.awaited.decision, DecisionKind::Defensive);
        ASSERT_EQ(scene.state.awaited.side, Side::Home);
        scene.Answer(yes);
        EXPECT_EQ(scene.Bases(), yes ? "b--:3" : "-13:");
        EXPECT_EQ(scene.Fielder(yes ? Position::B2 : Position::B1).PutOuts, 1);
        EXPECT_EQ(scene.state.Batting().BatterSlot, 2);
        EXPECT_EQ(scene.state.sheet, SheetCode::P);
    }
}

// --- Steals ---

TEST(Steal, EveryResultForEveryBase) {
    struct Case {
        char target;
        const char* bases;
        const char* text;
        std::int32_t color;
        const char* after;
        Result result;
        int earned;
        bool error, marksHalf;
    };
    const Case cases[]{{'2', "1-3", " ", kG, "-13:", Result::SB, 0, false, false},
                       {'2', "1-3", "E", kG, "--1:3", Result::SB, 0, true, false},
                       {'2', "1-3", "BK", kW, "-1-:3", Result::BK, 1, false, false},
                       {'2', "1--", "E", kW, "-1-:", Result::CSE, 0, true, true},
                       {'2', "1-3", " ", kR, "--3:", Result::CS, 0, false, false},
                       {'2', "1--", "PK", kR, "---:", Result::PK, 0, false, false},
                       {'3', "12-", " ", kG, "1-2:", Result::SB, 0, false, false},
                       {'3', "12-", "E", kG, "--1:2", Result::SB, 0, true, false},
                       {'3', "12-", "BK", kW, "-12:", Result::BK, 0, false, false},
                       {'3', "-2-", "E", kW, "--2:", Result::CSE, 0, true, true},
                       {'3', "12-", " ", kR, "1--:", Result::CS, 0, false, false},
                       {'3', "-2-", "x", kR, "---:", Result::PK, 0, false, false},
                       {'H', "123", " ", kG, "12-:3", Result::SB, 1, false, false},
                       {'H', "123", "E", kG, "-12:3", Result::SB, 1, true, false},
                       {'H', "1-3", "BK", kW, "-1-:3", Result::BK, 1, false, false},
                       {'H', "-23", "E", kW, "-2-:3", Result::CSE, 0, true, true},
                       {'H', "123", " ", kR, "12-:", Result::CS, 0, false, false},
                       {'H', "--3", "PK", kR, "---:", Result::PK, 0, false, false}};
    for (const Case& c : cases) {
        SCOPED_TRACE(fmt::format("{} with {}: {}", c.target, c.bases, c.text));
        Scene scene;
        scene.Put(c.bases);
        ASSERT_EQ(scene.Put(StealInput{c.target}), Reject::None);
        scene.data.compiled.StolenBase.fill(Scene::Filled(c.text, c.color));
        scene.Roll();
        EXPECT_EQ(scene.Bases(), c.after);
        EXPECT_EQ(scene.state.play.PlayResult, c.result);
        EXPECT_EQ(scene.EarnedRuns(), c.earned);
        EXPECT_EQ(scene.RBI(), 0);
        EXPECT_EQ(scene.state.Outs, c.result == Result::CS || c.result == Result::PK ? 1 : 0);
        EXPECT_EQ(scene.state[Side::Home].Errors, c.error ? 1 : 0);
        EXPECT_EQ(scene.state.ErrorInInning, c.marksHalf);
        EXPECT_EQ(scene.state.Batting().BatterSlot, 1);
        EXPECT_EQ(scene.state.sheet, SheetCode::P);
        const int slot = c.target == '2' ? 4 : c.target == '3' ? 5 : 6;
        const BatterLine& runner = scene.state[Side::Visitor].box.batter[static_cast<std::size_t>(slot - 1)];
        EXPECT_EQ(runner.SB, c.result == Result::SB ? 1 : 0);
        EXPECT_EQ(runner.CS, c.result == Result::CS || c.result == Result::CSE ? 1 : 0);
    }
}

TEST(Steal, RowFollowsTheCatcher) {
    struct Case {
        char target;
        int rating;
        bool strong, weak, rule;
        int row;
    };
    const Case cases[]{{'2', 3, false, false, true, 4}, {'2', 3, true, false, true, 3},
                       {'2', 0, true, false, true, 1},  {'2', 0, true, true, true, 2},
                       {'3', 3, false, true, true, 11}, {'3', 3, false, true, false, 10},
                       {'3', 5, false, true, true, 12}, {'3', 3, true, true, true, 9},
                       {'H', 3, true, false, true, 16}, {'H', 5, false, true, true, 18}};
    for (const Case& c : cases) {
        Scene scene;
        scene.data.rules.CatcherORating = c.rule;
        scene.Put(c.target == '2' ? "1--" : c.target == '3' ? "-2-" : "--3");
        scene.state[Side::Home].CatcherIRated = c.strong;
        scene.state[Side::Home].CatcherORated = c.weak;
        for (LineupSlot& slot : scene.state.Batting().lineup) slot.runRating = static_cast<std::uint8_t>(c.rating);
        scene.Put(StealInput{c.target});
        EXPECT_EQ(scene.state.play.StealRow, c.row) << c.target << c.rating;
    }
}

TEST(Steal, WhoDropsTheThrow) {
    struct Case {
        char target;
        std::int32_t bats;
        Position by;
    };
    for (const Case& c : {Case{'2', kLeftHand, Position::SS}, Case{'2', kRightHand, Position::B2},
                          Case{'3', kLeftHand, Position::B3}, Case{'H', kLeftHand, Position::C}}) {
        Scene scene;
        scene.Put(c.target == '2' ? "1--" : c.target == '3' ? "-2-" : "--3");
        scene.state.AtBat().bats = c.bats;
        scene.Put(StealInput{c.target});
        scene.data.compiled.StolenBase.fill(Scene::Filled("E", kW));
        Scene held = scene;
        scene.Roll();
        EXPECT_EQ(scene.Fielder(c.by).Errors, 1) << c.target;
        held.data.rules.UseErrorRatings = true;
        for (auto& row : held.data.compiled.ErrorStands) row.fill(false);
        held.Roll();
        EXPECT_EQ(held.state.play.PlayResult, Result::CS);
        EXPECT_EQ(held.state[Side::Home].Errors, 0);
    }
}

// --- Yellow X and injuries ---

class InjuryScene : public Scene {
  public:
    explicit InjuryScene(const char* first, bool dh = false) : Scene(PlainRules(), dh) {
        data.compiled.YellowXInjuries[0] = Filled(first, kW);
        Pitcher("X", kStoredYellowWord);
        Roll();
        EXPECT_EQ(state.sheet, SheetCode::XI);
        Roll();
    }
    void Hurt(const char* position) {
        data.compiled.YellowXInjuries[1] = Filled(position, kW);
        Roll();
        data.compiled.YellowXInjuries[2] = Filled("8", kW);
        Roll();
    }
    LineupInput Forced() {
        LineupInput lineup;
        Manager plain;
        EXPECT_TRUE(plain.ForcedLineup(data, state, state.awaited.side, lineup));
        return lineup;
    }
};

TEST(YellowX, ResultsOfBothCharts) {
    struct Case {
        const char* text;
        Result basic, injuries;
        const char* after;
        std::uint8_t batter;
    };
    const Case cases[]{{"WP", Result::WP, Result::WP, "-1-:3", 1},
                       {"PB", Result::PB, Result::PB, "-1-:3", 1},
                       {"BK", Result::BK, Result::BK, "-1-:3", 1},
                       {"H", Result::HBP, Result::HBP, "b13:", 2},
                       {"?", Result::YellowX, Result::YellowXInj, "1-3:", 1}};
    for (const bool injuries : {false, true})
        for (const Case& c : cases) {
            SCOPED_TRACE(fmt::format("{} injuries {}", c.text, injuries));
            Scene scene;
            scene.data.rules.UseYellowXInjuryChart = injuries;
            scene.data.compiled.YellowXBasic = scene.data.compiled.YellowXInjuries[0] = Scene::Filled(c.text, kW);
            scene.Put("1-3");
            scene.Pitcher("X", kStoredYellowWord);
            scene.Roll();
            scene.Roll();
            EXPECT_EQ(scene.state.play.PlayResult, injuries ? c.injuries : c.basic);
            EXPECT_EQ(scene.Bases(), c.after);
            EXPECT_EQ(scene.state.Batting().BatterSlot, c.batter);
            EXPECT_EQ(scene.state[Side::Home].box.pitching[0].BF, c.batter - 1);
            EXPECT_EQ(scene.state.sheet, injuries && c.batter == 2 ? SheetCode::XI : SheetCode::P);
        }
}

TEST(YellowX, FielderHurt) {
    InjuryScene scene("I");
    scene.Hurt("SS");
    ASSERT_EQ(scene.state.awaited.kind, Await::LineupChange);
    EXPECT_EQ(scene.state.awaited.side, Side::Home);
    EXPECT_EQ(scene.state.awaited.position, Position::SS);
    EXPECT_EQ(scene.state.awaited.cause, LineupCause::InjuredFielder);
    const std::uint8_t slot = scene.state.awaited.slot;
    EXPECT_EQ(scene.state[Side::Home].lineup[slot - 1U].position, Position::Inj);
    EXPECT_TRUE(scene.state[Side::Home].lineup[slot - 1U].player.Nobody());
    ASSERT_EQ(scene.state.injuryCount, 1);
    EXPECT_EQ(scene.state.injury[0].player, (PlayerRef{'B', 4}));
    EXPECT_EQ(scene.state.injury[0].days, 9);
    EXPECT_EQ(scene.Roll(), Reject::NotAwaited);
    const LineupInput lineup = scene.Forced();
    EXPECT_EQ(lineup.player[slot - 1U], (PlayerRef{'B', 12}));  // the deputy rated there
    EXPECT_EQ(scene.Put(lineup), Reject::None);
    EXPECT_EQ(scene.state.sheet, SheetCode::P);
    EXPECT_FALSE(scene.state.play.InjuryPending);
}

TEST(YellowX, PitcherHurt) {
    for (const bool dh : {false, true}) {
        InjuryScene scene("I", dh);
        scene.Hurt("P");
        ASSERT_EQ(scene.state.awaited.position, Position::P);
        EXPECT_TRUE(scene.state[Side::Home].pitcher.Nobody());
        EXPECT_EQ(scene.state.injury[0].player, (PlayerRef{'P', 1}));
        EXPECT_EQ(scene.Put(scene.Forced()), Reject::None);
        EXPECT_EQ(scene.state[Side::Home].pitcher, (PlayerRef{'P', 5}));
        EXPECT_EQ(scene.state[Side::Home].box.PitchersUsed, 2);
    }
}

TEST(YellowX, BatterHurt) {
    InjuryScene scene("H");
    EXPECT_EQ(scene.Bases(), "b--:");
    EXPECT_EQ(scene.state.sheet, SheetCode::XI);
    InjuryScene unhurt = scene, computer = scene;
    scene.data.compiled.YellowXInjuries[2] = Scene::Filled("8", kW);
    scene.Roll();
    ASSERT_EQ(scene.state.awaited.kind, Await::LineupChange);
    EXPECT_EQ(scene.state.awaited.side, Side::Visitor);
    EXPECT_EQ(scene.state.awaited.slot, 1);
    EXPECT_EQ(scene.Put(scene.Forced()), Reject::None);
    EXPECT_EQ(scene.Bases(), "b--:");  // the man who runs for him stands in his slot
    EXPECT_EQ(scene.state[Side::Visitor].lineup[0].player, (PlayerRef{'B', 8}));
    unhurt.data.compiled.YellowXInjuries[2] = Scene::Filled("8", kB);
    unhurt.Roll();
    EXPECT_EQ(unhurt.state.sheet, SheetCode::P);
    EXPECT_EQ(unhurt.state.injuryCount, 0);
    computer.state.computer[Side::Visitor].subs = true;  // its replacements know fielders only
    computer.data.compiled.YellowXInjuries[2] = Scene::Filled("8", kW);
    computer.Roll();
    EXPECT_EQ(computer.state.awaited.kind, Await::Roll);
    EXPECT_EQ(computer.state.injuryCount, 0);
    EXPECT_EQ(computer.state.sheet, SheetCode::P);
}

TEST(YellowX, NobodyLeftPlaysHurt) {
    InjuryScene scene("I");
    for (Batter& batter : scene.data.team[Side::Home].roster.batters) batter.Inactive = true;
    for (Pitcher& pitcher : scene.data.team[Side::Home].roster.pitchers) pitcher.Inactive = true;
    scene.Hurt("CF");
    EXPECT_EQ(scene.state.awaited.kind, Await::Roll);
    EXPECT_EQ(scene.state.sheet, SheetCode::P);
    EXPECT_EQ(scene.state.injuryCount, 0);
    InjuryScene nowhere("I");  // a chart without positions hurts nobody
    nowhere.data.compiled.YellowXInjuries[1] = Scene::Filled(" ", kW);
    nowhere.Roll();
    EXPECT_EQ(nowhere.state.sheet, SheetCode::P);
}

}  // namespace
}  // namespace tarvane
