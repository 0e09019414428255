#pragma once

#include <string>
#include <vector>

#include "base/random.h"
#include "engine/game.h"
#include "manager/realuse.h"
#include "records/team.h"

namespace tarvane::testing {

// A batter who knows the positions named, the first best. bat is his chance to reach base, in percent, on both charts.
inline Batter MakeBatter(std::int32_t id, std::vector<Position> positions, int bat = 30, int runRating = 2) {
    Batter batter;
    batter.playerID = id;
    batter.playerName = "Batter " + std::to_string(id);
    batter.runRating = static_cast<std::uint8_t>(runRating);
    batter.BuntRating = id % 3 == 0 ? "A" : "B";
    for (std::size_t i = 0; i < positions.size(); ++i)
        batter.Pos[i] = {positions[i], static_cast<std::int16_t>(5 - static_cast<int>(i) * 2), 'F'};
    for (BattingChances* chance : {&batter.vsLChance, &batter.vsRChance})
        *chance = {bat * 0.006, bat * 0.0015, bat * 0.0003, bat * 0.0005, bat * 0.0017, 0.15};
    return batter;
}

inline Pitcher MakePitcher(std::int32_t id, char type, int outs = 40, std::string name = {}) {
    Pitcher pitcher;
    pitcher.playerID = id;
    pitcher.playerName = name.empty() ? "Pitcher " + std::to_string(id) : std::move(name);
    pitcher.pitcherType = type;
    pitcher.chance.Out = outs / 100.0;
    pitcher.Pos[0] = {Position::P, 0, 'J'};
    return pitcher;
}

inline constexpr Position kField[] = {Position::C,  Position::B1, Position::B2, Position::B3,
                                      Position::SS, Position::LF, Position::CF, Position::RF};

// Eight regulars with ids 1 to 8, a bench of 9 to 15, starters 101 to 105 and relievers 111 to 116.
inline TeamRoster MakeRoster() {
    TeamRoster roster;
    roster.team.teamID = "TST";
    roster.team.fullName = "Test Town Testers";
    roster.team.shortName = "Testers";
    for (int i = 0; i < 8; ++i) roster.batters.push_back(MakeBatter(i + 1, {kField[i]}, 40 - i));
    roster.batters.push_back(MakeBatter(9, {Position::C}, 22));
    roster.batters.push_back(MakeBatter(10, {Position::SS, Position::B2, Position::B3}, 24));
    roster.batters.push_back(MakeBatter(11, {Position::LF, Position::RF, Position::CF}, 26));
    roster.batters.push_back(MakeBatter(12, {Position::B1}, 31));
    roster.batters.push_back(MakeBatter(13, {Position::RF, Position::LF}, 27));
    roster.batters.push_back(MakeBatter(14, {Position::B3, Position::B1}, 25));
    roster.batters.push_back(MakeBatter(15, {Position::CF}, 20, 5));
    for (int i = 0; i < 5; ++i) roster.pitchers.push_back(MakePitcher(101 + i, 'S', 50 - i));
    for (int i = 0; i < 6; ++i) roster.pitchers.push_back(MakePitcher(111 + i, 'R', 45 - i));
    return roster;
}

// A club as bad luck might leave it: random positions, hurt and inactive men, double records, few of anything.
inline TeamRoster RandomRoster(Random& random) {
    TeamRoster roster;
    roster.team.fullName = "Random Ramblers";
    const int men = 9 + static_cast<int>(random.Below(18));
    for (int i = 0; i < men; ++i) {
        std::vector<Position> positions;
        for (const Position position : kField)
            if (random.Below(100) < 22) positions.push_back(position);
        Batter batter =
            MakeBatter(i + 1, positions, 10 + static_cast<int>(random.Below(40)), static_cast<int>(random.Below(6)));
        for (PositionRating& entry : batter.Pos)
            entry.rating = static_cast<std::int16_t>(static_cast<int>(random.Below(25)) - 8);
        if (random.Below(12) == 0) batter.Inactive = true;
        if (random.Below(12) == 0) batter.injury.InjuredDaysRemaining = 7;
        roster.batters.push_back(std::move(batter));
    }
    const int arms = 1 + static_cast<int>(random.Below(14));
    for (int i = 0; i < arms; ++i) {
        const char type = i == 0 || random.Below(2) == 0 ? 'S' : 'R';
        roster.pitchers.push_back(MakePitcher(500 + i, type, 20 + static_cast<int>(random.Below(40)),
                                              "Arm " + std::to_string(random.Below(12))));
    }
    return roster;
}

// What is wrong with a line-up for the first pitch; empty if nothing is.
inline std::string Faults(const TeamRoster& roster, const LineupInput& lineup, bool dhUsed) {
    std::array<int, kPositionCount> standing{};
    for (std::size_t slot = 0; slot < 9; ++slot) {
        if (lineup.player[slot].Nobody()) return "empty slot " + std::to_string(slot + 1);
        for (std::size_t other = 0; other < slot; ++other)
            if (lineup.player[slot] == lineup.player[other]) return "a man twice";
        ++standing[static_cast<std::size_t>(lineup.position[slot])];
        const auto index = static_cast<std::size_t>(lineup.player[slot].index);
        if (lineup.player[slot].type == 'B') {
            const Batter& man = roster.batters[index];
            if (man.Inactive || man.NoLongerWithTeam || man.injury.InjuredDaysRemaining > 0)
                return man.playerName + " can't play";
        } else if (lineup.position[slot] == Position::P && lineup.player[slot] != lineup.pitcher) {
            return "another pitcher in the order";
        }
    }
    for (const Position position : kField)
        if (standing[static_cast<std::size_t>(position)] != 1) return std::string(PositionText(position)) + " not once";
    if (standing[static_cast<std::size_t>(dhUsed ? Position::DH : Position::P)] != 1) return "DH or P not once";
    return lineup.pitcher.Nobody() ? "no pitcher" : "";
}

}  // namespace tarvane::testing
