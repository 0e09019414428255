#include "ui/readinggrid.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTableWidget>
#include <algorithm>

namespace tarvane {

QTableWidget* MakeReadingGrid(const GridText& text, QWidget* parent) {
    const int rows = static_cast<int>(text.rows.size()), columns = static_cast<int>(text.heads.size());
    auto* grid = new QTableWidget(rows, columns, parent);
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid->setSelectionMode(QAbstractItemView::SingleSelection);
    grid->setShowGrid(false);
    grid->setAlternatingRowColors(true);
    grid->verticalHeader()->hide();
    grid->verticalHeader()->setMinimumSectionSize(8);
    grid->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    grid->setProperty("matrix", text.matrix);
    grid->setProperty("totals", text.totals);
    for (int column = 0; column < columns; ++column) {
        const auto at = static_cast<std::size_t>(column);
        const Qt::Alignment side = (text.left[at] ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter;
        grid->setHorizontalHeaderItem(column, new QTableWidgetItem(text.heads[at]));
        grid->horizontalHeaderItem(column)->setTextAlignment(side);
        for (int row = 0; row < rows; ++row) {
            auto* cell = new QTableWidgetItem(text.rows[static_cast<std::size_t>(row)][at]);
            cell->setTextAlignment(side);
            grid->setItem(row, column, cell);
        }
    }
    const bool heads = std::any_of(text.heads.begin(), text.heads.end(), [](const QString& h) { return !h.isEmpty(); });
    grid->horizontalHeader()->setVisible(heads);
    grid->horizontalHeader()->setHighlightSections(false);
    grid->horizontalHeader()->setMinimumSectionSize(10);
    return grid;
}

void FitReadingGrid(QTableWidget& grid, double pixels) {
    const int line = static_cast<int>(pixels * 1.55);
    grid.verticalHeader()->setDefaultSectionSize(line);
    const bool matrix = grid.property("matrix").toBool();
    QHeaderView& columns = *grid.horizontalHeader();
    QFont bold = grid.font();
    bold.setBold(true);
    for (int column = 0; column < grid.columnCount(); ++column) {
        if (grid.property("totals").toBool()) grid.item(grid.rowCount() - 1, column)->setFont(bold);
        columns.setSectionResizeMode(column, column == 0 || matrix ? QHeaderView::Stretch : QHeaderView::Fixed);
        const int wanted = std::max(static_cast<const QAbstractItemView&>(grid).sizeHintForColumn(column),
                                    columns.sectionSizeHint(column));
        if (column > 0 && !matrix) columns.resizeSection(column, wanted + static_cast<int>(pixels * 0.5));
    }
    const int head = columns.isHidden() ? 0 : static_cast<int>(pixels * 1.9);
    columns.setFixedHeight(std::max(head, 1));
    grid.setFixedHeight(head + line * grid.rowCount() + 2 * grid.frameWidth() + 2);
}

}  // namespace tarvane
