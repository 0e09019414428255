#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "data/seasons.h"
#include "ratings/lahman_records.h"
#include "season/gamesetup.h"

namespace tarvane {

struct TeamEntry {
    std::int32_t TeamIdx = 0;
    std::string teamID, fullName;
    std::int32_t ParkID = 0;
    bool ComputerManaged = false, AlwaysHumanManaged = false;
};

struct ParkEntry {
    std::int32_t parkID = 0;
    std::string Stadium;
    int yearID = 0;
};

// A game about to begin, with what its men did in the real season where that is known.
struct PreparedGame : GameSetup {
    PerSide<LahmanRecordSet> real;
};
// It outlives the screen that plays it.
using GamePtr = std::shared_ptr<const PreparedGame>;

// What an exhibition game is made of.
struct ExhibitionGame {
    std::string visitorID, homeID;  // teamID of each
    std::int32_t parkID = 0;
    PerSide<SideControl> control;  // what a computer manages
};

// What the screens of this program need of the season store. The screens know no database; a test brings teams of its
// own.
class SeasonAccess {
  public:
    virtual ~SeasonAccess() = default;

    virtual std::vector<SeasonEntry> Seasons() = 0;
    // The name of the open season; empty when there is none.
    virtual std::string ActiveSeason() const = 0;
    // Makes a season active; the answer is the warning to show, empty when all went well.
    virtual std::string SetActive(std::int64_t LeagueID) = 0;
    virtual LeagueRules Rules() const = 0;

    virtual std::vector<TeamEntry> Teams() = 0;
    virtual std::vector<ParkEntry> Parks() = 0;  // by year, then stadium
    // The two teams may be the same. Throws UserError, with what to do, if the game can't be played.
    virtual GamePtr Exhibition(const ExhibitionGame& game) = 0;
};

}  // namespace tarvane
