// The seeds of the game charts against the weights that they were made for: each result has exactly its weight.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "csvtable.h"
#include "records/cell.h"

namespace tarvane {
namespace {

using test::Csv;
using test::ReadCsv;
using test::Row;

// Weight out of 216 by colour letter and text: "g" is an empty green cell, "wE" a white E.
using Weights = std::map<std::string, int>;

std::string ColorLetter(const std::string& word) {
    static const std::map<std::string, std::string> kLetters{
        {"65280", "g"}, {"255", "r"}, {"16711680", "b"}, {"65535", "y"}, {"16777215", "w"}};
    const auto found = kLetters.find(word);
    EXPECT_NE(found, kLetters.end()) << "unknown colour word " << word;
    return found == kLetters.end() ? "?" : found->second;
}

Weights WeightsOf(const Row& row, bool colored = true) {
    Weights weights;
    for (int roll = kFirstRoll; roll <= kLastRoll; ++roll) {
        const std::string column = "Roll" + std::to_string(roll);
        const std::string& text = row[column];
        EXPECT_FALSE(text.empty()) << column << ": an empty cell is a blank";
        const std::string color = colored ? ColorLetter(row[column + "Color"]) : "";
        weights[color + (text == " " ? "" : text)] += CellWeight(roll);
    }
    return weights;
}

// One row of weights for each row of a table, zeros left out.
void ExpectRows(const std::string& table, const std::vector<Weights>& expected, bool colored = true) {
    const Csv csv = ReadCsv(test::SeedsFolder() / (table + ".csv"));
    ASSERT_EQ(csv.rows.size(), expected.size()) << table;
    EXPECT_FALSE(csv.comments.empty()) << table << " doesn't say where it comes from";
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(WeightsOf(csv.rows[i], colored), expected[i]) << table << i;
}

TEST(ChartSeeds, ManagerDecision) {
    ExpectRows("KorvMgrDecChart", {{{"g", 60}, {"g*", 16}, {"gE", 4}, {"wE", 6}, {"r*", 22}, {"r", 108}},
                                   {{"g", 82}, {"g*", 22}, {"gE", 4}, {"wE", 6}, {"r*", 18}, {"r", 84}},
                                   {{"g", 102}, {"g*", 28}, {"gE", 4}, {"wE", 6}, {"r*", 14}, {"r", 62}},
                                   {{"g", 122}, {"g*", 32}, {"gE", 4}, {"wE", 6}, {"r*", 10}, {"r", 42}},
                                   {{"g", 138}, {"g*", 36}, {"gE", 4}, {"wE", 6}, {"r*", 6}, {"r", 26}},
                                   {{"g", 152}, {"g*", 40}, {"gE", 4}, {"wE", 6}, {"r*", 3}, {"r", 11}}});
    const Csv csv = ReadCsv(test::SeedsFolder() / "KorvMgrDecChart.csv");
    const double chances[] = {.391, .521, .641, .752, .845, .928};
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(csv.rows[i].Int("RunRating"), static_cast<int>(i));
        EXPECT_NEAR(csv.rows[i].Double("SuccessChance"), chances[i], 0.0006);
    }
}

TEST(ChartSeeds, Bunt) {
    ExpectRows("KorvBuntChart",
               {{{"gSH", 126}, {"g1", 20}, {"gFC", 5}, {"gE", 9}, {"rG", 18}, {"rF", 8}, {"rDP", 4}, {"y2K", 26}},
                {{"gSH", 96}, {"g1", 9}, {"gFC", 4}, {"gE", 8}, {"rG", 36}, {"rF", 13}, {"rDP", 8}, {"y2K", 42}},
                {{"gSH", 112}, {"g1", 14}, {"gFC", 6}, {"gE", 5}, {"rG", 23}, {"rF", 14}, {"y2K", 24}, {"bK", 18}},
                {{"gSH", 84}, {"g1", 8}, {"gFC", 5}, {"gE", 4}, {"rG", 37}, {"rF", 22}, {"y2K", 32}, {"bK", 24}}});
    const Csv csv = ReadCsv(test::SeedsFolder() / "KorvBuntChart.csv");
    const double chances[] = {.74, .54, .63, .47};
    const char* keys[] = {"SA", "SB", "ZA", "ZB"};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(csv.rows[i]["BuntType"] + csv.rows[i]["BuntRating"], keys[i]);
        EXPECT_NEAR(csv.rows[i].Double("SuccessChance"), chances[i], 0.006);
    }
}

TEST(ChartSeeds, StolenBases) {
    // Safe, safe on an error, possible error, out, picked off, balk.
    const int weights[18][6] = {{66, 10, 4, 108, 22, 6}, {85, 11, 4, 88, 22, 6},  {103, 12, 4, 71, 20, 6},
                                {121, 13, 4, 54, 18, 6}, {139, 13, 4, 39, 15, 6}, {156, 13, 4, 26, 11, 6},
                                {56, 9, 4, 133, 10, 4},  {76, 10, 4, 112, 10, 4}, {96, 11, 4, 91, 10, 4},
                                {117, 12, 4, 70, 9, 4},  {138, 13, 4, 49, 8, 4},  {157, 13, 4, 32, 6, 4},
                                {16, 2, 3, 187, 4, 4},   {24, 3, 3, 178, 4, 4},   {35, 4, 3, 166, 4, 4},
                                {48, 5, 3, 152, 4, 4},   {63, 6, 3, 136, 4, 4},   {80, 7, 3, 118, 4, 4}};
    std::vector<Weights> expected;
    for (const auto& w : weights)
        expected.push_back({{"g", w[0]}, {"gE", w[1]}, {"wE", w[2]}, {"r", w[3]}, {"rPK", w[4]}, {"yBK", w[5]}});
    ExpectRows("KorvStolenBaseChart", expected);
    const Csv csv = ReadCsv(test::SeedsFolder() / "KorvStolenBaseChart.csv");
    for (std::size_t i = 0; i < 18; ++i) {
        EXPECT_EQ(csv.rows[i]["SBType"], std::string(1, "23H"[i / 6]));
        EXPECT_EQ(csv.rows[i].Int("RunRating"), static_cast<int>(i % 6));
        const auto& w = weights[i];
        EXPECT_NEAR(csv.rows[i].Double("SuccessChance"), (w[0] + w[1] + w[5] + 0.75 * w[2]) / 216, 0.0001);
    }
}

TEST(ChartSeeds, FieldingPlaces) {
    const char* positions[] = {"P", "C", "1B", "2B", "3B", "SS", "LF", "CF", "RF", "IC", "IM", "OF"};
    const int weights[7][12] = {
        {19, 3, 25, 43, 25, 43, 0, 0, 0, 27, 31, 0},   {2, 7, 11, 12, 11, 15, 38, 63, 40, 0, 4, 13},
        {11, 11, 16, 37, 27, 39, 22, 32, 21, 0, 0, 0}, {90, 26, 42, 8, 50, 0, 0, 0, 0, 0, 0, 0},
        {26, 8, 14, 32, 40, 54, 0, 0, 0, 18, 24, 0},   {0, 0, 0, 0, 0, 0, 56, 74, 56, 0, 0, 30},
        {24, 26, 17, 24, 50, 48, 11, 4, 12, 0, 0, 0}};
    std::vector<Weights> expected(7);
    for (std::size_t row = 0; row < 7; ++row)
        for (std::size_t i = 0; i < 12; ++i)
            if (weights[row][i] > 0) expected[row][positions[i]] = weights[row][i];
    ExpectRows("KorvFieldingDetermination", expected, false);
}

TEST(ChartSeeds, YellowX) {
    ExpectRows("KorvYellowXChartBasic", {{{"yH", 26}, {"yWP", 157}, {"yPB", 17}, {"yBK", 16}}});
    ExpectRows("KorvYellowXChartInjuries",
               {{{"yH", 26}, {"yWP", 127}, {"yPB", 15}, {"yBK", 12}, {"rI", 36}},
                {{"wP", 60},
                 {"wC", 28},
                 {"w1B", 16},
                 {"w2B", 20},
                 {"w3B", 18},
                 {"wSS", 22},
                 {"wLF", 18},
                 {"wCF", 18},
                 {"wRF", 16}},
                {{"b", 172}, {"r2", 12}, {"r4", 10}, {"r8", 8}, {"r15", 8}, {"r30", 4}, {"r60", 2}}});
}

TEST(ChartSeeds, ErrorLettersAreTheSumsOfTheirColumns) {
    const std::string letters = "ABCDEFGHJKLMNPRSTUVWXYZ";
    // The letter's index, which the ratings are measured by: 27 of 36 is average.
    const int index[] = {1, 3, 4, 9, 10, 11, 12, 13, 14, 15, 16, 20, 21, 22, 23, 24, 25, 26, 27, 32, 33, 35, 36};
    const int columnWeight[] = {12, 11, 9, 3, 1};
    const Csv csv = ReadCsv(test::SeedsFolder() / "KorvErrorRating.csv");
    ASSERT_EQ(csv.rows.size(), letters.size());
    for (std::size_t i = 0; i < letters.size(); ++i) {
        EXPECT_EQ(csv.rows[i]["ErrorRating"], std::string(1, letters[i]));
        int stands = 0;
        for (int column = 1; column <= 5; ++column)
            if (csv.rows[i].Int("Roll" + std::to_string(column) + "Color") != kGreenWord)
                stands += columnWeight[column - 1];
        EXPECT_EQ(stands, index[i]) << letters[i];
    }
}

// A record an era: ranges without a gap over every total a byte can hold, each making one more raw roll an out.
TEST(ChartSeeds, DefensiveErasCoverAllTotalsAndRise) {
    std::ifstream file(test::SeedsFolder() / "DefensiveEras.txt");
    std::set<int> ids;
    for (std::string line; std::getline(file, line);) {
        const std::vector<std::string> f = test::SplitLine(line);
        ASSERT_EQ(f.size(), 2U + 18 * 14);
        EXPECT_TRUE(ids.insert(std::atoi(f[0].c_str())).second);
        EXPECT_EQ(line.find('"' + f[1] + '"'), f[0].size() + 1) << "the name is quoted";
        int next = 0;
        for (std::size_t n = 0; n < 18; ++n) {
            const std::size_t at = 2 + n * 14;
            EXPECT_EQ(std::atoi(f[at].c_str()), next) << "range " << n + 1;
            next = std::atoi(f[at + 1].c_str()) + 1;
            int outs = 0;
            for (std::size_t cell = 0; cell < 6; ++cell) {
                const bool red = std::atoi(f[at + 2 + 2 * cell].c_str()) == kRedWord;
                EXPECT_EQ(red, f[at + 3 + 2 * cell] != " ");
                if (red) outs += kCellWeight[cell];
            }
            EXPECT_EQ(outs, static_cast<int>(n) + 2) << f[1] << " range " << n + 1;
        }
        EXPECT_EQ(next, 256);
    }
    EXPECT_EQ(ids.size(), 3U);
}

}  // namespace
}  // namespace tarvane
