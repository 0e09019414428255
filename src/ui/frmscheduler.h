#pragma once

#include <functional>
#include <memory>

#include "ui/schedulebook.h"
#include "ui/screen.h"
#include "ui/services.h"

namespace Ui {
class frmScheduler;
}

namespace tarvane {

// The schedule of a season: games by hand, from a schedule file or a game log, or a balanced schedule of the program's
// own; and out of the season as a schedule file.
class frmScheduler : public Screen {
    Q_OBJECT

  public:
    frmScheduler(Session& session, Services services, QWidget* parent = nullptr);
    ~frmScheduler() override;

    // Reads all games anew; the calendar goes to the day of the last change, else to the first game.
    void LoadScheduleList();
    // Fills the grid with the games of the calendar's day.
    void RefreshScheduleGrid();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void ConnectControls();
    void SetUpGrid();
    void ListTeams();

    // --- By hand ---
    void Pick(Side side);
    void AddGames();
    void RemoveSelected();
    void RemoveAll();

    // --- Whole schedules ---
    void Import(bool gameLog);
    void MakeBalanced();
    void OfferPlan(const char* title);
    void Export();
    // Asks before a schedule with games is replaced.
    bool MayReplace(const std::string& text, const std::string& title, const std::string& yes);
    // With games played their statistics would stand without them.
    void OfferReset(const std::string& what, const std::string& existing, const std::string& title, bool played);
    void Reload();
    // Runs what writes the schedule, under the hourglass; a failure is told under the title.
    bool Try(const std::string& title, const std::function<void()>& write);

    Session& session_;
    Services services_;
    ScheduleBook book_;
    std::vector<std::size_t> shown_;
    std::string lastAddDate_;  // yyyy-mm-dd; empty at first
    PerSide<std::int32_t> pick_{{0, 0}};
    std::unique_ptr<Ui::frmScheduler> ui_;
};

}  // namespace tarvane
