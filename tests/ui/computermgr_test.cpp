#include <gmock/gmock.h>

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QTest>

#include "data/teams.h"
#include "ui/demo.h"
#include "ui/frmcomputermgr.h"
#include "ui/seasonfolder.h"

namespace tarvane {
namespace {

using ::testing::SizeIs;

struct ComputerMgrTest : ::testing::Test {
    testing::SeasonFolder folder;
    std::unique_ptr<Session> session = folder.Start();
    demo::Outside outside;
    frmComputerMgr screen{*session, outside.Get()};

    template <class T = QCheckBox>
    T* Find(const char* name) {
        T* found = screen.findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    Database& Season() { return session->Seasons().Season(); }
    std::string FirstTeam() { return LoadTeamList(Season(), session->Seasons().Rules()).front().teamID; }
};

TEST_F(ComputerMgrTest, ATendencyIsSavedAndUnsavedOnesAskBeforeTheyGo) {
    const std::string team = FirstTeam();
    auto* save = Find<QPushButton>("chkSave");
    EXPECT_FALSE(save->isEnabled());
    auto* bunting = Find<QComboBox>("cmbBunting");
    const int before = bunting->currentIndex();
    EXPECT_EQ(LoadTendencies(Season(), team).Bunting, before + 1);
    bunting->setCurrentIndex((before + 1) % 3);
    save->click();
    EXPECT_EQ(LoadTendencies(Season(), team).Bunting, (before + 1) % 3 + 1);
    EXPECT_FALSE(save->isEnabled());

    auto* teams = Find<QComboBox>("cmbTeams");
    outside.dialogs.replies = {Reply::Cancel, Reply::Yes, Reply::No};
    auto* relief = Find<QComboBox>("cmbRelief");
    const int kept = relief->currentIndex();
    relief->setCurrentIndex((kept + 1) % 3);
    teams->setCurrentIndex(1);
    EXPECT_EQ(teams->currentIndex(), 0) << "he stays with what he has changed";
    teams->setCurrentIndex(1);
    EXPECT_EQ(LoadTendencies(Season(), team).RelieverUsage, (kept + 1) % 3 + 1);
    const int other = bunting->currentIndex();
    bunting->setCurrentIndex((other + 1) % 3);
    screen.show();
    screen.close();
    EXPECT_FALSE(screen.isVisible());
    EXPECT_THAT(outside.dialogs.questions, SizeIs(3));
    const auto all = LoadTeamList(Season(), session->Seasons().Rules());
    EXPECT_EQ(LoadTendencies(Season(), all[1].teamID).Bunting, other + 1) << "No drops the change";
}

TEST_F(ComputerMgrTest, GeneratingNeedsSoundOptionsAndFillsTheListsAnew) {
    Season().Execute("UPDATE Lineups SET playerID1 = 0 WHERE teamID = ?", {FirstTeam()});
    const auto filled = [&] {
        Statement row = Season().Prepare("SELECT COUNT(*) FROM Lineups WHERE teamID = ? AND playerID1 <> 0");
        row.Bind(1, FirstTeam());
        row.Step();
        return row.Int(0);
    };
    auto* generate = Find<QPushButton>("chkGenerateMgr");
    const auto refusal = [&] {
        outside.dialogs.warnings.clear();
        generate->click();
        return outside.dialogs.warnings.empty() ? std::string() : outside.dialogs.warnings[0].text;
    };
    Find("chkGenLineups")->setChecked(false);
    EXPECT_EQ(refusal(), "Must Generate Lineups if Lineup Types box is specified");
    Find("chkGenLineups")->setChecked(true);
    Find("chkIncludeDH")->setChecked(true);
    EXPECT_FALSE(Find("chkDHAndNoDH")->isChecked()) << "the kinds exclude one another";
    Find("chkIncludeDH")->setChecked(false);
    EXPECT_EQ(refusal(), "Please specify a Lineup Type box to Generate Lineups");
    EXPECT_FALSE(Find("chkGenBasedOnUsage")->isHidden()) << "the season has real statistics";
    Find("chkDHAndNoDH")->setChecked(true);
    outside.dialogs.warnings.clear();
    outside.dialogs.replies = {Reply::No, Reply::Yes};
    generate->click();
    EXPECT_EQ(filled(), 0) << "No keeps what there is";
    generate->click();
    EXPECT_EQ(filled(), 4 + 10 + 3);
    EXPECT_TRUE(outside.dialogs.warnings.empty());
}

}  // namespace
}  // namespace tarvane
