#include "ui/gridfit.h"

#include <QHeaderView>
#include <QTableWidget>

namespace tarvane {

void FitGrid(QTableWidget& grid, double pixels) {
    grid.verticalHeader()->setDefaultSectionSize(static_cast<int>(pixels * 1.85));
    QHeaderView* head = grid.horizontalHeader();
    QFont font = grid.font();
    font.setPixelSize(static_cast<int>(pixels));
    font.setBold(true);
    // The style sheet keeps the head's own font; that of its entries counts.
    for (int column = 0; column < grid.columnCount(); ++column)
        if (QTableWidgetItem* entry = grid.horizontalHeaderItem(column)) entry->setFont(font);
    for (int column = 0; column < head->count(); ++column)  // set again, the widths are taken anew
        if (head->sectionResizeMode(column) == QHeaderView::ResizeToContents)
            head->setSectionResizeMode(column, QHeaderView::ResizeToContents);
}

}  // namespace tarvane
