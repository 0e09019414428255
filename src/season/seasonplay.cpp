#include "season/seasonplay.h"

#include <fmt/core.h>

#include <algorithm>

#include "base/error.h"
#include "engine/game.h"
#include "season/calendar.h"

namespace tarvane {

namespace {

// One of the three sources of chance of a game: its dice and its two managers.
std::uint64_t SeedFor(std::uint64_t seasonSeed, std::int32_t gameID, std::uint64_t source) {
    constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15;
    Random mixed(seasonSeed);
    const std::uint64_t own = kSpread * static_cast<std::uint32_t>(gameID) + source;
    Random game(mixed.Next() ^ own);
    return game.Next();
}

}  // namespace

bool SeasonWatcher::GoOn(const ScheduledGame&, long, long) {
    return true;
}
void SeasonWatcher::GameOver(const GameSetup&, const GameState&, GameToPost&) {}
void SeasonWatcher::Posted(const ScheduledGame&, const GameSetup&, const GameState&, const PostingReport&) {}

void CheckRun(const SeasonRun& run) {
    if (!run.through.empty() && !DayCount(run.through))
        throw UserError(fmt::format("\"{}\" is no date: write yyyy-mm-dd.", run.through));
}

SeasonPlayer::SeasonPlayer(Database& common, Database& season, PictureFolders pictures)
    : common_(common), season_(season), pictures_(std::move(pictures)) {}
SeasonPlayer::~SeasonPlayer() = default;

SeasonRunResult SeasonPlayer::Run(const SeasonRun& run, SeasonWatcher& watcher) {
    CheckRun(run);
    SeasonRunResult result;
    const auto ahead = [&] {
        std::vector<ScheduledGame> games = UnplayedGames(season_, run.through);
        if (run.games) games.resize(std::min(games.size(), static_cast<std::size_t>(*run.games - result.played)));
        return games;
    };
    std::vector<ScheduledGame> games = ahead();
    for (std::size_t next = 0; next < games.size();) {
        if (!watcher.GoOn(games[next], result.played, result.played + static_cast<long>(games.size() - next))) {
            result.stopped = true;
            break;
        }
        const bool seriesEnded = PlayOne(games[next], run.seed, watcher);
        ++result.played;
        ++next;
        if (!seriesEnded) continue;
        // Its other games aren't needed, and those of the next series have their teams.
        games = ahead();
        next = 0;
    }
    return result;
}

bool SeasonPlayer::PlayOne(const ScheduledGame& game, std::uint64_t seed, SeasonWatcher& watcher) {
    if (!setup_) {
        setup_ = std::make_unique<ScheduleSetup>(common_, season_, pictures_);
        poster_ = std::make_unique<GamePoster>(season_);
    }
    // Whatever fails leaves records in memory that the tables don't hold: the next game loads all anew.
    std::unique_ptr<ScheduleSetup> teams = std::move(setup_);
    GameSetup& setup = teams->SetUp(game);
    GameState state;
    const Reject reject = StartGame(setup.data, setup.lineup[Side::Visitor], setup.lineup[Side::Home], state);
    if (reject != Reject::None)
        throw UserError(fmt::format("Game {} of {} can't begin: {}", game.GameID, game.GameDate, RejectText(reject)));
    state.computer = setup.control;
    Random dice(SeedFor(seed, game.GameID, 0));
    ComputerManager visitor(Side::Visitor, Random(SeedFor(seed, game.GameID, 1)), setup.knowledge[Side::Visitor]);
    ComputerManager home(Side::Home, Random(SeedFor(seed, game.GameID, 2)), setup.knowledge[Side::Home]);
    PlayOut(setup.data, state, dice, visitor, home, watcher.Listener());

    GameToPost posting;
    posting.GameID = game.GameID;
    posting.daysReduced = teams->DaysReduced();
    watcher.GameOver(setup, state, posting);
    const PostingReport report = poster_->Post(posting, setup.data, state);
    watcher.Posted(game, setup, state, report);
    teams->TakeBack(report.latest, state, report.movedMen);
    setup_ = std::move(teams);
    return report.seriesWinner.has_value();
}

}  // namespace tarvane
