#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "core/database.h"
#include "records/team.h"

namespace tarvane {

// The season's best batters kept in memory, for the same marks as FindTopBatters gives without a sort over the tables
// for each game.
class TopBatters {
  public:
    // Reads all rows of KorvBatters, or of TourneyBatters; again after rows outside the teams in memory have changed.
    void Read(Database& season, bool tourney);
    // Takes over what the records of a roster now say.
    void Update(const TeamRoster& roster);
    // The marks of a roster's men by index; teamDecisions is the sum of W and L over so many teams.
    std::vector<bool> Of(const TeamRoster& roster, std::int64_t teamDecisions, std::int64_t teams) const;

  private:
    struct Man {
        std::int32_t playerID = 0;
        double Avg = 0, SLG = 0;
        std::int64_t HR = 0, appearances = 0;
        bool gone = false;  // no longer with his team
    };
    template <class Figure>
    void MarkBest(std::int64_t least, bool presentOnly, Figure figure, std::vector<bool>& marks) const;

    bool tourney_ = false;
    std::vector<Man> men_;
    std::unordered_map<std::int32_t, std::size_t> index_;
};

}  // namespace tarvane
