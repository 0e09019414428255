#pragma once

#include <array>
#include <cstdint>

#include "base/random.h"
#include "records/cell.h"

namespace tarvane {

// RawRoll (1 to 216) to ChartRoll (10 to 39).
int ChartRollFromRaw(int rawRoll);

// All chance of one step besides the chart roll, drawn ahead in this order whether the step needs it or not, so that a
// step is a function of state, roll and values. A value serves the step it was drawn with and no other.
struct PlayValues {
    std::uint8_t NarrationRoll = 1;   // 1-100: choice of wording
    std::uint8_t RunnerRoll = 1;      // 1-100: 71 to 80 marks a triple or home run as near the line
    std::uint8_t CoverRoll = 1;       // 1-100: who covers second in a defensive decision
    std::uint8_t FieldingRoll = 10;   // 10-39: row of the fielding chart
    std::uint8_t ErrorRoll = 10;      // 10-39: 17 and 19 test an out for an error
    std::uint8_t ErrorColumn = 1;     // 1-5 with weights 12, 11, 9, 3, 1 of 36
    std::uint8_t FlyFielderRoll = 1;  // 1-100
    std::uint8_t ErrorSpotRoll = 1;   // 1-100
    std::uint8_t SpareRoll = 1;       // 1-100: carried, read by no rule
    std::uint8_t InfieldRoll = 1;     // 1-100
    std::uint8_t ErrorKindRoll = 10;  // 10-39
    friend bool operator==(const PlayValues&, const PlayValues&) = default;
};

PlayValues DrawPlayValues(Random& random);

// The pair of digits shown for a chart roll: they add up to its units digit; rawRoll (1 to 216) picks among the pairs.
// Presentation only: the caller draws rawRoll from a generator that the game does not use.
std::array<int, 2> ShowDice(int chartRoll, int rawRoll);

}  // namespace tarvane
