#pragma once

#include <QApplication>
#include <QPushButton>

#include "ui/frmgamelineups.h"

namespace tarvane::demo {

// The line-up screen that is open over a game, or null.
inline frmGameLineups* OpenLineups() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* screen = qobject_cast<frmGameLineups*>(window); screen != nullptr && screen->isVisible())
            return screen;
    return nullptr;
}

inline void ClickOn(const QWidget& screen, const char* name) {
    screen.findChild<QAbstractButton*>(QString::fromLatin1(name))->click();
}

// Answers the change that a game waits for with the computer's choice, if it waits for one.
inline void AnswerLineups() {
    if (frmGameLineups* screen = OpenLineups()) {
        ClickOn(*screen, "chkComputer");
        ClickOn(*screen, "cmdPlay");
    }
}

// Both teams with the computer's choice, and into the game.
inline void PlayWithComputersLineups(frmGameLineups& screen) {
    for (const Side side : kBothSides) {
        ClickOn(screen, side == Side::Visitor ? "optVisitorTeam" : "optHomeTeam");
        ClickOn(screen, "chkComputer");
    }
    ClickOn(screen, "cmdPlay");
}

}  // namespace tarvane::demo
