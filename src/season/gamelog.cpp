#include "season/gamelog.h"

#include "base/text.h"

namespace tarvane {

namespace {

// Places of the fields, from 0: two fields for each starting pitcher, three for each man of a batting order.
constexpr PerSide<std::size_t> kStarterField{101, 103};
constexpr PerSide<std::size_t> kNineField{105, 132};
constexpr std::int64_t kLoggedDH = 10;

// A log numbers positions as scorers do, with 10 for the DH.
Position PositionOf(std::string_view field) {
    const auto number = ParseInt(field);
    if (!number || *number < 1 || *number > kLoggedDH) return Position::None;
    return *number == kLoggedDH ? Position::DH : static_cast<Position>(*number);
}

}  // namespace

PerSide<LoggedTeam> ReadLoggedTeams(const std::vector<std::string_view>& cells) {
    PerSide<LoggedTeam> teams;
    const auto man = [&cells](std::size_t at) {
        return LoggedMan{std::string(Trim(cells[at])), std::string(Trim(cells[at + 1])), Position::None};
    };
    for (const Side side : kBothSides) {
        teams[side].starter = man(kStarterField[side]);
        teams[side].starter.position = Position::P;
        std::size_t at = kNineField[side];
        for (LoggedMan& batter : teams[side].nine) {
            batter = man(at);
            batter.position = PositionOf(cells[at + 2]);
            at += 3;
        }
    }
    return teams;
}

}  // namespace tarvane
