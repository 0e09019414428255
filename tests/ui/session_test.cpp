#include <gmock/gmock.h>

#include <cmath>
#include <map>
#include <set>

#include "manager/changes.h"
#include "manager/computermanager.h"
#include "ui/chartgrid.h"
#include "ui/demo.h"
#include "ui/gamequestions.h"
#include "ui/gameview.h"
#include "ui/names.h"
#include "ui/theme.h"

namespace tarvane {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

GameOptions Options(bool computer = false) {
    GameOptions options;
    for (SideControl& side : options.computer.value) side = {computer, computer, computer};
    return options;
}

// What a person must answer, answered with No, so that the game goes on.
void AnswerNo(GameSession& session) {
    while (session.AwaitsHuman()) {
        if (session.Answer(false)) continue;
        const auto lineup = AnswerForcedChange(session.Data(), session.State(), session.State().awaited.side);
        ASSERT_TRUE(lineup && session.ChangeLineups({*lineup}) == Reject::None) << "nobody could answer";
    }
}

TEST(Session, AWatchedGameIsTheGameThatTheEnginePlaysAlone) {
    const demo::DemoSeasons seasons;
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        const GamePtr setup = seasons.Setup();
        GameSession session(setup, Options(true), seed);
        ASSERT_EQ(session.Start(), Reject::None);
        while (!session.Over()) ASSERT_TRUE(session.Roll());

        GameState alone;
        alone.computer = Options(true).computer;
        ASSERT_EQ(StartGame(setup->data, setup->lineup[Side::Visitor], setup->lineup[Side::Home], alone), Reject::None);
        Random random(seed);
        ComputerManager visitor(Side::Visitor, GameSession::ManagerRandom(seed, Side::Visitor),
                                setup->knowledge[Side::Visitor]);
        ComputerManager home(Side::Home, GameSession::ManagerRandom(seed, Side::Home), setup->knowledge[Side::Home]);
        PlayOut(setup->data, alone, random, visitor, home);
        EXPECT_TRUE(session.State() == alone) << "seed " << seed;

        GameSession quick(setup, Options(true), seed);
        ASSERT_EQ(quick.Start(), Reject::None);
        quick.QuickPlay(0);
        EXPECT_TRUE(quick.State() == alone) << "seed " << seed;
    }
}

TEST(Session, QuickPlayStopsAfterItsInningAndGivesTheTeamsBack) {
    GameSession session(demo::DemoSeasons().Setup(), Options(), 3);
    ASSERT_EQ(session.Start(), Reject::None);
    session.QuickPlay(5);
    EXPECT_EQ(session.State().Inning, 6);
    EXPECT_EQ(session.State().BattingSide, Side::Visitor);
    EXPECT_EQ(session.State().computer[Side::Home], SideControl{});
    const auto choices = QuickPlayChoices(session.State());
    EXPECT_EQ(choices.front().text, "Quick Play thru 6th Inning");
    EXPECT_EQ(choices.back().text, "Quick Play remainder of game");
    EXPECT_EQ(choices.size(), 4U);
}

TEST(Session, CaptionsFollowTheSheetAndWhoRolls) {
    for (const bool computer : {false, true}) {
        GameSession session(demo::DemoSeasons().Setup(), Options(computer), 11);
        ASSERT_EQ(session.Start(), Reject::None);
        std::array<bool, 10> seen{};
        for (int i = 0; i < 3000 && !session.Over(); ++i) {
            const PlayControls controls = MakePlayControls(session);
            const SheetCode sheet = session.State().sheet;
            seen[static_cast<std::size_t>(sheet)] = true;
            static const std::map<SheetCode, std::string> plain{{SheetCode::P, "Play Result Pitcher"},
                                                                {SheetCode::B, "Play Result Batter"},
                                                                {SheetCode::PS, "Play Result Stamina"},
                                                                {SheetCode::XI, "Play Result YellowX"}};
            if (computer) {
                EXPECT_EQ(controls.cmdPlay, "Computer Result");
            }
            if (!computer && plain.count(sheet) != 0) {
                EXPECT_EQ(controls.cmdPlay, plain.at(sheet));
            }
            if (!computer && sheet == SheetCode::BBSO) {
                const bool walk = session.State().play.PitcherSheetEffect == SheetEffect::BB;
                EXPECT_EQ(controls.cmdPlay, walk ? "Play Result BB" : "Play Result SO");
            }
            EXPECT_THAT(controls.chkPlay, HasSubstr("&Result"));
            EXPECT_THAT(controls.banner, HasSubstr("Press ALT+R"));
            EXPECT_EQ(controls.intentionalWalk, !computer && sheet == SheetCode::P);
            const TeamState& team = session.State().Batting();
            const bool on = team.runner[1].On() || team.runner[2].On() || team.runner[3].On();
            if (sheet == SheetCode::P) {
                EXPECT_EQ(controls.bunt, !computer && on && session.State().Outs < 2);
            }
            ASSERT_TRUE(session.Roll());
            AnswerNo(session);
        }
        EXPECT_TRUE(session.Over());
        EXPECT_EQ(MakePlayControls(session).cmdPlay, "Game Over");
        for (const SheetCode sheet : {SheetCode::P, SheetCode::B, SheetCode::BBSO, SheetCode::PS})
            EXPECT_TRUE(seen[static_cast<std::size_t>(sheet)]) << SheetCodeText(sheet);
    }
}

TEST(Session, TheRunningTextKeepsEveryPlayAndQuickPlayIsToldInOneLine) {
    GameSession session(demo::DemoSeasons().Setup(), Options(true), 4);
    ASSERT_EQ(session.Start(), Reject::None);
    EXPECT_THAT(session.RunningText(), HasSubstr("Harbour Park"));
    std::string before = session.RunningText();
    for (int i = 0; i < 60; ++i) {
        ASSERT_TRUE(session.Roll());
        EXPECT_EQ(session.LastChart()->playByPlay, before);
        before = session.RunningText();
    }
    EXPECT_THAT(before, StartsWith("Welcome"));
    session.QuickPlay(0);
    EXPECT_THAT(session.RunningText(), StartsWith(before.substr(0, before.rfind('\n'))));
    EXPECT_LT(session.RunningText().size(), before.size() + 200);
    EXPECT_THAT(session.RunningText(),
                HasSubstr(fmt::format("Quick play to the end of the game: Visitors {}, Homers {}.",
                                      session.State()[Side::Visitor].Runs, session.State()[Side::Home].Runs)));
}

TEST(ScoreBoard, ShowsInningsAsTheyBeginAndStartsOverAfterTen) {
    const GamePtr setup = demo::DemoSeasons().Setup();
    GameState state = fixture::FirstPitch(setup->data);
    ScoreBoardView board = MakeScoreBoard(setup->data, state);
    EXPECT_EQ(board.name[Side::Home], "Homers");  // the year in brackets isn't shown
    EXPECT_EQ(board.runs[Side::Visitor][0], "0");
    EXPECT_EQ(board.runs[Side::Home][0], "");
    EXPECT_EQ(board.ballPark, "1975 Harbour Park");
    state.Inning = 9;
    state[Side::Visitor].InningRuns[8] = 2;
    state.BottomNotPlayed = state.GameOverFlag = true;
    board = MakeScoreBoard(setup->data, state);
    EXPECT_EQ(board.runs[Side::Visitor][8], "2");
    EXPECT_EQ(board.runs[Side::Home][8], "x");
    state.BottomNotPlayed = state.GameOverFlag = false;
    state.Inning = 11;
    state.HalfInningRuns = 3;
    board = MakeScoreBoard(setup->data, state);
    EXPECT_EQ(board.inning[0], "11");
    EXPECT_EQ(board.runs[Side::Visitor][0], "3");
    EXPECT_EQ(board.runs[Side::Visitor][1], "");
}

TEST(ScoreBoard, AutoOutsAndAdjustmentsAreToldInWords) {
    auto setup = demo::DemoSeasons().MakeSetup();
    GameState state = fixture::FirstPitch(setup->data);
    state[Side::Visitor].AutoOuts = 0b001010;
    state[Side::Visitor].DRTotal = 32;
    state[Side::Home].AutoOuts = 0;
    state[Side::Home].DRTotal = -3;
    setup->data.rules.UseYearEffects = false;
    const ScoreBoardView board = MakeScoreBoard(setup->data, state);
    EXPECT_EQ(board.autoOuts, "Auto Outs (DR Total):  Visitors: 11 13  (32)  Homers:  (-3)");
    EXPECT_EQ(board.defAdj, "Def Adj:  Park: 0  Year: N/A");
}

TEST(FieldLabels, ASwitchHitterTurnsAgainstTheArmAndTheTiredPitcherIsStarred) {
    const GamePtr setup = demo::DemoSeasons().Setup();
    GameState state = fixture::FirstPitch(setup->data);
    state.sheet = SheetCode::P;
    LineupSlot& slot = state[Side::Visitor].lineup[0];
    TeamState& home = state[Side::Home];
    slot.bats = kSwitchHitter;
    home.PitcherThrows = kRightHand;
    FieldLabels labels = MakeFieldLabels(setup->data, state);
    EXPECT_NE(labels.leftBatter.text, "");
    EXPECT_EQ(labels.rightBatter.text, "");
    EXPECT_TRUE(labels.fielder[0].framed);
    home.PitcherThrows = kLeftHand;
    home.PitcherTired = true;
    home.CatcherIRated = true;
    state.sheet = SheetCode::B;
    state[Side::Visitor].runner[2] = {3, false};
    labels = MakeFieldLabels(setup->data, state);
    EXPECT_TRUE(labels.rightBatter.framed);
    EXPECT_FALSE(labels.fielder[0].framed);
    EXPECT_THAT(labels.fielder[0].text, HasSubstr("**"));
    EXPECT_THAT(labels.fielder[1].text, testing::EndsWith(" I"));
    EXPECT_NE(labels.runner[1].text, "");
    EXPECT_EQ(labels.runner[0].text, "");
}

TEST(Questions, ReadWordForWordForTheRunnersOn) {
    const GamePtr setup = demo::DemoSeasons().Setup();
    GameState state = fixture::FirstPitch(setup->data);
    GameOptions options;
    options.DisplayChances = false;
    TeamState& team = state.Batting();
    const auto runners = [&](bool first, bool second, bool third) {
        team.runner[1].slot = first ? 4 : 0;
        team.runner[2].slot = second ? 5 : 0;
        team.runner[3].slot = third ? 6 : 0;
    };
    team.lineup[3].runRating = 3;
    runners(true, false, false);
    EXPECT_EQ(StealQuestion(setup->data, state, options).text,
              "Attempt to steal 2B?\nRR:3\nClick Yes for steal 2B attempt, otherwise Click No.");
    state.Fielding().CatcherIRated = true;
    EXPECT_THAT(StealQuestion(setup->data, state, options).text, HasSubstr("RR:2"));
    EXPECT_THAT(BuntQuestion(setup->data, state, options).text,
                StartsWith("Attempt sacrifice bunt?\nBatter Bunt Rating: "));
    runners(true, true, true);
    EXPECT_EQ(StealAsked(state), 'H');
    EXPECT_THAT(BuntQuestion(setup->data, state, options).text,
                testing::EndsWith("Click Yes to try for suicide squeeze, otherwise Click No."));
    runners(true, false, true);
    EXPECT_EQ(BuntQuestion(setup->data, state, options).title, "Choose Bunt Option");
    EXPECT_EQ(StealQuestion(setup->data, state, options).second, "Steal Home");

    runners(true, true, false);
    state.awaited = {Await::Decision, DecisionKind::ExtraBase, LineupCause::None, state.BattingSide, Position::None, 0};
    state.play.PlayResult = Result::SingleDecision;
    state.play.extraBase = ExtraBaseCase::Both;
    EXPECT_THAT(DecisionQuestion(setup->data, state, options).text,
                StartsWith("Attempt to score with runner from 2B?\n RR:"));
    state.play.extraBase = ExtraBaseCase::First;
    EXPECT_THAT(DecisionQuestion(setup->data, state, options).text, StartsWith("Attempt for 3B with runner from 1B?"));
    state.play.PlayResult = Result::FDecision;
    EXPECT_THAT(DecisionQuestion(setup->data, state, options).text,
                testing::EndsWith("Click Yes to try to score, otherwise Click No."));
}

TEST(Names, OrdinalsHaveTheirEndings) {
    EXPECT_EQ(Ordinal(1) + Ordinal(2) + Ordinal(3) + Ordinal(11) + Ordinal(13) + Ordinal(21), "1st2nd3rd11th13th21st");
}

double Luminance(const QColor& color) {
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}

double Contrast(const QColor& one, const QColor& two) {
    const double a = Luminance(one);
    const double b = Luminance(two);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

TEST(Looks, ChartCellsAreReadableAndTellTheirColourBySignToo) {
    std::set<CellSign> signs;
    for (const CellColor color :
         {CellColor::Green, CellColor::Red, CellColor::Blue, CellColor::Yellow, CellColor::White}) {
        const CellLook look = LookOf(color);
        EXPECT_GE(Contrast(look.ground, look.text), 7.0);
        signs.insert(look.sign);
    }
    EXPECT_EQ(signs.size(), 5U);
    EXPECT_EQ(LookOf(ChartCell{" ", kStoredYellowWord}).sign, CellSign::Diamond);
    EXPECT_EQ(LookOf(ChartCell{" ", kWhiteWord}).sign, CellSign::None);
    using namespace theme;
    for (const auto& [ground, text] : std::vector<std::pair<QColor, QColor>>{{kField, kCream},
                                                                             {kField, kGold},
                                                                             {kBoard, kGold},
                                                                             {kCream, kInk},
                                                                             {kGold, kInk},
                                                                             {kClay, QColor(Qt::white)}})
        EXPECT_GE(Contrast(ground, text), 4.5) << ground.name().toStdString() << text.name().toStdString();
}

}  // namespace
}  // namespace tarvane
