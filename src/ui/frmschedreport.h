#pragma once

#include <memory>

#include "data/session.h"
#include "ui/screen.h"

namespace Ui {
class frmSchedReport;
}

namespace tarvane {

// How often each team meets each other in the schedule.
class frmSchedReport : public Screen {
    Q_OBJECT

  public:
    explicit frmSchedReport(Session& session, QWidget* parent = nullptr);
    ~frmSchedReport() override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    std::unique_ptr<Ui::frmSchedReport> ui_;
};

}  // namespace tarvane
