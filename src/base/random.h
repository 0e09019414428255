#pragma once

#include <array>
#include <cstdint>

namespace tarvane {

// The one source of chance: xoshiro256** seeded through splitmix64, so that the same seed gives the same draws on every
// platform and library. It is a plain value: copying it copies the sequence. Nothing in the project reads a clock for
// chance except the driver that picks a seed when the user gave none.
class Random {
  public:
    explicit Random(std::uint64_t seed) { Seed(seed); }

    void Seed(std::uint64_t seed);
    std::uint64_t Next();

    // A whole number from 0 to bound - 1, each equally likely; bound is 1 to 2^32 - 1.
    std::uint32_t Below(std::uint32_t bound);

    // The draws of the game, each from 1: the raw roll of the dice, a percentage, one of fifty, one of thirty-six.
    int RandomRoll216() { return static_cast<int>(Below(216)) + 1; }
    int RandomPercent() { return static_cast<int>(Below(100)) + 1; }
    int RandomHalf() { return static_cast<int>(Below(50)) + 1; }
    int RandomError36() { return static_cast<int>(Below(36)) + 1; }

    // Where the sequence stands, for a game that is put away and taken up again.
    const std::array<std::uint64_t, 4>& State() const { return state_; }
    void SetState(const std::array<std::uint64_t, 4>& state) { state_ = state; }

    friend bool operator==(const Random&, const Random&) = default;

  private:
    std::array<std::uint64_t, 4> state_{};
};

inline std::uint64_t Random::Next() {
    const auto rotl = [](std::uint64_t x, int k) { return (x << k) | (x >> (64 - k)); };
    const std::uint64_t result = rotl(state_[1] * 5, 7) * 9;
    const std::uint64_t t = state_[1] << 17;
    state_[2] ^= state_[0];
    state_[3] ^= state_[1];
    state_[1] ^= state_[2];
    state_[0] ^= state_[3];
    state_[2] ^= t;
    state_[3] = rotl(state_[3], 45);
    return result;
}

inline std::uint32_t Random::Below(std::uint32_t bound) {
    // Lemire's multiplication with rejection: exact, and the loop almost never runs twice.
    std::uint64_t product = (Next() >> 32) * bound;
    auto low = static_cast<std::uint32_t>(product);
    if (low < bound) {
        const std::uint32_t threshold = (0U - bound) % bound;
        while (low < threshold) {
            product = (Next() >> 32) * bound;
            low = static_cast<std::uint32_t>(product);
        }
    }
    return static_cast<std::uint32_t>(product >> 32);
}

}  // namespace tarvane
