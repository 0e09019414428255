#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "data/seasons.h"
#include "season/preparedgame.h"

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

// What an exhibition game is made of.
struct ExhibitionGame {
    std::string visitorID, homeID;  // teamID of each
    std::int32_t parkID = 0;
    PerSide<SideControl> control;  // what a computer manages
};

class Session;

// What the screens of this program need of the season store. A game's screens know no database; a test brings teams of
// its own.
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

    // The running program's databases, for the screens that work on the season itself; null in a season of a test.
    virtual Session* Store() { return nullptr; }
};

}  // namespace tarvane
