#include "base/random.h"

namespace tarvane {

void Random::Seed(std::uint64_t seed) {
    for (std::uint64_t& word : state_) {
        seed += 0x9E3779B97F4A7C15ULL;
        std::uint64_t z = seed;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
        word = z ^ (z >> 31);
    }
}

}  // namespace tarvane
