#include "ui/names.h"

namespace tarvane {

namespace {

bool IsSuffix(std::string_view word) {
    return word == "Jr." || word == "Jr" || word == "Sr." || word == "II" || word == "III";
}

}  // namespace

const std::string& PlayerName(const GameData& data, Side side, PlayerRef player) {
    static const std::string nobody;
    const TeamRoster& roster = data[side].roster;
    const auto index = static_cast<std::size_t>(player.index);
    if (player.Nobody()) return nobody;
    if (player.type == 'P') return index < roster.pitchers.size() ? roster.pitchers[index].playerName : nobody;
    return index < roster.batters.size() ? roster.batters[index].playerName : nobody;
}

std::string LastName(const std::string& name) {
    const std::size_t last = name.find_last_of(' ');
    if (last == std::string::npos) return name;
    if (IsSuffix(std::string_view(name).substr(last + 1)) && last > 0) {
        const std::size_t before = name.find_last_of(' ', last - 1);
        return before == std::string::npos ? name : name.substr(before + 1);
    }
    return name.substr(last + 1);
}

std::string LastNameOf(const GameData& data, Side side, PlayerRef player) {
    return LastName(PlayerName(data, side, player));
}

std::string SlotLastName(const GameData& data, const GameState& state, Side side, int slot) {
    if (slot < 1 || slot > 9) return {};
    return LastNameOf(data, side, state[side].lineup[static_cast<std::size_t>(slot - 1)].player);
}

std::string TeamName(const GameData& data, Side side) {
    const Team& team = data[side].roster.team;
    const std::string& name = team.shortName.empty() ? team.fullName : team.shortName;
    const std::size_t bracket = name.find('(');
    if (bracket == std::string::npos || bracket == 0) return name;
    return name.substr(0, name.find_last_not_of(' ', bracket - 1) + 1);
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
