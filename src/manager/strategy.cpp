#include "manager/strategy.h"

#include "base/rounding.h"

namespace tarvane {

namespace {

bool KnownTendency(int tendency) {
    return tendency >= 1 && tendency <= 3;
}

void ScaleIf(bool holds, int& r, int permille) {
    if (holds) r = ScalePermille(r, permille);
}

// A lead that no risk improves: the offence stands still.
bool SafelyAhead(const StrategySituation& s) {
    return s.lead > 4 || (s.Inning >= 8 && s.lead > 3);
}

bool BuntGate(const StrategySituation& s, int bunting) {
    if (!KnownTendency(bunting) || s.Outs >= 2 || (bunting == 3 && s.Outs == 1)) return false;
    if ((s.Inning >= 5 && s.lead <= -4) || SafelyAhead(s)) return false;
    // The home team's winning or tying run on third in the last inning is not bunted in.
    return !(s.side == Side::Home && s.Inning >= 9 && s.on3 && s.lead >= -1);
}

// Bounds for the bunt ratings A and B by tendency; other ratings never bunt.
using BuntBounds = int[3][2];
constexpr BuntBounds kSqueezeBounds = {{80, 90}, {86, 94}, {95, 98}};
constexpr BuntBounds kSacrificeBounds = {{70, 85}, {80, 90}, {88, 96}};
constexpr BuntBounds kFurtherBounds = {{85, 94}, {94, 98}, {100, 100}};

bool PassesBunt(const BuntBounds& bounds, char rating, int bunting, int r) {
    if (rating != 'A' && rating != 'B') return false;
    return r > bounds[bunting - 1][rating == 'A' ? 0 : 1];
}

bool Squeeze(const StrategySituation& s, int bunting, int r) {
    ScaleIf(s.Inning >= 7, r, 1150);
    ScaleIf(s.pitcherBats, r, 1300);
    ScaleIf(s.batterSlot >= 3 && s.batterSlot <= 5, r, 670);
    ScaleIf(s.Inning >= 6 && s.lead <= -3, r, 400);
    ScaleIf(s.Inning >= 9 && s.lead <= -2, r, 670);
    ScaleIf(s.BuntTriedThisAtBat, r, 500);
    return PassesBunt(kSqueezeBounds, s.BuntRating, bunting, r);
}

// The run that ties or wins the game stands on second in the ninth: an out is too dear for a base.
bool LateRunOnSecond(const StrategySituation& s) {
    return s.Inning >= 9 && (s.lead == 0 || s.lead == -1) && s.on2;
}

bool Sacrifice(const StrategySituation& s, int bunting, int r) {
    ScaleIf(s.Inning >= 7, r, 1250);
    ScaleIf(s.pitcherBats, r, 1500);
    ScaleIf(s.batterSlot >= 3 && s.batterSlot <= 5, r, 670);
    ScaleIf(s.Inning >= 6 && s.lead <= -3, r, 400);
    ScaleIf(LateRunOnSecond(s), r, 330);
    ScaleIf(s.Inning >= 9 && s.lead <= -2, r, 670);
    ScaleIf(s.BuntTriedThisAtBat, r, 500);
    ScaleIf(s.Outs == 1, r, bunting == 1 ? 850 : 660);
    return PassesBunt(kSacrificeBounds, s.BuntRating, bunting, r);
}

struct StealBound {
    int rating, draw;
};

// Steal of third and of second by tendency: go with at least this rating and a draw above this, tried from the left.
// A rating of 6 is nobody's.
constexpr StealBound kStealBounds[2][3][4] = {
    {{{4, 71}, {3, 84}, {2, 92}, {1, 97}}, {{5, 71}, {4, 84}, {3, 92}, {2, 97}}, {{5, 84}, {4, 92}, {3, 97}, {6, 100}}},
    {{{4, 62}, {3, 73}, {2, 85}, {1, 97}}, {{5, 62}, {4, 73}, {3, 85}, {2, 97}}, {{5, 73}, {4, 85}, {3, 97}, {6, 100}}},
};

bool PassesSteal(const StealBound (&bounds)[4], int rating, int r) {
    for (const StealBound& bound : bounds)
        if (rating >= bound.rating && r > bound.draw) return true;
    return false;
}

void ScaleSteal(const StrategySituation& s, int& r) {
    ScaleIf(s.Inning >= 7, r, 1250);
    ScaleIf(s.batterSlot == 4, r, 750);
    ScaleIf(s.Inning >= 6 && s.lead <= -3, r, s.side == Side::Visitor ? 500 : 400);
}

bool StealHome(const StrategySituation& s, int baseStealing, int r) {
    if (baseStealing == 1) return s.runRating[3] >= 4 && r > 92;
    return baseStealing == 2 && s.runRating[3] == 5 && r > 96;
}

// --- the extra base ---

enum class Trigger { OnePlus, One, Two, SF, F, None };

Trigger TriggerOf(Result result) {
    switch (result) {
        case Result::SinglePlusDecision: return Trigger::OnePlus;
        case Result::SingleDecision:
        case Result::E: return Trigger::One;
        case Result::DoubleDecision: return Trigger::Two;
        case Result::SFDecision: return Trigger::SF;
        case Result::FDecision: return Trigger::F;
        default: return Trigger::None;
    }
}

int RatingOfRunner(const StrategySituation& s, Trigger trigger, ExtraBaseCase extraBase) {
    if (trigger == Trigger::F) return s.runRating[3];
    const bool cased = trigger == Trigger::One || trigger == Trigger::SF;
    return s.runRating[cased && extraBase != ExtraBaseCase::First ? 2 : 1];
}

// With two out these three runners gain little and are sent less.
bool LittleToGain(Trigger trigger, ExtraBaseCase extraBase) {
    return trigger == Trigger::OnePlus || (trigger == Trigger::One && extraBase == ExtraBaseCase::First) ||
           (trigger == Trigger::SF && extraBase == ExtraBaseCase::Both);
}

// The bound that the draw must pass, for run ratings 1 to 5.
using ExtraBounds = int[5];
constexpr ExtraBounds kBoldRunning = {80, 65, 50, 35, 35}, kAverageRunning = {94, 78, 65, 50, 35};
constexpr ExtraBounds kCautiousFly = {99, 95, 80, 65, 50}, kCautious = {95, 90, 80, 65, 50},
                      kCautiousHome = {99, 95, 84, 65, 50};

// The two teams' cautious managers differ: the visitors fear the throw home on a fly, the home team that on a single.
const ExtraBounds& BoundsOf(const StrategySituation& s, Trigger trigger, int baseRunning) {
    if (baseRunning == 1) return kBoldRunning;
    if (baseRunning == 2) return kAverageRunning;
    if (s.side == Side::Visitor) return trigger == Trigger::F ? kCautiousFly : kCautious;
    return trigger == Trigger::OnePlus || trigger == Trigger::One ? kCautiousHome : kCautious;
}

}  // namespace

int StealRating(int runRating, bool catcherI, bool catcherO) {
    if (runRating != 0 && catcherI) return runRating - 1;
    return runRating != 5 && catcherO ? runRating + 1 : runRating;
}

StrategySituation MakeStrategySituation(const GameState& state, Side side, const LeagueRules& rules) {
    const TeamState& batting = state.Batting();
    const TeamState& fielding = state.Fielding();
    StrategySituation s;
    s.side = side;
    s.Inning = state.Inning;
    s.Outs = state.Outs;
    s.lead = state[side].Runs - state[Other(side)].Runs;
    s.on1 = batting.runner[1].On();
    s.on2 = batting.runner[2].On();
    s.on3 = batting.runner[3].On();
    s.batterSlot = batting.BatterSlot;
    s.pitcherBats = state.AtBat().position == Position::P;
    s.BuntRating = state.AtBat().BuntRating;
    s.BuntTriedThisAtBat = state.play.BuntTriedThisAtBat;
    for (std::size_t base = 1; base <= 3; ++base) {
        if (!batting.runner[base].On()) continue;
        s.runRating[base] = batting.lineup[batting.runner[base].slot - 1U].runRating;
        s.stealRating[base] =
            StealRating(s.runRating[base], fielding.CatcherIRated, rules.CatcherORating && fielding.CatcherORated);
    }
    return s;
}

BuntType BuntDecision(const StrategySituation& s, int bunting, int r) {
    if (!BuntGate(s, bunting)) return BuntType::None;
    if (s.on3 && !s.Bases(true, false, true)) return Squeeze(s, bunting, r) ? BuntType::Squeeze : BuntType::None;
    if (!s.on1 && !s.on2) return BuntType::None;
    return Sacrifice(s, bunting, r) ? BuntType::Sacrifice : BuntType::None;
}

bool FurtherBuntDecision(const StrategySituation& s, int bunting, int r) {
    if (!BuntGate(s, bunting)) return false;
    ScaleIf(s.BuntTriedThisAtBat, r, 500);
    return PassesBunt(kFurtherBounds, s.BuntRating, bunting, r);
}

char StealDecision(const StrategySituation& s, int baseStealing, int home, int other) {
    if (!KnownTendency(baseStealing) || SafelyAhead(s)) return ' ';
    const auto& third = kStealBounds[0][baseStealing - 1];
    const auto& second = kStealBounds[1][baseStealing - 1];
    if (s.on3 && !s.Bases(true, false, true)) return StealHome(s, baseStealing, home) ? 'H' : ' ';
    ScaleSteal(s, other);
    if (s.on2) {
        ScaleIf(LateRunOnSecond(s), other, 330);
        return PassesSteal(third, s.stealRating[2], other) ? '3' : ' ';
    }
    return s.on1 && PassesSteal(second, s.stealRating[1], other) ? '2' : ' ';
}

bool ExtraBaseDecision(const StrategySituation& s, Result result, ExtraBaseCase extraBase, int baseRunning, int r) {
    const Trigger trigger = TriggerOf(result);
    if (trigger == Trigger::None || !KnownTendency(baseRunning) || SafelyAhead(s)) return false;
    if (baseRunning != 1 && s.Inning >= 8 && s.lead < -4) return false;
    // The visitors hold a man a little more with two out late in the game.
    ScaleIf(s.Inning >= 7 && (s.side == Side::Home || s.Outs < 2), r, 1250);
    if (s.Outs == 2 && LittleToGain(trigger, extraBase)) {
        if (baseRunning == 3) return false;
        ScaleIf(true, r, baseRunning == 1 ? 850 : 700);
    }
    const int rating = RatingOfRunner(s, trigger, extraBase);
    return rating >= 1 && rating <= 5 && r > BoundsOf(s, trigger, baseRunning)[rating - 1];
}

bool GiveUpRun(const StrategySituation& s, int r) {
    ScaleIf(s.Inning >= 5 && (s.lead >= 5 || s.lead <= -5), r, 1500);
    return r > 90;
}

}  // namespace tarvane
