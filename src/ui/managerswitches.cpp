#include "ui/managerswitches.h"

#include <QGroupBox>
#include <QRadioButton>

namespace tarvane {

ManagerSwitches::ManagerSwitches(const QWidget& screen, Side side) {
    const QString team = side == Side::Visitor ? QStringLiteral("Visitor") : QStringLiteral("Home");
    const QString option = side == Side::Visitor ? QStringLiteral("optRd") : QStringLiteral("optHome");
    const std::array<QString, 3> kinds{QStringLiteral("Lineups"), QStringLiteral("Subs"), QStringLiteral("Game")};
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        frame_[i] = screen.findChild<QGroupBox*>(QStringLiteral("fram") + team + kinds[i]);
        computer_[i] = screen.findChild<QRadioButton*>(option + QStringLiteral("Comp") + kinds[i]);
        human_[i] = screen.findChild<QRadioButton*>(option + QStringLiteral("Human") + kinds[i]);
    }
}

void ManagerSwitches::Show(const ManagerChoice& choice) {
    const std::array<bool, 3> computer{choice.control.lineups, choice.control.subs, choice.control.game};
    for (std::size_t i = 0; i < computer.size(); ++i) {
        (computer[i] ? computer_[i] : human_[i])->setChecked(true);
        frame_[i]->setEnabled(!choice.locked);
    }
}

SideControl ManagerSwitches::Read() const {
    return {computer_[0]->isChecked(), computer_[1]->isChecked(), computer_[2]->isChecked()};
}

}  // namespace tarvane
