#include "season/resttables.h"

#include <fmt/core.h>

#include "base/error.h"

namespace tarvane {

namespace {

const char* BatterTable(bool tourney) {
    return tourney ? "TourneyBatters" : "KorvBatters";
}
const char* PitcherTable(bool tourney) {
    return tourney ? "TourneyPitchers" : "KorvPitchers";
}

void DemandRows(Database& season, const char* table, const char* kind) {
    if (!season.Prepare(fmt::format("SELECT 1 FROM {} LIMIT 1", table)).Step())
        throw UserError(fmt::format("{} database error - contact Tarvane", kind));
}

void LowerColumn(Database& season, const char* table, const char* column) {
    season.Execute(fmt::format("UPDATE {0} SET {1} = {1} - 1 WHERE {1} > 0", table, column));
}

constexpr const char* kInjuryColumns = "InjuryDate = ?, InjuryNbrDate = ?, InjuredDays = ?, InjuredDaysRemaining = ?";

int BindInjury(Statement& update, const Injury& injury) {
    update.Reset();
    update.Bind(1, injury.InjuryDate);
    update.Bind(2, std::int64_t{injury.InjuryNbrDate});
    update.Bind(3, std::int64_t{injury.InjuredDays});
    update.Bind(4, std::int64_t{injury.InjuredDaysRemaining});
    return 5;
}

}  // namespace

void ReduceRestAndInjuries(Database& season, bool tourney) {
    DemandRows(season, BatterTable(tourney), "Batter");
    LowerColumn(season, BatterTable(tourney), "InjuredDaysRemaining");
    DemandRows(season, PitcherTable(tourney), "Pitcher");
    LowerColumn(season, PitcherTable(tourney), "PitcherRestDays");
    LowerColumn(season, PitcherTable(tourney), "InjuredDaysRemaining");
}

void SaveRestAndInjuries(Database& season, const TeamRoster& roster, bool tourney) {
    Transaction transaction(season);
    Statement batters =
        season.Prepare(fmt::format("UPDATE {} SET {} WHERE playerID = ?", BatterTable(tourney), kInjuryColumns));
    for (const Batter& batter : roster.batters) {
        batters.Bind(BindInjury(batters, batter.injury), std::int64_t{batter.playerID});
        batters.Step();
    }
    Statement pitchers = season.Prepare(
        fmt::format("UPDATE {} SET {}, PitcherRestDays = ?, PitchedOnDay = ?, IPOutsToday = ? WHERE playerID = ?",
                    PitcherTable(tourney), kInjuryColumns));
    for (const Pitcher& pitcher : roster.pitchers) {
        int next = BindInjury(pitchers, pitcher.injury);
        pitchers.Bind(next++, std::int64_t{pitcher.PitcherRestDays});
        pitchers.Bind(next++, std::int64_t{pitcher.PitchedOnDay});
        pitchers.Bind(next++, std::int64_t{pitcher.IPOutsToday});
        pitchers.Bind(next, std::int64_t{pitcher.playerID});
        pitchers.Step();
    }
    batters.Reset();
    pitchers.Reset();
    transaction.Commit();
}

}  // namespace tarvane
