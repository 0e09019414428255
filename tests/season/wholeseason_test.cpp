// A whole season under computer managers: whatever is posted must add up, from whichever side it is read, and no team
// may have sent out a man who couldn't play.

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <set>

#include "base/file.h"
#include "data/rules.h"
#include "data/teams.h"
#include "manager/rest.h"
#include "manager/roster.h"
#include "postingseason.h"
#include "season/balancedschedule.h"
#include "season/plannedlineups.h"
#include "season/realstats.h"
#include "season/seasonaudit.h"

namespace tarvane {
namespace {

using ::testing::HasSubstr;

// Sits beside the field: sees each game when it is over and nothing of it is posted.
class Umpire final : public SeasonWatcher, GameListener {
  public:
    GameListener* Listener() override {
        outsOnBases_ = {};
        return this;
    }
    void GameOver(const GameSetup& setup, const GameState& state, GameToPost& posting) override {
        SCOPED_TRACE(posting.GameID);
        daysReduced += posting.daysReduced;
        for (const Side side : kBothSides) {
            const TeamRoster& roster = setup.data[side].roster;
            CheckLineup(roster, setup.lineup[side], setup.data);
            CheckMen(roster, state, side);
            int outs = 0, putOuts = 0;
            const BoxLines& box = state[side].box;
            for (std::size_t i = 0; i < box.PitchersUsed; ++i) outs += box.pitching[i].IPOuts;
            for (std::size_t i = 0; i < box.FielderLineCount; ++i) putOuts += box.fielder[i].PutOuts;
            EXPECT_EQ(outs - putOuts, outsOnBases_[side]);
        }
        ++games;
    }
    void Posted(const ScheduledGame& game, const GameSetup&, const GameState&, const PostingReport& report) override {
        EXPECT_TRUE(report.messages.empty()) << game.GameID << ": " << report.messages.front();
    }

    int games = 0, daysReduced = 0, hurt = 0;

  private:
    // Men caught stealing and picked off: no fielder has a put-out for them.
    void OnEvent(const GameData&, const GameState&, const GameEvent& event) override {
        if (event.kind == EventKind::Sound && (event.result == Result::CS || event.result == Result::PK))
            ++outsOnBases_[Other(event.side)];
    }
    static void CheckLineup(const TeamRoster& roster, const LineupInput& lineup, const GameData& data) {
        std::set<std::pair<char, int>> men;
        const std::multiset<Position> positions(lineup.position.begin(), lineup.position.end());
        for (const PlayerRef man : lineup.player) {
            EXPECT_TRUE(CanPlay(roster, man)) << NameOf(roster, man);
            men.emplace(man.type, man.index);
        }
        EXPECT_EQ(men.size(), 9U);
        std::multiset<Position> all{Position::C,  Position::B1, Position::B2, Position::B3,
                                    Position::SS, Position::LF, Position::CF, Position::RF};
        all.insert(data.DHUsed ? Position::DH : Position::P);
        EXPECT_EQ(positions, all);
        const Pitcher& starter = roster.pitchers[static_cast<std::size_t>(lineup.pitcher.index)];
        EXPECT_EQ(starter.pitcherType, 'S') << starter.playerName;
        EXPECT_TRUE(CanPlay(starter)) << starter.playerName;
        EXPECT_EQ(RestDaysLeft(starter, data.dayNumber), 0) << starter.playerName;
    }
    void CheckMen(const TeamRoster& roster, const GameState& state, Side side) {
        const BoxLines& box = state[side].box;
        const auto fit = [&roster](PlayerRef man) { EXPECT_TRUE(CanPlay(roster, man)) << NameOf(roster, man); };
        for (std::size_t i = 0; i < box.BatterLineCount; ++i) fit(box.batter[i].player);
        for (std::size_t i = 0; i < box.PitchersUsed; ++i) fit(box.pitching[i].player);
        for (std::size_t i = 0; i < state.injuryCount; ++i) hurt += state.injury[i].side == side;
    }
    PerSide<int> outsOnBases_{};
};

void ExpectBalance(Database& season) {
    const std::vector<std::string> faults = AuditSeason(season);
    EXPECT_TRUE(faults.empty()) << faults.size() << " faults, the first: " << faults.front();
}

void PlayAll(testing::PlayableSeason& made, std::size_t games) {
    Umpire umpire;
    SeasonPlayer player(*made.common, *made.season);
    player.Run({}, umpire);
    EXPECT_EQ(umpire.games, static_cast<int>(games));
    EXPECT_GT(umpire.hurt, umpire.games / 20);
    EXPECT_LT(umpire.daysReduced, umpire.games / 20);
    ExpectBalance(*made.season);
}

// The marks that managers go by are kept in memory from game to game.
void ExpectTopBattersOfTheTables(Database& season) {
    TopBatters top;
    top.Read(season, false);
    Statement sum = season.Prepare("SELECT sum(W + L), count(*) FROM KorvTeams");
    sum.Step();
    std::ptrdiff_t marked = 0;
    const LeagueRules rules = LoadLeagueRules(season);
    for (const Team& team : LoadTeamList(season, rules)) {
        const TeamRoster roster = LoadTeamRoster(season, team.teamID, rules);
        const std::vector<bool> expected = FindTopBatters(season, roster, false);
        EXPECT_EQ(top.Of(roster, sum.Int(0), sum.Int(1)), expected) << team.teamID;
        marked += std::count(expected.begin(), expected.end(), true);
    }
    EXPECT_GT(marked, 20);
}

// One thing changed behind the books' back, and the account that must tell.
void ExpectAuditFinds(Database& season) {
    struct Change {
        const char *sql, *account;
    };
    for (const Change& change : std::initializer_list<Change>{
             {"UPDATE KorvBatters SET H = H + 1 WHERE playerID = 5", "a batter and his games"},
             {"UPDATE KorvBatters SET vsLeftHR = vsLeftHR + 1, vsRightHR = vsRightHR - 1 WHERE playerID = 5",
              "a batter and his games"},
             {"UPDATE KorvBatterResultsLog SET RBI = RBI + 1 WHERE rowid = 70", "a team's game and its men's"},
             {"DELETE FROM KorvPitcherResultsLog WHERE GameID = 12", "12"},
             {"INSERT INTO KorvPitcherResultsLog SELECT * FROM KorvPitcherResultsLog WHERE GameID = 12", "12"},
             {"UPDATE KorvPitcherResultsLog SET W = 0, L = 1 WHERE GameID = 9 AND W = 1", "9 "},
             {"UPDATE Schedule SET Played = 0 WHERE GameID = 3", "isn't in the schedule as played"},
             {"UPDATE Schedule SET VisitorScore = VisitorScore + 1 WHERE GameID = 3", "a team and its games"},
             {"UPDATE Schedule SET HomeOpponentSB = HomeOpponentSB + 1 WHERE GameID = 3", "a game from its two sides"},
             {"UPDATE TeamVsTeam SET vsTeamWins = vsTeamWins + 1 WHERE TeamIndex = 1 AND vsTeamIndex = 2",
              "wins of one team"},
             {"UPDATE FieldingStats SET PutOuts = PutOuts + 1 WHERE rowid = 8", "a team and its fielders"},
             {"UPDATE KorvPitchers SET ERA = ERA * 1.01 WHERE playerID IN (SELECT playerID FROM KorvPitchers WHERE ER "
              "> 9)",
              "rates and their counts"},
             {"UPDATE KorvPitchers SET PitcherRestDays = 3, PitchedOnDay = 2 WHERE playerID = 3", "rest without work"},
             {"UPDATE KorvBatters SET InjuredDays = 5, InjuredDaysRemaining = 4, InjuryDate = '1975-01-01' WHERE "
              "playerID = 5",
              "an injury without its game"},
             {"UPDATE KorvTeams SET Game3WL = CASE Game3WL WHEN 'W' THEN 'L' ELSE 'W' END WHERE TeamIdx = 2",
              "streaks"}}) {
        const Transaction takenBack(season);
        season.Execute(change.sql);
        const std::vector<std::string> faults = AuditSeason(season);
        EXPECT_TRUE(std::any_of(faults.begin(), faults.end(), [&](const std::string& f) {
            return f.find(change.account) != std::string::npos;
        })) << change.sql;
    }
    ExpectBalance(season);
}

// With line-ups planned by real use nearly every regular bats about as often as he really did.
void ExpectRealUse(Database& season) {
    Statement men = season.Prepare(
        "SELECT b.AB, l.AB FROM KorvBatters b JOIN LahmanBatting l ON l.playerID = b.LahmanPlayerID AND l.KorvTeamID = "
        "b.teamID WHERE l.AB >= 300");
    int regulars = 0, near = 0;
    while (men.Step()) {
        const double share = static_cast<double>(men.Int(0)) / static_cast<double>(men.Int(1));
        ++regulars;
        near += share >= 0.88 && share <= 1.12;
    }
    EXPECT_GT(regulars, 50);
    EXPECT_GT(near, regulars * 8 / 10) << "of " << regulars;
}

TEST(WholeSeason, OfTheSampleLeague) {
    const auto made = testing::MakeScheduledSeason(0);
    Database& season = *made->season;
    const std::vector<NewGame> games = BalancedSchedule(LoadTeamList(season, {}), kSampleYear);
    ASSERT_EQ(games.size(), 16U * kUsualGames / 2);
    ReplaceSchedule(season, games);
    EXPECT_EQ(PlanScheduledLineups(season), static_cast<int>(2 * games.size()));
    EXPECT_EQ(PlanScheduledLineups(season), 0) << "what is fixed already isn't planned again";
    PlayAll(*made, games.size());
    ExpectRealUse(season);
    ExpectTopBattersOfTheTables(season);
    ExpectAuditFinds(season);
}

// Leagues of two sizes with and without the DH, traded men and doubleheaders.
TEST(WholeSeason, OfARealYear) {
    const char* folder = std::getenv("TARVANE_REAL_DATA");
    if (folder == nullptr) GTEST_SKIP() << "TARVANE_REAL_DATA names no folder of real statistics";
    const std::filesystem::path real = folder;
    testing::PlayableSeason made(real / "lahman" / "csv", 1975);
    const ScheduleFile file = ParseScheduleFile(ReadFile(real / "retrosheet" / "schedules" / "1975SKED.TXT"), "1975");
    const int games = ImportSchedule(*made.season, file).games;
    PlanScheduledLineups(*made.season);
    PlayAll(made, static_cast<std::size_t>(games));
    ExpectRealUse(*made.season);
}

}  // namespace
}  // namespace tarvane
