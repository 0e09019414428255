// The seeds of eras and parks: complete, consistent in themselves and with each other, and carrying their notices.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "csvtable.h"

namespace tarvane {
namespace {

using test::Csv;
using test::ReadCsv;
using test::Row;

std::map<std::string, Row> ErasByName(const Csv& csv) {
    std::map<std::string, Row> byName;
    for (const Row& row : csv.rows) EXPECT_TRUE(byName.emplace(row["EraName"], row).second) << row["EraName"];
    return byName;
}

bool Mentions(const Csv& csv, const std::string& text) {
    return std::any_of(csv.comments.begin(), csv.comments.end(),
                       [&](const std::string& line) { return line.find(text) != std::string::npos; });
}
const char* const kRetrosheet =
    "The information used here was obtained free of charge from and is copyrighted by Retrosheet. Interested parties "
    "may "
    "contact Retrosheet at www.retrosheet.org.";

// What the calibrated seed of eras is made from: the rates as the record has them.
std::filesystem::path Facts() {
    return std::filesystem::path(TARVANE_SOURCE_DIR) / "tools" / "calibrate" / "EraFacts.csv";
}

TEST(EraSeeds, EveryLeagueAndYearHasARowAndEveryYearACombinedOne) {
    const Csv csv = ReadCsv(test::SeedsFolder() / "KorvYears.csv");
    EXPECT_TRUE(Mentions(csv, "CC BY-SA 3.0"));
    const auto era = ErasByName(csv);
    std::set<int> ids;
    for (const Row& row : csv.rows) EXPECT_TRUE(ids.insert(row.Int("EraId")).second) << row["EraName"];
    for (int year = 1901; year <= 2024; ++year)
        for (const char* league : {" AL", " NL", " Combined"})
            EXPECT_EQ(era.count(std::to_string(year) + league), 1U) << year;
    EXPECT_EQ(era.count("1914 FL") + era.count("1915 FL"), 2U);
}

// Exactly one span of years covers each year: it is what the year is measured against.
TEST(EraSeeds, SpansMeetWithoutAGap) {
    std::map<int, int> covered;
    for (const Row& row : ReadCsv(test::SeedsFolder() / "KorvYears.csv").rows) {
        if (row.Int("EraRangeStart") == 0) continue;
        for (int year = row.Int("EraRangeStart"); year <= row.Int("EraRangeEnd"); ++year) ++covered[year];
        for (const char* factor : {"HitRate", "HRRate", "SORate", "RunsRate", "SHRate"})
            EXPECT_EQ(row.Double(factor), 1.0);
    }
    ASSERT_EQ(covered.size(), 124U);
    EXPECT_EQ(covered.begin()->first, 1901);
    for (const auto& [year, times] : covered) EXPECT_EQ(times, 1) << year;
}

TEST(EraSeeds, RatesAddUpAndStandWhereBaseballPutsThem) {
    for (const Row& row : ReadCsv(Facts()).rows) {
        SCOPED_TRACE(row["EraName"]);
        const double kinds =
            row.Double("SinglesAvg") + row.Double("DoublesAvg") + row.Double("TriplesAvg") + row.Double("HRAvg");
        EXPECT_NEAR(kinds, row.Double("HitAvg"), 2e-6);
        // What a plate appearance isn't an at bat for is a walk, a hit batsman or a sacrifice.
        const double sacrifices = 1 - row.Double("PAFactor") - row.Double("BBAvg") - row.Double("HBPRate");
        EXPECT_GT(sacrifices, 0.004);
        EXPECT_LT(sacrifices, 0.045);
        EXPECT_GT(row.Double("SOAvg"), 0.05);
        EXPECT_NEAR(row.Double("AvgSOBFP"), row.Double("SOAvg"), 0.013);
        EXPECT_NEAR(row.Double("AvgHRBFP"), row.Double("HRAvg"), 0.0025);
        EXPECT_NEAR(row.Double("AvgBBBFP"), row.Double("BBAvg"), 0.006);
        EXPECT_GT(row.Int("AvgSPBFGame"), row.Int("AvgSPIPOutsGame"));
        EXPECT_GT(row.Int("AvgSPIPOutsGame"), row.Int("AvgRPIPOutsGame"));
        EXPECT_GT(row.Double("CPctPOSO"), 0.6);
        EXPECT_LE(row.Double("CPctPOSO"), 1.0);
        for (const char* pos : {"P", "C", "1B", "2B", "3B", "SS", "OF"})
            for (const char* stat : {"Errors", "PO", "A", "DP"})
                EXPECT_GT(row.Double(pos + std::string(stat) + "Rate"), 0) << pos;
    }
}

TEST(EraSeeds, ACombinedRowLiesBetweenItsLeaguesAndItsFactorsFollowFromItsSpan) {
    const Csv csv = ReadCsv(Facts());
    const auto era = ErasByName(csv);
    for (int year = 1901; year <= 2024; ++year) {
        const std::string name = std::to_string(year);
        const Row& al = era.at(name + " AL");
        const Row& nl = era.at(name + " NL");
        const Row& both = era.at(name + " Combined");
        if (year != 1914 && year != 1915) {
            for (const char* column : {"HitAvg", "HRAvg", "SOAvg", "PAFactor", "AvgHBFP", "SSErrorsRate", "CPctPOSO"}) {
                const auto [low, high] = std::minmax({al.Double(column), nl.Double(column)});
                EXPECT_GE(both.Double(column), low - 2e-6) << name << column;
                EXPECT_LE(both.Double(column), high + 2e-6) << name << column;
            }
        }
        const auto span = std::find_if(csv.rows.begin(), csv.rows.end(), [&](const Row& row) {
            return row.Int("EraRangeStart") <= year && year <= row.Int("EraRangeEnd");
        });
        ASSERT_NE(span, csv.rows.end());
        for (const std::string stat : {"Hit", "Doubles", "HR", "BB", "SO", "SB"})
            EXPECT_NEAR(al.Double(stat + "Rate"), al.Double(stat + "Avg") / span->Double(stat + "Avg"), 5e-4)
                << name << stat;
    }
}

TEST(ParkSeeds, ParksFitTheirYearAndEveryHomeExists) {
    const Csv parks = ReadCsv(test::SeedsFolder() / "KorvBallparks.csv");
    const Csv homes = ReadCsv(test::SeedsFolder() / "TeamParks.csv");
    for (const Csv* csv : {&parks, &homes}) {
        EXPECT_TRUE(Mentions(*csv, kRetrosheet));
        EXPECT_TRUE(Mentions(*csv, "CC BY-SA 3.0"));
    }
    const Csv years = ReadCsv(test::SeedsFolder() / "KorvYears.csv");
    const auto era = ErasByName(years);
    std::map<int, int> yearOf;
    int neutral = 0;
    for (const Row& park : parks.rows) {
        SCOPED_TRACE(park["parkID"]);
        EXPECT_TRUE(yearOf.emplace(park.Int("parkID"), park.Int("yearID")).second);
        EXPECT_FALSE(park["Stadium"].empty());
        if (park.Int("yearID") == 9999) {
            ++neutral;
            EXPECT_EQ(park.Double("HitRate") * park.Double("HRRate"), 1.0);
            continue;
        }
        EXPECT_NE(park["LOCATION"].find(", "), std::string::npos);
        const Row& year = era.at(park["yearID"] + " Combined");
        // A factor is the park's rate over the year's, both per at bat.
        EXPECT_NEAR(park.Double("HRAvg"), park.Double("HRRate") * year.Double("HRAvg") / year.Double("PAFactor"), 2e-6);
        EXPECT_NEAR(park.Double("HitAvg"), park.Double("HitRate") * year.Double("HitAvg") / year.Double("PAFactor"),
                    2e-6);
        const double kinds =
            park.Double("SinglesAvg") + park.Double("DoublesAvg") + park.Double("TriplesAvg") + park.Double("HRAvg");
        EXPECT_NEAR(kinds, park.Double("HitAvg"), 0.02);
    }
    EXPECT_EQ(neutral, 1);
    EXPECT_EQ(parks.rows.size(), 2348U);
    std::set<std::string> clubs;
    EXPECT_EQ(homes.rows.front().Int("yearID"), 0);
    for (const Row& home : homes.rows) {
        EXPECT_TRUE(clubs.insert(home["yearID"] + home["lgID"] + home["teamID"]).second);
        const auto park = yearOf.find(home.Int("parkID"));
        ASSERT_NE(park, yearOf.end()) << home["teamID"];
        // The row without a year is for clubs whose park isn't known: it names the neutral one.
        EXPECT_EQ(park->second, home.Int("yearID") == 0 ? 9999 : home.Int("yearID"));
    }
}

}  // namespace
}  // namespace tarvane
