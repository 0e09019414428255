#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "records/cell.h"
#include "records/position.h"

namespace tarvane {

// One entry of a player's list of positions.
struct PositionRating {
    Position position = Position::None;
    std::int16_t rating = 0;  // defensive rating, positive and negative
    char errorRating = ' ';   // letter A to Z without I, O and Q; 'V' where the store has none
    friend bool operator==(const PositionRating&, const PositionRating&) = default;
};

// The counting statistics of a batting line; one for the season, one for each hand of the pitcher.
struct BattingTotals {
    std::int16_t AB = 0, R = 0, H = 0, Doubles = 0, Triples = 0, HR = 0, RBI = 0, SB = 0, CS = 0, BB = 0, SO = 0, IBB = 0,
                 HBP = 0, SH = 0, SF = 0, GIDP = 0;
    friend bool operator==(const BattingTotals&, const BattingTotals&) = default;
};

// Derived batting figures, written with the totals and only formatted by reports.
struct BattingRates {
    double Avg = 0, OBP = 0, SLG = 0, OPS = 0, RC = 0;
    friend bool operator==(const BattingRates&, const BattingRates&) = default;
};

struct Injury {
    std::string InjuryDate = " ";
    std::int16_t InjuryNbrDate = 0, InjuredDays = 0, InjuredDaysRemaining = 0;
    friend bool operator==(const Injury&, const Injury&) = default;
};

// Chances of each result on a batting chart, each 0 to 1.
struct BattingChances {
    double Singles = 0, Doubles = 0, Triples = 0, HR = 0, BBorHBP = 0, SO = 0;
    friend bool operator==(const BattingChances&, const BattingChances&) = default;
};

// A row of KorvBatters as a game and the screens see it.
struct Batter {
    std::int32_t playerID = 0;
    std::string LahmanPlayerID, teamID, playerName;
    std::int32_t CombinedPlayerID = 0;
    std::uint8_t lgIdx = 0;
    std::int32_t bats = kRightHand;
    std::string BuntRating = "B";
    std::uint8_t runRating = 0;
    std::uint8_t BBRating = 40, SORating = 40;  // 10 to 40; 40 means that no test is made
    std::string DefText;
    bool CatcherIRating = false, CatcherORating = false;
    std::array<PositionRating, 8> Pos{};
    std::uint8_t positionsShown = 0;
    ChartCells vsL{}, vsR{};
    BattingChances vsLChance, vsRChance;
    bool Inactive = false, NoLongerWithTeam = false;
    std::uint8_t vsLPowerRating = 0, vsRPowerRating = 0, SBRating = 0;
    std::int16_t G = 0;
    BattingTotals total, vsLeft, vsRight;
    BattingRates rates, vsLeftRates, vsRightRates;
    Injury injury;
    std::string ImageFile, imagePath;
};

struct PitchingTotals {
    std::int16_t W = 0, L = 0, Games = 0, GS = 0, CG = 0, SHO = 0, SV = 0, IPOuts = 0, OppHits = 0, OppHR = 0, ER = 0,
                 OppBB = 0, OppSO = 0, OppIBB = 0, OppHBP = 0, WP = 0, OppRuns = 0, OppAB = 0, BF = 0;
    friend bool operator==(const PitchingTotals&, const PitchingTotals&) = default;
};

struct PitchingChances {
    double SO = 0, Out = 0, RunnerAdvance = 0, BBorHBP = 0, HRReduce = 0, HRIncrease = 0, AllowHit = 0, GreenK = 0;
    friend bool operator==(const PitchingChances&, const PitchingChances&) = default;
};

// A row of KorvPitchers. A man who both started and relieved has two rows, one of each pitcherType.
struct Pitcher {
    std::int32_t playerID = 0;
    std::string LahmanPlayerID, teamID, playerName;
    std::int32_t CombinedPlayerID = 0;
    std::uint8_t lgIdx = 0;
    std::int32_t bats = kRightHand, throws_ = kRightHand;  // column "throws"
    std::string BuntRating = "B";
    std::uint8_t runRating = 0;
    std::uint8_t BBRating = 40, SORating = 40;
    std::int16_t PitchLessRest = 0, PitchLessRest2 = 0;
    std::string DefText;
    std::array<PositionRating, 4> Pos{};
    std::uint8_t positionsShown = 0;
    char pitcherType = 'S';              // 'S' starter, 'R' reliever
    std::uint8_t tiredRating = 0;        // 0 or 13 to 40
    std::uint8_t secondWindRating = 0;   // 0 or 10 to 40
    ChartCells pitch{}, Bat{};
    PitchingChances chance;
    BattingChances batChance;
    std::uint8_t PowerRating = 0, SBRating = 0;
    PitchingTotals total;
    double Pct = 0, ERA = 0, WHIP = 0;
    std::int16_t PitcherAutoOuts = 0;
    BattingTotals batting;
    BattingRates battingRates;
    bool Inactive = false, NoLongerWithTeam = false;
    std::uint8_t PitcherRestDays = 0;
    std::int16_t PitchedOnDay = 0, IPOutsToday = 0;
    Injury injury;
    std::string ImageFile, imagePath;
};

// Codes in teamID that name no team: a free agent, and the statistics row of a released player.
inline constexpr const char* kFreeAgentTeam = "999";
inline constexpr const char* kReleasedTeam = "998";

}  // namespace tarvane
