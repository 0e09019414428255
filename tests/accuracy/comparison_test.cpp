#include "accuracy/comparison.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <cmath>

#include "accuracy/comparisonpage.h"
#include "base/random.h"
#include "records/player.h"

namespace tarvane {
namespace {

TEST(Noise, IsThatOfDiceWithTheRealChance) {
    // .250 over 400 at bats: sqrt(.25 * .75 / 400) is .02165, and .275 lies .025 above.
    EXPECT_NEAR(NoiseScore(100, 400, 110, 400), 0.025 / 0.0216506, 1e-4);
    EXPECT_NEAR(NoiseScore(100, 400, 25, 100), 0, 1e-12);
    EXPECT_NEAR(NoiseScore(0, 400, 2, 400), 0.005 / std::sqrt(0.00125 * 0.99875 / 400), 1e-9);
    EXPECT_EQ(NoiseScore(100, 400, 0, 0), 0);
    const Estimate estimate = MeanOf({1, 2, 3, 4});
    EXPECT_EQ(estimate.mean, 2.5);
    EXPECT_NEAR(estimate.error, std::sqrt(5.0 / 3 / 4), 1e-12);
    EXPECT_EQ(MeanOf({7}).error, 0);
}

constexpr std::size_t kMen = 400, kReplays = 3;
constexpr double kTrials = 500;

SeasonFigures Season(int year) {
    SeasonFigures figures;
    figures.year = year;
    figures.leagues = {{1, "League", {}}};
    figures.teams = {{"X", "Team X", 1, 160, 90, 70, 800, 700}, {"Y", "Team Y", 1, 160, 70, 90, 700, 800}};
    figures.leagues[0].counts[Figure::Games] = 320;
    figures.leagues[0].counts[Figure::R] = 1500;
    return figures;
}

// Men of many averages whose replays are drawn with exactly these chances, each shifted by so much noise.
std::pair<SeasonFigures, std::vector<SeasonFigures>> MenAndDice(double shift) {
    SeasonFigures real = Season(1975);
    std::vector<SeasonFigures> replays(kReplays, Season(1975));
    Random dice(5);
    for (std::size_t man = 0; man < kMen; ++man) {
        const ManKey key{"man" + std::to_string(man), "X"};
        const auto hits = static_cast<double>(100 + man % 60);
        real.batters[key].total = {.AB = kTrials, .H = hits};
        const double chance = hits / kTrials, noise = std::sqrt(chance * (1 - chance) / kTrials);
        for (SeasonFigures& replay : replays) {
            BattingFigures& now = replay.batters[key].total;
            now.AB = kTrials;
            for (int i = 0; i < kTrials; ++i) now.H += dice.Below(1'000'000) < (chance + shift * noise) * 1e6 ? 1 : 0;
        }
    }
    return {real, replays};
}

const SpreadComparison& Averages(const Comparison& comparison) {
    return comparison.spreads.front();
}

TEST(Players, WhoseDiceHaveTheRealChancesSpreadByOneAndOthersAreTold) {
    const auto [real, fair] = MenAndDice(0);
    const Comparison good = Compare(real, fair, {});
    EXPECT_EQ(Averages(good).what, "AVG");
    EXPECT_EQ(Averages(good).points.size(), kMen);
    EXPECT_NEAR(Averages(good).spread.deviation, 1, 0.05);
    EXPECT_NEAR(Averages(good).spread.mean, 0, 0.08);
    EXPECT_NE(Averages(good).Judge(), Verdict::Fail);

    const auto [same, shifted] = MenAndDice(0.5);
    const Comparison bad = Compare(same, shifted, {});
    EXPECT_NEAR(Averages(bad).spread.mean, 0.5, 0.08);
    EXPECT_EQ(Averages(bad).Judge(), Verdict::Fail);
}

TEST(Clubs, AreComparedPerGameAndAtTheirRealDecisions) {
    const SeasonFigures real = Season(1975);
    SeasonFigures replay = Season(1975);
    replay.teams[0] = {"X", "Team X", 1, 80, 50, 30, 440, 350};  // runs 10 % up; 100 of 160
    replay.teams[1] = {"Y", "Team Y", 1, 80, 30, 50, 350, 440};
    replay.leagues[0].counts[Figure::Games] = 160;
    replay.leagues[0].counts[Figure::R] = 790;
    const Comparison comparison = Compare(real, {replay}, {});
    EXPECT_NEAR(comparison.teams[0].replayW.mean, 100, 1e-9);
    EXPECT_NEAR(comparison.winsError, 10, 1e-9);
    EXPECT_NEAR(comparison.runsError, 0.1 / std::sqrt(2.0), 1e-9);  // for and against: one of two off
    for (const RateComparison& row : comparison.rates) {
        if (row.rate->figure == Figure::R)
            EXPECT_NEAR(*row.Off(), 790.0 / 160 / (1500.0 / 320) - 1, 1e-9);
        else
            EXPECT_EQ(row.Judge(), Verdict::None) << row.rate->name;  // nothing was recorded
    }
}

TEST(Men, WhoPlayedMuchAreComparedByGameAndBothHands) {
    SeasonFigures real = Season(1975), replay = Season(1975);
    replay.teams[0].games = 80;  // half a season
    for (int man = 0; man < 4; ++man) {
        const ManKey key{"man" + std::to_string(man), "X"};
        BatterFigures& was = real.batters[key];
        was.bats = man < 2 ? kLeftHand : kRightHand;
        was.total = {.AB = 480, .H = 120, .BB = 40};
        was.vsLeft = {.AB = 160, .H = 40, .BB = 20};  // the splits have 20 walks by intent, which the totals lack
        was.vsRight = {.AB = 320, .H = 80, .BB = 40};
        BatterFigures& now = replay.batters[key];
        now = was;
        now.total.AB = man == 0 ? 240 : man == 1 ? 263 : man == 2 ? 217 : 300;  // 1, 1.096, .904 and 1.25
        now.vsLeft.BB *= 2.0 / 3, now.vsRight.BB *= 2.0 / 3;
    }
    real.batters[{"few", "X"}].total.AB = 299;
    // A pitcher's bat counts on neither side.
    real.batters[{"pitcher", "X"}] = {"", kLeftHand, {.AB = 100}, {.AB = 50}, {.AB = 50}};
    real.pitchers[{"pitcher", "X"}].BF = 1000;

    const Comparison comparison = Compare(real, {replay}, {});
    EXPECT_EQ(comparison.usage[0].points.size(), 4U);
    EXPECT_NEAR(comparison.usage[0].within, 0.75, 1e-9);
    EXPECT_NEAR(comparison.usage[0].median, (1 + 263.0 / 240) / 2, 1e-9);
    ASSERT_EQ(comparison.platoon.size(), 6U);
    for (std::size_t i = 0; i < 4; ++i) {
        const PlatoonComparison& row = comparison.platoon[i];
        EXPECT_NEAR(row.real, row.replay.mean, 1e-9) << row.batters << row.pitchers;
        EXPECT_EQ(row.Judge(), Verdict::Aim);
    }
    EXPECT_NEAR(comparison.platoon[0].real, 0.25 + (40 + 20 * 2.0 / 3) / (160 + 20 * 2.0 / 3), 1e-9);
    EXPECT_EQ(comparison.platoon[4].Judge(), Verdict::None);  // no switch hitters
}

TEST(Parks, AreMeasuredAgainstThoseThatTheClubVisits) {
    SeasonFigures replay = Season(1975);
    Counts& counts = replay.leagues[0].counts;
    counts[Figure::AB] = 1000, counts[Figure::Singles] = 180, counts[Figure::HR] = 20;
    const auto park = [](const char* home, const char* away, double HR, double roadHR) {
        return ParkFigures{home, 80, 80, 640, 640, 5000, 5000, HR, roadHR, 6400, 6400, {{away, 80}}};
    };
    replay.parks = {park("X", "Y", 150, 75), park("Y", "X", 75, 150)};
    std::map<std::string, ParkFactor> factors;
    factors["X"].HR = 1.4, factors["Y"].HR = 0.7;
    const Comparison comparison = Compare(Season(1975), {replay, replay}, factors);
    ASSERT_EQ(comparison.parks.size(), 2U);
    EXPECT_NEAR(comparison.parks[0].HR.expected, 2, 1e-9);
    EXPECT_NEAR(comparison.parks[0].HR.replay, 2, 1e-9);
    EXPECT_NEAR(comparison.parks[0].HR.score, 0, 1e-9);
    EXPECT_GT(comparison.parks[0].runs.expected, 1);
    EXPECT_LT(comparison.parks[0].runs.score, 0);  // as many runs here as there
}

// Opening and closing tags of a kind, and no text that would open another.
TEST(Page, HoldsAPlotForEveryMeasureAndEscapesNames) {
    auto [real, replays] = MenAndDice(0);
    real.batters.begin()->second.name = "O'Neil <b>&";
    const std::string page = ComparisonPage(Compare(real, replays, {}), "My <League>");
    const auto count = [&](std::string_view word) {
        int found = 0;
        for (auto at = page.find(word); at != std::string::npos; at = page.find(word, at + 1)) ++found;
        return found;
    };
    for (const char* tag : {"svg", "text", "table", "tr", "td", "div", "title"})
        EXPECT_EQ(count(fmt::format("<{}>", tag)) + count(fmt::format("<{} ", tag)), count(fmt::format("</{}>", tag)))
            << tag;
    EXPECT_GE(count("class=\"dot\""), static_cast<int>(kMen));
    EXPECT_EQ(count("<b>"), 0);
    EXPECT_EQ(count("<League>"), 0);
    EXPECT_EQ(count("nan"), 0);
    EXPECT_EQ(count("http"), 0);  // nothing of the page comes from elsewhere
}

}  // namespace
}  // namespace tarvane
