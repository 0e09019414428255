// A season played from its screens, on tables of its own.

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include "base/file.h"
#include "season/seasonhash.h"
#include "ui/demo.h"
#include "ui/frmgame.h"
#include "ui/frmgameover.h"
#include "ui/frmmain.h"
#include "ui/frmpreschedgame.h"
#include "ui/gamecalendar.h"
#include "ui/menugrid.h"
#include "ui/openlineups.h"
#include "ui/seasonfolder.h"
#include "ui/storedseasons.h"

namespace tarvane {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

struct Scheduled : ::testing::Test {
    testing::SeasonFolder folder;
    std::unique_ptr<Session> session = folder.Start();
    StoredSeasons seasons{*session};
    demo::Outside outside;
    frmMain menu{seasons, outside.Get(), {}};

    void SetUp() override {
        menu.SetSeed(7);
        menu.show();
        outside.dialogs.defaultReply = Reply::Yes;
    }
    Database& Season() { return session->Seasons().Season(); }
    std::int64_t Number(const std::string& sql) {
        Statement row = Season().Prepare(sql);
        return row.Step() ? row.Int(0) : -1;
    }
    std::string ResultsFile(int gameID, int which) {
        Statement row = Season().Prepare("SELECT ResultsFile" + std::to_string(which) +
                                         " FROM Schedule WHERE GameID = " + std::to_string(gameID));
        return row.Step() ? row.Text(0) : std::string();
    }
    template <class T>
    T* Find(const char* name) {
        T* found = menu.Open() == nullptr ? nullptr : menu.Open()->findChild<T*>(QString::fromLatin1(name));
        if (found == nullptr) throw std::runtime_error(std::string("no control ") + name);
        return found;
    }
    void Click(const char* name) { Find<QAbstractButton>(name)->click(); }
    std::string Text(const char* name) { return Find<QLabel>(name)->text().toStdString(); }
    // The first command of the menu, as a fan reaches it: Enter.
    frmPreSchedGame* OpenSchedule() {
        QTest::keyClick(menu.findChild<MenuGrid*>(QStringLiteral("grdGamePlay")), Qt::Key_Return);
        return qobject_cast<frmPreSchedGame*>(menu.Open());
    }
    // The game that was set up, with the computers' line-ups.
    void PlayToTheEnd() {
        demo::PlayWithComputersLineups(dynamic_cast<frmGameLineups&>(*menu.Open()));
        while (qobject_cast<frmGame*>(menu.Open()) != nullptr) {
            Click("cmdPlay");
            demo::AnswerLineups();
        }
    }
    void QuickPlayAll(frmPreSchedGame& screen, std::size_t games) {
        ScheduleBook book(*session);
        book.Load();
        Find<GameCalendar>("Calendar")->SetDay(book.Games().back().game.GameDate);
        auto* grid = Find<QTableWidget>("grdSched");
        grid->selectRow(static_cast<int>(games) - 33);
        Click("chkPlayTo");
        ASSERT_TRUE(screen.Running());
    }
    static void WaitForEnd(const frmPreSchedGame& screen) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return !screen.Running(); }, 120000));
    }
};

TEST_F(Scheduled, AGameIsSetUpPlayedAndPostedFromTheMenuAndTheNextOneIsReady) {
    frmPreSchedGame* setup = OpenSchedule();
    ASSERT_NE(setup, nullptr);
    auto* grid = Find<QTableWidget>("grdSched");
    EXPECT_EQ(grid->rowCount(), 8);
    EXPECT_EQ(Text("lblResultsMsg"), "0 games played out of 40 scheduled");
    Click("optRdCompSubs");  // the visitors are the computer's, the home team a person's
    Click("optRdCompGame");
    Click("chkNext");
    demo::PlayWithComputersLineups(dynamic_cast<frmGameLineups&>(*menu.Open()));
    auto* game = qobject_cast<frmGame*>(menu.Open());
    ASSERT_NE(game, nullptr);
    EXPECT_EQ(game->Session().State().computer[Side::Visitor], (SideControl{false, true, true}));
    for (int clicks = 0; menu.Open() == game && clicks < 3000; ++clicks) {
        Click("cmdPlay");
        demo::AnswerLineups();
    }
    ASSERT_NE(qobject_cast<frmGameOver*>(menu.Open()), nullptr);
    auto* score = Find<QTableWidget>("grdScoreBoard");
    EXPECT_EQ(Number("SELECT count(*) FROM Schedule WHERE Played <> 0"), 0) << "nothing counts before Finished";
    const int runs = score->item(1, score->columnCount() - 4)->text().toInt();
    const int homeRuns = score->item(2, score->columnCount() - 4)->text().toInt();
    Find<QCheckBox>("chkBoxScore")->setChecked(true);
    Find<QCheckBox>("chkScoreSheet")->setChecked(true);
    Click("optText");
    Click("chkFinished");
    EXPECT_TRUE(menu.isVisible());
    EXPECT_THAT(outside.dialogs.warnings, IsEmpty());
    const std::filesystem::path results = session->Paths().GameResults("Test");
    EXPECT_THAT(ReadFile(results / ResultsFile(1, 1)), HasSubstr("Time to play game: "));
    EXPECT_TRUE(std::filesystem::exists(results / ResultsFile(1, 2)));
    EXPECT_EQ(Number("SELECT VisitorScore FROM Schedule WHERE GameID = 1 AND Played <> 0"), runs);
    EXPECT_EQ(Number("SELECT HomeScore FROM Schedule WHERE GameID = 1"), homeRuns);
    EXPECT_EQ(Number("SELECT sum(W + L) FROM KorvTeams"), 2);
    EXPECT_EQ(Number("SELECT sum(R) FROM KorvBatterResultsLog") +
                  Number("SELECT coalesce(sum(R), 0) FROM KorvPitcherResultsLog"),
              runs + homeRuns);

    setup = OpenSchedule();
    grid = Find<QTableWidget>("grdSched");
    EXPECT_EQ(grid->item(0, 5)->text(), "Played");
    EXPECT_EQ(grid->currentRow(), 1) << "one more game is one click away";
    EXPECT_TRUE(Find<QPushButton>("chkNext")->hasFocus() || menu.Open()->focusWidget()->objectName() == "chkNext");
}

TEST_F(Scheduled, DocumentsThatCantBeWrittenAreNoReasonToLoseTheGame) {
    std::filesystem::remove_all(session->Paths().GameResults("Test"));
    WriteFile(session->Paths().GameResults("Test"), "a file where the folder should be");
    OpenSchedule();
    Click("chkNext");
    PlayToTheEnd();
    Find<QCheckBox>("chkBoxScore")->setChecked(true);
    Click("chkFinished");
    ASSERT_THAT(outside.dialogs.warnings, SizeIs(1));
    EXPECT_THAT(outside.dialogs.warnings[0].text, HasSubstr("Game Results"));
    EXPECT_EQ(Number("SELECT count(*) FROM Schedule WHERE Played <> 0"), 1);
    EXPECT_EQ(ResultsFile(1, 1), " ");
}

TEST_F(Scheduled, LeavingAFinishedGameUnsavedLeavesTheSeasonAsItWas) {
    const std::uint64_t before = HashSeason(Season());
    OpenSchedule();
    Click("chkNext");
    PlayToTheEnd();
    outside.dialogs.replies = {Reply::No, Reply::Yes};
    Click("chkCancel");
    EXPECT_NE(menu.Open(), nullptr);
    Click("chkCancel");
    EXPECT_EQ(menu.Open(), nullptr);
    EXPECT_EQ(HashSeason(Season()), before);
}

TEST_F(Scheduled, OnlyTheNextGameOfBothTeamsIsPlayed) {
    OpenSchedule();
    Find<GameCalendar>("Calendar")->SetDay("1975-04-04");
    Click("chkNext");
    ASSERT_THAT(outside.dialogs.warnings, SizeIs(1));
    EXPECT_EQ(outside.dialogs.warnings[0].text, "Scheduled games must be played sequentially");
    Find<GameCalendar>("Calendar")->SetDay("1975-07-04");
    EXPECT_EQ(Find<QTableWidget>("grdSched")->item(0, 1)->text(), "None scheduled");
    Click("chkNext");
    EXPECT_EQ(outside.dialogs.warnings.back().text, "Please select un-played game");

    // A team marked for the computer can't be taken from it, and it can't do without its lists.
    Season().Execute("UPDATE KorvTeams SET ComputerManaged = -1");
    Season().Execute("DELETE FROM Lineups WHERE LineupType = 'S'");
    auto* screen = qobject_cast<frmPreSchedGame*>(menu.Open());
    screen->GetSchedData();
    EXPECT_FALSE(Find<QWidget>("framHomeSubs")->isEnabled());
    Click("chkNext");
    EXPECT_EQ(outside.dialogs.warnings.back().title, "Computer Manager Relievers");
    EXPECT_EQ(menu.Open(), screen);
}

TEST_F(Scheduled, QuickPlayOfARangeIsTheRunWithoutScreens) {
    session->Settings().SaveBoxScore = session->Settings().SaveScoreSheet = false;  // their names are in the season
    frmPreSchedGame* screen = OpenSchedule();
    QuickPlayAll(*screen, 37);
    EXPECT_TRUE(Find<QPushButton>("cmdQuitQuickPlay")->isVisible());
    EXPECT_FALSE(Find<QPushButton>("chkNext")->isVisible());
    WaitForEnd(*screen);
    EXPECT_THAT(outside.dialogs.warnings, IsEmpty());
    EXPECT_EQ(Text("lblResultsMsg").substr(0, 35), "37 games played out of 40 scheduled");
    EXPECT_EQ(Find<QTableWidget>("grdSched")->currentRow(), 5);

    testing::SeasonFolder other;
    const auto headless = other.Start();
    SeasonPlayer player(headless->Common(), headless->Seasons().Season(), PictureFolders{headless->Paths().BallparkImages(), {}});
    SeasonWatcher nobody;
    player.Run({7, 37, {}}, nobody);
    EXPECT_EQ(HashSeason(Season()), HashSeason(headless->Seasons().Season()));
}

TEST_F(Scheduled, QuickPlayStopsAfterTheGameUnderWayAndGoesOnLater) {
    session->Settings().SaveBoxScore = true;
    frmPreSchedGame* screen = OpenSchedule();
    QuickPlayAll(*screen, 40);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Find<QProgressBar>("ProgBar")->value() > 2; }, 60000));
    Click("cmdQuitQuickPlay");
    WaitForEnd(*screen);
    const std::int64_t played = Number("SELECT count(*) FROM Schedule WHERE Played <> 0");
    EXPECT_GT(played, 2);
    EXPECT_LT(played, 40);
    EXPECT_EQ(Number("SELECT sum(W) FROM KorvTeams"), played);
    for (int game = 1; game <= played; ++game)
        EXPECT_TRUE(std::filesystem::is_regular_file(session->Paths().GameResults("Test") / ResultsFile(game, 1)));
    QuickPlayAll(*screen, 40);
    screen->close();  // the window waits for the game under way
    EXPECT_EQ(menu.Open(), screen);
    ASSERT_TRUE(QTest::qWaitFor([&] { return menu.Open() == nullptr; }, 60000));
    EXPECT_EQ(Number("SELECT sum(W) FROM KorvTeams"), Number("SELECT count(*) FROM Schedule WHERE Played <> 0"));
}

TEST_F(Scheduled, AFaultInTheMiddleOfARangeIsToldAndKeepsTheGamesBeforeIt) {
    Season().Execute("UPDATE Schedule SET HomeTeamIndex = VisitorTeamIndex WHERE GameID = 4");
    frmPreSchedGame* screen = OpenSchedule();
    QuickPlayAll(*screen, 40);
    WaitForEnd(*screen);
    ASSERT_THAT(outside.dialogs.warnings, SizeIs(1));
    EXPECT_THAT(outside.dialogs.warnings[0].text, HasSubstr("a team can't meet itself"));
    EXPECT_EQ(Number("SELECT count(*) FROM Schedule WHERE Played <> 0"), 3);
    EXPECT_EQ(Number("SELECT sum(W) FROM KorvTeams"), 3);
    EXPECT_TRUE(Find<QPushButton>("chkNext")->isVisible());
}

}  // namespace
}  // namespace tarvane
