#include "manager/substitution.h"

#include <algorithm>

#include "base/rounding.h"

namespace tarvane {

namespace {

// Scaling factors in thousandths, and bounds, for the tendencies 1, 2 and 3.
struct ByTendency {
    int value[3];
    int operator()(int tendency) const { return value[tendency - 1]; }
};

constexpr int kNone = 1000;

bool Legal(int tendency) {
    return tendency >= 1 && tendency <= 3;
}

void Scale(int& r, int permille) {
    r = ScalePermille(r, permille);
}
void Scale(int& r, const ByTendency& row, int tendency) {
    r = ScalePermille(r, row(tendency));
}

bool OverRealUse(const SubsSituation& s) {
    return s.actualUsage && s.pitcherRealOuts > 0 && s.IPOuts > s.pitcherRealOuts;
}

void ScaleForFatigue(const SubsSituation& s, int usage, int& r, const ByTendency& tired,
                     const ByTendency& intermediate) {
    if (s.tired) Scale(r, tired, usage);
    if (s.intermediate) Scale(r, intermediate, usage);
}

constexpr ByTendency kTiredInField{{1700, 1500, 1330}}, kIntermediateInField{{1500, 1330, 1200}};

// He batted in his team's last half inning. While nothing has happened in this half he isn't judged: the manager who
// let him bat a moment ago meant to keep him.
bool JustLetBat(const SubsSituation& s) {
    const int lastHalf = s.side == Side::Home ? s.Inning - 1 : s.Inning;  // the home team bats after the visitors
    if (s.pitcherLastBatted == 0 || s.pitcherLastBatted != lastHalf) return false;
    return (s.Outs == 0 && s.basesEmpty) || s.HalfInningRuns == 0;
}

bool KnockedAbout(const SubsSituation& s) {
    return (s.pitchersUsed > 1 && s.R >= 3 && s.IPOuts < 4) || (s.R >= 4 && s.IPOuts < 6) ||
           (s.R >= 5 && s.IPOuts < 9) || s.R >= 6;
}

PitchingMove WhenKnockedAbout(const SubsSituation& s, int usage, int r) {
    if (s.pitchersUsed >= 6 && s.pitchersUsed <= 9) Scale(r, kNone - 100 * (s.pitchersUsed - 5));  // the pen runs short
    ScaleForFatigue(s, usage, r, kTiredInField, kIntermediateInField);
    if (s.pitchersUsed > 1) Scale(r, {{1250, 1150, 1080}}, usage);
    return r > ByTendency{{66, 77, 88}}(usage) ? PitchingMove::Change : PitchingMove::Stay;
}

PitchingMove WhenClosing(const SubsSituation& s, int usage, int r) {
    if (s.closerIn && s.R == 0 && s.H == 0) return PitchingMove::Stay;
    if (s.R == 0) Scale(r, s.pitchersUsed == 1 && s.H == 0 ? 100 : 500);
    if (s.pitchersUsed == 1 && s.R == 0 && usage != 1) return PitchingMove::Stay;
    if (s.Outs == 0 && s.Inning == 8) Scale(r, {{600, 500, 400}}, usage);
    if (s.Outs == 0 && s.Inning == 9) Scale(r, {{1400, 1250, 1100}}, usage);
    if (s.closerIn && s.R <= 1 && s.H <= 2) {
        if (usage == 3) return PitchingMove::Stay;
        Scale(r, {{300, 175, kNone}}, usage);
    }
    ScaleForFatigue(s, usage, r, kTiredInField, kIntermediateInField);
    return r > ByTendency{{20, 40, 60}}(usage) ? PitchingMove::Closer : PitchingMove::Stay;
}

PitchingMove WhenNothingPresses(const SubsSituation& s, int usage, int r) {
    constexpr ByTendency kByRuns[6] = {{{330, 200, 100}},    {{650, 330, 200}},   {{1100, 650, 330}},
                                       {{1500, kNone, 650}}, {{1500, 1200, 900}}, {{1500, 1200, 1200}}};
    if (s.IPOuts < 18) return PitchingMove::Stay;
    Scale(r, kByRuns[std::clamp(s.R, 0, 5)], usage);
    ScaleForFatigue(s, usage, r, kTiredInField, kIntermediateInField);
    return r > ByTendency{{60, 70, 80}}(usage) ? PitchingMove::Change : PitchingMove::Stay;
}

// The situation in which a pitcher at bat is hit for sooner, 1 to 4; 0 for none. The first that fits counts.
int HittingSituation(const SubsSituation& s, int usage) {
    const bool one = s.pitchersUsed == 1, tied = s.lead == 0;
    if (s.Inning >= 6 && (s.Behind(1, 4) || (!one && tied) || (one && tied && s.R > (usage == 1 ? 2 : 3)))) return 1;
    if (s.Inning < 7) return 0;
    if (one && tied && s.R >= 2) return 2;
    if (!one && tied && s.IPOuts >= 6) return 3;
    return s.lead >= 1 && s.lead <= 2 && (!one || s.R >= 3) ? 4 : 0;
}

// What lets a pitcher bat for himself without a draw.
bool PitcherBatsOn(const SubsSituation& s) {
    const bool one = s.pitchersUsed == 1;
    return (s.IPOuts <= 15 && s.lead >= 0) || (one && s.R == 0 && s.IPOuts <= 21) ||
           (one && s.R <= 3 && s.IPOuts <= 12);
}

// What has him hit for without one.
bool PitcherIsDone(const SubsSituation& s, int usage) {
    return s.IPOuts >= 36 || (s.pitchersUsed == 1 && s.IPOuts >= 27 && usage == 1) || (s.Inning >= 8 && s.Behind(1, 4));
}

void ScaleForScore(const SubsSituation& s, int& r) {
    if (s.lead < 0) {
        Scale(r, s.Inning >= 6 || s.R >= 4 ? 1330 : 1100);
    } else if (s.lead > 0) {
        Scale(r, 670);
    }
}

}  // namespace

SubsSituation MakeSubsSituation(const GameState& state, Side side) {
    const TeamState& own = state[side];
    SubsSituation s;
    s.side = side;
    s.Inning = state.Inning;
    s.Outs = state.Outs;
    s.lead = own.Runs - state[Other(side)].Runs;
    const auto& bases = state.Batting().runner;
    s.basesEmpty = !bases[1].On() && !bases[2].On() && !bases[3].On();
    s.HalfInningRuns = state.HalfInningRuns;
    s.pitchersUsed = own.box.PitchersUsed;
    if (own.box.PitchersUsed > 0) {
        const PitchingLine& line = own.box.pitching[own.box.PitchersUsed - 1U];
        s.R = line.R, s.H = line.H, s.IPOuts = line.IPOuts, s.BF = line.BF;
    }
    s.tired = own.PitcherTired;
    s.intermediate = own.PitcherIntermediateTired;
    s.pitcherLastBatted = own.PitcherLastBattedInning;
    return s;
}

PitchingMove PitchingChange(const SubsSituation& s, int usage, int r) {
    if (!Legal(usage) || s.BF == 0 || JustLetBat(s)) return PitchingMove::Stay;
    if (OverRealUse(s))
        Scale(r, s.pitchersUsed == 1 ? ByTendency{{1500, 1300, 1200}} : ByTendency{{1750, 1600, 1400}}, usage);
    if (s.R >= 7 || s.IPOuts >= 36) return PitchingMove::Change;
    if (s.pitchersUsed == 1 && s.IPOuts >= 30) return usage == 1 ? PitchingMove::Change : PitchingMove::Stay;
    if (KnockedAbout(s)) return WhenKnockedAbout(s, usage, r);
    if (s.lead >= 1 && s.lead <= 3 && s.Inning >= 8) return WhenClosing(s, usage, r);
    return WhenNothingPresses(s, usage, r);
}

bool HitForPitcher(const SubsSituation& s, int usage, int r) {
    if (!Legal(usage) || PitcherBatsOn(s)) return false;
    if (PitcherIsDone(s, usage)) return true;
    ScaleForScore(s, r);
    if (OverRealUse(s))
        Scale(r, s.pitchersUsed == 1 ? ByTendency{{1375, 1250, 1125}} : ByTendency{{1750, 1500, 1250}}, usage);
    ScaleForFatigue(s, usage, r, {{1630, 1550, 1550}}, {{1420, 1400, 1350}});
    switch (HittingSituation(s, usage)) {
        case 1: Scale(r, {{2500, 2100, 1700}}, usage); break;
        case 2:
        case 3: Scale(r, {{1750, 1500, 1350}}, usage); break;
        case 4: Scale(r, {{1750, 1550, 1400}}, usage); break;
        default: break;
    }
    return r > ByTendency{{40, 50, 60}}(usage);
}

bool HitForBatter(const SubsSituation& s, int pinchHitting, int r) {
    if (!Legal(pinchHitting) || s.Inning < 7) return false;
    if (s.lead >= 6 || s.lead <= -6) Scale(r, 1250);
    if (s.actualUsage && s.batterAB > s.batterRealAB && s.batterRealAB < 4)
        Scale(r, {{1400, 1250, 1125}}, pinchHitting);
    if (s.topBatter) Scale(r, {{750, 625, 500}}, pinchHitting);
    return r >= ByTendency{{64, 80, 96}}(pinchHitting);
}

bool RunForRunner(const SubsSituation& s, int pinchRunning, int r) {
    if (!Legal(pinchRunning) || s.Inning < 7 || !s.Behind(1, 2)) return false;
    return r > ByTendency{{50, 65, 80}}(pinchRunning);
}

}  // namespace tarvane
