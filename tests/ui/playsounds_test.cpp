#include <gmock/gmock.h>

#include <QComboBox>
#include <QPushButton>

#include <set>

#include "ui/demo.h"
#include "ui/frmgame.h"
#include "ui/frmquickplay.h"
#include "ui/playsounds.h"

namespace tarvane {
namespace {

using testing::AnyOf;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Names = std::vector<std::string>;

struct SoundsTest : testing::Test {
    demo::DemoSeasons seasons;
    GameOptions options;
    GameState state;

    SoundsTest() { options.sounds.GameSounds = true; }

    static Names NamesOf(const std::vector<SoundCue>& cues) {
        Names names;
        for (const SoundCue& cue : cues) names.push_back(cue.file.filename().string());
        return names;
    }
    GameEvent Play(Side side, Result result, SheetCode sheet = SheetCode::B) {
        GameEvent event;
        event.kind = EventKind::Sound;
        event.side = state.BattingSide = side;
        event.sheet = sheet;
        event.result = result;
        return event;
    }
    // All clips that may be heard at each place of a play's sequence.
    std::vector<std::set<std::string>> Heard(const std::vector<GameEvent>& events) {
        std::vector<std::set<std::string>> places;
        const GameSession session(seasons.Setup(), options, 1);
        for (std::uint64_t seed = 0; seed < 200; ++seed) {
            PlaySounds sounds(session, seed);
            for (const GameEvent& event : events) sounds.OnEvent(session.Data(), state, event);
            const Names names = NamesOf(sounds.TakeCues());
            if (places.size() < names.size()) places.resize(names.size());
            for (std::size_t i = 0; i < names.size(); ++i) places[i].insert(names[i]);
        }
        return places;
    }
};

using Set = std::set<std::string>;

TEST_F(SoundsTest, EachResultHasItsClipsAndTheCrowdIsTheHomeTeams) {
    const Set bats{"BallHitSolid1.wav", "BallHitSolid2.wav", "BallHitSolid3.wav"};
    const Set soft{"BallHitSolid2.wav", "BallHit2.wav"};
    const Set gloves{"CatchBall1.wav", "CatchBall2.wav", "CatchBall3.wav"};
    const auto visitor = [&](Result r, SheetCode s = SheetCode::B) { return Heard({Play(Side::Visitor, r, s)}); };
    const auto home = [&](Result r, SheetCode s = SheetCode::B) { return Heard({Play(Side::Home, r, s)}); };
    EXPECT_THAT(visitor(Result::SinglePlus), ElementsAre(Set{"BallHitSolid2.wav", "BallHit2.wav", "BaseHit.wav"}));
    EXPECT_THAT(visitor(Result::Double), ElementsAre(Set{"BaseHit.wav"}));
    EXPECT_THAT(home(Result::DoubleAllScore),
                ElementsAre(Set{"BallHitSolid1.wav", "BallHitSolid2.wav", "BallHitSolid3.wav", "BaseHit.wav"}));
    EXPECT_THAT(visitor(Result::Triple), ElementsAre(bats));
    EXPECT_THAT(home(Result::Triple), ElementsAre(bats, Set{"CheeringLarge.wav"}));
    EXPECT_THAT(visitor(Result::HR), ElementsAre(bats));
    EXPECT_THAT(home(Result::HR), ElementsAre(Set{"hitcrowdcheer2.wav", "BallHitSolid1.wav"},
                                              Set{"CheeringLarge.wav", "CheerWithHorn.wav"}));
    EXPECT_THAT(home(Result::E), ElementsAre(soft));
    EXPECT_THAT(home(Result::FC), ElementsAre(soft, gloves));
    EXPECT_THAT(visitor(Result::DP), ElementsAre(soft, gloves, Set{"CheerMed.wav", "Crowd cheering.wav"}));
    EXPECT_THAT(home(Result::K), ElementsAre(Set{"Swing.wav", "Catcher1.wav", "BuntOrTip.wav"}));
    EXPECT_THAT(visitor(Result::BB), ElementsAre(Set{"Catcher2.wav"}));
    EXPECT_THAT(home(Result::BB), IsEmpty());
    const Set slide{"BaseSlide.wav", "CatchBall2.wav"};
    EXPECT_THAT(home(Result::SB, SheetCode::S), ElementsAre(slide, Set{"CheerMed.wav", "Crowd cheering.wav"}));
    EXPECT_THAT(visitor(Result::SB, SheetCode::S), ElementsAre(slide));
    EXPECT_THAT(home(Result::PK, SheetCode::S),
                ElementsAre(Set{"CatchBall1.wav", "CatchBall3.wav"}, Set{"crowd down.wav"}));
    EXPECT_THAT(home(Result::SH, SheetCode::Bt), ElementsAre(Set{"BuntOrTip.wav"}, gloves));
    state.play.MDResult = ManagerDecisionResult::Err;
    EXPECT_THAT(home(Result::Single, SheetCode::M), ElementsAre(Set{"BaseSlide.wav"}));
    state.play.MDResult = ManagerDecisionResult::OutStar;
    EXPECT_THAT(home(Result::Single, SheetCode::M), ElementsAre(slide));
}

TEST_F(SoundsTest, RunsRaiseTheHomeCrowdByTheirWeightAndSometimesDisappointIt) {
    GameEvent runs;
    runs.tag = Tag::RunsScored;
    runs.number = 2;
    state.BattingSide = Side::Home;
    state[Side::Home].Runs = 8;
    EXPECT_THAT(Heard({runs}), ElementsAre(Set{"CheerMed.wav", "Crowd cheering.wav"}));
    state[Side::Visitor].Runs = 7;
    EXPECT_THAT(Heard({runs}), ElementsAre(Set{"CheeringLarge.wav", "CheerWithHorn.wav"}));
    // A homer has been cheered already.
    EXPECT_THAT(Heard({Play(Side::Home, Result::HR), runs}), SizeIs(2));
    state.play.RunsScoredCount = 1;
    EXPECT_THAT(Heard({Play(Side::Home, Result::SFDecision)})[1], ElementsAre("CheerWithHorn.wav"));
    state.BattingSide = Side::Visitor;
    EXPECT_THAT(Heard({runs}), ElementsAre(Set{"boos1.wav", "crowd down.wav"}));
    const GameSession session(seasons.Setup(), options, 1);
    PlaySounds sounds(session, 3);
    for (int i = 0; i < 4000; ++i) {
        sounds.OnEvent(session.Data(), state, Play(Side::Visitor, Result::HBP));
        sounds.OnEvent(session.Data(), state, runs);
    }
    const Names names = NamesOf(sounds.TakeCues());
    EXPECT_NEAR(static_cast<double>(std::count(names.begin(), names.end(), "boos1.wav")), 520, 90);
    EXPECT_NEAR(static_cast<double>(names.size()), 1040, 120);
}

TEST_F(SoundsTest, TheUsersSetStandsInPlaceOfTheBuiltInOneAndAnEmptyNameIsSilence) {
    options.sounds.UserGamePlaySounds = true;
    options.sounds.user = {{"VisitorFOSF", "crack.wav"}, {"VisitorFOSFGlove", "mitt.mp3"},
                           {"HomeHR", "fanfare.mp3"},    {"HomeDPGlove2", "two.wav"},
                           {"HomeMDOut", "out.wav"},     {"HomeRunsScored", "run.wav"}};
    EXPECT_THAT(Heard({Play(Side::Visitor, Result::SF)}), ElementsAre(Set{"crack.wav"}, Set{"mitt.mp3"}));
    EXPECT_THAT(Heard({Play(Side::Home, Result::SF)}), IsEmpty());
    EXPECT_THAT(Heard({Play(Side::Home, Result::DP)}), ElementsAre(Set{"two.wav"}));
    GameEvent runs;
    runs.tag = Tag::RunsScored;
    runs.number = 1;
    EXPECT_THAT(Heard({Play(Side::Home, Result::HR), runs}), ElementsAre(Set{"fanfare.mp3"}, Set{"run.wav"}));
    state.play.MDResult = ManagerDecisionResult::Out;
    EXPECT_THAT(Heard({Play(Side::Home, Result::Single, SheetCode::M)}), ElementsAre(Set{"out.wav"}));
}

TEST_F(SoundsTest, BetweenInningsSongsComeOnceEachAndTheStretchHasItsOwn) {
    options.sounds.GameSounds = false;
    options.sounds.BetweenInningsSounds = true;
    GameEvent half;
    half.kind = EventKind::HalfEnded;
    half.side = Side::Visitor;
    EXPECT_THAT(Heard({half}), ElementsAre(Set{"OrganRally.wav", "OrganStroll.wav", "OrganStairs.wav"}));
    options.sounds.Sound[3] = "first.mp3";
    options.sounds.Sound[9] = "second.wav";
    options.sounds.Sound[24] = "third.mid";
    options.sounds.SoundDuration = 12;
    EXPECT_THAT(Heard({half, half, half}), ElementsAre(Set{"first.mp3"}, Set{"second.wav"}, Set{"third.mid"}));
    options.sounds.BetweeInnRandom = true;
    options.sounds.SeventhInnStretchSound = "stretch.mp3";
    GameSession session(seasons.Setup(), options, 1);
    PlaySounds sounds(session, 4);
    const auto hear = [&](int inning) {
        state.Inning = static_cast<std::uint8_t>(inning);
        sounds.OnEvent(session.Data(), state, half);
        return sounds.TakeCues();
    };
    std::set<std::string> heard;
    for (int inning = 1; inning <= 3; ++inning)
        for (const SoundCue& cue : hear(inning)) {
            heard.insert(cue.file.filename().string());
            EXPECT_EQ(cue.seconds, cue.file.extension() == ".mp3" ? 12 : 0);
        }
    EXPECT_THAT(heard, SizeIs(3));
    EXPECT_THAT(NamesOf(hear(7)), ElementsAre("stretch.mp3"));
    session.SpectatorMode = true;
    EXPECT_THAT(hear(7), IsEmpty());
}

// Everything a game asks for is there to be played, and only what was switched on.
TEST_F(SoundsTest, AGameOnTheScreenIsHeardAndAQuickOneIsNot) {
    for (SideControl& side : options.computer.value) side = {true, true, true};
    options.ComputerMgrAutoClick = true;
    options.PromptSpectatorMode = false;
    const auto play = [&](bool on, bool quick) {
        demo::Outside outside;
        options.sounds.GameSounds = options.sounds.BetweenInningsSounds = on;
        frmGame game(seasons.Setup(), options, 11, outside.Get());
        auto* button = game.findChild<QPushButton*>(QStringLiteral("cmdPlay"));
        if (quick) {
            Q_EMIT game.findChild<QPushButton*>(QStringLiteral("chkQuickPlay"))->clicked();
            auto* quickly = game.findChild<frmQuickPlay*>();
            auto* how = quickly->findChild<QComboBox*>(QStringLiteral("cmbGamePlayOptions"));
            how->setCurrentIndex(how->count() - 1);
            quickly->findChild<QPushButton*>(QStringLiteral("cmdPlay"))->click();
        }
        for (int i = 0; i < 1000 && !game.Session().Over(); ++i) button->click();
        EXPECT_TRUE(game.Session().Over());
        return outside.sound.played;
    };
    const Names heard = play(true, false);
    EXPECT_GT(heard.size(), 60U);
    for (const std::string& name : heard) EXPECT_TRUE(std::filesystem::exists(BuiltInSounds() / name)) << name;
    EXPECT_THAT(heard, Contains(AnyOf("OrganRally.wav", "OrganStroll.wav", "OrganStairs.wav")));
    EXPECT_THAT(heard, Contains(AnyOf("CatchBall1.wav", "CatchBall2.wav", "CatchBall3.wav")));
    EXPECT_THAT(play(false, false), IsEmpty());
    EXPECT_THAT(play(true, true), IsEmpty());
}

}  // namespace
}  // namespace tarvane
