#include "scene.h"

namespace tarvane {
namespace {

// One bracketed result with the men about whom it asks: what holding gives, and what each cell of the decision chart
// gives. Behind the bases stands what the play has become where it isn't what it was, and r, e for a run batted in and
// earned beyond those of the result itself; "?" when the second man is asked about.
struct Trial {
    const char* text;
    const char* bases;
    int runnerBase;  // whose rating picks the row
    const char* held;
    std::array<const char*, 6> after;  // Safe, Safe*, SafeErr, Err, Out, Out*
};

const Trial kTrials[]{
    {"(1+)", "1--", 1, "b1-:", {"b-1:", "-b1:", "-b-:1", "b-1:", "b--:", "-b-:"}},
    {"(1)", "12-", 2, "b12:", {"1--:2 re?", "-b1:2 re", "-b1:2 re", "b1-:2", "b1-:", "-b1:"}},
    {"(1)", "-2-", 2, "b-2:", {"b--:2 re", "-b-:2 re", "-b-:2 re", "b--:2", "b--:", "-b-:"}},
    {"(1)", "1--", 1, "b1-:", {"b-1:", "-b1:", "-b-:1", "b-1:", "b--:", "-b-:"}},
    {"ED", "12-", 2, "b12:", {"1--:2?", "-b1:2", "-b1:2", "b1-:2", "b1-:", "-b1:"}},
    {"ED", "-2-", 2, "b-2:", {"b--:2", "-b-:2", "-b-:2", "b--:2", "b--:", "-b-:"}},
    {"ED", "1--", 1, "b1-:", {"b-1:", "-b1:", "-b1:", "b-1:", "b--:", "-b-:"}},
    {"(2)", "1--", 1, "-b1:", {"-b-:1 re", "--b:1 re", "--b:1 re", "-b-:1", "-b-:", "--b:"}},
    {"(SF)", "12-", 2, "12-: F", {"1-2:?", "-12: F", "--1:2 eF", "1-2: F", "1--: F", "-1-: F"}},
    {"(SF)", "-2-", 2, "-2-: F", {"--2: F", "--2: F", "---:2 eF", "--2: F", "---: F", "---: F"}},
    {"(SF)", "1--", 1, "1--: F", {"-1-: F", "-1-: F", "--1: F", "-1-: F", "---: F", "---: F"}},
    {"(F)", "123", 3, "123:", {"12-:3 reSF", "-12:3 reSF", "-12:3 reSF", "12-:3", "12-:", "-12:"}},
};

struct ChartCellCase {
    const char* text;
    std::int32_t color;
    bool out, error;
};
constexpr ChartCellCase kCells[]{{" ", kG, false, false}, {"*", kG, false, false}, {"E", kG, false, true},
                                 {"E", kW, false, true},  {" ", kR, true, false},  {"*", kR, true, false}};

class Decision : public Scene {
  public:
    explicit Decision(const Trial& trial, Side batting = Side::Visitor) : Scene(Rules()) {
        if (batting == Side::Home) {
            state.BattingSide = Side::Home;
            state[Side::Home].box.pitching[0].IPOuts = 3;
            at = Side::Home;
        }
        Put(trial.bases);
        if (std::string(trial.text) == "ED") values.ErrorKindRoll = 23;
        const bool out = std::string(trial.text).find('F') != std::string::npos;
        if (trial.text[0] == 'E')
            Bat("E", kW);
        else
            Bat(trial.text, out ? kR : kG);
    }
    static LeagueRules Rules() {
        LeagueRules rules = PlainRules();
        rules.SpecialErrorRule = true;
        return rules;
    }

    void RollDecision(const ChartCellCase& cell) {
        data.compiled.MgrDec.fill(Filled(cell.text, cell.color));
        EXPECT_EQ(Answer(true), Reject::None);
        EXPECT_EQ(state.sheet, SheetCode::M);
        Roll();
    }

    // Like the cells of the table.
    std::string Outcome(Result before) const {
        std::string text = Bases();
        const bool asked = state.awaited.kind == Await::Decision;
        const int runs = RunsOnPlay();
        std::string counts;
        if (runs > 0 && RunsBattedIn() > 0) counts += 'r';
        if (runs > 0 && Earned() > 0) counts += 'e';
        if (state.play.PlayResult != before) counts += ResultText(state.play.PlayResult);
        if (!counts.empty()) text += " " + counts;
        return asked ? text + '?' : text;
    }

  private:
    int RunsOnPlay() const { return state[at].Runs; }
    int RunsBattedIn() const { return state.awaited.kind == Await::Decision ? state.play.RBIOnPlay : RBI(); }
    int Earned() const { return state.awaited.kind == Await::Decision ? state.play.EarnedRunsOnPlay : EarnedRuns(); }
};

// A run in the middle of a play isn't on the batters' lines yet: tell it from the play's own list.
std::string Told(const Decision& scene, Result before) {
    std::string text = scene.Outcome(before);
    if (scene.state.awaited.kind == Await::Decision) {
        std::string runs;
        for (std::size_t i = 0; i < scene.state.play.RunsScoredCount; ++i)
            runs += Scene::Letter(scene.state.play.RunsScoredList[i]);
        text.insert(4, runs);
    }
    return text;
}

TEST(ExtraBase, EveryTrialEveryCell) {
    for (const Trial& trial : kTrials) {
        for (std::size_t i = 0; i < 6; ++i) {
            SCOPED_TRACE(fmt::format("{} with {}, column {}", trial.text, trial.bases, i));
            Decision scene(trial);
            ASSERT_EQ(scene.state.awaited.kind, Await::Decision);
            EXPECT_EQ(scene.state.awaited.decision, DecisionKind::ExtraBase);
            EXPECT_EQ(scene.state.awaited.side, Side::Visitor);
            const auto slot = static_cast<std::size_t>(trial.runnerBase) + 3;
            EXPECT_EQ(scene.state.play.MDRow, scene.state.Batting().lineup[slot - 1].runRating + 1);
            const Result before = scene.state.play.PlayResult;
            const int outs = scene.state.Outs, errors = scene.state[Side::Home].Errors;
            scene.RollDecision(kCells[i]);
            EXPECT_EQ(Told(scene, before), trial.after[i]);
            EXPECT_EQ(scene.state.Outs, outs + (kCells[i].out ? 1 : 0));
            EXPECT_EQ(scene.state[Side::Home].Errors, errors + (kCells[i].error ? 1 : 0));
        }
    }
}

TEST(ExtraBase, HoldingSettlesEverybody) {
    for (const Trial& trial : kTrials) {
        SCOPED_TRACE(fmt::format("{} with {}", trial.text, trial.bases));
        Decision scene(trial);
        const Result before = scene.state.play.PlayResult;
        ASSERT_EQ(scene.Answer(false), Reject::None);
        EXPECT_EQ(Told(scene, before), trial.held);
        EXPECT_EQ(scene.state.sheet, SheetCode::P);
        EXPECT_EQ(scene.state.Batting().BatterSlot, 2);
        EXPECT_EQ(scene.state.play.extraBase, ExtraBaseCase::None);
        const bool unearned = std::string(trial.text) == "ED";
        for (const Runner& runner : scene.state.Batting().runner) {
            EXPECT_EQ(runner.Unearned, unearned && runner.slot == 1);
        }
    }
}

// The man from second is in; now the man from first is asked about, on the same play.
TEST(ExtraBase, SecondMan) {
    struct Case {
        std::size_t trial;
        bool go;
        std::size_t cell;
        const char* after;
        int outs;
    };
    const Case cases[]{{1, false, 0, "b1-:2", 0}, {1, true, 0, "b-1:2", 0}, {1, true, 5, "-b-:2", 1},
                       {4, false, 0, "b1-:2", 0}, {4, true, 2, "-b1:2", 0}, {8, false, 0, "1-2:", 1},
                       {8, true, 0, "-12:", 1},   {8, true, 4, "--2:", 2}};
    for (const Case& c : cases) {
        SCOPED_TRACE(fmt::format("{} go {} cell {}", kTrials[c.trial].text, c.go, c.cell));
        Decision scene(kTrials[c.trial]);
        scene.RollDecision(kCells[0]);
        ASSERT_EQ(scene.state.awaited.kind, Await::Decision);
        EXPECT_EQ(scene.state.play.MDRow, scene.state.Batting().lineup[3].runRating + 1);
        if (c.go)
            scene.RollDecision(kCells[c.cell]);
        else
            scene.Answer(false);
        EXPECT_EQ(scene.Bases(), c.after);
        EXPECT_EQ(scene.state.Outs, c.outs);
        EXPECT_EQ(scene.state.Batting().BatterSlot, 2);
        EXPECT_EQ(scene.state[Side::Home].box.pitching[0].BF, 1);
    }
}

// The one difference of the sides on this chart: two columns earn the run for the Visitors only.
TEST(ExtraBase, HomeRunsOfTwoColumnsAreNotEarned) {
    for (const std::size_t trial : {std::size_t{7}, std::size_t{8}}) {
        for (const Side side : kBothSides) {
            Decision scene(kTrials[trial], side);
            scene.RollDecision(kCells[trial == 7 ? 1 : 2]);
            EXPECT_EQ(scene.state[side].Runs, 1);
            EXPECT_EQ(scene.EarnedRuns(), side == Side::Visitor ? 1 : 0);
        }
    }
}

TEST(ExtraBase, CreditsOfTheThrow) {
    struct Case {
        std::size_t trial;
        Position base;
    };
    for (const Case& c : {Case{0, Position::B3}, Case{1, Position::C}, Case{3, Position::B3}, Case{7, Position::C},
                          Case{8, Position::B3}, Case{10, Position::B2}, Case{11, Position::C}}) {
        Decision out(kTrials[c.trial]);
        out.RollDecision(kCells[4]);
        EXPECT_EQ(out.Fielder(c.base).PutOuts, 1) << c.trial;
        EXPECT_EQ(out.Fielder(Position::CF).Assists, 1) << c.trial;
        for (const int roll : {50, 51}) {
            Decision error(kTrials[c.trial]);
            error.values.ErrorSpotRoll = static_cast<std::uint8_t>(roll);
            error.RollDecision(kCells[2]);
            EXPECT_EQ(error.Fielder(roll > 50 ? c.base : Position::CF).Errors, 1) << c.trial;
        }
    }
}

TEST(ExtraBase, AnErrorThatDoesNotStandIsAnOut) {
    Decision scene(kTrials[0]);
    scene.data.rules.UseErrorRatings = true;
    for (auto& row : scene.data.compiled.ErrorStands) row.fill(false);
    scene.RollDecision(kCells[3]);
    EXPECT_EQ(scene.Bases(), "b--:");
    EXPECT_EQ(scene.state.Outs, 1);
    EXPECT_EQ(scene.state[Side::Home].Errors, 0);
}

// An error on the ball and another on the throw: each is charged to its own man.
TEST(ExtraBase, TwoErrorsOnOnePlay) {
    Decision scene(kTrials[4]);
    scene.values.ErrorSpotRoll = 90;
    scene.RollDecision(kCells[2]);
    EXPECT_EQ(scene.Fielder(Position::SS).Errors, 1);
    EXPECT_EQ(scene.Fielder(Position::C).Errors, 1);
    EXPECT_EQ(scene.state[Side::Home].Errors, 2);
}

// A third out on the bases ends the half, and the next man leads off: the batter has had his turn.
TEST(ExtraBase, ThirdOutOnTheBases) {
    Scene scene;
    scene.Put("1--", 2);
    scene.Bat("(2)", kG);
    scene.data.compiled.MgrDec.fill(Scene::Filled(" ", kR));
    scene.Answer(true);
    scene.Roll();
    EXPECT_EQ(scene.state.BattingSide, Side::Home);
    EXPECT_EQ(scene.state[Side::Visitor].BatterSlot, 2);
    EXPECT_EQ(scene.state[Side::Visitor].Hits, 1);
}

// Home takes the lead in the ninth: nothing is asked any more, and the game is over with everything booked.
TEST(ExtraBase, WonGameAsksNothing) {
    for (const char* text : {"(1+)", "(1)", "(2)"}) {
        Scene scene;
        scene.at = Side::Home;
        scene.LastInning(3, 3);
        scene.Put("1-3", 1);
        scene.Bat(text, kG);
        EXPECT_TRUE(scene.state.GameOverFlag) << text;
        EXPECT_EQ(scene.state[Side::Home].Hits, 1);
        EXPECT_EQ(scene.RBI(), 1);
    }
    Decision second(kTrials[1], Side::Home);  // the first man sent brings the winning run: no second question
    second.state.Inning = 9;
    second.state[Side::Visitor].box.pitching[0].IPOuts = 24;
    second.state[Side::Home].box.pitching[0].IPOuts = 27;
    second.RollDecision(kCells[0]);
    EXPECT_TRUE(second.state.GameOverFlag);
    EXPECT_TRUE(second.state.WalkOff);
    EXPECT_EQ(second.RBI(), 1);
    Scene fly;  // a fly leaves the winning run on third: it is asked
    fly.LastInning(3, 3);
    fly.Put("--3", 0);
    fly.Bat("(F)", kR);
    EXPECT_EQ(fly.state.awaited.kind, Await::Decision);
}

// --- The field's choice with a man on third ---

TEST(DefensiveDecision, BothAnswers) {
    struct Case {
        const char *text, *bases;
        bool yes;
        const char* after;
        int outs, earned;
        Result result;
        Position putOut;
    };
    const Case cases[]{{"G", "1-3", true, "b--:3", 1, 1, Result::FC, Position::B2},
                       {"G", "1-3", false, "-13:", 1, 0, Result::FC, Position::B1},
                       {"DP", "123", true, "--2:3", 2, 1, Result::DP, Position::B2},
                       {"DP", "123", false, "b12:", 1, 0, Result::FC, Position::C},
                       {"DP", "1-3", true, "---:3", 2, 1, Result::DP, Position::B1},
                       {"DP", "1-3", false, "b1-:", 1, 0, Result::FC, Position::C}};
    for (const bool pitcherSheet : {true, false})
        for (const Case& c : cases) {
            SCOPED_TRACE(fmt::format("{} with {} answer {}", c.text, c.bases, c.yes));
            Scene scene;
            scene.Put(c.bases);
            if (pitcherSheet) scene.Pitcher(c.text, kR);
            if (pitcherSheet)
                scene.Roll();
            else
                scene.Bat(c.text, kR);
            ASSERT_EQ(scene.state.awaited.decision, DecisionKind::Defensive);
            ASSERT_EQ(scene.state.awaited.side, Side::Home);
            ASSERT_EQ(scene.Answer(c.yes), Reject::None);
            EXPECT_EQ(scene.Bases(), c.after);
            EXPECT_EQ(scene.state.Outs, c.outs);
            EXPECT_EQ(scene.EarnedRuns(), c.earned);
            EXPECT_EQ(scene.RBI(), c.earned);
            EXPECT_EQ(scene.state.play.PlayResult, c.result);
            EXPECT_EQ(scene.Fielder(c.putOut).PutOuts, 1);
            EXPECT_EQ(scene.state.Batting().BatterSlot, 2);
        }
    Scene late;  // with one out already the double play just ends the half
    late.Put("1-3", 1);
    late.Bat("DP", kR);
    EXPECT_EQ(late.state.BattingSide, Side::Home);
}

}  // namespace
}  // namespace tarvane
