#pragma once

#include <array>

#include "ui/exhibition.h"

class QGroupBox;
class QRadioButton;
class QWidget;

namespace tarvane {

// The three pairs of option buttons with which a set-up screen asks who manages a team: the line-ups, the substitutions
// and the decisions of the game.
class ManagerSwitches {
  public:
    ManagerSwitches() = default;
    // Finds the controls of a side (framVisitorLineups, optRdCompLineups, ...) on its screen.
    ManagerSwitches(const QWidget& screen, Side side);

    void Show(const ManagerChoice& choice);
    SideControl Read() const;

  private:
    std::array<QGroupBox*, 3> frame_{};
    std::array<QRadioButton*, 3> computer_{}, human_{};
};

}  // namespace tarvane
