#include "ui/droplabel.h"

#include <QDragEnterEvent>
#include <QListWidget>

namespace tarvane {

void DropLabel::dragEnterEvent(QDragEnterEvent* event) {
    if (qobject_cast<QListWidget*>(event->source()) != nullptr) event->acceptProposedAction();
}

void DropLabel::dropEvent(QDropEvent* event) {
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Q_EMIT Dropped(event->source());
}

}  // namespace tarvane
