#include "ui/frmleaders.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>

#include "ui/qtext.h"

namespace tarvane {

LeadersScreen::LeadersScreen(MenuScreen self, const QString& what, Lists lists, Session& session, Services services,
                             QWidget* parent)
    : ReportScreen(self, tr("Tarvane PC Baseball - ") + what, QStringLiteral("tabLeagues"), session, services, parent),
      what_(what),
      lists_(lists),
      leagues_(LoadLeagues(Season())) {
    auto* another = new QLabel(tr("Select &Number of Leaders"), this);
    another->setObjectName(QStringLiteral("lblAnother"));
    number_ = new QComboBox(this);
    number_->setObjectName(QStringLiteral("cmbNbrLeaders"));
    for (const int number : {3, 5, 10, 15, 20, 25, 50}) number_->addItem(QString::number(number), number);
    number_->addItem(tr("All"), 0);
    number_->setCurrentIndex(number_->findData(10));
    another->setBuddy(number_);
    options_->addWidget(another);
    options_->addWidget(number_);
    if (leagues_.leagues.size() > 1) {
        tabs_->addTab(QText(SeasonName()));
        for (const League& league : leagues_.leagues) tabs_->addTab(QText(league.lgName));
        tabs_->show();
    }
    connect(number_, &QComboBox::currentIndexChanged, this, [this] { Refill(); });
    Refill();
}

void LeadersScreen::Fill() {
    LeadersChoice choice;
    choice.top = number_->currentData().toInt();
    std::string of = SeasonName();
    if (tabs_->currentIndex() > 0) {
        const League& league = leagues_.leagues[static_cast<std::size_t>(tabs_->currentIndex() - 1)];
        choice.lgIdx = league.lgIdx;
        of = league.lgName;
    }
    SetHeader(of + " " + what_.toStdString());
    ShowTables(lists_(Season(), choice), 4, QStringLiteral("grdLeaders"), QStringLiteral("lblLeaders"));
}

frmLeadersBatting::frmLeadersBatting(Session& session, Services services, QWidget* parent)
    : LeadersScreen(MenuScreen::LeadersBatting, tr("Batting Leaders"), &BattingLeaders, session, services, parent) {}

frmLeadersPitching::frmLeadersPitching(Session& session, Services services, QWidget* parent)
    : LeadersScreen(MenuScreen::LeadersPitching, tr("Pitching Leaders"), &PitchingLeaders, session, services, parent) {}

}  // namespace tarvane
