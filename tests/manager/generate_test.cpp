#include "manager/generate.h"

#include <gmock/gmock.h>

#include <set>

#include "manager/roster.h"
#include "rosters.h"

namespace tarvane {
namespace {

using ::testing::ElementsAre;
using testing::MakeBatter;
using testing::MakePitcher;
using testing::MakeRoster;

std::vector<std::int32_t> Ids(const LineupList* list) {
    std::vector<std::int32_t> ids;
    for (const ListSlot& slot : list->slot)
        if (slot.playerID != 0) ids.push_back(slot.playerID);
    return ids;
}

const LineupList* Named(const TeamRoster& roster, std::string_view name) {
    for (const LineupList& list : roster.lists)
        if (list.LineupName == name) return &list;
    return nullptr;
}

std::int32_t At(const LineupList& list, Position position) {
    for (const ListSlot& slot : list.slot)
        if (slot.position == position) return slot.playerID;
    return -1;
}

TEST(Generate, BattingPlacesGoByTheirKeys) {
    TeamRoster roster = MakeRoster();
    roster.batters[2].vsRChance.HR = 0.2;       // the slugger bats second
    roster.batters[5].runRating = 5;            // the fast men third and fourth: 15 of the bench is one
    roster.batters[7].vsRChance.Doubles = 0.1;  // doubles and triples among the keys of the fifth place
    GenerateComputerManager(roster, {});
    const LineupList& list = *Named(roster, "#1 vs Right No DH");
    EXPECT_EQ(list.BattingvsR, -1);
    EXPECT_EQ(list.BattingvsL, 0);
    // Hits alone send the slugger up first (his 20 home runs are hits); the next power bats second.
    EXPECT_EQ(list.slot[0].playerID, 3);
    EXPECT_EQ(list.slot[2].playerID, 6);
    EXPECT_EQ(list.slot[3].playerID, 15);
    EXPECT_EQ(list.slot[8].position, Position::P);
    EXPECT_EQ(list.slot[8].PlayerType, 'P');
    const LineupList& left = *Named(roster, "#1 vs Left No DH");
    EXPECT_EQ(left.slot[0].playerID, 1);
    EXPECT_EQ(left.BattingvsL, -1);
}

TEST(Generate, OptionsChooseTheListsAndKeepTheRest) {
    TeamRoster roster = MakeRoster();
    GenerateComputerManager(roster, {});
    for (int number = 1; number <= 4; ++number)
        EXPECT_EQ(EnsureList(roster, 'L', Position::None, number).LineupName,
                  kGeneratedNames[(number - 1) / 2][(number - 1) % 2]);
    const std::size_t lists = roster.lists.size();
    EXPECT_EQ(lists, 4U + 10 + 3);
    LineupList own;
    own.LineupType = 'L';
    own.LineupName = "Sunday";
    own.slot[0] = {7, Position::RF, 'B'};
    roster.lists.push_back(own);
    const std::vector<std::int32_t> starters = Ids(FindList(roster, 'S'));
    GenerateOptions options;
    options.lineups = DHLists::NoDH;
    options.depth = options.starters = options.relievers = options.closers = options.tendencies = false;
    roster.batters.erase(roster.batters.begin());
    std::swap(roster.pitchers[0].chance, roster.pitchers[4].chance);
    GenerateComputerManager(roster, options);
    EXPECT_EQ(Named(roster, "#1 vs Left DH"), nullptr);
    EXPECT_NE(Named(roster, "#1 vs Left No DH"), nullptr);
    EXPECT_EQ(Ids(Named(roster, "Sunday")), (std::vector<std::int32_t>{7}));
    EXPECT_EQ(Ids(FindList(roster, 'S')), starters);
    EXPECT_EQ(roster.lists.size(), lists + 1);
}

TEST(Generate, BetterGloveChangesPlacesWithTheDH) {
    TeamRoster roster = MakeRoster();
    roster.batters[3] = MakeBatter(4, {Position::B3}, 45);
    roster.batters[3].Pos[0].rating = -4;  // first to be placed, but a poor glove
    roster.batters.push_back(MakeBatter(20, {Position::B3}, 44));
    roster.batters.back().Pos[0].rating = 9;
    GenerateComputerManager(roster, {});
    const LineupList& list = *Named(roster, "#1 vs Right DH");
    EXPECT_EQ(At(list, Position::B3), 20);
    EXPECT_EQ(At(list, Position::DH), 4);
}

TEST(Generate, RandomClubsGetLegalLists) {
    Random random(3);
    for (int i = 0; i < 800; ++i) {
        TeamRoster roster = testing::RandomRoster(random);
        GenerateOptions options;
        options.ignoreInactive = random.Below(2) == 0;
        GenerateComputerManager(roster, options);
        std::size_t usable = 0;
        for (const Batter& batter : roster.batters) usable += !options.ignoreInactive || CanPlay(batter) ? 1U : 0U;
        for (const LineupList& list : roster.lists) {
            const std::vector<std::int32_t> ids = Ids(&list);
            ASSERT_EQ(std::set<std::int32_t>(ids.begin(), ids.end()).size(), ids.size())
                << list.LineupName << list.DepthType;
            if (list.LineupType != 'L') continue;
            std::set<Position> standing;
            for (const ListSlot& slot : list.slot)
                ASSERT_TRUE(slot.position == Position::None || standing.insert(slot.position).second);
            const std::size_t places = standing.count(Position::P) ? 8 : 9;
            ASSERT_EQ(ids.size(), std::min(usable, places)) << list.LineupName;
            ASSERT_TRUE(usable < places || standing.size() == 9U) << list.LineupName;
        }
        std::set<std::string> names, arms;
        for (const Pitcher& pitcher : roster.pitchers)
            if (!options.ignoreInactive || CanPlay(pitcher)) arms.insert(pitcher.playerName);
        const std::size_t pen = Ids(FindList(roster, 'R')).size();
        ASSERT_GE(pen, std::min<std::size_t>(arms.size(), 2)) << "no game can be played with a smaller pen";
        for (const char type : {'S', 'C', 'R'})
            for (const std::int32_t id : Ids(FindList(roster, type))) {
                const Pitcher& man = roster.pitchers[static_cast<std::size_t>(PitcherIndexOf(roster, id))];
                if (type != 'R' || pen > 2) {
                    ASSERT_EQ(man.pitcherType, type == 'S' ? 'S' : 'R');
                }
                ASSERT_TRUE(type == 'R' || names.insert(man.playerName).second);
            }
    }
}

TEST(Generate, DepthChartsByGloveAndBenchBatsFirstToPinchHit) {
    TeamRoster roster = MakeRoster();
    roster.batters[9].Pos[2].rating = 12;  // the utility man's third position is the best glove at third
    GenerateComputerManager(roster, {});
    EXPECT_THAT(Ids(FindList(roster, 'D', Position::C)), ElementsAre(1, 9));
    EXPECT_THAT(Ids(FindList(roster, 'D', Position::B3)), ElementsAre(10, 4, 14));
    const std::vector<std::int32_t> hitters = Ids(FindList(roster, 'D', Position::PH));
    ASSERT_EQ(hitters.size(), 5U);
    for (const ListSlot& slot : Named(roster, "#1 vs Left No DH")->slot)
        EXPECT_THAT(hitters, ::testing::Not(::testing::Contains(slot.playerID)));
    EXPECT_EQ(Ids(FindList(roster, 'D', Position::DH)).front(), 1);
}

TEST(Generate, PitchingListsShareTheStaffOut) {
    TeamRoster roster = MakeRoster();
    roster.pitchers.push_back(MakePitcher(117, 'R', 99, roster.pitchers[0].playerName));  // the ace's relief record
    GenerateComputerManager(roster, {});
    EXPECT_THAT(Ids(FindList(roster, 'S')), ElementsAre(101, 102, 103, 104, 105));
    EXPECT_THAT(Ids(FindList(roster, 'C')), ElementsAre(111, 112));
    EXPECT_THAT(Ids(FindList(roster, 'R')), ElementsAre(113, 114, 115, 116));
    roster.pitchers.erase(roster.pitchers.begin() + 5,
                          roster.pitchers.begin() + 10);  // one reliever and the ace's record
    GenerateComputerManager(roster, {});
    EXPECT_TRUE(Ids(FindList(roster, 'C')).empty());
    EXPECT_THAT(Ids(FindList(roster, 'R')), ElementsAre(116, 117));
}

RealUse UseOf(const TeamRoster& roster) {
    RealUse real;
    real.present = true;
    real.batters.resize(roster.batters.size());
    for (std::size_t i = 0; i < real.batters.size(); ++i) {
        real.batters[i].found = true;
        real.batters[i].PAvsLeft = real.batters[i].PAvsRight = 30 * static_cast<int>(i);  // the bench played most
        for (const PositionRating& entry : roster.batters[i].Pos)
            real.batters[i].gamesAt[static_cast<std::size_t>(entry.position)] = 10 + static_cast<double>(i);
    }
    real.pitchers.resize(roster.pitchers.size());
    for (std::size_t i = 0; i < real.pitchers.size(); ++i) {
        const bool starter = roster.pitchers[i].pitcherType == 'S';
        real.pitchers[i] = {true, 30 + static_cast<int>(i), starter ? 20 + static_cast<int>(i) : 0, 300, 0, 900};
    }
    return real;
}

TEST(GenerateByUse, RealGamesDecide) {
    TeamRoster roster = MakeRoster();
    RealUse real = UseOf(roster);
    real.pitchers[6].SV = 20;  // 112 has the saves, though others of the pen pitched oftener
    real.pitchers[0].GS = 0;   // 101 never started
    GenerateOptions options;
    options.basedOnUsage = true;
    GenerateComputerManager(roster, options, &real);
    EXPECT_EQ(Named(roster, "#1 vs Right DH")->slot[0].playerID, 15);
    for (std::int32_t seldom = 1; seldom <= 3; ++seldom)  // a few turns at bat don't make a regular, fast or not
        EXPECT_THAT(Ids(Named(roster, "#1 vs Right DH")), ::testing::Not(::testing::Contains(seldom)));
    EXPECT_THAT(Ids(FindList(roster, 'D', Position::B3)), ElementsAre(14, 10, 4));
    EXPECT_THAT(Ids(FindList(roster, 'S')), ElementsAre(105, 104, 103, 102));
    EXPECT_THAT(Ids(FindList(roster, 'C')), ElementsAre(116, 115));
    real.pitchers[6].G = 90;
    GenerateComputerManager(roster, options, &real);
    EXPECT_EQ(Ids(FindList(roster, 'C')).front(), 112);

    // A pitcher without statistics drops the option for the pitchers; without data it is off for all.
    real.pitchers[3].found = false;
    GenerateComputerManager(roster, options, &real);
    EXPECT_THAT(Ids(FindList(roster, 'S')), ElementsAre(101, 102, 103, 104, 105));
    EXPECT_EQ(Named(roster, "#1 vs Right DH")->slot[0].playerID, 15);
    real.present = false;
    GenerateComputerManager(roster, options, &real);
    EXPECT_EQ(Named(roster, "#1 vs Right DH")->slot[0].playerID, 1);
}

TEST(GenerateTendencies, BoundsOfEachMeasure) {
    const auto make = [](int fast, int bunters) {
        TeamRoster roster;
        for (int i = 0; i < 10; ++i) {
            Batter batter = MakeBatter(i + 1, {Position::LF}, 30, i < fast ? 3 : 1);
            batter.BuntRating = i < bunters ? "A" : "C";
            batter.Pos[0].rating = 4;
            roster.batters.push_back(batter);
        }
        roster.tendencies.RelieverUsage = 3;
        GenerateComputerManager(roster, {});
        return roster.tendencies;
    };
    ManagerTendencies slow = make(0, 2), fast = make(4, 7), even = make(3, 3);
    EXPECT_EQ(slow.BaseStealing, 2);  // mean 1.0 is not below 0.95
    EXPECT_EQ(fast.BaseStealing, 1);  // mean 1.8
    EXPECT_EQ(fast.BaseRunning, 1);
    EXPECT_EQ(fast.PinchRunning, 1);
    EXPECT_EQ(even.BaseStealing, 2);
    EXPECT_EQ(slow.Bunting, 3);
    EXPECT_EQ(even.Bunting, 2);
    EXPECT_EQ(fast.Bunting, 1);
    EXPECT_EQ(fast.DefensiveSubs, 2);  // mean 4.0 is not above 4.0
    EXPECT_EQ(fast.RelieverUsage, 3);

    TeamRoster roster = MakeRoster();
    RealUse real = UseOf(roster);
    GenerateOptions options;
    options.basedOnUsage = true;
    for (const auto& [sb, sh, steal, bunt] :
         {std::tuple{151, 100, 1, 1}, {150, 99, 2, 2}, {75, 70, 2, 2}, {74, 69, 3, 3}}) {
        real.teamSB = sb;
        real.teamSH = sh;
        GenerateComputerManager(roster, options, &real);
        EXPECT_EQ(roster.tendencies.BaseStealing, steal);
        EXPECT_EQ(roster.tendencies.Bunting, bunt);
    }
}

}  // namespace
}  // namespace tarvane
