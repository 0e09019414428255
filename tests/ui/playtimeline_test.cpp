#include <gmock/gmock.h>

#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <functional>
#include <set>

#include "ui/demo.h"
#include "ui/frmgame.h"
#include "ui/playshow.h"

namespace tarvane {
namespace {

AnimationOptions Moving(double speed = 1, bool light = false) {
    return {true, true, light, speed};
}

std::string Told(const PlayFacts& facts) {
    std::string text;
    for (const Tag tag : facts.movements) text += fmt::format("tag {} ", static_cast<int>(tag));
    return text + "result " + std::string(ResultText(facts.result));
}

// The bases as the last moment of a play shows them: how many men stand on each.
std::array<int, 5> BasesShown(const PlayFacts& facts, const PlayTimeline& timeline) {
    const FieldMoment last = timeline.At(timeline.Seconds());
    std::array<int, 5> men{};
    for (std::size_t i = 0; i < facts.man.size(); ++i) {
        const std::size_t man = i == 0 ? kBatterMan : kFirstRunnerMan + i - 1;
        if (facts.man[i].slot == 0 || last.gone[man] || !last.man[man]) continue;
        for (int base = 1; base <= 3; ++base)
            if (Feet(*last.man[man], ParkPlan::Base(base)) < 1) ++men[static_cast<std::size_t>(base)];
    }
    return men;
}

// Keeps the bases and the runs as the engine leaves them, to hold the picture against.
struct Truth : Onlooker {
    std::array<int, 5> bases{};
    int runs = 0, before = 0;
    Side batting = Side::Visitor;
    bool halfOver = false;

    void StepBegins(const GameState& state) override {
        batting = state.BattingSide;
        before = state.Batting().Runs;
    }
    void OnEvent(const GameData&, const GameState&, const GameEvent& event) override {
        halfOver |= event.kind == EventKind::HalfEnded || event.kind == EventKind::GameEnded;
    }
    void StepEnds(const GameState& state) override {
        runs += state[batting].Runs - before;
        for (std::size_t base = 1; base <= 3; ++base) bases[base] = state[batting].runner[base].On();
    }
};

TEST(PlayTimeline, EveryPlayOfManyGamesEndsWithTheRunnersWhereTheEngineSaysTheyAre) {
    demo::DemoSeasons seasons;
    GameOptions options;
    for (SideControl& side : options.computer.value) side = {true, true, true};
    const ParkPlan plan;
    std::set<Tag> seen;
    int plays = 0;
    for (std::uint64_t seed = 1; seed <= 40; ++seed) {
        GameSession session(seasons.Setup(), options, seed);
        Truth truth;
        PlayWatcher watcher(session.Data());
        session.AddOnlooker(truth);
        session.AddOnlooker(watcher);
        ASSERT_EQ(session.Start(), Reject::None);
        int runsShown = 0;
        while (!session.Over()) {
            truth.halfOver = false;
            if (!session.Roll()) break;
            const std::vector<PlayFacts> shown = watcher.TakePlays();
            for (const PlayFacts& facts : shown) {
                ++plays;
                seen.insert(facts.movements.begin(), facts.movements.end());
                for (const PlayFacts::Man& man : facts.man) runsShown += man.to == PlayFacts::kHome;
                for (const bool light : {false, true}) {
                    const PlayTimeline timeline(facts, plan, Moving(1, light));
                    ASSERT_LT(timeline.Seconds(), 9) << Told(facts);
                    ASSERT_LE(timeline.Struck(), timeline.Caught());
                    ASSERT_LE(timeline.Caught(), timeline.Seconds());
                    // A batter whose base still hangs on a throw is not on any in the state.
                    if (truth.halfOver || session.State().play.batterHeld.On() || &facts != &shown.back()) continue;
                    ASSERT_EQ(BasesShown(facts, timeline), truth.bases)
                        << "seed " << seed << " inning " << int(session.State().Inning) << ": " << Told(facts);
                }
            }
        }
        // Nobody sees a balk or a runner who is sent on without a throw.
        EXPECT_LE(runsShown, truth.runs) << "seed " << seed;
        EXPECT_GE(runsShown, truth.runs - 2) << "seed " << seed;
    }
    EXPECT_GT(plays, 2000);
    for (const Tag tag : {Tag::PitcherToCatcher, Tag::GroundOut, Tag::FlyOut, Tag::DoublePlay, Tag::Single,
                          Tag::ExtraBaseHit, Tag::HomeRun, Tag::MDPlay, Tag::SBSafe, Tag::SBOut})
        EXPECT_TRUE(seen.contains(tag)) << static_cast<int>(tag);
}

PlayFacts Hit(Tag tag, Result result, Position fielder, int roll = 1) {
    PlayFacts facts;
    facts.man[0] = {4, PlayFacts::kAtBat, 2};
    facts.movements = {Tag::PitcherThrow, tag};
    facts.result = result;
    facts.fieldedBy = fielder;
    facts.RunnerRoll = roll;
    return facts;
}

TEST(PlayTimeline, LongBallsGoWhereTheyMust) {
    Ballpark wide;
    wide.LFFence = wide.CFFence = 450;
    for (const Ballpark& park : {Ballpark(), wide}) {
        const ParkPlan plan(park);
        const auto landing = [&](const PlayFacts& facts) {
            const PlayTimeline timeline(facts, plan, Moving());
            return *timeline.At(timeline.Caught()).ball;
        };
        const FieldPoint homer = landing(Hit(Tag::HomeRun, Result::HR, Position::CF));
        EXPECT_GT(homer.y, plan.Fence(0) + 10);
        PlayFacts line = Hit(Tag::HomeRun, Result::HR, Position::LF);
        line.nearLine = true;
        EXPECT_LT(landing(line).x, -0.9 * landing(line).y);
        const FieldPoint near = landing(Hit(Tag::ExtraBaseHit, Result::Double, Position::CF, 70));
        const FieldPoint past = landing(Hit(Tag::ExtraBaseHit, Result::Double, Position::CF, 71));
        EXPECT_GT(past.y, near.y + 40);
        EXPECT_LT(past.y, plan.Fence(0)) << "a double stays in the park";
        EXPECT_EQ(past, landing(Hit(Tag::ExtraBaseHit, Result::Triple, Position::CF, 5)));
    }
}

TEST(PlayTimeline, SpeedsScaleTheLightFormIsShorterAndRunnersCanStay) {
    const PlayFacts facts = Hit(Tag::ExtraBaseHit, Result::Double, Position::RF);
    const ParkPlan plan;
    const double average = PlayTimeline(facts, plan, Moving()).Seconds();
    EXPECT_NEAR(PlayTimeline(facts, plan, Moving(0.33)).Seconds(), average * 0.33, 1e-9);
    EXPECT_NEAR(PlayTimeline(facts, plan, Moving(1.67)).Seconds(), average * 1.67, 1e-9);
    EXPECT_GT(PlayTimeline(facts, plan, Moving(0)).Seconds(), 0.01) << "a damaged setting";
    const PlayTimeline light(facts, plan, Moving(1, true));
    EXPECT_LT(light.Seconds(), average * 0.75);
    EXPECT_EQ(light.Struck(), 0) << "no pitch";
    AnimationOptions still = Moving();
    still.BaseRunnerAnimation = false;
    const FieldMoment last = PlayTimeline(facts, plan, still).At(100);
    EXPECT_FALSE(last.man[kBatterMan].has_value());
    EXPECT_TRUE(last.ball.has_value());
}

// --- On the screen ---------------------------------------------------------------------------------------------------

struct ShowTest : testing::Test {
    demo::Outside outside;
    demo::DemoSeasons seasons;
    GameOptions options;
    std::unique_ptr<frmGame> game;

    ShowTest() {
        for (SideControl& side : options.computer.value) side = {true, true, true};
        options.ComputerMgrAutoClick = true;
        options.PromptSpectatorMode = false;
        options.animation = Moving();
    }
    void Open(std::uint64_t seed) {
        game = std::make_unique<frmGame>(seasons.Setup(), options, seed, outside.Get());
        game->resize(1024, 768);
        game->show();
        game->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(game.get()));
    }
    template <class T>
    T* Find(const char* name) {
        return game->findChild<T*>(QString::fromLatin1(name));
    }
    QPushButton* Button() { return Find<QPushButton>("cmdPlay"); }
    std::string Text() { return Find<QPlainTextEdit>("txtPlayByPlay")->toPlainText().toStdString(); }
    bool Moves() { return Find<FieldView>("fraField")->Moves(); }
};

TEST_F(ShowTest, ThePlayMovesBeforeItIsToldAndAnyKeyOrButtonEndsItAndDoesNothingElse) {
    options.sounds.GameSounds = true;
    Open(3);
    const std::vector<std::function<void()>> skips{[&] { QTest::keyClick(game.get(), Qt::Key_Escape); },
                                                   [&] { QTest::keyClick(Button(), Qt::Key_Return); },
                                                   [&] { QTest::keyClick(game.get(), Qt::Key_R, Qt::AltModifier); },
                                                   [&] { QTest::mouseClick(Button(), Qt::LeftButton); },
                                                   [&] { QTest::mouseClick(Find<QWidget>("cmdQuit"), Qt::LeftButton); },
                                                   [&] { Button()->click(); }};
    for (const auto& skip : skips) {
        const std::string before = Text();
        Button()->click();
        ASSERT_TRUE(Moves());
        EXPECT_EQ(Text(), before) << "told before the ball has stopped";
        skip();
        EXPECT_FALSE(Moves()) << "it goes on, or the skip has played the next man too";
        EXPECT_NE(Text(), before);
        EXPECT_TRUE(outside.dialogs.questions.empty()) << "the skip left the game";
    }
    EXPECT_TRUE(game->isVisible());
}

TEST_F(ShowTest, LeftAloneItEndsByItselfWithItsSoundsInTheirOrder) {
    options.animation = Moving(0.33);
    options.sounds.GameSounds = true;
    Open(3);
    Button()->click();
    ASSERT_TRUE(Moves());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !Moves(); }, 10000));
    const std::vector<std::string> alone = outside.sound.played;
    EXPECT_FALSE(alone.empty());
    outside.sound.played.clear();
    options.animation = {};
    Open(3);
    Button()->click();
    EXPECT_FALSE(Moves());
    EXPECT_EQ(outside.sound.played, alone) << "the same clips without a picture";
}

TEST_F(ShowTest, AGameThatMovesIsTheSameGameAndAQuickOneDoesNotMove) {
    options.animation = Moving(0.33);
    Open(8);
    int moved = 0;
    for (int i = 0; i < 2000 && !game->Session().Over(); ++i) {
        Button()->click();
        moved += Moves();
    }
    ASSERT_TRUE(game->Session().Over());
    EXPECT_GT(moved, 50);
    options.animation.GameAnimationLite = true;
    Open(8);
    int hitsAndRuns = 0;
    for (int i = 0; i < 2000 && !game->Session().Over(); ++i) {
        Button()->click();
        hitsAndRuns += Moves();
    }
    EXPECT_GT(hitsAndRuns, 5);
    EXPECT_LT(hitsAndRuns, moved / 2);
    GameSession quick(seasons.Setup(), options, 8);
    PlayWatcher watcher(quick.Data());
    PlaySounds sounds(quick, 1);
    quick.AddOnlooker(watcher);
    quick.AddOnlooker(sounds);
    quick.Options().sounds.GameSounds = quick.Options().sounds.BetweenInningsSounds = true;
    ASSERT_EQ(quick.Start(), Reject::None);
    quick.QuickPlay(0);
    EXPECT_TRUE(quick.State() == game->Session().State());
    EXPECT_TRUE(watcher.TakePlays().empty());
    EXPECT_TRUE(sounds.TakeCues().empty());
}

}  // namespace
}  // namespace tarvane
