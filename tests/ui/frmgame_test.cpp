#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include <set>

#include "base/random.h"
#include "engine/boxtext.h"
#include "ui/chartgrid.h"
#include "ui/demo.h"
#include "ui/frmboxscore.h"
#include "ui/frmchoice.h"
#include "ui/frmgame.h"
#include "ui/frmquickplay.h"
#include "ui/openlineups.h"

namespace tarvane {
namespace {

using testing::HasSubstr;
using testing::SizeIs;

struct GameTest : testing::Test {
    demo::Outside outside;
    demo::DemoSeasons seasons;
    std::unique_ptr<frmGame> game;

    void Open(const GameOptions& options, std::uint64_t seed = 5) {
        game = std::make_unique<frmGame>(seasons.Setup(), options, seed, outside.Get());
        game->resize(1024, 768);
        game->show();
        game->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(game.get()));
    }
    template <class T = QPushButton>
    T* Find(const char* name) {
        T* found = game->findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    std::string Label(const char* name) { return Find<QLabel>(name)->text().toStdString(); }
    const GameState& State() { return game->Session().State(); }
    // A key with ALT: the button it belongs to goes down and up again before it acts.
    void Alt(Qt::Key key) {
        QTest::keyClick(game.get(), key, Qt::AltModifier);
        QTest::qWait(150);
    }
    // The document of the game that is open.
    template <class T>
    static T* Document() {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<T*>(window); found != nullptr && found->isVisible()) return found;
        throw std::runtime_error("no document is open");
    }
    void PlayToSheet(SheetCode sheet) {
        for (int i = 0; i < 5000 && State().sheet != sheet && !State().GameOverFlag; ++i) {
            Find("cmdPlay")->click();
            demo::AnswerLineups();
        }
        ASSERT_EQ(State().sheet, sheet);
    }
};

TEST_F(GameTest, APersonPlaysFromTheFirstPitchToTheLastOut) {
    GameOptions options;
    Open(options);
    int finished = 0;
    QObject::connect(game.get(), &frmGame::Finished, [&] { ++finished; });
    outside.dialogs.defaultReply = Reply::Yes;  // every runner is sent
    int clicks = 0;
    while (!State().GameOverFlag && ++clicks < 5000) {
        ASSERT_TRUE(Find("cmdPlay")->isEnabled()) << "after " << clicks << " clicks";
        Find("cmdPlay")->click();
        demo::AnswerLineups();
        ASSERT_EQ(StateOk(game->Session().Data(), State()), "");
    }
    ASSERT_TRUE(State().GameOverFlag);
    EXPECT_EQ(Find("cmdPlay")->text(), "Game Over");
    if (finished == 0) Find("cmdPlay")->click();  // after a walk-off
    EXPECT_EQ(finished, 1);
    EXPECT_TRUE(ProveBox(State()).Proves());
    EXPECT_FALSE(outside.dialogs.questions.empty());
}

TEST_F(GameTest, AWalkOffIsToldFirstAndTheNextClickEndsTheGame) {
    GameOptions options;
    for (SideControl& side : options.computer.value) side = {true, true, true};
    options.DiceRollSounds = true;
    std::uint64_t seed = 1;
    for (;; ++seed) {
        ASSERT_LT(seed, 200U) << "no walk-off in so many games";
        GameSession session(seasons.Setup(), options, seed);
        ASSERT_EQ(session.Start(), Reject::None);
        session.QuickPlay(0);
        if (session.State().WalkOff) break;
    }
    Open(options, seed);
    int finished = 0;
    QObject::connect(game.get(), &frmGame::Finished, [&] { ++finished; });
    for (int clicks = 0; clicks < 5000 && !State().GameOverFlag; ++clicks) Find("cmdPlay")->click();
    ASSERT_THAT(outside.dialogs.reminders, SizeIs(1));
    EXPECT_EQ(outside.dialogs.reminders[0].text, "Walk off win for the Homers. Click Game Over to continue.");
    EXPECT_EQ(outside.dialogs.reminders[0].title, "Game Over");
    EXPECT_EQ(finished, 0);
    EXPECT_EQ(Find("cmdPlay")->text(), "Game Over");
    EXPECT_FALSE(Find("chkBunt")->isEnabled() || Find("chkQuickPlay")->isEnabled() || Find("chkIntBB")->isEnabled());
    Find("cmdPlay")->click();
    EXPECT_EQ(finished, 1);
    EXPECT_THAT(outside.dialogs.questions, testing::IsEmpty());
    EXPECT_THAT(outside.sound.played, testing::Contains("DiceA.wav"));
    EXPECT_THAT(outside.sound.played, testing::Contains("DiceB.wav"));
}

TEST_F(GameTest, ASpectatorWatchesAGameThatPlaysItself) {
    GameOptions options;
    for (SideControl& side : options.computer.value) side = {true, true, true};
    options.ComputerMgrAutoClick = true;
    outside.dialogs.replies = {Reply::Yes};
    Open(options);
    ASSERT_THAT(outside.dialogs.questions, SizeIs(1));
    EXPECT_EQ(outside.dialogs.questions[0].title, "Game Play Mode");
    EXPECT_TRUE(QTest::qWaitFor([&] { return State().GameOverFlag; }, 60000));
    GameSession quick(seasons.Setup(), options, 5);
    ASSERT_EQ(quick.Start(), Reject::None);
    quick.QuickPlay(0);
    EXPECT_TRUE(quick.State() == State());  // only the screen differs
}

TEST_F(GameTest, ComputerManagersAskFirstWhereTheUserWantsToConfirmTheirMoves) {
    GameOptions options;
    for (SideControl& side : options.computer.value) side = {true, true, true};
    GameSession quick(seasons.Setup(), options, 9);
    ASSERT_EQ(quick.Start(), Reject::None);
    quick.QuickPlay(0);
    options.AuxChartsAutoClick = options.DisplayCompMgrChanges = true;
    const auto play = [&](Reply reply) {
        outside.dialogs.questions.clear();
        outside.dialogs.defaultReply = reply;
        Open(options, 9);
        QTest::qWait(20);
        for (int clicks = 0; clicks < 5000 && !State().GameOverFlag; ++clicks) Find("cmdPlay")->click();
        ASSERT_TRUE(State().GameOverFlag);
    };
    play(Reply::Yes);
    EXPECT_TRUE(State() == quick.State()) << "a manager whom nobody contradicts plays his own game";
    std::set<std::string> titles;
    for (const auto& question : outside.dialogs.questions) {
        titles.insert(question.title);
        EXPECT_THAT(question.text, HasSubstr("The computer managed "));
        EXPECT_THAT(question.text, HasSubstr("\nClick Yes to"));
    }
    EXPECT_THAT(titles, testing::ElementsAre("Computer Manager Game Strategy", "Computer Manager Substitution"));
    play(Reply::No);
    int stolen = 0;
    for (const Side side : kBothSides)
        for (const BatterLine& line : State()[side].box.batter) stolen += line.SB + line.CS;
    EXPECT_EQ(stolen, 0);
}

TEST_F(GameTest, RemindersComeInBoxesAndOnlyIfWanted) {
    GameOptions options;
    options.computer[Side::Visitor] = {true, true, true};
    for (const bool wanted : {false, true}) {
        options.PitcherBatterWarning = options.PitcherRestWarning = options.DisplayCompMgrChanges = wanted;
        outside.dialogs.reminders.clear();
        outside.dialogs.defaultReply = Reply::Yes;
        Open(options, 3);
        for (int clicks = 0; clicks < 5000 && !State().GameOverFlag; ++clicks) {
            Find("cmdPlay")->click();
            demo::AnswerLineups();
        }
        std::set<std::string> begins;
        for (const auto& reminder : outside.dialogs.reminders)
            if (reminder.title == "Pitcher Batting Reminder") begins.insert(reminder.text.substr(0, 11));
        if (wanted)
            EXPECT_THAT(begins, testing::Contains("Reminder to"));
        else
            EXPECT_THAT(begins, testing::IsEmpty());
    }
}

TEST_F(GameTest, OneClickPlaysAWholeTurnAtBat) {
    GameOptions options;
    options.ComputerMgrAutoClick = true;
    Open(options);
    EXPECT_EQ(Find("cmdPlay")->text(), "1-Click Result");
    EXPECT_FALSE(Find("cmdManualRoll")->isEnabled());
    int clicks = 0;
    while (!State().GameOverFlag && ++clicks < 500) {
        Find("cmdPlay")->click();
        demo::AnswerLineups();
        if (!State().GameOverFlag) {
            ASSERT_EQ(State().sheet, SheetCode::P);
        }
    }
    EXPECT_TRUE(State().GameOverFlag);
    EXPECT_LT(clicks, 200);
}

TEST_F(GameTest, ARollByHandIsReadAndTheRowIsMarked) {
    GameOptions options;
    options.ManualDiceRolls = true;
    Open(options);
    auto* chart = Find<ChartGrid>("grdActiveChart");
    auto* dice = Find<QComboBox>("cmbManualDice");
    PlayToSheet(SheetCode::P);
    ASSERT_EQ(dice->count(), 30);
    dice->setCurrentIndex(dice->findData(39));
    const std::string text = chart->item(30, 1)->text().toStdString();
    Find("cmdManualRoll")->click();
    EXPECT_EQ(Label("lblDiceRoll"), "39");
    EXPECT_EQ(Label("lbl10Dice"), "3");
    EXPECT_EQ(Label("lblDice1").front() - '0' + Label("lblDice2").front() - '0', 9);
    EXPECT_EQ(QString::fromStdString(Label("lblResult")).trimmed().toStdString(), text);
    // The chart of the roll before comes back with its row marked, and no play is possible from it.
    PlayToSheet(SheetCode::P);
    Find("chkcurrPrev")->click();
    const int roll = game->Session().LastChart()->roll;
    EXPECT_EQ(chart->item(roll - 9, 0)->background().color(), QColor(0x80, 0x80, 0xFF));
    EXPECT_NE(chart->item(roll == 39 ? 1 : roll - 8, 0)->background().color(), QColor(0x80, 0x80, 0xFF));
    EXPECT_FALSE(Find("cmdPlay")->isEnabled());
    EXPECT_EQ(Find("chkcurrPrev")->text(), "C&urrent Play");
    Find("chkcurrPrev")->click();
    EXPECT_TRUE(Find("cmdPlay")->isEnabled());
}

TEST_F(GameTest, AWholeGameIsPlayedWithEveryRollByHandOnEveryChart) {
    GameOptions options;
    options.ManualDiceRolls = true;
    Open(options);
    outside.dialogs.defaultReply = Reply::Yes;
    auto* dice = Find<QComboBox>("cmbManualDice");
    std::set<SheetCode> sheets;
    Random hand(8);
    int rolls = 0;
    for (int clicks = 0; clicks < 5000 && !State().GameOverFlag; ++clicks) {
        if (Find("cmdManualRoll")->isEnabled()) {
            sheets.insert(State().sheet);
            const int roll = 10 * (1 + static_cast<int>(hand.Below(3))) + static_cast<int>(hand.Below(10));
            dice->setCurrentIndex(dice->findData(roll));
            Find("cmdManualRoll")->click();
            ASSERT_EQ(Label("lblDiceRoll"), std::to_string(roll));
            ++rolls;
        } else {
            Find("cmdPlay")->click();
        }
        demo::AnswerLineups();
        ASSERT_EQ(StateOk(game->Session().Data(), State()), "");
    }
    ASSERT_TRUE(State().GameOverFlag);
    EXPECT_TRUE(ProveBox(State()).Proves());
    EXPECT_GT(rolls, 80);
    EXPECT_GE(sheets.size(), 4U) << "pitcher's and batter's charts, and the small ones";
}

TEST_F(GameTest, ARowClickRollsOnlyWhenDiceAreRolledByHand) {
    for (const bool manual : {false, true}) {
        GameOptions options;
        options.ManualDiceRolls = manual;
        Open(options);
        PlayToSheet(SheetCode::P);
        auto* chart = Find<ChartGrid>("grdActiveChart");
        const auto steps = State().steps;
        const auto click = [&](int row) {
            QTest::mouseClick(chart->viewport(), Qt::LeftButton, {},
                              chart->visualItemRect(chart->item(row, 1)).center());
        };
        click(0);  // the head is no roll
        EXPECT_EQ(State().steps, steps);
        click(14);
        EXPECT_EQ(State().steps > steps, manual);
        if (manual) {
            EXPECT_EQ(Label("lblDiceRoll"), "23");
        }
    }
}

TEST_F(GameTest, KeysPlayTheGame) {
    Open({});
    EXPECT_TRUE(Find("cmdPlay")->hasFocus());
    auto steps = State().steps;
    Alt(Qt::Key_R);
    EXPECT_GT(State().steps, steps);
    steps = State().steps;
    QTest::keyClick(Find("cmdPlay"), Qt::Key_Space);
    EXPECT_GT(State().steps, steps);
    PlayToSheet(SheetCode::P);
    outside.dialogs.questions.clear();
    outside.dialogs.defaultReply = Reply::Yes;
    const auto slot = State().Batting().BatterSlot;
    const QString told = Find<QPlainTextEdit>("txtPlayByPlay")->toPlainText();
    Alt(Qt::Key_I);
    ASSERT_THAT(outside.dialogs.questions, testing::Not(testing::IsEmpty()));
    EXPECT_EQ(outside.dialogs.questions[0].title, "Issue Intentional Walk");
    EXPECT_NE(State().Batting().BatterSlot, slot);
    EXPECT_THAT(Find<QPlainTextEdit>("txtPlayByPlay")->toPlainText().mid(told.size()).toStdString(),
                testing::ContainsRegex("intentionally|on purpose|Four fingers"));
    Alt(Qt::Key_S);  // a runner is on: he may go
    EXPECT_THAT(outside.dialogs.questions.back().title, testing::AnyOf("Base Steal Decision", "Choose SB Option"));
    Alt(Qt::Key_C);
    auto* box = Document<frmBoxScore>();
    EXPECT_EQ(box->findChild<QTableWidget*>("grdVisitorBatters")->rowCount(), 9 + 1);  // and the sums
    box->findChild<QPushButton*>("chkScoreSheet")->click();
    auto* sheet = Document<frmScoreSheet>();
    auto* marks = sheet->findChild<QTableWidget*>("grdVisitorBatters");
    EXPECT_THAT(marks->item(slot - 1, 2)->text().toStdString(), testing::HasSubstr("BB"));
    EXPECT_FALSE(game->isVisible());
    QTest::keyClick(sheet, Qt::Key_Escape);
    EXPECT_TRUE(game->isVisible());
}

TEST_F(GameTest, QuittingAsksAndCancelGoesBack) {
    Open({});
    outside.dialogs.replies = {Reply::Cancel, Reply::Yes, Reply::No};
    Find("cmdQuit")->click();
    EXPECT_TRUE(game->isVisible());
    EXPECT_THAT(outside.dialogs.questions.back().text, HasSubstr("Do you want to save the game in progress?"));
    Find("cmdQuit")->click();  // saving isn't there yet: the game is kept
    EXPECT_TRUE(game->isVisible());
    QTest::keyClick(Find<ChartGrid>("grdActiveChart"), Qt::Key_Escape);
    EXPECT_FALSE(game->isVisible());
}

TEST_F(GameTest, QuickPlayTakesOverForTheInningsChosen) {
    Open({});
    const auto choose = [&](int option, bool spectator) {
        Find("chkQuickPlay")->click();
        auto* screen = game->findChild<frmQuickPlay*>();
        auto* options = screen->findChild<QComboBox*>(QStringLiteral("cmbGamePlayOptions"));
        if (option == 0) {
            screen->findChild<QPushButton*>(QStringLiteral("chkPlay"))->click();
            EXPECT_EQ(outside.dialogs.warnings.back().text, "Please choose a quick play option.");
        }
        options->setCurrentIndex(option < 0 ? options->count() - 1 : option);
        const std::string text = options->currentText().toStdString();
        screen->findChild<QCheckBox*>(QStringLiteral("chkSpectatorMode"))->setChecked(spectator);
        screen->findChild<QPushButton*>(QStringLiteral("chkPlay"))->click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return text;
    };
    EXPECT_EQ(choose(0, false), "Quick Play thru 3rd Inning");
    EXPECT_EQ(State().Inning, 4);
    EXPECT_EQ(Find("cmdPlay")->text().left(11), "Play Result");
    EXPECT_THAT(Label("lblInning"), HasSubstr("4"));
    EXPECT_EQ(choose(1, true), "Quick Play thru 5th Inning");
    EXPECT_FALSE(Find("cmdPlay")->isEnabled());
    ASSERT_TRUE(QTest::qWaitFor([&] { return State().Inning == 6 && Find("cmdPlay")->isEnabled(); }, 20000));
    EXPECT_FALSE(game->Session().SpectatorMode);
    EXPECT_EQ(State().computer[Side::Home], SideControl{});
    EXPECT_EQ(choose(-1, false), "Quick Play remainder of game");
    EXPECT_TRUE(State().GameOverFlag);
}

TEST_F(GameTest, AResultStaysForItsTimeAndNothingCanBeClickedMeanwhile) {
    GameOptions options;
    options.PlayResultDelay = 1;
    Open(options);
    Find("cmdPlay")->click();
    const auto steps = State().steps;
    EXPECT_FALSE(Find("cmdPlay")->isEnabled());
    EXPECT_FALSE(Find("chkQuickPlay")->isEnabled());
    const int roll = game->Session().LastChart()->roll;
    EXPECT_EQ(Find<ChartGrid>("grdActiveChart")->item(roll - 9, 0)->background().color(), QColor(0x80, 0x80, 0xFF));
    Alt(Qt::Key_R);
    EXPECT_EQ(State().steps, steps);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Find("cmdPlay")->isEnabled(); }, 3000));
    EXPECT_TRUE(Find("cmdPlay")->hasFocus());
}

TEST(Choice, HasTwoWaysByMouseOrKeyAndCancel) {
    const auto way = [](Qt::Key key) {
        frmChoice choice("Base runners on 1B and 3B.", "Choose SB Option", "Steal 2B", "Steal Home");
        choice.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&choice));
        QTest::keyClick(&choice, key, key == Qt::Key_Escape ? Qt::NoModifier : Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !choice.isVisible(); }, 1000));
        return choice.Way();
    };
    EXPECT_EQ(way(Qt::Key_S), 0);
    EXPECT_EQ(way(Qt::Key_H), 1);
    EXPECT_EQ(way(Qt::Key_C), -1);
    EXPECT_EQ(way(Qt::Key_Escape), -1);
}

}  // namespace
}  // namespace tarvane
