#include "season/managerlists.h"

#include "data/lineups.h"
#include "data/rules.h"
#include "data/teams.h"
#include "season/realstats.h"

namespace tarvane {

namespace {

void AddRow(Database& season, LineupList& list) {
    Recordset rs = season.OpenRecordset("Lineups", "0 = 1");
    rs.AddNew();
    rs.Set("teamID", list.teamID);
    rs.Set("LineupType", std::string(1, list.LineupType));
    rs.Set("DepthType", list.DepthType);
    rs.Update();
    list.lineupID = static_cast<std::int32_t>(season.LastInsertId());
}

bool SameList(const LineupList& a, const LineupList& b) {
    const auto same = [](const ListSlot& x, const ListSlot& y) {
        return x.playerID == y.playerID && x.position == y.position && x.PlayerType == y.PlayerType;
    };
    return a.LineupName == b.LineupName && a.BattingvsL == b.BattingvsL && a.BattingvsR == b.BattingvsR &&
           a.playerIDP == b.playerIDP && a.GameID == b.GameID &&
           std::equal(a.slot.begin(), a.slot.end(), b.slot.begin(), same);
}

void WriteChanged(Database& season, const std::vector<LineupList>& before, TeamRoster& roster) {
    for (std::size_t i = 0; i < roster.lists.size(); ++i) {
        LineupList& list = roster.lists[i];
        if (list.lineupID == 0) AddRow(season, list);
        if (i >= before.size() || !SameList(before[i], list)) SaveLineup(season, list);
    }
    SaveTendencies(season, roster.team.teamID, roster.tendencies);
}

void GenerateTeam(Database& season, const std::string& teamID, const LeagueRules& rules,
                  const GenerateOptions& options) {
    TeamRoster roster = LoadTeamRoster(season, teamID, rules);
    const std::vector<LineupList> before = roster.lists;
    const RealUse real = options.basedOnUsage ? LoadRealUse(season, roster) : RealUse{};
    GenerateComputerManager(roster, options, &real);
    WriteChanged(season, before, roster);
}

}  // namespace

void SaveTendencies(Database& season, const std::string& teamID, const ManagerTendencies& tendency) {
    season.Execute(
        "UPDATE ComputerManager SET Bunting = ?, BaseStealing = ?, BaseRunning = ?, PinchHitting = ?, PinchRunning = "
        "?, "
        "RelieverUsage = ?, DefensiveSubs = ? WHERE teamID = ?",
        {std::int64_t{tendency.Bunting}, std::int64_t{tendency.BaseStealing}, std::int64_t{tendency.BaseRunning},
         std::int64_t{tendency.PinchHitting}, std::int64_t{tendency.PinchRunning}, std::int64_t{tendency.RelieverUsage},
         std::int64_t{tendency.DefensiveSubs}, teamID});
}

void SaveManager(Database& season, const TeamRoster& roster) {
    Transaction transaction(season);
    TeamRoster written = roster;
    WriteChanged(season, {}, written);
    transaction.Commit();
}

void GenerateTeamManager(Database& season, const std::string& teamID, const GenerateOptions& options) {
    Transaction transaction(season);
    GenerateTeam(season, teamID, LoadLeagueRules(season), options);
    transaction.Commit();
}

int GenerateSeasonManagers(Database& season, const GenerateOptions& options, Progress* progress) {
    Transaction transaction(season);
    const LeagueRules rules = LoadLeagueRules(season);
    const std::vector<Team> teams = LoadTeamList(season, rules);
    const int total = static_cast<int>(teams.size());
    for (int done = 0; done < total; ++done) {
        ReportProgress(progress, "Generating Computer Managers", done, total);
        GenerateTeam(season, teams[static_cast<std::size_t>(done)].teamID, rules, options);
    }
    transaction.Commit();
    return total;
}

void GenerateImportedManagers(Database& season, const LineupChoice& choice, Progress* progress) {
    GenerateOptions options;
    options.lineups = choice.both ? DHLists::Both : choice.includeDH ? DHLists::DH : DHLists::NoDH;
    options.basedOnUsage = choice.basedOnUsage;
    GenerateSeasonManagers(season, options, progress);
}

}  // namespace tarvane
