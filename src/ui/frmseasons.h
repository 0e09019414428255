#pragma once

#include <memory>

#include "ui/screen.h"
#include "ui/seasonaccess.h"
#include "ui/services.h"

namespace Ui {
class frmSeasons;
}

namespace tarvane {

// The list of seasons, and which of them is worked with.
class frmSeasons : public Screen {
    Q_OBJECT

  public:
    frmSeasons(SeasonAccess& seasons, Services services, QWidget* parent = nullptr);
    ~frmSeasons() override;

  private:
    void Fill();
    void SetActive();

    SeasonAccess& seasons_;
    Services services_;
    std::unique_ptr<Ui::frmSeasons> ui_;
};

}  // namespace tarvane
