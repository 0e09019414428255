#include "ui/frmschedreport.h"

#include <QHeaderView>

#include "reports/schedulereport.h"
#include "ui/gridfit.h"
#include "ui/qtext.h"
#include "ui/theme.h"
#include "ui_frmschedreport.h"

namespace tarvane {

frmSchedReport::frmSchedReport(Session& session, QWidget* parent)
    : Screen(parent), ui_(std::make_unique<Ui::frmSchedReport>()) {
    ui_->setupUi(this);
    connect(ui_->chkCancel, &QPushButton::clicked, this, &QWidget::close);
    const ReportTable report = ScheduleReport(session.Seasons().Season());
    QTableWidget* grid = ui_->grdReport;
    grid->setColumnCount(static_cast<int>(report.columns.size()));
    grid->setRowCount(static_cast<int>(report.rows.size()));
    grid->verticalHeader()->hide();
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid->setTabKeyNavigation(false);
    for (std::size_t column = 0; column < report.columns.size(); ++column) {
        const bool text = report.columns[column].format == CellFormat::Text;
        const int at = static_cast<int>(column);
        grid->setHorizontalHeaderItem(at, new QTableWidgetItem(QText(report.columns[column].title)));
        grid->horizontalHeader()->setSectionResizeMode(at, at == 0 ? QHeaderView::Stretch : QHeaderView::Interactive);
        for (std::size_t row = 0; row < report.rows.size(); ++row) {
            const std::vector<Value>& line = report.rows[row];
            auto* cell = new QTableWidgetItem(QText(FieldText(line[column], report.columns[column].format)));
            cell->setTextAlignment((text ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
            if (FieldText(line[0], CellFormat::Text).front() != ' ') {  // a team's totals
                QFont font = grid->font();
                font.setBold(true);
                cell->setFont(font);
                cell->setBackground(theme::kCream);
            }
            grid->setItem(static_cast<int>(row), at, cell);
        }
    }
}

frmSchedReport::~frmSchedReport() = default;

void frmSchedReport::resizeEvent(QResizeEvent* event) {
    Screen::resizeEvent(event);
    const double pixels = TextPixels(width(), height());
    FitGrid(*ui_->grdReport, pixels);
    for (int column = 1; column < ui_->grdReport->columnCount(); ++column)
        ui_->grdReport->setColumnWidth(column, static_cast<int>(pixels * 8));
    // A team's totals stay bold in the size that the grid now has.
    for (int row = 0; row < ui_->grdReport->rowCount(); ++row)
        for (int column = 0; column < ui_->grdReport->columnCount(); ++column) {
            QFont font = ui_->grdReport->item(row, column)->font();
            if (!font.bold()) continue;
            font.setPixelSize(static_cast<int>(pixels));
            ui_->grdReport->item(row, column)->setFont(font);
        }
}

}  // namespace tarvane
