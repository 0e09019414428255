#include <fmt/core.h>

#include "savegame/saverecords.h"

namespace tarvane {

namespace {

// Top and left of everybody on the park's picture: the fielders, the batter on both sides, the runners.
void Places(SaveFields& f, Ballpark& park) {
    for (std::size_t i = 0; i < park.PosTop.size(); ++i) {
        f.Number("Pos top", park.PosTop[i]);
        f.Number("Pos left", park.PosLeft[i]);
    }
    f.Number("PosBatterLTop", park.PosBatterLTop);
    f.Number("PosBatterLLeft", park.PosBatterLLeft);
    f.Number("PosBatterRTop", park.PosBatterRTop);
    f.Number("PosBatterRLeft", park.PosBatterRLeft);
    for (std::size_t i = 0; i < park.PosRunnerTop.size(); ++i) {
        f.Number("PosRunner top", park.PosRunnerTop[i]);
        f.Number("PosRunner left", park.PosRunnerLeft[i]);
    }
}

void RealCounts(SaveFields& f, RealBattingLine& line) {
    f.Number("AB", line.counts.AB);
    f.Number("H", line.counts.H);
    f.Number("HR", line.counts.HR);
}

}  // namespace

void SavePark(SaveFields& f, Ballpark& park) {
    f.Begin("ballpark");
    f.Text("Stadium", park.Stadium);
    f.Number("Capacity", park.Capacity);
    f.Number("yearID", park.yearID);
    f.Number("LFFence", park.LFFence);
    f.Number("CFFence", park.CFFence);
    f.Number("RFFence", park.RFFence);
    f.Number("AlleyLF", park.AlleyLF);
    f.Number("AlleyRF", park.AlleyRF);
    f.Number("DefAdjustment", park.DefAdjustment);
    f.Number("PitcherTiredAdjustment", park.PitcherTiredAdjustment);
    f.Number("SecondWindAdjustment", park.SecondWindAdjustment);
    f.Text("image path", park.imagePath);
    f.Text("ParkImageLoc", park.ParkImageLoc);
    Places(f, park);
    f.End();
    SaveChart(f, park.Roll, "ballpark chart");
}

void SaveYear(SaveFields& f, YearEffects& year) {
    f.Begin("year effects");
    f.Number("EraId", year.EraID);
    f.Text("EraName", year.EraName);
    f.Number("yearID", year.yearID);
    f.Number("DefAdjustment", year.DefAdjustment);
    f.End();
    SaveChart(f, year.Roll, "year chart");
}

void SaveList(SaveFields& f, LineupList& list, const std::string& who) {
    f.Begin(who);
    bool left = list.BattingvsL != 0, right = list.BattingvsR != 0;
    f.Flag("BattingvsL", left);
    f.Flag("BattingvsR", right);
    if (f.Reading()) {
        list.BattingvsL = left ? -1 : 0;
        list.BattingvsR = right ? -1 : 0;
    }
    f.Number("LineupNbr", list.lineupID);
    f.Letter("LineupType", list.LineupType);
    f.Text("DepthType", list.DepthType);
    f.Text("LineupName", list.LineupName);
    f.Number("playerIDP", list.playerIDP);
    f.End();
    for (ListSlot& slot : list.slot) {
        f.Begin(who + ", a slot");
        f.Number("playerID", slot.playerID);
        f.Place("Position", slot.position);
        f.Letter("PlayerType", slot.PlayerType);
        f.End();
    }
}

void SaveRealBatter(SaveFields& f, LahmanRecord& man, const std::string& who) {
    f.Begin(who);
    f.Text("playerID", man.playerID);
    f.Text("teamID", man.teamID);
    for (RealBattingLine* line : {&man.total, &man.vsLeft, &man.vsRight}) RealCounts(f, *line);
    f.Real("Avg", man.total.AVG);
    f.Real("OBP", man.total.OBP);
    f.Real("SLG", man.total.SLG);
    f.Real("OPS", man.total.OPS);
    f.Real("RC", man.total.RunsCreated);
    f.Real("vsLeftAvg", man.vsLeft.AVG);
    f.Real("vsRightAvg", man.vsRight.AVG);
    f.End();
    constexpr std::size_t kPlaces = 8;
    if (!f.Reading()) man.positions.resize(kPlaces);
    if (f.Reading()) man.positions.assign(kPlaces, {});
    for (RealGamesAt& at : man.positions) {
        f.Begin(who + ", positions");
        f.Place("position", at.position);
        f.Real("games", at.G);
        f.End();
    }
    if (!f.Reading()) return;
    while (!man.positions.empty() && man.positions.back().position == Position::None) man.positions.pop_back();
}

void SaveRealPitcher(SaveFields& f, LahmanPitchRecord& man, const std::string& who) {
    f.Begin(who);
    f.Text("playerID", man.playerID);
    f.Text("teamID", man.teamID);
    f.Number("G", man.G);
    f.Number("GS", man.GS);
    f.Number("W", man.W);
    f.Number("L", man.L);
    f.Number("SV", man.SV);
    f.Number("IPOuts", man.IPOuts);
    f.Number("H", man.H);
    f.Number("SO", man.SO);
    f.Real("ERA", man.ERA);
    f.End();
}

}  // namespace tarvane
