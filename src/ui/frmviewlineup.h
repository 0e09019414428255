#pragma once

#include <memory>

#include "ui/lineupmodel.h"
#include "ui/screen.h"

namespace Ui {
class frmViewLineup;
}

namespace tarvane {

// Both line-ups side by side, to look at only.
class frmViewLineup : public Screen {
    Q_OBJECT

  public:
    explicit frmViewLineup(const LineupModel& model, QWidget* parent = nullptr);
    ~frmViewLineup() override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    std::unique_ptr<Ui::frmViewLineup> ui_;
};

}  // namespace tarvane
