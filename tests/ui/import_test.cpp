// A season made out of statistics on the screens of the import.

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <set>

#include "ui/demo.h"
#include "ui/frmlahmanimport.h"
#include "ui/frmmain.h"
#include "ui/seasonfolder.h"
#include "ui/storedseasons.h"

namespace tarvane {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

struct Wizard : ::testing::Test {
    testing::SeasonFolder folder;
    std::unique_ptr<Session> session = folder.Start();
    StoredSeasons seasons{*session};
    demo::Outside outside;
    frmMain menu{seasons, outside.Get(), {}};

    void SetUp() override {
        outside.dialogs.defaultReply = Reply::Yes;
        outside.dialogs.file = folder.root / "league";
        menu.OpenScreen(MenuScreen::LahmanImport);
    }
    template <class T>
    T* Find(const char* name) {
        T* found = menu.Open() == nullptr ? nullptr : menu.Open()->findChild<T*>(QString::fromLatin1(name));
        if (found == nullptr) throw std::runtime_error(std::string("no control ") + name);
        return found;
    }
    void Click(const char* name) { Find<QAbstractButton>(name)->click(); }
    void Type(const char* name, const char* text) { Find<QLineEdit>(name)->setText(QString::fromLatin1(text)); }
    std::string Page() { return Find<QStackedWidget>("pages")->currentWidget()->objectName().toStdString(); }
    std::string LastWarning() { return outside.dialogs.warnings.empty() ? "" : outside.dialogs.warnings.back().text; }
    void ToForm(int clubs) {
        auto* list = Find<QListWidget>("lstTeams");
        for (int i = 0; i < clubs; ++i) list->item(i)->setSelected(true);
        Click("cmdAdd");
        Click("cmdNext");
    }
    std::set<std::string> Files() {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(session->Paths().Data08()))
            if (entry.path().extension() == ".mdb" || entry.is_directory()) names.insert(entry.path().string());
        return names;
    }
};

TEST_F(Wizard, ASeasonIsChosenFilledFinishedAndReadyToPlay) {
    ASSERT_NE(qobject_cast<frmLahmanImport*>(menu.Open()), nullptr);
    Click("cmdNext");
    EXPECT_EQ(LastWarning(), "There are no teams selected for Import");
    auto* clubs = Find<QListWidget>("lstTeams");
    const int all = clubs->count();
    Type("txtFind", "no club of this name");
    EXPECT_EQ(clubs->count(), 0);
    Type("txtFind", "");
    ToForm(3);
    EXPECT_EQ(clubs->count(), all - 3);
    EXPECT_EQ(Page(), "frmLahmanImport3");
    Click("cmdBack");
    EXPECT_EQ(Find<QLabel>("lblTeamCount")->text(), "3 teams for import");
    Find<QListWidget>("lstDroppedItems")->item(2)->setSelected(true);
    Click("cmdDrop");
    EXPECT_EQ(clubs->count(), all - 2);
    Click("cmdNext");
    Type("txtLeagueName", "  ");
    Click("cmdNext");
    EXPECT_EQ(LastWarning(), "Please specify a Season Name");
    Type("txtLeagueName", "Second");
    Type("txtMinIP", "many");
    Click("cmdNext");
    EXPECT_EQ(LastWarning(), "Invalid Min IP Filter");
    Type("txtMinIP", "20");
    Type("txtMinAB", "50");
    Click("cmdNext");
    ASSERT_EQ(Page(), "frmLahmanImport4");
    EXPECT_EQ(Find<QLabel>("lblConfirm1")->text(), "Season Name: Second");
    Click("cmdImport");
    ASSERT_EQ(Page(), "frmLahmanImport5");
    Find<QComboBox>("cmbEra1")->setCurrentIndex(0);
    Click("cmdFinish");
    EXPECT_EQ(LastWarning(), "Please select Year Effect to Generate Player Ratings");
    EXPECT_EQ(session->Seasons().ActiveSeason(), "Test") << "the open season stays";
    for (const char* era : {"cmbEra1", "cmbEra2"}) Find<QComboBox>(era)->setCurrentIndex(1);
    Find<QCheckBox>("chkIncludeDH")->setChecked(true);
    EXPECT_FALSE(Find<QCheckBox>("chkDHAndNoDH")->isChecked());
    Click("cmdFinish");
    EXPECT_EQ(menu.Open(), nullptr);
    EXPECT_EQ(session->Seasons().ActiveSeason(), "Second");
    const std::vector<TeamEntry> teams = seasons.Teams();
    ASSERT_EQ(teams.size(), 2U);
    EXPECT_NO_THROW(seasons.Exhibition({teams[0].teamID, teams[1].teamID, teams[1].ParkID, {}}));
}

TEST_F(Wizard, CancelInTheMiddleLeavesTheDataFolderAsItWas) {
    const std::set<std::string> before = Files();
    ToForm(4);
    Type("txtLeagueName", "Second");
    Click("cmdNext");
    QPushButton* cancel = Find<QPushButton>("cmdCancel");
    QTimer stop;
    int stops = 0;
    QObject::connect(&stop, &QTimer::timeout, [&] {
        ++stops;
        cancel->click();
        stop.stop();
    });
    stop.start(0);
    Click("cmdImport");
    EXPECT_EQ(stops, 1);
    EXPECT_EQ(Page(), "frmLahmanImport4");
    EXPECT_THAT(Find<QLabel>("lblProgress")->text().toStdString(), HasSubstr("Stopped"));
    Click("cmdImport");
    ASSERT_EQ(Page(), "frmLahmanImport5");
    stop.start(0);
    Click("cmdFinish");
    EXPECT_EQ(stops, 2);
    EXPECT_EQ(Page(), "frmLahmanImport5");
    Click("cmdCancel");
    EXPECT_EQ(menu.Open(), nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Files(), before);
    EXPECT_EQ(session->Seasons().ActiveSeason(), "Test");
    EXPECT_THAT(outside.dialogs.warnings, IsEmpty());
}

TEST_F(Wizard, AnExistingSeasonIsReplacedOnlyWhenTheUserSaysSo) {
    ToForm(2);
    Type("txtLeagueName", "Test");
    outside.dialogs.replies = {Reply::No};
    Click("cmdNext");
    EXPECT_EQ(Page(), "frmLahmanImport3");
    Click("cmdNext");
    Click("cmdImport");
    EXPECT_GT(seasons.Teams().size(), 2U) << "not before the last step";
    Click("cmdFinish");
    EXPECT_EQ(LastWarning(), "");
    EXPECT_EQ(seasons.Teams().size(), 2U);
}

}  // namespace
}  // namespace tarvane
