#include <gtest/gtest.h>

#include <array>
#include <cstdio>

#include "data/teams.h"
#include "season/gamesetup.h"
#include "seasons.h"

namespace tarvane {
namespace {

// What is counted a team and game, in reality and in replay.
enum Rate { kSB, kCS, kSH, kGIDP, kPitchers, kComplete, kSaves, kRuns, kRates };
constexpr std::array<const char*, kRates> kNames{"SB", "CS", "SH", "GIDP", "pitchers", "complete", "saves", "runs"};
using Rates = std::array<double, kRates>;

Rates Reality(Database& season) {
    Statement batting = season.Prepare("SELECT sum(SB), sum(CS), sum(SH), sum(GIDP), sum(R) FROM LahmanBatting");
    Statement pitching = season.Prepare("SELECT sum(GS), sum(G), sum(CG), sum(SV) FROM LahmanPitching");
    if (!batting.Step() || !pitching.Step()) return {};
    const double games = pitching.Double(0);
    Rates rates{};
    for (int i = 0; i < 4; ++i) rates[static_cast<std::size_t>(i)] = batting.Double(i) / games;
    for (int i = 0; i < 3; ++i) rates[static_cast<std::size_t>(kPitchers + i)] = pitching.Double(1 + i) / games;
    rates[kRuns] = batting.Double(4) / games;
    return rates;
}

void Count(const TeamState& team, Rates& sums) {
    for (int i = 0; i < team.box.BatterLineCount; ++i) {
        const BatterLine& line = team.box.batter[static_cast<std::size_t>(i)];
        sums[kSB] += line.SB, sums[kCS] += line.CS, sums[kSH] += line.total.SH, sums[kGIDP] += line.total.GIDP;
    }
    sums[kPitchers] += team.box.PitchersUsed;
    sums[kComplete] += team.box.PitchersUsed == 1 ? 1 : 0;
    for (int i = 0; i < team.box.PitchersUsed; ++i)
        sums[kSaves] += team.box.pitching[static_cast<std::size_t>(i)].Save ? 1 : 0;
    sums[kRuns] += team.Runs;
}

TEST(RealSeason, RatesOfComputerManagedGamesAreThoseOfTheSportAtLeastByHalf) {
    const char* folder = std::getenv("TARVANE_REAL_DATA");
    if (folder == nullptr) GTEST_SKIP() << "TARVANE_REAL_DATA names no folder of real statistics";
    const testing::PlayableSeason made(std::filesystem::path(folder) / "lahman" / "csv", 1975);
    const std::vector<Team> teams = LoadTeamList(*made.season, {});
    ASSERT_EQ(teams.size(), 24U);
    Rates sums{};
    int games = 0;
    for (std::size_t i = 0; i < teams.size(); ++i)
        for (std::size_t apart = 1; apart < 12; apart += 2) {
            const std::string& home = teams[(i + apart) % teams.size()].teamID;
            const GameSetup setup = LoadExhibition(*made.common, *made.season, teams[i].teamID, home);
            for (std::uint64_t n = 0; n < 8; ++n) {
                GameState state;
                for (const Side side : kBothSides) state.computer[side] = setup.control[side];
                ASSERT_EQ(StartGame(setup.data, setup.lineup[Side::Visitor], setup.lineup[Side::Home], state),
                          Reject::None);
                Random dice(i * 100 + apart * 10 + n);
                ComputerManager visitor(Side::Visitor, Random(n + 1), setup.knowledge[Side::Visitor]);
                ComputerManager homer(Side::Home, Random(n + 99), setup.knowledge[Side::Home]);
                PlayOut(setup.data, state, dice, visitor, homer);
                ASSERT_TRUE(state.GameOverFlag);
                for (const Side side : kBothSides) Count(state[side], sums);
                ++games;
            }
        }
    const Rates real = Reality(*made.season);
    std::printf("%d games, a team and game:\n", games);
    for (std::size_t i = 0; i < kRates; ++i) {
        const double replay = sums[i] / (2.0 * games);
        std::printf("%-10s real %6.3f  replay %6.3f\n", kNames[i], real[i], replay);
        EXPECT_GT(replay, real[i] / 2) << kNames[i];
        EXPECT_LT(replay, real[i] * 2) << kNames[i];
    }
}

}  // namespace
}  // namespace tarvane
