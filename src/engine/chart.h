#pragma once

#include <array>
#include <cstdint>

#include "engine/result.h"
#include "records/cell.h"
#include "records/gamecharts.h"
#include "records/position.h"

namespace tarvane {

enum class CellColor : std::uint8_t { Green, Red, Blue, Yellow, White, Other };

// A stored colour word; -1 and 65535 are both Yellow, an unknown word is Other.
CellColor CellColorFromWord(std::int32_t word);
std::int32_t ColorWord(CellColor color);

// The texts that some rule reads. Everything else is Other and reads as the table of its sheet says for unknown text.
enum class CellText : std::uint8_t {
    Blank, Result, D, K, H, X, HRReduced, TripleReduced, TwoK, Star, I, Number, PositionName, InsideCorner, InfieldMiddle, OutfieldPull, Tbd, Other
};

// A chart cell parsed once: text class, the result it names (for CellText::Result), a position or a number where the
// cell is one, and its colour. Rolls read these; no text is compared during a game.
struct Cell {
    CellText text = CellText::Blank;
    CellColor color = CellColor::Green;
    Result result = Result::None;
    Position position = Position::None;
    std::int16_t number = 0;
    friend bool operator==(const Cell&, const Cell&) = default;
};

using Chart = std::array<Cell, kChartRows>;  // index is ChartRoll - 10

Cell CompileCell(const ChartCell& cell);
Chart CompileChart(const ChartCells& cells);

// The game charts in the engine's form. A table with fewer rows than its chart leaves blank white cells.
struct CompiledGameCharts {
    std::array<Chart, 6> MgrDec{};
    std::array<double, 6> MgrDecChance{};
    std::array<Chart, 4> Bunt{};
    std::array<double, 4> BuntChance{};
    std::array<Chart, 18> StolenBase{};
    std::array<double, 18> StolenBaseChance{};
    std::array<std::array<bool, 5>, 23> ErrorStands{};  // [letter row][ErrorColumn - 1]: the error stands
    std::array<Chart, 7> Fielding{};
    Chart YellowXBasic{};
    std::array<Chart, 3> YellowXInjuries{};
};

// Throws std::length_error if a table has more rows than its chart.
CompiledGameCharts CompileGameCharts(const GameCharts& charts);

// The place of an error letter in the list of 23 (0 for A to 22 for Z); any other letter reads as V, 18.
int ErrorRatingRowOf(char letter);

}  // namespace tarvane
