#include "savegame/saverecords.h"

namespace tarvane {

namespace {

// The twelve counts that are split by hands, in the order of the box score's lines.
void SplitLines(SaveFields& f, BattingCounts& c) {
    f.Number("AB", c.AB);
    f.Number("H", c.H);
    f.Number("2B", c.Doubles);
    f.Number("3B", c.Triples);
    f.Number("HR", c.HR);
    f.Number("RBI", c.RBI);
    f.Number("BB", c.BB);
    f.Number("SO", c.SO);
    f.Number("HBP", c.HBP);
    f.Number("SH", c.SH);
    f.Number("SF", c.SF);
    f.Number("GIDP", c.GIDP);
}

void TotalLine(SaveFields& f, BatterLine& line) {
    BattingCounts& c = line.total;
    f.Number("AB", c.AB);
    f.Number("BB", c.BB);
    f.Number("R", line.R);
    f.Number("H", c.H);
    f.Number("2B", c.Doubles);
    f.Number("3B", c.Triples);
    f.Number("HR", c.HR);
    f.Number("RBI", c.RBI);
    f.Number("SO", c.SO);
    f.Number("HBP", c.HBP);
    f.Number("SH", c.SH);
    f.Number("SF", c.SF);
    f.Number("GIDP", c.GIDP);
    f.Number("SB", line.SB);
    f.Number("CS", line.CS);
}

constexpr std::int64_t kPitchersSlot = 10;

}  // namespace

std::string SideWord(Side side) {
    return side == Side::Visitor ? "visitor" : "home";
}

void SaveBatterLine(SaveFields& f, BatterLine& line, SavedMan& man, const std::string& who) {
    f.Begin(who);
    f.Flag("Active", line.Active);
    f.Number("player id", man.playerID);
    f.Letter("player type", man.type);
    f.Text("name", man.name);
    f.Place("position", line.position);
    f.Number("slot", line.Slot, 1, kPitchersSlot);
    TotalLine(f, line);
    SplitLines(f, line.vsLeft);
    SplitLines(f, line.vsRight);
    f.SkipNumber("the first spare count");
    f.SkipNumber("the second spare count");
    f.End();
}

void SaveFielderLine(SaveFields& f, FielderLine& line, SavedMan& man, const std::string& who) {
    f.Begin(who);
    f.Flag("Active", line.Active);
    f.Number("player id", man.playerID);
    f.Text("name", man.name);
    f.Letter("player type", man.type);
    f.Number("slot", line.Slot, 1, kPitchersSlot);
    f.Place("position", line.position);
    f.SkipNumber("the player id again", man.playerID);
    f.Number("PutOuts", line.PutOuts);
    f.Number("Assists", line.Assists);
    f.Number("DoublePlays", line.DoublePlays);
    f.Number("Errors", line.Errors);
    f.Number("OpponentCS", line.OpponentCS);
    f.Number("OpponentSB", line.OpponentSB);
    f.Number("PassBalls", line.PassBalls);
    f.End();
}

void SavePitchingLine(SaveFields& f, PitchingLine& line, SavedMan& man, TeamState& team, const std::string& who) {
    f.Begin(who);
    f.Flag("Win", line.Win);
    f.Flag("Loss", line.Loss);
    f.Flag("Save", line.Save);
    f.Flag("fatigue", team.PitcherTired);
    f.Number("PitcherStamina", team.PitcherStamina);
    f.Number("PitcherSecondWind", team.PitcherSecondWind);
    f.Text("name", man.name);
    f.Number("player id", man.playerID);
    man.type = 'P';
    f.Number("IPOuts", line.IPOuts);
    f.Number("H", line.H);
    f.Number("BB", line.BB);
    f.Number("SO", line.SO);
    f.Number("HR", line.HR);
    f.Number("HBP", line.HBP);
    f.Number("R", line.R);
    f.Number("ER", line.ER);
    f.Number("BF", line.BF);
    f.Number("auto outs", line.AutoOuts);
    f.Number("RunnersCharged", line.RunnersCharged);
    f.SkipNumber("the spare byte");
    f.Letter("role", line.Role);
    f.SkipNumber("the first spare count");
    f.SkipNumber("the second spare count");
    f.End();
}

}  // namespace tarvane
