#include "ui/frmstandings.h"

#include <QBoxLayout>
#include <QCheckBox>

#include "reports/standings.h"
#include "ui/qtext.h"

namespace tarvane {

frmStandings::frmStandings(Session& session, Services services, QWidget* parent)
    : ReportScreen(MenuScreen::Standings, tr("Tarvane PC Baseball - Standings"), QStringLiteral("tabStandings"),
                   session, services, parent),
      leagues_(LoadLeagues(Season())) {
    expanded_ = AddOption(QStringLiteral("chkExpanded"), tr("&Expanded Standings"));
    oneLeague_ = AddOption(QStringLiteral("chkOneLeague"), tr("Show as &1-league Standings"));
    if (leagues_.leagues.size() > 1)
        for (const League& league : leagues_.leagues) tabs_->addTab(QText(league.lgName));
    Refill();
}

void frmStandings::Fill() {
    StandingsChoice choice;
    choice.expanded = expanded_->isChecked();
    choice.oneLeague = oneLeague_->isChecked();
    const bool byTab = leagues_.leagues.size() > 1 && !choice.oneLeague;
    tabs_->setVisible(byTab);
    if (byTab) choice.lgIdx = leagues_.leagues[static_cast<std::size_t>(std::max(tabs_->currentIndex(), 0))].lgIdx;
    SetHeader(SeasonName() + " Standings");
    ShowTables(Standings(Season(), choice), choice.expanded ? 1 : 2, QStringLiteral("grdStandings"),
               QStringLiteral("lblDivision"));
}

}  // namespace tarvane
