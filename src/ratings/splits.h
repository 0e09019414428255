#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "base/random.h"
#include "records/lahman.h"

namespace tarvane {

// What the generator may be told about splits: by how much a batter does worse or better against left-handed pitching.
struct SplitSettings {
    double LHBAdjust = -0.125;   // left-handed batters; above -1 and below 0
    double RHBAdjust = 0.065;    // right-handed batters; above 0 and below 1
    bool RandomNoSplit = false;  // some batters get no adjustment, or the opposite one
};

// Throws UserError with the one sentence the screen shows if an adjustment is out of its range.
void CheckSplitSettings(const SplitSettings& settings);

// Who pitched a season's outs and who took its at bats, by hand. A switch hitter's at bats are shared out: he bats
// right against left-handers and left against right-handers.
struct SplitMix {
    double LeftOuts = 0, RightOuts = 0;
    double LeftBattersAB = 0, RightBattersAB = 0;

    double LeftShare() const;   // of the outs, 0 to 1; throws UserError when no out was pitched
    double RightShare() const;  // the rest

    void AddPitcher(int IPouts, std::int32_t throws_);
    void AddBatter(int AB, std::int32_t bats);  // after all pitchers
};

// One batter's real split figures. GIDP is not recorded there and is left alone.
struct RetroLine {
    SplitLine vsLeft, vsRight;
};

// The real splits of one season. Find takes the name and team code as they stand in KorvBatters.
class RetroSplitLookup {
  public:
    virtual ~RetroSplitLookup() = default;
    virtual std::optional<RetroLine> Find(std::string_view playerName, std::string_view teamID) = 0;
};

enum class SplitAdjustment { None, LeftHanded, RightHanded };

// What was done to one row.
struct SplitTrace {
    int chance = 0;  // the draw that can turn the adjustment off or round; 0 if none was made
    SplitAdjustment adjustment = SplitAdjustment::None;
    double adjust = 0;
    bool strikeoutsAdjusted = false;
    bool retro = false;
};

// Writes vsLeft and vsRight of a row from its season figures: shared by the mix, moved by the adjustment of his hand.
// Each figure against left-handers is a whole number before it is adjusted and rounded again; the figure against
// right-handers is what is left of the season's. bats is a hand code.
SplitTrace GenerateSplitRow(LahmanBattingRow& row, std::int32_t bats, const SplitMix& mix,
                            const SplitSettings& settings, Random& random);

// Puts real figures in the place of the estimate.
void ApplyRetroLine(LahmanBattingRow& row, const RetroLine& retro);

}  // namespace tarvane
