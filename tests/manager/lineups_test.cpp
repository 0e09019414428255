#include "manager/lineups.h"

#include <gmock/gmock.h>

#include "manager/generate.h"
#include "manager/roster.h"
#include "rosters.h"

namespace tarvane {
namespace {

using testing::Faults;
using ::testing::HasSubstr;
using testing::MakeRoster;

LineupRequest RequestOf(bool dh, bool left, int pitcher = 0) {
    LineupRequest request;
    request.dhUsed = dh;
    request.opponentThrowsLeft = left;
    request.pitcher = pitcher;
    return request;
}

TEST(ChooseLineup, TakesTheListOfTheHandAndKind) {
    TeamRoster roster = MakeRoster();
    GenerateComputerManager(roster, {});
    roster.batters[0].vsLChance.Singles += 0.2;  // a lefty killer bats first against left-handers only
    GenerateComputerManager(roster, {});
    for (const bool dh : {false, true})
        for (const bool left : {false, true}) {
            const ChosenLineup choice = ChooseLineup(roster, RequestOf(dh, left));
            ASSERT_EQ(choice.trouble, "");
            EXPECT_EQ(Faults(roster, choice.lineup, dh), "");
            EXPECT_TRUE(choice.messages.empty());
            for (const LineupList& list : roster.lists) {
                if (list.LineupName != kGeneratedNames[dh ? 0 : 1][left ? 0 : 1]) continue;
                for (std::size_t slot = 0; slot < 9; ++slot) {
                    EXPECT_EQ(list.slot[slot].position, choice.lineup.position[slot]);
                    if (list.slot[slot].position == Position::P) continue;
                    EXPECT_EQ(ManInSlot(roster, list.slot[slot]), choice.lineup.player[slot]);
                }
            }
        }
}

TEST(ChooseLineup, ReplacesWhoCannotPlayFromTheDepthChartInHisSlot) {
    TeamRoster roster = MakeRoster();
    GenerateComputerManager(roster, {});
    const LineupInput before = ChooseLineup(roster, RequestOf(false, false)).lineup;
    const auto catcher =
        std::find(before.position.begin(), before.position.end(), Position::C) - before.position.begin();
    roster.batters[0].injury.InjuredDaysRemaining = 3;
    const ChosenLineup after = ChooseLineup(roster, RequestOf(false, false));
    EXPECT_EQ(Faults(roster, after.lineup, false), "");
    EXPECT_THAT(after.messages,
                ::testing::ElementsAre("Batter 1 is inactive and has been replaced by Computer Manager."));
    const auto slot = static_cast<std::size_t>(catcher);
    EXPECT_EQ(after.lineup.position[slot], Position::C);
    EXPECT_EQ(roster.batters[static_cast<std::size_t>(after.lineup.player[slot].index)].playerID, 9);
}

TEST(ChooseLineup, ScheduledListWinsWhateverItsKind) {
    TeamRoster roster = MakeRoster();
    GenerateComputerManager(roster, {});
    LineupList fixed = *FindList(roster, 'L');  // vs Left with a DH
    fixed.lineupID = 77;
    fixed.BattingvsL = 0;
    std::swap(fixed.slot[0], fixed.slot[5]);
    roster.lists.push_back(fixed);
    LineupRequest request = RequestOf(false, false);
    request.scheduledLineup = 77;
    const ChosenLineup choice = ChooseLineup(roster, request);
    EXPECT_EQ(Faults(roster, choice.lineup, false), "");
    for (std::size_t slot = 0; slot < 9; ++slot)
        EXPECT_EQ(choice.lineup.position[slot],
                  fixed.slot[slot].position == Position::DH ? Position::P : fixed.slot[slot].position);
}

TEST(ChooseLineup, WithoutListsTheMenStandWhereTheyCan) {
    TeamRoster roster = MakeRoster();
    // The only other catcher is hurt, and the regular one is the best first baseman too: he must still catch.
    roster.batters[8].Inactive = true;
    roster.batters[0] = testing::MakeBatter(1, {Position::B1, Position::C}, 45);
    roster.batters[1].Inactive = true;
    roster.batters[11].Inactive = true;
    const ChosenLineup choice = ChooseLineup(roster, RequestOf(true, true));
    EXPECT_EQ(Faults(roster, choice.lineup, true), "");
    for (std::size_t slot = 0; slot < 9; ++slot) {
        const Position at = choice.lineup.position[slot];
        if (at == Position::DH) continue;
        EXPECT_NE(RatingAt(roster, choice.lineup.player[slot], at), nullptr) << PositionText(at);
    }
    for (std::size_t slot = 1; slot < 9; ++slot) {
        const auto bat = [&](std::size_t s) {
            return OnBase(roster.batters[static_cast<std::size_t>(choice.lineup.player[s].index)]);
        };
        EXPECT_GE(bat(slot - 1), bat(slot));
    }
}

TEST(ChooseLineup, EightHealthyMenGetAPitcherAndSevenWithoutOneAreTold) {
    TeamRoster roster = MakeRoster();
    roster.batters.resize(8);
    ChosenLineup choice = ChooseLineup(roster, RequestOf(true, false));
    EXPECT_EQ(Faults(roster, choice.lineup, true), "");
    EXPECT_EQ(ChooseLineup(roster, RequestOf(false, false)).trouble, "");
    roster.pitchers.resize(1);
    EXPECT_THAT(ChooseLineup(roster, RequestOf(true, false)).trouble, HasSubstr("fewer than nine healthy"));
    EXPECT_THAT(ChooseLineup(roster, RequestOf(true, false, -1)).trouble, HasSubstr("no pitcher"));
}

TEST(ChooseLineup, RandomClubsAlwaysGetALegalNine) {
    Random random(20);
    int played = 0;
    for (int i = 0; i < 1200; ++i) {
        TeamRoster roster = testing::RandomRoster(random);
        if (i % 3 != 0) {
            GenerateOptions options;
            options.ignoreInactive = i % 2 == 0;
            GenerateComputerManager(roster, options);
        }
        if (i % 7 == 0)  // men leave after the lists were made
            for (int gone = 0; gone < 3; ++gone)
                roster.batters.erase(roster.batters.begin() +
                                     random.Below(static_cast<std::uint32_t>(roster.batters.size())));
        const bool dh = random.Below(2) == 0;
        int healthy = 0;
        for (const Batter& batter : roster.batters) healthy += CanPlay(batter) ? 1 : 0;
        const ChosenLineup choice = ChooseLineup(roster, RequestOf(dh, random.Below(2) == 0));
        if (healthy < (dh ? 9 : 8)) continue;
        ++played;
        ASSERT_EQ(choice.trouble, "");
        ASSERT_EQ(Faults(roster, choice.lineup, dh), "") << "club " << i;
    }
    EXPECT_GT(played, 800);
}

// --- the starting pitcher ---

StarterRequest After(std::int32_t last, int day = 100) {
    StarterRequest request;
    request.lastStarter = last;
    request.dayNumber = day;
    return request;
}

std::int32_t StarterID(TeamRoster& roster, const StarterRequest& request, const RealUse* real = nullptr) {
    const ChosenStarter choice = ChooseStarter(roster, request, real);
    return choice.pitcher < 0 ? 0 : roster.pitchers[static_cast<std::size_t>(choice.pitcher)].playerID;
}

class RotationWalk : public ::testing::Test {
  protected:
    RotationWalk() { GenerateComputerManager(roster, {}); }
    Pitcher& Man(std::int32_t id) { return roster.pitchers[static_cast<std::size_t>(PitcherIndexOf(roster, id))]; }
    TeamRoster roster = MakeRoster();
};

TEST_F(RotationWalk, GoesRoundFromTheManAfterTheLast) {
    for (const auto& [last, next] : {std::pair{0, 101}, {101, 102}, {104, 105}, {105, 101}, {111, 101}})
        EXPECT_EQ(StarterID(roster, After(last)), next);
}

TEST_F(RotationWalk, PassesOverThoseWhoCannot) {
    Man(102).PitcherRestDays = 3, Man(102).PitchedOnDay = 98;
    EXPECT_EQ(StarterID(roster, After(101)), 103);
    Man(103).injury.InjuredDaysRemaining = 1;
    EXPECT_EQ(StarterID(roster, After(101)), 104);
    Man(104).Inactive = true;
    EXPECT_EQ(StarterID(roster, After(101)), 105);
    // His relief record rests, so his arm does.
    Man(111).playerName = Man(105).playerName;
    Man(111).PitcherRestDays = 2, Man(111).PitchedOnDay = 99;
    EXPECT_EQ(StarterID(roster, After(101)), 101);
}

TEST_F(RotationWalk, RelieverInTheRotationIsNamedAndPassedOver) {
    Man(101).pitcherType = 'R';
    StarterRequest request = After(0);
    request.side = Side::Home;
    const ChosenStarter choice = ChooseStarter(roster, request);
    EXPECT_EQ(roster.pitchers[static_cast<std::size_t>(choice.pitcher)].playerID, 102);
    ASSERT_EQ(choice.messages.size(), 1U);
    EXPECT_THAT(choice.messages[0],
                HasSubstr("Home Lineups - Saved starting rotation pitcher Pitcher 101 is reliever"));
}

TEST_F(RotationWalk, ScheduledStarterGoesFirstIfHeCan) {
    StarterRequest request = After(101);
    request.scheduledStarter = 104;
    EXPECT_EQ(StarterID(roster, request), 104);
    request.ignoreScheduled = true;
    EXPECT_EQ(StarterID(roster, request), 102);
    request.ignoreScheduled = false;
    Man(104).PitcherRestDays = 4, Man(104).PitchedOnDay = 99;
    EXPECT_EQ(StarterID(roster, request), 102);
    request.scheduledStarter = 112;
    const ChosenStarter choice = ChooseStarter(roster, request);
    EXPECT_EQ(roster.pitchers[static_cast<std::size_t>(choice.pitcher)].playerID, 102);
    EXPECT_THAT(choice.messages.front(),
                HasSubstr("Visitor Lineups - Starting pitcher in scheduled lineup Pitcher 112 is reliever"));
}

TEST_F(RotationWalk, ShareOfStartsHoldsFromTheFourthGame) {
    RealUse real;
    real.present = true;
    real.teamGames = 160;
    real.pitchers.resize(roster.pitchers.size());
    for (std::size_t i = 0; i < 5; ++i) real.pitchers[i].found = true, real.pitchers[i].GS = 32;
    StarterRequest request = After(0);
    request.actualUsage = true;
    roster.team.W = 3, roster.team.L = 0;
    Man(101).total.GS = 3;
    EXPECT_EQ(StarterID(roster, request, &real), 101);  // too early to count shares
    roster.team.L = 2;
    Man(101).total.GS = 1;
    EXPECT_EQ(StarterID(roster, request, &real), 101);  // exactly his share of a fifth
    Man(101).total.GS = 2;
    EXPECT_EQ(StarterID(roster, request, &real), 102);
    for (int id = 101; id <= 105; ++id) Man(id).total.GS = 5;
    EXPECT_EQ(StarterID(roster, request, &real), 101);  // all above their share: the walk goes on without it
}

TEST_F(RotationWalk, SpareStarterBeforeAManWithoutRestThenDaysComeOff) {
    roster.pitchers.push_back(testing::MakePitcher(120, 'S', 30));
    for (int id = 101; id <= 105; ++id)
        Man(id).PitcherRestDays = static_cast<std::uint8_t>(id - 98), Man(id).PitchedOnDay = 99;
    EXPECT_EQ(StarterID(roster, After(101)), 120);
    Man(120).Inactive = true;
    StarterRequest request = After(101);
    request.mayReduceRest = false;
    ChosenStarter choice = ChooseStarter(roster, request);
    EXPECT_EQ(choice.pitcher, -1);
    EXPECT_THAT(choice.messages.back(), HasSubstr("cannot resolve Starting Pitcher"));
    request.mayReduceRest = true;
    choice = ChooseStarter(roster, request);  // 101 owes 3 days from day 99: free on day 100 after three days off
    EXPECT_EQ(roster.pitchers[static_cast<std::size_t>(choice.pitcher)].playerID, 101);
    EXPECT_EQ(choice.daysReduced, 3);
    EXPECT_EQ(Man(103).PitcherRestDays, 2);
}

TEST_F(RotationWalk, StaffWithoutStartersIsToldNotLooped) {
    for (Pitcher& pitcher : roster.pitchers) pitcher.pitcherType = 'R';
    EXPECT_EQ(ChooseStarter(roster, After(0)).pitcher, -1);
}

// --- rest ---

TEST(Rest, CountsTheDayOfTheGameAndClearsWhatIsOver) {
    TeamRoster roster = MakeRoster();
    Pitcher& worked = roster.pitchers[0];
    worked.PitcherRestDays = 4;
    worked.PitchedOnDay = 100;
    roster.pitchers[1].PitchedOnDay = 100;  // owes nothing, whatever day he worked
    for (const auto& [day, left] : {std::pair{101, 4}, {104, 1}, {105, 0}}) EXPECT_EQ(RestDaysLeft(worked, day), left);
    std::vector<RestingPitcher> resting = GetPitcherRest(roster, 104);
    ASSERT_EQ(resting.size(), 1U);
    EXPECT_EQ(resting[0].playerID, 101);
    EXPECT_EQ(resting[0].daysLeft, 1);
    EXPECT_EQ(GetUnrestedPitchers(roster).size(), roster.pitchers.size() - 1);
    EXPECT_TRUE(GetPitcherRest(roster, 105).empty());
    EXPECT_EQ(worked.PitcherRestDays, 0);
    EXPECT_EQ(worked.PitchedOnDay, 0);
}

TEST(Rest, RestingManPitchesTheIneffectiveChart) {
    TeamRoster roster = MakeRoster();
    roster.pitchers[2].PitcherRestDays = 1;
    MakeRestingIneffective(roster);
    const ChartCells& cells = roster.pitchers[2].pitch;
    int singles = 0;
    for (int roll = 10; roll <= 39; ++roll) {
        const ChartCell& cell = cells[static_cast<std::size_t>(roll - 10)];
        singles += cell.text == "1+" ? kCellWeight[static_cast<std::size_t>(roll - 10)] : 0;
        EXPECT_TRUE(cell.text == "1+" || cell.text == (roll <= 15 ? "D" : roll == 38 ? "X" : " ")) << roll;
        EXPECT_EQ(cell.color, roll == 38 ? kStoredYellowWord : kGreenWord);
    }
    EXPECT_NEAR(singles / 216.0, 0.25, 0.02);
    EXPECT_EQ(roster.pitchers[1].pitch, ChartCells{});
}

}  // namespace
}  // namespace tarvane
