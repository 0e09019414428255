#pragma once

#include <cmath>
#include <cstdint>

namespace tarvane {

// A double to the nearest whole number, a half to the even one: the rounding of every column and every formula here.
inline long RoundHalfEven(double value) {
    const double floor = std::floor(value);
    const double part = value - floor;
    const auto whole = static_cast<long>(floor);
    if (part < 0.5) return whole;
    if (part > 0.5) return whole + 1;
    return whole % 2 == 0 ? whole : whole + 1;
}

// value * permille / 1000, a half to the even number, in whole numbers only: the multipliers of the computer manager
// must not depend on a platform's floating point. value is not negative.
constexpr int ScalePermille(int value, int permille) {
    const int product = value * permille;
    const int whole = product / 1000;
    const int rest = product % 1000;
    if (rest < 500) return whole;
    if (rest > 500) return whole + 1;
    return whole % 2 == 0 ? whole : whole + 1;
}

}  // namespace tarvane
