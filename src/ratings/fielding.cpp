#include "ratings/fielding.h"

#include <algorithm>
#include <array>

#include "base/rounding.h"

namespace tarvane {

namespace {

struct PositionScale {
    Position position;
    const PositionBaseline LeagueBaseline::*league;
    double batterFactor, pitcherFactor;  // how much a play above the league is worth; 0: not rated
    int lowest, highest;
};

constexpr std::array<PositionScale, 9> kScales{{
    {Position::P, &LeagueBaseline::P, 0, 1.5, -3, 9},
    {Position::C, &LeagueBaseline::C, 4.0, 0, -4, 12},
    {Position::B1, &LeagueBaseline::B1, 1.5, 1.5, -3, 9},
    {Position::B2, &LeagueBaseline::B2, 4.75, 6.0, -5, 18},
    {Position::B3, &LeagueBaseline::B3, 3.0, 3.0, -4, 14},
    {Position::SS, &LeagueBaseline::SS, 4.75, 6.0, -5, 18},
    {Position::LF, &LeagueBaseline::OF, 3.5, 2.5, -4, 14},
    {Position::CF, &LeagueBaseline::OF, 3.5, 4.0, -5, 18},
    {Position::RF, &LeagueBaseline::OF, 3.5, 2.5, -4, 14},
}};

// The highest index of each letter; the last letter holds all above. I, O and Q are never used.
struct LetterRow {
    int upTo;
    char letter;
};
constexpr std::array<LetterRow, 22> kLetters{{{1, 'A'},  {3, 'B'},  {7, 'C'},  {9, 'D'},  {10, 'E'}, {11, 'F'},
                                              {12, 'G'}, {13, 'H'}, {14, 'J'}, {15, 'K'}, {18, 'L'}, {20, 'M'},
                                              {21, 'N'}, {22, 'P'}, {23, 'R'}, {24, 'S'}, {25, 'T'}, {26, 'U'},
                                              {27, 'V'}, {32, 'W'}, {33, 'X'}, {35, 'Y'}}};

constexpr double kPlayWorth = 4.5;
constexpr int kAverageErrorIndex = 27;
constexpr double kCenterFieldErrors = 1.15;  // centre fielders are granted more errors than the outfield's average
constexpr double kFullSeason = 100;          // games from which a rating counts whole
constexpr double kHandfulOfGames = 10;
constexpr double kFewGames = 20;  // below it, no error is no proof
constexpr std::size_t kLinesLookedAt = 8;
constexpr std::size_t kPitcherEntries = 4;

int Rounded(double value) {
    return static_cast<int>(RoundHalfEven(value));
}

void RateCatcher(FieldingDerivation& d, const LeagueBaseline& league) {
    // A strikeout is a putout of the catcher's but none of his doing.
    const double putouts = d.line.PO / d.line.G;
    const double own = putouts - putouts * league.CPctPOSO;
    const double average = league.C.PORate - league.CPctPOSO * league.C.PORate;
    d.PODiff = own - average;
    d.strongArm = d.line.A / d.line.G > 1.25 * league.C.ARate;
    d.weakArm = d.line.A / d.line.G < 0.75 * league.C.ARate;
}

int SettleRating(const FieldingDerivation& d, const PositionScale& scale, FielderKind kind) {
    int rating = d.rawRating;
    if (scale.position != Position::P || kind != FielderKind::Pitcher) {
        if (d.line.G < kFullSeason) rating = Rounded(rating * d.line.G / kFullSeason);
        if (rating > 0 && d.line.G <= kHandfulOfGames) rating = Rounded(rating * 0.33);
    }
    if (rating < -3) rating = Rounded(rating * 0.33);
    return std::clamp(rating, scale.lowest, scale.highest);
}

void RateErrors(FieldingDerivation& d, double leagueErrors) {
    d.errorRatio = d.line.E / d.line.G / leagueErrors;
    d.ErrorIndex = Rounded(d.errorRatio * kAverageErrorIndex);
    if (d.errorRatio == 0 && d.line.G < kFewGames) d.ErrorIndex = kAverageErrorIndex;
}

}  // namespace

char ErrorLetter(int errorIndex) {
    for (const LetterRow& row : kLetters) {
        if (errorIndex <= row.upTo) return row.letter;
    }
    return 'Z';
}

std::optional<FieldingDerivation> RateFieldingLine(const LahmanFieldingRow& line, const LeagueBaseline& league,
                                                   FielderKind kind) {
    const Position position = PositionFromText(line.Pos);
    const auto* scale =
        std::find_if(kScales.begin(), kScales.end(), [&](const PositionScale& s) { return s.position == position; });
    if (scale == kScales.end() || !(line.G > 0)) return std::nullopt;
    const double factor = kind == FielderKind::Batter ? scale->batterFactor : scale->pitcherFactor;
    if (factor == 0) return std::nullopt;

    FieldingDerivation d;
    d.line = line;
    d.entry = {position, 0, 'V'};
    const PositionBaseline& average = league.*scale->league;
    if (!(average.ErrorsRate > 0)) {
        d.noBaseline = true;
        return d;
    }
    d.PODiff = line.PO / line.G - average.PORate;
    d.ADiff = line.A / line.G - average.ARate;
    d.DPDiff = line.DP / line.G - average.DPRate;
    d.EDiff = line.E / line.G - average.ErrorsRate;
    if (position == Position::C) RateCatcher(d, league);

    d.Gain = Rounded((d.ADiff * kPlayWorth + d.PODiff * kPlayWorth + d.DPDiff * kPlayWorth) * factor);
    d.Loss = d.EDiff * kPlayWorth * factor;
    d.rawRating = Rounded(d.Gain - d.Loss);
    d.entry.rating = static_cast<std::int16_t>(SettleRating(d, *scale, kind));

    const bool granted = position == Position::CF && kind == FielderKind::Batter;
    RateErrors(d, average.ErrorsRate * (granted ? kCenterFieldErrors : 1.0));
    d.entry.errorRating = ErrorLetter(d.ErrorIndex);
    return d;
}

std::vector<FieldingDerivation> RateFielding(const std::vector<LahmanFieldingRow>& lines, const LeagueBaseline& league,
                                             FielderKind kind) {
    std::vector<FieldingDerivation> entries;
    for (std::size_t i = 0; i < std::min(lines.size(), kLinesLookedAt); ++i) {
        if (auto entry = RateFieldingLine(lines[i], league, kind)) entries.push_back(std::move(*entry));
    }
    if (kind == FielderKind::Batter) return entries;
    if (entries.size() > kPitcherEntries) entries.resize(kPitcherEntries);
    if (entries.empty()) {
        FieldingDerivation neutral;
        neutral.entry = {Position::P, 0, 'V'};
        entries.push_back(neutral);
    }
    return entries;
}

}  // namespace tarvane
