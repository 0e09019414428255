// A real season, where its statistics are at hand: the charts of 1975 must be those of 1975.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>

#include "base/csv.h"
#include "base/file.h"
#include "base/text.h"
#include "core/paths.h"
#include "data/seeds.h"
#include "ratings/chart_audit.h"
#include "ratings/player_card.h"
#include "season_fixture.h"

namespace tarvane {
namespace {

using Cells = std::map<std::string, std::string>;

// The rows of a file as name and text, for which the column has the value.
std::vector<Cells> RowsWhere(const std::filesystem::path& file, const std::string& column, const std::string& value) {
    const std::string text = ReadFile(file);
    CsvReader reader(text, file.filename().string());
    std::vector<std::string_view> cells;
    reader.Next(cells);
    const std::vector<std::string> names(cells.begin(), cells.end());
    const auto wanted = static_cast<std::size_t>(std::find(names.begin(), names.end(), column) - names.begin());
    std::vector<Cells> rows;
    while (reader.Next(cells)) {
        if (!value.empty() && cells.at(wanted) != value) continue;
        Cells& row = rows.emplace_back();
        for (std::size_t i = 0; i < names.size(); ++i) row[names[i]] = std::string(cells.at(i));
    }
    return rows;
}

int Int(Cells& row, const char* name) {
    return static_cast<int>(ParseInt(row[name]).value_or(0));
}

std::int32_t Hand(const std::string& letter) {
    return letter == "L" ? kLeftHand : letter == "B" ? kSwitchHitter : kRightHand;
}

class RealSeason : public ::testing::Test {
  protected:
    void SetUp() override {
        const char* folder = std::getenv("TARVANE_REAL_DATA");
        if (folder == nullptr) GTEST_SKIP() << "TARVANE_REAL_DATA names no folder of real statistics";
        const std::filesystem::path csv = std::filesystem::path(folder) / "lahman" / "csv";
        f.common.Execute("DELETE FROM KorvYears");
        LoadSeed(f.common, "KorvYears", AssetsPath() / "seeds" / "KorvYears.csv");
        f.season.Execute("UPDATE Leagues SET EraID = 19751");
        f.season.Execute("INSERT INTO LeagueRules DEFAULT VALUES");
        for (Cells& man : RowsWhere(csv / "People.csv", "", "")) people_[man["playerID"]] = man;
        Transaction transaction(f.season);
        ReadPitchers(csv);
        ReadBatters(csv);
        for (Cells& row : RowsWhere(csv / "Fielding.csv", "yearID", "1975")) {
            if (row["lgID"] != "AL") continue;
            const std::string pos = row["POS"] == "OF" ? "CF" : row["POS"];
            f.AddFielding(row["playerID"] + row["teamID"], pos, Int(row, "G"), Int(row, "PO"), Int(row, "A"),
                          Int(row, "E"), Int(row, "DP"));
        }
        transaction.Commit();
        test::GenerateAll(f, 1975);
    }

    void ReadPitchers(const std::filesystem::path& csv) {
        for (Cells& row : RowsWhere(csv / "Pitching.csv", "yearID", "1975")) {
            if (row["lgID"] != "AL") continue;
            LahmanPitchingRow line;
            line.G = Int(row, "G"), line.GS = Int(row, "GS"), line.CG = Int(row, "CG"),
            line.IPouts = Int(row, "IPouts");
            line.H = Int(row, "H"), line.HR = Int(row, "HR"), line.BB = Int(row, "BB"), line.SO = Int(row, "SO");
            line.BFP = Int(row, "BFP"), line.IBB = Int(row, "IBB");
            const std::string key = row["playerID"] + row["teamID"];
            f.AddPitcher(key, Hand(people_[row["playerID"]]["throws"]), line);
            pitchers_[key] = true;
        }
    }

    void ReadBatters(const std::filesystem::path& csv) {
        for (Cells& row : RowsWhere(csv / "Batting.csv", "yearID", "1975")) {
            const std::string key = row["playerID"] + row["teamID"];
            if (row["lgID"] != "AL" || Int(row, "AB") == 0) continue;
            LahmanBattingRow line;
            line.G = Int(row, "G"), line.AB = Int(row, "AB"), line.R = Int(row, "R"), line.H = Int(row, "H");
            line.Doubles = Int(row, "2B"), line.Triples = Int(row, "3B"), line.HR = Int(row, "HR");
            line.RBI = Int(row, "RBI"), line.SB = Int(row, "SB"), line.BB = Int(row, "BB"), line.CS = Int(row, "CS");
            line.SO = Int(row, "SO"), line.IBB = Int(row, "IBB"), line.HBP = Int(row, "HBP"), line.SH = Int(row, "SH");
            line.SF = Int(row, "SF"), line.GIDP = Int(row, "GIDP");
            f.AddBattingLine(key, line);
            if (!pitchers_[key]) f.AddBatter(key, Hand(people_[row["playerID"]]["bats"]));
        }
    }

    test::SeasonFixture f;

  private:
    std::map<std::string, Cells> people_;
    std::map<std::string, bool> pitchers_;
};

TEST_F(RealSeason, TheLeagueOf1975ComesOutOfItsCharts) {
    AuditSettings settings;
    settings.hitOnYellowX = 0.25;
    SCOPED_TRACE(AuditText(AuditCharts(f.season, settings)));
    // The year chart gives the extra-base hits that are missing here.
    const LeagueAudit league = AuditCharts(f.season, settings).front();
    EXPECT_GT(league.PA, 70000);
    EXPECT_NEAR(At(league.charts, AuditResult::Single) / At(league.real, AuditResult::Single), 1, 0.1);
    EXPECT_NEAR(At(league.charts, AuditResult::Double) / At(league.real, AuditResult::Double), 1, 0.2);
    EXPECT_NEAR(At(league.charts, AuditResult::HomeRun) / At(league.real, AuditResult::HomeRun), 1, 0.2);
    EXPECT_NEAR(At(league.charts, AuditResult::Strikeout) / At(league.real, AuditResult::Strikeout), 1, 0.15);
    EXPECT_NEAR(At(league.charts, AuditResult::Walk) / At(league.real, AuditResult::Walk), 1, 0.2);

    // A slugging centre fielder, rookie of that year.
    const std::string where = " FROM KorvBatters WHERE LahmanPlayerID = 'lynnfr01BOS'";
    EXPECT_EQ(f.Int("SELECT BBRating" + where), 40);
    EXPECT_EQ(f.Text("SELECT BuntRating" + where), "A");
    EXPECT_GE(f.Int("SELECT runRating" + where), 1);
    EXPECT_LE(f.Int("SELECT runRating" + where), 4);
    EXPECT_GE(f.Int("SELECT Pos1Rating" + where), 3);  // he led the league in range
    // He hit left-handed: better against right-handers.
    EXPECT_GT(f.Int("SELECT ROUND(216 * vsRDoublesChance)" + where), 12);
    EXPECT_GE(f.Int("SELECT ROUND(216 * (vsRHRChance - vsLHRChance))" + where), 0);
    EXPECT_NE(PlayerCard(f.season, f.common, "Name lynnfr01BOS", "", {}).find("Against left-handed"),
              std::string::npos);
}

}  // namespace
}  // namespace tarvane
