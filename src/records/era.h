#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "records/cell.h"

namespace tarvane {

// League rates of one position per player-game.
struct PositionBaseline {
    double ErrorsRate = 0, PORate = 0, ARate = 0, DPRate = 0;
};

// The baseline of one league: what the generators take from the KorvYears row of its era. Averages are per plate
// appearance, the Avg...BFP figures per batter faced.
struct LeagueBaseline {
    std::int32_t EraID = 0;
    std::int16_t lgIdx = 0;
    double PAFactor = 0;
    PositionBaseline P, C, B1, B2, B3, SS, OF;
    double CPctPOSO = 0;
    double BBAvg = 0, SOAvg = 0, HBPRate = 0, RBIAvg = 0;
    double AvgSOBFP = 0, AvgBBBFP = 0, AvgHBFP = 0, AvgHRBFP = 0;
    std::int16_t AvgSPIPOutsGame = 0, AvgRPIPOutsGame = 0, AvgSPBFGame = 0, AvgRPBFGame = 0;
};

}  // namespace tarvane
