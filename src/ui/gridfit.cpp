#include "ui/gridfit.h"

#include <QHeaderView>
#include <QTableWidget>

namespace tarvane {

void FitGrid(QTableWidget& grid, double pixels) {
    grid.verticalHeader()->setDefaultSectionSize(static_cast<int>(pixels * 1.85));
    QHeaderView* head = grid.horizontalHeader();
    QFont font = head->font();
    font.setPixelSize(static_cast<int>(pixels));
    font.setBold(true);
    head->setFont(font);
    for (int column = 0; column < head->count(); ++column)  // set again, the widths are taken anew
        if (head->sectionResizeMode(column) == QHeaderView::ResizeToContents)
            head->setSectionResizeMode(column, QHeaderView::ResizeToContents);
}

}  // namespace tarvane
