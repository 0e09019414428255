#include "accuracy/replays.h"

#include <fmt/format.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <thread>

#include "base/error.h"
#include "base/file.h"
#include "base/tempfolder.h"
#include "data/resets.h"
#include "data/rules.h"
#include "data/teams.h"
#include "season/balancedschedule.h"
#include "season/plannedlineups.h"
#include "season/seasonplay.h"

namespace tarvane {

namespace {

namespace fs = std::filesystem;

volatile std::sig_atomic_t replaysInterrupted = 0;

extern "C" void InterruptReplays(int) {
    replaysInterrupted = 1;
}

// While it lives, the interrupt key and a polite request to end are noted instead of ending the program.
class InterruptGuard {
  public:
    InterruptGuard() {
        replaysInterrupted = 0;
        struct sigaction action {};
        action.sa_handler = InterruptReplays;
        for (std::size_t i = 0; i < 2; ++i) sigaction(kSignals[i], &action, &before_[i]);
    }
    InterruptGuard(const InterruptGuard&) = delete;
    InterruptGuard& operator=(const InterruptGuard&) = delete;
    ~InterruptGuard() {
        for (std::size_t i = 0; i < 2; ++i) sigaction(kSignals[i], &before_[i], nullptr);
    }

  private:
    static constexpr int kSignals[2] = {SIGINT, SIGTERM};
    struct sigaction before_[2]{};
};

class Silence : public MessageSink {
  public:
    void Warn(const std::string&, const std::string&) override {}
    void Inform(const std::string&, const std::string&) override {}
};

// A whole copy of an open database, its side file included.
void CopyDatabase(Database& database, const fs::path& target) {
    database.Execute("VACUUM INTO ?", {target.string()});
}

// The games that a club really played, on average.
int GamesOfSchedule(const std::vector<Team>& teams) {
    double games = 0;
    for (const Team& team : teams) games += team.ActualWins + team.ActualLosses;
    const long average = teams.empty() ? 0 : std::lround(games / static_cast<double>(teams.size()));
    return average > 0 ? static_cast<int>(average) : kUsualGames;
}

// The season before its first game.
void PrepareSeason(const fs::path& file, const ReplayPlan& plan, const fs::path& documents) {
    Database season(file);
    LeagueRules rules = LoadLeagueRules(season);
    if (rules.TourneyMode)
        throw UserError("a tournament can't be compared with a real season; end the tournament first");
    if (plan.actualUsage) season.Execute("UPDATE LeagueRules SET FactorActualUsage = -1");
    if (plan.ownLineups) season.Execute("UPDATE LeagueRules SET IgnoreSchedLineups = -1");
    Statement played = season.Prepare("SELECT count(*), coalesce(sum(Played <> 0), 0) FROM Schedule");
    played.Step();
    if (played.Int(0) == 0) {
        const std::vector<Team> teams = LoadTeamList(season, {});
        int year = 0;
        for (const Team& team : teams) year = std::max<int>(year, team.yearID);
        ReplaceSchedule(season, BalancedSchedule(teams, year, GamesOfSchedule(teams)));
        if (GoesByRealUse(season)) PlanScheduledLineups(season);
    }
    Silence messages;
    ResetScheduleStats(season, rules, messages);
    ResetLeagueStats(season, rules, documents, messages);
    season.Close();
}

// Everything a replay's process does; it never returns to the caller's stack.
[[noreturn]] void PlayReplay(const fs::path& folder, std::uint64_t seed) {
    int code = 0;
    try {
        Database common(folder / "common.mdb"), season(folder / "season.mdb");
        season.Execute("PRAGMA synchronous = OFF");  // a copy that a crash may spoil
        SeasonWatcher nobody;
        SeasonRun run;
        run.seed = seed;
        SeasonPlayer(common, season).Run(run, nobody);
        season.Close();
    } catch (const std::exception& error) {
        code = 1;
        try {
            WriteFile(folder / "failure", error.what());
        } catch (const std::exception&) {
            code = 2;
        }
    }
    _exit(code);  // nothing of the program that forked is to be undone here
}

class ReplayCrew {
  public:
    ReplayCrew(const fs::path& folder, const ReplayPlan& plan, Progress* progress)
        : folder_(folder), plan_(plan), progress_(progress), results_(static_cast<std::size_t>(plan.replays)) {}
    ReplayCrew(const ReplayCrew&) = delete;
    ReplayCrew& operator=(const ReplayCrew&) = delete;
    ~ReplayCrew() {
        for (const auto& [process, replay] : running_) kill(process, SIGKILL);
        for (const auto& [process, replay] : running_) waitpid(process, nullptr, 0);
    }

    std::vector<SeasonFigures> Run() {
        const auto processors = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
        const auto workers = static_cast<std::size_t>(plan_.workers > 0 ? plan_.workers : processors);
        ReportProgress(progress_, "replays", 0, plan_.replays);
        while (done_ < plan_.replays) {
            while (next_ < plan_.replays && running_.size() < workers) Start(next_++);
            Await();
        }
        return std::move(results_);
    }

  private:
    fs::path FolderOf(int replay) const { return folder_ / fmt::format("{}", replay + 1); }

    void Start(int replay) {
        const fs::path folder = FolderOf(replay);
        fs::create_directory(folder);
        fs::copy_file(folder_ / "common.mdb", folder / "common.mdb");
        fs::copy_file(folder_ / "season.mdb", folder / "season.mdb");
        std::fflush(nullptr);
        const pid_t process = fork();
        if (process < 0) throw UserError("no further process can be started; try again with fewer programs running");
        if (process == 0) {
            signal(SIGINT, SIG_DFL);
            signal(SIGTERM, SIG_DFL);
            PlayReplay(folder, static_cast<std::uint64_t>(replay) + 1);
        }
        running_[process] = replay;
    }

    // One process to its end. Its figures are read and its files deleted at once, so that few copies stand at a time.
    // Only processes of our own are waited for: the program may have others.
    void Await() {
        for (;;) {
            for (const auto& [process, replay] : running_) {
                int status = 0;
                if (waitpid(process, &status, WNOHANG) != process) continue;
                const int finished = replay;
                running_.erase(process);
                Finish(finished, status);
                return;
            }
            if (replaysInterrupted != 0) throw Cancelled();
            usleep(kPause);
        }
    }

    void Finish(int replay, int status) {
        const fs::path folder = FolderOf(replay);
        if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
            const fs::path failure = folder / "failure";
            throw UserError(fmt::format("replay {} failed: {}", replay + 1,
                                        fs::exists(failure) ? ReadFile(failure) : "its process was ended"));
        }
        Database season(folder / "season.mdb");
        results_[static_cast<std::size_t>(replay)] = ReadReplayedFigures(season);
        season.Close();
        fs::remove_all(folder);
        ReportProgress(progress_, "replays", ++done_, plan_.replays);
    }

    static constexpr unsigned kPause = 5000;  // microseconds

    fs::path folder_;
    ReplayPlan plan_;
    Progress* progress_;
    std::vector<SeasonFigures> results_;
    std::map<pid_t, int> running_;  // and which replay each plays
    int next_ = 0, done_ = 0;
};

}  // namespace

std::vector<SeasonFigures> PlayReplays(Database& common, Database& season, const ReplayPlan& plan, Progress* progress) {
    const TempFolder folder;
    const InterruptGuard guard;
    CopyDatabase(common, folder.Path() / "common.mdb");
    CopyDatabase(season, folder.Path() / "season.mdb");
    PrepareSeason(folder.Path() / "season.mdb", plan, folder.Path() / "no documents");
    return ReplayCrew(folder.Path(), plan, progress).Run();
}

}  // namespace tarvane
