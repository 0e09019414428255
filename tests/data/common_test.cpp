#include <gmock/gmock.h>

#include "core/paths.h"
#include "data/datafixture.h"
#include "data/gamecharts.h"
#include "data/parks.h"
#include "data/seeds.h"

namespace tarvane {

struct CommonTest : testing::Test {
    TestDatabase common{TableHome::Common};
    LeagueRules rules;
    MessageList messages;

    void AddYear(int id, const std::string& name, int year, int from, int to, double hit) {
        common.Add("KorvYears", {{"EraId", id},
                                 {"EraName", name},
                                 {"yearID", year},
                                 {"EraRangeStart", from},
                                 {"EraRangeEnd", to},
                                 {"HitAvg", hit},
                                 {"SOAvg", hit / 2},
                                 {"PAFactor", 0.9}});
    }
};

TEST_F(CommonTest, ParksAndTheirBaseline) {
    AddYear(19750, "1975 Combined", 1975, 0, 0, 0.25);
    common.Add("KorvBallparks", {{"parkID", 5},
                                 {"yearID", 1975},
                                 {"HRAvg", 0.03},
                                 {"CFFence", 420},
                                 {"Roll12", Value{}},
                                 {"Roll12Color", Value{}},
                                 {"Pos9Left", 77},
                                 {"PosRunner3BTop", 33}});
    common.Add("KorvBallparks", {{"parkID", 6}, {"yearID", 9999}, {"HRAvg", 0.03}, {"LFFence", 300}});
    common.Add("KorvBallparks", {{"parkID", 7}, {"yearID", 1975}});
    common.Add("KorvBallparks", {{"parkID", 8}, {"yearID", 1976}, {"HRAvg", 0.03}});
    Ballpark park;
    EraAverages baseline;
    ASSERT_TRUE(LoadBallpark(common.db, 5, common.folder.Path(), messages, park, baseline));
    EXPECT_EQ(park.RFFence, 315);
    EXPECT_EQ(park.CFFence, 420);
    EXPECT_EQ(park.AlleyLF, 370);
    EXPECT_EQ(park.Roll[2], ChartCell{});
    EXPECT_EQ(park.PosLeft[8], 77);
    EXPECT_EQ(park.PosRunnerTop[2], 33);
    EXPECT_EQ(baseline.Hit, 0.25);
    EXPECT_EQ(baseline.PAFactor, 0.9);
    for (const int none : {6, 7, 8}) {
        ASSERT_TRUE(LoadBallpark(common.db, none, common.folder.Path(), messages, park, baseline));
        EXPECT_EQ(baseline.Hit, 0) << none;
    }
    EXPECT_FALSE(LoadBallpark(common.db, 99, common.folder.Path(), messages, park, baseline));
    EXPECT_EQ(park.parkID, 8);
    EXPECT_THAT(messages.lines, testing::ElementsAre("Korv Ballparks: Error reading Ballpark data - contact Tarvane"));
}

TEST_F(CommonTest, YearEffectsFindWhatTheyAreMeasuredAgainst) {
    AddYear(1, "1975 AL", 1975, 0, 0, 0.25);
    AddYear(2, "1969-1992", 1969, 1969, 1992, 0.24);
    AddYear(3, "1930 NL", 1930, -4, 0, 0.3);
    AddYear(4, "1920-1941", 1920, 1920, 1941, 0.28);
    AddYear(5, "empty", 1900, 0, 0, 0);
    YearEffects effects;
    EraAverages baseline;
    std::int32_t normalize = 0;
    ASSERT_TRUE(LoadYearEffects(common.db, rules, 1, normalize, messages, effects, baseline));
    EXPECT_EQ(effects.EraName, "1975 AL");
    EXPECT_EQ(baseline.Hit, 0.24);
    EXPECT_EQ(normalize, 2);
    normalize = 4;  // the user's choice: the chart stays, the measure changes
    ASSERT_TRUE(LoadYearEffects(common.db, rules, 1, normalize, messages, effects, baseline));
    EXPECT_EQ(baseline.Hit, 0.28);
    EXPECT_EQ(baseline.SO, 0.14);
    normalize = 0;
    ASSERT_TRUE(LoadYearEffects(common.db, rules, 3, normalize, messages, effects, baseline));
    EXPECT_EQ(baseline.Hit, 0.28);
    EXPECT_EQ(normalize, 0);
    ASSERT_TRUE(LoadYearEffects(common.db, rules, 5, normalize, messages, effects, baseline));
    EXPECT_EQ(baseline.Hit, kDefaultAverages.Hit);
    EXPECT_FALSE(LoadYearEffects(common.db, rules, 9, normalize, messages, effects, baseline));
    EXPECT_EQ(effects.EraName, "empty");
    rules.UseYearEffects = false;
    EXPECT_TRUE(LoadYearEffects(common.db, rules, 1, normalize, messages, effects, baseline));
    EXPECT_EQ(effects.EraName, "empty");
    EXPECT_EQ(messages.lines.size(), 1U);
}

TEST_F(CommonTest, BaselinesOfTheLeagues) {
    TestDatabase season(TableHome::Season);
    common.Add("KorvYears", {{"EraId", 11}, {"1BErrorsRate", 0.07}, {"OFDPRate", 0.02}, {"AvgRPBFGame", 6}});
    season.Add("Leagues", {{"lgIdx", 1}, {"EraID", 11}});
    season.Add("Leagues", {{"lgIdx", 2}, {"EraID", 12}});
    const std::vector<LeagueBaseline> baselines = LoadLeagueBaselines(common.db, season.db);
    ASSERT_EQ(baselines.size(), 1U);
    EXPECT_EQ(baselines[0].lgIdx, 1);
    EXPECT_EQ(baselines[0].B1.ErrorsRate, 0.07);
    EXPECT_EQ(baselines[0].OF.DPRate, 0.02);
    EXPECT_EQ(baselines[0].AvgRPBFGame, 6);
}

TEST_F(CommonTest, ChartsOfTheGame) {
    const GameCharts empty = LoadGameCharts(common.db);
    EXPECT_TRUE(empty.MgrDec.empty());
    for (const char* table : {"KorvMgrDecChart", "KorvBuntChart", "KorvStolenBaseChart", "KorvErrorRating",
                              "KorvFieldingDetermination", "KorvYellowXChartBasic", "KorvYellowXChartInjuries"})
        LoadSeed(common.db, table, AssetsPath() / "seeds" / (std::string(table) + ".csv"));
    const GameCharts charts = LoadGameCharts(common.db);
    EXPECT_EQ(charts.MgrDec.size(), 6U);
    EXPECT_EQ(charts.StolenBase.size(), 18U);
    EXPECT_EQ(charts.ErrorRating.at(22).ErrorRating, "Z");
    EXPECT_EQ(charts.YellowXInjuries.size(), 3U);
    EXPECT_EQ(charts.Fielding.size(), 7U);
    for (const GameChartRow& row : charts.Fielding)
        for (const ChartCell& cell : row.cell) EXPECT_NE(cell.text, " ") << row.key;
    common.Add("KorvMgrDecChart", {});
    EXPECT_THROW(LoadGameCharts(common.db), DatabaseError);
}

TEST_F(CommonTest, DefensiveErasCoverEveryTotalOnce) {
    EnsureDefensiveEras(common.db, AssetsPath() / "seeds/DefensiveEras.txt");
    Recordset eras = common.db.OpenRecordset("DefensiveEras");
    EXPECT_GT(eras.RecordCount(), 0);
    for (; !eras.EndOfFile(); eras.MoveNext()) {
        DefensiveEra era;
        ASSERT_TRUE(LoadDefensiveEra(common.db, static_cast<std::int32_t>(eras.GetInt("EraID")), messages, era));
        EXPECT_EQ(era.range[0].StartRange, 0);
        for (std::size_t i = 1; i < era.range.size(); ++i)
            EXPECT_EQ(era.range[i].StartRange, era.range[i - 1].EndRange + 1) << era.EraName << ' ' << i;
        EXPECT_EQ(era.range[17].EndRange, 255) << era.EraName;
    }
    DefensiveEra kept;
    kept.EraName = "kept";
    EXPECT_FALSE(LoadDefensiveEra(common.db, 777, messages, kept));
    EXPECT_EQ(kept.EraName, "kept");
}

}  // namespace tarvane
