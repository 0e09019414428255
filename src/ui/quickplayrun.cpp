#include "ui/quickplayrun.h"

#include <exception>
#include <utility>

#include "base/error.h"
#include "ui/qtext.h"

namespace tarvane {

class QuickPlayRun::Watcher final : public SeasonWatcher {
  public:
    Watcher(QuickPlayRun& run, Database& season)
        : run_(run), season_(season), start_(std::chrono::steady_clock::now()) {}

    bool GoOn(const ScheduledGame& next, long done, long total) override {
        const std::lock_guard lock(run_.mutex_);
        run_.progress_ = {done, total, next.GameDate, next.teamIdx, Seconds()};
        return !run_.stop_;
    }
    GameListener* Listener() override {
        if (!run_.files_.documents.Any()) return nullptr;
        sheet_.Clear();
        return &sheet_;
    }
    void GameOver(const GameSetup& setup, const GameState& state, GameToPost& posting) override {
        resultsFile1_ = " ";
        try {
            const GameFileNames names =
                KeepGameFiles(season_, run_.files_.results, run_.files_.documents, {setup.data, state, sheet_, 0});
            posting.resultsFile1 = resultsFile1_ = names.boxScore;
            posting.resultsFile2 = names.scoreSheet;
        } catch (const UserError& failure) {  // no reason to lose the game
            const std::lock_guard lock(run_.mutex_);
            run_.messages_.push_back(failure.what());
        }
    }
    void Posted(const ScheduledGame& game, const GameSetup&, const GameState& state,
                const PostingReport& report) override {
        const std::lock_guard lock(run_.mutex_);
        ++run_.progress_.done;
        run_.progress_.seconds = Seconds();
        if (report.schedulePosted)
            run_.posted_.push_back({game.GameID, {{state[Side::Visitor].Runs, state[Side::Home].Runs}}, resultsFile1_});
        run_.messages_.insert(run_.messages_.end(), report.messages.begin(), report.messages.end());
    }

  private:
    double Seconds() const { return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count(); }

    QuickPlayRun& run_;
    Database& season_;
    ScoreSheet sheet_;
    std::chrono::steady_clock::time_point start_;
    std::string resultsFile1_ = " ";
};

QuickPlayRun::QuickPlayRun(QuickPlayFiles files, SeasonRun run, QObject* parent)
    : QObject(parent), files_(std::move(files)), run_(std::move(run)) {
    progress_.total = run_.games.value_or(0);
}

QuickPlayRun::~QuickPlayRun() {
    Stop();
    if (thread_.joinable()) thread_.join();
}

void QuickPlayRun::Start() {
    thread_ = std::thread(&QuickPlayRun::Run, this);
}

void QuickPlayRun::Run() {
    QString failure;
    try {
        Database common(files_.common);
        Database season(files_.season);
        SeasonPlayer player(common, season, files_.pictures);
        Watcher watcher(*this, season);
        player.Run(run_, watcher);
    } catch (const std::exception& error) {
        failure = QText(error.what());
    } catch (...) {
        failure = tr("Quick Play was ended by an unknown fault.");
    }
    // Told on the thread of the screens, once this one has let go of the season.
    QMetaObject::invokeMethod(
        this, [this, failure] { Q_EMIT Finished(failure); }, Qt::QueuedConnection);
}

QuickPlayProgress QuickPlayRun::Progress() const {
    const std::lock_guard lock(mutex_);
    return progress_;
}

std::vector<PostedGame> QuickPlayRun::TakePosted() {
    const std::lock_guard lock(mutex_);
    return std::exchange(posted_, {});
}

std::vector<std::string> QuickPlayRun::TakeMessages() {
    const std::lock_guard lock(mutex_);
    return std::exchange(messages_, {});
}

}  // namespace tarvane
