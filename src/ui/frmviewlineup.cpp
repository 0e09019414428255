#include "ui/frmviewlineup.h"

#include <QHeaderView>

#include "ui/gridfit.h"
#include "ui/lineupfigures.h"
#include "ui/names.h"
#include "ui/qtext.h"
#include "ui/theme.h"
#include "ui_frmviewlineup.h"

namespace tarvane {

frmViewLineup::frmViewLineup(const LineupModel& model, QWidget* parent)
    : Screen(parent), ui_(std::make_unique<Ui::frmViewLineup>()) {
    ui_->setupUi(this);
    for (const Side side : kBothSides) {
        const bool visitor = side == Side::Visitor;
        (visitor ? ui_->lblVisitorTeam : ui_->lblHomeTeam)->setText(QText(TeamName(model.Data(), side)));
        (visitor ? ui_->lblVisitorAutoOuts : ui_->lblHomeAutoOuts)->setText(QText(model.DefenceText(side)));
        QTableWidget* grid = visitor ? ui_->grdVisitorLineup : ui_->grdHomeLineup;
        const std::vector<LineupRow> rows = model.Rows(side);
        grid->setColumnCount(3);
        grid->setRowCount(static_cast<int>(rows.size()));
        grid->setHorizontalHeaderLabels({tr("#"), tr("Player"), tr("Pos")});
        grid->verticalHeader()->hide();
        grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
        grid->setSelectionBehavior(QAbstractItemView::SelectRows);
        grid->setTabKeyNavigation(false);
        for (int column = 0; column < 3; ++column)
            grid->horizontalHeader()->setSectionResizeMode(
                column, column == 1 ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
        for (int i = 0; i < grid->rowCount(); ++i) {
            const LineupRow& row = rows[static_cast<std::size_t>(i)];
            grid->setItem(i, 0, new QTableWidgetItem(QText(row.slot)));
            grid->setItem(i, 1,
                          new QTableWidgetItem(row.man.Nobody() ? QStringLiteral("- nobody -")
                                                                : QText(row.name + HandText(row.hand))));
            grid->setItem(i, 2, new QTableWidgetItem(QText(row.position).trimmed()));
        }
    }
    connect(ui_->chkCancel, &QPushButton::clicked, this, &QWidget::close);
    ui_->chkCancel->setFocus();
}

frmViewLineup::~frmViewLineup() = default;

void frmViewLineup::resizeEvent(QResizeEvent* event) {
    Screen::resizeEvent(event);
    for (QTableWidget* grid : {ui_->grdVisitorLineup, ui_->grdHomeLineup})
        FitGrid(*grid, TextPixels(width(), height()));
}

}  // namespace tarvane
