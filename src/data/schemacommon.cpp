#include <array>

#include "data/columnlist.h"

namespace tarvane {

namespace {

TableDef Seasons() {
    ColumnList list;
    list.Counter("LeagueID").Text(100, "LeagueName");
    list.Boolean("Active TourneyMode LRSplitsGenerated PlayerRatingsGenerated ManagersGenerated");
    return {"SeasonsDB", TableHome::Common, list.columns, {}};
}

TableDef Ballparks() {
    ColumnList list;
    list.Counter("parkID").Text(60, "Stadium LOCATION").Long("Capacity").Integer("yearID");
    list.Nullable(ColumnKind::Integer, "LFFence CFFence RFFence AlleyLF AlleyRF");
    list.Double("HitRate SinglesRate DoublesRate TriplesRate HRRate");
    list.Double("HitAvg SinglesAvg DoublesAvg TriplesAvg HRAvg");
    list.Integer("DefAdjustment PitcherTiredAdjustment SecondWindAdjustment").Cells("Roll").Text(100, "ParkImageLoc");
    for (int position = 1; position <= 9; ++position) {
        const std::string prefix = "Pos" + std::to_string(position);
        list.Long(prefix + "Top").Long(prefix + "Left");
    }
    list.Long("PosBatterLTop PosBatterLLeft PosBatterRTop PosBatterRLeft");
    list.Long("PosRunner1BTop PosRunner1BLeft PosRunner2BTop PosRunner2BLeft PosRunner3BTop PosRunner3BLeft");
    return {"KorvBallparks", TableHome::Common, list.columns, {}};
}

TableDef Years() {
    ColumnList list;
    list.Counter("EraId").Text(50, "EraName").Integer("yearID EraRangeStart EraRangeEnd").Double("PAFactor");
    list.Double("HitAvg SinglesAvg DoublesAvg TriplesAvg HRAvg SOAvg BBAvg RBIAvg SBAvg");
    list.Double("HitRate SinglesRate DoublesRate TriplesRate HRRate BBRate SORate SBRate RunsRate SHRate HBPRate");
    list.Double("AvgSOBFP AvgBBBFP AvgHBFP AvgHRBFP");
    list.Integer("AvgSPBFGame AvgRPBFGame AvgSPIPOutsGame AvgRPIPOutsGame");
    for (const char* position : {"P", "C", "1B", "2B", "3B", "SS", "OF"})
        list.Doubles(position, "ErrorsRate PORate ARate DPRate");
    list.Double("CPctPOSO").Integer("DefAdjustment").Cells("Roll");
    return {"KorvYears", TableHome::Common, list.columns, {"EraName"}};
}

TableDef DefensiveEras() {
    constexpr std::array<const char*, 6> kCells{"Ten", "Eleven", "Twelve", "Thirteen", "Fourteen", "Fifteen"};
    ColumnList list;
    list.Long("EraID").Text(255, "EraName");
    for (int n = 1; n <= 18; ++n) {
        const std::string number = std::to_string(n);
        list.Byte("StartRange" + number).Byte("EndRange" + number);
        for (const std::string cell : kCells) list.Long(cell + "Color" + number).BlankText(4, cell + "Value" + number);
    }
    return {"DefensiveEras", TableHome::Common, list.columns, {}, UpgradeRule::None, true};
}

TableDef Recipients() {
    ColumnList list;
    list.Text(50, "RecipientName").Text(100, "RecipientAddress").Text(50, "RecipientTeam").Text(25, "RecipientIM");
    list.MissingAt(3, "RecipientTeam RecipientIM");
    return {"EmailRecipients", TableHome::Common, list.columns, {}, UpgradeRule::AtMost};
}

// The charts that games are rolled on: keys, thirty cells with colours, and the chance shown to a manager.
TableDef Chart(std::string name, std::string_view keys, bool withChance) {
    ColumnList list;
    list.Text(25, keys).Cells("Roll");
    if (withChance) list.Double("SuccessChance");
    return {std::move(name), TableHome::Common, list.columns, {}};
}

TableDef ErrorRatings() {
    ColumnList list;
    list.Text(1, "ErrorRating").BlankText(5, "Roll1 Roll2 Roll3 Roll4 Roll5");
    list.Long("Roll1Color Roll2Color Roll3Color Roll4Color Roll5Color");
    return {"KorvErrorRating", TableHome::Common, list.columns, {}};
}

TableDef FieldingDetermination() {
    ColumnList list;
    list.Text(25, "FieldingPlay");
    for (int roll = 10; roll <= 39; ++roll) list.BlankText(5, "Roll" + std::to_string(roll));
    return {"KorvFieldingDetermination", TableHome::Common, list.columns, {}};
}

}  // namespace

void AddCommonTables(std::vector<TableDef>& tables) {
    tables.push_back(Seasons());
    tables.push_back(Ballparks());
    tables.push_back(Years());
    tables.push_back(DefensiveEras());
    tables.push_back(Recipients());
    tables.push_back(Chart("KorvMgrDecChart", "RunRating", true));
    tables.push_back(Chart("KorvBuntChart", "BuntType BuntRating", true));
    tables.push_back(Chart("KorvStolenBaseChart", "SBType RunRating", true));
    tables.push_back(ErrorRatings());
    tables.push_back(FieldingDetermination());
    tables.push_back(Chart("KorvYellowXChartBasic", "", false));
    tables.push_back(Chart("KorvYellowXChartInjuries", "YellowXRow", false));
}

}  // namespace tarvane
