#pragma once

#include <cstdint>
#include <string_view>

namespace tarvane {

// Where a man stands, or what he is in the batting order. The two-character texts are those of the tables.
enum class Position : std::uint8_t { None, P, C, B1, B2, B3, SS, LF, CF, RF, DH, PH, PR, Inj };

inline constexpr int kPositionCount = 14;

// "P ", "C ", "1B", ... ; None is two blanks, Inj "Inj".
std::string_view PositionText(Position position);

// Accepts a one-letter code with or without its blank; anything unknown is None.
Position PositionFromText(std::string_view text);

constexpr bool IsFielder(Position p) { return p >= Position::P && p <= Position::RF; }
constexpr bool IsOutfielder(Position p) { return p >= Position::LF && p <= Position::RF; }

// The scorer's number, 1 to 9; 0 for anything that isn't a fielder.
constexpr int ScorerNumber(Position p) { return IsFielder(p) ? static_cast<int>(p) : 0; }

}  // namespace tarvane
