#pragma once

#include "savegame/savefields.h"
#include "savegame/savegame.h"

namespace tarvane {

// Columns and rows of one of the score sheet's grids.
struct GridSize {
    std::int32_t columns = 0, rows = 0;
};
inline constexpr std::size_t kSheetGrids = 5;  // teams, then batters and pitchers of both sides

// The first line of a save file: who plays, how many lines of each kind follow, and where the game stands.
struct SaveHeader {
    struct Team {
        std::string fullName, shortName, teamID, imagePath;
        std::int32_t TeamIdx = 0, backClr = 0, foreClr = 0;
        std::uint8_t lineupInUse = 0;  // place among the lists, from 1; 0: none of them
        std::int16_t divIdx = 0, W = 0, L = 0;
        int batters = 0, pitchers = 0, lists = 0, batterLines = 0, fielderLines = 0, pitchersUsed = 0, resting = 0,
            realBatters = 0, realPitchers = 0;
    };
    PerSide<Team> team;
    bool DHUsed = false;
    std::int32_t ParkID = 0, GameID = 0, EraId = 0;
    std::string gameDate;  // mm/dd/yyyy, or a blank
    std::int16_t dayNumber = 0;
    std::int32_t realAB = 0, realIPOuts = 0;  // of the league
    std::array<GridSize, kSheetGrids> grid{};
};

// Tells the record. Of the state it takes what the line has: bases, scores, inning, outs, whose turn, the sheet.
void SaveHeaderRecord(SaveFields& f, SaveHeader& header, GameState& state);

// "07/04/1975" and "1975-07-04"; a blank and nothing outside the calendar. Anything else gives nothing.
std::string SavedDate(const std::string& date);
std::string DateOfSaved(const std::string& saved);

}  // namespace tarvane
