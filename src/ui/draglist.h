#pragma once

#include <QListWidget>
#include <vector>

namespace tarvane {

// A list whose lines can be dragged to another one. It moves nothing itself: whoever fills the lists hears what was
// dropped.
class DragList : public QListWidget {
    Q_OBJECT

  public:
    explicit DragList(QWidget* parent = nullptr) : QListWidget(parent) {
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }

    // What the marked lines stand for, from the top.
    std::vector<std::size_t> Marked() const;
    void AddLine(const QString& text, std::size_t place);

  Q_SIGNALS:
    void Dropped(tarvane::DragList* from);

  protected:
    void dropEvent(QDropEvent* event) override;
};

}  // namespace tarvane
