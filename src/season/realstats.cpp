#include "season/realstats.h"

#include <fmt/core.h>

#include <set>

#include "base/rounding.h"
#include "ratings/lahman_records.h"

namespace tarvane {

namespace {

RealBatting BattingOf(const LahmanRecordSet& records, const std::string& lahmanID) {
    RealBatting real;
    const LahmanRecord* record = records.FindBatter(lahmanID);
    if (!record) return real;
    real.found = true;
    real.G = record->G;
    real.AB = record->total.counts.AB;
    real.PAvsLeft = record->vsLeft.PA;
    real.PAvsRight = record->vsRight.PA;
    real.HRvsLeft = record->vsLeft.counts.HR;
    real.HRvsRight = record->vsRight.counts.HR;
    for (const RealGamesAt& at : record->positions) real.gamesAt[static_cast<std::size_t>(at.position)] = at.G;
    return real;
}

RealPitching PitchingOf(const LahmanRecordSet& records, const std::string& lahmanID) {
    const LahmanPitchRecord* record = records.FindPitcher(lahmanID);
    if (!record) return {};
    return {true, record->G, record->GS, record->IPOuts, record->SV, record->BFP};
}

using Ids = std::set<std::int64_t>;

// Men with so many plate appearances, best first by the column, until the limit is passed.
void AddBest(Database& season, const std::string& table, const char* column, const char* condition, long least,
             long limit, Ids& ids) {
    Statement rows = season.Prepare(fmt::format(
        "SELECT playerID FROM {0} WHERE {1} <> 0 AND AB + BB + HBP >= ?1 {2} ORDER BY {1} DESC, playerID LIMIT ?2",
        table, column, condition));
    rows.Bind(1, std::int64_t{least});
    rows.Bind(2, std::int64_t{limit});
    while (rows.Step()) ids.insert(rows.Int(0));
}

// The plate appearances that count a man among the best, or -1 while too little is played.
long LeastAppearances(Database& season, bool tourney) {
    constexpr std::int64_t kLeastDecisions = 10;
    Statement sum =
        season.Prepare(fmt::format("SELECT sum(W + L), count(*) FROM {}", tourney ? "TourneyTeams" : "KorvTeams"));
    if (!sum.Step() || sum.Int(1) == 0 || sum.Int(0) < kLeastDecisions) return -1;
    const double games = static_cast<double>(sum.Int(0)) / static_cast<double>(sum.Int(1));
    return RoundHalfEven(games * (tourney ? 2.5 : 3.098));
}

}  // namespace

RealUse LoadRealUse(Database& season, const TeamRoster& roster) {
    RealUse real;
    const LahmanRecordSet records = LoadLahmanRecords(season, roster.team.teamID);
    real.present = records.Present();
    if (!real.present) return real;
    for (const Batter& batter : roster.batters) real.batters.push_back(BattingOf(records, batter.LahmanPlayerID));
    for (const Pitcher& pitcher : roster.pitchers) real.pitchers.push_back(PitchingOf(records, pitcher.LahmanPlayerID));
    real.teamSB = records.SB;
    real.teamSH = records.SH;
    const int played = roster.team.ActualWins + roster.team.ActualLosses;
    if (played > 0) real.teamGames = played;
    return real;
}

std::vector<bool> FindTopBatters(Database& season, const TeamRoster& roster, bool tourney) {
    std::vector<bool> top(roster.batters.size(), false);
    const long least = LeastAppearances(season, tourney);
    if (least < 0) return top;
    const std::string table = tourney ? "TourneyBatters" : "KorvBatters";
    Statement count = season.Prepare("SELECT count(*) FROM " + table);
    count.Step();
    const long limit = RoundHalfEven(static_cast<double>(count.Int(0)) / 10);
    Ids ids;
    constexpr const char* kWithTeam = "AND coalesce(NoLongerWithTeam, 0) = 0";
    AddBest(season, table, "Avg", "", least, limit, ids);
    AddBest(season, table, "SLG", kWithTeam, least, limit, ids);
    AddBest(season, table, "HR", kWithTeam, 0, limit, ids);
    for (std::size_t i = 0; i < roster.batters.size(); ++i) top[i] = ids.count(roster.batters[i].playerID) > 0;
    return top;
}

ManagerKnowledge LoadManagerKnowledge(Database& season, const TeamRoster& roster, const LeagueRules& rules) {
    ManagerKnowledge knowledge;
    if (rules.FactorActualUsage) {
        knowledge.real = LoadRealUse(season, roster);
        knowledge.actualUsage = knowledge.real.present;
    }
    knowledge.topBatter = FindTopBatters(season, roster, rules.TourneyMode);
    return knowledge;
}

}  // namespace tarvane
