#pragma once

#include <QTimer>
#include <memory>
#include <optional>

#include "ui/gameoptions.h"
#include "ui/managerswitches.h"
#include "ui/quickplayrun.h"
#include "ui/schedulebook.h"
#include "ui/screen.h"
#include "ui/services.h"

namespace Ui {
class frmPreSchedGame;
}

namespace tarvane {

// Which game of the schedule is played next, and who manages it; or quick play of all games up to one.
class frmPreSchedGame : public Screen {
    Q_OBJECT

  public:
    // seed 0: each quick play takes one from the system.
    frmPreSchedGame(Session& session, Services services, const GameOptions& options, std::uint64_t seed = 0,
                    QWidget* parent = nullptr);
    ~frmPreSchedGame() override;

    // Reads the schedule anew and goes to the next game to play.
    void GetSchedData();
    // Fills the grid with the games of the calendar's day.
    void ListScheduledGames();

    bool Running() const { return run_ != nullptr; }

  Q_SIGNALS:
    // The game is ready to begin.
    void GameReady(const tarvane::GamePtr& setup);
    // The game that was broken off is to go on.
    void ResumeGame(const std::filesystem::path& file);

  protected:
    bool MayClose() override;
    void Returned() override { GetSchedData(); }
    void resizeEvent(QResizeEvent* event) override;

  private:
    void SetUpGrid();
    void FillRow(int row, const ScheduleEntry& entry);
    void TellEmptySchedule();
    std::optional<std::size_t> Selected() const;
    void SelectionChanged();
    void Open(int row);
    void Next();
    void ShowResults(const ScheduleEntry& entry);

    // --- Quick play of a range ---
    void PlayTo();
    void Run(long games);
    void Tick();
    void RunOver(const QString& failure);
    void ShowRunning(bool running);
    std::string GameText(const QuickPlayProgress& progress) const;

    Session& session_;
    Services services_;
    GameOptions options_;
    std::uint64_t seed_;
    ScheduleBook book_;
    std::vector<std::size_t> shown_;  // the game of each row
    std::unique_ptr<Ui::frmPreSchedGame> ui_;
    PerSide<ManagerSwitches> switches_;
    std::unique_ptr<QuickPlayRun> run_;
    QTimer ticks_;
    bool closeAfterRun_ = false, minimized_ = false;
};

}  // namespace tarvane
