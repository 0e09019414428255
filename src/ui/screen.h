#pragma once

#include <QWidget>

namespace tarvane {

// What every screen below the main menu shares: its ground, fonts that grow with the window, Enter for the button that
// has the focus, Escape to leave, and word to its opener when it closes.
class Screen : public QWidget {
    Q_OBJECT

  public:
    explicit Screen(QWidget* parent = nullptr);

  Q_SIGNALS:
    void Closed();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    // Shows another screen in this one's place until it closes; it deletes itself. Returned is called then.
    void OpenOver(Screen* next);
    virtual void Returned() {}

    // False keeps the screen open.
    virtual bool MayClose() { return true; }
};

}  // namespace tarvane
