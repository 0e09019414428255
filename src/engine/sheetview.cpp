#include <fmt/format.h>

#include "engine/sheets.h"

namespace tarvane {

namespace {

ChartCells BlankCells() {
    ChartCells cells;
    for (ChartCell& cell : cells) cell.color = kWhiteWord;
    return cells;
}

void AddColumn(SheetView& view, const std::string& head, const ChartCells& cells) {
    const auto column = static_cast<std::size_t>(view.columns++);
    view.head[column] = head;
    view.cell[column] = cells;
}

// The cells that a defensive era puts in the place of the pitcher's own for the rolls 10 to 15.
void LayEraCells(const GameData& data, int drTotal, ChartCells& cells) {
    const int total = drTotal < 0 ? 0 : drTotal;
    for (const DefensiveEraRange& range : data.defensiveEra.range) {
        if (total < range.StartRange || total > range.EndRange) continue;
        for (std::size_t i = 0; i < range.cell.size(); ++i) cells[i] = range.cell[i];
        return;
    }
}

const Pitcher* PitcherOf(const GameData& data, const GameState& state) {
    const PlayerRef man = state.Fielding().pitcher;
    return man.Nobody() ? nullptr : &data[state.FieldingSide()].roster.pitchers[static_cast<std::size_t>(man.index)];
}

void ShowPitcher(const GameData& data, const GameState& state, SheetView& view) {
    ChartCells cells = BlankCells();
    if (const Pitcher* pitcher = PitcherOf(data, state)) {
        view.title = fmt::format("{} ({})", pitcher->playerName, pitcher->pitcherType);
        cells = pitcher->pitch;
        if (data.rules.DefensiveErasInForce()) LayEraCells(data, state.Fielding().DRTotal, cells);
    }
    AddColumn(view, view.title, cells);
    if (data.rules.UseParkEffects)
        AddColumn(view, fmt::format("{} {}", data.park.yearID, data.park.Stadium), data.park.Roll);
    if (data.rules.UseYearEffects) AddColumn(view, data.year.EraName + " Year Effect", data.year.Roll);
}

void ShowStamina(const GameData& data, const GameState& state, SheetView& view) {
    ShowPitcher(data, state, view);
    for (std::size_t column = 0; column < view.cell.size(); ++column)
        for (ChartCell& cell : view.cell[column]) cell.color = kWhiteWord;
    view.extraLabel31 = "T";
    view.extraText31 = fmt::format("{}", state.Fielding().PitcherStamina);
    view.extraLabel32 = "2";
    view.extraText32 = fmt::format("{}", state.Fielding().PitcherSecondWind);
}

void ShowBatter(const GameData& data, const GameState& state, SheetView& view) {
    const PlayerRef man = state.AtBat().player;
    if (man.Nobody()) return AddColumn(view, "", BlankCells());
    const TeamRoster& roster = data[state.BattingSide].roster;
    const auto index = static_cast<std::size_t>(man.index);
    if (man.type == 'P') {
        view.title = roster.pitchers[index].playerName;
        return AddColumn(view, view.title, roster.pitchers[index].Bat);
    }
    const Batter& batter = roster.batters[index];
    const bool right = state.Fielding().PitcherThrows == kRightHand;
    view.title = batter.playerName;
    view.extraLabel31 = right ? "vsR" : "vsL";
    AddColumn(view, view.title, right ? batter.vsR : batter.vsL);
}

void ShowRatingTest(const GameData& data, const GameState& state, SheetView& view) {
    ShowBatter(data, state, view);
    view.extraLabel32 = state.play.PitcherSheetEffect == SheetEffect::BB ? "BB" : "SO";
    view.extraText32 = fmt::format("{}", state.play.BBSORating);
}

// One row of a game chart, with the rating by which it was picked below it.
void ShowRow(const std::vector<GameChartRow>& rows, int row, const std::string& title, SheetView& view) {
    view.title = title;
    const bool there = row >= 1 && static_cast<std::size_t>(row) <= rows.size();
    AddColumn(view, title, there ? rows[static_cast<std::size_t>(row) - 1].cell : BlankCells());
    view.extraLabel31 = "RT";
    if (!there) return;
    const GameChartRow& picked = rows[static_cast<std::size_t>(row) - 1];
    view.extraText31 = picked.rating.empty() ? picked.key : picked.rating;
}

std::string StealTitle(char target) {
    if (target == 'H') return "Steal of Home Chart";
    return target == '3' ? "Steal of 3B Chart" : "Steal of 2B Chart";
}

void ShowYellowX(const GameData& data, SheetView& view) {
    view.title = "YellowX Basic";
    const auto& rows = data.charts.YellowXBasic;
    AddColumn(view, view.title, rows.empty() ? BlankCells() : rows.front().cell);
}

void ShowYellowXInjuries(const GameData& data, SheetView& view) {
    const auto& rows = data.charts.YellowXInjuries;
    for (std::size_t i = 0; i < 3; ++i)
        AddColumn(view, i < rows.size() ? rows[i].key : "", i < rows.size() ? rows[i].cell : BlankCells());
    view.title = view.head[0];
}

}  // namespace

SheetView MakeSheetView(const GameData& data, const GameState& state) {
    SheetView view;
    view.columns = 0;
    for (ChartCells& cells : view.cell) cells = BlankCells();
    const bool squeeze = state.play.buntType == BuntType::Squeeze;
    switch (state.sheet) {
        case SheetCode::None: AddColumn(view, "", BlankCells()); break;
        case SheetCode::P: ShowPitcher(data, state, view); break;
        case SheetCode::PS: ShowStamina(data, state, view); break;
        case SheetCode::B: ShowBatter(data, state, view); break;
        case SheetCode::BBSO: ShowRatingTest(data, state, view); break;
        case SheetCode::Bt:
            ShowRow(data.charts.Bunt, state.play.BuntRow, squeeze ? "Suicide Squeeze Chart" : "Sacrifice Bunt Chart",
                    view);
            break;
        case SheetCode::S:
            ShowRow(data.charts.StolenBase, state.play.StealRow, StealTitle(state.play.StealTarget), view);
            break;
        case SheetCode::M: ShowRow(data.charts.MgrDec, state.play.MDRow, "Mgr Decision Chart", view); break;
        case SheetCode::X: ShowYellowX(data, view); break;
        case SheetCode::XI: ShowYellowXInjuries(data, view); break;
    }
    return view;
}

}  // namespace tarvane
