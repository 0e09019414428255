#pragma once

#include "base/random.h"
#include "records/era.h"
#include "records/lahman.h"

namespace tarvane::test {

// A league much like one of the 1970s.
inline LeagueBaseline SampleLeague() {
    LeagueBaseline league;
    league.EraID = 1;
    league.lgIdx = 1;
    league.PAFactor = 0.9;
    league.BBAvg = 0.085;
    league.SOAvg = 0.125;
    league.HBPRate = 0.005;
    league.RBIAvg = 0.1;
    league.AvgSOBFP = 0.125;
    league.AvgBBBFP = 0.085;
    league.AvgHBFP = 0.23;
    league.AvgHRBFP = 0.02;
    league.CPctPOSO = 0.9;
    league.P = {0.03, 0.25, 0.6, 0.05};
    league.C = {0.08, 5.5, 0.45, 0.06};
    league.B1 = {0.08, 9.0, 0.6, 0.9};
    league.B2 = {0.11, 2.3, 2.8, 0.65};
    league.B3 = {0.14, 0.8, 2.0, 0.18};
    league.SS = {0.17, 1.6, 2.9, 0.6};
    league.OF = {0.04, 2.0, 0.07, 0.015};
    return league;
}

// A whole season's batting line that could be, from a bench player's to a batting champion's.
inline LahmanBattingRow RandomBattingLine(Random& random) {
    const auto upTo = [&](int most) { return static_cast<int>(random.Below(static_cast<std::uint32_t>(most) + 1)); };
    LahmanBattingRow row;
    row.G = 1 + upTo(161);
    row.AB = upTo(random.RandomHalf() < 20 ? 60 : 680);
    row.H = upTo(row.AB * 2 / 5);
    row.Doubles = upTo(row.H / 4);
    row.Triples = upTo(row.H / 10);
    row.HR = upTo((row.H - row.Doubles - row.Triples) / 3);
    row.R = row.HR + upTo(row.H);
    row.RBI = row.HR + upTo(row.H);
    row.BB = upTo(row.AB / 4);
    row.SO = upTo((row.AB - row.H) / 2);
    row.SB = upTo(row.H / 2);
    if (random.RandomPercent() > 30) row.CS = upTo(row.H / 5);
    if (random.RandomPercent() > 30) row.IBB = upTo(row.BB / 4);
    if (random.RandomPercent() > 20) row.HBP = upTo(12);
    if (random.RandomPercent() > 20) row.SH = upTo(15);
    if (random.RandomPercent() > 20) row.SF = upTo(12);
    if (random.RandomPercent() > 20) row.GIDP = upTo(25);
    return row;
}

inline LahmanPitchingRow RandomPitchingLine(Random& random) {
    const auto upTo = [&](int most) { return static_cast<int>(random.Below(static_cast<std::uint32_t>(most) + 1)); };
    LahmanPitchingRow row;
    row.G = 1 + upTo(70);
    row.GS = upTo(row.G);
    row.CG = upTo(row.GS);
    row.IPouts = 1 + upTo(row.G * 15);
    row.H = upTo(row.IPouts / 2 + 2);
    row.BB = upTo(row.IPouts / 4 + 2);
    row.SO = upTo(row.IPouts);
    row.HR = upTo(row.H / 5);
    if (random.RandomPercent() > 20) row.BFP = row.IPouts + row.H + row.BB;
    if (random.RandomPercent() > 30) row.IBB = upTo(row.BB / 3);
    return row;
}

}  // namespace tarvane::test
