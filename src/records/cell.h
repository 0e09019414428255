#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace tarvane {

// Colour words as stored, in blue-green-red order. -1 marks a walk or hit by pitch in a stored chart.
inline constexpr std::int32_t kGreenWord = 65280;
inline constexpr std::int32_t kRedWord = 255;
inline constexpr std::int32_t kBlueWord = 16711680;
inline constexpr std::int32_t kYellowWord = 65535;
inline constexpr std::int32_t kWhiteWord = 16777215;
inline constexpr std::int32_t kStoredYellowWord = -1;

// Hands are stored as the colours in which names are painted; a switch hitter's bats is -1.
inline constexpr std::int32_t kLeftHand = 255;
inline constexpr std::int32_t kRightHand = 65280;
inline constexpr std::int32_t kSwitchHitter = -1;

inline constexpr int kFirstRoll = 10;
inline constexpr int kLastRoll = 39;
inline constexpr std::size_t kChartRows = 30;

// One cell of a stored chart. An empty cell holds a single blank.
struct ChartCell {
    std::string text = " ";
    std::int32_t color = kGreenWord;
    friend bool operator==(const ChartCell&, const ChartCell&) = default;
};

// The thirty cells for the rolls 10 to 39; index is the roll minus 10.
using ChartCells = std::array<ChartCell, kChartRows>;

// Of the 216 equally likely raw rolls, how many give this chart roll (10 to 39).
inline constexpr std::array<int, kChartRows> kCellWeight{2, 3, 4, 5, 6, 6, 4, 3, 2, 1, 4, 6, 8, 10, 12,
                                                         12, 8, 6, 4, 2, 6, 9, 12, 15, 18, 18, 12, 9, 6, 3};
constexpr int CellWeight(int chartRoll) { return kCellWeight[static_cast<std::size_t>(chartRoll - kFirstRoll)]; }

}  // namespace tarvane
