#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "base/side.h"
#include "engine/chart.h"
#include "records/park.h"
#include "records/rules.h"
#include "records/team.h"

namespace tarvane {

// The charts of one roster entry in the engine's form.
struct BatterCharts {
    Chart vsL{}, vsR{};
    std::uint8_t BBRating = 40, SORating = 40;  // 10 to 40; 40: a walk or strikeout stands without a test
};
struct PitcherCharts {
    Chart pitch{}, Bat{};
    bool HasOutCells = false;                   // at least one red or blue cell on his pitching chart
    std::uint8_t BBRating = 40, SORating = 40;  // his own at bat
};

// One team of a game: its roster as loaded and the charts compiled from it, index for index.
// Who a record is, as numbers that are quick to compare: equal ones mean an equal Lahman key, or an equal name. 0: none.
struct ManIdentity {
    std::int32_t key = 0, name = 0;
};

struct TeamData {
    TeamRoster roster;
    std::vector<BatterCharts> batterCharts;
    std::vector<PitcherCharts> pitcherCharts;
    std::vector<ManIdentity> batterIdentity, pitcherIdentity;

    // Where a record stands in the roster; -1 if it isn't there.
    int BatterIndex(std::int32_t playerID) const;
    int PitcherIndex(std::int32_t playerID) const;
};

// Everything that doesn't change during a game.
struct GameData {
    PerSide<TeamData> team;
    LeagueRules rules;
    Ballpark park;
    YearEffects year;
    DefensiveEra defensiveEra;
    GameCharts charts;  // as stored, for screens
    CompiledGameCharts compiled;
    Chart parkChart{}, yearChart{};
    std::array<std::array<Cell, 6>, 18> eraCells{};  // rolls 10 to 15 of each range of the defensive era
    bool DHUsed = false;
    std::int16_t dayNumber = 0;  // day of the year of the game's date
    std::string gameDate;        // as the tables hold it

    const TeamData& operator[](Side side) const { return team[side]; }
};

// Fills every compiled member from the stored ones; call once after loading. Under defensive eras a pitcher's cells for
// rolls 10 to 15 come from the era at the table, not from his chart.
void CompileGameData(GameData& data);
// Of it, who the records are: for line-ups alone.
void CompileIdentities(TeamData& team);

}  // namespace tarvane
