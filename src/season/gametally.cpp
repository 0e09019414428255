#include "season/gametally.h"

#include <algorithm>
#include <span>

namespace tarvane {

void GameTally::AddSide(const GameState& state, Side side) {
    const TeamState& team = state[side];
    const BoxLines& box = team.box;
    ++games;
    R += team.Runs;
    E += team.Errors;
    for (const BatterLine& line : std::span(box.batter).first(box.BatterLineCount)) {
        const BattingCounts& c = line.total;
        AB += c.AB, H += c.H, Doubles += c.Doubles, Triples += c.Triples, HR += c.HR, BB += c.BB, SO += c.SO;
        HBP += c.HBP, SH += c.SH, SF += c.SF, GIDP += c.GIDP, SB += line.SB, CS += line.CS;
        PA += c.AB + c.BB + c.HBP + c.SH + c.SF;
        PinchHitters += line.position == Position::PH;
        PinchRunners += line.position == Position::PR;
    }
    for (const FielderLine& line : std::span(box.fielder).first(box.FielderLineCount)) PB += line.PassBalls;
    const auto pitchers = std::span(box.pitching).first(box.PitchersUsed);
    PitchersUsed += static_cast<long>(pitchers.size());
    CG += pitchers.size() == 1;
    SHO += state[Other(side)].Runs == 0;
    StarterOuts += pitchers.empty() ? 0 : pitchers.front().IPOuts;
    for (const PitchingLine& line : pitchers) {
        ER += line.ER, IPOuts += line.IPOuts, SV += line.Save;
    }
}

void GameTally::Add(const GameState& state) {
    for (const Side side : kBothSides) AddSide(state, side);
    Injuries += state.injuryCount;
    HomeWins += state[Side::Home].Runs > state[Side::Visitor].Runs;
    ExtraInnings += state.Inning > 9;
    Innings += state.Inning;
    LongestGame = std::max<long>(LongestGame, state.Inning);
}

}  // namespace tarvane
