#pragma once

#include <cstdint>
#include <string_view>

namespace tarvane {

// The one vocabulary of charts, runner movement, box score and narration. Texts as in ResultText: blanks and brackets
// matter at the edges (files, wire, screens); inside there are only these values.
enum class Result : std::uint8_t {
    None,
    Single,            // "1"
    SingleTwoBases,    // "1*"  every runner takes two bases
    SinglePlus,        // "1+"  the runner on second scores
    SingleDecision,    // "(1)"
    SinglePlusDecision,  // "(1+)"
    Double,            // "2"
    DoubleAllScore,    // "2*"
    DoubleDecision,    // "(2)"
    Triple,            // "3"
    HR,
    G,
    GAdvance,          // "G*"
    FC,
    DP,
    F,
    FDecision,         // "(F)"
    SF,
    SFDecision,        // "(SF)"
    K,
    BB,
    HBP,
    WP,
    PB,
    BK,
    E,
    SH,
    SB,
    CS,
    CSE,
    PK,
    Swing,
    SwingK,
    SwingHR,
    YellowX,
    YellowXInj,
    Inj,
    BuntMiss,
    Defence,           // "D": only as the result handed to the fielding step
};

inline constexpr int kResultCount = static_cast<int>(Result::Defence) + 1;

std::string_view ResultText(Result result);
// Exact text only; anything else is None.
Result ResultFromText(std::string_view text);

// The sheet on which the next roll is read.
enum class SheetCode : std::uint8_t { None, P, B, BBSO, PS, Bt, S, M, X, XI };
std::string_view SheetCodeText(SheetCode sheet);
SheetCode SheetCodeFromText(std::string_view text);

// How far an error reaches.
enum class ErrorKind : std::uint8_t { None, E, EPlus, EPlusPlus, ED };

// What the pitcher sheet passes to the batter sheet.
enum class SheetEffect : std::uint8_t { None, BB, SO, SwingK, HRReduced, HRIncreased };

// What the park or year cell of the pitcher's roll does to the rest of the at-bat.
enum class ColumnEffect : std::uint8_t {
    None, DoubleIncreased, DoubleReduced, TripleIncreased, TripleReduced, HRIncreased, HRReduced, SwingK, FlyOut, GroundOut,
    SinglePlus
};

// What a put-out on a ball in play hangs on; part of the state because put-outs and assists follow from it.
enum class PlayAt : std::uint8_t { None, Second, Home };

enum class BuntResult : std::uint8_t { None, K, TwoK, SHF, SHE };
enum class BuntType : std::uint8_t { None, Sacrifice, Squeeze };

// Which runners a manager's decision is about: "B" both, "2" the man on second, "1" the man on first.
enum class ExtraBaseCase : std::uint8_t { None, Both, Second, First };

enum class ManagerDecisionResult : std::uint8_t { None, Safe, SafeStar, SafeErr, Err, Out, OutStar };

}  // namespace tarvane
