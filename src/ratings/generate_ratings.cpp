#include <fmt/format.h>

#include "base/rounding.h"
#include "ratings/fielding.h"
#include "ratings/generator_run.h"
#include "ratings/running.h"

namespace tarvane {

namespace {

constexpr std::string_view kRatingsCaption = "Generating Player Ratings ... Please Wait";

// One run over both tables.
struct RatingsRun {
    Database& season;
    const BaselineFinder& baselines;
    const StatisticsTable<LahmanBattingRow>& batting;
    const StatisticsTable<LahmanFieldingRow>& fielding;
    Progress* progress;
    GeneratorReport report;

    void RateAll(PlayerTable table, const std::vector<PlayerRow>& players);

  private:
    void PutPositions(RowUpdate& update, const PlayerRow& player, PlayerTable table);
};

constexpr int PositionSlots(PlayerTable table) {
    return table == PlayerTable::Batters ? 8 : 4;
}

// A value of Null leaves a slot as it is: positions beyond the list keep what they held.
std::vector<std::string> RatingColumns(PlayerTable table) {
    std::vector<std::string> columns{"runRating", "BuntRating"};
    for (int k = 1; k <= PositionSlots(table); ++k) {
        for (const std::string_view suffix : {"", "Rating", "ErrorRating"}) {
            columns.push_back(fmt::format("Pos{0}{1} = COALESCE(?, Pos{0}{1})", k, suffix));
        }
    }
    if (table == PlayerTable::Batters) {
        for (const std::string_view mark : {"CatcherIRating", "CatcherORating"}) {
            columns.push_back(fmt::format("{0} = COALESCE(?, {0})", mark));
        }
    }
    return columns;
}

void PutPosition(RowUpdate& update, const std::vector<FieldingDerivation>& entries, std::size_t slot) {
    if (slot >= entries.size()) {
        update.Put({}).Put({}).Put({});
        return;
    }
    const PositionRating& entry = entries[slot].entry;
    update.Put(Value(std::string(PositionText(entry.position))));
    update.PutInt(entry.rating).Put(Value(std::string(1, entry.errorRating)));
}

void PutMark(RowUpdate& update, bool set) {
    update.Put(set ? Value(std::int64_t{-1}) : Value());
}

void RatingsRun::PutPositions(RowUpdate& update, const PlayerRow& player, PlayerTable table) {
    const FielderKind kind = table == PlayerTable::Batters ? FielderKind::Batter : FielderKind::Pitcher;
    std::vector<FieldingDerivation> entries;
    if (const LeagueBaseline* league = baselines.Find(player)) {
        entries = RateFielding(fielding.All(player.LahmanPlayerID, player.teamID), *league, kind);
    } else {
        ++report.withoutEra;
    }
    for (int k = 0; k < PositionSlots(table); ++k) PutPosition(update, entries, static_cast<std::size_t>(k));
    if (table != PlayerTable::Batters) return;
    bool strong = false, weak = false;
    for (const FieldingDerivation& entry : entries) {
        strong = strong || entry.strongArm;
        weak = weak || entry.weakArm;
    }
    PutMark(update, strong);
    PutMark(update, weak);
}

void RatingsRun::RateAll(PlayerTable table, const std::vector<PlayerRow>& players) {
    if (players.empty()) return;
    const bool pitchers = table == PlayerTable::Pitchers;
    RowUpdate update(season, pitchers ? "KorvPitchers" : "KorvBatters", RatingColumns(table));
    int done = 0;
    for (const PlayerRow& player : players) {
        if (done++ % kReportEvery == 0) {
            ReportProgress(progress, kRatingsCaption, done, static_cast<int>(players.size()));
        }
        RunningDerivation running;  // without a line: 0 and "B"
        if (const LahmanBattingRow* line = batting.First(player.LahmanPlayerID, player.teamID)) {
            running = RateRunning(*line, pitchers);
        } else {
            ++report.withoutStatistics;
        }
        update.PutInt(running.runRating).Put(Value(std::string(1, running.BuntRating)));
        PutPositions(update, player, table);
        update.Write(player.rowid);
        ++report.written;
    }
}

}  // namespace

GeneratorReport GeneratePlayerRatings(Database& season, Database& common, const GeneratorScope& scope,
                                      Progress* progress) {
    const BaselineFinder baselines(season, common, scope, "Player Ratings", "Generate Player Ratings");
    const auto batting = ReadLahmanBatting(season);
    const auto fielding = ReadLahmanFielding(season);
    RatingsRun run{season, baselines, batting, fielding, progress, {}};
    Transaction transaction(season);
    run.RateAll(PlayerTable::Batters, PlayersInScope(season, PlayerTable::Batters, scope));
    run.RateAll(PlayerTable::Pitchers, PlayersInScope(season, PlayerTable::Pitchers, scope));
    transaction.Commit();
    return run.report;
}

double MeanPAFactor(const std::vector<LeagueBaseline>& baselines) {
    if (baselines.empty()) return 0.95;
    double sum = 0;
    for (const LeagueBaseline& baseline : baselines) sum += baseline.PAFactor;
    return static_cast<double>(RoundHalfEven(sum / static_cast<double>(baselines.size()) * 1000)) / 1000;
}

}  // namespace tarvane
