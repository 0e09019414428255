// The calibrator's parts, and its results: seeds that are up to date and that still replay real seasons.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "parktable.h"
#include "yearfit.h"

namespace tarvane::calibrate {
namespace {

namespace fs = std::filesystem;

const fs::path kTools = AssetsPath().parent_path() / "tools" / "calibrate";

struct Scratch {
    fs::path path = fs::temp_directory_path() / ("tarvane-test-calibrate-" + std::to_string(getpid()));
    Scratch() { fs::create_directories(path); }
    ~Scratch() { fs::remove_all(path); }
};

TEST(YearChart, GivesWhatItWasAskedForInEveryKindOfEra) {
    const EraTable facts(kTools / "EraFacts.csv");
    for (const std::int32_t era : {19081, 19302, 19682, 20002, 20191}) {
        const SheetRates rates = facts.RatesOf(era);
        for (const ChartWishes& wish : {ChartWishes{0.15, -0.1, 0.15, 0}, ChartWishes{-0.05, 0.2, -0.1, 0.05},
                                        ChartWishes{0.25, -0.2, 0.3, 0.1}}) {
            SCOPED_TRACE(era);
            const ChartCells chart = LayChart(ChartKind::Year, wish, rates, kUsualOpenness);
            const ChartWishes got = EffectOf(chart, rates, kUsualOpenness);
            EXPECT_NEAR(got.Doubles, wish.Doubles, 0.01);
            EXPECT_NEAR(got.Triples, wish.Triples, 0.03);
            EXPECT_NEAR(got.HR, wish.HR, 0.01);
            EXPECT_NEAR(got.SO, wish.SO, 0.015);
            for (std::size_t cell = 0; cell < chart.size(); ++cell) {
                EXPECT_TRUE(kUsualOpenness[cell] > 0 || chart[cell].text == " ") << cell;
            }
            EXPECT_EQ(chart, LayChart(ChartKind::Year, wish, rates, kUsualOpenness));
        }
    }
}

// Parks of every kind and year, by what they were found to need; an average park stays empty.
TEST(ParkChart, GivesTheFactorsOfItsPark) {
    const FactTable parks(kTools / "ParkFacts.csv"), eras(kTools / "EraFacts.csv");
    int tried = 0;
    for (auto park = parks.rows.begin(); park != parks.rows.end(); std::advance(park, 1)) {
        const std::int32_t id = park->first;
        const auto year = static_cast<std::int32_t>(parks.Number(id, "yearID"));
        if (id % 50 != 7 || !eras.rows.contains(year * 10)) continue;
        SCOPED_TRACE(id);
        ++tried;
        const SheetRates rates = SheetRatesOf(eras, year * 10);
        const ChartWishes wish = ParkWishes(parks, id);
        const ChartWishes got = EffectOf(LayChart(ChartKind::Park, wish, rates, kUsualOpenness), rates, kUsualOpenness);
        EXPECT_NEAR(got.Singles, wish.Singles, 0.01);
        EXPECT_NEAR(got.Doubles, wish.Doubles, 0.015);
        EXPECT_NEAR(got.HR, wish.HR, 0.02);
        EXPECT_NEAR(got.Triples, wish.Triples, 0.05);
        EXPECT_EQ(wish.HR > 0, parks.Number(id, "HRRate") > 1);
    }
    EXPECT_GT(tried, 80);
    const ChartCells empty = LayChart(ChartKind::Park, {}, SheetRatesOf(eras, 19750), kUsualOpenness);
    for (const ChartCell& cell : empty) EXPECT_EQ(cell, EffectCell(" "));
}

TEST(YearFit, MovesAgainstTheErrorAndStaysWithinItsLimits) {
    const EraTable facts(kTools / "EraFacts.csv");
    Counts real;
    const std::pair<Figure, double> counts[] = {{Figure::Games, 1}, {Figure::PA, 38},       {Figure::R, 4.2},
                                                {Figure::H, 8.8},   {Figure::Doubles, 1.4}, {Figure::Triples, 0.2},
                                                {Figure::HR, 0.7},  {Figure::BB, 3.1},      {Figure::SO, 5},
                                                {Figure::HBP, 0.2}, {Figure::E, 0.9}};
    for (const auto& [figure, count] : counts) real[figure] = count;
    const auto next = [&](Adjustment now, const Counts& replay) {
        return NextAdjustment(now, facts, 19751, real, replay, kUsualOpenness, 1);
    };
    const Adjustment start = UsualAdjustment();
    const Adjustment same = next(start, real);
    EXPECT_DOUBLE_EQ(same.AvgHBFP, start.AvgHBFP);
    EXPECT_DOUBLE_EQ(same.RBIAvg, start.RBIAvg);
    EXPECT_NEAR(same.chart.HR, start.chart.HR, 0.01);
    Counts tooMuch = real;
    for (const auto& [figure, count] : counts)
        if (figure != Figure::Games && figure != Figure::PA) tooMuch[figure] = count * 1.05;
    const Adjustment less = next(start, tooMuch);
    EXPECT_GT(less.AvgHBFP, start.AvgHBFP);
    EXPECT_GT(less.AvgSOBFP, start.AvgSOBFP);
    EXPECT_GT(less.BBAvg, start.BBAvg);
    EXPECT_GT(less.HBPRate, start.HBPRate);
    EXPECT_GT(less.RBIAvg, start.RBIAvg);
    EXPECT_GT(less.Errors, start.Errors);
    EXPECT_GT(less.AvgHRBFP, start.AvgHRBFP);
    EXPECT_EQ(less.chart.HR, 0) << "while the pitchers' own records give the home runs";
    Adjustment spent = start;
    spent.AvgHRBFP = 0;
    Counts fewHomeRuns = real;
    fewHomeRuns[Figure::HR] = 0.5;
    const Adjustment more = next(spent, fewHomeRuns);
    EXPECT_EQ(more.AvgHRBFP, 0);
    EXPECT_NEAR(more.chart.HR, (0.7 - 0.5) / 38 / facts.RatesOf(19751).HR, 1e-9) << "once they have no more to give";
    // Far too few strikeouts: the baseline goes to its end, and only then the chart strikes batters out.
    Counts fewStrikeouts = real;
    fewStrikeouts[Figure::SO] = 1;
    Adjustment now = next(start, fewStrikeouts);
    EXPECT_EQ(now.chart.SO, 0);
    EXPECT_EQ(now.AvgSOBFP, 0.3);
    now = next(now, fewStrikeouts);
    EXPECT_EQ(now.AvgSOBFP, 0.3);
    EXPECT_GT(now.chart.SO, 0.2);
}

TEST(Adjustments, AreKeptOnFileAndFillTheYearsBetween) {
    const Scratch scratch;
    Adjustments adjustments;
    adjustments[19501].BBAvg = 0.8;
    adjustments[19502].BBAvg = 1.0;
    adjustments[19601].BBAvg = 1.2;
    adjustments[19501].cells = LayChart(ChartKind::Year, {0.1, 0, 0.1, 0}, {0.17, 0.04, 0.01, 0.02, 0.1}, kUsualOpenness);
    WriteAdjustments(scratch.path / "a.csv", adjustments);
    const Adjustments read = ReadAdjustments(scratch.path / "a.csv");
    EXPECT_EQ(read.at(19501).cells, adjustments.at(19501).cells);
    EXPECT_FALSE(read.at(19601).cells);
    const auto walks = [&](std::int32_t era, int year, int last = 0) {
        return AdjustmentFor(era, year, last, read).BBAvg;
    };
    EXPECT_DOUBLE_EQ(walks(19501, 1950), 0.8);
    EXPECT_DOUBLE_EQ(walks(19551, 1955), 1.0);         // half way between its neighbours
    EXPECT_DOUBLE_EQ(walks(19301, 1930), 0.8);         // before the first
    EXPECT_DOUBLE_EQ(walks(20001, 2000), 1.2);         // after the last
    EXPECT_DOUBLE_EQ(walks(19500, 1950), 0.9);         // both leagues together
    EXPECT_NEAR(walks(19509, 1950, 1960), 1.0, 1e-9);  // a span: the mean of its years
    EXPECT_FALSE(AdjustmentFor(19511, 1951, 0, read).cells);
    std::ofstream(scratch.path / "bad.csv") << "EraId\n19501,1\n";
    EXPECT_THROW(ReadAdjustments(scratch.path / "bad.csv"), UserError);
}

TEST(Seed, IsWhatTheFactsAndTheAdjustmentsGive) {
    const Scratch scratch;
    const Adjustments adjustments = ReadAdjustments(kTools / "EraAdjustments.csv");
    EXPECT_GE(adjustments.size(), 40U);
    EraTable(kTools / "EraFacts.csv").WriteSeed(scratch.path / "KorvYears.csv", adjustments);
    const ParkFences fences(kTools / "ParkFences.csv");
    WriteParkSeed(scratch.path / "KorvBallparks.csv", FactTable(kTools / "ParkFacts.csv"), fences,
                  FactTable(kTools / "EraFacts.csv"));
    for (const char* seed : {"KorvYears.csv", "KorvBallparks.csv"})
        EXPECT_TRUE(ReadWhole(scratch.path / seed) == ReadWhole(AssetsPath() / "seeds" / seed))
            << seed << ": run tarvane-calibrate apply";
}

TEST(ParkFences, AreThoseOfTheYearAndNoneThatNoParkHad) {
    const Scratch scratch;
    const std::string head = "Stadium,LOCATION,From,To,LFFence,AlleyLF,CFFence,AlleyRF,RFFence\n";
    const auto read = [&](const std::string& lines) {
        std::ofstream(scratch.path / "f.csv") << "# comment\n" << head << lines;
        return ParkFences(scratch.path / "f.csv");
    };
    const ParkFences fences = read("A Park,\"Town, MA\",1912,1933,321,,468,,314\nA Park,\"Town, MA\",1934,1950,312,379,389,380,334\n");
    EXPECT_EQ(fences.Of("A Park", "Town, MA", 1933), (ParkFences::Distances{{"LFFence", 321}, {"CFFence", 468}, {"RFFence", 314}}));
    EXPECT_EQ(fences.Of("A Park", "Town, MA", 1934).size(), 5U);
    EXPECT_TRUE(fences.Of("A Park", "Town, MA", 1951).empty());
    EXPECT_TRUE(fences.Of("A Park", "Elsewhere", 1934).empty());
    for (const char* bad : {"A,B,1912,1911,321,,,,\n", "A,B,1912,1913,32,,,,\n", "A,B,1912,1913,3210,,,,\n",
                            "A,B,1912,1913,321,,,,\nA,B,1913,1914,321,,,,\n", "A,B,1912,1913,321\n"})
        EXPECT_THROW(read(bad), UserError) << bad;
    // Every line of the real table is of a park and a year that the table of parks has.
    const ParkFences real(kTools / "ParkFences.csv");
    const FactTable parks(kTools / "ParkFacts.csv");
    int known = 0;
    for (const auto& [id, row] : parks.rows)
        known += !real.Of(row.at("Stadium"), row.at("LOCATION"), static_cast<int>(parks.Number(id, "yearID"))).empty();
    EXPECT_GT(known, static_cast<int>(parks.rows.size()) * 9 / 10);
}

// The bound of each rate and twice the noise of the games played here.
TEST(Seed, ReplaysRealSeasons) {
    const char* data = std::getenv("TARVANE_REAL_DATA");
    if (data == nullptr) GTEST_SKIP() << "TARVANE_REAL_DATA names no folder of real statistics";
    const std::map<Figure, double> bounds{{Figure::H, 0.03},  {Figure::Singles, 0.03}, {Figure::Doubles, 0.05},
                                          {Figure::HR, 0.07}, {Figure::BB, 0.035},     {Figure::SO, 0.035},
                                          {Figure::R, 0.04},  {Figure::Triples, 0.12}};
    const Scratch scratch;
    Laboratory lab(scratch.path / "data", AssetsPath() / "seeds", fs::path(data) / "lahman" / "csv");
    for (const int year : {1927, 1975}) {
        lab.MakeSeason(year);
        const auto replays = lab.Replay(4, 0);
        for (const std::string& league : lab.Leagues()) {
            const Counts real = lab.Real(league), &replay = replays.at(league);
            for (const LeagueRate& rate : LeagueRates()) {
                const auto bound = bounds.find(rate.figure);
                if (bound == bounds.end()) continue;
                EXPECT_NEAR(*RateOf(rate, replay) / *RateOf(rate, real), 1, bound->second)
                    << year << ' ' << league << ' ' << rate.name;
            }
        }
    }
}

// Ten clubs from ten years meet in one league with the charts of one of them: not like any season, but within reason.
TEST(Seed, HoldsClubsOfTenYearsTogether) {
    const char* data = std::getenv("TARVANE_REAL_DATA");
    if (data == nullptr) GTEST_SKIP() << "TARVANE_REAL_DATA names no folder of real statistics";
    const Scratch scratch;
    Laboratory lab(scratch.path / "data", AssetsPath() / "seeds", fs::path(data) / "lahman" / "csv");
    lab.MakeSeason({{1912, "BOS"}, {1927, "NYA"}, {1936, "NY1"}, {1955, "BRO"}, {1961, "NYA"},
                    {1968, "DET"}, {1975, "CIN"}, {1985, "SLN"}, {1998, "SEA"}, {2019, "HOU"}});
    Counts real, replay;
    for (const auto& [league, counts] : lab.Replay(3, 0)) {
        const Counts was = lab.Real(league);
        for (std::size_t figure = 0; figure < kCounts; ++figure)
            for (const auto& [from, to] : {std::pair{&was, &real}, std::pair{&counts, &replay}})
                if (const auto& count = (*from)[static_cast<Figure>(figure)])
                    to->Add(static_cast<Figure>(figure), *count);
    }
    for (const LeagueRate& rate : LeagueRates())
        if (rate.per == Figure::PA || rate.figure == Figure::R) {
            EXPECT_NEAR(*RateOf(rate, replay) / *RateOf(rate, real), 1, 0.25) << rate.name;
        }
}

}  // namespace
}  // namespace tarvane::calibrate
