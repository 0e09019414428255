#pragma once

#include <array>
#include <cstdint>

namespace tarvane {

enum class Side : std::uint8_t { Visitor, Home };

constexpr Side Other(Side side) { return side == Side::Visitor ? Side::Home : Side::Visitor; }
constexpr char SideLetter(Side side) { return side == Side::Visitor ? 'V' : 'H'; }

// A pair of values, one for each team, indexed by side.
template <class T>
struct PerSide {
    std::array<T, 2> value{};

    constexpr T& operator[](Side side) { return value[static_cast<std::size_t>(side)]; }
    constexpr const T& operator[](Side side) const { return value[static_cast<std::size_t>(side)]; }
    friend bool operator==(const PerSide&, const PerSide&) = default;
};

inline constexpr std::array<Side, 2> kBothSides{Side::Visitor, Side::Home};

}  // namespace tarvane
