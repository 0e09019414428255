#include "savegame/sheetgrids.h"

#include <fmt/format.h>

#include <algorithm>

#include "base/error.h"
#include "engine/availability.h"

namespace tarvane {

namespace {

constexpr int kInningsFrom = 2;  // columns before them: name and position

std::size_t BattersGrid(Side side) {
    return side == Side::Visitor ? 1 : 3;
}

SheetGrid GridOf(const DocumentTable& table) {
    SheetGrid grid;
    grid.size = {static_cast<std::int32_t>(table.heads.size()), static_cast<std::int32_t>(table.rows.size() + 1)};
    grid.cells = table.heads;
    for (const auto& row : table.rows) grid.cells.insert(grid.cells.end(), row.begin(), row.end());
    return grid;
}

// A man whose line of the box score stands in the slot and who isn't taken yet; else any man of that name.
PlayerRef FindMan(const GameData& data, const GameState& state, Side side, int slot, std::string_view name,
                  const std::vector<ScoreSheetRow>& taken) {
    const BoxLines& box = state[side].box;
    for (std::size_t i = 0; i < box.BatterLineCount; ++i) {
        const PlayerRef man = box.batter[i].player;
        if (box.batter[i].Slot != slot || PlayerName(data[side], man) != name) continue;
        if (std::none_of(taken.begin(), taken.end(), [&](const ScoreSheetRow& row) { return row.player == man; }))
            return man;
    }
    const TeamRoster& roster = data[side].roster;
    for (std::size_t i = 0; i < roster.batters.size(); ++i)
        if (roster.batters[i].playerName == name) return {'B', static_cast<std::int16_t>(i)};
    for (std::size_t i = 0; i < roster.pitchers.size(); ++i)
        if (roster.pitchers[i].playerName == name) return {'P', static_cast<std::int16_t>(i)};
    return {};
}

}  // namespace

SheetGrids MakeSheetGrids(const SavedGame& game) {
    const BoxDocument box = MakeBoxDocument(game.game.data, game.state);
    SheetGrids grids;
    grids[0] = GridOf(box.lineScore);
    for (const Side side : kBothSides) {
        const std::size_t at = BattersGrid(side);
        grids[at] = GridOf(ScoreSheetTable(game.sheet, box, side));
        grids[at + 1] = GridOf(box.side[side].pitching);
    }
    return grids;
}

void SaveGrid(SaveFields& f, SheetGrid& grid, const std::string& name) {
    grid.cells.resize(static_cast<std::size_t>(grid.size.columns) * static_cast<std::size_t>(grid.size.rows));
    for (std::string& cell : grid.cells) {
        f.Begin(name);
        f.Text("a cell", cell);
        f.End();
    }
}

// A man who came in later in a slot is shown with two blanks before his name.
std::vector<ScoreSheetRow> FindSheetMen(const SaveFields& f, const SavedGame& game, const SheetGrid& grid, Side side) {
    std::vector<ScoreSheetRow> men;
    std::uint8_t slot = 0;
    for (int row = 1; grid.size.columns > 0 && row < grid.size.rows; ++row) {
        const std::string& cell = grid.At(row, 0);
        const bool later = cell.substr(0, 2) == "  ";
        if (!later) ++slot;
        ScoreSheetRow man;
        man.slot = slot;
        man.player = FindMan(game.game.data, game.state, side, slot, later ? cell.substr(2) : cell, men);
        if (man.player.Nobody() || slot < 1 || slot > 9)
            f.Fail(fmt::format("row {} of the {} batters' score sheet names nobody of the team", row,
                               side == Side::Visitor ? "visitor" : "home"));
        men.push_back(std::move(man));
    }
    return men;
}

void RebuildSheet(const SaveFields& f, SavedGame& game, const SheetGrids& grids,
                  const PerSide<std::vector<ScoreSheetRow>>& men) {
    std::string lines;
    for (const Side side : kBothSides) {
        const SheetGrid& grid = grids[BattersGrid(side)];
        if (static_cast<int>(men[side].size()) != std::max(0, grid.size.rows - 1) ||
            (grid.size.rows > 1 && grid.size.columns < kInningsFrom))
            f.Fail("the score sheet's rows aren't those of its men");
        for (int row = 1; row < grid.size.rows; ++row) {
            const ScoreSheetRow& man = men[side][static_cast<std::size_t>(row - 1)];
            int innings = grid.size.columns;
            while (innings > kInningsFrom && grid.At(row, innings - 1).empty()) --innings;
            lines += fmt::format("{}\t{}\t{}\t{}\t{}", SideLetter(side), man.slot, man.player.type, man.player.index,
                                 grid.At(row, 1));
            for (int column = kInningsFrom; column < innings; ++column) lines += '\t' + grid.At(row, column);
            lines += '\n';
        }
    }
    try {
        game.sheet.Read(game.game.data, lines);
    } catch (const UserError&) {
        f.Fail("a row of the score sheet can't be read");
    }
}

}  // namespace tarvane
