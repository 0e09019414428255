#pragma once

#include <map>
#include <string>
#include <utility>

#include "core/database.h"

namespace tarvane {

// Keeps the running streaks and the last ten results of teams as games are posted.
class StreakKeeper {
  public:
    explicit StreakKeeper(Database& season);

    // After the game's row is marked as played. A game that stands later in the schedule than all that the team has
    // played makes its streak grow, and true is given; any other has the streak worked out anew.
    bool Add(std::int32_t teamIdx, std::int32_t gameID, const std::string& gameDate, bool won);
    // Reads the tables again: what was added has been taken back.
    void Forget() { lastPlayed_.clear(); }

  private:
    using Place = std::pair<std::string, std::int64_t>;  // of a game in the schedule: date and GameID
    bool IsLatest(std::int32_t teamIdx, const Place& game);

    Database& season_;
    Statement grow_;
    std::map<std::int32_t, Place> lastPlayed_;  // of the teams met so far
};

}  // namespace tarvane
