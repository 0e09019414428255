#pragma once

#include <QFrame>
#include <memory>
#include <string>

#include "ui/quickplayrun.h"

namespace Ui {
class frmProgress2;
}

namespace tarvane {

// How far a run over a range of games is: games, games a second, the time left, and the game under way.
class frmProgress2 : public QFrame {
    Q_OBJECT

  public:
    explicit frmProgress2(QWidget* parent = nullptr);
    ~frmProgress2() override;

    // game names the game under way.
    void Show(const QuickPlayProgress& progress, const std::string& game, bool stopping);

  private:
    std::unique_ptr<Ui::frmProgress2> ui_;
};

// "0:07", "1:02:30".
std::string ClockText(double seconds);

}  // namespace tarvane
