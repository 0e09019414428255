#pragma once

#include <array>
#include <string>
#include <vector>

#include "records/cell.h"

namespace tarvane {

// A row of one of the game chart tables: its key texts, thirty cells, and the chance of success shown to a manager
// (0 to 1; 0 where the table has none). The engine goes by row numbers, not by keys.
struct GameChartRow {
    std::string key;      // RunRating, SBType, BuntType, YellowXRow or FieldingPlay
    std::string rating;   // the second key where there is one: RunRating or BuntRating
    ChartCells cell{};
    double SuccessChance = 0;
};

// A row of KorvErrorRating: a letter and its five cells. A green cell cancels the error.
struct ErrorRatingRow {
    std::string ErrorRating;
    std::array<ChartCell, 5> cell{};
};

// The seven charts of the common database on which everything but the players' own sheets is rolled.
struct GameCharts {
    std::vector<GameChartRow> MgrDec;       // 6 rows: run rating 0 to 5
    std::vector<GameChartRow> Bunt;         // 4 rows: sacrifice A, B, squeeze A, B
    std::vector<GameChartRow> StolenBase;   // 18 rows: second, third, home, each run rating 0 to 5
    std::vector<ErrorRatingRow> ErrorRating;  // 23 rows, by letter
    std::vector<GameChartRow> Fielding;     // 7 rows by kind of play; texts only
    std::vector<GameChartRow> YellowXBasic;   // 1 row
    std::vector<GameChartRow> YellowXInjuries;  // 3 rows: what, whom, how many days
};

}  // namespace tarvane
