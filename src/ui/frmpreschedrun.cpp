// Quick play of a range of games from the set-up screen.

#include <fmt/format.h>

#include <random>

#include "ui/frmpreschedgame.h"
#include "ui/gamekeeper.h"
#include "ui/qtext.h"
#include "ui_frmpreschedgame.h"

namespace tarvane {

namespace {
constexpr const char* kRangeTitle = "Quick Play Selected Games";
constexpr int kTickMilliseconds = 100;
}  // namespace

void frmPreSchedGame::PlayTo() {
    const auto selected = Selected();
    if (!selected || book_.Games()[*selected].played) {
        services_.dialogs.Warn("Please select un-played game", "Play Scheduled Game");
        return;
    }
    const ScheduleBook::Range range = book_.Through(*selected);
    if (range.saved) {
        services_.dialogs.Warn("Please complete saved game(s) before using Quick Play.", kRangeTitle);
        return;
    }
    if (!session_.Settings().SaveStats) {
        services_.dialogs.Warn(
            "Quick Play would keep none of these games: saving of statistics is off in the Game Play Settings.",
            kRangeTitle);
        return;
    }
    const Reply reply = services_.dialogs.Ask(
        "Please confirm that you want the computer to Quick Play through selected game.\nClick "
        "Yes to Quick Play selected game(s), otherwise Click No.",
        kRangeTitle);
    if (reply == Reply::Yes) Run(range.games);
}

void frmPreSchedGame::Run(long games) {
    SeasonRun run;
    std::random_device system;
    run.seed = seed_ != 0 ? seed_ : (static_cast<std::uint64_t>(system()) << 32) + system();
    run.games = games;
    const DataPaths& paths = session_.Paths();
    run_ = std::make_unique<QuickPlayRun>(
        QuickPlayFiles{paths.CommonFile(), session_.Seasons().Season().Path(),
                       PictureFolders{paths.BallparkImages(), paths.PlayerImages()},
                       paths.GameResults(session_.Seasons().ActiveSeason()),
                       KeepChoicesOf(session_.Settings(), session_.Screens()).files},
        run);
    connect(run_.get(), &QuickPlayRun::Finished, this, &frmPreSchedGame::RunOver);
    closeAfterRun_ = false;
    minimized_ = ui_->chkQuickPlayMinimized->isChecked();
    ShowRunning(true);
    run_->Start();
    ticks_.start(kTickMilliseconds);
    Tick();
    if (minimized_) showMinimized();
}

void frmPreSchedGame::ShowRunning(bool running) {
    for (QWidget* control :
         {static_cast<QWidget*>(ui_->chkNext), static_cast<QWidget*>(ui_->chkPlayTo),
          static_cast<QWidget*>(ui_->chkQuickPlayMinimized), static_cast<QWidget*>(ui_->chkEditSched)})
        control->setVisible(!running);
    ui_->cmdQuitQuickPlay->setVisible(running);
    ui_->cmdQuitQuickPlay->setEnabled(running);
    ui_->chkCancel->setEnabled(!running);
    ui_->Calendar->setEnabled(!running);
    ui_->stkLower->setCurrentWidget(running ? ui_->pagRun : ui_->pagManagers);
    (running ? ui_->cmdQuitQuickPlay : ui_->chkNext)->setFocus();
}

std::string frmPreSchedGame::GameText(const QuickPlayProgress& progress) const {
    if (progress.GameDate.empty()) return {};
    const QDate day = QDate::fromString(QText(progress.GameDate), Qt::ISODate);
    return fmt::format("{}:  {} at {}", ui_->Calendar->locale().toString(day, QStringLiteral("MMMM d")).toStdString(),
                       book_.TeamName(progress.teamIdx[Side::Visitor]), book_.TeamName(progress.teamIdx[Side::Home]));
}

// The screen follows the run ten times a second, whatever its speed.
void frmPreSchedGame::Tick() {
    if (!run_) return;
    const QuickPlayProgress progress = run_->Progress();
    for (const PostedGame& game : run_->TakePosted()) book_.MarkPlayed(game.GameID, game.score, game.resultsFile1);
    ui_->fraProgress2->Show(progress, GameText(progress), run_->Stopping());
    ui_->cmdQuitQuickPlay->setEnabled(!run_->Stopping());
    ui_->Calendar->SetDays(book_.Days());
    {
        const QSignalBlocker quiet(ui_->Calendar);
        if (!progress.GameDate.empty()) ui_->Calendar->SetDay(progress.GameDate);
    }
    ListScheduledGames();
    const long percent = progress.total > 0 ? 100 * progress.done / progress.total : 0;
    setWindowTitle(QText(fmt::format("{}% - Running Quick Play {}", percent, GameText(progress))));
}

void frmPreSchedGame::RunOver(const QString& failure) {
    ticks_.stop();
    const QuickPlayProgress progress = run_->Progress();
    const bool stopped = run_->Stopping();
    const std::vector<std::string> messages = run_->TakeMessages();
    run_.release()->deleteLater();  // it is telling us this very moment
    ShowRunning(false);
    if (minimized_ && isMinimized()) showNormal();
    setWindowTitle(tr("Tarvane PC Baseball - Play Scheduled Game(s)"));
    GetSchedData();
    if (failure.isEmpty())
        ui_->lblProgress->setText(
            QText(fmt::format("{} games played in {} ({:.0f} a second){}.", progress.done, ClockText(progress.seconds),
                              progress.GamesPerSecond(), stopped ? ", then stopped" : "")));
    else
        services_.dialogs.Warn(failure.toStdString(), kRangeTitle);
    if (!messages.empty())
        services_.dialogs.Warn(fmt::format("{}\n({} messages of this kind)", messages.front(), messages.size()),
                               "Save Game Stats");
    if (closeAfterRun_) close();
}

}  // namespace tarvane
