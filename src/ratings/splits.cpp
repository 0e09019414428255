#include "ratings/splits.h"

#include <array>

#include "base/error.h"
#include "base/rounding.h"
#include "records/cell.h"

namespace tarvane {

namespace {

// A counting column: the season's figure and its place in a split line.
struct SplitColumn {
    int (*season)(const LahmanBattingRow&);
    int SplitLine::*split;
};

using Row = LahmanBattingRow;

constexpr std::array<SplitColumn, 4> kUnadjustedColumns{{
    {[](const Row& r) { return r.AB; }, &SplitLine::AB},
    {[](const Row& r) { return r.GIDP.value_or(0); }, &SplitLine::GIDP},
    {[](const Row& r) { return r.SH.value_or(0); }, &SplitLine::SH},
    {[](const Row& r) { return r.SF.value_or(0); }, &SplitLine::SF},
}};

constexpr std::array<SplitColumn, 7> kAdjustedColumns{{
    {[](const Row& r) { return r.H; }, &SplitLine::H},
    {[](const Row& r) { return r.Doubles; }, &SplitLine::Doubles},
    {[](const Row& r) { return r.Triples; }, &SplitLine::Triples},
    {[](const Row& r) { return r.HR; }, &SplitLine::HR},
    {[](const Row& r) { return r.RBI; }, &SplitLine::RBI},
    {[](const Row& r) { return r.BB; }, &SplitLine::BB},
    {[](const Row& r) { return r.HBP.value_or(0); }, &SplitLine::HBP},
}};

constexpr SplitColumn kStrikeouts{[](const Row& r) { return r.SO.value_or(0); }, &SplitLine::SO};

void SetSplit(Row& row, const SplitColumn& column, double left) {
    row.vsLeft.*column.split = static_cast<int>(RoundHalfEven(left));
    row.vsRight.*column.split = column.season(row) - row.vsLeft.*column.split;
}

// Of 216 draws, 40 to 50 turn a conventional split round and 150 to 170 take it away.
SplitAdjustment PickAdjustment(std::int32_t bats, int chance) {
    if (bats != kLeftHand && bats != kRightHand) return SplitAdjustment::None;
    if (chance >= 150 && chance <= 170) return SplitAdjustment::None;
    const bool opposite = chance >= 40 && chance <= 50;
    const bool left = (bats == kLeftHand) != opposite;
    return left ? SplitAdjustment::LeftHanded : SplitAdjustment::RightHanded;
}

constexpr int kStrikeoutsFollow = 85;  // of 216 batters, those whose strikeouts move with the split as well

}  // namespace

void CheckSplitSettings(const SplitSettings& settings) {
    if (!(settings.LHBAdjust > -1 && settings.LHBAdjust < 0)) {
        throw UserError("Invalid LH Batter vs Lefty Pitcher Adjustment.");
    }
    if (!(settings.RHBAdjust > 0 && settings.RHBAdjust < 1)) {
        throw UserError("Invalid RH Batter vs Lefty Pitcher Adjustment.");
    }
}

double SplitMix::LeftShare() const {
    const double total = LeftOuts + RightOuts;
    if (!(total > 0)) {
        throw UserError(
            "Lefty/Righty Splits can't be generated: the season has no pitcher with an out. Import teams with "
            "pitchers, "
            "or lower the innings filter.");
    }
    return LeftOuts / total;
}

double SplitMix::RightShare() const {
    return 1 - LeftShare();
}

void SplitMix::AddPitcher(int IPouts, std::int32_t throws_) {
    (throws_ == kLeftHand ? LeftOuts : RightOuts) += IPouts;
}

void SplitMix::AddBatter(int AB, std::int32_t bats) {
    if (bats == kLeftHand) {
        LeftBattersAB += AB;
    } else if (bats == kRightHand) {
        RightBattersAB += AB;
    } else {
        RightBattersAB += AB * LeftShare();
        LeftBattersAB += AB * RightShare();
    }
}

SplitTrace GenerateSplitRow(Row& row, std::int32_t bats, const SplitMix& mix, const SplitSettings& settings,
                            Random& random) {
    const double share = mix.LeftShare();
    for (const SplitColumn& column : kUnadjustedColumns) SetSplit(row, column, column.season(row) * share);
    for (const SplitColumn& column : kAdjustedColumns) SetSplit(row, column, column.season(row) * share);
    SetSplit(row, kStrikeouts, kStrikeouts.season(row) * share);

    SplitTrace trace;
    if (settings.RandomNoSplit) trace.chance = random.RandomRoll216();
    trace.adjustment = PickAdjustment(bats, trace.chance);
    if (trace.adjustment == SplitAdjustment::None) return trace;

    trace.adjust = trace.adjustment == SplitAdjustment::LeftHanded ? settings.LHBAdjust : settings.RHBAdjust;
    for (const SplitColumn& column : kAdjustedColumns) {
        SetSplit(row, column, row.vsLeft.*column.split * (1 + trace.adjust));
    }
    trace.strikeoutsAdjusted = random.RandomRoll216() <= kStrikeoutsFollow;
    if (trace.strikeoutsAdjusted) SetSplit(row, kStrikeouts, row.vsLeft.SO * (1 - trace.adjust));
    return trace;
}

void ApplyRetroLine(Row& row, const RetroLine& retro) {
    const int leftGIDP = row.vsLeft.GIDP;
    const int rightGIDP = row.vsRight.GIDP;
    row.vsLeft = retro.vsLeft;
    row.vsRight = retro.vsRight;
    row.vsLeft.GIDP = leftGIDP;
    row.vsRight.GIDP = rightGIDP;
}

}  // namespace tarvane
