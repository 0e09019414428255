// The commands that play a season's schedule and tell two seasons apart.

#include <fmt/format.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <optional>

#include "base/error.h"
#include "documents/gamefiles.h"
#include "installation.h"
#include "season/seasonhash.h"
#include "season/seasonplay.h"

namespace tarvane::replay {

namespace {

using SteadyClock = std::chrono::steady_clock;

volatile std::sig_atomic_t stopAsked = 0;

extern "C" void AskStop(int) {
    stopAsked = 1;
}

// Turns the interrupt key into a wish to stop after the current game; a second one ends the program at once.
class StopOnInterrupt {
  public:
    StopOnInterrupt() {
        struct sigaction action {};
        action.sa_handler = AskStop;
        action.sa_flags = static_cast<int>(SA_RESETHAND);
        sigaction(SIGINT, &action, &before_);
    }
    ~StopOnInterrupt() { sigaction(SIGINT, &before_, nullptr); }
    StopOnInterrupt(const StopOnInterrupt&) = delete;
    StopOnInterrupt& operator=(const StopOnInterrupt&) = delete;

  private:
    struct sigaction before_ {};
};

std::string MinutesAndSeconds(double seconds) {
    const auto whole = static_cast<long>(seconds + 0.5);
    return fmt::format("{}:{:02}", whole / 60, whole % 60);
}

// One line on a terminal: a bar, the games, how many a second, the time left. Silent elsewhere.
class TerminalWatcher final : public SeasonWatcher {
  public:
    TerminalWatcher(Database& season, std::filesystem::path folder, std::optional<char> format)
        : season_(season),
          folder_(std::move(folder)),
          terminal_(isatty(STDERR_FILENO) != 0),
          start_(SteadyClock::now()),
          shown_(start_) {
        files_.boxScore = files_.scoreSheet = format.has_value();
        files_.format = format.value_or('T');
    }

    bool GoOn(const ScheduledGame& next, long done, long total) override {
        // Loading the teams comes with the first game; the speed is that of the games.
        const auto now = SteadyClock::now();
        if (terminal_ && now - shown_ >= std::chrono::milliseconds(100)) {
            shown_ = now;
            Show(next.GameDate, done, total, std::chrono::duration<double>(now - start_).count());
        }
        return stopAsked == 0;
    }
    GameListener* Listener() override {
        if (!files_.boxScore) return nullptr;
        sheet_.Clear();
        return &sheet_;
    }
    // The documents stand before the game is posted: a game in the season has its documents.
    void GameOver(const GameSetup& setup, const GameState& state, GameToPost& posting) override {
        const GameFileNames names = KeepGameFiles(season_, folder_, files_, {setup.data, state, sheet_, 0});
        posting.resultsFile1 = names.boxScore;
        posting.resultsFile2 = names.scoreSheet;
    }
    void Posted(const ScheduledGame& game, const GameSetup&, const GameState&, const PostingReport& report) override {
        spent_.push_back(std::clock());
        for (const std::string& message : report.messages) {
            Clear();
            fmt::print(stderr, "game {}: {}\n", game.GameID, message);
        }
    }
    void Clear() {
        if (terminal_) fmt::print(stderr, "\r\x1b[K");
        std::fflush(stderr);
    }

    // Whether games grow dearer as the season fills: processor time, which other programs don't disturb.
    void PrintEnds() const {
        constexpr std::size_t kEnd = 200;
        if (spent_.size() <= 2 * kEnd) return;
        const auto cost = [this](std::size_t from, std::size_t to) {
            return 1000.0 * static_cast<double>(spent_[to] - spent_[from]) / CLOCKS_PER_SEC /
                   static_cast<double>(to - from);
        };
        const std::size_t last = spent_.size() - 1;
        fmt::print("a game took {1:.2f} ms of processor time among the first {0}, {2:.2f} ms among the last\n", kEnd,
                   cost(0, kEnd), cost(last - kEnd, last));
    }

  private:
    void Show(const std::string& date, long done, long total, double seconds) {
        constexpr long kBar = 30;
        const auto filled = static_cast<std::size_t>(total > 0 ? kBar * done / total : 0);
        const double speed = seconds > 0 ? static_cast<double>(done) / seconds : 0;
        fmt::print(stderr, "\r\x1b[K[{:<30}] {} of {} games, {}, {:.0f} a second", std::string(filled, '#'), done,
                   total, date, speed);
        if (speed > 0) fmt::print(stderr, ", {} left", MinutesAndSeconds(static_cast<double>(total - done) / speed));
        std::fflush(stderr);
    }

    Database& season_;
    std::filesystem::path folder_;  // of the documents
    GameFilesChoice files_;
    ScoreSheet sheet_;
    bool terminal_;
    SteadyClock::time_point start_, shown_;
    std::vector<std::clock_t> spent_;  // processor time when each game was posted
};

void RefuseEmptySchedule(Database& season, const std::string& name) {
    Statement any = season.Prepare("SELECT 1 FROM Schedule LIMIT 1");
    if (!any.Step())
        throw UserError(
            fmt::format("the season \"{0}\" has no schedule; give it one with import-schedule \"{0}\" FILE", name));
}

// 'T' or 'H'; nothing for none.
std::optional<char> DocumentsAsked(const Options& options) {
    const std::string box = options.Text("--box", "none");
    if (box == "text") return 'T';
    if (box == "html") return 'H';
    if (box != "none") throw UserError(fmt::format("option --box takes text, html or none, not '{}'", box));
    return std::nullopt;
}

}  // namespace

int PlaySeason(const Context& context, const Options& options) {
    const std::string& name = options.Positional(0);
    const std::optional<char> documents = DocumentsAsked(options);
    SeasonRun run;
    if (options.Has("--games")) run.games = options.Number("--games", 0, 0, 1'000'000);
    run.through = options.Text("--through");
    Installation installation(context);
    Database season = installation.OpenSeason(name);
    RefuseEmptySchedule(season, name);
    CheckRun(run);
    run.seed = SeedOf(options);

    SeasonPlayer player(installation.Common(), season);
    TerminalWatcher watcher(season, installation.Paths().GameResults(name), documents);
    const StopOnInterrupt interrupt;
    const auto start = SteadyClock::now();
    const SeasonRunResult result = player.Run(run, watcher);
    const double seconds = std::chrono::duration<double>(SteadyClock::now() - start).count();
    watcher.Clear();
    fmt::print("{} games played{}, {} left\n", result.played, result.stopped ? " (stopped)" : "",
               UnplayedGames(season).size());
    watcher.PrintEnds();
    fmt::print("games per second: {:.0f}\n", result.played > 0 ? static_cast<double>(result.played) / seconds : 0);
    return 0;
}

int ShowHash(const Context& context, const Options& options) {
    Installation installation(context);
    Database season = installation.OpenSeason(options.Positional(0));
    fmt::print("{:016x}\n", HashSeason(season));
    return 0;
}

}  // namespace tarvane::replay
