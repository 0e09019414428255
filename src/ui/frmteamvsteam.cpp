#include "ui/frmteamvsteam.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

#include "reports/standings.h"
#include "ui/qtext.h"

namespace tarvane {

frmTeamVsTeam::frmTeamVsTeam(Session& session, Services services, QWidget* parent)
    : ReportScreen(MenuScreen::TeamVsTeam, tr("Tarvane PC Baseball - Team vs Team"), QStringLiteral("tabTeamVsTeam"),
                   session, services, parent),
      leagues_(LoadLeagues(Season())) {
    interLeague_ = AddOption(QStringLiteral("chkInterLeague"), tr("Show &Inter-League"));
    interLeague_->setHidden(leagues_.leagues.size() < 2);
    report_ = AddOption(QStringLiteral("chkShowReport"), tr("Show as &Report Format"));
    another_ = new QLabel(tr("Select a Tea&m"), this);
    another_->setObjectName(QStringLiteral("lblAnother"));
    teams_ = new QComboBox(this);
    teams_->setObjectName(QStringLiteral("cmbTeams"));
    teams_->addItem(tr("All teams"), 0);
    for (const Team& team : LoadTeamList(Season(), {}))
        teams_->addItem(QText(team.fullName + " (" + team.teamID + ")"), team.TeamIdx);
    another_->setBuddy(teams_);
    options_->addWidget(another_);
    options_->addWidget(teams_);
    connect(teams_, &QComboBox::currentIndexChanged, this, [this] { Refill(); });
    if (leagues_.leagues.size() > 2)
        for (const League& league : leagues_.leagues) tabs_->addTab(QText(league.lgName));
    Refill();
}

void frmTeamVsTeam::Fill() {
    TeamVsTeamChoice choice;
    choice.interLeague = interLeague_->isChecked();
    choice.list = report_->isChecked();
    choice.team = choice.list ? teams_->currentData().toInt() : 0;
    const bool byTab = leagues_.leagues.size() > 2 && !choice.list;
    tabs_->setVisible(byTab);
    if (byTab) choice.lgIdx = leagues_.leagues[static_cast<std::size_t>(std::max(tabs_->currentIndex(), 0))].lgIdx;
    another_->setVisible(choice.list);
    teams_->setVisible(choice.list);
    SetHeader(SeasonName() + " Team vs Team");
    ShowTables(TeamVersusTeam(Season(), choice), 1,
               choice.list ? QStringLiteral("grdReport") : QStringLiteral("grdTeamVsTeam"), QStringLiteral("lblLeague"),
               choice.list ? ReportShape::List : ReportShape::Matrix);
}

}  // namespace tarvane
