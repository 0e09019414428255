#include <algorithm>

#include "sample/chance.h"
#include "sample/game.h"

namespace tarvane::sample {
namespace {

// The league's chances of a turn at bat that ends with a swing, for the average regular against the average pitcher.
constexpr double kWalk = 0.0715, kHitBatsman = 0.0053, kStrikeout = 0.117, kSingle = 0.1755, kDouble = 0.0372,
                 kTriple = 0.0062, kHomer = 0.0178;
constexpr double kInPlayOut = 1 - kWalk - kHitBatsman - kStrikeout - kSingle - kDouble - kTriple - kHomer;
constexpr double kHomeEdge = 1.015;  // the home team hits a little better

}  // namespace

Game::Runner Game::BatterAsRunner() const {
    Runner runner;
    runner.on = true;
    runner.man = BatterMan();
    runner.outing = Fielding().outings.size() - 1;
    return runner;
}

void Game::TurnAtBat() {
    if (AnyoneOn()) {
        if (TrySteal() && outs_ == 3) return;
        LoosePitch();
        if (WalkedOff()) return;
    }
    ++OnMound().batters;
    if (TryBunt())
        Bunt();
    else if (WalkOnPurpose()) {
        ++BatLine().IBB;
        ++PitchLine().IBB;
        Walk();
    } else
        Swing();
    Batting().next = (Batting().next + 1) % 9;
}

void Game::Score(const Runner& runner, bool rbi) {
    Outing& answers = Fielding().outings[runner.outing];
    MadePitching& line = At(answers.man).Now().pitch;
    ++At(runner.man).Now().bat.R;
    ++answers.R;
    ++line.R;
    if (!runner.unearned && outs_ + lostOuts_ < 3) ++line.ER;
    if (rbi) ++BatLine().RBI;
    ++Batting().runs;
    const int lead = Lead(batting_);
    if (lead == 0) record_.set = false;
    if (lead == 1) record_ = {batting_, Batting().outings.size() - 1, runner.outing, true};
}

void Game::RecordOut(Spot putOutBy) {
    ++outs_;
    ++OnMound().outs;
    ++Glove(putOutBy).PO;
    for (const Spot spot : kFieldSpots) ++Glove(spot).InnOuts;
}

void Game::Assist(Spot spot) {
    ++Glove(spot).A;
}

void Game::CountDoublePlay(std::initializer_list<Spot> spots) {
    ++league_.clubs[Fielding().club].doublePlays;
    for (const Spot spot : spots) ++Glove(spot).DP;
}

bool Game::TrySteal() {
    if (!bases_[0].on || bases_[1].on || (bases_[2].on && Happens(random_, 0.7))) {
        const bool third = bases_[1].on && !bases_[2].on && outs_ < 2;
        if (!third || !Happens(random_, 0.08 * At(bases_[1].man).bat.stealWill)) return false;
        const bool safe = Happens(random_, 0.50 + 0.30 * At(bases_[1].man).bat.speed);
        MadeBatting& line = At(bases_[1].man).Now().bat;
        ++(safe ? line.SB : line.CS);
        ++(safe ? Glove(Spot::C).SB : Glove(Spot::C).CS);
        if (safe) {
            bases_[2] = bases_[1];
        } else {
            Assist(Spot::C);
            RecordOut(Spot::B3);
        }
        bases_[1] = {};
        return true;
    }
    const Player& runner = At(bases_[0].man);
    const double will = runner.bat.stealWill * (Lead(batting_) < -4 || Lead(batting_) > 5 ? 0.3 : 1.0);
    if (!Happens(random_, will)) return false;
    StealSecond(
        Happens(random_, std::min(0.92, (0.36 + 0.41 * runner.bat.speed) / (0.6 + 0.4 * FieldMan(Spot::C).bat.arm))));
    return true;
}

void Game::StealSecond(bool safe) {
    MadeBatting& line = At(bases_[0].man).Now().bat;
    const Spot cover = Happens(random_, 0.5) ? Spot::B2 : Spot::SS;
    if (safe) {
        ++line.SB;
        ++Glove(Spot::C).SB;
        bases_[1] = bases_[0];
        if (!bases_[2].on && Happens(random_, 0.09)) {
            ++Glove(Spot::C).E;
            bases_[2] = bases_[1];
            bases_[1] = {};
        }
    } else {
        ++line.CS;
        ++Glove(Spot::C).CS;
        Assist(Spot::C);
        RecordOut(cover);
    }
    bases_[0] = {};
}

// A wild pitch, a passed ball or a balk moves everybody up.
void Game::LoosePitch() {
    const double draw = Uniform(random_);
    const double wild = 0.0155 * Pitcher().pitch.walk;
    const double passed = 0.0055 * (FieldMan(Spot::C).CanPlay(Spot::C) ? FieldMan(Spot::C).bat.hands : 3.0);
    if (draw >= wild + passed + 0.0026) return;
    bool earned = true;
    if (draw < wild) {
        ++PitchLine().WP;
    } else if (draw < wild + passed) {
        ++Glove(Spot::C).PB;
        earned = false;
    } else {
        ++PitchLine().BK;
    }
    AdvanceAll(false, earned);
}

void Game::AdvanceAll(bool rbi, bool earned) {
    for (Runner& runner : bases_)
        if (!earned) runner.unearned = true;
    if (bases_[2].on) Score(bases_[2], rbi);
    bases_[2] = bases_[1];
    bases_[1] = bases_[0];
    bases_[0] = {};
}

bool Game::TryBunt() {
    const bool pitcher = Batter().role != Role::Batter;
    const int lead = Lead(batting_);
    if (bases_[2].on || (!bases_[0].on && !bases_[1].on) || outs_ > (pitcher ? 1 : 0) || lead < -3 || lead > 4)
        return false;
    const double will = pitcher ? 0.80 : Batter().bat.value < 0.95 ? 0.38 : Batter().bat.value < 1.05 ? 0.20 : 0.04;
    return Happens(random_, bases_[0].on ? will : will * 0.3);
}

void Game::Bunt() {
    const double draw = Uniform(random_);
    const double side = Uniform(random_);
    const Spot where = side < 0.42 ? Spot::P : side < 0.65 ? Spot::B3 : side < 0.86 ? Spot::B1 : Spot::C;
    const Spot first = where == Spot::B1 ? Spot::B2 : Spot::B1;
    if (draw < 0.78) {
        ++BatLine().SH;
        ++PitchLine().SH;
        Assist(where);
        RecordOut(first);
        if (outs_ < 3) AdvanceAll(false, true);
        return;
    }
    if (draw < 0.83 && Batter().role == Role::Batter) {
        Hit(1);
        return;
    }
    ++BatLine().AB;
    if (draw < 0.90) {
        RecordOut(where);  // popped up
        return;
    }
    // The lead runner is forced or tagged.
    const std::size_t from = bases_[1].on ? 1 : 0;
    Assist(where);
    RecordOut(from == 1 ? (where == Spot::B3 ? Spot::SS : Spot::B3) : Spot::SS);
    bases_[from] = {};
    if (outs_ == 3) return;
    if (from == 1 && bases_[0].on) bases_[1] = bases_[0];
    bases_[0] = BatterAsRunner();
}

bool Game::WalkOnPurpose() const {
    const int lead = Lead(batting_);
    if (bases_[0].on || !(bases_[1].on || bases_[2].on) || inning_ < 4 || lead < -2 || lead > 3) return false;
    const GameSide& side = Batting();
    const Player& after = At(side.order[static_cast<std::size_t>((side.next + 1) % 9)]);
    const double gap = Batter().bat.value - after.bat.value;
    if (Batter().role != Role::Batter || gap < 0.04) return false;
    return Happens(random_, after.role != Role::Batter ? 0.38 : gap > 0.25 ? 0.45 : 0.26);
}

void Game::Swing() {
    const BatterTalent& bat = Batter().bat;
    const PitcherTalent& pitch = Pitcher().pitch;
    const Outing& mound = OnMound();
    // A man past his limit is hit harder.
    const double tired = mound.batters > mound.limit ? 1.05 : 1.0;
    const double edge = (batting_ == 1 ? kHomeEdge : 1.0) * tired;
    const std::array<double, 8> weight{
        kWalk * bat.walk * pitch.walk * tired,        kHitBatsman * bat.hitByPitch,
        kStrikeout * bat.strikeout * pitch.strikeout, kSingle * bat.single * pitch.hit * edge,
        kDouble * bat.twoBase * pitch.hit * edge,     kTriple * bat.threeBase * pitch.hit,
        kHomer * bat.homer * pitch.homer * edge,      kInPlayOut};
    double total = 0;
    for (const double w : weight) total += w;
    double draw = Uniform(random_) * total;
    std::size_t outcome = 0;
    while (outcome < 7 && (draw -= weight[outcome]) >= 0) ++outcome;
    switch (outcome) {
        case 0: Walk(); break;
        case 1:
            ++BatLine().HBP;
            ++PitchLine().HBP;
            TakeFirst();
            break;
        case 2: Strikeout(); break;
        case 3:
        case 4:
        case 5:
        case 6: Hit(static_cast<int>(outcome) - 2); break;
        default: BallInPlay(); break;
    }
}

void Game::Walk() {
    ++BatLine().BB;
    ++PitchLine().BB;
    TakeFirst();
}

void Game::TakeFirst() {
    if (bases_[0].on) {
        if (bases_[1].on) {
            if (bases_[2].on) Score(bases_[2], true);
            bases_[2] = bases_[1];
        }
        bases_[1] = bases_[0];
    }
    bases_[0] = BatterAsRunner();
}

void Game::Strikeout() {
    ++BatLine().AB;
    ++BatLine().SO;
    ++PitchLine().SO;
    if (Happens(random_, 0.015)) {  // dropped, and thrown to first
        Assist(Spot::C);
        RecordOut(Spot::B1);
    } else {
        RecordOut(Spot::C);
    }
}

void Game::Hit(int bases) {
    MadeBatting& line = BatLine();
    ++line.AB;
    ++line.H;
    ++PitchLine().H;
    const std::array<Runner, 3> before = bases_;
    bases_ = {};
    if (bases == 1) {
        RunOnSingle(before);
        return;
    }
    if (bases == 2) ++line.Doubles;
    if (bases == 3) ++line.Triples;
    if (bases == 4) {
        ++line.HR;
        ++PitchLine().HR;
    }
    if (before[2].on) Score(before[2], true);
    if (before[1].on && (bases == 4 || !WalkedOff())) Score(before[1], true);
    if (before[0].on) {
        const double home = 0.28 + 0.25 * At(before[0].man).bat.speed + (outs_ == 2 ? 0.2 : 0);
        if (bases > 2 || Happens(random_, home)) {
            if (bases == 4 || !WalkedOff()) Score(before[0], true);
        } else {
            bases_[2] = before[0];
        }
    }
    if (bases == 4)
        Score(BatterAsRunner(), true);
    else
        bases_[static_cast<std::size_t>(bases) - 1] = BatterAsRunner();
}

void Game::RunOnSingle(const std::array<Runner, 3>& before) {
    const Spot outfielder = Happens(random_, 0.36) ? Spot::CF : Happens(random_, 0.5) ? Spot::LF : Spot::RF;
    if (before[2].on) Score(before[2], true);
    if (before[1].on) {
        const double home = 0.42 + 0.24 * At(before[1].man).bat.speed + (outs_ == 2 ? 0.18 : 0);
        if (!Happens(random_, home)) {
            bases_[2] = before[1];
        } else if (Happens(random_, 0.085 * FieldMan(outfielder).bat.arm)) {
            Assist(outfielder);
            RecordOut(Spot::C);
        } else if (!WalkedOff()) {
            Score(before[1], true);
        }
    }
    if (outs_ == 3) return;
    if (before[0].on) {
        const bool third = !bases_[2].on && Happens(random_, 0.14 + 0.25 * At(before[0].man).bat.speed);
        if (third && Happens(random_, 0.07)) {
            Assist(outfielder);
            RecordOut(Spot::B3);
            if (outs_ == 3) return;
        } else {
            bases_[third ? 2 : 1] = before[0];
        }
    }
    if (Happens(random_, 0.014)) {  // out trying for two
        Assist(outfielder);
        RecordOut(Spot::B2);
        return;
    }
    bases_[0] = BatterAsRunner();
    if (Happens(random_, 0.006)) {  // the throw gets away
        ++Glove(outfielder).E;
        AdvanceAll(false, false);
    }
}

}  // namespace tarvane::sample
