#include "import/penrules.h"

#include <gtest/gtest.h>

#include "data/rules.h"
#include "data/seeds.h"
#include "support.h"

namespace tarvane::test {
namespace {

std::vector<LahmanTeam> TeamsOf(const std::vector<int>& years) {
    std::vector<LahmanTeam> teams(years.size());
    for (std::size_t i = 0; i < years.size(); ++i) teams[i].yearID = years[i];
    return teams;
}

// Each outing of a reliever finds one row, whatever the year; the starters' rows aren't touched.
TEST(PenRules, SetsTheRestOfRelieversByTheYearOfMostTeams) {
    const TempFolder folder;
    const DataPaths paths = DetermineDataPath(folder / "data");
    MakeDataFiles(paths, AssetsPath() / "seeds");
    Database season(paths.BaseFile());
    const auto starters = [&] {
        std::vector<int> days;
        for (Recordset rest = season.OpenRecordset("PitcherRestSettings", "pitcherType = 'S'"); !rest.EndOfFile();
             rest.MoveNext())
            days.push_back(static_cast<int>(rest.GetInt("RestDays")));
        return days;
    };
    const auto before = starters();
    for (const auto& [years, expected] : std::vector<std::pair<std::vector<int>, int>>{
             {{1899}, 1901}, {{1912, 1912, 2024}, 1912}, {{1961}, 1961}, {{1975, 1998, 2024}, 1998}, {{2024}, 2024}}) {
        WritePenRules(season, TeamsOf(years));
        const PenRules& pen = PenRulesOf(expected);
        EXPECT_EQ(season.OpenRecordset("LeagueRules").GetInt("RelieverMaxIPOuts"), pen.mostOuts) << expected;
        for (const auto& [outs, days] : {std::pair(0, pen.shortRest), std::pair(5, pen.shortRest),
                                         std::pair(6, pen.middleRest), std::pair(12, pen.longRest),
                                         std::pair(50, pen.longRest)}) {
            Recordset row = season.OpenRecordset("PitcherRestSettings",
                                                 "pitcherType = 'R' AND IPOutsFrom <= ? AND IPOutsTo >= ?",
                                                 {std::int64_t{outs}, std::int64_t{outs}});
            ASSERT_EQ(row.RecordCount(), 1) << expected << ' ' << outs;
            EXPECT_EQ(row.GetInt("RestDays"), days) << expected << ' ' << outs;
        }
    }
    EXPECT_EQ(starters(), before);
    EXPECT_GT(PenRulesOf(1912).shortRest, PenRulesOf(1955).shortRest);
    EXPECT_LT(PenRulesOf(2024).mostOuts, PenRulesOf(1975).mostOuts);
}

}  // namespace
}  // namespace tarvane::test
