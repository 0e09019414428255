// The audit of charts against the statistics they were made from.

#include <gtest/gtest.h>

#include <numeric>

#include "ratings/chart_audit.h"
#include "season_fixture.h"

namespace tarvane {
namespace {

// A chart of one text and colour with other cells in places.
ChartCells Chart(const ChartCell& all, const std::vector<std::pair<int, ChartCell>>& others = {}) {
    ChartCells cells;
    cells.fill(all);
    for (const auto& [roll, cell] : others) cells[static_cast<std::size_t>(roll - kFirstRoll)] = cell;
    return cells;
}

TEST(ChartAudit, AMeetingFollowsTheCells) {
    // A sixth of the dice hit a home run, a twelfth a single.
    const AuditRates batter = WeightsOfBattingChart(Chart(
        {"F", kRedWord},
        {{34, {"HR", kGreenWord}}, {35, {"HR", kGreenWord}}, {33, {"(1)", kGreenWord}}, {39, {"1*", kGreenWord}}}));
    EXPECT_EQ(At(batter, AuditResult::HomeRun), 36);
    EXPECT_EQ(At(batter, AuditResult::Single), 18);

    const auto meet = [&](const ChartCell& pitch, int rating) {
        return MeetingRates(WeightsOfPitchingChart(Chart(pitch)), batter, rating, rating, AuditSettings{0, 0, true});
    };
    EXPECT_DOUBLE_EQ(At(meet({" ", kGreenWord}, 40), AuditResult::HomeRun), 1.0 / 6);
    EXPECT_DOUBLE_EQ(At(meet({"HR", kGreenWord}, 40), AuditResult::HomeRun), 54 / 216.0);
    EXPECT_DOUBLE_EQ(At(meet({"(HR)", kGreenWord}, 40), AuditResult::Single), 54 / 216.0);
    EXPECT_DOUBLE_EQ(At(meet({"1+", kGreenWord}, 40), AuditResult::Single), 1);
    EXPECT_DOUBLE_EQ(At(meet({" ", kBlueWord}, 40), AuditResult::Strikeout), 1);
    // A rating of 30 passes on the rolls 10 to 29: half the dice; the other half swings.
    EXPECT_DOUBLE_EQ(At(meet({" ", kBlueWord}, 30), AuditResult::Strikeout), 0.5);
    EXPECT_DOUBLE_EQ(At(meet({" ", kStoredYellowWord}, 30), AuditResult::Walk), 0.5);
    EXPECT_DOUBLE_EQ(At(meet({" ", kStoredYellowWord}, 30), AuditResult::HomeRun), 1.0 / 12);

    // What the Yellow X sends back to the dice is shared out among the rest.
    const PitchingWeights half = WeightsOfPitchingChart(Chart({" ", kBlueWord}, {{34, {"X", kStoredYellowWord}}}));
    const AuditRates rates = MeetingRates(half, batter, 40, 40, AuditSettings{0, 0.5, true});
    EXPECT_DOUBLE_EQ(At(rates, AuditResult::HitBatter), 9 / 207.0);
    EXPECT_NEAR(std::accumulate(rates.begin(), rates.end(), 0.0), 1, 1e-12);
}

TEST(ChartAudit, ChartsOfASeasonComeNearItsStatistics) {
    // A league in which all bat and pitch alike, measured by an era of just these rates: the charts must give them
    // back.
    test::SeasonFixture f;
    LahmanBattingRow batting;
    batting.AB = 550, batting.H = 148, batting.Doubles = 24, batting.Triples = 4, batting.HR = 12, batting.BB = 55;
    batting.SO = 80, batting.HBP = 3, batting.SF = 5, batting.RBI = 60;
    LahmanPitchingRow pitching;
    pitching.G = 35, pitching.GS = 30, pitching.IPouts = 700, pitching.BFP = 1000, pitching.IBB = 0;
    pitching.H = 241, pitching.HR = 20, pitching.BB = 90, pitching.SO = 131;
    for (int i = 0; i < 40; ++i) {
        f.AddBatter("b" + std::to_string(i), kSwitchHitter);
        f.AddBattingLine("b" + std::to_string(i), batting);
        f.AddPitcher("p" + std::to_string(i), i % 3 == 0 ? kLeftHand : kRightHand, pitching);
    }
    f.common.Execute(
        "UPDATE KorvYears SET PAFactor = 0.897, BBAvg = 0.09, SOAvg = 0.13, HBPRate = 0.005, RBIAvg = 0.098, "
        "AvgSOBFP = 0.131, AvgBBBFP = 0.09, AvgHBFP = 0.241, AvgHRBFP = 0.02");
    test::GenerateAll(f, 1);
    const std::vector<LeagueAudit> audit = AuditCharts(f.season, {});
    ASSERT_EQ(audit.size(), 2U);
    const LeagueAudit& league = audit.front();
    EXPECT_EQ(league.PA, 40 * (550 + 55 + 3 + 5));
    EXPECT_NEAR(At(league.real, AuditResult::HomeRun), 12.0 / 613, 1e-9);
    for (const AuditResult result :
         {AuditResult::Single, AuditResult::Double, AuditResult::HomeRun, AuditResult::Walk}) {
        EXPECT_NEAR(At(league.charts, result) / At(league.real, result), 1, 0.2) << AuditResultName(result);
    }
    EXPECT_NEAR(std::accumulate(league.charts.begin(), league.charts.end(), 0.0), 1, 1e-9);
    EXPECT_EQ(league.charts, audit.back().charts);
    EXPECT_NE(AuditText(audit).find("home runs"), std::string::npos);
}

}  // namespace
}  // namespace tarvane
