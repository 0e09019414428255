#include "ratings/generator_run.h"

namespace tarvane {

namespace {

constexpr std::string_view kCellsCaption = "Generating Batter and Pitcher Cells ... Please Wait";

std::vector<std::string> BatterCellColumns() {
    std::vector<std::string> columns{"BBRating", "SORating"};
    for (const std::string_view side : {"vsL", "vsR"}) {
        AddCellColumns(columns, side);
        AddChanceColumns(columns, side);
    }
    return columns;
}

void WriteBatter(RowUpdate& update, const BatterDerivation& d, std::int64_t rowid) {
    update.PutInt(d.control.BBRating).PutInt(d.control.SORating);
    for (const BattingChart* chart : {&d.charts.vsL, &d.charts.vsR}) {
        PutCells(update, chart->cells);
        PutChances(update, chart->chances);
    }
    update.Write(rowid);
}

std::vector<std::string> PitcherCellColumns() {
    std::vector<std::string> columns;
    AddCellColumns(columns, "pitch");
    for (const char* name :
         {"SOChance", "OutChance", "RunnerAdvanceChance", "BBorHBPChance", "HRReduceChance", "HRIncreaseChance",
          "AllowHitChance", "GreenKChance", "BBRating", "SORating", "tiredRating", "secondWindRating"}) {
        columns.emplace_back(name);
    }
    AddCellColumns(columns, "Bat");
    AddChanceColumns(columns, "Bat");
    return columns;
}

void WritePitcher(RowUpdate& update, const PitcherDerivation& d, std::int64_t rowid) {
    PutCells(update, d.chart.cells);
    const PitchingChances& c = d.pitching.chances;
    for (const double chance :
         {c.SO, c.Out, c.RunnerAdvance, c.BBorHBP, c.HRReduce, c.HRIncrease, c.AllowHit, c.GreenK}) {
        update.Put(Value(chance));
    }
    update.PutInt(d.control.BBRating).PutInt(d.control.SORating);
    update.PutInt(d.pitching.tiredRating).PutInt(d.pitching.secondWindRating);
    PutCells(update, d.batChart.cells);
    PutChances(update, d.batChart.chances);
    update.Write(rowid);
}

}  // namespace

GeneratorReport GenerateBatterCells(Database& season, Database& common, const GeneratorScope& scope, Random& random,
                                    Progress* progress) {
    const BaselineFinder baselines(season, common, scope, "Batter Cells", "Generate Batter Cells");
    const auto lines = ReadLahmanBatting(season);
    const std::vector<PlayerRow> players = PlayersInScope(season, PlayerTable::Batters, scope);

    GeneratorReport report;
    Transaction transaction(season);
    RowUpdate update(season, "KorvBatters", BatterCellColumns());
    int done = 0;
    for (const PlayerRow& player : players) {
        if (done++ % kReportEvery == 0) ReportProgress(progress, kCellsCaption, done, static_cast<int>(players.size()));
        const LahmanBattingRow* line = lines.First(player.LahmanPlayerID, player.teamID);
        const LeagueBaseline* league = baselines.Find(player);
        report.withoutStatistics += line == nullptr ? 1 : 0;
        report.withoutEra += league == nullptr ? 1 : 0;
        if (line == nullptr || league == nullptr) continue;
        WriteBatter(update, DeriveBatter(*line, *league, scope.settings, player.runRating, random), player.rowid);
        ++report.written;
    }
    transaction.Commit();
    return report;
}

GeneratorReport GeneratePitcherCells(Database& season, Database& common, const GeneratorScope& scope, Random& random,
                                     Progress* progress) {
    const BaselineFinder baselines(season, common, scope, "Pitcher Cells", "Generate Pitcher Cells");
    const auto pitching = ReadLahmanPitching(season);
    const auto batting = ReadLahmanBatting(season);
    const std::vector<PlayerRow> players = PlayersInScope(season, PlayerTable::Pitchers, scope);

    GeneratorReport report;
    Transaction transaction(season);
    RowUpdate update(season, "KorvPitchers", PitcherCellColumns());
    int done = 0;
    for (const PlayerRow& player : players) {
        if (done++ % kReportEvery == 0) ReportProgress(progress, kCellsCaption, done, static_cast<int>(players.size()));
        const LahmanPitchingRow* line = pitching.First(player.LahmanPlayerID, player.teamID);
        const LeagueBaseline* league = baselines.Find(player);
        report.withoutStatistics += line == nullptr ? 1 : 0;
        report.withoutEra += league == nullptr ? 1 : 0;
        if (line == nullptr || league == nullptr) continue;
        const LahmanBattingRow* atBat = batting.First(player.LahmanPlayerID, player.teamID);
        WritePitcher(update, DerivePitcher(*line, atBat, *league, scope.settings, random), player.rowid);
        ++report.written;
    }
    transaction.Commit();
    return report;
}

}  // namespace tarvane
