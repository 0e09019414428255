#pragma once

#include "data/teams.h"
#include "reports/leaders.h"
#include "ui/reportscreen.h"

class QComboBox;

namespace tarvane {

// Twelve lists of the season's best, of all leagues or of one.
class LeadersScreen : public ReportScreen {
    Q_OBJECT

  protected:
    using Lists = std::vector<ReportTable> (*)(Database&, const LeadersChoice&);
    LeadersScreen(MenuScreen self, const QString& what, Lists lists, Session& session, Services services,
                  QWidget* parent);
    void Fill() override;

  private:
    QString what_;
    Lists lists_;
    LeagueTables leagues_;
    QComboBox* number_;
};

class frmLeadersBatting : public LeadersScreen {
    Q_OBJECT

  public:
    frmLeadersBatting(Session& session, Services services, QWidget* parent = nullptr);
};

class frmLeadersPitching : public LeadersScreen {
    Q_OBJECT

  public:
    frmLeadersPitching(Session& session, Services services, QWidget* parent = nullptr);
};

}  // namespace tarvane
