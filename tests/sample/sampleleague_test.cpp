// The sample league must hold together as a real season does: what one side did, the other side allowed.
#include "sample/sampleleague.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cmath>
#include <map>
#include <set>

#include "base/error.h"
#include "csvtable.h"

namespace tarvane {
namespace {

using test::Csv;
using test::ReadCsv;
using test::Row;
namespace fs = std::filesystem;

constexpr const char* kFiles[] = {"Batting", "Fielding", "FieldingOF", "FieldingOFsplit",
                                  "People",  "Pitching", "Teams"};

fs::path Scratch(const std::string& name) {
    // Cases run side by side in processes of their own.
    const fs::path folder = fs::path(::testing::TempDir()) / ("sample_league_" + name + std::to_string(getpid()));
    fs::remove_all(folder);
    return folder;
}

class SampleLeague : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        const fs::path folder = Scratch("suite");
        WriteSampleLeague(folder, 7);
        for (const char* name : kFiles) (*tables)[name] = ReadCsv(folder / (std::string(name) + ".csv"));
        fs::remove_all(folder);
    }
    const std::vector<Row>& Rows(const std::string& table) const { return tables->at(table).rows; }

    // Sum of a column over the rows that have this value in another.
    int Sum(const std::string& table, const std::string& column, const std::string& where,
            const std::string& is) const {
        int sum = 0;
        for (const Row& row : Rows(table))
            if (row[where] == is) sum += row.Int(column);
        return sum;
    }

    inline static std::map<std::string, Csv>* tables = new std::map<std::string, Csv>;
};

TEST_F(SampleLeague, SixteenClubsPlayABalancedSeason) {
    ASSERT_EQ(Rows("Teams").size(), 16U);
    std::map<std::string, int> divisions;
    std::set<std::string> shortNames;
    for (const Row& club : Rows("Teams")) {
        ++divisions[club["lgID"] + club["divID"]];
        shortNames.insert(club["name"].substr(club["name"].rfind(' ')));
        EXPECT_EQ(club.Int("W") + club.Int("L"), 162) << club["name"];
        EXPECT_EQ(club.Int("Ghome"), 81);
        EXPECT_EQ(club.Int("yearID"), kSampleYear);
    }
    EXPECT_EQ(shortNames.size(), 16U);
    EXPECT_EQ(divisions, (std::map<std::string, int>{{"ALE", 4}, {"ALW", 4}, {"NLE", 4}, {"NLW", 4}}));
    for (const char* lg : {"AL", "NL"}) EXPECT_EQ(Sum("Teams", "W", "lgID", lg), Sum("Teams", "L", "lgID", lg));
}

TEST_F(SampleLeague, WhatABatterDidAPitcherAllowed) {
    for (const char* lg : {"AL", "NL"}) {
        for (const char* column : {"H", "HR", "BB", "SO", "R", "HBP", "IBB", "SH", "SF", "GIDP"})
            EXPECT_EQ(Sum("Batting", column, "lgID", lg), Sum("Pitching", column, "lgID", lg)) << lg << column;
        int turns = 0;
        for (const char* column : {"AB", "BB", "HBP", "SH", "SF"}) turns += Sum("Batting", column, "lgID", lg);
        EXPECT_EQ(turns, Sum("Pitching", "BFP", "lgID", lg));
        EXPECT_EQ(Sum("Pitching", "W", "lgID", lg), Sum("Pitching", "L", "lgID", lg));
        EXPECT_LE(Sum("Batting", "RBI", "lgID", lg), Sum("Batting", "R", "lgID", lg));
        for (const char* column : {"SB", "CS"})
            EXPECT_EQ(Sum("Batting", column, "lgID", lg), Sum("Fielding", column, "lgID", lg)) << column;
    }
}

TEST_F(SampleLeague, ClubsAddUp) {
    for (const Row& club : Rows("Teams")) {
        const std::string& id = club["teamID"];
        SCOPED_TRACE(id);
        for (const char* column : {"R", "AB", "H", "2B", "3B", "HR", "BB", "SO", "SB", "CS", "HBP", "SF"})
            EXPECT_EQ(Sum("Batting", column, "teamID", id), club.Int(column)) << column;
        EXPECT_EQ(Sum("Pitching", "R", "teamID", id), club.Int("RA"));
        EXPECT_EQ(Sum("Pitching", "W", "teamID", id), club.Int("W"));
        EXPECT_EQ(Sum("Pitching", "L", "teamID", id), club.Int("L"));
        EXPECT_EQ(Sum("Pitching", "GS", "teamID", id), 162);
        EXPECT_EQ(Sum("Pitching", "CG", "teamID", id) + Sum("Pitching", "GF", "teamID", id), 162);
        const int outs = Sum("Pitching", "IPouts", "teamID", id);
        EXPECT_EQ(outs, club.Int("IPouts"));
        EXPECT_GT(outs, 162 * 26);
        EXPECT_EQ(Sum("Fielding", "PO", "teamID", id), outs);
        EXPECT_EQ(Sum("Fielding", "E", "teamID", id), club.Int("E"));
        std::map<std::string, int> starts, innings;
        for (const char* table : {"Fielding", "FieldingOFsplit"}) {
            for (const Row& row : Rows(table)) {
                if (row["teamID"] != id) continue;
                starts[row["POS"]] += row.Int("GS");
                innings[row["POS"]] += row.Int("InnOuts");
            }
        }
        for (const char* pos : {"P", "C", "1B", "2B", "3B", "SS", "LF", "CF", "RF"}) {
            EXPECT_EQ(starts[pos], 162) << pos;
            EXPECT_EQ(innings[pos], outs) << pos;
        }
        EXPECT_EQ(starts["OF"], 3 * 162);
    }
}

TEST_F(SampleLeague, LinesArePossible) {
    for (const Row& b : Rows("Batting")) {
        SCOPED_TRACE(b["playerID"]);
        EXPECT_GE(b.Int("AB"), b.Int("H") + b.Int("SO"));
        EXPECT_GE(b.Int("H"), b.Int("2B") + b.Int("3B") + b.Int("HR"));
        EXPECT_GE(b.Int("BB"), b.Int("IBB"));
        EXPECT_TRUE(b.Int("G") >= 1 && b.Int("G") <= 162);
        EXPECT_LE(b.Int("HR"), b.Int("R"));
    }
    for (const Row& p : Rows("Pitching")) {
        SCOPED_TRACE(p["playerID"]);
        EXPECT_LE(p.Int("ER"), p.Int("R"));
        EXPECT_LE(p.Int("GS") + p.Int("GF"), p.Int("G"));
        EXPECT_LE(p.Int("SHO"), p.Int("CG"));
        EXPECT_LE(p.Int("W") + p.Int("L") + p.Int("SV"), p.Int("G"));
    }
    for (const Row& f : Rows("Fielding")) {
        EXPECT_LE(f.Int("GS"), f.Int("G")) << f["playerID"];
        EXPECT_GT(f.Int("G"), 0);
        EXPECT_EQ(f["PB"].empty(), f["POS"] != "C") << f["playerID"];
    }
}

// The outfield line of a man covers his lines of the three fields, and each line belongs to somebody.
TEST_F(SampleLeague, TablesReferToEachOther) {
    std::set<std::string> people, names;
    for (const Row& man : Rows("People")) {
        EXPECT_TRUE(people.insert(man["playerID"]).second);
        EXPECT_TRUE(names.insert(man["nameFirst"] + " " + man["nameLast"]).second);
        EXPECT_TRUE(man["bats"] == "L" || man["bats"] == "R" || man["bats"] == "B");
        EXPECT_TRUE(man["throws"] == "L" || man["throws"] == "R");
    }
    const auto key = [](const Row& row) { return row["playerID"] + row["stint"] + row["teamID"]; };
    std::set<std::string> batting;
    int second = 0;
    for (const Row& row : Rows("Batting")) {
        EXPECT_TRUE(batting.insert(key(row)).second);
        EXPECT_EQ(people.count(row["playerID"]), 1U);
        second += row["stint"] == "2";
    }
    EXPECT_GT(second, 0) << "no traded player";
    std::map<std::string, int> split;
    for (const Row& row : Rows("FieldingOFsplit")) split[key(row)] += row.Int("PO") + 1000 * row.Int("InnOuts");
    for (const char* table : {"Pitching", "Fielding"})
        for (const Row& row : Rows(table)) EXPECT_EQ(batting.count(key(row)), 1U) << table << row["playerID"];
    for (const Row& row : Rows("Fielding")) {
        if (row["POS"] != "OF") continue;
        EXPECT_EQ(split[key(row)], row.Int("PO") + 1000 * row.Int("InnOuts")) << row["playerID"];
    }
}

// Bounds wide enough for any seed, narrow enough that a league outside them isn't one of the 1970s.
TEST_F(SampleLeague, LooksLikeTheSeventies) {
    const double games = 16 * 162;
    const auto perGame = [&](const char* column) {
        return (Sum("Batting", column, "lgID", "AL") + Sum("Batting", column, "lgID", "NL")) / games;
    };
    EXPECT_NEAR(perGame("R"), 4.2, 0.4);
    EXPECT_NEAR(perGame("HR"), 0.70, 0.12);
    EXPECT_NEAR(perGame("BB"), 3.4, 0.4);
    EXPECT_NEAR(perGame("SO"), 4.9, 0.5);
    EXPECT_NEAR(perGame("H") / perGame("AB"), 0.256, 0.007);
    std::vector<double> averages;
    int topHomers = 0, topSteals = 0, topStarts = 0, topSaves = 0;
    for (const Row& row : Rows("Batting")) {
        topHomers = std::max(topHomers, row.Int("HR"));
        topSteals = std::max(topSteals, row.Int("SB"));
        if (row.Int("AB") >= 300) averages.push_back(row.Double("H") / row.Double("AB"));
    }
    for (const Row& row : Rows("Pitching")) {
        topStarts = std::max(topStarts, row.Int("GS"));
        topSaves = std::max(topSaves, row.Int("SV"));
    }
    double mean = 0, square = 0;
    for (const double a : averages) mean += a / static_cast<double>(averages.size());
    for (const double a : averages) square += (a - mean) * (a - mean) / static_cast<double>(averages.size() - 1);
    EXPECT_NEAR(std::sqrt(square), 0.029, 0.006)
        << "spread of the batting averages of " << averages.size() << " regulars";
    EXPECT_GT(averages.size(), 110U);
    EXPECT_TRUE(topHomers >= 27 && topHomers <= 50) << topHomers;
    EXPECT_TRUE(topSteals >= 35 && topSteals <= 110) << topSteals;
    EXPECT_TRUE(topStarts >= 34 && topStarts <= 41) << topStarts;
    EXPECT_TRUE(topSaves >= 18 && topSaves <= 45) << topSaves;
}

TEST(SampleLeagueFiles, ASeedDecidesEveryByte) {
    const fs::path a = Scratch("a"), b = Scratch("b"), c = Scratch("c");
    WriteSampleLeague(a, 42);
    WriteSampleLeague(b, 42);
    WriteSampleLeague(c, 43);
    for (const char* name : kFiles) {
        const std::string file = std::string(name) + ".csv";
        EXPECT_EQ(test::ReadAll(a / file), test::ReadAll(b / file)) << file;
        EXPECT_EQ(test::ReadAll(a / file) == test::ReadAll(c / file), file == "FieldingOF.csv") << file;
    }
    for (const fs::path& folder : {a, b, c}) fs::remove_all(folder);
}

TEST(SampleLeagueFiles, AFolderThatCantBeMadeIsTold) {
    const fs::path file = Scratch("file");
    std::ofstream(file) << "in the way";
    EXPECT_THROW(WriteSampleLeague(file, 1), UserError);
    fs::remove(file);
    // A table that can't be moved to its name leaves nothing beside it.
    const fs::path folder = Scratch("blocked");
    fs::create_directories(folder / "Batting.csv" / "x");
    EXPECT_THROW(WriteSampleLeague(folder, 1), UserError);
    EXPECT_FALSE(fs::exists(folder / "Batting.csv.part"));
    fs::remove_all(folder);
}

// Nobody in the sample bears the name or the id of a real player, whatever the seed.
TEST(SampleLeagueFiles, NoRealPlayer) {
    const char* real = std::getenv("TARVANE_REAL_DATA");
    if (real == nullptr) GTEST_SKIP() << "TARVANE_REAL_DATA names no folder of real statistics";
    std::set<std::string> names, clubs;
    for (const Row& man : ReadCsv(fs::path(real) / "lahman" / "csv" / "People.csv").rows)
        names.insert(man["nameFirst"] + " " + man["nameLast"]);
    for (const Row& club : ReadCsv(fs::path(real) / "lahman" / "csv" / "Teams.csv").rows) {
        clubs.insert(club["name"].substr(club["name"].rfind(' ')));
        clubs.insert(club["teamID"]);
    }
    ASSERT_GT(names.size(), 10000U);
    const fs::path folder = Scratch("names");
    for (std::uint64_t seed = 1; seed <= 5; ++seed) {
        WriteSampleLeague(folder, seed);
        for (const Row& man : ReadCsv(folder / "People.csv").rows)
            EXPECT_EQ(names.count(man["nameFirst"] + " " + man["nameLast"]), 0U) << man["playerID"];
    }
    for (const Row& club : ReadCsv(folder / "Teams.csv").rows) {
        EXPECT_EQ(clubs.count(club["teamID"]), 0U) << club["teamID"];
        EXPECT_EQ(clubs.count(club["name"].substr(club["name"].rfind(' '))), 0U) << club["name"];
    }
    fs::remove_all(folder);
}

}  // namespace
}  // namespace tarvane
