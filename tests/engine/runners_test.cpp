#include "scene.h"

namespace tarvane {
namespace {

constexpr std::array<const char*, 8> kBaseStates{"---", "1--", "-2-", "--3", "12-", "1-3", "-23", "123"};

// A result, what a run of it counts (r: batted in, e: earned), and where everybody stands for the eight base states
// with nobody out. An asterisk ends a case in which a decision is asked for before anyone else moves.
struct Row {
    const char* text;
    std::int32_t color;
    const char* counts;
    std::array<const char*, 8> after;
};

const Row kRows[]{
    {"1", kGreenWord, "re", {"b--:", "b1-:", "b-2:", "b--:3", "b12:", "b1-:3", "b-2:3", "b12:3"}},
    {"1*", kGreenWord, "re", {"b--:", "b-1:", "b--:2", "b--:3", "b-1:2", "b-1:3", "b--:32", "b-1:32"}},
    {"1+", kGreenWord, "re", {"b--:", "b1-:", "b--:2", "b--:3", "b1-:2", "b1-:3", "b--:32", "b1-:32"}},
    {"(1)", kGreenWord, "re", {"b--:", "1--:*", "-2-:*", "b--:3", "12-:*", "1--:*", "-2-:*", "12-:*"}},
    {"(1+)", kGreenWord, "re", {"b--:", "1--:*", "b--:2", "b--:3", "1--:*", "1--:*", "b--:32", "1--:*"}},
    {"2", kGreenWord, "re", {"-b-:", "-b1:", "-b-:2", "-b-:3", "-b1:2", "-b1:3", "-b-:32", "-b1:32"}},
    {"2*", kGreenWord, "re", {"-b-:", "-b-:1", "-b-:2", "-b-:3", "-b-:21", "-b-:31", "-b-:32", "-b-:321"}},
    {"(2)", kGreenWord, "re", {"-b-:", "1--:*", "-b-:2", "-b-:3", "1--:*", "1--:*", "-b-:32", "1--:*"}},
    {"3", kGreenWord, "re", {"--b:", "--b:1", "--b:2", "--b:3", "--b:21", "--b:31", "--b:32", "--b:321"}},
    {"HR", kGreenWord, "re", {"---:b", "---:1b", "---:2b", "---:3b", "---:21b", "---:31b", "---:32b", "---:321b"}},
    {" ", kStoredYellowWord, "re", {"b--:", "b1-:", "b2-:", "b-3:", "b12:", "b13:", "b23:", "b12:3"}},
    {"H", kStoredYellowWord, "re", {"b--:", "b1-:", "b2-:", "b-3:", "b12:", "b13:", "b23:", "b12:3"}},
    {"K", kBlueWord, "", {"---:", "1--:", "-2-:", "--3:", "12-:", "1-3:", "-23:", "123:"}},
    {"F", kRedWord, "", {"---:", "1--:", "-2-:", "--3:", "12-:", "1-3:", "-23:", "123:"}},
    {"FC", kRedWord, "", {"---:", "1--:", "-2-:", "--3:", "12-:", "1-3:", "-23:", "123:"}},
    {"G", kRedWord, "", {"---:", "b--:", "-2-:", "--3:", "b-2:", "1-3:*", "-23:", "b12:"}},
    {"G*", kRedWord, "re", {"---:", "-1-:", "--2:", "---:3", "-12:", "-1-:3", "--2:3", "-12:3"}},
    {"SF", kRedWord, "re", {"---:", "1--:", "-2-:", "---:3", "12-:", "1--:3", "-2-:3", "12-:3"}},
    {"(SF)", kRedWord, "re", {"---:", "1--:*", "-2-:*", "---:3", "12-:*", "1--:*", "-2-:*", "12-:*"}},
    {"(F)", kRedWord, "", {"---:", "1--:", "-2-:", "--3:*", "12-:", "1-3:*", "-23:*", "123:*"}},
    {"DP", kRedWord, "", {"---:", "---:", "-2-:", "--3:", "--2:", "1-3:*", "-23:", "123:*"}},
};

TEST(Runners, EveryResultFromEveryBaseState) {
    for (const Row& row : kRows) {
        for (std::size_t i = 0; i < kBaseStates.size(); ++i) {
            SCOPED_TRACE(fmt::format("{} with {}", row.text, kBaseStates[i]));
            Scene scene;
            scene.Put(kBaseStates[i]);
            scene.Bat(row.text, row.color);
            const bool decision = scene.state.awaited.kind == Await::Decision;
            EXPECT_EQ(scene.Bases() + (decision ? "*" : ""), row.after[i]);
            if (decision) continue;
            const std::string counts = row.counts;
            const int runs = scene.state[Side::Visitor].Runs;
            EXPECT_EQ(scene.RBI(), counts.find('r') != std::string::npos ? runs : 0);
            EXPECT_EQ(scene.EarnedRuns(), counts.find('e') != std::string::npos ? runs : 0);
            EXPECT_EQ(scene.state[Side::Visitor].BatterSlot, 2);
        }
    }
}

// On the pitcher's sheet the batter stays up, and nobody bats the run in.
TEST(Runners, WildPitchAndPassedBall) {
    const std::array<const char*, 8> after{"---:", "-1-:", "--2:", "---:3", "-12:", "-1-:3", "--2:3", "-12:3"};
    for (const char* text : {"WP", "PB"}) {
        for (std::size_t i = 0; i < kBaseStates.size(); ++i) {
            SCOPED_TRACE(fmt::format("{} with {}", text, kBaseStates[i]));
            Scene scene;
            scene.Put(kBaseStates[i]);
            scene.Pitcher(text, kYellowWord);
            scene.Roll();
            EXPECT_EQ(scene.Bases(), after[i]);
            EXPECT_EQ(scene.RBI(), 0);
            EXPECT_EQ(scene.EarnedRuns(), scene.state[Side::Visitor].Runs);
            EXPECT_EQ(scene.state[Side::Visitor].BatterSlot, 1);
            EXPECT_EQ(scene.Fielder(Position::C).PassBalls, text[0] == 'P' ? 1 : 0);
        }
    }
}

TEST(Runners, OutcomeOfTheBatterAfterAnOut) {
    struct Case {
        const char *text, *bases;
        int outs;
        Result result;
        int outsAfter;  // 0 with the half over
    };
    const Case cases[]{{"SF", "12-", 0, Result::F, 1},
                       {"(SF)", "---", 0, Result::F, 1},
                       {"(SF)", "--3", 1, Result::SFDecision, 2},
                       {"DP", "-23", 0, Result::G, 1},
                       {"DP", "1--", 0, Result::DP, 2},
                       {"DP", "12-", 1, Result::DP, 0},
                       {"DP", "1--", 1, Result::DP, 0},
                       {"G", "1--", 0, Result::FC, 1},
                       {"DP", "1-3", 2, Result::G, 0},
                       {"G*", "--3", 2, Result::G, 0},
                       {"SF", "--3", 2, Result::F, 0},
                       {"(SF)", "123", 2, Result::F, 0},
                       {"(F)", "--3", 2, Result::FDecision, 0},
                       {"F", "--3", 2, Result::F, 0}};
    for (const Case& c : cases) {
        SCOPED_TRACE(fmt::format("{} with {} and {} out", c.text, c.bases, c.outs));
        Scene scene;
        scene.Put(c.bases, c.outs);
        scene.Bat(c.text, kRedWord);
        EXPECT_EQ(scene.state.play.PlayResult, c.result);
        EXPECT_EQ(scene.state.Outs, c.outsAfter);
        EXPECT_EQ(scene.state.BattingSide, c.outsAfter == 0 ? Side::Home : Side::Visitor);
        const int ran = c.outsAfter == 0 ? 0 : scene.state[Side::Visitor].Runs;
        EXPECT_EQ(scene.state[Side::Visitor].Runs, ran);
        EXPECT_EQ(scene.state[Side::Visitor].BatterSlot, 2);
    }
}

// Who gets the put-out of a grounder: by the base where the play was, unless the first baseman took it himself.
TEST(Runners, CreditsOfGrounders) {
    struct Case {
        const char* bases;
        int outs, infieldRoll;
        bool firstBaseman;  // he has the ball before the runners move
        Result result;
        Position putOut;
        bool assist;
    };
    const Case cases[]{
        {"---", 0, 90, false, Result::G, Position::B1, true},  {"1--", 0, 90, false, Result::FC, Position::B2, true},
        {"1--", 0, 90, true, Result::G, Position::B1, false},  {"123", 1, 90, false, Result::FC, Position::C, true},
        {"123", 1, 90, true, Result::G, Position::B1, false},  {"1--", 2, 74, false, Result::G, Position::B2, true},
        {"1-3", 2, 10, false, Result::FC, Position::B2, true}, {"123", 2, 10, false, Result::G, Position::B2, true},
        {"1--", 2, 75, false, Result::G, Position::B1, true},  {"-2-", 2, 10, false, Result::G, Position::B1, true}};
    for (const Case& c : cases) {
        SCOPED_TRACE(fmt::format("{} {} out roll {} first baseman {}", c.bases, c.outs, c.infieldRoll, c.firstBaseman));
        LeagueRules rules = Scene::PlainRules();
        rules.UseErrorRatings = true;
        Scene scene(rules);
        if (c.firstBaseman) {  // a test for an error that does not stand places the ball ahead of the play
            scene.data.compiled.Fielding.fill(Scene::Filled("1B", kWhiteWord));
            for (auto& row : scene.data.compiled.ErrorStands) row.fill(false);
            scene.values.ErrorRoll = 17;
        }
        scene.values.InfieldRoll = static_cast<std::uint8_t>(c.infieldRoll);
        scene.Put(c.bases, c.outs);
        scene.Bat("G", kRedWord);
        EXPECT_EQ(scene.state.play.PlayResult, c.result);
        EXPECT_EQ(scene.Fielder(c.putOut).PutOuts, 1);
        const Position by = c.firstBaseman ? Position::B1 : Position::SS;
        EXPECT_EQ(scene.Fielder(by).Assists, c.assist ? 1 : 0);
        if (c.bases[0] == '1' && c.outs < 2) {
            EXPECT_EQ(scene.Bases(), c.bases[1] == '2' ? "b12:" : "b--:");
        }
    }
}

TEST(Runners, WhoFieldsTheSlowGrounder) {
    struct Case {
        const char* bases;
        int roll;
        Position by;
    };
    const Case cases[]{{"1--", 74, Position::B1}, {"12-", 75, Position::B3}, {"-2-", 34, Position::B1},
                       {"--3", 35, Position::B2}, {"-23", 70, Position::B2}, {"-23", 71, Position::SS},
                       {"123", 50, Position::SS}, {"123", 51, Position::B2}, {"---", 10, Position::B3},
                       {"1-3", 10, Position::B3}};
    for (const Case& c : cases) {
        SCOPED_TRACE(fmt::format("{} roll {}", c.bases, c.roll));
        Scene scene;
        scene.data.compiled.Fielding.fill(Scene::Filled("3B", kWhiteWord));
        scene.values.InfieldRoll = static_cast<std::uint8_t>(c.roll);
        scene.Put(c.bases);
        scene.Bat("G*", kRedWord);
        EXPECT_EQ(scene.state.play.FieldedBy, c.by);
    }
}

// --- Earned and unearned ---

TEST(EarnedRuns, ReachOfAnError) {
    struct Case {
        int kindRoll;
        const char *bases, *after;
        int earned;
        ErrorKind kind;
    };
    const Case cases[]{{20, "123", "b12:3", 0, ErrorKind::E},           {20, "-2-", "b-2:", 0, ErrorKind::E},
                       {24, "123", "-b1:32", 1, ErrorKind::EPlus},      {34, "-2-", "-b-:2", 0, ErrorKind::EPlus},
                       {12, "123", "--b:321", 2, ErrorKind::EPlusPlus}, {39, "1--", "--b:1", 0, ErrorKind::EPlusPlus},
                       {23, "--3", "b--:3", 1, ErrorKind::ED},          {33, "---", "b--:", 0, ErrorKind::ED}};
    for (const Case& c : cases) {
        SCOPED_TRACE(fmt::format("roll {} with {}", c.kindRoll, c.bases));
        LeagueRules rules = Scene::PlainRules();
        rules.SpecialErrorRule = true;
        Scene scene(rules);
        scene.values.ErrorKindRoll = static_cast<std::uint8_t>(c.kindRoll);
        scene.Put(c.bases);
        scene.Bat("E", kWhiteWord);
        EXPECT_EQ(scene.state.play.errorKind, c.kind);
        EXPECT_EQ(scene.Bases(), c.after);
        EXPECT_EQ(scene.EarnedRuns(), c.earned);
        EXPECT_EQ(scene.RBI(), 0);
        EXPECT_EQ(scene.state[Side::Home].Errors, 1);
        EXPECT_TRUE(scene.state.ErrorInInning);
        for (const Runner& runner : scene.state.Batting().runner) EXPECT_EQ(runner.Unearned, runner.slot == 1);
    }
}

TEST(EarnedRuns, TwoOutsAfterAnErrorAndFlags) {
    Scene twoOut;
    twoOut.Put("123", 2);
    twoOut.state.ErrorInInning = true;
    twoOut.Bat("HR", kGreenWord);
    EXPECT_EQ(twoOut.Bases(), "---:321b");
    EXPECT_EQ(twoOut.EarnedRuns(), 0);

    Scene flagged;  // the man who reached on an error carries it home
    flagged.Put("12-");
    flagged.state.Batting().runner[2].Unearned = true;
    flagged.Bat("2*", kGreenWord);
    EXPECT_EQ(flagged.EarnedRuns(), 1);

    Scene forced;  // the run of the man forced lives on in the batter
    forced.Put("123");
    forced.state.Batting().runner[3].Unearned = true;
    forced.Bat("G", kRedWord);
    EXPECT_EQ(forced.Bases(), "b12:");
    EXPECT_TRUE(forced.state.Batting().runner[1].Unearned);
    EXPECT_FALSE(forced.state.Batting().runner[2].Unearned);
}

}  // namespace
}  // namespace tarvane
