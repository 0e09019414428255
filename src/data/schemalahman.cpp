#include "data/columnlist.h"

namespace tarvane {

namespace {

constexpr std::string_view kTotals = "AB H 2B 3B HR RBI BB SO HBP SH SF GIDP";

// teamID is the club's code in the source, KorvTeamID its code in the season.
ColumnList Keys() {
    ColumnList list;
    return list.Text(15, "playerID").Integer("yearID").Text(5, "lgID").Integer("stint").Text(10, "teamID KorvTeamID");
}

}  // namespace

void AddLahmanTables(std::vector<TableDef>& tables) {
    const std::vector<std::string> indexes = {"KorvTeamID, playerID", "playerID"};

    // Null in a count tells that the source didn't record it. HitRunRating, and EPC below, are divisors of a row that
    // stands for several seasons; 0 is none.
    ColumnList batting = Keys();
    batting.Integer("G AB R H 2B 3B HR RBI SB").Nullable(ColumnKind::Integer, "CS").Integer("BB");
    batting.Nullable(ColumnKind::Integer, "SO IBB HBP SH SF GIDP");
    for (const std::string_view side : {"vsLeft", "vsRight"}) batting.Integers(side, kTotals);
    batting.Integer("HitRunRating");
    tables.push_back({"LahmanBatting", TableHome::Season, batting.columns, indexes});

    ColumnList pitching = Keys();
    pitching.Integer("W L G GS CG SHO SV IPouts H ER HR BB SO").Nullable(ColumnKind::Integer, "BFP").Double("ERA");
    pitching.Nullable(ColumnKind::Integer, "IBB WP HBP BK GF R").Double("OppAB").Integer("EPC");
    tables.push_back({"LahmanPitching", TableHome::Season, pitching.columns, indexes});

    // An outfielder's figures are shares of his club's outfield line, so they can be fractions.
    ColumnList fielding = Keys();
    fielding.Text(2, "Pos").Integer("G").Double("PO A E DP").Integer("PB");
    tables.push_back({"LahmanFielding", TableHome::Season, fielding.columns, indexes});
}

}  // namespace tarvane
