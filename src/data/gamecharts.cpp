#include "data/gamecharts.h"

#include <fmt/core.h>

#include "data/rowreader.h"

namespace tarvane {

namespace {

// How many rows a chart has, and its key columns; the engine goes by the rows' numbers.
struct ChartTable {
    std::string_view name;
    std::size_t rows;
    std::string_view key, rating;
    bool hasChance;
};
constexpr ChartTable kMgrDec{"KorvMgrDecChart", 6, "RunRating", "", true};
constexpr ChartTable kBunt{"KorvBuntChart", 4, "BuntType", "BuntRating", true};
constexpr ChartTable kSteal{"KorvStolenBaseChart", 18, "SBType", "RunRating", true};
constexpr ChartTable kYellowBasic{"KorvYellowXChartBasic", 1, "", "", false};
constexpr ChartTable kYellowInjuries{"KorvYellowXChartInjuries", 3, "YellowXRow", "", false};
constexpr std::size_t kFieldingRows = 7;
constexpr std::size_t kErrorRows = 23;

void CheckRows(const Database& common, std::string_view table, std::size_t count, std::size_t limit) {
    if (count > limit)
        throw DatabaseError(DatabaseError::kOverflow,
                            fmt::format("{}: the table {} has more rows than the {} of its chart.",
                                        common.Path().string(), table, limit));
}

std::vector<GameChartRow> LoadChart(Database& common, const ChartTable& table) {
    RowReader row(common.Prepare(fmt::format("SELECT * FROM {} ORDER BY rowid", table.name)));
    std::vector<GameChartRow> rows;
    while (row.Next()) {
        CheckRows(common, table.name, rows.size() + 1, table.rows);
        GameChartRow& chart = rows.emplace_back();
        if (!table.key.empty()) chart.key = row.Text(table.key);
        if (!table.rating.empty()) chart.rating = row.Text(table.rating);
        row.Cells("Roll", chart.cell);
        if (table.hasChance) chart.SuccessChance = row.Double("SuccessChance");
    }
    return rows;
}

std::vector<GameChartRow> LoadFieldingChart(Database& common) {
    RowReader row(common.Prepare("SELECT * FROM KorvFieldingDetermination ORDER BY rowid"));
    std::vector<GameChartRow> rows;
    while (row.Next()) {
        CheckRows(common, "KorvFieldingDetermination", rows.size() + 1, kFieldingRows);
        GameChartRow& chart = rows.emplace_back();
        chart.key = row.Text("FieldingPlay");
        int roll = kFirstRoll;
        for (ChartCell& cell : chart.cell) cell.text = row.TextOf("Roll", roll++);
    }
    return rows;
}

std::vector<ErrorRatingRow> LoadErrorRatingChart(Database& common) {
    RowReader row(common.Prepare("SELECT * FROM KorvErrorRating ORDER BY ErrorRating, rowid"));
    std::vector<ErrorRatingRow> rows;
    while (row.Next()) {
        CheckRows(common, "KorvErrorRating", rows.size() + 1, kErrorRows);
        ErrorRatingRow& rating = rows.emplace_back();
        rating.ErrorRating = row.Text("ErrorRating");
        int roll = 0;
        for (ChartCell& cell : rating.cell) {
            cell.text = row.TextOf("Roll", ++roll);
            cell.color = row.NumberOf<std::int32_t>("Roll", roll, "Color");
        }
    }
    return rows;
}

}  // namespace

GameCharts LoadGameCharts(Database& common) {
    GameCharts charts;
    charts.MgrDec = LoadChart(common, kMgrDec);
    charts.Bunt = LoadChart(common, kBunt);
    charts.StolenBase = LoadChart(common, kSteal);
    charts.ErrorRating = LoadErrorRatingChart(common);
    charts.Fielding = LoadFieldingChart(common);
    charts.YellowXInjuries = LoadChart(common, kYellowInjuries);
    charts.YellowXBasic = LoadChart(common, kYellowBasic);
    return charts;
}

}  // namespace tarvane
