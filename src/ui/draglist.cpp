#include "ui/draglist.h"

#include <QDropEvent>

namespace tarvane {

std::vector<std::size_t> DragList::Marked() const {
    std::vector<std::size_t> places;
    for (int row = 0; row < count(); ++row)
        if (item(row)->isSelected()) places.push_back(item(row)->data(Qt::UserRole).toULongLong());
    return places;
}

void DragList::AddLine(const QString& text, std::size_t place) {
    auto* line = new QListWidgetItem(text, this);
    line->setData(Qt::UserRole, static_cast<qulonglong>(place));
}

void DragList::dropEvent(QDropEvent* event) {
    auto* from = qobject_cast<DragList*>(event->source());
    if (from == nullptr || from == this) return;
    event->setDropAction(Qt::CopyAction);  // the lists are filled anew; Qt must not take the lines away
    event->accept();
    Q_EMIT Dropped(from);
}

}  // namespace tarvane
