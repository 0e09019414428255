#include "season/plannedlineups.h"

#include <fmt/core.h>

#include <algorithm>
#include <map>
#include <vector>

#include "data/rules.h"
#include "data/teams.h"
#include "manager/roster.h"
#include "manager/useplan.h"
#include "season/calendar.h"
#include "season/fixedlineups.h"
#include "season/gamesetup.h"
#include "season/realstats.h"
#include "season/schedulesetup.h"

namespace tarvane {

namespace {

constexpr int kUsualStart = 21;  // outs

// Days that a starter rests after such a start.
int RestAfterStart(const LeagueRules& rules) {
    for (const PitcherRestRow& row : rules.rest)
        if (row.pitcherType == 'S' && row.IPOutsFrom >= 0 && row.IPOutsFrom <= kUsualStart &&
            row.IPOutsTo >= kUsualStart)
            return row.RestDays;
    return 0;
}

struct ClubGame {
    std::size_t game = 0;  // place among the unplayed ones
    Side side = Side::Visitor;
};

struct Club {
    TeamRoster roster;
    RealUse real;
    std::vector<ClubGame> games;
    std::vector<PlanGame> plan;
    std::vector<int> starters;
};

const LineupList* FixedFor(const TeamRoster& roster, std::int32_t lineupID) {
    const auto found = std::find_if(roster.lists.begin(), roster.lists.end(),
                                    [&](const LineupList& list) { return list.lineupID == lineupID; });
    return lineupID == 0 || found == roster.lists.end() ? nullptr : &*found;
}

class Planner {
  public:
    explicit Planner(Database& season)
        : season_(season), rules_(LoadLeagueRules(season)), games_(UnplayedGames(season)) {}

    int Plan();

  private:
    void Load();
    void PlanStaffs();
    int PlanNines(Club& club, FixedLineupWriter& writer);

    Database& season_;
    LeagueRules rules_;
    std::vector<ScheduledGame> games_;
    std::map<std::int32_t, Club> clubs_;       // by TeamIdx
    std::vector<PerSide<bool>> startsLeft_;    // of each game: that side's starter throws left
};

void Planner::Load() {
    for (const Team& team : LoadTeamList(season_, rules_)) {
        Club& club = clubs_[team.TeamIdx];
        club.roster = LoadTeamRoster(season_, team.teamID, rules_);
        club.real = LoadRealUse(season_, club.roster);
    }
    for (std::size_t i = 0; i < games_.size(); ++i) {
        const auto home = clubs_.find(games_[i].teamIdx[Side::Home]);
        const auto day = DayCount(games_[i].GameDate);
        if (home == clubs_.end() || !day) continue;
        for (const Side side : kBothSides) {
            const auto club = clubs_.find(games_[i].teamIdx[side]);
            if (club == clubs_.end()) continue;
            club->second.games.push_back({i, side});
            club->second.plan.push_back({*day, DHUsedIn(rules_, home->second.roster.team), false,
                                         FixedFor(club->second.roster, games_[i].lineupNbr[side])});
        }
    }
}

// The starters of all clubs come first: a nine is planned for the hand that it meets.
void Planner::PlanStaffs() {
    startsLeft_.assign(games_.size(), {{false, false}});
    const int rest = RestAfterStart(rules_);
    for (auto& [teamIdx, club] : clubs_) {
        club.starters = PlanStarters(club.roster, club.real, rest, club.plan);
        for (std::size_t g = 0; g < club.games.size(); ++g)
            if (club.starters[g] >= 0)
                startsLeft_[club.games[g].game][club.games[g].side] =
                    club.roster.pitchers[static_cast<std::size_t>(club.starters[g])].throws_ == kLeftHand;
    }
}

int Planner::PlanNines(Club& club, FixedLineupWriter& writer) {
    for (std::size_t g = 0; g < club.games.size(); ++g)
        club.plan[g].opponentThrowsLeft = startsLeft_[club.games[g].game][Other(club.games[g].side)];
    int planned = 0;
    std::vector<LineupList> lists = PlanLineups(club.roster, club.real, club.plan, club.starters);
    for (std::size_t g = 0; g < lists.size(); ++g) {
        if (lists[g].playerIDP == 0) continue;
        const ScheduledGame& game = games_[club.games[g].game];
        lists[g].teamID = club.roster.team.teamID;
        lists[g].LineupName = fmt::format("{} by real use", game.GameDate);
        writer.Write(lists[g], game.GameID, club.games[g].side);
        ++planned;
    }
    return planned;
}

int Planner::Plan() {
    Load();
    PlanStaffs();
    FixedLineupWriter writer(season_);
    int planned = 0;
    for (auto& [teamIdx, club] : clubs_)
        if (club.real.present) planned += PlanNines(club, writer);
    return planned;
}

}  // namespace

bool GoesByRealUse(Database& season) {
    const LeagueRules rules = LoadLeagueRules(season);
    if (!rules.FactorActualUsage || rules.IgnoreSchedLineups || rules.TourneyMode) return false;
    Statement known = season.Prepare("SELECT EXISTS (SELECT 1 FROM LahmanBatting WHERE AB > 0)");
    return known.Step() && known.Int(0) != 0;
}

int PlanScheduledLineups(Database& season) {
    Transaction transaction(season);
    const int planned = Planner(season).Plan();
    transaction.Commit();
    return planned;
}

}  // namespace tarvane
