#pragma once

#include <array>
#include <cstdint>

#include "records/position.h"

namespace tarvane {

inline constexpr int kMaxBatterLines = 40;
inline constexpr int kMaxPitchingLines = 10;
inline constexpr int kMaxFielderLines = 60;

// Who a line or a slot is about: a row of the team's roster in memory. 'B' indexes TeamData.batters, 'P' pitchers;
// index -1 is nobody.
struct PlayerRef {
    char type = 'B';
    std::int16_t index = -1;
    constexpr bool Nobody() const { return index < 0; }
    friend bool operator==(const PlayerRef&, const PlayerRef&) = default;
};

// The counts of a batting line that are split by the hand of the opposing pitcher.
struct BattingCounts {
    std::uint8_t AB = 0, H = 0, Doubles = 0, Triples = 0, HR = 0, RBI = 0, BB = 0, SO = 0, HBP = 0, SH = 0, SF = 0,
                 GIDP = 0;
    friend bool operator==(const BattingCounts&, const BattingCounts&) = default;
};

struct BatterLine {
    PlayerRef player;
    Position position = Position::None;
    std::uint8_t Slot = 0;  // 1 to 9; 10 for the pitcher when a DH bats for him
    bool Active = false;    // the line of the man now in that slot
    BattingCounts total, vsLeft, vsRight;
    std::uint8_t R = 0, SB = 0, CS = 0;
    friend bool operator==(const BatterLine&, const BatterLine&) = default;
};

struct PitchingLine {
    PlayerRef player;
    std::int16_t H = 0, R = 0, ER = 0, HR = 0, BB = 0, SO = 0, HBP = 0, IPOuts = 0, BF = 0, AutoOuts = 0;
    bool Win = false, Loss = false, Save = false;
    std::uint8_t RunnersCharged = 0;  // runners on base who are his; at the end of a half, men left on base
    char Role = 'S';                  // 'S' or 'R', from his chart
    bool MustBeReplaced = false, Reminded = false, BatReminded = false;
    friend bool operator==(const PitchingLine&, const PitchingLine&) = default;
};

struct FielderLine {
    PlayerRef player;
    Position position = Position::None;
    std::uint8_t Slot = 0;
    bool Active = false;
    std::uint8_t PutOuts = 0, Assists = 0, Errors = 0, DoublePlays = 0, PassBalls = 0, OpponentSB = 0, OpponentCS = 0,
                 GreatDefensivePlays = 0;
    friend bool operator==(const FielderLine&, const FielderLine&) = default;
};

// The three sets of lines of one team. Past its capacity a set stops recording; nothing is overrun.
struct BoxLines {
    std::array<BatterLine, kMaxBatterLines> batter{};
    std::array<PitchingLine, kMaxPitchingLines> pitching{};
    std::array<FielderLine, kMaxFielderLines> fielder{};
    std::uint8_t BatterLineCount = 0, PitchersUsed = 0, FielderLineCount = 0;
    friend bool operator==(const BoxLines&, const BoxLines&) = default;
};

}  // namespace tarvane
