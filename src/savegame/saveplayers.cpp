#include <fmt/core.h>

#include "savegame/saverecords.h"

namespace tarvane {

namespace {

void Injured(SaveFields& f, Injury& injury) {
    f.Number("InjuredDaysRemaining", injury.InjuredDaysRemaining);
    f.Text("InjuryDate", injury.InjuryDate);
    f.Number("InjuryNbrDate", injury.InjuryNbrDate);
    f.Number("InjuredDays", injury.InjuredDays);
}

void Chances(SaveFields& f, BattingChances& chance) {
    f.Real("SinglesChance", chance.Singles);
    f.Real("DoublesChance", chance.Doubles);
    f.Real("TriplesChance", chance.Triples);
    f.Real("HRChance", chance.HR);
    f.Real("BBorHBPChance", chance.BBorHBP);
    f.Real("SOChance", chance.SO);
}

void Rates(SaveFields& f, BattingRates& rates) {
    f.Real("Avg", rates.Avg);
    f.Real("OBP", rates.OBP);
    f.Real("SLG", rates.SLG);
    f.Real("OPS", rates.OPS);
    f.Real("RC", rates.RC);
}

// The twelve counts that are split by hands.
void SplitCounts(SaveFields& f, BattingTotals& t) {
    f.Number("AB", t.AB);
    f.Number("H", t.H);
    f.Number("2B", t.Doubles);
    f.Number("3B", t.Triples);
    f.Number("HR", t.HR);
    f.Number("RBI", t.RBI);
    f.Number("BB", t.BB);
    f.Number("SO", t.SO);
    f.Number("HBP", t.HBP);
    f.Number("SH", t.SH);
    f.Number("SF", t.SF);
    f.Number("GIDP", t.GIDP);
}

void SeasonCounts(SaveFields& f, Batter& man) {
    BattingTotals& t = man.total;
    f.Number("G", man.G);
    f.Number("AB", t.AB);
    f.Number("R", t.R);
    f.Number("H", t.H);
    f.Number("Doubles", t.Doubles);
    f.Number("Triples", t.Triples);
    f.Number("HR", t.HR);
    f.Number("RBI", t.RBI);
    f.Number("SB", t.SB);
    f.Number("CS", t.CS);
    f.Number("BB", t.BB);
    f.Number("SO", t.SO);
    f.Number("HBP", t.HBP);
    f.Number("SH", t.SH);
    f.Number("SF", t.SF);
    f.Number("GIDP", t.GIDP);
}

template <class Ratings>
void Positions(SaveFields& f, Ratings& ratings, const std::string& who) {
    for (PositionRating& entry : ratings) {
        f.Begin(who + ", positions");
        f.Place("Pos", entry.position);
        f.Number("rating", entry.rating);
        f.Letter("error letter", entry.errorRating);
        f.End();
    }
}

void BatterRecord(SaveFields& f, Batter& man, const std::string& who) {
    f.Begin(who);
    f.Flag("Inactive", man.Inactive);
    f.Flag("NoLongerWithTeam", man.NoLongerWithTeam);
    f.Flag("CatcherIRating", man.CatcherIRating);
    f.Flag("CatcherORating", man.CatcherORating);
    f.Number("playerID", man.playerID);
    f.Number("runRating", man.runRating, 0, 5);
    f.Text("BuntRating", man.BuntRating);
    f.Text("DefText", man.DefText);
    f.Text("LahmanPlayerID", man.LahmanPlayerID);
    f.Number("bats", man.bats);
    Injured(f, man.injury);
    f.Number("BBRating", man.BBRating);
    f.Number("SORating", man.SORating);
    Chances(f, man.vsLChance);
    Chances(f, man.vsRChance);
    SeasonCounts(f, man);
    Rates(f, man.rates);
    SplitCounts(f, man.vsLeft);
    Rates(f, man.vsLeftRates);
    SplitCounts(f, man.vsRight);
    Rates(f, man.vsRightRates);
    f.Text("playerName", man.playerName);
    f.Text("teamID", man.teamID);
    f.Text("ImageFile", man.ImageFile);
    f.End();
}

void PitchingCountsOf(SaveFields& f, Pitcher& man) {
    PitchingTotals& t = man.total;
    f.Number("W", t.W);
    f.Number("L", t.L);
    f.Number("Games", t.Games);
    f.Number("GS", t.GS);
    f.Number("CG", t.CG);
    f.Number("SHO", t.SHO);
    f.Number("SV", t.SV);
    f.Number("IPOuts", t.IPOuts);
    f.Number("OppHits", t.OppHits);
    f.Number("OppHR", t.OppHR);
    f.Number("ER", t.ER);
    f.Number("OppBB", t.OppBB);
    f.Number("OppSO", t.OppSO);
    f.Number("OppIBB", t.OppIBB);
    f.Number("OppHBP", t.OppHBP);
    f.Number("WP", t.WP);
    f.Number("OppRuns", t.OppRuns);
    f.Number("OppAB", t.OppAB);
    f.Number("BF", t.BF);
    f.Number("PitcherAutoOuts", man.PitcherAutoOuts);
    // Of his batting what isn't among the twelve counts.
    f.Number("R", man.batting.R);
    f.Number("SB", man.batting.SB);
    f.Number("CS", man.batting.CS);
    f.Number("IBB", man.batting.IBB);
}

void PitcherRecord(SaveFields& f, Pitcher& man, const std::string& who) {
    f.Begin(who);
    f.Flag("Inactive", man.Inactive);
    f.Flag("NoLongerWithTeam", man.NoLongerWithTeam);
    bool catcher = false;  // the two marks of catchers: a pitcher has none
    f.Flag("CatcherIRating", catcher);
    f.Flag("CatcherORating", catcher);
    f.Number("playerID", man.playerID);
    f.Number("runRating", man.runRating, 0, 5);
    f.Text("BuntRating", man.BuntRating);
    f.Text("LahmanPlayerID", man.LahmanPlayerID);
    f.Number("bats", man.bats);
    f.Number("Throws", man.throws_);
    f.Letter("pitcherType", man.pitcherType);
    Injured(f, man.injury);
    f.Number("BBRating", man.BBRating);
    f.Number("SORating", man.SORating);
    f.Number("tiredRating", man.tiredRating);
    f.Number("secondWindRating", man.secondWindRating);
    f.Number("PitchedOnDay", man.PitchedOnDay);
    f.Number("PitcherRestDays", man.PitcherRestDays);
    f.Real("SOChance", man.chance.SO);
    f.Real("OutChance", man.chance.Out);
    f.Real("RunnerAdvanceChance", man.chance.RunnerAdvance);
    f.Real("BBorHBPChance", man.chance.BBorHBP);
    f.Real("HRReduceChance", man.chance.HRReduce);
    f.Real("HRIncreaseChance", man.chance.HRIncrease);
    f.Real("AllowHitChance", man.chance.AllowHit);
    f.Real("GreenKChance", man.chance.GreenK);
    Chances(f, man.batChance);
    PitchingCountsOf(f, man);
    f.Real("Pct", man.Pct);
    f.Real("ERA", man.ERA);
    f.Real("WHIP", man.WHIP);
    SplitCounts(f, man.batting);
    Rates(f, man.battingRates);
    f.Text("playerName", man.playerName);
    f.Text("teamID", man.teamID);
    f.Text("ImageFile", man.ImageFile);
    f.End();
}

}  // namespace

void SaveChart(SaveFields& f, ChartCells& cells, const std::string& name) {
    int roll = kFirstRoll;
    for (ChartCell& cell : cells) {
        f.Begin(fmt::format("{}, roll {}", name, roll++));
        f.Text("text", cell.text);
        f.Number("colour", cell.color);
        f.End();
    }
}

void SaveBatter(SaveFields& f, Batter& man, const std::string& who) {
    BatterRecord(f, man, who);
    Positions(f, man.Pos, who);
    SaveChart(f, man.vsL, who + ", chart vsL");
    SaveChart(f, man.vsR, who + ", chart vsR");
}

void SavePitcher(SaveFields& f, Pitcher& man, const std::string& who) {
    PitcherRecord(f, man, who);
    Positions(f, man.Pos, who);
    SaveChart(f, man.pitch, who + ", pitching chart");
    SaveChart(f, man.Bat, who + ", batting chart");
}

}  // namespace tarvane
