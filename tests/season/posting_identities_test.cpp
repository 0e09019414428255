// Accounts of a part of a season on the sample league: whatever is posted must add up, from whichever side it is read.

#include <fmt/core.h>
#include <gtest/gtest.h>

#include "base/error.h"
#include "data/resets.h"
#include "data/rules.h"
#include "data/teams.h"
#include "postingseason.h"
#include "season/realstats.h"
#include "season/seasonhash.h"

namespace tarvane {
namespace {

constexpr long kGames = 96;

class PostedSeason : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        made_ = testing::MakeScheduledSeason(12);
        testing::PlaySome(*made_, kGames);
    }
    static void TearDownTestSuite() { made_.reset(); }
    static Database& season() { return *made_->season; }

    // No row of the query: each would be an account that doesn't balance.
    static void ExpectNone(const std::string& sql) {
        Statement rows = season().Prepare(sql);
        while (rows.Step()) {
            std::string row;
            for (int column = 0; column < rows.ColumnCount(); ++column) row += rows.Text(column) + " | ";
            ADD_FAILURE() << row << " by " << sql;
        }
    }
    static std::int64_t Number(const std::string& sql) {
        Statement row = season().Prepare(sql);
        return row.Step() ? row.Int(0) : -1;
    }

  private:
    static std::unique_ptr<testing::PlayableSeason> made_;
};
std::unique_ptr<testing::PlayableSeason> PostedSeason::made_;

const char* const kBatting[] = {"AB", "H", "2B", "3B", "HR", "RBI", "SB", "CS", "BB", "SO", "HBP", "SH", "SF", "GIDP"};

std::string PlayersName(const std::string& column) {
    return column == "2B" ? "Doubles" : column == "3B" ? "Triples" : "\"" + column + "\"";
}

TEST_F(PostedSeason, EveryGameHasOneWinnerAndOneLoser) {
    EXPECT_EQ(Number("SELECT count(*) FROM Schedule WHERE Played <> 0"), kGames);
    for (const char* sum :
         {"SELECT sum(W) FROM KorvTeams", "SELECT sum(L) FROM KorvTeams", "SELECT sum(W) FROM KorvPitchers",
          "SELECT sum(vsTeamWins) FROM TeamVsTeam", "SELECT sum(HomeWins + HomeLosses) FROM KorvTeams",
          "SELECT count(*) FROM Schedule WHERE Played <> 0 AND VisitorScore <> HomeScore"})
        EXPECT_EQ(Number(sum), kGames) << sum;
    ExpectNone("SELECT GameID, sum(W), sum(L) FROM KorvPitcherResultsLog GROUP BY GameID HAVING sum(W) <> 1");
    ExpectNone(
        "SELECT teamID FROM KorvTeams t WHERE W <> (SELECT sum(vsTeamWins) FROM TeamVsTeam v WHERE v.TeamIndex "
        "= t.TeamIdx) OR abs(Pct - W / (W + L + 0.0)) > 1e-12 OR RF - RA <> (SELECT sum(CASE WHEN "
        "HomeTeamIndex = TeamIdx THEN HomeScore - VisitorScore ELSE VisitorScore - HomeScore END) FROM Schedule "
        "WHERE Played <> 0 AND TeamIdx IN (HomeTeamIndex, VisitorTeamIndex))");
    const std::int64_t divisionGames = Number("SELECT count(*) FROM Schedule WHERE DivGame <> 0");
    EXPECT_GT(divisionGames, 0);
    EXPECT_EQ(Number("SELECT sum(DivWins) FROM KorvTeams"), divisionGames);
    EXPECT_EQ(Number("SELECT sum(DivLosses) FROM KorvTeams"), divisionGames);
}

TEST_F(PostedSeason, TeamsAreTheSumsOfTheirMenAndOfTheirGames) {
    for (const std::string column : kBatting) {
        ExpectNone(fmt::format(
            "SELECT teamID, '{0}', \"{0}\" FROM KorvTeams t WHERE \"{0}\" <> (SELECT sum({1}) FROM KorvBatters b WHERE "
            "b.teamID = t.teamID) + (SELECT sum(\"{0}\") FROM KorvPitchers p WHERE p.teamID = t.teamID)",
            column, PlayersName(column)));
    }
    for (const char* column : {"Games", "GS", "CG", "SV", "IPOuts", "OppBB", "OppSO", "ER", "OppHR", "OppHBP"})
        ExpectNone(
            fmt::format("SELECT teamID, '{0}', {0} FROM KorvTeams t WHERE {0} <> (SELECT sum({0}) FROM "
                        "KorvPitchers p WHERE p.teamID = t.teamID)",
                        column));
    for (const char* column :
         {"AB", "H", "2B", "SB", "GIDP", "Games", "CG", "SHO", "SV", "IPOuts", "oppH", "ER", "PutOuts", "Assists",
          "Errors", "DoublePlays", "PassBalls", "OpponentCS", "PitcherAutoOuts"})
        ExpectNone(fmt::format(
            "SELECT teamID, '{0}', \"{0}\" FROM KorvTeams t WHERE \"{0}\" <> coalesce((SELECT sum(\"Visitor{0}\") FROM "
            "Schedule WHERE VisitorTeamIndex = TeamIdx), 0) + coalesce((SELECT sum(\"Home{0}\") FROM Schedule WHERE "
            "HomeTeamIndex = TeamIdx), 0)",
            column));
    ExpectNone(
        "SELECT teamID, RF, RA, GS FROM KorvTeams t WHERE RF <> (SELECT sum(R) FROM KorvBatters b WHERE "
        "b.teamID = t.teamID) + (SELECT sum(R) FROM KorvPitchers p WHERE p.teamID = t.teamID) OR RA <> (SELECT "
        "sum(OppRuns) FROM KorvPitchers p WHERE p.teamID = t.teamID) OR GS <> W + L OR ER > RA");
    EXPECT_EQ(Number("SELECT sum(H) - sum(oppH) FROM KorvTeams"), 0);
}

// Charts make no double of "a put-out for each out": men caught stealing and picked off have none.
TEST_F(PostedSeason, FieldingRowsGiveTheTeamsPutOuts) {
    for (const char* column : {"PutOuts", "Assists", "Errors", "DoublePlays", "PassBalls", "OpponentSB", "OpponentCS",
                               "GreatDefensivePlays"})
        ExpectNone(
            fmt::format("SELECT teamID, '{0}', {0} FROM KorvTeams t WHERE {0} <> (SELECT sum({0}) FROM "
                        "FieldingStats f WHERE f.teamID = t.teamID AND Position NOT IN ('PH', 'PR', 'DH'))",
                        column));
    ExpectNone(
        "SELECT teamID, IPOuts, PutOuts, OpponentCS FROM KorvTeams WHERE PutOuts + OpponentCS > IPOuts + 30 OR "
        "PutOuts < IPOuts * 0.95 - OpponentCS OR PutOuts > IPOuts");
    ExpectNone(
        "SELECT playerID, playerType, Position, teamID, count(*) FROM FieldingStats GROUP BY playerID, "
        "playerType, Position, teamID HAVING count(*) > 1");
    // At every position stands one man in every inning: nobody's games are lost or double.
    ExpectNone(
        fmt::format("SELECT Position, sum(GamesAtPos) FROM FieldingStats WHERE Position NOT IN ('PH', 'PR', "
                    "'DH') GROUP BY Position HAVING sum(GamesAtPos) < {}",
                    2 * kGames));
}

TEST_F(PostedSeason, LogsGiveTheTotalsOfEveryMan) {
    for (const std::string column : kBatting) {
        ExpectNone(
            fmt::format("SELECT playerName, '{0}', {1} FROM KorvBatters b WHERE {1} <> coalesce((SELECT "
                        "sum(\"{0}\") FROM KorvBatterResultsLog l WHERE l.PlayerID = b.playerID), 0)",
                        column, PlayersName(column)));
        ExpectNone(
            fmt::format("SELECT playerName, '{0}' FROM KorvPitchers p WHERE \"{0}\" <> coalesce((SELECT "
                        "sum(\"{0}\") FROM KorvPitcherResultsLog l WHERE l.PlayerID = p.playerID), 0)",
                        column));
    }
    for (const char* column : {"Games", "GS", "CG", "SHO", "SV", "W", "L", "IPOuts", "OppHits", "OppHR", "ER", "OppBB",
                               "OppSO", "OppHBP", "OppRuns", "BF", "PitcherAutoOuts"})
        ExpectNone(
            fmt::format("SELECT playerName, '{0}' FROM KorvPitchers p WHERE {0} <> coalesce((SELECT sum({0}) "
                        "FROM KorvPitcherResultsLog l WHERE l.PlayerID = p.playerID), 0)",
                        column));
    ExpectNone(
        "SELECT playerName, G FROM KorvBatters b WHERE G <> (SELECT count(DISTINCT GameID) FROM "
        "KorvBatterResultsLog l WHERE l.PlayerID = b.playerID)");
    ExpectNone(
        "SELECT l.GameID, l.GameDate FROM KorvBatterResultsLog l LEFT JOIN Schedule s ON s.GameID = l.GameID "
        "WHERE s.GameDate IS NOT l.GameDate OR s.Played = 0 LIMIT 3");
}

TEST_F(PostedSeason, SplitsAddUpAndRatesFollowFromTotals) {
    for (const char* column : {"AB", "H", "2B", "3B", "HR", "RBI", "BB", "SO", "HBP", "SH", "SF", "GIDP"})
        ExpectNone(fmt::format("SELECT playerName, '{0}' FROM KorvBatters WHERE {1} <> \"vsLeft{0}\" + \"vsRight{0}\"",
                               column, PlayersName(column)));
    EXPECT_GT(Number("SELECT sum(vsLeftAB) FROM KorvBatters"), 0);
    ExpectNone(
        "SELECT playerName, Avg, SLG, OPS FROM KorvBatters WHERE AB > 0 AND (abs(Avg - H / (AB + 0.0)) > 1e-12 "
        "OR abs(SLG - (H + Doubles + 2 * Triples + 3 * HR) / (AB + 0.0)) > 1e-12 OR abs(OPS - SLG - OBP) > "
        "1e-12 OR abs(RC - SLG * OBP * AB) > 1e-9)");
    ExpectNone("SELECT playerName, Avg FROM KorvPitchers WHERE AB > 0 AND abs(Avg - H / (AB + 0.0)) > 1e-12");
    ExpectNone(
        "SELECT playerName, ERA, IPOuts FROM KorvPitchers WHERE IPOuts > 0 AND abs(ERA - ER * 27.0 / IPOuts) > "
        "ERA * 0.001");
}

TEST_F(PostedSeason, StreaksAreThoseThatARebuildFinds) {
    const std::uint64_t posted = HashSeason(season());
    Transaction undo(season());
    RebuildStreaks(season());
    EXPECT_EQ(HashSeason(season()), posted);
    season().Execute("UPDATE KorvTeams SET StreakNumberGames = 99 WHERE TeamIdx = 1");
    EXPECT_NE(HashSeason(season()), posted);
}

TEST_F(PostedSeason, RestIsOwedByThoseWhoPitched) {
    EXPECT_GT(Number("SELECT count(*) FROM KorvPitchers WHERE PitcherRestDays > 0"), 16);
    ExpectNone("SELECT playerName FROM KorvPitchers WHERE PitcherRestDays > 0 AND Games = 0");
    // A start never follows another of the same man within his rest: at least three days lie between.
    ExpectNone(
        "SELECT a.PlayerID, a.GameDate, b.GameDate FROM KorvPitcherResultsLog a JOIN KorvPitcherResultsLog b ON "
        "a.PlayerID = b.PlayerID AND a.GS = 1 AND b.GS = 1 AND a.GameID < b.GameID AND a.IPOuts >= 18 AND "
        "julianday(b.GameDate) - julianday(a.GameDate) < 3");
}

TEST_F(PostedSeason, TheHurtSitOut) {
    EXPECT_GT(Number("SELECT count(*) FROM KorvBatterResultsLog WHERE InjuryDate = GameDate AND InjuredDays > 0"), 3);
    ExpectNone(
        "SELECT a.PlayerID, a.InjuryDate, a.InjuredDays, b.GameDate FROM KorvBatterResultsLog a JOIN "
        "KorvBatterResultsLog b ON a.PlayerID = b.PlayerID AND a.InjuryDate = a.GameDate AND b.GameDate > "
        "a.GameDate AND julianday(b.GameDate) - julianday(a.GameDate) < a.InjuredDays");
}

TEST_F(PostedSeason, TheBestBattersInMemoryAreThoseOfTheTables) {
    TopBatters top;
    top.Read(season());
    Statement sum = season().Prepare("SELECT sum(W + L), count(*) FROM KorvTeams");
    sum.Step();
    int marked = 0;
    const LeagueRules rules = LoadLeagueRules(season());
    for (const Team& team : LoadTeamList(season(), rules)) {
        const TeamRoster roster = LoadTeamRoster(season(), team.teamID, rules);
        const std::vector<bool> expected = FindTopBatters(season(), roster, false);
        EXPECT_EQ(top.Of(roster, sum.Int(0), sum.Int(1)), expected) << team.teamID;
        marked += static_cast<int>(std::count(expected.begin(), expected.end(), true));
    }
    EXPECT_GT(marked, 20);
}

}  // namespace
}  // namespace tarvane
