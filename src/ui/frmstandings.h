#pragma once

#include "data/teams.h"
#include "ui/reportscreen.h"

class QCheckBox;

namespace tarvane {

// The standings, by division or league or in one table.
class frmStandings : public ReportScreen {
    Q_OBJECT

  public:
    frmStandings(Session& session, Services services, QWidget* parent = nullptr);

  protected:
    void Fill() override;

  private:
    LeagueTables leagues_;
    QCheckBox* expanded_;
    QCheckBox* oneLeague_;
};

}  // namespace tarvane
