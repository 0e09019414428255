// Rules, preferences and sounds, changed by their controls' names and read back from the tables.

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <tuple>

#include "base/file.h"
#include "data/rules.h"
#include "data/settings.h"
#include "ui/demo.h"
#include "ui/frmgame.h"
#include "ui/frmmain.h"
#include "ui/frmsettingsgame.h"
#include "ui/frmsettingsleague.h"
#include "ui/frmsettingssound.h"
#include "ui/seasonfolder.h"
#include "ui/soundgrid.h"
#include "ui/storedseasons.h"

namespace tarvane {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

struct Preferences : ::testing::Test {
    testing::SeasonFolder folder;
    std::unique_ptr<Session> session = folder.Start();
    demo::Outside outside;

    template <class T>
    static T& In(QWidget& screen, const char* name) {
        T* found = screen.findChild<T*>(QString::fromLatin1(name));
        if (found == nullptr) throw std::runtime_error(std::string("no control ") + name);
        return *found;
    }
    static void Click(QWidget& screen, const char* name) { In<QAbstractButton>(screen, name).click(); }
    static void Choose(QWidget& screen, const char* name, const char* text) {
        QComboBox& list = In<QComboBox>(screen, name);
        const int at = list.findText(QString::fromLatin1(text));
        if (at < 0) throw std::runtime_error(std::string(name) + " has no " + text);
        list.setCurrentIndex(at);
    }
    static bool MaySave(QWidget& screen) { return In<QPushButton>(screen, "chkSave").isEnabled(); }
    Database& Season() { return session->Seasons().Season(); }
};

TEST_F(Preferences, RulesAreWrittenHoldForTheNextGameAndComeBack) {
    frmSettingsLeague screen(*session, outside.Get());
    EXPECT_FALSE(MaySave(screen));
    const bool stamina = LoadLeagueRules(Season()).PitcherStamina;
    ASSERT_TRUE(stamina);
    Click(screen, "chkLeagueDH");
    Choose(screen, "cmbRelieverMaxIP", "3.2");
    Choose(screen, "cmbCOutOfPos", "-12");
    Choose(screen, "cmbCOutOfPosER", "W");
    EXPECT_TRUE(MaySave(screen));
    Click(screen, "chkSave");
    EXPECT_FALSE(MaySave(screen));
    EXPECT_THAT(outside.dialogs.warnings, IsEmpty());
    const LeagueRules kept = LoadLeagueRules(Season());
    EXPECT_EQ(std::tuple(kept.RelieverMaxIPOuts, kept.COutOfPos, kept.COutOfPosErrorRating),
              std::tuple(std::int16_t{11}, std::int16_t{-12}, 'W'));
    StoredSeasons seasons(*session);
    const std::vector<TeamEntry> teams = seasons.Teams();
    const GamePtr game = seasons.Exhibition({teams[0].teamID, teams[1].teamID, teams[1].ParkID, {}});
    EXPECT_EQ(game->data.rules.RelieverMaxIPOuts, 11);
    EXPECT_EQ(game->data.rules.LeagueDH, kept.LeagueDH);
    frmSettingsLeague again(*session, outside.Get());
    EXPECT_EQ(In<QComboBox>(again, "cmbRelieverMaxIP").currentText(), "3.2");
}

TEST_F(Preferences, RulesThatExcludeOrNeedEachOther) {
    frmSettingsLeague screen(*session, outside.Get());
    auto& year = In<QCheckBox>(screen, "chkYearEffects");
    auto& era = In<QCheckBox>(screen, "chkDefEra");
    auto& plain = In<QCheckBox>(screen, "chkPitcherStamina");
    auto& moderate = In<QCheckBox>(screen, "chkPitcherStaminaSecondary");
    year.setChecked(true);
    era.setChecked(true);
    EXPECT_FALSE(year.isChecked());
    year.setChecked(true);
    EXPECT_FALSE(era.isChecked());
    era.setChecked(true);
    plain.setChecked(false);
    EXPECT_FALSE(moderate.isChecked());
    moderate.setChecked(true);
    EXPECT_TRUE(plain.isChecked());
    Click(screen, "chkSave");
    const LeagueRules kept = LoadLeagueRules(Season());
    EXPECT_TRUE(kept.DefensiveErasInForce());
    EXPECT_FALSE(kept.UseYearEffects);
    EXPECT_TRUE(kept.PitcherStaminaSecondary);
}

TEST_F(Preferences, RangesOfRestAreRefusedOneByOneAndNothingIsHalfWritten) {
    frmSettingsLeague screen(*session, outside.Get());
    const auto refusal = [&](const char* list, const char* text) {
        QComboBox& control = In<QComboBox>(screen, list);
        const int before = control.currentIndex();
        Choose(screen, list, text);
        Click(screen, "chkSave");
        control.setCurrentIndex(before);
        if (outside.dialogs.warnings.empty()) return std::string("accepted");
        const std::string told = outside.dialogs.warnings.back().text;
        outside.dialogs.warnings.clear();
        return told;
    };
    In<QCheckBox>(screen, "chkSpecialError").setChecked(true);
    EXPECT_THAT(refusal("cmbIPFromR2", "2.1"), HasSubstr("Must be 1/3 Inning greater than previous To Setting."));
    EXPECT_THAT(refusal("cmbIPToR2", "1.2"), HasSubstr("Must be equal or greater than From Setting."));
    EXPECT_THAT(refusal("cmbIPToS3", ""), HasSubstr("Both To and From must be set."));
    EXPECT_THAT(refusal("cmbDaysR1", ""), HasSubstr("Please specify number of Days Rest."));
    EXPECT_FALSE(LoadLeagueRules(Season()).SpecialErrorRule);
    for (const char* list : {"cmbIPFromR2", "cmbIPToR2", "cmbDaysR2"}) Choose(screen, list, "");
    Click(screen, "chkSave");
    ASSERT_THAT(outside.dialogs.warnings, SizeIs(1)) << "the third range follows an empty one";
    Click(screen, "chkRestDefaults");
    EXPECT_TRUE(MaySave(screen));
    Click(screen, "chkSave");
    EXPECT_THAT(outside.dialogs.warnings, SizeIs(1));
    const LeagueRules kept = LoadLeagueRules(Season());
    EXPECT_TRUE(kept.SpecialErrorRule);
    EXPECT_EQ(std::tuple(kept.rest[8].IPOutsFrom, kept.rest[8].IPOutsTo, kept.rest[8].RestDays),
              std::tuple(std::int16_t{36}, std::int16_t{999}, std::int16_t{4}));
    EXPECT_EQ(std::tuple(kept.rest[9].IPOutsFrom, kept.rest[9].RestDays),
              std::tuple(std::int16_t{-1}, std::int16_t{-1}));
}

TEST_F(Preferences, LeavingWithChangesAsks) {
    frmSettingsGame screen(*session, outside.Get());
    screen.show();
    QTest::keyClick(&screen, Qt::Key_Escape);
    EXPECT_FALSE(screen.isVisible()) << "nothing has changed";
    screen.show();
    Click(screen, "chkManualDiceRolls");
    outside.dialogs.replies = {Reply::Cancel};
    screen.close();
    EXPECT_TRUE(screen.isVisible());
    EXPECT_EQ(outside.dialogs.questions.back().text,
              "Game Play settings have changed. Do you want to save your changes?\nClick Yes to save changes. Click "
              "Cancel to remain on this screen.\nClick No to leave this screen and discard changes.");
    const bool before = session->Settings().ManualDiceRolls;
    outside.dialogs.replies = {Reply::No};
    screen.close();
    EXPECT_FALSE(screen.isVisible());
    EXPECT_EQ(session->Settings().ManualDiceRolls, before);
    screen.show();
    outside.dialogs.replies = {Reply::Yes};
    screen.close();
    EXPECT_EQ(LoadGameSettings(session->Common()).ManualDiceRolls, !before);
}

TEST_F(Preferences, APortWithALetterIsRefusedAndTheRestOfTheScreenIsKept) {
    frmSettingsGame screen(*session, outside.Get());
    Click(screen, "chkQuickPlay");
    In<QLineEdit>(screen, "txtInternetPort").setText("50x1");
    Click(screen, "chkSave");
    ASSERT_THAT(outside.dialogs.warnings, SizeIs(1));
    EXPECT_EQ(outside.dialogs.warnings[0].text, "Internet Local Port must be numeric");
    EXPECT_FALSE(session->Settings().QuickPlayMode);
    In<QLineEdit>(screen, "txtInternetPort").setText(" 5011 ");
    Choose(screen, "cmbAnimationSpeed", "Slower");
    Click(screen, "chkSave");
    const GameSettings kept = LoadGameSettings(session->Common());
    EXPECT_EQ(std::tuple(kept.InternetLocalPort, kept.QuickPlayMode, kept.GameAniSpeed2), std::tuple(5011, true, 1.33));
}

TEST_F(Preferences, AnOpenGameTakesThemAtOnce) {
    StoredSeasons seasons(*session);
    frmMain menu(seasons, outside.Get(), OptionsFrom(*session));
    demo::DemoSeasons invented;
    frmGame game(invented.Setup(), OptionsFrom(*session), 5, outside.Get());
    game.UseSettings(*session);
    game.show();
    Click(game, "chkSettings");
    auto* screen = qobject_cast<frmSettingsGame*>(QApplication::topLevelWidgets().isEmpty() ? nullptr : [] {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible() && qobject_cast<frmSettingsGame*>(window) != nullptr) return window;
        return static_cast<QWidget*>(nullptr);
    }());
    ASSERT_NE(screen, nullptr);
    const bool banner = game.Session().Options().ShowBanner;
    Click(*screen, "chkBanner");
    outside.dialogs.color = 0x0000FF;  // red
    Click(*screen, "cmdPlayByPlayBack");
    outside.dialogs.color = 0xFFFFFF;
    Click(*screen, "cmdPlayByPlayFore");
    Click(*screen, "chkSave");
    screen->close();
    EXPECT_TRUE(game.isVisible());
    EXPECT_EQ(game.Session().Options().ShowBanner, !banner);
    EXPECT_THAT(In<QPlainTextEdit>(game, "txtPlayByPlay").styleSheet().toStdString(), HasSubstr("#ff0000"));
    frmSettingsGame again(*session, outside.Get());
    Click(again, "chkDefaults");
    Click(again, "chkSave");
    EXPECT_EQ(LoadGameSettings(session->Common()).PlayByPlayBackColor, 0);
}

TEST_F(Preferences, SoundsArePutOnOccasionsAndTakenAway) {
    WriteFile(session->Paths().SoundFiles() / "organ.wav", "x");
    WriteFile(session->Paths().SoundFiles() / "readme.txt", "x");
    frmSettingsSound screen(*session, outside.Get());
    EXPECT_EQ(In<QListWidget>(screen, "FileList").count(), 1);
    Click(screen, "cmdPlay");
    EXPECT_THAT(outside.sound.played, ::testing::ElementsAre("organ.wav"));
    EXPECT_FALSE(MaySave(screen));
    Click(screen, "cmdUse");  // on the first row of the visitors' plays
    In<QTabBar>(screen, "tabs").setCurrentIndex(2);
    auto& list = In<SoundGrid>(screen, "grdBetweenInnings");
    list.setCurrentCell(24, 1);
    Click(screen, "cmdUse");
    Click(screen, "chkUserGamePlaySounds");
    Click(screen, "chkSave");
    EXPECT_EQ(LoadGamePlaySounds(session->Common()).at("VisitorSingle"), "organ.wav");
    const GameSettings kept = LoadGameSettings(session->Common());
    EXPECT_EQ(kept.Sound[24], "organ.wav");
    EXPECT_EQ(kept.UserGamePlaySounds, session->Settings().UserGamePlaySounds);
    QTest::keyClick(&list, Qt::Key_Delete);
    Click(screen, "chkSave");
    EXPECT_EQ(LoadGameSettings(session->Common()).Sound[24], "");
}

TEST_F(Preferences, AFaultOfTheRestRangesNamesItsRowAndLeadsToItsList) {
    frmSettingsLeague screen(*session, outside.Get());
    screen.show();
    Click(screen, "chkRestDefaults");
    const struct {
        const char *list, *text, *row;
    } faults[]{{"cmbIPFromR3", "5.0", "Relievers, row 3."},
               {"cmbIPToR2", "1.2", "Relievers, row 2."},
               {"cmbDaysS4", "", "Starters, row 4."}};
    for (const auto& fault : faults) {
        auto& list = In<QComboBox>(screen, fault.list);
        const int good = list.currentIndex();
        Choose(screen, fault.list, fault.text);
        Click(screen, "chkSave");
        EXPECT_THAT(outside.dialogs.warnings.back().text, HasSubstr(fault.row));
        EXPECT_EQ(screen.focusWidget(), &list) << fault.list;
        list.setCurrentIndex(good);
    }
    for (const char* list : {"cmbIPFromR1", "cmbIPToR1", "cmbDaysR1"}) Choose(screen, list, "");
    Choose(screen, "cmbIPFromR2", "0");
    Click(screen, "chkSave");
    EXPECT_THAT(outside.dialogs.warnings.back().text, HasSubstr("row 2")) << "no range follows an empty one";
}

TEST_F(Preferences, EnterSavesAndAStoreThatCannotBeWrittenLosesNothing) {
    frmSettingsGame screen(*session, outside.Get());
    screen.show();
    Click(screen, "chkHideChart");
    const bool hidden = session->Settings().HideChartDuringGame;
    EXPECT_EQ(screen.focusWidget()->objectName(), QStringLiteral("tabs")) << "the keyboard begins at the top";
    EXPECT_EQ(In<QPushButton>(screen, "chkSave").nextInFocusChain()->objectName(), QStringLiteral("chkCancel"));
    In<QLineEdit>(screen, "txtInternetPort").setFocus();
    QTest::keyClick(&In<QLineEdit>(screen, "txtInternetPort"), Qt::Key_Return);
    EXPECT_EQ(session->Settings().HideChartDuringGame, !hidden);
    frmSettingsSound sounds(*session, outside.Get());
    sounds.show();
    const bool dice = session->Settings().DiceRollSounds;
    Click(sounds, "chkDiceRollSounds");
    session->Common().Execute("ALTER TABLE GamePlaySounds RENAME TO Elsewhere");
    Click(sounds, "chkSave");
    EXPECT_THAT(outside.dialogs.warnings, SizeIs(1));
    EXPECT_TRUE(MaySave(sounds)) << "he can try again";
    EXPECT_EQ(LoadGameSettings(session->Common()).DiceRollSounds, dice) << "nothing is half-written";
    EXPECT_EQ(session->Settings().DiceRollSounds, dice);
    session->Common().Execute("ALTER TABLE Elsewhere RENAME TO GamePlaySounds");
    Click(sounds, "chkSave");
    EXPECT_EQ(LoadGameSettings(session->Common()).DiceRollSounds, !dice);
}

TEST_F(Preferences, AColorKeepsThePartnerThatWasSeenAndAPictureCanGoBack) {
    std::filesystem::create_directories(session->Paths().BallparkImages());
    WriteFile(session->Paths().BallparkImages() / "mine.jpg", "x");
    frmSettingsGame screen(*session, outside.Get());
    outside.dialogs.color = 0x400000;
    Click(screen, "cmdReportGridsBack");
    auto& pictures = In<QListWidget>(screen, "FileList");
    EXPECT_EQ(pictures.currentRow(), 0);
    pictures.setCurrentRow(pictures.count() - 1);
    Click(screen, "chkSave");
    const GameSettings kept = LoadGameSettings(session->Common());
    EXPECT_EQ(kept.ReportGridsBackColor, 0x400000);
    EXPECT_NE(kept.ReportGridsForeColor, 0) << "black would have come unasked";
    EXPECT_EQ(kept.MainMenuImage, "mine.jpg");
    pictures.setCurrentRow(0);
    Click(screen, "chkSave");
    EXPECT_EQ(LoadGameSettings(session->Common()).MainMenuImage, "");
}

// A watched game waits while its settings are open, and goes on by the new ones.
TEST_F(Preferences, AGameRestsWhileItsSettingsAreOpen) {
    demo::DemoSeasons invented;
    GameOptions options = OptionsFrom(*session);
    options.ComputerMgrAutoClick = options.PromptSpectatorMode = true;
    options.computer = {{SideControl{true, true, true}, SideControl{true, true, true}}};
    options.PlayResultDelay = 0;
    options.animation.GameAnimation = false;
    outside.dialogs.defaultReply = Reply::Yes;  // he watches
    frmGame game(invented.Setup(), options, 5, outside.Get());
    ASSERT_TRUE(game.Session().SpectatorMode);
    game.UseSettings(*session);
    game.show();
    for (int i = 0; i < 20; ++i) QApplication::processEvents();
    Click(game, "chkSettings");
    ASSERT_FALSE(game.isVisible());
    const std::string told = game.Session().RunningText();
    EXPECT_THAT(told, HasSubstr("Welcome"));
    for (int i = 0; i < 50; ++i) QApplication::processEvents();
    EXPECT_EQ(game.Session().RunningText(), told) << "nothing is played behind the settings";
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* screen = qobject_cast<frmSettingsGame*>(window); screen != nullptr && screen->isVisible())
            screen->close();
    EXPECT_TRUE(game.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return game.Session().RunningText() != told; })) << "it goes on";
}

TEST_F(Preferences, AHiddenChartKeepsNobodyWaitingAndAGameCanBeSilent) {
    GameSettings& settings = session->Settings();
    settings.PlayResultDelay = 3;
    settings.HideChartDuringGame = false;
    EXPECT_EQ(OptionsFrom(*session).ResultSeconds(), 3);
    settings.HideChartDuringGame = true;
    EXPECT_EQ(OptionsFrom(*session).ResultSeconds(), 0);
    demo::DemoSeasons invented;
    for (const bool words : {true, false}) {
        settings.PlayByPlayResults = words;
        settings.ChartMode = true;
        GameSession game(invented.Setup(), OptionsFrom(*session), 7);
        game.Start();
        for (int i = 0; i < 10; ++i) game.Roll();
        EXPECT_EQ(game.RunningText().empty(), !words);
    }
}

}  // namespace
}  // namespace tarvane
