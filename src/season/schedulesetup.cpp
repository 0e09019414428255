#include "season/schedulesetup.h"

#include <fmt/core.h>

#include <algorithm>

#include "base/error.h"
#include "data/rules.h"
#include "data/teams.h"
#include "manager/rest.h"
#include "manager/roster.h"
#include "season/calendar.h"
#include "season/managerchecks.h"
#include "season/realstats.h"

namespace tarvane {

namespace {

[[noreturn]] void RefuseGame(const ScheduledGame& game, const std::string& why) {
    throw UserError(fmt::format("Game {} of {} can't be played: {}", game.GameID, game.GameDate, why));
}

const char* ScheduleTable(bool tourney) {
    return tourney ? "TourneySchedule" : "Schedule";
}

// The starter's playerID that a stored line-up names; 0 if it names none.
std::int32_t StarterNamedBy(const TeamRoster& roster, std::int32_t lineupID) {
    for (const LineupList& list : roster.lists)
        if (list.lineupID == lineupID) return list.playerIDP;
    return 0;
}

}  // namespace

std::vector<ScheduledGame> UnplayedGames(Database& season, const std::string& through) {
    const bool tourney = LoadLeagueRules(season).TourneyMode;
    Statement rows = season.Prepare(fmt::format(
        "SELECT GameID, GameDate, VisitorTeamIndex, HomeTeamIndex, VisitorLineupNbr, HomeLineupNbr FROM {} "
        "WHERE Played = 0 {} ORDER BY GameDate, GameID",
        ScheduleTable(tourney), tourney ? "AND GameNotNeeded = 0 AND VisitorTeamIndex > 0 AND HomeTeamIndex > 0" : ""));
    std::vector<ScheduledGame> games;
    while (rows.Step()) {
        ScheduledGame game{static_cast<std::int32_t>(rows.Int(0)), rows.Text(1), {}, {}};
        if (!through.empty() && game.GameDate > through) break;
        int column = 2;
        for (const Side side : kBothSides) game.teamIdx[side] = static_cast<std::int32_t>(rows.Int(column++));
        for (const Side side : kBothSides) game.lineupNbr[side] = static_cast<std::int32_t>(rows.Int(column++));
        games.push_back(std::move(game));
    }
    return games;
}

ScheduleSetup::ScheduleSetup(Database& common, Database& season, PictureFolders pictures)
    : common_(common), season_(season), pictures_(std::move(pictures)) {
    setup_.data.rules = LoadLeagueRules(season_);
    for (const Team& team : LoadTeamList(season_, setup_.data.rules)) LoadTeam(team);
    topBatters_.Read(season_, setup_.data.rules.TourneyMode);
    ReadDoubleHeaders();
}

// Parts of the schedule in which a club has more than one game of a day on the same side.
void ScheduleSetup::ReadDoubleHeaders() {
    for (const Side side : kBothSides) {
        const char* column = side == Side::Visitor ? "VisitorTeamIndex" : "HomeTeamIndex";
        Statement rows =
            season_.Prepare(fmt::format("SELECT GameDate, {0} FROM {1} GROUP BY GameDate, {0} HAVING count(*) > 1",
                                        column, ScheduleTable(setup_.data.rules.TourneyMode)));
        while (rows.Step()) twoGames_[side].emplace(rows.Text(0), static_cast<std::int32_t>(rows.Int(1)));
    }
}

// Starters who could pitch today; one of several is kept for the other game of a doubleheader.
int ScheduleSetup::StartersFree(const ScheduledGame& game, Side side) const {
    const TeamRoster& roster = setup_.data[side].roster;
    const auto free = std::count_if(roster.pitchers.begin(), roster.pitchers.end(), [&](const Pitcher& pitcher) {
        return pitcher.pitcherType == 'S' && !IsResting(roster, pitcher);
    });
    const bool kept = free > 1 && twoGames_[side].count({game.GameDate, game.teamIdx[side]}) > 0;
    return static_cast<int>(free) - (kept ? 1 : 0);
}

void ScheduleSetup::LoadTeam(const Team& row) {
    SeasonTeam& team = teams_[row.TeamIdx];
    const LeagueRules& rules = setup_.data.rules;
    // The charts of a team are compiled beside an empty opponent.
    GameData scratch;
    scratch.rules = rules;
    PlayerLoad load;
    load.useTourneyStats = rules.TourneyMode;
    load.playerImages = pictures_.players;
    scratch.team[Side::Home].roster = LoadTeamRoster(season_, row.teamID, rules, load);
    CompileGameData(scratch);
    team.data = std::move(scratch.team[Side::Home]);
    const TeamRoster& roster = team.data.roster;
    for (std::size_t i = 0; i < roster.pitchers.size(); ++i)
        team.ownCharts.emplace_back(roster.pitchers[i].pitch, team.data.pitcherCharts[i]);
    team.ineffective.assign(roster.pitchers.size(), false);
    if (rules.FactorActualUsage) {
        team.knowledge.real = LoadRealUse(season_, roster);
        team.knowledge.actualUsage = team.knowledge.real.present;
    }
    team.lastStarter = FindLastStarter(season_, row.teamID);
}

ScheduleSetup::SeasonTeam& ScheduleSetup::TeamOf(const ScheduledGame& game, Side side) {
    const auto found = teams_.find(game.teamIdx[side]);
    if (found == teams_.end())
        RefuseGame(game, fmt::format("there is no team {}. Edit the schedule.", game.teamIdx[side]));
    const TeamRoster& roster = found->second.data.roster;
    if (roster.batters.empty() || roster.pitchers.empty())
        RefuseGame(game, fmt::format("{} has no players. Import or add them first.", roster.team.fullName));
    return found->second;
}

// What surrounds the home games of a team is loaded for its first one.
void ScheduleSetup::Surround(SeasonTeam& home) {
    GameData& data = setup_.data;
    if (!home.home) {
        ExhibitionOptions options;
        options.pictures = pictures_;
        LoadSurroundings(common_, season_, options, setup_);
        PerSide<TeamData> teams = std::move(data.team);
        data.team = {};
        CompileGameData(data);
        data.team = std::move(teams);
        home.home = std::make_unique<Surroundings>(
            Surroundings{data.park, data.year, data.defensiveEra, data.parkChart, data.yearChart, data.eraCells});
    }
    data.park = home.home->park;
    data.year = home.home->year;
    data.defensiveEra = home.home->defensiveEra;
    data.parkChart = home.home->parkChart;
    data.yearChart = home.home->yearChart;
    data.eraCells = home.home->eraCells;
    data.DHUsed = DHUsedIn(data.rules, data[Side::Home].roster.team);
}

bool ScheduleSetup::UsesScheduled(const ScheduledGame& game, Side side) const {
    return game.lineupNbr[side] != 0 && !setup_.data.rules.IgnoreSchedLineups;
}

// Lists don't change during a run: those of a team are checked once for each kind of game, a fixed one each time.
void ScheduleSetup::CheckLists(const ScheduledGame& game, Side side, SeasonTeam& team) {
    const bool dh = setup_.data.DHUsed, fixed = UsesScheduled(game, side);
    bool& checked = team.checked[dh ? Side::Home : Side::Visitor];
    if (checked && !fixed) return;
    const TeamRoster& roster = setup_.data[side].roster;
    const ManagerFault fault =
        CheckManagerLists(roster, side, setup_.control[side], dh, fixed ? game.lineupNbr[side] : 0);
    if (fault.Any()) RefuseGame(game, fmt::format("{} ({})", fault.text, roster.team.fullName));
    checked = true;
}

void ScheduleSetup::GiveOwnChartsBack(SeasonTeam& team) {
    for (std::size_t i = 0; i < team.ineffective.size(); ++i) {
        if (!team.ineffective[i]) continue;
        team.data.roster.pitchers[i].pitch = team.ownCharts[i].first;
        team.data.pitcherCharts[i] = team.ownCharts[i].second;
        team.ineffective[i] = false;
    }
}

// Takes days off everybody but the team of a side, whose own are off already.
void ScheduleSetup::ReduceOthers(Side side, int days) {
    if (days == 0) return;
    daysReduced_ += days;
    TeamRoster& opponent = setup_.data.team[Other(side)].roster;
    for (int day = 0; day < days; ++day) {
        // The teams that play are lent out: what is left of them here has no men.
        for (auto& entry : teams_) ReduceRestAndInjuries(entry.second.data.roster);
        ReduceRestAndInjuries(opponent);
    }
    GetPitcherRest(opponent, setup_.data.dayNumber);
}

void ScheduleSetup::ChooseStarters(const ScheduledGame& game) {
    for (const Side side : kBothSides) {
        TeamRoster& roster = setup_.data.team[side].roster;
        StarterRequest request;
        request.side = side;
        request.scheduledStarter = game.lineupNbr[side] == 0 ? 0 : StarterNamedBy(roster, game.lineupNbr[side]);
        request.ignoreScheduled = setup_.data.rules.IgnoreSchedLineups;
        request.lastStarter = playing_[side]->lastStarter;
        request.dayNumber = setup_.data.dayNumber;
        request.actualUsage = setup_.knowledge[side].actualUsage;
        const ChosenStarter chosen = ChooseStarter(roster, request, &setup_.knowledge[side].real);
        if (chosen.pitcher < 0)
            RefuseGame(game, chosen.messages.empty() ? "there is no starting pitcher." : chosen.messages.back());
        starter_[side] = chosen.pitcher;
        ReduceOthers(side, chosen.daysReduced);
        setup_.messages.insert(setup_.messages.end(), chosen.messages.begin(), chosen.messages.end());
    }
}

void ScheduleSetup::ChooseLineups(const ScheduledGame& game) {
    for (const Side side : kBothSides) {
        LineupRequest request;
        request.side = side;
        request.dhUsed = setup_.data.DHUsed;
        request.pitcher = starter_[side];
        request.scheduledLineup = UsesScheduled(game, side) ? game.lineupNbr[side] : 0;
        const auto facing = static_cast<std::size_t>(starter_[Other(side)]);
        request.opponentThrowsLeft = setup_.data[Other(side)].roster.pitchers[facing].throws_ == kLeftHand;
        const ChosenLineup chosen = ChooseLineup(setup_.data[side].roster, request);
        if (!chosen.trouble.empty()) RefuseGame(game, chosen.trouble);
        setup_.lineup[side] = chosen.lineup;
        setup_.messages.insert(setup_.messages.end(), chosen.messages.begin(), chosen.messages.end());
    }
}

void ScheduleSetup::MakeTiredIneffective(Side side) {
    TeamData& team = setup_.data.team[side];
    for (std::size_t i = 0; i < team.roster.pitchers.size(); ++i) {
        Pitcher& pitcher = team.roster.pitchers[i];
        if (pitcher.PitcherRestDays == 0) continue;
        MakeIneffective(pitcher);
        PitcherCharts& charts = team.pitcherCharts[i];
        charts.pitch = CompileChart(pitcher.pitch);
        charts.HasOutCells = std::any_of(charts.pitch.begin(), charts.pitch.end(), [](const Cell& cell) {
            return cell.color == CellColor::Red || cell.color == CellColor::Blue;
        });
        playing_[side]->ineffective[i] = true;
    }
}

GameSetup& ScheduleSetup::SetUp(const ScheduledGame& game, const PerSide<SideControl>& control) {
    if (game.teamIdx[Side::Visitor] == game.teamIdx[Side::Home]) RefuseGame(game, "a team can't meet itself.");
    const auto day = DayOfYear(game.GameDate);
    if (!day) RefuseGame(game, fmt::format("\"{}\" is no date. Edit the schedule.", game.GameDate));
    daysReduced_ = 0;
    setup_.control = control;
    setup_.messages.clear();
    setup_.data.gameDate = game.GameDate;
    setup_.data.dayNumber = static_cast<std::int16_t>(*day);
    const bool tourney = setup_.data.rules.TourneyMode;
    std::int64_t decisions = 0, teams = 0;
    for (const auto& entry : teams_) {
        const Team& team = entry.second.data.roster.team;
        if (tourney && !team.inTournament) continue;
        decisions += team.W + team.L;
        ++teams;
    }
    for (const Side side : kBothSides) {
        SeasonTeam& team = TeamOf(game, side);
        GiveOwnChartsBack(team);
        setup_.knowledge[side] = team.knowledge;
        setup_.knowledge[side].topBatter = topBatters_.Of(team.data.roster, decisions, teams);
        playing_[side] = &team;
    }
    for (const Side side : kBothSides) {
        setup_.data.team[side] = std::move(playing_[side]->data);
        playing_[side]->data = {};
        GetPitcherRest(setup_.data.team[side].roster, *day);
    }
    for (const Side side : kBothSides) setup_.knowledge[side].startersAvailable = StartersFree(game, side);
    Surround(*playing_[Side::Home]);
    for (const Side side : kBothSides) CheckLists(game, side, *playing_[side]);
    ChooseStarters(game);
    ChooseLineups(game);
    for (const Side side : kBothSides) MakeTiredIneffective(side);
    return setup_;
}

void ScheduleSetup::TakeBack(const PerSide<bool>& latest, const GameState& state, bool movedMen) {
    if (movedMen) topBatters_.Read(season_, false);
    for (const Side side : kBothSides) {
        SeasonTeam& team = *playing_[side];
        team.data = std::move(setup_.data.team[side]);
        setup_.data.team[side] = {};
        const TeamRoster& roster = team.data.roster;
        if (!movedMen) topBatters_.Update(roster);
        const PlayerRef first = state[side].box.pitching[0].player;
        if (latest[side] && !first.Nobody())
            team.lastStarter = roster.pitchers[static_cast<std::size_t>(first.index)].playerID;
        playing_[side] = nullptr;
    }
}

}  // namespace tarvane
