// The schedule editor and its neighbours, on tables of their own.

#include <gmock/gmock.h>

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include "base/file.h"
#include "ui/demo.h"
#include "ui/droplabel.h"
#include "ui/frmschedreport.h"
#include "ui/frmschedulelineup.h"
#include "ui/frmscheduler.h"
#include "ui/gamecalendar.h"
#include "ui/seasonfolder.h"

namespace tarvane {
namespace {

using ::testing::HasSubstr;
using ::testing::SizeIs;

struct Editor : ::testing::Test {
    testing::SeasonFolder folder;
    std::unique_ptr<Session> session = folder.Start();
    demo::Outside outside;
    frmScheduler screen{*session, outside.Get()};

    void SetUp() override { outside.dialogs.defaultReply = Reply::Yes; }
    template <class T>
    T* Find(const char* name, QWidget* in = nullptr) {
        T* found = (in == nullptr ? &screen : in)->findChild<T*>(QString::fromLatin1(name));
        if (found == nullptr) throw std::runtime_error(std::string("no control ") + name);
        return found;
    }
    void Click(const char* name) { Find<QPushButton>(name)->click(); }
    void Day(const char* date) { Find<GameCalendar>("Calendar")->SetDay(date); }
    std::int64_t Number(const std::string& sql) {
        Statement row = session->Seasons().Season().Prepare(sql);
        return row.Step() ? row.Int(0) : -1;
    }
    std::string Dates(const std::string& where) {
        Statement row = session->Seasons().Season().Prepare(
            "SELECT group_concat(GameDate, ' ') FROM (SELECT GameDate FROM Schedule WHERE " + where +
            " ORDER BY GameDate, GameID)");
        return row.Step() ? row.Text(0) : std::string();
    }
    std::string LastWarning() { return outside.dialogs.warnings.empty() ? "" : outside.dialogs.warnings.back().text; }
    void MarkPlayed(int gameID) {
        session->Seasons().Season().Execute("UPDATE Schedule SET Played = -1 WHERE GameID = ?", {std::int64_t{gameID}});
        screen.LoadScheduleList();
        screen.RefreshScheduleGrid();
    }
};

TEST_F(Editor, ASeriesIsAddedDayByDayAndRemovedUnlessItWasPlayed) {
    Click("chkAddGames");
    EXPECT_EQ(LastWarning(), "Please select Visitor team");
    auto* teams = Find<QListWidget>("lstTeams");
    Q_EMIT Find<DropLabel>("lblVisitors")->Dropped(teams);
    Click("chkAddGames");
    EXPECT_EQ(LastWarning(), "Please select Home team");
    teams->setCurrentRow(2);
    QTest::keyClick(teams, Qt::Key_H);
    Day("1975-06-28");
    Find<QComboBox>("cmbNbrGames")->setCurrentIndex(4);
    Click("chkAddGames");
    EXPECT_EQ(Dates("GameDate > '1975-06-01'"), "1975-06-28 1975-06-29 1975-06-30 1975-07-01 1975-07-02");
    auto* grid = Find<QTableWidget>("grdSched");
    ASSERT_EQ(grid->rowCount(), 1);
    EXPECT_EQ(grid->item(0, 1)->text(), Find<QLabel>("lblHome")->text());

    Click("chkRemoveGames");
    EXPECT_EQ(LastWarning(), "Please select game(s) to Remove");
    grid->selectRow(0);
    Click("chkRemoveGames");
    EXPECT_EQ(grid->item(0, 0)->text(), "None scheduled");
    Day("1975-04-04");
    MarkPlayed(2);
    Day("1975-04-03");
    grid->selectAll();  // played and unplayed: nothing goes
    Click("chkRemoveGames");
    EXPECT_EQ(LastWarning(), "Played games cannot be selectively removed. Use Remove All Games");
    EXPECT_EQ(Number("SELECT count(*) FROM Schedule"), 44);
}

TEST_F(Editor, AnExportedScheduleComesBackWithNothingPlayed) {
    outside.dialogs.file = folder.root / "out.txt";
    const std::string before = Dates("1");
    Click("chkExport");
    outside.dialogs.replies = {Reply::No};
    Click("chkExport");
    EXPECT_THAT(outside.dialogs.questions.back().text, HasSubstr("override the existing file?"));
    EXPECT_THAT(outside.dialogs.reminders, SizeIs(1));
    MarkPlayed(1);
    session->Seasons().Season().Execute("UPDATE KorvTeams SET W = 3");
    Click("chkImport");
    EXPECT_EQ(outside.dialogs.reminders[1].text, "Schedule has been successfully imported.");
    EXPECT_EQ(Dates("Played = 0"), before);
    EXPECT_EQ(Number("SELECT sum(W) FROM KorvTeams"), 0) << "the reset was accepted";

    // A club that the season doesn't have ends the import; the games before it stay, as confirmed.
    const std::string text = ReadFile(folder.root / "out.txt");
    std::size_t code = text.find('\n', text.find('\n') + 1) + 1;
    for (int field = 1; field < 4; ++field) code = text.find(',', code) + 1;
    std::string broken = text;
    broken.replace(code + 1, 3, "QQQ");
    WriteFile(folder.root / "out.txt", broken);
    Click("chkImport");
    EXPECT_THAT(LastWarning(), HasSubstr("was not found - Line 3 - Import Aborted"));
    EXPECT_EQ(Number("SELECT count(*) FROM Schedule"), 2);
    WriteFile(folder.root / "out.txt", "");
    Click("chkImport");
    EXPECT_EQ(Number("SELECT count(*) FROM Schedule"), 0);
    Click("chkBalanced");
    EXPECT_GT(Number("SELECT count(*) FROM Schedule"), 1000);
    outside.dialogs.replies = {Reply::No};
    Click("chkRemoveAll");
    EXPECT_GT(Number("SELECT count(*) FROM Schedule"), 1000);
    Click("chkRemoveAll");
    EXPECT_EQ(Number("SELECT count(*) FROM Schedule"), 0);
    EXPECT_EQ(outside.dialogs.reminders.back().text, "Scheduled games have been removed");
}

TEST_F(Editor, TheReportCountsEachPairOnTheRoadAndAtHome) {
    frmSchedReport report(*session);
    auto* grid = Find<QTableWidget>("grdReport", &report);
    int totals = 0, versus = 0;
    for (int row = 0; row < grid->rowCount(); ++row) {
        const int games = grid->item(row, 2)->text().toInt() + grid->item(row, 3)->text().toInt();
        (grid->item(row, 0)->text().startsWith(QStringLiteral("      Versus")) ? versus : totals) += games;
    }
    EXPECT_EQ(totals, 2 * 40);
    EXPECT_EQ(versus, 2 * 40);
}

TEST_F(Editor, AStoredLineupIsFixedForAGameAndTakenBack) {
    frmScheduleLineup lineups(*session, outside.Get());
    auto* games = Find<QTableWidget>("grdGames", &lineups);
    ASSERT_EQ(games->rowCount(), 5);
    auto* schedule = Find<QPushButton>("chkScheduleLineup", &lineups);
    schedule->click();
    EXPECT_EQ(LastWarning(), "Please select a lineup to schedule.");
    Find<QListWidget>("lstLineups", &lineups)->setCurrentRow(1);
    games->selectRow(2);
    schedule->click();
    const QString name = Find<QListWidget>("lstLineups", &lineups)->item(1)->text();
    EXPECT_EQ(games->item(2, 2)->text(), name);
    EXPECT_EQ(Number("SELECT count(*) FROM Schedule JOIN Lineups ON Lineups.GameID = Schedule.GameID AND lineupID IN "
                     "(VisitorLineupNbr, HomeLineupNbr)"),
              1);
    const std::int64_t lists = Number("SELECT count(*) FROM Lineups");
    Find<QPushButton>("chkRemoveLineup", &lineups)->click();
    EXPECT_EQ(games->item(2, 2)->text(), "");
    EXPECT_EQ(Number("SELECT count(*) FROM Lineups WHERE GameID <> 0"), 0);
    EXPECT_EQ(Number("SELECT count(*) FROM Lineups"), lists);
}

TEST_F(Editor, LineupsArePlannedByRealUseForWhoeverHasNone) {
    frmScheduleLineup lineups(*session, outside.Get());
    auto* stored = Find<QListWidget>("lstLineups", &lineups);
    auto* games = Find<QTableWidget>("grdGames", &lineups);
    const int own = stored->count();
    stored->setCurrentRow(0);
    games->selectRow(0);
    Find<QPushButton>("chkScheduleLineup", &lineups)->click();
    const QString chosen = games->item(0, 2)->text();
    outside.dialogs.replies = {Reply::No};
    Find<QPushButton>("chkPlan", &lineups)->click();
    const char* const open = "SELECT count(*) FROM Schedule WHERE VisitorLineupNbr = 0 OR HomeLineupNbr = 0";
    EXPECT_GT(Number(open), 0);
    Find<QPushButton>("chkPlan", &lineups)->click();
    EXPECT_EQ(Number(open), 0);
    EXPECT_EQ(games->item(0, 2)->text(), chosen) << "what somebody chose stays";
    EXPECT_THAT(games->item(1, 2)->text().toStdString(), HasSubstr("by real use"));
    EXPECT_EQ(stored->count(), own) << "lists made for single games aren't offered for others";
}

}  // namespace
}  // namespace tarvane
