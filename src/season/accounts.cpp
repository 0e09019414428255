#include "season/accounts.h"

#include <algorithm>

namespace tarvane {

namespace {

template <class Count, class Number>
void Raise(Count& count, Number by) {
    count = static_cast<Count>(count + by);
}

double RatioOf(double numerator, double denominator) {
    return numerator == 0 || denominator == 0 ? 0 : numerator / denominator;
}

bool AtPosition(const FielderLine& line) {
    return line.position != Position::PR && line.position != Position::PH && line.position != Position::DH;
}

}  // namespace

BattingRates RatesOf(const BattingTotals& t) {
    const int bases = t.H + t.Doubles + 2 * t.Triples + 3 * t.HR;
    BattingRates rates;
    rates.Avg = RatioOf(t.H, t.AB);
    rates.OBP = RatioOf(t.BB + t.H + t.HBP, t.BB + t.AB + t.HBP);
    rates.SLG = RatioOf(bases, t.AB);
    rates.OPS = rates.SLG + rates.OBP;
    rates.RC = rates.SLG * rates.OBP * t.AB;
    return rates;
}

double WinningPct(int wins, int losses) {
    return RatioOf(wins, wins + losses);
}

double EarnedRunAverage(int earnedRuns, int outs) {
    constexpr double kThirds[] = {0, 0.333, 0.667};
    return RatioOf(earnedRuns * 9.0, outs / 3 + kThirds[outs % 3]);
}

double WhipOf(int walks, int hits, int outs) {
    return RatioOf((walks + hits) * 3.0, outs);
}

double FieldingPctOf(const FieldingTotals& f) {
    return RatioOf(f.PutOuts + f.Assists, f.PutOuts + f.Assists + f.Errors);
}

void AddFielding(FieldingTotals& to, const FielderLine& line) {
    Raise(to.PutOuts, line.PutOuts);
    Raise(to.Assists, line.Assists);
    Raise(to.Errors, line.Errors);
    Raise(to.DoublePlays, line.DoublePlays);
    Raise(to.PassBalls, line.PassBalls);
    Raise(to.OpponentSB, line.OpponentSB);
    Raise(to.OpponentCS, line.OpponentCS);
    Raise(to.GreatDefensivePlays, line.GreatDefensivePlays);
}

void AddSplit(BattingTotals& to, const BattingCounts& c) {
    Raise(to.AB, c.AB);
    Raise(to.H, c.H);
    Raise(to.Doubles, c.Doubles);
    Raise(to.Triples, c.Triples);
    Raise(to.HR, c.HR);
    Raise(to.RBI, c.RBI);
    Raise(to.BB, c.BB);
    Raise(to.SO, c.SO);
    Raise(to.HBP, c.HBP);
    Raise(to.SH, c.SH);
    Raise(to.SF, c.SF);
    Raise(to.GIDP, c.GIDP);
}

void AddBatting(BattingTotals& to, const BatterLine& line) {
    AddSplit(to, line.total);
    Raise(to.R, line.R);
    Raise(to.SB, line.SB);
    Raise(to.CS, line.CS);
}

void AddPitching(PitchingTotals& to, const PitchingLine& line, std::size_t place, std::size_t used) {
    Raise(to.Games, 1);
    Raise(to.IPOuts, line.IPOuts);
    Raise(to.OppHits, line.H);
    Raise(to.OppRuns, line.R);
    Raise(to.ER, line.ER);
    Raise(to.OppBB, line.BB);
    Raise(to.OppSO, line.SO);
    Raise(to.OppHR, line.HR);
    Raise(to.OppHBP, line.HBP);
    Raise(to.BF, line.BF);
    Raise(to.W, line.Win);
    Raise(to.L, line.Loss);
    Raise(to.SV, line.Save);
    Raise(to.GS, place == 0);
    Raise(to.CG, used == 1);
    Raise(to.SHO, used == 1 && line.R == 0);
}

TeamGame SumTeamGame(const GameState& state, Side side) {
    const TeamState& own = state[side];
    const TeamState& opponent = state[Other(side)];
    TeamGame game;
    game.runs = own.Runs;
    game.runsAgainst = opponent.Runs;
    for (std::size_t i = 0; i < own.box.BatterLineCount; ++i) AddBatting(game.batting, own.box.batter[i]);
    for (std::size_t i = 0; i < own.box.PitchersUsed; ++i) {
        AddPitching(game.pitching, own.box.pitching[i], i, own.box.PitchersUsed);
        game.autoOuts += own.box.pitching[i].AutoOuts;
    }
    for (std::size_t i = 0; i < own.box.FielderLineCount; ++i)
        if (AtPosition(own.box.fielder[i])) AddFielding(game.fielding, own.box.fielder[i]);
    game.batting.H = own.Hits;
    game.pitching.OppHits = opponent.Hits;
    game.pitching.SHO = opponent.Runs == 0 ? 1 : 0;
    return game;
}

void RenewRates(Batter& batter) {
    batter.rates = RatesOf(batter.total);
    batter.vsLeftRates = RatesOf(batter.vsLeft);
    batter.vsRightRates = RatesOf(batter.vsRight);
}

void RenewRates(Pitcher& pitcher) {
    const PitchingTotals& t = pitcher.total;
    pitcher.Pct = WinningPct(t.W, t.L);
    pitcher.ERA = EarnedRunAverage(t.ER, t.IPOuts);
    pitcher.WHIP = WhipOf(t.OppBB, t.OppHits, t.IPOuts);
    pitcher.battingRates = RatesOf(pitcher.batting);
}

bool FirstBatterLine(const BoxLines& box, std::size_t line) {
    for (std::size_t i = 0; i < line; ++i)
        if (box.batter[i].player == box.batter[line].player) return false;
    return true;
}

void AddGameToRecords(TeamRoster& roster, const BoxLines& box) {
    for (std::size_t i = 0; i < box.BatterLineCount; ++i) {
        const BatterLine& line = box.batter[i];
        if (line.player.Nobody()) continue;
        const auto index = static_cast<std::size_t>(line.player.index);
        if (line.player.type == 'P') {
            AddBatting(roster.pitchers[index].batting, line);
            RenewRates(roster.pitchers[index]);
            continue;
        }
        Batter& batter = roster.batters[index];
        if (FirstBatterLine(box, i)) Raise(batter.G, 1);
        AddBatting(batter.total, line);
        AddSplit(batter.vsLeft, line.vsLeft);
        AddSplit(batter.vsRight, line.vsRight);
        RenewRates(batter);
    }
    for (std::size_t i = 0; i < box.PitchersUsed; ++i) {
        const PitchingLine& line = box.pitching[i];
        if (line.player.Nobody()) continue;
        Pitcher& pitcher = roster.pitchers[static_cast<std::size_t>(line.player.index)];
        AddPitching(pitcher.total, line, i, box.PitchersUsed);
        Raise(pitcher.PitcherAutoOuts, line.AutoOuts);
        RenewRates(pitcher);
    }
}

void AddInjuries(TeamRoster& roster, const GameState& state, Side side, const std::string& gameDate, int dayNumber) {
    for (std::size_t i = 0; i < state.injuryCount; ++i) {
        const GameInjury& hurt = state.injury[i];
        if (hurt.side != side || hurt.player.Nobody()) continue;
        const auto index = static_cast<std::size_t>(hurt.player.index);
        Injury& injury = hurt.player.type == 'P' ? roster.pitchers[index].injury : roster.batters[index].injury;
        injury = {gameDate, static_cast<std::int16_t>(dayNumber), hurt.days, hurt.days};
    }
}

}  // namespace tarvane
