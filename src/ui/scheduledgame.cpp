#include "ui/scheduledgame.h"

#include "data/teams.h"

namespace tarvane {

namespace {
constexpr const char* kScheduledTitle = "Play Scheduled Game";
}

ManagerFault CheckScheduledGame(Session& session, const ScheduledGame& game, const PerSide<SideControl>& control) {
    Database& season = session.Seasons().Season();
    const LeagueRules& rules = session.Seasons().Rules();
    const std::vector<Team> teams = LoadTeamList(season, rules);
    PerSide<const Team*> team{{nullptr, nullptr}};
    for (const Side side : kBothSides) {
        team[side] = FindTeamByIndex(teams, game.teamIdx[side]);
        if (team[side] == nullptr) return {kScheduledTitle, "Team data error - contact Tarvane"};
    }
    if (team[Side::Home]->ParkID == 0)
        return {kScheduledTitle,
                "Home Team does not have a ballpark defined.\nGo to Organize Teams and choose ballpark for Home Team."};
    const bool dhUsed = DHUsedIn(rules, *team[Side::Home]);
    for (const Side side : kBothSides) {
        if (!control[side].lineups && !control[side].subs) continue;
        const TeamRoster roster = LoadTeamRoster(season, team[side]->teamID, rules);
        const std::int32_t fixed = rules.IgnoreSchedLineups ? 0 : game.lineupNbr[side];
        ManagerFault fault = CheckManagerLists(roster, side, control[side], dhUsed, fixed);
        if (fault.Any()) return fault;
    }
    return {};
}

GamePtr PrepareScheduledGame(Session& session, const ScheduledGame& game, const PerSide<SideControl>& control) {
    Database& season = session.Seasons().Season();
    ScheduleSetup teams(session.Common(), season, {session.Paths().BallparkImages(), session.Paths().PlayerImages()});
    auto prepared = std::make_shared<PreparedGame>();
    static_cast<GameSetup&>(*prepared) = teams.SetUp(game, control);
    prepared->scheduled = game;
    prepared->daysReduced = teams.DaysReduced();
    for (const Side side : kBothSides)
        prepared->real[side] = LoadLahmanRecords(season, prepared->data[side].roster.team.teamID);
    return prepared;
}

}  // namespace tarvane
