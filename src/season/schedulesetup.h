#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "season/gamesetup.h"
#include "season/topbatters.h"

namespace tarvane {

// A game of the schedule that is still to be played.
struct ScheduledGame {
    std::int32_t GameID = 0;
    std::string GameDate;                     // yyyy-mm-dd
    PerSide<std::int32_t> teamIdx{{0, 0}};    // TeamIdx
    PerSide<std::int32_t> lineupNbr{{0, 0}};  // lineupID fixed for the game; 0 for none
};

// The unplayed games in the order in which they are played: by date, then by GameID. through (yyyy-mm-dd) is the last
// date taken; empty: all.
std::vector<ScheduledGame> UnplayedGames(Database& season, const std::string& through = {});

// All teams of a season in memory, with everything that their games are played on. Loading a team takes milliseconds,
// so a run over a season loads each once and carries its statistics, rests and injuries on from game to game.
class ScheduleSetup {
  public:
    // Reads the rules and all teams.
    ScheduleSetup(Database& common, Database& season, PictureFolders pictures = {});

    // Makes a game ready: the starters by rotation and rest, the nines, the charts. The two teams are lent to the
    // set-up until TakeBack. The lists that a computer manager needs are checked for the sides that have one. Throws
    // UserError that names the game if it can't be played; the object is of no use after that.
    GameSetup& SetUp(const ScheduledGame& game) { return SetUp(game, kBothComputers); }
    GameSetup& SetUp(const ScheduledGame& game, const PerSide<SideControl>& control);

    // Days that the last set-up took off all rests and injuries of the league for want of a starter; the posting has to
    // take them off the tables too.
    int DaysReduced() const { return daysReduced_; }

    // The two teams come back with the records of the game posted. latest says whether it was their latest; movedMen,
    // that rows outside the teams were added to.
    void TakeBack(const PerSide<bool>& latest, const GameState& state, bool movedMen);

  private:
    static constexpr PerSide<SideControl> kBothComputers{
        {SideControl{true, true, true}, SideControl{true, true, true}}};

    struct Surroundings {
        Ballpark park;
        YearEffects year;
        DefensiveEra defensiveEra;
        Chart parkChart{}, yearChart{};
        std::array<std::array<Cell, 6>, 18> eraCells{};
    };
    struct SeasonTeam {
        TeamData data;
        std::vector<std::pair<ChartCells, PitcherCharts>> ownCharts;  // of the pitchers, while rest takes theirs
        std::vector<bool> ineffective;
        ManagerKnowledge knowledge;
        std::int32_t lastStarter = 0;
        std::unique_ptr<Surroundings> home;     // of its home games, once there was one
        PerSide<bool> checked{{false, false}};  // its lists, for games without and with the DH
    };

    void ReadDoubleHeaders();
    int StartersFree(const ScheduledGame& game, Side side) const;
    void LoadTeam(const Team& team);
    SeasonTeam& TeamOf(const ScheduledGame& game, Side side);
    void Surround(SeasonTeam& home);
    void CheckLists(const ScheduledGame& game, Side side, SeasonTeam& team);
    void ChooseStarters(const ScheduledGame& game);
    void ChooseLineups(const ScheduledGame& game);
    void ReduceOthers(Side side, int days);
    void GiveOwnChartsBack(SeasonTeam& team);
    void MakeTiredIneffective(Side side);
    bool UsesScheduled(const ScheduledGame& game, Side side) const;

    Database& common_;
    Database& season_;
    PictureFolders pictures_;
    GameSetup setup_;
    std::map<std::int32_t, SeasonTeam> teams_;  // by TeamIdx
    PerSide<SeasonTeam*> playing_{{nullptr, nullptr}};
    PerSide<int> starter_{{-1, -1}};
    TopBatters topBatters_;
    PerSide<std::set<std::pair<std::string, std::int32_t>>> twoGames_;  // dates and teams
    int daysReduced_ = 0;
};

}  // namespace tarvane
