// Line-ups planned by real use: whoever really played so often, there and against that hand, must come to it again.

#include "manager/useplan.h"

#include <gmock/gmock.h>

#include <cmath>
#include <map>

#include "manager/generate.h"
#include "rosters.h"

namespace tarvane {
namespace {

using testing::MakeRoster;
using testing::RandomRoster;

constexpr int kGames = 154;

// What the regulars (ids 1 to 8) and the bench really did. Number 1 catches 120 games, number 9 the rest; 2 and 12 share
// first base by the pitcher's hand; the others rest now and then.
RealUse RealUseOf(const TeamRoster& roster) {
    struct Line {
        int left, right;
        std::map<Position, double> games;
    };
    const std::map<int, Line> lines{{1, {130, 330, {{Position::C, 120}}}},
                                    {2, {190, 60, {{Position::B1, 60}}}},
                                    {3, {200, 460, {{Position::B2, 150}}}},
                                    {4, {190, 440, {{Position::B3, 146}}}},
                                    {5, {180, 420, {{Position::SS, 142}}}},
                                    {6, {185, 430, {{Position::LF, 148}}}},
                                    {7, {190, 440, {{Position::CF, 150}}}},
                                    {8, {150, 350, {{Position::RF, 118}}}},
                                    {9, {45, 95, {{Position::C, 40}}}},
                                    {10, {20, 50, {{Position::SS, 14}, {Position::B2, 6}, {Position::B3, 10}}}},
                                    {11, {40, 100, {{Position::LF, 8}, {Position::RF, 36}}}},
                                    {12, {10, 390, {{Position::B1, 98}}}}};
    RealUse real;
    real.present = true;
    real.teamGames = kGames;
    for (const Batter& batter : roster.batters) {
        RealBatting known;
        if (const auto line = lines.find(batter.playerID); line != lines.end()) {
            known = {true, 0, 0, line->second.left, line->second.right, 0, 0, {}};
            for (const auto& [position, games] : line->second.games)
                known.gamesAt[static_cast<std::size_t>(position)] = games;
        }
        real.batters.push_back(known);
    }
    const int starts[]{38, 35, 32, 30, 19};
    for (std::size_t i = 0; i < roster.pitchers.size(); ++i) real.pitchers.push_back({true, 40, i < 5 ? starts[i] : 0});
    return real;
}

std::vector<PlanGame> Season(bool dh) {
    std::vector<PlanGame> games;
    for (int g = 0; g < kGames; ++g) games.push_back({g + g / 20, dh, g % 10 < 3});
    return games;
}

struct Planned {
    TeamRoster roster = MakeRoster();
    RealUse real = RealUseOf(roster);
    std::vector<PlanGame> games;
    std::vector<int> starters;
    std::vector<LineupList> lists;

    explicit Planned(std::vector<PlanGame> season) : games(std::move(season)) {
        GenerateComputerManager(roster, {}, &real);
        starters = PlanStarters(roster, real, 3, games);
        lists = PlanLineups(roster, real, games, starters);
    }
    int Starts(std::int32_t id, Position at = Position::None) const {
        int starts = 0;
        for (const LineupList& list : lists)
            for (const ListSlot& slot : list.slot)
                starts += slot.PlayerType == 'B' && slot.playerID == id && (at == Position::None || slot.position == at);
        return starts;
    }
};

// Empty if every position is manned once, by men who know it, nobody twice, and the starter bats where no DH does.
std::string FaultOf(const TeamRoster& roster, const LineupList& list, bool dh) {
    std::map<Position, int> standing;
    std::map<std::int32_t, int> men;
    for (const ListSlot& slot : list.slot) {
        ++standing[slot.position];
        if (++men[slot.playerID + (slot.PlayerType == 'P' ? 1000 : 0)] > 1) return "a man twice";
        if (slot.PlayerType == 'P' && slot.playerID != list.playerIDP) return "another pitcher bats";
        if (slot.PlayerType != 'B' || slot.position == Position::DH) continue;
        bool knows = false;
        for (const Batter& batter : roster.batters)
            for (const PositionRating& entry : batter.Pos)
                knows = knows || (batter.playerID == slot.playerID && entry.position == slot.position);
        if (!knows) return "a man who doesn't know his position";
    }
    for (const Position position : testing::kField)
        if (standing[position] != 1) return "a position not once";
    return standing[dh ? Position::DH : Position::P] == 1 ? "" : "DH or P not once";
}

TEST(UsePlan, EachManStartsAsOftenAsHeReallyPlayed) {
    for (const bool dh : {false, true}) {
        const Planned plan(Season(dh));
        for (std::size_t g = 0; g < plan.lists.size(); ++g) ASSERT_EQ(FaultOf(plan.roster, plan.lists[g], dh), "") << g;
        // Games behind the plate and at the other shared positions, of 160, 158 and so on that the men really had.
        EXPECT_NEAR(plan.Starts(1, Position::C), 154 * 120 / 160, 5) << dh;
        EXPECT_NEAR(plan.Starts(9, Position::C), 154 * 40 / 160, 5) << dh;
        EXPECT_GT(plan.Starts(3), 145) << "who came to bat most hardly ever rests";
        EXPECT_LT(plan.Starts(10), dh ? 60 : 40) << "and who came to bat least isn't made a regular";
        EXPECT_GE(plan.Starts(10), 8);
        // Nobody who never batted comes in for one who did, the DH apart that no regular was.
        for (const std::int32_t id : {13, 14, 15}) EXPECT_EQ(plan.Starts(id), 0) << id;
    }
}

TEST(UsePlan, PlatoonsMeetTheirHand) {
    const Planned plan(Season(false));
    int left[2]{}, right[2]{};
    for (std::size_t g = 0; g < plan.lists.size(); ++g)
        for (const ListSlot& slot : plan.lists[g].slot)
            if (slot.position == Position::B1) ++(plan.games[g].opponentThrowsLeft ? left : right)[slot.playerID == 12];
    EXPECT_GT(left[0], 8 * left[1]);
    EXPECT_GT(right[1], 4 * right[0]);
}

TEST(UsePlan, StartersByTheirSharesAndRested) {
    const Planned plan(Season(false));
    std::map<int, int> starts;
    std::map<int, long> last;
    for (std::size_t g = 0; g < plan.games.size(); ++g) {
        const int man = plan.starters[g];
        ASSERT_GE(man, 0);
        EXPECT_EQ(plan.lists[g].playerIDP, plan.roster.pitchers[static_cast<std::size_t>(man)].playerID);
        if (last.contains(man)) {
            EXPECT_GT(plan.games[g].day - last[man], 3) << "game " << g;
        }
        last[man] = plan.games[g].day;
        ++starts[man];
    }
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_NEAR(starts[static_cast<int>(i)], plan.real.pitchers[i].GS, 3) << "starter " << i;
}

// The first sixty games are known from a log in which the second catcher caught them all: he has done his part.
TEST(UsePlan, FixedLineupsCount) {
    const Planned usual(Season(false));
    LineupList logged = usual.lists[0];
    for (ListSlot& slot : logged.slot)
        if (slot.position == Position::C) slot.playerID = 9;
    logged.playerIDP = 105;
    std::vector<PlanGame> games = Season(false);
    for (std::size_t g = 0; g < 60; ++g) games[g].fixed = &logged;
    const Planned plan(games);
    for (std::size_t g = 0; g < 60; ++g) EXPECT_EQ(plan.lists[g].playerIDP, 0) << "a fixed game isn't planned again";
    EXPECT_LE(plan.Starts(9), 3);
    EXPECT_EQ(std::count(plan.starters.begin() + 60, plan.starters.end(), 4), 0) << "nor has the fifth starter to start";
}

TEST(UsePlan, AnyClubGetsLegalLineupsOrNone) {
    Random random(3);
    int planned = 0;
    for (int trial = 0; trial < 200; ++trial) {
        TeamRoster roster = RandomRoster(random);
        RealUse real;
        real.present = true;
        for (const Batter& batter : roster.batters) {
            RealBatting known{true, 100, 0, static_cast<int>(random.Below(200)), static_cast<int>(random.Below(400)), 0, 0, {}};
            for (const PositionRating& entry : batter.Pos)
                if (entry.position != Position::None)
                    known.gamesAt[static_cast<std::size_t>(entry.position)] = static_cast<double>(random.Below(100));
            real.batters.push_back(known);
        }
        for (std::size_t i = 0; i < roster.pitchers.size(); ++i)
            real.pitchers.push_back({true, 30, static_cast<int>(random.Below(30))});
        const bool dh = random.Below(2) == 0;
        const std::vector<PlanGame> games = Season(dh);
        const std::vector<int> starters = PlanStarters(roster, real, 4, games);
        for (const LineupList& list : PlanLineups(roster, real, games, starters)) {
            if (list.playerIDP == 0) continue;
            ASSERT_EQ(FaultOf(roster, list, dh), "") << "trial " << trial;
            ++planned;
        }
    }
    EXPECT_GT(planned, 2000) << "too few clubs could field a nine for this to count";
    // A club without statistics: nothing to go by.
    const TeamRoster roster = MakeRoster();
    EXPECT_THAT(PlanStarters(roster, {}, 4, Season(false)), ::testing::Each(-1));
}

}  // namespace
}  // namespace tarvane
