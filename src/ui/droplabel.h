#pragma once

#include <QLabel>

namespace tarvane {

// A place to which an entry of a list can be dragged.
class DropLabel : public QLabel {
    Q_OBJECT

  public:
    explicit DropLabel(QWidget* parent = nullptr) : QLabel(parent) { setAcceptDrops(true); }

  Q_SIGNALS:
    // The current entry of that list was dropped here.
    void Dropped(QObject* list);

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
};

}  // namespace tarvane
