#include "data/columnlist.h"

namespace tarvane {

namespace {

constexpr int kCodeWidth = 10;

// Batting, pitching and fielding of a whole team, and its derived figures.
ColumnList TeamTotals() {
    ColumnList list;
    list.Integer("RF RA AB H 2B 3B HR RBI SB CS BB SO HBP SH SF GIDP").Double("Avg OBP SLG OPS RC");
    list.Integer("Games GS CG SHO SV IPOuts oppH OppBB OppSO ER OppHR OppHBP").Double("ERA WHIP");
    list.Long("PitcherAutoOuts GreatDefensivePlays");
    list.Integer("PutOuts Assists Errors DoublePlays PassBalls OpponentSB OpponentCS").Double("FieldingPct");
    return list;
}

ColumnList Rounds(const std::string& prefix) {
    ColumnList list;
    for (int round = 1; round <= 4; ++round)
        for (const char* result : {"W", "L"}) list.Integer(prefix + std::to_string(round) + result);
    return list;
}

ColumnList Streak() {
    ColumnList list;
    return list.Integer("HomeWins HomeLosses DivWins DivLosses").Text(1, "WinLossStreak").Integer("StreakNumberGames");
}

// The losers' bracket is played in the tournament twin, which alone has its columns.
TableDef Teams() {
    ColumnList list;
    list.Counter("TeamIdx").Text(kCodeWidth, "teamID").Text(50, "fullName").Text(25, "shortName");
    list.Nullable(ColumnKind::Integer, "yearID").Integer("lgIdx divIdx").Text(5, "lgId divId").Boolean("HomeDH");
    list.Long("ParkID");
    list.columns.push_back({"AnthemType", {ColumnKind::Text, 1}, std::string("U")});
    list.Boolean("ComputerManaged AlwaysHumanManaged").Text(100, "ImageFile");
    list.Long("HmBackClr HmForeClr RdBackClr RdForeClr").Integer("ActualWins ActualLosses W L").Double("Pct");
    list.Append(Streak());
    for (int game = 1; game <= 10; ++game) list.BlankText(1, "Game" + std::to_string(game) + "WL");
    list.Append(TeamTotals()).Append(Rounds("Round")).Spares(5);
    list.MissingAt(96, "GreatDefensivePlays PitcherAutoOuts");
    return {"KorvTeams", TableHome::Season, list.columns, {"teamID"}, UpgradeRule::Exactly};
}

TableDef TourneyTeams() {
    ColumnList list;
    list.Long("TeamIdx").Text(kCodeWidth, "teamID").Text(50, "fullName").Text(25, "shortName").Integer("lgIdx divIdx");
    list.Integer("W L").Double("Pct").Append(Streak()).Append(TeamTotals()).Append(Rounds("Round")).Spares(5);
    list.Append(Rounds("LRound")).MissingAt(71, "GreatDefensivePlays PitcherAutoOuts");
    for (const ColumnDef& column : Rounds("LRound").columns) list.MissingAt(73, column.name, UpgradeStage::Tourney);
    return {"TourneyTeams", TableHome::Season, list.columns, {"TeamIdx", "teamID"}, UpgradeRule::Exactly};
}

TableDef Lineups() {
    ColumnList list;
    list.Counter("lineupID").Text(kCodeWidth, "teamID").Text(1, "LineupType").Text(2, "DepthType");
    list.Text(50, "LineupName").Integer("BattingvsL BattingvsR");
    for (int slot = 1; slot <= 9; ++slot) list.Long("playerID" + std::to_string(slot));
    for (int slot = 1; slot <= 9; ++slot) list.Text(2, "Position" + std::to_string(slot));
    for (int slot = 1; slot <= 9; ++slot) list.Text(1, "PlayerType" + std::to_string(slot));
    list.Long("playerIDP GameID").MissingAt(35, "GameID");
    return {"Lineups", TableHome::Season, list.columns, {"teamID"}, UpgradeRule::AtMost};
}

TableDef Managers() {
    ColumnList list;
    list.Text(kCodeWidth, "teamID");
    for (const char* tendency :
         {"Bunting", "BaseStealing", "BaseRunning", "PinchHitting", "PinchRunning", "RelieverUsage", "DefensiveSubs"})
        list.columns.push_back({tendency, {ColumnKind::Byte}, std::int64_t{2}});
    return {"ComputerManager", TableHome::Season, list.columns, {"teamID"}};
}

}  // namespace

void AddTeamTables(std::vector<TableDef>& tables) {
    tables.push_back(Teams());
    tables.push_back(TourneyTeams());
    ColumnList leagues;
    leagues.Integer("lgIdx").Text(50, "lgName").Text(25, "shortName").Long("EraID");
    tables.push_back({"Leagues", TableHome::Season, leagues.columns, {}});
    ColumnList divisions;
    divisions.Integer("lgIdx divIdx").Text(25, "divName");
    tables.push_back({"Divisions", TableHome::Season, divisions.columns, {}});
    tables.push_back(Lineups());
    tables.push_back(Managers());
}

}  // namespace tarvane
