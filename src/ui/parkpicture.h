#pragma once

#include <QPixmap>
#include <QWidget>

namespace tarvane {

// The picture of the menu and the splash screen: an evening at the ball park with the game's name on it, or a picture
// of the user's own.
class ParkPicture : public QWidget {
    Q_OBJECT

  public:
    explicit ParkPicture(QWidget* parent = nullptr) : QWidget(parent) {}

    // Uses the file if it can be read; else keeps what it shows. No file at all brings the drawn park back.
    void SetPicture(const QString& file);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QPixmap own_;
};

}  // namespace tarvane
