#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "ui/demo.h"
#include "ui/frmgame.h"
#include "ui/frmmain.h"
#include "ui/frmpreexgame.h"
#include "ui/frmseasons.h"
#include "ui/menugrid.h"
#include "ui/openlineups.h"

namespace tarvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

void ClickCell(QWidget& window, const char* grid, int column) {
    auto* menu = window.findChild<MenuGrid*>(QString::fromLatin1(grid));
    ASSERT_NE(menu, nullptr) << grid;
    QTest::mouseClick(menu->viewport(), Qt::LeftButton, {}, menu->visualItemRect(menu->item(0, column)).center());
}

std::vector<std::string> Texts(QWidget& window, const char* grid) {
    const auto* menu = window.findChild<MenuGrid*>(QString::fromLatin1(grid));
    std::vector<std::string> texts;
    for (int column = 0; column < menu->columnCount(); ++column)
        texts.push_back(menu->item(0, column)->text().toStdString());
    return texts;
}

std::string Label(QWidget& window, const char* name) {
    return window.findChild<QLabel*>(QString::fromLatin1(name))->text().toStdString();
}

struct MenuTest : testing::Test {
    demo::Outside outside;
    demo::DemoSeasons seasons{false};
    frmMain menu{seasons, outside.Get(), {}};
    void SetUp() override {
        menu.resize(1024, 768);
        menu.show();
        QApplication::processEvents();
    }
};

TEST_F(MenuTest, CommandsThatNeedASeasonRefuseUnderTheirOwnTitles) {
    const struct {
        const char* grid;
        std::vector<int> columns;
        const char* title;
    } cases[]{{"grdGamePlay", {0, 1}, "Tarvane PC Baseball Game Play"},
              {"grdReports", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}, "Tarvane PC Baseball Reports"},
              {"grdSettings", {1}, "League Rules/Setttings"},
              {"grdLeagues", {1}, "League Rules/Setttings"},
              {"grdLeagues", {2, 3}, "Tarvane PC Baseball Reports"}};
    for (const auto& row : cases)
        for (const int column : row.columns) {
            outside.dialogs.warnings.clear();
            ClickCell(menu, row.grid, column);
            ASSERT_THAT(outside.dialogs.warnings, SizeIs(1)) << row.grid << column;
            EXPECT_EQ(outside.dialogs.warnings[0].title, row.title) << row.grid << column;
            EXPECT_EQ(outside.dialogs.warnings[0].text,
                      "There is no Active Season. Click on Work with Seasons, then Choose an Active Season.");
            EXPECT_EQ(menu.Open(), nullptr);
        }
}

TEST_F(MenuTest, TheOthersWorkWithoutASeasonAndAnUnbuiltScreenSaysSoInTheStatusLine) {
    const std::vector<std::pair<const char*, std::vector<int>>> cases{
        {"grdGamePlay", {2}}, {"grdSettings", {3, 4, 5}}, {"grdCharts", {1, 3, 4}}};
    for (const auto& [grid, columns] : cases)
        for (const int column : columns) {
            ClickCell(menu, grid, column);
            EXPECT_EQ(Label(menu, "lblStatus"), "This screen is not built yet.") << grid << column;
        }
    EXPECT_THAT(outside.dialogs.warnings, IsEmpty());
    EXPECT_FALSE(menu.findChild<QLabel*>(QStringLiteral("lblActiveSeason"))->isVisible());
}

TEST_F(MenuTest, ChoosingASeasonGoesThroughTheListAndOpensTheGamePlayCommands) {
    ClickCell(menu, "grdLeagues", 0);
    auto* list = qobject_cast<frmSeasons*>(menu.Open());
    ASSERT_NE(list, nullptr);
    EXPECT_FALSE(menu.isVisible());
    seasons.fileMissing = true;
    auto* rows = list->findChild<QListWidget*>(QStringLiteral("lstOrgs"));
    auto* choose = list->findChild<QPushButton*>(QStringLiteral("chkActive"));
    choose->click();
    ASSERT_THAT(outside.dialogs.warnings, SizeIs(1));
    EXPECT_EQ(outside.dialogs.warnings[0].text, "No Season was selected");
    rows->setCurrentRow(0);
    choose->click();
    ASSERT_THAT(outside.dialogs.warnings, SizeIs(2));
    EXPECT_EQ(outside.dialogs.warnings[1].text, "Season database file not found. Choose another Active Season.");
    EXPECT_EQ(outside.dialogs.warnings[1].title, "Choose an Active Season");
    seasons.fileMissing = false;
    QTest::keyClick(rows, Qt::Key_Return);
    list->close();
    EXPECT_TRUE(menu.isVisible());
    EXPECT_EQ(Label(menu, "lblActiveSeason"), "Active Season: Demo 1975");
    ClickCell(menu, "grdGamePlay", 1);
    EXPECT_NE(qobject_cast<frmPreExGame*>(menu.Open()), nullptr);
}

TEST_F(MenuTest, TheGreyCellIsDeafAndKeysWalkTheRow) {
    auto* charts = menu.findChild<MenuGrid*>(QStringLiteral("grdCharts"));
    MenuContext context;
    charts->SetCommands(MenuCommands(MenuRow::Charts, context));
    ClickCell(menu, "grdCharts", 2);
    EXPECT_EQ(Label(menu, "lblStatus"), "");
    EXPECT_EQ(charts->item(0, 2)->background().color(), QColor(0xE0, 0xE0, 0xE0));
    QTest::mouseMove(charts->viewport(), charts->visualItemRect(charts->item(0, 2)).center());
    EXPECT_EQ(charts->item(0, 2)->background().color(), QColor(0xE0, 0xE0, 0xE0));
    auto* leagues = menu.findChild<MenuGrid*>(QStringLiteral("grdLeagues"));
    leagues->setFocus();
    QTest::keyClick(leagues, Qt::Key_Right);
    QTest::keyClick(leagues, Qt::Key_Return);
    ASSERT_THAT(outside.dialogs.warnings, SizeIs(1));
    EXPECT_EQ(outside.dialogs.warnings[0].title, "League Rules/Setttings");
}

TEST(Menu, TournamentSeasonsRenameThePlayCommandAndAddTheirResults) {
    demo::Outside outside;
    demo::DemoSeasons seasons;
    seasons.rules.TourneyMode = true;
    seasons.rules.TourneyType = "P";
    frmMain menu(seasons, outside.Get(), {});
    EXPECT_THAT(Texts(menu, "grdGamePlay"),
                ElementsAre("Play Post Season Game(s)", "Play Exhibition Game", "Join Internet Game"));
    EXPECT_THAT(Texts(menu, "grdReports"), SizeIs(10));  // no game played yet
    MenuContext context{true, true, "D", true, true};
    EXPECT_EQ(MenuCommands(MenuRow::Reports, context).back().text, "Tournament Results");
    EXPECT_EQ(MenuCommands(MenuRow::GamePlay, context).front().text, "Play Tournament Game(s)");
    EXPECT_TRUE(MenuCommands(MenuRow::Charts, context)[2].enabled);
}

TEST(Exhibition, MissingChoicesAreNamedInTheirOrderAndAHomeTeamBringsItsPark) {
    demo::Outside outside;
    demo::DemoSeasons seasons;
    seasons.teams[0].ComputerManaged = true;
    frmPreExGame screen(seasons, outside.Get(), {});
    auto* next = screen.findChild<QPushButton*>(QStringLiteral("cmdNext"));
    auto* visitor = screen.findChild<QComboBox*>(QStringLiteral("cmbVisitorTeam"));
    auto* home = screen.findChild<QComboBox*>(QStringLiteral("cmbHomeTeam"));
    auto* parks = screen.findChild<QComboBox*>(QStringLiteral("cmbParks"));
    next->click();
    visitor->setCurrentIndex(0);
    next->click();
    home->setCurrentIndex(1);
    EXPECT_EQ(parks->currentText(), "1975 Harbour Park");
    parks->setCurrentIndex(-1);
    next->click();
    std::vector<std::string> told;
    for (const auto& warning : outside.dialogs.warnings) told.push_back(warning.text + "|" + warning.title);
    EXPECT_THAT(told, ElementsAre("Please select Visitor team|Play Exhibition Game",
                                  "Please select Home team|Play Exhibition Game",
                                  "Please select ball park|Play Exhibition Game"));

    EXPECT_FALSE(screen.findChild<QWidget*>(QStringLiteral("framVisitorSubs"))->isEnabled());
    EXPECT_TRUE(screen.findChild<QWidget*>(QStringLiteral("framHomeSubs"))->isEnabled());
}

TEST(Exhibition, AComputerManagerNeedsHisListsAndAHumanNone) {
    demo::Outside outside;
    demo::DemoSeasons seasons;
    frmPreExGame screen(seasons, outside.Get(), {});
    for (const char* combo : {"cmbVisitorTeam", "cmbHomeTeam", "cmbParks"})
        screen.findChild<QComboBox*>(QString::fromLatin1(combo))->setCurrentIndex(0);  // a team may meet itself
    const auto choose = [&](const char* name) {
        screen.findChild<QAbstractButton*>(QString::fromLatin1(name))->click();
    };
    std::vector<PerSide<SideControl>> ready;
    QObject::connect(&screen, &frmPreExGame::GameReady, [&](const GamePtr& setup) { ready.push_back(setup->control); });
    choose("optRdCompSubs");
    choose("cmdNext");
    choose("optRdCompLineups");
    choose("cmdNext");
    ASSERT_THAT(outside.dialogs.warnings, SizeIs(2));
    EXPECT_EQ(outside.dialogs.warnings[0].title, "Computer Manager Substitution");
    EXPECT_EQ(outside.dialogs.warnings[1].title, "Computer Manager Relievers");
    EXPECT_THAT(ready, IsEmpty());
    choose("optRdHumanLineups");
    choose("optRdHumanSubs");
    choose("optHomeCompGame");
    choose("cmdNext");
    ASSERT_THAT(ready, SizeIs(1));
    EXPECT_EQ(ready[0][Side::Visitor], SideControl{});
    EXPECT_EQ(ready[0][Side::Home], (SideControl{false, false, true}));
}

TEST(Exhibition, FromTheMenuToTheGameAndBack) {
    demo::Outside outside;
    demo::DemoSeasons seasons;
    frmMain menu(seasons, outside.Get(), {});
    menu.SetSeed(7);
    menu.show();
    ClickCell(menu, "grdGamePlay", 1);
    QWidget* setup = menu.Open();
    ASSERT_NE(setup, nullptr);
    setup->findChild<QComboBox*>(QStringLiteral("cmbVisitorTeam"))->setCurrentIndex(0);
    setup->findChild<QComboBox*>(QStringLiteral("cmbHomeTeam"))->setCurrentIndex(1);
    setup->findChild<QPushButton*>(QStringLiteral("cmdNext"))->click();
    auto* lineups = qobject_cast<frmGameLineups*>(menu.Open());
    ASSERT_NE(lineups, nullptr);
    demo::PlayWithComputersLineups(*lineups);
    auto* game = qobject_cast<frmGame*>(menu.Open());
    ASSERT_NE(game, nullptr);
    EXPECT_FALSE(menu.isVisible());
    outside.dialogs.defaultReply = Reply::No;  // quit without saving
    game->findChild<QPushButton*>(QStringLiteral("cmdQuit"))->click();
    EXPECT_EQ(menu.Open(), nullptr);
    EXPECT_TRUE(menu.isVisible());
}

}  // namespace
}  // namespace tarvane
