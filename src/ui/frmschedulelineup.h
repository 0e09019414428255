#pragma once

#include <memory>

#include "ui/schedulebook.h"
#include "ui/screen.h"
#include "ui/services.h"

namespace Ui {
class frmScheduleLineup;
}

namespace tarvane {

// Which stored line-up plays which of a team's coming games; and the line-ups of a game log for all teams.
class frmScheduleLineup : public Screen {
    Q_OBJECT

  public:
    frmScheduleLineup(Session& session, Services services, QWidget* parent = nullptr);
    ~frmScheduleLineup() override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void TeamChosen();
    void ListGames();
    const Team* TeamInHand() const;
    // Fixes the line-up for the selected games; 0 takes theirs back.
    void Fix(std::int32_t lineupID);
    void ScheduleLineup();
    void Import();
    void Plan();
    void WriteLog(const std::vector<std::string>& lines) const;

    struct TeamGame {
        std::int32_t GameID = 0;
        Side side = Side::Visitor;
    };

    Session& session_;
    Services services_;
    ScheduleBook book_;
    std::vector<TeamGame> games_;  // of each row
    std::unique_ptr<Ui::frmScheduleLineup> ui_;
};

}  // namespace tarvane
