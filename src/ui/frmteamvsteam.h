#pragma once

#include "data/teams.h"
#include "ui/reportscreen.h"

class QCheckBox;
class QComboBox;
class QLabel;

namespace tarvane {

// Who won how often against whom, as tables or as the list of a team.
class frmTeamVsTeam : public ReportScreen {
    Q_OBJECT

  public:
    frmTeamVsTeam(Session& session, Services services, QWidget* parent = nullptr);

  protected:
    void Fill() override;

  private:
    LeagueTables leagues_;
    QCheckBox* interLeague_;
    QCheckBox* report_;
    QLabel* another_;
    QComboBox* teams_;
};

}  // namespace tarvane
