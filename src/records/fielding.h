#pragma once

#include <cstdint>
#include <string>

#include "records/position.h"

namespace tarvane {

// A row of FieldingStats: what one man did at one position. playerType 'B' names a row of KorvBatters, 'P' of
// KorvPitchers.
struct FieldingRow {
    std::string teamID, PlayerName;
    std::int32_t playerID = 0;
    char playerType = 'B';
    Position position = Position::None;
    std::int16_t GamesAtPos = 0, PutOuts = 0, Assists = 0, DoublePlays = 0, Errors = 0, PassBalls = 0, OpponentSB = 0,
                 OpponentCS = 0, GreatDefensivePlays = 0;
    double FieldingPct = 0;
};

}  // namespace tarvane
