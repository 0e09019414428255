#include "scene.h"

namespace tarvane {
namespace {

TEST(EndOfHalf, ThirdOutClearsTheField) {
    Scene scene;
    scene.Put("123", 2);
    scene.state.ErrorInInning = true;
    scene.state.Batting().runner[2].Unearned = true;
    scene.state.HalfInningRuns = 2;
    scene.state[Side::Visitor].Runs = 2;
    scene.state[Side::Home].box.pitching[0].R = 2;
    scene.state[Side::Visitor].box.batter[7].R = 2;
    scene.Bat("F", kR);
    EXPECT_EQ(scene.state.BattingSide, Side::Home);
    EXPECT_EQ(scene.state.Inning, 1);
    EXPECT_EQ(scene.state.Outs, 0);
    EXPECT_FALSE(scene.state.ErrorInInning);
    EXPECT_EQ(scene.state[Side::Visitor].runner, (std::array<Runner, 4>{}));
    EXPECT_EQ(scene.state[Side::Visitor].InningRuns[0], 2);
    EXPECT_EQ(scene.state[Side::Visitor].LOB, 3);
    EXPECT_EQ(scene.state.HalfInningRuns, 0);
    for (int out = 0; out < 3; ++out) scene.Bat("F", kR);
    EXPECT_EQ(scene.state.BattingSide, Side::Visitor);
    EXPECT_EQ(scene.state.Inning, 2);
    EXPECT_EQ(scene.state[Side::Visitor].BatterSlot, 2);
    EXPECT_EQ(scene.state[Side::Home].BatterSlot, 4);
}

// A runner's out on a steal leaves the batter his turn: he leads off, and his strikes are forgotten.
TEST(EndOfHalf, CaughtForTheThirdOut) {
    for (const char* text : {" ", "PK"}) {
        Scene scene;
        scene.Put("1--", 2);
        scene.state.play.buntResult = BuntResult::TwoK;
        scene.Put(StealInput{'2'});
        scene.data.compiled.StolenBase.fill(Scene::Filled(text, kR));
        scene.Roll();
        EXPECT_EQ(scene.state.BattingSide, Side::Home);
        EXPECT_EQ(scene.state[Side::Visitor].BatterSlot, 1);
        EXPECT_EQ(scene.state.play.buntResult, BuntResult::None);
        EXPECT_EQ(scene.state[Side::Home].box.pitching[0].IPOuts, 3);
        scene.Bat("F", kR);  // the next play of the other side moves on as usual
        EXPECT_EQ(scene.state[Side::Home].BatterSlot, 2);
    }
}

TEST(EndOfHalf, StaminaIsCheckedBeforeThePitch) {
    LeagueRules rules = Scene::PlainRules();
    rules.PitcherStamina = true;
    Scene scene(rules);
    EXPECT_EQ(scene.state.sheet, SheetCode::PS);  // the game's first check is the Home starter's
    scene.Roll(39);
    EXPECT_EQ(scene.state.sheet, SheetCode::P);
    scene.Put("---", 2);
    scene.Bat("F", kR);
    EXPECT_EQ(scene.state.BattingSide, Side::Home);
    EXPECT_EQ(scene.state.sheet, SheetCode::PS);
    scene.Roll(10);
    EXPECT_TRUE(scene.state[Side::Visitor].PitcherTired);
    EXPECT_EQ(scene.state.sheet, SheetCode::P);
    EXPECT_EQ(scene.state[Side::Home].BatterSlot, 1);
}

TEST(EndOfGame, WalkOffsCountEveryRun) {
    struct Case {
        const char *text, *bases;
        std::int32_t color;
        int homeBefore, homeAfter;
        const char* after;
    };
    const Case cases[]{{"1*", "-23", kG, 3, 5, "b--:32"},
                       {"HR", "123", kG, 1, 5, "---:321b"},
                       {"E", "--3", kW, 3, 4, "b--:3"},
                       {"SF", "--3", kR, 3, 4, "---:3"},
                       {" ", "123", kStoredYellowWord, 3, 4, "b12:3"}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        Scene scene;
        scene.at = Side::Home;
        scene.LastInning(3, c.homeBefore);
        scene.Put(c.bases, 1);
        scene.Bat(c.text, c.color);
        EXPECT_TRUE(scene.state.GameOverFlag);
        EXPECT_TRUE(scene.state.WalkOff);
        EXPECT_EQ(scene.state[Side::Home].Runs, c.homeAfter);
        EXPECT_EQ(scene.Bases(), c.after);
        EXPECT_EQ(scene.state[Side::Home].LOB, 0);  // the last half of a walk-off is never summed
        EXPECT_EQ(scene.state[Side::Visitor].box.pitching[0].Loss, true);
    }
}

TEST(EndOfGame, RunnersAloneCanEndIt) {
    Scene wild;
    wild.LastInning(3, 3);
    wild.Put("--3");
    wild.Pitcher("WP", kStoredYellowWord);
    wild.Roll();
    EXPECT_TRUE(wild.state.WalkOff);
    Scene steal;
    steal.LastInning(3, 3);
    steal.Put("--3");
    steal.Put(StealInput{'H'});
    steal.data.compiled.StolenBase.fill(Scene::Filled(" ", kG));
    steal.Roll();
    EXPECT_TRUE(steal.state.WalkOff);
    Scene early;  // the same in the eighth goes on
    early.LastInning(3, 3);
    early.state.Inning = 8;
    early.state[Side::Visitor].box.pitching[0].IPOuts = 21;
    early.state[Side::Home].box.pitching[0].IPOuts = 24;
    early.Put("--3");
    early.Bat("HR", kG);
    EXPECT_FALSE(early.state.GameOverFlag);
}

TEST(EndOfGame, LastOuts) {
    struct Case {
        Side batting;
        int inning, visitor, home;
        bool over, bottomNotPlayed;
    };
    const Case cases[]{{Side::Visitor, 9, 2, 3, true, true},   {Side::Visitor, 9, 3, 3, false, false},
                       {Side::Visitor, 9, 4, 3, false, false}, {Side::Visitor, 8, 2, 3, false, false},
                       {Side::Home, 9, 4, 3, true, false},     {Side::Home, 9, 3, 3, false, false},
                       {Side::Home, 8, 4, 3, false, false},    {Side::Home, 12, 4, 3, true, false}};
    for (const Case& c : cases) {
        SCOPED_TRACE(fmt::format("{} {} {}:{}", SideLetter(c.batting), c.inning, c.visitor, c.home));
        Scene scene;
        scene.LastInning(c.visitor, c.home);
        scene.state.BattingSide = c.batting;
        scene.state.Inning = static_cast<std::uint8_t>(c.inning);
        const auto outs = [&](Side side, int halves) {
            scene.state[side].box.pitching[0].IPOuts = static_cast<std::int16_t>(3 * halves);
        };
        outs(Side::Home, c.batting == Side::Home ? c.inning : c.inning - 1);
        outs(Side::Visitor, c.inning - 1);
        // Somebody has decided it by now: the leader's starter.
        if (c.visitor != c.home) {
            const Side leader = c.visitor > c.home ? Side::Visitor : Side::Home;
            scene.state[leader].box.pitching[0].Win = true;
            scene.state[Other(leader)].box.pitching[0].Loss = true;
        }
        scene.Put("1--", 2);
        scene.Bat("F", kR);
        EXPECT_EQ(scene.state.GameOverFlag, c.over);
        EXPECT_EQ(scene.state.BottomNotPlayed, c.bottomNotPlayed);
        EXPECT_FALSE(scene.state.WalkOff);
        EXPECT_EQ(scene.state.awaited.kind, c.over ? Await::GameOver : Await::Roll);
        if (c.over) {
            EXPECT_EQ(scene.Roll(), Reject::GameOver);
        }
    }
}

// Past the thirtieth inning the game goes on; only the runs by inning aren't recorded any more.
TEST(EndOfGame, MoreInningsThanTheLineHolds) {
    Scene scene;
    scene.state.Inning = 31;
    scene.state[Side::Home].box.pitching[0].IPOuts = scene.state[Side::Visitor].box.pitching[0].IPOuts = 90;
    scene.Bat("HR", kG);
    EXPECT_EQ(scene.state[Side::Visitor].Runs, 1);
    for (int out = 0; out < 6; ++out) scene.Bat("F", kR);
    EXPECT_TRUE(scene.state.GameOverFlag);
    EXPECT_EQ(scene.state[Side::Visitor].InningRuns, (std::array<std::int16_t, kMaxInnings>{}));
}

// --- The door ---

class Counter : public GameListener {
  public:
    void OnEvent(const GameData&, const GameState&, const GameEvent&) override { ++events; }
    int events = 0;
};

// Every kind of input against every kind of wait: what isn't legal changes nothing and tells nothing.
TEST(Door, IllegalInputsChangeNothing) {
    std::vector<std::pair<const char*, Scene>> scenes;
    const auto add = [&](const char* name) -> Scene& { return scenes.emplace_back(name, Scene()).second; };
    add("pitch");
    add("pitch, two out").Put("1--", 2);
    Scene& swing = add("batter");
    swing.Roll();
    Scene& decision = add("extra base");
    decision.Put("1--");
    decision.Bat("(2)", kG);
    Scene& defence = add("defensive decision");
    defence.Put("1-3");
    defence.Bat("G", kR);
    Scene& over = add("over");
    over.LastInning(0, 0);
    over.Bat("HR", kG);
    const PlayValues good;
    PlayValues bad;
    bad.ErrorColumn = 6;
    PlayValues zero;
    zero.FieldingRoll = 0;
    LineupInput empty;
    const std::vector<Input> inputs{RollInput{9, good},
                                    RollInput{40, good},
                                    RollInput{0, good},
                                    RollInput{20, bad},
                                    RollInput{20, zero},
                                    RollInput{20, good},
                                    DecisionInput{Side::Visitor, true},
                                    DecisionInput{Side::Home, true},
                                    IntentionalWalkInput{good},
                                    IntentionalWalkInput{bad},
                                    BuntInput{BuntType::Sacrifice},
                                    StealInput{'2'},
                                    StealInput{'3'},
                                    StealInput{'x'},
                                    empty};
    // By scene: the places of the inputs that are legal there.
    const std::vector<std::vector<std::size_t>> legal{{5, 8}, {5, 8, 11}, {5}, {6}, {7}, {}};
    for (std::size_t s = 0; s < scenes.size(); ++s) {
        for (std::size_t i = 0; i < inputs.size(); ++i) {
            SCOPED_TRACE(fmt::format("{}: input {}", scenes[s].first, i));
            const GameData& data = scenes[s].second.data;
            GameState state = scenes[s].second.state;
            Counter counter;
            const bool expected = std::count(legal[s].begin(), legal[s].end(), i) == 1;
            EXPECT_EQ(Check(data, state, inputs[i]) == Reject::None, expected);
            EXPECT_EQ(state, scenes[s].second.state);
            EXPECT_EQ(Advance(data, state, inputs[i], &counter) == Reject::None, expected);
            EXPECT_EQ(state != scenes[s].second.state, expected);
            if (!expected) {
                EXPECT_EQ(counter.events, 0);
            }
        }
    }
}

TEST(Door, AComputerManagedHomeTeamBuntsOnNoGreatLeadLate) {
    const auto bunt = [](int inning, int lead, Side batting, bool computer) {
        Scene scene;
        scene.LastInning(batting == Side::Home ? 0 : lead, batting == Side::Home ? lead : 0);
        scene.state.Inning = static_cast<std::uint8_t>(inning);
        scene.state.BattingSide = batting;
        for (const Side side : kBothSides) scene.state.computer[side].game = computer;
        scene.Put("1--");
        return Check(scene.data, scene.state, BuntInput{});
    };
    EXPECT_EQ(bunt(8, 4, Side::Home, true), Reject::LeadTooGreat);
    EXPECT_EQ(bunt(8, 3, Side::Home, true), Reject::None);
    EXPECT_EQ(bunt(7, 4, Side::Home, true), Reject::None);
    EXPECT_EQ(bunt(8, 4, Side::Home, false), Reject::None);
    EXPECT_EQ(bunt(8, 4, Side::Visitor, true), Reject::None);
}

TEST(Door, ReasonsForRunnersAndStarts) {
    Scene scene;
    EXPECT_EQ(Check(scene.data, scene.state, BuntInput{}), Reject::NoRunner);
    EXPECT_EQ(Check(scene.data, scene.state, StealInput{'2'}), Reject::NoRunner);
    scene.Put("12-", 2);
    EXPECT_EQ(Check(scene.data, scene.state, BuntInput{}), Reject::TooManyOuts);
    EXPECT_EQ(Check(scene.data, scene.state, StealInput{'2'}), Reject::BaseOccupied);
    EXPECT_EQ(Check(scene.data, scene.state, StealInput{'3'}), Reject::None);
    EXPECT_FALSE(RejectText(Reject::BaseOccupied).empty());
    EXPECT_FALSE(RejectText(Reject::CannotPitch).empty());

    GameState untouched, state;
    LineupInput home = fixture::StartingLineup(scene.data, Side::Home);
    home.pitcher = home.player[8] = {'P', 7};
    EXPECT_EQ(StartGame(scene.data, fixture::StartingLineup(scene.data, Side::Visitor), home, state),
              Reject::NotAStarter);
    EXPECT_EQ(state, untouched);
    state.computer[Side::Home].subs = true;
    state.Inning = 7;
    home = fixture::StartingLineup(scene.data, Side::Home);
    EXPECT_EQ(StartGame(scene.data, fixture::StartingLineup(scene.data, Side::Visitor), home, state), Reject::None);
    EXPECT_TRUE(state.computer[Side::Home].subs);
    EXPECT_EQ(state.Inning, 1);
}

TEST(Door, IntentionalWalkReadsNoChart) {
    Scene scene;
    scene.Put("-2-");
    scene.Pitcher("G", kR);
    scene.state.play.ParkResult = ColumnEffect::FlyOut;
    EXPECT_EQ(scene.Put(IntentionalWalkInput{scene.values}), Reject::None);
    EXPECT_EQ(scene.Bases(), "b2-:");
    EXPECT_EQ(scene.state[Side::Visitor].box.batter[0].total.BB, 1);
    EXPECT_EQ(scene.state.Outs, 0);
    EXPECT_EQ(scene.state.play.ParkResult, ColumnEffect::None);
}

// The table that a screen shows for each sheet.
TEST(SheetView, ColumnsHeadsAndExtraRows) {
    const GameData data = fixture::MakeGameData();
    GameState state = fixture::FirstPitch(data);
    ASSERT_EQ(state.sheet, SheetCode::PS);
    SheetView view = MakeSheetView(data, state);
    EXPECT_EQ(view.title, "H Pitcher 1 (S)");
    EXPECT_EQ(view.columns, 3);
    EXPECT_EQ(view.head[2], "Test Year Effect");
    EXPECT_EQ(view.extraLabel31 + view.extraText31, "T19");
    EXPECT_EQ(view.extraLabel32 + view.extraText32, "213");
    Advance(data, state, RollInput{39, {}});
    view = MakeSheetView(data, state);
    EXPECT_EQ(view.cell[0], data[Side::Home].roster.pitchers[1].pitch);
    EXPECT_EQ(view.cell[1], data.park.Roll);
    state.sheet = SheetCode::B;
    EXPECT_EQ(MakeSheetView(data, state).cell[0], data[Side::Visitor].roster.batters[0].vsR);
    state.sheet = SheetCode::XI;
    EXPECT_EQ(MakeSheetView(data, state).head[1], "Position");
    state.sheet = SheetCode::M;
    state.play.MDRow = 4;
    view = MakeSheetView(data, state);
    EXPECT_EQ(view.columns, 1);
    EXPECT_EQ(view.extraLabel31 + view.extraText31, "RT3");
    state.sheet = SheetCode::S;
    state.play.StealTarget = 'H';
    state.play.StealRow = 18;
    EXPECT_EQ(MakeSheetView(data, state).title, "Steal of Home Chart");
    EXPECT_EQ(MakeSheetView(data, state).cell[0], data.charts.StolenBase[17].cell);
}

}  // namespace
}  // namespace tarvane
