#include "data/columnlist.h"

namespace tarvane {

namespace {

// What one team did in the game.
ColumnList GameTotals(const std::string& side) {
    ColumnList list;
    list.Integers(side, "AB H 2B 3B HR RBI SB CS BB SO IBB HBP SH SF GIDP");
    list.Integers(side, "Games GS CG SHO SV BS IPOuts oppH OppHR ER OppBB OppSO OppIBB WP OppHBP BK GF OppAB");
    list.Integers(side, "PutOuts Assists DoublePlays Errors PassBalls OpponentSB OpponentCS GreatDefensivePlays");
    return list.Integer(side + "PitcherAutoOuts");
}

ColumnList Game(bool tournament) {
    ColumnList list;
    list.Counter("GameID").Date("GameDate").Long("VisitorTeamIndex HomeTeamIndex VisitorLineupNbr HomeLineupNbr");
    list.Boolean("Played Exported Imported").Integer("VisitorScore HomeScore Innings");
    list.BlankText(100, "ResultsFile1 ResultsFile2");
    if (!tournament) list.Boolean("DivGame");
    list.Append(GameTotals("Visitor")).Append(GameTotals("Home"));
    return list.MissingAt(tournament ? 100 : 95,
                          "VisitorGreatDefensivePlays HomeGreatDefensivePlays VisitorPitcherAutoOuts "
                          "HomePitcherAutoOuts");
}

}  // namespace

void AddScheduleTables(std::vector<TableDef>& tables) {
    const std::vector<std::string> indexes = {"VisitorTeamIndex", "HomeTeamIndex"};
    tables.push_back({"Schedule", TableHome::Season, Game(false).columns, indexes, UpgradeRule::Exactly});

    ColumnList tourney = Game(true);
    tourney.Integer("SeriesNbr TourneyRound").Boolean("LosersBracket");
    tourney.Integer("GamesNeededToWin AdvanceToSeriesNbr AdvanceToSeriesNbrL").Boolean("GameNotNeeded");
    tourney.Integer("NbrOfRounds");
    tourney.MissingAt(104, "AdvanceToSeriesNbrL LosersBracket", UpgradeStage::Tourney);
    tables.push_back({"TourneySchedule", TableHome::Season, tourney.columns, indexes, UpgradeRule::Exactly});

    ColumnList versus;
    versus.Long("TeamIndex vsTeamIndex").Integer("vsTeamWins");
    tables.push_back({"TeamVsTeam", TableHome::Season, versus.columns, {"TeamIndex, vsTeamIndex"}});
}

}  // namespace tarvane
