#include "data/columnlist.h"

namespace tarvane {

namespace {

constexpr std::string_view kSplitTotals = "AB H 2B 3B HR RBI BB SO HBP SH SF GIDP";
constexpr std::string_view kRates = "Avg OBP SLG OPS RC";

// A text wide enough for every Lahman key and every code of a team.
constexpr int kKeyWidth = 15;
constexpr int kTeamWidth = 10;

ColumnList Injury() {
    ColumnList list;
    return list.BlankText(30, "InjuryDate").Integer("InjuryNbrDate InjuredDays InjuredDaysRemaining");
}

ColumnList Positions(int count) {
    ColumnList list;
    for (int i = 1; i <= count; ++i) list.BlankText(2, "Pos" + std::to_string(i));
    for (int i = 1; i <= count; ++i) list.Integer("Pos" + std::to_string(i) + "Rating");
    for (int i = 1; i <= count; ++i) list.BlankText(1, "Pos" + std::to_string(i) + "ErrorRating");
    return list;
}

ColumnList Chances(std::string_view prefix) {
    ColumnList list;
    return list.Doubles(prefix, "SinglesChance DoublesChance TriplesChance HRChance BBorHBPChance SOChance");
}

// Season totals and both splits of a batter.
ColumnList BatterTotals() {
    ColumnList list;
    list.Integer("G AB R H Doubles Triples HR RBI SB CS BB SO IBB HBP SH SF GIDP").Double(kRates);
    for (const std::string_view side : {"vsLeft", "vsRight"}) list.Integers(side, kSplitTotals).Doubles(side, kRates);
    return list;
}

ColumnList PitcherTotals() {
    ColumnList list;
    return list.Integer("W L Games GS CG SHO SV IPOuts OppHits OppHR ER OppBB OppSO OppIBB OppHBP WP OppRuns OppAB BF");
}

// What a pitcher did as a batter. Doubles and triples are 2B and 3B here.
ColumnList PitcherBatting() {
    ColumnList list;
    return list.Integer("AB BB R H 2B 3B HR RBI SB CS SO HBP SH SF GIDP IBB");
}

ColumnList Identity() {
    ColumnList list;
    return list.Counter("playerID")
        .Text(kKeyWidth, "LahmanPlayerID")
        .Byte("lgIdx")
        .Text(kTeamWidth, "teamID ActualTeamID")
        .Long("CombinedPlayerID")
        .Text(25, "playerName");
}

// The tournament tables hold statistics alone; charts and ratings stay in the main row of the same playerID.
ColumnList TourneyIdentity() {
    ColumnList list;
    return list.Long("playerID")
        .Text(kTeamWidth, "teamID ActualTeamID")
        .Byte("lgIdx")
        .Text(25, "playerName")
        .Boolean("NoLongerWithTeam");
}

TableDef Batters() {
    ColumnList list = Identity();
    list.Long("bats").Text(1, "BuntRating").Byte("runRating BBRating SORating").Text(100, "DefText");
    list.Boolean("CatcherIRating CatcherORating").Append(Positions(8));
    for (const std::string_view side : {"vsL", "vsR"}) list.Cells(side).Append(Chances(side));
    list.Boolean("Inactive NoLongerWithTeam").Byte("vsLPowerRating vsRPowerRating SBRating");
    list.Append(BatterTotals()).Append(Injury()).Text(100, "ImageFile").Spares(1);
    list.MissingAt(235, "vsLPowerRating vsRPowerRating SBRating");
    return {"KorvBatters", TableHome::Season, list.columns, {"teamID", "LahmanPlayerID"}, UpgradeRule::Exactly};
}

TableDef Pitchers() {
    ColumnList list = Identity();
    list.Long("bats throws").Text(1, "BuntRating").Byte("runRating BBRating SORating");
    list.Integer("PitchLessRest PitchLessRest2").Text(100, "DefText").Append(Positions(4));
    list.Text(1, "pitcherType").Byte("tiredRating secondWindRating").Cells("pitch");
    list.Double(
        "SOChance OutChance RunnerAdvanceChance BBorHBPChance HRReduceChance HRIncreaseChance AllowHitChance "
        "GreenKChance");
    list.Cells("Bat").Append(Chances("Bat")).Byte("PowerRating SBRating");
    list.Append(PitcherTotals()).Double("Pct ERA WHIP").Integer("PitcherAutoOuts");
    list.Append(PitcherBatting()).Double(kRates).Boolean("Inactive NoLongerWithTeam").Text(100, "ImageFile");
    list.Byte("PitcherRestDays").Integer("PitchedOnDay IPOutsToday").Append(Injury()).Spares(4);
    list.MissingAt(222, "PitcherAutoOuts").MissingAt(223, "PowerRating SBRating");
    return {"KorvPitchers", TableHome::Season, list.columns, {"teamID", "LahmanPlayerID"}, UpgradeRule::Exactly};
}

TableDef TourneyBatters() {
    ColumnList list = TourneyIdentity();
    list.Append(BatterTotals()).Append(Injury());
    return {"TourneyBatters", TableHome::Season, list.columns, {"playerID", "teamID"}};
}

TableDef TourneyPitchers() {
    ColumnList list = TourneyIdentity();
    list.Append(PitcherTotals()).Double("Pct ERA WHIP").Integer("PitcherAutoOuts").Append(PitcherBatting());
    list.Double(kRates).Byte("PitcherRestDays").Integer("PitchedOnDay IPOutsToday").Append(Injury()).Spares(4);
    list.MissingAt(60, "PitcherAutoOuts");
    return {"TourneyPitchers", TableHome::Season, list.columns, {"playerID", "teamID"}, UpgradeRule::Exactly};
}

TableDef Fielding(std::string name) {
    ColumnList list;
    list.Text(kTeamWidth, "teamID").Long("playerID").Text(1, "playerType").Text(25, "PlayerName").Text(2, "Position");
    list.Integer("GamesAtPos PutOuts Assists DoublePlays Errors PassBalls OpponentSB OpponentCS").Double("FieldingPct");
    list.Integer("GreatDefensivePlays").MissingAt(14, "GreatDefensivePlays");
    return {std::move(name), TableHome::Season, list.columns, {"teamID", "playerID"}, UpgradeRule::Exactly};
}

ColumnList LogIdentity() {
    ColumnList list;
    list.Long("GameID").Date("GameDate").Long("PlayerID").Text(kTeamWidth, "TeamID").Text(2, "Position");
    list.Integer("PutOuts Assists Errors DoublePlays PassBalls OpponentSB OpponentCS GreatDefensivePlays");
    return list.Append(Injury()).Boolean("TourneyGame");
}

TableDef BatterLog() {
    ColumnList list = LogIdentity();
    list.Integer("AB R H 2B 3B HR RBI BB SO HBP SH SF GIDP SB CS");
    for (const std::string_view side : {"vsLeft", "vsRight"}) list.Integers(side, kSplitTotals);
    list.Spares(3).MissingAt(58, "TourneyGame").MissingAt(59, "GreatDefensivePlays");
    return {"KorvBatterResultsLog", TableHome::Season, list.columns, {"PlayerID", "GameID"}, UpgradeRule::Exactly};
}

TableDef PitcherLog() {
    ColumnList list = LogIdentity();
    list.Append(PitcherTotals()).Integer("PitcherRestDays PitchedOnDay PitcherAutoOuts").Append(PitcherBatting());
    list.Spares(3).MissingAt(56, "TourneyGame").MissingAt(57, "GreatDefensivePlays PitcherAutoOuts");
    return {"KorvPitcherResultsLog", TableHome::Season, list.columns, {"PlayerID", "GameID"}, UpgradeRule::Exactly};
}

}  // namespace

void AddPlayerTables(std::vector<TableDef>& tables) {
    tables.push_back(Batters());
    tables.push_back(Pitchers());
    tables.push_back(TourneyBatters());
    tables.push_back(TourneyPitchers());
    tables.push_back(Fielding("FieldingStats"));
    tables.push_back(Fielding("TourneyFieldingStats"));
    tables.push_back(BatterLog());
    tables.push_back(PitcherLog());
}

}  // namespace tarvane
