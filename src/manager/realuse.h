#pragma once

#include <array>
#include <vector>

#include "records/position.h"

namespace tarvane {

// What a man did in the real season with this club. found is false where the statistics don't know him; then all is 0.
struct RealBatting {
    bool found = false;
    int G = 0, AB = 0, PAvsLeft = 0, PAvsRight = 0, HRvsLeft = 0, HRvsRight = 0;
    std::array<double, kPositionCount> gamesAt{};  // by position; broken-up outfield games can be fractions
};

struct RealPitching {
    bool found = false;
    int G = 0, GS = 0, IPOuts = 0, SV = 0, BFP = 0;
};

// The real statistics of one club, index for index beside its roster. Present only if the statistics hold at bats and
// innings at all; the club's SB and SH are the sums over all its rows, men without a roster row among them.
struct RealUse {
    bool present = false;
    std::vector<RealBatting> batters;
    std::vector<RealPitching> pitchers;
    int teamSB = 0, teamSH = 0;
    int teamGames = 154;  // schedule of the real season: what a share of starts is measured on

    const RealBatting& BatterAt(int index) const {
        static const RealBatting nothing;
        return index >= 0 && static_cast<std::size_t>(index) < batters.size() ? batters[static_cast<std::size_t>(index)]
                                                                              : nothing;
    }
    const RealPitching& PitcherAt(int index) const {
        static const RealPitching nothing;
        return index >= 0 && static_cast<std::size_t>(index) < pitchers.size()
                   ? pitchers[static_cast<std::size_t>(index)]
                   : nothing;
    }
};

}  // namespace tarvane
