#include "data/upgrade.h"

#include <array>
#include <string_view>

#include "base/text.h"
#include "data/schema.h"

namespace tarvane {

namespace {

struct UpgradedTable {
    std::string_view name;
    bool tournament;
};
constexpr std::array<UpgradedTable, 11> kSeasonTables{{{"FieldingStats", false},
                                                       {"TourneyFieldingStats", true},
                                                       {"KorvTeams", false},
                                                       {"TourneyTeams", true},
                                                       {"Schedule", false},
                                                       {"TourneySchedule", true},
                                                       {"KorvBatters", false},
                                                       {"KorvPitchers", false},
                                                       {"TourneyPitchers", true},
                                                       {"KorvPitcherResultsLog", false},
                                                       {"KorvBatterResultsLog", false}}};

// What a preference that came later starts with in an old file; anything not named here starts off or at 0.
Value FirstSetting(const std::string& column, Recordset& settings) {
    if (column == "BaseRunnerAnimation") return std::int64_t{settings.GetBool("GameAnimation") ? -1 : 0};
    if (column == "InternetPauseTime") return std::int64_t{5};
    if (column == "ReportsFontSize") return std::int64_t{8};
    if (column == "PlayByPlayFontSize" || column == "ScoreBoardFontSize") return std::int64_t{9};
    return std::int64_t{0};
}

// Files made before tournaments have no such column; they are in no tournament.
bool ReadTourneyMode(Database& season) {
    try {
        const Recordset rules = season.OpenRecordset("LeagueRules");
        return !rules.EndOfFile() && rules.GetBool("TourneyMode");
    } catch (const DatabaseError&) {
        return false;
    }
}

}  // namespace

void UpgradeCommonTables(Database& common) {
    Transaction transaction(common);
    const std::vector<const ColumnDef*> added = UpgradeTable(common, "GameSettings");
    Recordset settings = common.OpenRecordset("GameSettings");
    if (!added.empty() && !settings.EndOfFile()) {
        settings.Edit();
        for (const ColumnDef* column : added) settings.Set(column->name, FirstSetting(column->name, settings));
        settings.Update();
    }
    UpgradeTable(common, "ScreenSettings");
    transaction.Commit();
}

void UpgradeSeasonTables(Database& season) {
    const bool tournament = ReadTourneyMode(season);
    Transaction transaction(season);
    for (const UpgradedTable& table : kSeasonTables)
        if (tournament || !table.tournament) UpgradeTable(season, table.name);
    transaction.Commit();
}

int UpgradeLeagueRules(Database& season) {
    const int before = season.FieldCount("LeagueRules");
    UpgradeTable(season, "LeagueRules");
    return before;
}

}  // namespace tarvane
