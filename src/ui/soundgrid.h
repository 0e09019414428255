#pragma once

#include <QStringList>
#include <QTableWidget>

namespace tarvane {

// A list of occasions and the sound file of each. A file dragged from a list onto a row becomes its sound; Delete takes
// it away.
class SoundGrid : public QTableWidget {
    Q_OBJECT

  public:
    SoundGrid(const QString& name, const QStringList& occasions, QWidget* parent = nullptr);

    QString File(int row) const { return item(row, 1)->text(); }
    void SetFile(int row, const QString& file);
    // Shows which sounds are not among these files; their names stay.
    void MarkMissing(const QStringList& files);

  Q_SIGNALS:
    void FileSet();

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace tarvane
