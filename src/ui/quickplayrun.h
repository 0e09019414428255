#pragma once

#include <QObject>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "documents/gamefiles.h"
#include "season/seasonplay.h"

namespace tarvane {

// Where a run over a range of games stands.
struct QuickPlayProgress {
    long done = 0, total = 0;
    std::string GameDate;  // of the game under way
    PerSide<std::int32_t> teamIdx{{0, 0}};
    double seconds = 0;  // since the first pitch of the run

    double GamesPerSecond() const { return seconds > 0 ? static_cast<double>(done) / seconds : 0; }
    // 0 before the first game is over.
    double SecondsLeft() const {
        return done > 0 ? static_cast<double>(total - done) * seconds / static_cast<double>(done) : 0;
    }
};

// A game that the run has posted.
struct PostedGame {
    std::int32_t GameID = 0;
    PerSide<int> score{{0, 0}};
    std::string resultsFile1;
};

struct QuickPlayFiles {
    std::filesystem::path common, season;
    PictureFolders pictures;
    std::filesystem::path results;  // the games' documents, as chosen
    GameFilesChoice documents;
};

// Quick play of a range of scheduled games beside the screens: a thread with database connections of its own plays and
// posts game after game, so that the screens stay alive and nothing waits for them. The screens look at Progress and
// TakePosted as often as they like. While it runs nobody else writes the season.
class QuickPlayRun : public QObject {
    Q_OBJECT

  public:
    QuickPlayRun(QuickPlayFiles files, SeasonRun run, QObject* parent = nullptr);
    ~QuickPlayRun() override;  // ends the run after the game under way

    void Start();
    // The game under way is played to its end and posted; then the run ends.
    void Stop() { stop_ = true; }
    bool Stopping() const { return stop_; }

    QuickPlayProgress Progress() const;
    // The games posted since the last call, oldest first.
    std::vector<PostedGame> TakePosted();
    // What was missing in the tables and passed over, and the documents that couldn't be written.
    std::vector<std::string> TakeMessages();

  Q_SIGNALS:
    // The run is over and its connections are closed. failure is what ended it; empty if nothing did. All games posted
    // stand, and no half of another.
    void Finished(const QString& failure);

  private:
    class Watcher;
    void Run();

    QuickPlayFiles files_;
    SeasonRun run_;
    std::atomic<bool> stop_{false};
    mutable std::mutex mutex_;
    QuickPlayProgress progress_;
    std::vector<PostedGame> posted_;
    std::vector<std::string> messages_;
    std::thread thread_;
};

}  // namespace tarvane
