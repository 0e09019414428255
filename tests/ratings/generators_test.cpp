// The generators over a season's tables.

#include "ratings/generators.h"

#include <gtest/gtest.h>

#include "data/parks.h"
#include "ratings/season_tables.h"
#include "season_fixture.h"

namespace tarvane {
namespace {

using test::GenerateAll;
using test::SeasonFixture;

TEST(Generators, ASeedMakesTheSameSeasonTwice) {
    const auto season = [](std::uint64_t seed) {
        SeasonFixture f;
        f.AddRandomPlayers(60, 30, 1);
        GenerateAll(f, seed);
        return f.DumpAll();
    };
    const std::string first = season(5);
    EXPECT_EQ(first, season(5));
    EXPECT_NE(first, season(6));
}

TEST(Generators, EveryCellOfEveryPlayerIsSetAndChancesAgreeWithCharts) {
    SeasonFixture f;
    f.AddRandomPlayers(80, 40, 2);
    GenerateAll(f, 1);
    for (int roll = 10; roll <= 39; ++roll) {
        const std::string n = std::to_string(roll);
        EXPECT_EQ(f.Int("SELECT COUNT(*) FROM KorvBatters WHERE vsL" + n + "Color = 0 OR vsR" + n + "Color = 0"), 0);
        EXPECT_EQ(f.Int("SELECT COUNT(*) FROM KorvPitchers WHERE Bat" + n + "Color = 0 OR pitch" + n + "Color = 0"), 0);
    }
    EXPECT_EQ(f.Int("SELECT COUNT(*) FROM KorvPitchers WHERE pitch10 = 'D' AND pitch38 = 'X' AND pitch38Color = -1"),
              40);
    EXPECT_EQ(f.Int("SELECT COUNT(*) FROM KorvBatters WHERE vsLSinglesChance + vsLDoublesChance + vsLHRChance + "
                    "vsLSOChance > 0"),
              80);
    EXPECT_EQ(f.Int("SELECT COUNT(*) FROM KorvPitchers WHERE tiredRating BETWEEN 13 AND 40"), 40);
    EXPECT_EQ(f.Int("SELECT COUNT(*) FROM LahmanBatting WHERE playerID LIKE 'b%' AND vsLeftAB + vsRightAB = AB"), 80);
    // A pitcher's line without a KorvBatters row isn't split.
    EXPECT_EQ(f.Int("SELECT COUNT(*) FROM LahmanBatting WHERE playerID LIKE 'p%' AND vsRightAB > 0"), 0);
    EXPECT_EQ(f.Text("SELECT Pos1 || Pos2 || Pos3 FROM KorvBatters WHERE LahmanPlayerID = 'b0'"), "SS1B ");
    EXPECT_EQ(f.Text("SELECT Pos1 FROM KorvPitchers WHERE LahmanPlayerID = 'p0'"), "P ");
}

TEST(Generators, WithoutLeaguesNothingChangesAndTheMessageSaysSo) {
    SeasonFixture f;
    f.AddRandomPlayers(3, 2, 1);
    f.season.Execute("DELETE FROM Leagues");
    const std::string before = f.DumpAll();
    Random random(1);
    const auto refused = [&](auto run) {
        try {
            run();
        } catch (const NoLeaguesError& error) {
            return std::string(error.what()) + "#" + error.Title;
        }
        return std::string("no error");
    };
    EXPECT_EQ(refused([&] { GeneratePlayerRatings(f.season, f.common, {}); }),
              "Player Ratings Not Generated - there are no Leagues. \nPlease Contact Tarvane.#Generate Player Ratings");
    EXPECT_EQ(refused([&] { GenerateBatterCells(f.season, f.common, {}, random); }),
              "Batter Cells Not Generated - there are no Leagues. \nPlease Contact Tarvane.#Generate Batter Cells");
    EXPECT_EQ(refused([&] { GeneratePitcherCells(f.season, f.common, {}, random); }),
              "Pitcher Cells Not Generated - there are no Leagues. \nPlease Contact Tarvane.#Generate Pitcher Cells");
    EXPECT_EQ(f.DumpAll(), before);
}

TEST(Generators, PlayersWithoutALineOrAnEraKeepTheirCharts) {
    SeasonFixture f;
    f.AddRandomPlayers(4, 2, 1);
    f.AddBatter("nobody", kRightHand);
    f.AddBatter("b0", kRightHand, 2);  // the same man in a league without an era
    f.season.Execute("UPDATE KorvBatters SET vsL20 = 'own', runRating = 4, Pos1 = '3B'");
    Random random(1);
    GenerateSplits(f.season, {}, nullptr, random);
    const GeneratorReport ratings = GeneratePlayerRatings(f.season, f.common, {});
    EXPECT_EQ(ratings.withoutStatistics, 1);
    EXPECT_EQ(ratings.withoutEra, 1);
    EXPECT_EQ(f.Text("SELECT runRating || BuntRating || Pos1 FROM KorvBatters WHERE LahmanPlayerID = 'nobody'"),
              "0B3B");
    const GeneratorReport cells = GenerateBatterCells(f.season, f.common, {}, random);
    EXPECT_EQ(cells.written, 4);
    EXPECT_EQ(cells.withoutStatistics, 1);
    EXPECT_EQ(f.Text("SELECT vsL20 FROM KorvBatters WHERE LahmanPlayerID = 'nobody'"), "own");
    EXPECT_EQ(f.Text("SELECT vsL20 FROM KorvBatters WHERE LahmanPlayerID = 'b0' AND lgIdx = 2"), "own");
    EXPECT_NE(f.Text("SELECT vsL20 FROM KorvBatters WHERE LahmanPlayerID = 'b0' AND lgIdx = 1"), "own");
}

TEST(Generators, CatchersMarksAndLaterSlotsStay) {
    SeasonFixture f;
    f.AddRandomPlayers(2, 1, 1);
    f.AddBatter("c", kRightHand);
    f.AddFielding("c", "C", 100, 600, 80, 8, 6);  // twice the league's assists
    f.season.Execute(
        "UPDATE KorvBatters SET Pos2 = 'LF', Pos2Rating = 7, CatcherORating = -1 WHERE LahmanPlayerID = 'c'");
    GeneratePlayerRatings(f.season, f.common, {});
    EXPECT_EQ(
        f.Text("SELECT CatcherIRating || ',' || CatcherORating || Pos1 || Pos2 || Pos2Rating FROM KorvBatters WHERE "
               "LahmanPlayerID = 'c'"),
        "-1,-1C LF7");
    f.season.Execute("UPDATE LahmanFielding SET A = 45 WHERE playerID = 'c'");
    GeneratePlayerRatings(f.season, f.common, {});
    EXPECT_EQ(f.Int("SELECT CatcherIRating FROM KorvBatters WHERE LahmanPlayerID = 'c'"), -1);
}

TEST(Generators, OnePlayerByTheChosenEra) {
    SeasonFixture f;
    f.AddRandomPlayers(6, 4, 3);
    GenerateAll(f, 1);
    f.AddEra(777);
    f.common.Execute("UPDATE KorvYears SET AvgSOBFP = 0, PAFactor = 0.5 WHERE EraId = 777");
    f.season.Execute("DELETE FROM Leagues");  // one man needs none
    const std::string batters = SeasonFixture::Dump(f.season, "KorvBatters");
    const auto rows = ReadPlayers(f.season, PlayerTable::Pitchers);

    GeneratorScope scope;
    scope.player = SinglePlayer{true, rows[2].playerID, "AAA", 777};
    Random random(9);
    EXPECT_EQ(GeneratePlayerRatings(f.season, f.common, scope).written, 1);
    EXPECT_EQ(GeneratePitcherCells(f.season, f.common, scope, random).written, 1);
    EXPECT_EQ(GenerateBatterCells(f.season, f.common, scope, random).written, 0);
    EXPECT_EQ(SeasonFixture::Dump(f.season, "KorvBatters"), batters);
    // Against an era without strikeouts he has some to his credit.
    EXPECT_GT(f.Int("SELECT ROUND(SOChance * 210) FROM KorvPitchers WHERE LahmanPlayerID = 'p2'"), 0);
}

// Stops after so many reports.
class Stopper : public Progress {
  public:
    explicit Stopper(int reports) : left_(reports) {}
    bool Report(std::string_view what, int done, int total) override {
        EXPECT_FALSE(what.empty());
        EXPECT_LE(done, total);
        return left_-- > 0;
    }

  private:
    int left_;
};

TEST(Generators, AStopLeavesTheSeasonAsItWas) {
    SeasonFixture f;
    f.AddRandomPlayers(150, 10, 4);
    const std::string before = f.DumpAll();
    for (int reports = 0; reports < 3; ++reports) {
        Stopper stopper(reports);
        Random random(1);
        EXPECT_THROW(GenerateSplits(f.season, {}, nullptr, random, &stopper), Cancelled);
        Stopper again(reports);
        EXPECT_THROW(GeneratePlayerRatings(f.season, f.common, {}, &again), Cancelled);
        EXPECT_EQ(f.DumpAll(), before);
    }
}

// Real splits of one man.
class OneMansSplits : public RetroSplitLookup {
  public:
    std::optional<RetroLine> Find(std::string_view playerName, std::string_view teamID) override {
        if (playerName != "Name b1" || teamID != "AAA") return std::nullopt;
        RetroLine line;
        line.vsLeft.AB = 111, line.vsLeft.H = 44;
        return line;
    }
};

TEST(Generators, RealSplitsReplaceTheEstimate) {
    SeasonFixture f;
    f.AddRandomPlayers(3, 2, 4);
    OneMansSplits splits;
    Random random(1);
    GenerateSplits(f.season, {}, &splits, random);
    EXPECT_EQ(f.Text("SELECT vsLeftAB || ' ' || vsLeftH || ' ' || vsRightH FROM LahmanBatting WHERE playerID = 'b1'"),
              "111 44 0");
    EXPECT_EQ(f.Int("SELECT COUNT(*) FROM LahmanBatting WHERE vsLeftAB = 111"), 1);
}

TEST(Generators, TheLongestStatisticsOfAnImportFitTheirColumns) {
    SeasonFixture f;
    LahmanPitchingRow pitching;
    pitching.G = 1, pitching.IPouts = 1, pitching.H = 30, pitching.BB = 30, pitching.BFP = 1;
    f.AddPitcher("p", kLeftHand, pitching);
    LahmanBattingRow batting;
    batting.AB = 1, batting.H = 1, batting.HR = 1, batting.BB = 200, batting.HBP = 50, batting.SO = 300,
    batting.RBI = 200;
    f.AddBattingLine("p", batting);
    f.AddBattingLine("b", batting);
    f.AddBatter("b", kLeftHand);
    EXPECT_NO_THROW(GenerateAll(f, 1));
    EXPECT_EQ(f.Int("SELECT COUNT(*) FROM KorvBatters WHERE BBRating = 40 AND SORating = 40"), 1);
}

TEST(Generators, MeanOfTheEras) {
    SeasonFixture f;
    const auto mean = [&f] { return MeanPAFactor(LoadLeagueBaselines(f.common, f.season)); };
    EXPECT_DOUBLE_EQ(mean(), 0.9);
    f.AddEra(3);
    f.common.Execute("UPDATE KorvYears SET PAFactor = 0.9111 WHERE EraId = 3");
    f.season.Execute("INSERT INTO Leagues (lgIdx, EraID) VALUES (2, 3)");
    EXPECT_DOUBLE_EQ(mean(), 0.906);
    f.season.Execute("DELETE FROM Leagues");
    EXPECT_DOUBLE_EQ(mean(), 0.95);
}

}  // namespace
}  // namespace tarvane
