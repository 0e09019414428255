#include "season/gamesetup.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <unistd.h>

#include "base/error.h"
#include "data/lineups.h"
#include "data/teams.h"
#include "manager/rest.h"
#include "manager/roster.h"
#include "sample/sampleleague.h"
#include "season/managedgame.h"
#include "season/managerchecks.h"
#include "season/realstats.h"
#include "season/resttables.h"
#include "seasons.h"

namespace tarvane {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

// One sample season for all cases; each works in a transaction that is never committed.
class SampleSeason : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        const auto folder = std::filesystem::temp_directory_path() / fmt::format("tarvane-season-sample-{}", getpid());
        WriteSampleLeague(folder, 11);
        made_ = new testing::PlayableSeason(folder, kSampleYear);
        std::filesystem::remove_all(folder);
    }
    static void TearDownTestSuite() {
        delete made_;
        made_ = nullptr;
    }

    SampleSeason() : undo_(season()) {
        for (const Team& team : LoadTeamList(season(), LoadLeagueRulesOf())) teams.push_back(team.teamID);
    }
    static Database& common() { return *made_->common; }
    static Database& season() { return *made_->season; }
    static LeagueRules LoadLeagueRulesOf() { return {}; }
    TeamRoster Roster(const std::string& code) { return LoadTeamRoster(season(), code, {}); }

    std::vector<std::string> teams;

  private:
    static testing::PlayableSeason* made_;
    Transaction undo_;
};
testing::PlayableSeason* SampleSeason::made_ = nullptr;

TEST_F(SampleSeason, EveryTeamPassesTheChecksOfItsManager) {
    ASSERT_EQ(teams.size(), 16U);
    for (const std::string& code : teams) {
        const TeamRoster roster = Roster(code);
        EXPECT_EQ(roster.lists.size(), static_cast<std::size_t>(kLineupsPerTeam));
        for (const bool dh : {false, true}) EXPECT_EQ(CheckComputerLineups(roster, Side::Visitor, dh).text, "") << code;
        EXPECT_EQ(CheckComputerDepth(roster, Side::Home).text, "") << code;
        const RealUse real = LoadRealUse(season(), roster);
        EXPECT_TRUE(real.present);
        // The men of the first line-up are those who really played most at their positions.
        for (const ListSlot& slot : FindList(roster, 'L')->slot) {
            const PlayerRef man = ManInSlot(roster, slot);
            ASSERT_FALSE(man.Nobody());
            EXPECT_GT(real.BatterAt(man.index).G, 20) << code;
        }
    }
}

TEST_F(SampleSeason, AllPairsStartAndEndUnderComputerManagers) {
    Random random(9);
    for (std::size_t i = 0; i < teams.size(); ++i) {
        const std::string& visitor = teams[i];
        const std::string& home = teams[(i * 5 + 3) % teams.size()];
        const GameSetup setup = LoadExhibition(common(), season(), visitor, home);
        EXPECT_THAT(setup.messages, IsEmpty());
        EXPECT_FALSE(setup.data.park.Stadium.empty());
        GameState state;
        for (const Side side : kBothSides) state.computer[side] = setup.control[side];
        ASSERT_EQ(StartGame(setup.data, setup.lineup[Side::Visitor], setup.lineup[Side::Home], state), Reject::None);
        ComputerManager visitors(Side::Visitor, Random(i), setup.knowledge[Side::Visitor]);
        ComputerManager homers(Side::Home, Random(i + 100), setup.knowledge[Side::Home]);
        PlayOut(setup.data, state, random, visitors, homers);
        ASSERT_TRUE(state.GameOverFlag);
        ASSERT_EQ(StateOk(setup.data, state), "");
    }
}

TEST_F(SampleSeason, RulesMarksAndParkOfTheGame) {
    GameSetup setup = LoadExhibition(common(), season(), teams[0], teams[1]);
    EXPECT_EQ(setup.data.DHUsed, DHUsedIn(setup.data.rules, setup.data[Side::Home].roster.team));
    EXPECT_EQ(setup.data.park.parkID, setup.data[Side::Home].roster.team.ParkID);
    EXPECT_NE(setup.data.year.EraID, 0);
    EXPECT_TRUE(setup.control[Side::Home].subs);

    season().Execute("UPDATE LeagueRules SET LeagueDH = -1");
    season().Execute("UPDATE KorvTeams SET AlwaysHumanManaged = -1 WHERE teamID = ?", {teams[1]});
    ExhibitionOptions options;
    options.control[Side::Visitor] = {true, false, true};
    setup = LoadExhibition(common(), season(), teams[0], teams[1], options);
    EXPECT_TRUE(setup.data.DHUsed);
    EXPECT_EQ(setup.control[Side::Visitor], (SideControl{true, false, true}));
    EXPECT_EQ(setup.control[Side::Home], SideControl{});
    for (const Side side : kBothSides) EXPECT_THAT(setup.lineup[side].position, ::testing::Contains(Position::DH));
    // A team may meet itself.
    EXPECT_NO_THROW(LoadExhibition(common(), season(), teams[2], teams[2]));
}

TEST_F(SampleSeason, RestCountsOnlyWithADate) {
    const TeamRoster roster = Roster(teams[0]);
    const std::int32_t ace = FindList(roster, 'S')->slot[0].playerID;
    season().Execute("UPDATE KorvPitchers SET PitcherRestDays = 4, PitchedOnDay = 100 WHERE playerID = ?",
                     {std::int64_t{ace}});
    const auto starter = [&](const char* date) {
        ExhibitionOptions options;
        options.date = date;
        const GameSetup setup = LoadExhibition(common(), season(), teams[0], teams[1], options);
        const auto index = static_cast<std::size_t>(setup.lineup[Side::Visitor].pitcher.index);
        return setup.data[Side::Visitor].roster.pitchers[index].playerID;
    };
    EXPECT_EQ(starter(""), ace);
    EXPECT_NE(starter("1975-04-14"), ace);  // day 104, the last of his rest
    EXPECT_EQ(starter("1975-04-15"), ace);
    ExhibitionOptions options;
    options.date = "1975-04-14";
    const GameSetup setup = LoadExhibition(common(), season(), teams[0], teams[1], options);
    const int index = PitcherIndexOf(setup.data[Side::Visitor].roster, ace);
    EXPECT_EQ(setup.data[Side::Visitor].roster.pitchers[static_cast<std::size_t>(index)].pitch[12].text, "1+");
    options.date = "14 April";
    EXPECT_THROW(LoadExhibition(common(), season(), teams[0], teams[1], options), UserError);
}

TEST_F(SampleSeason, RestAndInjuriesAreWrittenAndLowered) {
    TeamRoster roster = Roster(teams[0]);
    roster.pitchers[1].PitcherRestDays = 3, roster.pitchers[1].PitchedOnDay = 100, roster.pitchers[1].IPOutsToday = 7;
    roster.batters[2].injury = {"1975-04-10", 100, 5, 5};
    roster.pitchers[2].injury = {"1975-04-10", 100, 2, 1};
    SaveRestAndInjuries(season(), roster, false);
    ReduceRestAndInjuries(season(), false);
    LeagueRules rules;
    rules.UseYellowXInjuryChart = true;
    const TeamRoster after = LoadTeamRoster(season(), teams[0], rules);
    EXPECT_EQ(after.pitchers[1].PitcherRestDays, 2);
    EXPECT_EQ(after.pitchers[1].PitchedOnDay, 100);
    EXPECT_EQ(after.pitchers[1].IPOutsToday, 7);
    EXPECT_EQ(after.pitchers[0].PitcherRestDays, 0);
    EXPECT_EQ(after.batters[2].injury.InjuredDaysRemaining, 4);
    EXPECT_EQ(after.batters[2].injury.InjuredDays, 5);
    EXPECT_EQ(after.batters[2].injury.InjuryDate, "1975-04-10");
    EXPECT_EQ(after.pitchers[2].injury.InjuredDaysRemaining, 0);
    EXPECT_THROW(ReduceRestAndInjuries(season(), true), UserError);  // no tournament, no rows
}

TEST_F(SampleSeason, FaultsAreNamed) {
    const auto message = [&](const std::string& visitor, const std::string& home,
                             const ExhibitionOptions& options = {}) {
        try {
            LoadExhibition(common(), season(), visitor, home, options);
        } catch (const UserError& error) {
            return std::string(error.what());
        }
        return std::string();
    };
    EXPECT_THAT(message("XXX", teams[0]), HasSubstr("XXX"));
    ExhibitionOptions options;
    options.parkID = 999999;
    EXPECT_THAT(message(teams[0], teams[1], options), HasSubstr("999999"));
    season().Execute("UPDATE KorvTeams SET ParkID = 0 WHERE teamID = ?", {teams[1]});
    EXPECT_THAT(message(teams[0], teams[1]), HasSubstr("does not have a ballpark"));
    season().Execute("UPDATE KorvPitchers SET InjuredDaysRemaining = 3, pitcherType = 'R' WHERE teamID = ?",
                     {teams[2]});
    EXPECT_THAT(message(teams[2], teams[0]), HasSubstr("no pitcher who can start"));
    season().Execute("DELETE FROM KorvBatters WHERE teamID = ?", {teams[3]});
    EXPECT_THAT(message(teams[3], teams[0]), HasSubstr("no players"));
}

TEST_F(SampleSeason, ListsAreStoredWhereTheyStood) {
    TeamRoster roster = Roster(teams[4]);
    LineupList& own = EnsureList(roster, 'L', Position::None, 7);
    own.LineupName = "Sunday";
    SaveLineup(season(), own);
    GenerateOptions options;
    options.lineups = DHLists::DH;
    options.depth = false;
    season().Execute("UPDATE ComputerManager SET RelieverUsage = 3, Bunting = 1 WHERE teamID = ?", {teams[4]});
    GenerateTeamManager(season(), teams[4], options);
    const TeamRoster after = Roster(teams[4]);
    ASSERT_EQ(after.lists.size(), static_cast<std::size_t>(kLineupsPerTeam));
    EXPECT_EQ(after.lists[0].LineupName, "#1 vs Left DH");
    EXPECT_EQ(after.lists[1].LineupName, "#1 vs Right DH");
    EXPECT_EQ(after.lists[2].LineupName, "");
    EXPECT_EQ(after.lists[6].LineupName, "Sunday");
    for (std::size_t i = 0; i < after.lists.size(); ++i) EXPECT_EQ(after.lists[i].lineupID, roster.lists[i].lineupID);
    EXPECT_EQ(after.tendencies.RelieverUsage, 3);
    EXPECT_EQ(FindList(after, 'D', Position::SS)->slot[0].playerID,
              FindList(roster, 'D', Position::SS)->slot[0].playerID);
    EXPECT_THROW(GenerateTeamManager(season(), "XXX", options), UserError);
}

TEST_F(SampleSeason, TopBattersOnceTenDecisionsAreIn) {
    const TeamRoster roster = Roster(teams[0]);
    season().Execute("UPDATE KorvBatters SET Avg = 0.300, SLG = 0.1, AB = 10 WHERE playerID = ?",
                     {std::int64_t{roster.batters[3].playerID}});
    EXPECT_THAT(FindTopBatters(season(), roster, false), ::testing::Each(false));
    season().Execute("UPDATE KorvTeams SET W = 1, L = 1");  // two games: 6 appearances
    const std::vector<bool> top = FindTopBatters(season(), roster, false);
    EXPECT_TRUE(top[3]);
    EXPECT_EQ(std::count(top.begin(), top.end(), true), 1);
    season().Execute("UPDATE KorvBatters SET AB = 5 WHERE AB = 10");
    EXPECT_THAT(FindTopBatters(season(), roster, false), ::testing::Each(false));
}

// --- the checks of the lists ---

class ManagerChecks : public SampleSeason {
  protected:
    ManagerChecks() : roster(Roster(teams[0])) {}
    LineupList& List(char type, Position depth = Position::None) { return *FindList(roster, type, depth); }
    TeamRoster roster;
};

TEST_F(ManagerChecks, MessagesInTheirOrder) {
    const auto check = [&](bool dh, std::int32_t scheduled = 0) {
        return CheckComputerLineups(roster, Side::Home, dh, scheduled);
    };
    // Each fault is repaired by the next only through its own list, so the order of the checks shows.
    for (LineupList& list : roster.lists)
        if (list.LineupName == "#1 vs Right DH" || list.LineupName == "#1 vs Right No DH") list.slot[2] = {};
    EXPECT_EQ(check(true).title, "Computer Manager Lineups");
    EXPECT_THAT(check(true).text,
                HasSubstr("requires all positions to be filled for at least one vs Left and vs Right"));
    LineupList scheduled = List('L');
    scheduled.lineupID = 4711;
    scheduled.slot[5] = {};
    roster.lists.push_back(scheduled);
    EXPECT_THAT(check(true, 4711).text, HasSubstr("to be filled for Scheduled Lineup."));
    for (LineupList& list : roster.lists)
        for (ListSlot& slot : list.slot)
            if (list.LineupType == 'L' && slot.position == Position::DH) slot.position = Position::None;
    EXPECT_THAT(check(true).text, HasSubstr("Home Lineups - Home Lineups is missing the DH position. go to"));
    List('R').slot[1] = {};
    List('R').slot[2] = List('R').slot[3] = List('R').slot[4] = {};
    EXPECT_THAT(check(true).text, HasSubstr("requires at least two pitchers saved in Relievers chart."));
    List('S').slot[3] = List('S').slot[4] = {};
    EXPECT_EQ(check(true).title, "Computer Manager Relievers");
    EXPECT_THAT(check(true).text,
                HasSubstr("Home Lineups - Computer Manager require at least four pitchers saved in Starters chart."));
    List('L').slot[1] = List('L').slot[0];
    EXPECT_THAT(check(true).text, HasSubstr("Home team has duplicate player in saved lineup. (#1 vs Left DH)"));
}

TEST_F(ManagerChecks, MarksAndDepth) {
    for (LineupList& list : roster.lists) list.BattingvsL = 0;
    EXPECT_THAT(
        CheckComputerLineups(roster, Side::Visitor, false).text,
        HasSubstr("Visitor Lineups - Computer Manager requires at least one vs Left and vs Right Saved Lineup."));
    EXPECT_FALSE(CheckComputerDepth(roster, Side::Visitor).Any());
    List('D', Position::PH).slot = {};
    EXPECT_THAT(CheckComputerDepth(roster, Side::Visitor).text,
                HasSubstr("Computer Manager requires at least one player for each Depth Chart position."));
    EXPECT_EQ(CheckComputerDepth(roster, Side::Visitor).title, "Computer Manager Substitution");
}

// When nobody else is left, tired arms finish the game: it is bad, but it ends like a game.
TEST_F(SampleSeason, AGameBetweenStaffsThatShouldRestEndsAllTheSame) {
    GameSetup setup = LoadExhibition(common(), season(), teams[0], teams[1]);
    const auto runs = [&] {
        double sum = 0;
        for (std::uint64_t seed = 1; seed <= 40; ++seed) {
            GameState state;
            StartSetup(setup, state);
            PlayByComputers(setup, seed, state);
            EXPECT_TRUE(state.GameOverFlag);
            const int most = std::max(state[Side::Visitor].Runs, state[Side::Home].Runs);
            EXPECT_LT(most, 70) << "seed " << seed;
            sum += state[Side::Visitor].Runs + state[Side::Home].Runs;
        }
        return sum / 80;
    };
    const double rested = runs();
    for (const Side side : kBothSides)
        for (Pitcher& pitcher : setup.data.team[side].roster.pitchers) MakeIneffective(pitcher);
    CompileGameData(setup.data);
    EXPECT_GT(runs(), 2 * rested);
}

}  // namespace
}  // namespace tarvane
