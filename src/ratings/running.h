#pragma once

#include <cstdint>

#include "records/lahman.h"

namespace tarvane {

// The parts of a running rating. Runs scored and double plays weigh nothing in it, but a man whose five scores sum to
// exactly nothing is rated 0.
struct RunningDerivation {
    double RateScore = 0;     // how often a steal succeeds
    double FreqScore = 0;     // how often one is tried
    double TriplesScore = 0;  // triples a ball in play
    double RunsScore = 0;     // how often he comes home
    double GIDPScore = 0;     // how seldom he is doubled up
    double value = 0;         // before it is rounded and held to 0 to 5
    std::uint8_t runRating = 0;
    char BuntRating = 'B';  // 'A' if he laid down a sacrifice, else 'B'
};

// The running and bunting ratings of a batting line. Batters are rated by a harder standard than pitchers.
RunningDerivation RateRunning(const LahmanBattingRow& line, bool pitcher);

}  // namespace tarvane
