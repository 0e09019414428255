#include "ui/frmseasons.h"

#include "ui/mainmenu.h"
#include "ui_frmseasons.h"

namespace tarvane {

frmSeasons::frmSeasons(SeasonAccess& seasons, Services services, QWidget* parent)
    : Screen(parent), seasons_(seasons), services_(services), ui_(std::make_unique<Ui::frmSeasons>()) {
    ui_->setupUi(this);
    connect(ui_->lstOrgs, &QListWidget::itemActivated, this, &frmSeasons::SetActive);
    connect(ui_->chkActive, &QPushButton::clicked, this, &frmSeasons::SetActive);
    connect(ui_->chkClose, &QPushButton::clicked, this, &QWidget::close);
    Fill();
}

frmSeasons::~frmSeasons() = default;

void frmSeasons::Fill() {
    const int row = ui_->lstOrgs->currentRow();
    ui_->lstOrgs->clear();
    for (const SeasonEntry& season : seasons_.Seasons()) {
        const QString mark = season.Active ? QStringLiteral("\u2605  ") : QStringLiteral("     ");
        auto* line = new QListWidgetItem(mark + QString::fromStdString(season.LeagueName), ui_->lstOrgs);
        line->setData(Qt::UserRole, static_cast<qlonglong>(season.LeagueID));
        if (season.Active) ui_->lstOrgs->setCurrentItem(line);
    }
    if (row >= 0 && row < ui_->lstOrgs->count()) ui_->lstOrgs->setCurrentRow(row);
    const std::string active = seasons_.ActiveSeason();
    const QString base = tr("Tarvane PC Baseball - Work with Seasons");
    setWindowTitle(active.empty() ? base
                                  : base + QStringLiteral(" - ") + QString::fromStdString(ActiveSeasonLabel(active)));
    if (ui_->lstOrgs->count() == 0)
        ui_->lblProgress->setText(
            tr("There is no season yet. Make one from a statistics database with: tarvane-replay "
               "new-season NAME --source PATH --year YEAR"));
}

void frmSeasons::SetActive() {
    const QListWidgetItem* line = ui_->lstOrgs->currentItem();
    if (line == nullptr) {
        services_.dialogs.Warn("No Season was selected", "Choose an Active Season");
        return;
    }
    const std::string warning = seasons_.SetActive(line->data(Qt::UserRole).toLongLong());
    if (!warning.empty()) services_.dialogs.Warn(warning, "Choose an Active Season");
    Fill();
    if (warning.empty()) ui_->lblProgress->setText(QString::fromStdString(ActiveSeasonLabel(seasons_.ActiveSeason())));
}

}  // namespace tarvane
