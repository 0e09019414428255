#pragma once

#include "savegame/saveheader.h"

namespace tarvane {

// One grid of the score sheet, cell by cell, its heads as the first row.
struct SheetGrid {
    GridSize size;
    std::vector<std::string> cells;  // row by row
    const std::string& At(int row, int column) const {
        return cells[static_cast<std::size_t>(row * size.columns + column)];
    }
};
using SheetGrids = std::array<SheetGrid, kSheetGrids>;

// The score sheet as its screen shows it.
SheetGrids MakeSheetGrids(const SavedGame& game);

void SaveGrid(SaveFields& f, SheetGrid& grid, const std::string& name);

// Who stands in the rows of a side's grid, found by slot and name among the box score's lines.
std::vector<ScoreSheetRow> FindSheetMen(const SaveFields& f, const SavedGame& game, const SheetGrid& grid, Side side);

// Makes the score sheet of the grids again, with the men of each row. Fails if they don't fit.
void RebuildSheet(const SaveFields& f, SavedGame& game, const SheetGrids& grids,
                  const PerSide<std::vector<ScoreSheetRow>>& men);

}  // namespace tarvane
