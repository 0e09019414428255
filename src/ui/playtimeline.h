#pragma once

#include <optional>
#include <vector>

#include "ui/parkplan.h"
#include "ui/playwatcher.h"

namespace tarvane {

// A man on the field by his label: the nine fielders by scorer's number minus 1, then the batter, then the runners by
// the bases on which the play found them.
inline constexpr std::size_t kMenOnField = 13;
inline constexpr std::size_t kBatterMan = 9, kFirstRunnerMan = 10;

// One moment of a play that moves. Men without a place stand where they stand between plays.
struct FieldMoment {
    std::array<std::optional<FieldPoint>, kMenOnField> man;
    std::array<bool, kMenOnField> gone{};  // out or home: no longer shown
    std::optional<FieldPoint> ball;
    double ballHeight = 0;  // feet over the ground
};

// A play as movement over time. It is worked out once, from the facts of the play, and knows neither clock nor widget.
class PlayTimeline {
  public:
    PlayTimeline(const PlayFacts& facts, const ParkPlan& plan, const AnimationOptions& options);

    // How long it runs.
    double Seconds() const { return seconds_; }
    // The field at a time from its start; the last moment from its end on.
    FieldMoment At(double seconds) const;
    // When the ball is struck, or nothing of the kind happens, and when it first reaches somebody's hand.
    double Struck() const { return struck_; }
    double Caught() const { return caught_; }

  private:
    struct Leg {
        double begin, end;  // seconds
        FieldPoint from, to;
        double height = 0;  // feet, of the top of its arc
    };
    struct Track {
        std::vector<Leg> legs;
        std::optional<double> gone;  // from this second on
    };

    // The ball
    void Pitch(FieldPoint to);
    void BallTo(FieldPoint to, double seconds, double height);
    void Throw(FieldPoint to);
    void MoveBall(Tag tag);
    void Batted(Tag tag);
    void Grounder(Tag tag);
    void Fly(Tag tag);
    void Decision();
    void Steal(Tag tag);
    FieldPoint LongBall() const;
    FieldPoint Fielder() const;

    // The men
    void FielderTo(FieldPoint place, double begin, double end);
    void Runners();
    void Run(std::size_t man, const PlayFacts::Man& runner, double begin);
    static FieldPoint Place(const Track& track, double seconds, double* height);

    PlayFacts facts_;
    ParkPlan plan_;
    AnimationOptions options_;
    Track ball_;
    std::array<Track, kMenOnField> men_;
    FieldPoint ballAt_ = ParkPlan::kMound;
    double clock_ = 0;  // where the ball's movement has come to
    double struck_ = 0, caught_ = 0, seconds_ = 0;
    bool batted_ = false, caughtInAir_ = false;
};

}  // namespace tarvane
