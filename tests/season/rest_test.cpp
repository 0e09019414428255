#include "season/rest.h"

#include <gtest/gtest.h>

#include "season/calendar.h"

namespace tarvane {
namespace {

LeagueRules DefaultRest() {
    LeagueRules rules;
    rules.rest = {{{'R', 0, 5, 0},
                   {'R', 6, 11, 1},
                   {'R', 12, 15, 2},
                   {'R', -1, -1, -1},
                   {'R', -1, -1, -1},
                   {'S', 0, 5, 1},
                   {'S', 6, 11, 2},
                   {'S', 12, 35, 3},
                   {'S', 36, 999, 4},
                   {'S', -1, -1, -1}}};
    return rules;
}

TEST(RestForOuts, BracketsOfTheTable) {
    const LeagueRules rules = DefaultRest();
    for (const auto& [role, outs, days] : {std::tuple{'S', 0, 1},
                                           {'S', 5, 1},
                                           {'S', 6, 2},
                                           {'S', 12, 3},
                                           {'S', 35, 3},
                                           {'S', 36, 4},
                                           {'S', 81, 4},
                                           {'R', 5, 0},
                                           {'R', 6, 1},
                                           {'R', 15, 2},
                                           {'R', 16, 0}})
        EXPECT_EQ(RestForOuts(rules, role, outs), days) << role << outs;
}

// A staff of one starter and two relievers; the second reliever's record is of role S.
class AssignRest : public ::testing::Test {
  protected:
    AssignRest() {
        roster.pitchers.resize(3);
        roster.pitchers[0].pitcherType = roster.pitchers[2].pitcherType = 'S';
        roster.pitchers[1].pitcherType = 'R';
    }
    void Play(int day, std::vector<std::pair<int, int>> outs) {
        BoxLines box;
        for (const auto& [index, got] : outs) {
            PitchingLine& line = box.pitching[box.PitchersUsed++];
            line.player = {'P', static_cast<std::int16_t>(index)};
            line.IPOuts = static_cast<std::int16_t>(got);
            line.Role = roster.pitchers[static_cast<std::size_t>(index)].pitcherType;
        }
        AssignPitcherRest(roster, box, rules, day);
    }
    LeagueRules rules = DefaultRest();
    TeamRoster roster;
};

TEST_F(AssignRest, StartersByTheirBracketsAddedToWhatIsLeft) {
    Play(100, {{0, 15}, {1, 6}, {2, 6}});
    EXPECT_EQ(roster.pitchers[0].PitcherRestDays, 3);
    EXPECT_EQ(roster.pitchers[0].PitchedOnDay, 100);
    EXPECT_EQ(roster.pitchers[1].PitcherRestDays, 1);
    EXPECT_EQ(roster.pitchers[2].PitcherRestDays, 2);  // a starter in relief
    Play(102, {{0, 36}});
    EXPECT_EQ(roster.pitchers[0].PitcherRestDays, 7);
    EXPECT_EQ(roster.pitchers[0].PitchedOnDay, 102);
}

TEST_F(AssignRest, FirstManIsAStarterWhateverHisRole) {
    Play(50, {{1, 3}});
    EXPECT_EQ(roster.pitchers[1].PitcherRestDays, 1);
}

TEST_F(AssignRest, ReliefOutsAddUpOverADoubleheader) {
    Play(80, {{0, 25}, {1, 2}});
    EXPECT_EQ(roster.pitchers[1].PitcherRestDays, 0);
    EXPECT_EQ(roster.pitchers[1].PitchedOnDay, 80);
    EXPECT_EQ(roster.pitchers[1].IPOutsToday, 2);
    Play(80, {{2, 23}, {1, 4}});
    EXPECT_EQ(roster.pitchers[1].PitcherRestDays, 1);  // six outs on one day
    EXPECT_EQ(roster.pitchers[1].IPOutsToday, 6);
    Play(90, {{0, 25}, {1, 5}});  // another day starts from nothing
    EXPECT_EQ(roster.pitchers[1].PitcherRestDays, 1);
    EXPECT_EQ(roster.pitchers[1].IPOutsToday, 5);
    EXPECT_EQ(roster.pitchers[1].PitchedOnDay, 0);
}

TeamRoster Hurt(int days, int remaining, const char* date) {
    TeamRoster roster;
    roster.batters.resize(1);
    roster.pitchers.resize(1);
    roster.batters[0].injury = {date, 130, static_cast<std::int16_t>(days), static_cast<std::int16_t>(remaining)};
    roster.pitchers[0].injury = roster.batters[0].injury;
    return roster;
}

TEST(CountDownInjuries, IsAFunctionOfTheDate) {
    TeamRoster roster = Hurt(5, 6, "1975-05-10");
    CountDownInjuries(roster, "1975-05-10");  // hurt in this game
    EXPECT_EQ(roster.batters[0].injury.InjuredDays, 4);
    EXPECT_EQ(roster.batters[0].injury.InjuredDaysRemaining, 4);
    CountDownInjuries(roster, "1975-05-12");
    EXPECT_EQ(roster.batters[0].injury.InjuredDaysRemaining, 2);
    roster.batters[0].injury.InjuredDaysRemaining = 1;  // a day taken off by hand lasts until the next posting
    CountDownInjuries(roster, "1975-05-12");
    EXPECT_EQ(roster.batters[0].injury.InjuredDaysRemaining, 2);
    CountDownInjuries(roster, "1975-05-14");
    EXPECT_EQ(roster.batters[0].injury.InjuredDaysRemaining, 0);
    EXPECT_EQ(roster.batters[0].injury.InjuryDate, "0");
    EXPECT_EQ(roster.batters[0].injury.InjuredDays, 0);
    EXPECT_EQ(roster.pitchers[0].injury.InjuryDate, "0");
}

TEST(CountDownInjuries, LongAgoClearsABatterButLeavesAPitcherHisDate) {
    TeamRoster roster = Hurt(5, 3, "1975-05-10");
    CountDownInjuries(roster, "1975-06-01");
    EXPECT_EQ(roster.batters[0].injury.InjuryDate, "0");
    EXPECT_EQ(roster.batters[0].injury.InjuryNbrDate, 0);
    EXPECT_LT(roster.pitchers[0].injury.InjuredDaysRemaining, 0);
    EXPECT_EQ(roster.pitchers[0].injury.InjuryDate, "1975-05-10");
    EXPECT_EQ(roster.pitchers[0].injury.InjuryNbrDate, 130);

    TeamRoster unreadable = Hurt(5, 3, " ");
    CountDownInjuries(unreadable, "1975-06-01");
    EXPECT_EQ(unreadable.batters[0].injury.InjuredDaysRemaining, 3);
}

TEST(Calendar, DaysAndRefusals) {
    EXPECT_EQ(DayOfYear("1975-01-01"), 1);
    EXPECT_EQ(DayOfYear("1976-12-31"), 366);
    EXPECT_EQ(DayOfYear("1975-04-10"), 100);
    EXPECT_EQ(*DayCount("1976-03-01") - *DayCount("1976-02-28"), 2);
    for (const char* text : {"", "1975-02-29", "1975-13-01", "75-01-01", "1975/01/01", "1975-1-01 ", "1975-01-0x"})
        EXPECT_FALSE(DayCount(text)) << text;
}

}  // namespace
}  // namespace tarvane
