#include "ui/mangrid.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QMimeData>

namespace tarvane {

namespace {
const QString kManFormat = QStringLiteral("application/x-tarvane-man");
}

ManGrid::ManGrid(QWidget* parent) : QTableWidget(parent) {
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDefaultDropAction(Qt::CopyAction);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(8);
    horizontalHeader()->setMinimumSectionSize(20);
    horizontalHeader()->setHighlightSections(false);
}

void ManGrid::SetHeads(const QStringList& heads) {
    setColumnCount(static_cast<int>(heads.size()));
    setHorizontalHeaderLabels(heads);
}

QMimeData* ManGrid::DragData(int row) const {
    auto* carried = new QMimeData;
    if (!dragOf || row < 0) return carried;
    const ManDrag drag = dragOf(row);
    carried->setData(kManFormat, QStringLiteral("%1 %2 %3")
                                     .arg(static_cast<int>(drag.man.type))
                                     .arg(static_cast<int>(drag.man.index))
                                     .arg(drag.row)
                                     .toLatin1());
    return carried;
}

QMimeData* ManGrid::mimeData(const QList<QTableWidgetItem*>& items) const {
    return DragData(items.isEmpty() ? -1 : row(items.front()));
}

void ManGrid::dragEnterEvent(QDragEnterEvent* event) {
    event->setAccepted(event->mimeData()->hasFormat(kManFormat));
}

void ManGrid::dragMoveEvent(QDragMoveEvent* event) {
    event->setAccepted(event->mimeData()->hasFormat(kManFormat));
}

void ManGrid::dropEvent(QDropEvent* event) {
    const QList<QByteArray> parts = event->mimeData()->data(kManFormat).split(' ');
    if (parts.size() != 3) return;
    const ManDrag drag{{static_cast<char>(parts[0].toInt()), static_cast<std::int16_t>(parts[1].toInt())},
                       parts[2].toInt()};
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Q_EMIT Dropped(rowAt(event->position().toPoint().y()), drag);
}

}  // namespace tarvane
