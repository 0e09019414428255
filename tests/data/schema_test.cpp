#include "data/schema.h"

#include <gmock/gmock.h>

#include <map>
#include <set>

#include "base/tempfolder.h"
#include "base/text.h"

namespace tarvane {

namespace {

// A table as a file of an earlier version holds it: without the columns named, and with one row.
void MakeOldTable(Database& db, const std::string& name, const std::set<std::string>& without) {
    TableDef old = *FindTableDef(name);
    std::erase_if(old.columns, [&](const ColumnDef& column) { return without.count(column.name) > 0; });
    CreateTable(db, old);
    db.Execute("INSERT INTO \"" + name + "\" DEFAULT VALUES");
}

}  // namespace

// The counts by which files of every version are told apart.
TEST(Schema, CountsOfColumns) {
    const std::map<std::string, std::size_t> counts{{"FieldingStats", 15},
                                                    {"TourneyFieldingStats", 15},
                                                    {"KorvTeams", 98},
                                                    {"TourneyTeams", 81},
                                                    {"Schedule", 99},
                                                    {"TourneySchedule", 106},
                                                    {"KorvBatters", 238},
                                                    {"KorvPitchers", 225},
                                                    {"TourneyPitchers", 61},
                                                    {"KorvPitcherResultsLog", 59},
                                                    {"KorvBatterResultsLog", 60},
                                                    {"LeagueRules", 37},
                                                    {"GameSettings", 99},
                                                    {"ScreenSettings", 52},
                                                    {"GamePlaySounds", 54},
                                                    {"Lineups", 36},
                                                    {"EmailRecipients", 4},
                                                    {"DefensiveEras", 254}};
    for (const auto& [name, count] : counts) {
        ASSERT_NE(FindTableDef(name), nullptr) << name;
        EXPECT_EQ(FindTableDef(name)->columns.size(), count) << name;
    }
}

TEST(Schema, EveryTableCanBeMadeAndNothingIsNamedTwice) {
    TempFolder folder;
    Database db(folder / "all.mdb", Database::Mode::Create);
    std::set<std::string, LessIgnoreCase> names;
    for (const TableDef& table : AllTables()) {
        EXPECT_TRUE(names.insert(table.name).second) << table.name;
        CreateTable(db, table);
        std::set<std::string, LessIgnoreCase> columns;
        for (const ColumnDef& column : table.columns)
            EXPECT_TRUE(columns.insert(column.name).second) << table.name << '.' << column.name;
        EXPECT_EQ(db.FieldCount(table.name), static_cast<int>(table.columns.size()));
        EXPECT_TRUE(UpgradeTable(db, table.name).empty()) << table.name;
        Recordset rows = db.OpenRecordset(table.name);
        rows.AddNew();
        rows.Update();
        rows.MoveFirst();
        for (const ColumnDef& column : table.columns) {
            const bool plain = column.type.kind == ColumnKind::Boolean || column.type.kind == ColumnKind::Byte;
            if (!plain || table.name == "ComputerManager") continue;
            EXPECT_EQ(rows.GetInt(column.name, 77), 0) << table.name << '.' << column.name;
        }
    }
    EXPECT_EQ(db.OpenRecordset("KorvBatters").GetText("VSL39"), " ");
    EXPECT_EQ(db.OpenRecordset("KorvPitchers").GetInt("bat10color"), 65280);
}

struct OldForm {
    std::string table;
    int count;
    std::vector<std::string> added;
};

class Upgrade : public testing::TestWithParam<OldForm> {};

TEST_P(Upgrade, BringsOldFormsUpToDateOnce) {
    const OldForm& form = GetParam();
    TempFolder folder;
    Database db(folder / "old.mdb", Database::Mode::Create);
    std::set<std::string> without(form.added.begin(), form.added.end());
    for (const ColumnDef& column : FindTableDef(form.table)->columns)
        if (column.stage == UpgradeStage::Tourney) without.insert(column.name);
    MakeOldTable(db, form.table, without);
    ASSERT_EQ(db.FieldCount(form.table), form.count);
    std::vector<std::string> names;
    for (const ColumnDef* column : UpgradeTable(db, form.table)) names.push_back(column->name);
    EXPECT_THAT(names, testing::UnorderedElementsAreArray(form.added));
    for (const std::string& name : form.added) {
        const bool boolean = !db.OpenRecordset(form.table).IsNull(name);
        EXPECT_EQ(db.OpenRecordset(form.table).GetInt(name), 0);
        for (const ColumnDef& column : FindTableDef(form.table)->columns) {
            if (column.name != name) continue;
            EXPECT_EQ(boolean, column.type.kind == ColumnKind::Boolean) << name;
        }
    }
    EXPECT_TRUE(UpgradeTable(db, form.table).empty());
}

INSTANTIATE_TEST_SUITE_P(
    Forms, Upgrade,
    testing::Values(
        OldForm{"FieldingStats", 14, {"GreatDefensivePlays"}},
        OldForm{"KorvTeams", 96, {"GreatDefensivePlays", "PitcherAutoOuts"}},
        OldForm{"TourneyTeams", 71, {"GreatDefensivePlays", "PitcherAutoOuts"}},
        OldForm{
            "Schedule",
            95,
            {"VisitorGreatDefensivePlays", "HomeGreatDefensivePlays", "VisitorPitcherAutoOuts", "HomePitcherAutoOuts"}},
        OldForm{
            "TourneySchedule",
            100,
            {"VisitorGreatDefensivePlays", "HomeGreatDefensivePlays", "VisitorPitcherAutoOuts", "HomePitcherAutoOuts"}},
        OldForm{"KorvBatters", 235, {"vsLPowerRating", "vsRPowerRating", "SBRating"}},
        OldForm{"KorvPitchers", 222, {"PitcherAutoOuts", "PowerRating", "SBRating"}},
        OldForm{"KorvPitchers", 223, {"PowerRating", "SBRating"}}, OldForm{"TourneyPitchers", 60, {"PitcherAutoOuts"}},
        OldForm{"KorvPitcherResultsLog", 56, {"GreatDefensivePlays", "PitcherAutoOuts", "TourneyGame"}},
        OldForm{"KorvPitcherResultsLog", 57, {"GreatDefensivePlays", "PitcherAutoOuts"}},
        OldForm{"KorvBatterResultsLog", 58, {"GreatDefensivePlays", "TourneyGame"}},
        OldForm{"KorvBatterResultsLog", 59, {"GreatDefensivePlays"}},
        OldForm{"LeagueRules",
                28,
                {"TourneyMode", "TourneyType", "FactorActualUsage", "SpecialErrorRule", "IgnoreSchedLineups",
                 "UseSBRatings", "UsePowerRatings", "PowerRatingEraID", "DefChartEraID"}},
        OldForm{"LeagueRules", 33, {"UseSBRatings", "UsePowerRatings", "PowerRatingEraID", "DefChartEraID"}},
        OldForm{"Lineups", 35, {"GameID"}}, OldForm{"ScreenSettings", 51, {"CondensedBoxScore"}},
        OldForm{"EmailRecipients", 2, {"RecipientTeam", "RecipientIM"}}),
    [](const auto& test) { return test.param.table + std::to_string(test.param.count); });

TEST(Schema, ACountNobodyKnowsIsLeftAlone) {
    TempFolder folder;
    Database db(folder / "old.mdb", Database::Mode::Create);
    MakeOldTable(db, "KorvTeams", {"GreatDefensivePlays"});
    EXPECT_TRUE(UpgradeTable(db, "KorvTeams").empty());
    EXPECT_EQ(db.FieldCount("KorvTeams"), 97);
    EXPECT_TRUE(UpgradeTable(db, "Schedule").empty());  // no such table here
}

TEST(Schema, TournamentColumnsComeWithTheTournament) {
    TempFolder folder;
    Database db(folder / "old.mdb", Database::Mode::Create);
    MakeOldTable(db, "TourneySchedule", {"AdvanceToSeriesNbrL", "LosersBracket"});
    EXPECT_TRUE(UpgradeTable(db, "TourneySchedule").empty());
    EXPECT_EQ(UpgradeTable(db, "TourneySchedule", UpgradeStage::Tourney).size(), 2U);
    EXPECT_EQ(db.FieldCount("TourneySchedule"), 106);
}

}  // namespace tarvane
