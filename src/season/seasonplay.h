#pragma once

#include <memory>
#include <optional>

#include "season/posting.h"
#include "season/schedulesetup.h"

namespace tarvane {

// Who watches a season being played: a screen, a terminal, a writer of box scores.
class SeasonWatcher {
  public:
    virtual ~SeasonWatcher() = default;
    // Before each game; done of total games are posted. False ends the run here, after the game that was under way.
    virtual bool GoOn(const ScheduledGame& next, long done, long total);
    // Hears the plays of the next game; null for nobody.
    virtual GameListener* Listener() { return nullptr; }
    // The game is over and not yet posted: the place to write its documents and to name them in posting. They go with
    // the game only once Posted is called.
    virtual void GameOver(const GameSetup& setup, const GameState& state, GameToPost& posting);
    virtual void Posted(const ScheduledGame& game, const GameSetup& setup, const GameState& state,
                        const PostingReport& report);
};

// A part of a season.
struct SeasonRun {
    std::uint64_t seed = 1;     // with the GameID it gives every game's dice: the same in however many runs
    std::optional<long> games;  // at most so many; nothing: all
    std::string through;        // last date, yyyy-mm-dd; empty: all
};

// Throws UserError for a last date that is none.
void CheckRun(const SeasonRun& run);

struct SeasonRunResult {
    long played = 0;
    bool stopped = false;  // by the watcher
};

// Plays the unplayed games of a season, or of the tournament that is on, in their order, both sides by computer
// managers, and posts each. What is played depends on the seed and on where the season stands alone: a run that was
// stopped, or killed, and taken up again gives the season that one run gives.
class SeasonPlayer {
  public:
    SeasonPlayer(Database& common, Database& season, PictureFolders pictures = {});
    ~SeasonPlayer();

    // Throws UserError for a game that can't be played; the games before it stand posted.
    SeasonRunResult Run(const SeasonRun& run, SeasonWatcher& watcher);

  private:
    // True if the game decided a series of a tournament.
    bool PlayOne(const ScheduledGame& game, std::uint64_t seed, SeasonWatcher& watcher);

    Database& common_;
    Database& season_;
    PictureFolders pictures_;
    std::unique_ptr<ScheduleSetup> setup_;  // none before the first game and after a failure
    std::unique_ptr<GamePoster> poster_;
};

}  // namespace tarvane
