#include "ui/soundgrid.h"

#include <QDragEnterEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QListWidget>

#include "ui/theme.h"

namespace tarvane {

SoundGrid::SoundGrid(const QString& name, const QStringList& occasions, QWidget* parent)
    : QTableWidget(static_cast<int>(occasions.size()), 2, parent) {
    setObjectName(name);
    setHorizontalHeaderLabels({tr("When"), tr("Sound file")});
    horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    horizontalHeader()->setStretchLastSection(true);
    verticalHeader()->hide();
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
    for (int row = 0; row < rowCount(); ++row) {
        setItem(row, 0, new QTableWidgetItem(occasions[row]));
        setItem(row, 1, new QTableWidgetItem);
    }
    setCurrentCell(0, 1);
}

void SoundGrid::SetFile(int row, const QString& file) {
    if (row < 0 || row >= rowCount() || File(row) == file) return;
    item(row, 1)->setText(file);
    item(row, 1)->setData(Qt::ForegroundRole, {});
    item(row, 1)->setToolTip({});
    Q_EMIT FileSet();
}

void SoundGrid::MarkMissing(const QStringList& files) {
    for (int row = 0; row < rowCount(); ++row) {
        if (File(row).isEmpty() || files.contains(File(row), Qt::CaseInsensitive)) continue;
        item(row, 1)->setForeground(theme::kClay);
        item(row, 1)->setToolTip(tr("%1 is not in the folder of your sound files.").arg(File(row)));
    }
}

void SoundGrid::dragEnterEvent(QDragEnterEvent* event) {
    if (qobject_cast<QListWidget*>(event->source()) != nullptr) event->acceptProposedAction();
}

void SoundGrid::dragMoveEvent(QDragMoveEvent* event) {
    event->acceptProposedAction();
}

void SoundGrid::dropEvent(QDropEvent* event) {
    const auto* files = qobject_cast<QListWidget*>(event->source());
    const int row = rowAt(event->position().toPoint().y());
    if (files == nullptr || files->currentItem() == nullptr || row < 0) return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    SetFile(row, files->currentItem()->text());
    setCurrentCell(row, 1);
}

void SoundGrid::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace)
        SetFile(currentRow(), QString());
    else
        QTableWidget::keyPressEvent(event);
}

}  // namespace tarvane
