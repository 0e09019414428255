#include "data/playerrows.h"

#include <algorithm>
#include <string>

#include "base/text.h"

namespace tarvane {

namespace {

using Count = std::int16_t;

// 0 and Null stand for "no test is made", which is 40; ratings outside the dice are brought to their range.
std::uint8_t TestRating(RowReader& row, std::string_view name) {
    const auto rating = row.Number<std::uint8_t>(name);
    return rating == 0 ? std::uint8_t{40} : std::clamp<std::uint8_t>(rating, 10, 40);
}

template <class Player>
void ReadIdentity(RowReader& row, Player& player) {
    player.playerID = row.Number<std::int32_t>("playerID");
    player.LahmanPlayerID = row.Text("LahmanPlayerID");
    player.lgIdx = row.Number<std::uint8_t>("lgIdx");
    player.teamID = row.Text("teamID");
    const std::string actualTeam = row.Text("ActualTeamID");
    if (!Trim(actualTeam).empty()) player.teamID = actualTeam;
    player.CombinedPlayerID = row.Number<std::int32_t>("CombinedPlayerID");
    player.playerName = TrimRight(row.Text("playerName"));
    player.bats = row.Number<std::int32_t>("bats", kRightHand);
    player.BuntRating = row.Text("BuntRating", "B");
    player.runRating = row.Number<std::uint8_t>("runRating");
    player.BBRating = TestRating(row, "BBRating");
    player.SORating = TestRating(row, "SORating");
    player.DefText = row.Text("DefText");
    player.Inactive = row.Bool("Inactive");
    player.NoLongerWithTeam = row.Bool("NoLongerWithTeam");
    player.ImageFile = Trim(row.Text("ImageFile"));
}

template <class Slots>
void ReadPositions(RowReader& row, Slots& slots) {
    int number = 0;
    for (PositionRating& slot : slots) {
        const std::string code = row.TextOf("Pos", ++number);
        const auto rating = row.NumberOf<Count>("Pos", number, "Rating");
        const std::string letter = row.TextOf("Pos", number, "ErrorRating");
        slot = {PositionFromText(code), rating, letter.empty() || letter[0] == ' ' ? 'V' : letter[0]};
        if (slot.position == Position::None) slot = {};
    }
}

void ReadInjury(RowReader& row, Injury& injury) {
    injury.InjuryDate = row.Text("InjuryDate", " ");
    injury.InjuryNbrDate = row.Number<Count>("InjuryNbrDate");
    injury.InjuredDays = row.Number<Count>("InjuredDays");
    injury.InjuredDaysRemaining = row.Number<Count>("InjuredDaysRemaining");
}

void ReadChances(RowReader& row, const std::string& prefix, BattingChances& chances) {
    chances.Singles = row.Double(prefix + "SinglesChance");
    chances.Doubles = row.Double(prefix + "DoublesChance");
    chances.Triples = row.Double(prefix + "TriplesChance");
    chances.HR = row.Double(prefix + "HRChance");
    chances.BBorHBP = row.Double(prefix + "BBorHBPChance");
    chances.SO = row.Double(prefix + "SOChance");
}

void ReadRates(RowReader& row, const std::string& prefix, BattingRates& rates) {
    rates.Avg = row.Double(prefix + "Avg");
    rates.OBP = row.Double(prefix + "OBP");
    rates.SLG = row.Double(prefix + "SLG");
    rates.OPS = row.Double(prefix + "OPS");
    rates.RC = row.Double(prefix + "RC");
}

void ReadSplit(RowReader& row, const std::string& side, BattingTotals& totals) {
    totals.AB = row.Number<Count>(side + "AB");
    totals.H = row.Number<Count>(side + "H");
    totals.Doubles = row.Number<Count>(side + "2B");
    totals.Triples = row.Number<Count>(side + "3B");
    totals.HR = row.Number<Count>(side + "HR");
    totals.RBI = row.Number<Count>(side + "RBI");
    totals.BB = row.Number<Count>(side + "BB");
    totals.SO = row.Number<Count>(side + "SO");
    totals.HBP = row.Number<Count>(side + "HBP");
    totals.SH = row.Number<Count>(side + "SH");
    totals.SF = row.Number<Count>(side + "SF");
    totals.GIDP = row.Number<Count>(side + "GIDP");
}

// A season's batting. The batters' table writes Doubles and Triples where the pitchers' has 2B and 3B.
void ReadBatting(RowReader& row, std::string_view doubles, std::string_view triples, BattingTotals& totals) {
    totals.AB = row.Number<Count>("AB");
    totals.R = row.Number<Count>("R");
    totals.H = row.Number<Count>("H");
    totals.Doubles = row.Number<Count>(doubles);
    totals.Triples = row.Number<Count>(triples);
    totals.HR = row.Number<Count>("HR");
    totals.RBI = row.Number<Count>("RBI");
    totals.SB = row.Number<Count>("SB");
    totals.CS = row.Number<Count>("CS");
    totals.BB = row.Number<Count>("BB");
    totals.SO = row.Number<Count>("SO");
    totals.IBB = row.Number<Count>("IBB");
    totals.HBP = row.Number<Count>("HBP");
    totals.SH = row.Number<Count>("SH");
    totals.SF = row.Number<Count>("SF");
    totals.GIDP = row.Number<Count>("GIDP");
}

void ReadPitching(RowReader& row, PitchingTotals& totals) {
    totals.W = row.Number<Count>("W");
    totals.L = row.Number<Count>("L");
    totals.Games = row.Number<Count>("Games");
    totals.GS = row.Number<Count>("GS");
    totals.CG = row.Number<Count>("CG");
    totals.SHO = row.Number<Count>("SHO");
    totals.SV = row.Number<Count>("SV");
    totals.IPOuts = row.Number<Count>("IPOuts");
    totals.OppHits = row.Number<Count>("OppHits");
    totals.OppHR = row.Number<Count>("OppHR");
    totals.ER = row.Number<Count>("ER");
    totals.OppBB = row.Number<Count>("OppBB");
    totals.OppSO = row.Number<Count>("OppSO");
    totals.OppIBB = row.Number<Count>("OppIBB");
    totals.OppHBP = row.Number<Count>("OppHBP");
    totals.WP = row.Number<Count>("WP");
    totals.OppRuns = row.Number<Count>("OppRuns");
    totals.OppAB = row.Number<Count>("OppAB");
    totals.BF = row.Number<Count>("BF");
}

void ReadPitcherChances(RowReader& row, PitchingChances& chance) {
    chance.SO = row.Double("SOChance");
    chance.Out = row.Double("OutChance");
    chance.RunnerAdvance = row.Double("RunnerAdvanceChance");
    chance.BBorHBP = row.Double("BBorHBPChance");
    chance.HRReduce = row.Double("HRReduceChance");
    chance.HRIncrease = row.Double("HRIncreaseChance");
    chance.AllowHit = row.Double("AllowHitChance");
    chance.GreenK = row.Double("GreenKChance");
}

}  // namespace

void ReadBatterTotals(RowReader& row, Batter& batter) {
    batter.G = row.Number<Count>("G");
    ReadBatting(row, "Doubles", "Triples", batter.total);
    ReadRates(row, "", batter.rates);
    ReadSplit(row, "vsLeft", batter.vsLeft);
    ReadRates(row, "vsLeft", batter.vsLeftRates);
    ReadSplit(row, "vsRight", batter.vsRight);
    ReadRates(row, "vsRight", batter.vsRightRates);
    ReadInjury(row, batter.injury);
}

void ReadBatter(RowReader& row, Batter& batter) {
    ReadIdentity(row, batter);
    batter.CatcherIRating = row.Bool("CatcherIRating");
    batter.CatcherORating = row.Bool("CatcherORating");
    ReadPositions(row, batter.Pos);
    row.Cells("vsL", batter.vsL);
    row.Cells("vsR", batter.vsR);
    ReadChances(row, "vsL", batter.vsLChance);
    ReadChances(row, "vsR", batter.vsRChance);
    batter.vsLPowerRating = row.Number<std::uint8_t>("vsLPowerRating");
    batter.vsRPowerRating = row.Number<std::uint8_t>("vsRPowerRating");
    batter.SBRating = row.Number<std::uint8_t>("SBRating");
    ReadBatterTotals(row, batter);
}

void ReadPitcherTotals(RowReader& row, Pitcher& pitcher) {
    ReadPitching(row, pitcher.total);
    pitcher.Pct = row.Double("Pct");
    pitcher.ERA = row.Double("ERA");
    pitcher.WHIP = row.Double("WHIP");
    pitcher.PitcherAutoOuts = row.Number<Count>("PitcherAutoOuts");
    ReadBatting(row, "2B", "3B", pitcher.batting);
    ReadRates(row, "", pitcher.battingRates);
    pitcher.PitcherRestDays = row.Number<std::uint8_t>("PitcherRestDays");
    pitcher.PitchedOnDay = row.Number<Count>("PitchedOnDay");
    pitcher.IPOutsToday = row.Number<Count>("IPOutsToday");
    ReadInjury(row, pitcher.injury);
}

void ReadPitcher(RowReader& row, Pitcher& pitcher) {
    ReadIdentity(row, pitcher);
    pitcher.throws_ = row.Number<std::int32_t>("throws", kRightHand);
    pitcher.PitchLessRest = row.Number<Count>("PitchLessRest");
    pitcher.PitchLessRest2 = row.Number<Count>("PitchLessRest2");
    ReadPositions(row, pitcher.Pos);
    pitcher.pitcherType = row.Letter("pitcherType", 'S');
    pitcher.tiredRating = row.Number<std::uint8_t>("tiredRating");
    pitcher.secondWindRating = row.Number<std::uint8_t>("secondWindRating");
    row.Cells("pitch", pitcher.pitch);
    ReadPitcherChances(row, pitcher.chance);
    row.Cells("Bat", pitcher.Bat);
    ReadChances(row, "Bat", pitcher.batChance);
    pitcher.PowerRating = row.Number<std::uint8_t>("PowerRating");
    pitcher.SBRating = row.Number<std::uint8_t>("SBRating");
    ReadPitcherTotals(row, pitcher);
}

}  // namespace tarvane
