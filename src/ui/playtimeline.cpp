#include "ui/playtimeline.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarvane {

namespace {

// Seconds at the average speed. The ball flies and men run faster than in life: nobody wants to wait for a fly ball.
constexpr double kPitchSeconds = 0.4, kThrowFeetASecond = 190, kRollFeetASecond = 150, kLongestThrow = 0.9;
constexpr double kBaseSeconds = 0.75, kRest = 0.25;
constexpr double kPastFielder = 60;  // feet that a ball over his head goes on
constexpr int kPastFrom = 70;        // runner rolls above this are balls over the fielder's head
constexpr double kAtTheFence = 8;

double Along(double share) {
    return share * (2 - share);  // quick from the bat, slower at the end
}

int BaseOf(char stealTarget) {
    return stealTarget == '2' ? 2 : stealTarget == '3' ? 3 : 4;
}

}  // namespace

PlayTimeline::PlayTimeline(const PlayFacts& facts, const ParkPlan& plan, const AnimationOptions& options)
    : facts_(facts), plan_(plan), options_(options) {
    options_.GameAniSpeed2 = std::clamp(options.GameAniSpeed2, 0.1, 4.0);
    for (const Tag tag : facts.movements) MoveBall(tag);
    if (!batted_ && struck_ == 0) struck_ = std::min(clock_, kPitchSeconds);
    if (caught_ == 0) caught_ = clock_;
    seconds_ = clock_;
    if (options.BaseRunnerAnimation) Runners();
    seconds_ = (seconds_ + kRest) * options_.GameAniSpeed2;
    struck_ *= options_.GameAniSpeed2;
    caught_ *= options_.GameAniSpeed2;
}

// --- The ball --------------------------------------------------------------------------------------------------------

void PlayTimeline::BallTo(FieldPoint to, double seconds, double height) {
    ball_.legs.push_back({clock_, clock_ + seconds, ballAt_, to, height});
    clock_ += seconds;
    ballAt_ = to;
}

void PlayTimeline::Pitch(FieldPoint to) {
    if (options_.GameAnimationLite)
        ballAt_ = to;
    else
        BallTo(to, kPitchSeconds, 4);
}

void PlayTimeline::Throw(FieldPoint to) {
    if (options_.GameAnimationLite) return;
    const double feet = Feet(ballAt_, to);
    if (feet < 5) return;
    BallTo(to, std::min(kLongestThrow, 0.12 + feet / kThrowFeetASecond), 6 + feet * 0.04);
}

FieldPoint PlayTimeline::Fielder() const {
    return plan_.Fielder(facts_.fieldedBy);
}

void PlayTimeline::MoveBall(Tag tag) {
    switch (tag) {
        case Tag::PitcherThrow: break;  // the batted ball brings its own
        case Tag::PitcherToCatcher:
            if (facts_.result == Result::PK)
                Throw(ParkPlan::Base(BaseOf(facts_.stealTarget) - 1));
            else
                Pitch(plan_.Fielder(Position::C));
            break;
        case Tag::HBP: Pitch(ParkPlan::Batter(facts_.batsLeft)); break;
        case Tag::WPOrPB:
            Pitch(plan_.Fielder(Position::C));
            BallTo({-14, -34}, 0.5, 2);
            break;
        case Tag::MDPlay: Decision(); break;
        case Tag::SBSafe:
        case Tag::SBSafeError:
        case Tag::SBError:
        case Tag::SBOut: Steal(tag); break;
        default: Batted(tag);
    }
}

void PlayTimeline::Batted(Tag tag) {
    Pitch({});
    batted_ = true;
    struck_ = clock_;
    switch (tag) {
        case Tag::BuntFoul: BallTo({-30, 14}, 0.5, 3); break;
        case Tag::FlyOut:
        case Tag::HomeRun:
        case Tag::ExtraBaseHit:
        case Tag::BatterErrorFly:
        case Tag::BatterErrorFly2:
        case Tag::BatterErrorFly3:
        case Tag::BatterErrorFlyD: Fly(tag); break;
        default: Grounder(tag);
    }
}

void PlayTimeline::FielderTo(FieldPoint place, double begin, double end) {
    if (options_.GameAnimationLite || !IsFielder(facts_.fieldedBy)) return;
    const auto man = static_cast<std::size_t>(ScorerNumber(facts_.fieldedBy) - 1);
    men_[man].legs.push_back({begin, end, Fielder(), place, 0});
}

// Along the ground: to the fielder, or through him on an error, and from there where the play is made.
void PlayTimeline::Grounder(Tag tag) {
    const FieldPoint fielder = Fielder();
    const bool bunt = tag == Tag::BuntGroundOut || tag == Tag::BuntSingle || Feet({}, fielder) < 30;
    const bool outfield = IsOutfielder(facts_.fieldedBy);
    const bool error = tag == Tag::BatterErrorGround || tag == Tag::BatterErrorGround2;
    const FieldPoint spot = bunt ? Between({}, ParkPlan::kMound, 0.4) : fielder;
    BallTo(spot, bunt ? 0.6 : std::max(0.55, Feet({}, spot) / kRollFeetASecond), outfield ? 9 : 2);
    if (bunt) FielderTo(spot, struck_, clock_);
    caught_ = clock_;
    if (error) BallTo(Between({}, spot, tag == Tag::BatterErrorGround2 ? 1.45 : 1.2), 0.4, 1);
    if (tag == Tag::PlayAtHome) return Throw({});
    if (tag == Tag::PlayAtSecond || tag == Tag::DoublePlay || outfield) Throw(ParkPlan::Base(2));
    if (tag == Tag::DoublePlay || tag == Tag::GroundOut) Throw(ParkPlan::Base(1));
}

// Where a long ball comes down: over the fence, or past the fielder but not through it.
FieldPoint PlayTimeline::LongBall() const {
    const FieldPoint fielder = Fielder();
    double degrees = std::atan2(fielder.x, std::max(1.0, fielder.y)) * 180 / std::numbers::pi;
    if (facts_.nearLine) degrees = fielder.x < 0 ? -43.5 : 43.5;
    if (facts_.result == Result::HR) return plan_.FencePoint(degrees, 28);
    const bool past = facts_.result == Result::Triple || facts_.RunnerRoll > kPastFrom;
    const double beyond = Feet({}, fielder) + (past ? kPastFielder : 0) - plan_.Fence(degrees);
    return plan_.FencePoint(degrees, std::min(beyond, -kAtTheFence));
}

void PlayTimeline::Fly(Tag tag) {
    const FieldPoint fielder = Fielder();
    const bool hit = tag == Tag::HomeRun || tag == Tag::ExtraBaseHit;
    const FieldPoint spot = hit ? LongBall() : fielder;
    const bool outfield = Feet({}, spot) > 180;
    if (tag == Tag::ExtraBaseHit)
        BallTo(spot, 1.5, 38);
    else
        BallTo(spot, outfield ? 1.7 : 1.3, tag == Tag::HomeRun ? 95 : outfield ? 85 : 70);
    caught_ = clock_;
    caughtInAir_ = tag == Tag::FlyOut;
    if (hit) FielderTo(Between(fielder, spot, tag == Tag::HomeRun ? 0.6 : 1), struck_, clock_);
    if (tag == Tag::HomeRun || tag == Tag::FlyOut) return;
    if (tag == Tag::BatterErrorFly2) BallTo(Between({}, spot, 1.08), 0.4, 2);
    if (tag == Tag::BatterErrorFly3) BallTo(Between({}, spot, 1.18), 0.6, 2);
    Throw(ParkPlan::Base(2));
}

// The throw that a runner tries to beat. Who has gone farthest was worth it.
void PlayTimeline::Decision() {
    int target = 2;
    for (const PlayFacts::Man& man : facts_.man) {
        if (man.slot == 0 || man.from == man.to) continue;
        const int to = man.to == PlayFacts::kOut ? std::min(4, man.from + 1) : man.to;
        target = std::max(target, to);
    }
    ballAt_ = Fielder();
    struck_ = clock_;
    const double feet = Feet(ballAt_, ParkPlan::Base(target));
    BallTo(ParkPlan::Base(target), std::max(kBaseSeconds, 0.2 + feet / kThrowFeetASecond), 10);
    caught_ = clock_;
}

void PlayTimeline::Steal(Tag tag) {
    Pitch(plan_.Fielder(Position::C));
    struck_ = clock_;
    const FieldPoint bag = ParkPlan::Base(BaseOf(facts_.stealTarget));
    if (facts_.stealTarget != 'H') BallTo(bag, 0.2 + Feet(ballAt_, bag) / kThrowFeetASecond, 7);
    caught_ = clock_;
    if (tag == Tag::SBError || tag == Tag::SBSafeError) BallTo({bag.x * 1.5, bag.y + 45}, 0.5, 3);
}

// --- The men ---------------------------------------------------------------------------------------------------------

void PlayTimeline::Run(std::size_t man, const PlayFacts::Man& runner, double begin) {
    const bool out = runner.to == PlayFacts::kOut || (man == kBatterMan && batted_ && runner.to == PlayFacts::kAtBat);
    // A man who is out has run for the next base; a batter whose fly is caught turns back half way.
    const int to = out ? std::min(4, runner.from + 1) : runner.to;
    const double base = options_.GameAnimationLite ? kBaseSeconds / 2 : kBaseSeconds;
    Track& track = men_[man];
    double clock = begin;
    FieldPoint at = runner.from == 0 ? ParkPlan::Batter(facts_.batsLeft) : ParkPlan::Base(runner.from);
    for (int next = runner.from + 1; next <= to; ++next) {
        const FieldPoint bag = ParkPlan::Base(next);
        const bool turnsBack = out && caughtInAir_;
        const FieldPoint there = turnsBack ? Between(at, bag, 0.5) : bag;
        track.legs.push_back({clock, clock + base, at, there, 0});
        clock += base;
        at = there;
    }
    if (track.legs.empty()) track.legs.push_back({begin, begin, at, at, 0});
    if (out || runner.to == PlayFacts::kHome) track.gone = std::max(clock, out ? caught_ : clock);
    seconds_ = std::max({seconds_, clock, track.gone.value_or(0)});
}

void PlayTimeline::Runners() {
    for (std::size_t i = 0; i < facts_.man.size(); ++i) {
        const PlayFacts::Man& man = facts_.man[i];
        if (man.slot == 0) continue;
        const bool batter = i == 0;
        // On a ball in the air runners wait for the catch; on a steal they go with the pitch.
        const bool goesWithPitch = !batted_ && !facts_.Has(Tag::MDPlay);
        const double begin = caughtInAir_ && !batter ? caught_ : goesWithPitch && !batter ? 0 : struck_;
        Run(batter ? kBatterMan : kFirstRunnerMan + i - 1, man, begin);
    }
}

// --- Reading it ------------------------------------------------------------------------------------------------------

FieldPoint PlayTimeline::Place(const Track& track, double seconds, double* height) {
    FieldPoint place = track.legs.front().from;
    for (const Leg& leg : track.legs) {
        if (seconds < leg.begin) break;
        const double length = leg.end - leg.begin;
        const double share = length <= 0 ? 1 : std::min(1.0, (seconds - leg.begin) / length);
        place = Between(leg.from, leg.to, height != nullptr ? Along(share) : share);
        if (height != nullptr) *height = share >= 1 ? 0 : leg.height * 4 * share * (1 - share);
    }
    return place;
}

FieldMoment PlayTimeline::At(double seconds) const {
    FieldMoment moment;
    const double time = seconds / options_.GameAniSpeed2;
    if (!ball_.legs.empty()) moment.ball = Place(ball_, time, &moment.ballHeight);
    for (std::size_t man = 0; man < kMenOnField; ++man) {
        if (!men_[man].legs.empty()) moment.man[man] = Place(men_[man], time, nullptr);
        moment.gone[man] = men_[man].gone && time >= *men_[man].gone;
    }
    return moment;
}

}  // namespace tarvane
