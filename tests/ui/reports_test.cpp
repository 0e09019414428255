// The report screens on a season of which two days are played.

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTableWidget>

#include "season/seasonplay.h"
#include "ui/demo.h"
#include "ui/frmmain.h"
#include "ui/reportscreen.h"
#include "ui/seasonfolder.h"
#include "ui/storedseasons.h"

namespace tarvane {
namespace {

struct Reports : ::testing::Test {
    testing::SeasonFolder folder;
    std::unique_ptr<Session> session = folder.Start();
    StoredSeasons seasons{*session};
    demo::Outside outside;
    frmMain menu{seasons, outside.Get(), {}};

    void Play(long games) {
        SeasonWatcher nobody;
        SeasonPlayer(session->Common(), session->Seasons().Season()).Run({3, games, {}}, nobody);
    }
    template <class T>
    T* Find(const QString& name) {
        T* found = menu.Open() == nullptr ? nullptr : menu.Open()->findChild<T*>(name);
        if (found == nullptr) throw std::runtime_error("no control " + name.toStdString());
        return found;
    }
    QTableWidget* Grid(const char* name, int place = 0) {
        return Find<QTableWidget>(QString::fromLatin1(name) + QString::number(place));
    }
    // The numbers of a column, summed over its table.
    int Sum(QTableWidget* grid, const char* title) {
        int sum = 0, column = 0;
        while (grid->horizontalHeaderItem(column)->text() != QString::fromLatin1(title)) ++column;
        for (int row = 0; row < grid->rowCount(); ++row) sum += grid->item(row, column)->text().toInt();
        return sum;
    }
};

TEST_F(Reports, StandingsFollowTheGamesTheTabsAndTheBoxes) {
    menu.OpenScreen(MenuScreen::Standings);
    EXPECT_EQ(Sum(Grid("grdStandings"), "W"), 0);
    menu.Open()->close();
    Play(16);
    menu.OpenScreen(MenuScreen::Standings);
    auto* tabs = Find<QTabBar>("tabStandings");
    int wins = 0, losses = 0;
    for (int league = 0; league < tabs->count(); ++league) {
        tabs->setCurrentIndex(league);
        for (QTableWidget* division : menu.Open()->findChildren<QTableWidget*>()) {
            wins += Sum(division, "W");
            losses += Sum(division, "L");
        }
    }
    EXPECT_EQ(wins, 16);
    EXPECT_EQ(losses, 16);
    const int narrow = Grid("grdStandings")->columnCount();
    Find<QCheckBox>("chkExpanded")->click();
    EXPECT_GT(Grid("grdStandings")->columnCount(), narrow);
    Find<QCheckBox>("chkOneLeague")->click();
    EXPECT_EQ(Sum(Grid("grdStandings"), "W"), 16);
    EXPECT_TRUE(tabs->isHidden());
}

TEST_F(Reports, LinksLeadFromReportToReportAndShowTheSameSeason) {
    Play(24);
    menu.OpenScreen(MenuScreen::Standings);
    Find<QPushButton>("lblTeamVsTeam")->click();
    auto* matrix = Grid("grdTeamVsTeam");
    int wins = 0;
    for (int row = 0; row < matrix->rowCount(); ++row)
        for (int column = 1; column < matrix->columnCount(); ++column)
            wins += matrix->item(row, column)->text().toInt();
    EXPECT_LE(wins, 24);
    EXPECT_GT(wins, 0);
    Find<QCheckBox>("chkShowReport")->click();
    Find<QComboBox>("cmbTeams")->setCurrentIndex(1);
    Find<QCheckBox>("chkInterLeague")->setChecked(true);
    EXPECT_EQ(Sum(Grid("grdReport"), "Wins") + Sum(Grid("grdReport"), "Losses"), 2 * 3);  // all, and by opponent

    Find<QPushButton>("lblLeadersBatting")->click();
    EXPECT_EQ(Grid("grdLeaders", 11)->rowCount(), 10);
    auto* number = Find<QComboBox>("cmbNbrLeaders");
    number->setCurrentIndex(number->findText("3"));
    EXPECT_EQ(Grid("grdLeaders", 11)->rowCount(), 3);
    const QString best = Grid("grdLeaders")->item(0, 2)->text();
    auto* tabs = Find<QTabBar>("tabLeagues");
    int found = 0;
    for (int league = 1; league < tabs->count(); ++league) {
        tabs->setCurrentIndex(league);
        found += Grid("grdLeaders")->item(0, 2)->text() == best ? 1 : 0;
    }
    EXPECT_GE(found, 1);
    Find<QPushButton>("lblLeadersPitching")->click();
    EXPECT_EQ(Find<QLabel>("lblHeader")->text().toStdString(), "Test Pitching Leaders");
    Find<QPushButton>("cmdCancel")->click();
    EXPECT_EQ(menu.Open(), nullptr);
}

}  // namespace
}  // namespace tarvane
