#pragma once

#include <QTableWidget>
#include <vector>

#include "ui/mainmenu.h"
#include "ui/userlook.h"

namespace tarvane {

// A one-row grid used as a row of buttons: a click, or Enter on the current cell, chooses a command. The cell under the
// mouse and the current one are lit; a command that can't be used is grey and deaf.
class MenuGrid : public QTableWidget {
    Q_OBJECT

  public:
    explicit MenuGrid(QWidget* parent = nullptr);

    // The user's colours in place of cream and ink.
    void SetColors(const std::optional<UserColors>& colors);
    void SetCommands(const std::vector<MenuCommand>& commands);

  Q_SIGNALS:
    void Chosen(int column);

  protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void Choose(int column);
    void Paint();

    int hovered_ = -1;
    std::optional<UserColors> colors_;
    std::vector<bool> enabled_;
};

}  // namespace tarvane
