#pragma once

#include <QTableWidget>
#include <functional>

#include "engine/boxlines.h"

namespace tarvane {

// What is dragged about between lists of men: a man of the roster, or a place of the order.
struct ManDrag {
    PlayerRef man;
    int row = -1;  // of the order; -1: from the roster
};

// A list whose lines can be dragged onto lines of another one.
class ManGrid : public QTableWidget {
    Q_OBJECT

  public:
    explicit ManGrid(QWidget* parent = nullptr);

    // What a line stands for when it is dragged.
    std::function<ManDrag(int row)> dragOf;

    // Sets it up as a plain list of lines with these heads.
    void SetHeads(const QStringList& heads);
    // The same data as a drag of a line would carry.
    QMimeData* DragData(int row) const;

  Q_SIGNALS:
    // -1: below the last line.
    void Dropped(int row, const tarvane::ManDrag& drag);

  protected:
    QMimeData* mimeData(const QList<QTableWidgetItem*>& items) const override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
};

}  // namespace tarvane
