#include <algorithm>

#include "sample/chance.h"
#include "sample/game.h"

// Balls in play that a fielder should turn into an out: who gets to them, and what becomes of them.
namespace tarvane::sample {
namespace {

// Of balls that become outs: who gets them, by hand of the batter (right, left), from P to RF.
constexpr std::array<double, kSpots> kGroundRight{14, 2, 9, 19, 27, 31, 0, 0, 0};
constexpr std::array<double, kSpots> kGroundLeft{14, 2, 18, 33, 14, 20, 0, 0, 0};
constexpr std::array<double, kSpots> kFlyRight{2, 4, 4, 11, 7, 10, 21, 25, 16};
constexpr std::array<double, kSpots> kFlyLeft{2, 4, 5, 12, 5, 9, 17, 25, 21};
// How often each errs on a ground ball that should be an out, and on a ball in the air.
constexpr std::array<double, kSpots> kGroundError{0.075, 0.15, 0.055, 0.038, 0.062, 0.058, 0, 0, 0};
constexpr std::array<double, kSpots> kFlyError{0.03, 0.04, 0.012, 0.012, 0.015, 0.012, 0.014, 0.010, 0.014};

}  // namespace

// Who gets to the ball: a man with range takes some of his neighbours'.
Spot Game::FielderOf(bool grounder) {
    const Player& batter = Batter();
    const bool left = batter.bats == 'L' || (batter.bats == 'B' && Pitcher().throws == 'R');
    const auto& share = grounder ? (left ? kGroundLeft : kGroundRight) : (left ? kFlyLeft : kFlyRight);
    std::array<double, kSpots> weight{};
    double total = 0;
    for (const Spot spot : kFieldSpots) {
        const double range = FieldMan(spot).bat.range * (FieldMan(spot).CanPlay(spot) ? 1.0 : 0.8);
        total += weight[Index(spot)] = share[Index(spot)] * range;
    }
    double draw = Uniform(random_) * total;
    for (const Spot spot : kFieldSpots) {
        draw -= weight[Index(spot)];
        if (draw < 0) return spot;
    }
    return Spot::SS;
}

void Game::BallInPlay() {
    const bool grounder = Happens(random_, std::min(0.7, 0.49 * Batter().bat.grounder * Pitcher().pitch.grounder));
    const Spot where = FielderOf(grounder);
    const Player& man = FieldMan(where);
    const double strange = man.CanPlay(where) ? 1.0 : 1.6;
    if (Happens(random_, (grounder ? kGroundError : kFlyError)[Index(where)] * man.bat.hands * strange)) {
        ReachOnError(where, grounder);
    } else if (grounder) {
        GroundOut(where);
    } else {
        FlyOut(where);
    }
}

void Game::ReachOnError(Spot where, bool grounder) {
    ++BatLine().AB;
    ++Glove(where).E;
    ++lostOuts_;
    AdvanceAll(false, false);
    const std::size_t base = Happens(random_, grounder ? 0.15 : 0.5) ? 1 : 0;
    if (base == 1) {
        if (bases_[2].on && bases_[1].on) Score(bases_[2], false);
        if (bases_[1].on) bases_[2] = bases_[1];
    }
    bases_[base] = BatterAsRunner();
    bases_[base].unearned = true;
}

void Game::GroundOut(Spot where) {
    ++BatLine().AB;
    if (bases_[0].on && outs_ < 2 && where != Spot::C) {
        if (Happens(random_, 0.44 * (1.2 - 0.4 * Batter().bat.speed))) {
            DoublePlay(where);
            return;
        }
        if (Happens(random_, 0.45)) {
            ForceAtSecond(where);
            return;
        }
    } else if (bases_[0].on && outs_ == 2 && Happens(random_, 0.25)) {
        ForceAtSecond(where);
        return;
    }
    OutAtFirst(where);
}

void Game::DoublePlay(Spot where) {
    ++BatLine().GIDP;
    ++PitchLine().GIDP;
    const Spot pivot = where == Spot::B2 || where == Spot::B1 ? Spot::SS : Spot::B2;
    Assist(where);
    RecordOut(pivot);
    Assist(pivot);
    const Spot first = where == Spot::B1 ? Spot::P : Spot::B1;
    RecordOut(where == Spot::B1 && Happens(random_, 0.7) ? Spot::B1 : first);
    CountDoublePlay({where, pivot});
    if (where != Spot::B1) ++Glove(Spot::B1).DP;
    bases_[0] = {};
    if (outs_ == 3) return;
    if (bases_[2].on) Score(bases_[2], false);
    bases_[2] = bases_[1];
    bases_[1] = {};
}

void Game::ForceAtSecond(Spot where) {
    Assist(where);
    RecordOut(where == Spot::B2 || where == Spot::B1 ? Spot::SS : Spot::B2);
    bases_[0] = {};
    if (outs_ == 3) return;
    if (bases_[2].on) Score(bases_[2], true);
    bases_[2] = bases_[1];
    bases_[1] = {};
    bases_[0] = BatterAsRunner();
}

void Game::OutAtFirst(Spot where) {
    if (where == Spot::B1) {
        if (Happens(random_, 0.4)) {
            Assist(Spot::B1);
            RecordOut(Spot::P);
        } else {
            RecordOut(Spot::B1);
        }
    } else {
        Assist(where);
        RecordOut(Spot::B1);
    }
    if (outs_ == 3) return;
    if (bases_[2].on && Happens(random_, bases_[0].on && bases_[1].on ? 1.0 : 0.58)) {
        Score(bases_[2], true);
        bases_[2] = {};
    }
    if (bases_[1].on && !bases_[2].on && (bases_[0].on || Happens(random_, 0.6))) {
        bases_[2] = bases_[1];
        bases_[1] = {};
    }
    if (bases_[0].on && !bases_[1].on) {
        bases_[1] = bases_[0];
        bases_[0] = {};
    }
}

void Game::FlyOut(Spot where) {
    const bool deep = IsOutfield(where) && outs_ < 2;
    if (deep && bases_[2].on && Happens(random_, 0.72)) {
        RecordOut(where);
        if (Happens(random_, 0.06 * FieldMan(where).bat.arm)) {  // thrown out at home
            ++BatLine().AB;
            Assist(where);
            RecordOut(Spot::C);
            CountDoublePlay({where, Spot::C});
        } else {
            ++BatLine().SF;
            ++PitchLine().SF;
            Score(bases_[2], true);
        }
        bases_[2] = {};
        return;
    }
    ++BatLine().AB;
    RecordOut(where);
    if (outs_ == 3) return;
    if (deep && bases_[1].on && !bases_[2].on && Happens(random_, 0.2)) {
        bases_[2] = bases_[1];
        bases_[1] = {};
    } else if (!IsOutfield(where) && bases_[0].on && Happens(random_, 0.19)) {  // a liner, and the runner was off
        if (where != Spot::B1) Assist(where);
        RecordOut(Spot::B1);
        CountDoublePlay({where});
        if (where != Spot::B1) ++Glove(Spot::B1).DP;
        bases_[0] = {};
    }
}

}  // namespace tarvane::sample
