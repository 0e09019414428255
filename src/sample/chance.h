#pragma once

#include "base/random.h"

namespace tarvane::sample {

// Draws made of whole numbers and basic arithmetic only, so that a seed gives the same league with every maths library.

// From 0 up to but not including 1.
inline double Uniform(Random& random) {
    return random.Below(1U << 30) / static_cast<double>(1U << 30);
}

inline bool Happens(Random& random, double chance) {
    return Uniform(random) < chance;
}

// From low to high, both included.
inline int Between(Random& random, int low, int high) {
    return low + static_cast<int>(random.Below(static_cast<std::uint32_t>(high - low + 1)));
}

// Mean 0, spread 1, never beyond 6: the sum of twelve uniform draws.
inline double Normal(Random& random) {
    double sum = -6;
    for (int i = 0; i < 12; ++i) sum += Uniform(random);
    return sum;
}

// A factor around 1 whose logarithm has about this spread.
inline double Factor(Random& random, double spread, double shift = 0) {
    const double x = (Normal(random) * spread + shift) / 64;
    double factor = 1 + x + x * x / 2;
    for (int i = 0; i < 6; ++i) factor *= factor;
    return factor;
}

}  // namespace tarvane::sample
