#include "ui/names.h"

namespace tarvane {

std::string LastNameOf(const GameData& data, Side side, PlayerRef player) {
    return LastName(PlayerName(data, side, player));
}

std::string SlotLastName(const GameData& data, const GameState& state, Side side, int slot) {
    if (slot < 1 || slot > 9) return {};
    return LastNameOf(data, side, state[side].lineup[static_cast<std::size_t>(slot - 1)].player);
}

std::string TeamName(const GameData& data, Side side) {
    return ShortTeamName(data[side].roster.team);
}

bool StandsLeft(const GameState& state) {
    const std::int32_t bats = state.AtBat().bats;
    if (bats == kSwitchHitter) return state.Fielding().PitcherThrows == kRightHand;
    return bats == kLeftHand;
}

std::string Ordinal(int number) {
    const char* ending = "th";
    if (number % 100 < 11 || number % 100 > 13) {
        if (number % 10 == 1) ending = "st";
        if (number % 10 == 2) ending = "nd";
        if (number % 10 == 3) ending = "rd";
    }
    return std::to_string(number) + ending;
}

}  // namespace tarvane
