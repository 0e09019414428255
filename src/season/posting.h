#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/database.h"
#include "engine/gamedata.h"
#include "engine/gamestate.h"

namespace tarvane {

// A finished game of the schedule and what goes with it into the season.
struct GameToPost {
    std::int32_t GameID = 0;
    // Days that were taken off every rest and injury of the league because a side had no starter.
    int daysReduced = 0;
    // Names of the box score and the score sheet; a blank where none was written. One number serves both.
    std::string resultsFile1 = " ", resultsFile2 = " ";
};

struct PostingReport {
    std::vector<std::string> messages;  // rows that weren't there; what else there was stands written
    bool schedulePosted = false;
    PerSide<bool> latest{{false, false}};  // no game of this team that stands later in the schedule had been played
    bool movedMen = false;                 // rows of men who changed teams (998) were added to
    std::optional<Side> seriesWinner;      // of a tournament game: whose series it decided
};

// The only writer of season statistics. While a tournament is on (LeagueRules.TourneyMode) the tables of the tournament
// take the place of the league's: no division, no pairings, no streaks and no rows of moved men, but a series' wins and
// losses, and the bracket when it is decided. It keeps its statements from game to game: make one and post many games;
// while it lives, nobody else marks games of this season as played.
class GamePoster {
  public:
    explicit GamePoster(Database& season);
    GamePoster(const GamePoster&) = delete;
    GamePoster& operator=(const GamePoster&) = delete;
    ~GamePoster();

    // Writes teams, players, logs, fielding, schedule, pairings, rest, injuries and streaks of a game in one
    // transaction, and brings the rosters of data up to what the tables then hold (date and day of the game are those
    // of data). If anything throws, the season is as it was, but the rosters aren't: load them again.
    //
    // What is missing in the tables is reported and passed over: a team's row ends the posting of that team, a player's
    // row only his own, the schedule's row leaves the game unplayed.
    PostingReport Post(const GameToPost& game, GameData& data, const GameState& state);

  private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

}  // namespace tarvane
