#pragma once

#include <array>

#include "records/park.h"
#include "records/position.h"

namespace tarvane {

// A place on the ground in feet: the point of the plate is 0, 0; x grows to the side of first base, y to centre field.
struct FieldPoint {
    double x = 0, y = 0;
    friend bool operator==(const FieldPoint&, const FieldPoint&) = default;
};

double Feet(FieldPoint from, FieldPoint to);
FieldPoint Between(FieldPoint from, FieldPoint to, double share);  // 0: from, 1: to

// The ground of one park, and how it lies on its picture. No widget and no pixel: places on the picture are shares of
// its width and height.
class ParkPlan {
  public:
    ParkPlan() : ParkPlan(Ballpark()) {}
    // A distance that no park has (under 200 feet or over 600) is taken as the usual one.
    explicit ParkPlan(const Ballpark& park);

    // Feet from the plate to the fence; degrees from centre field, -45 along the left line to 45 along the right.
    double Fence(double degrees) const;
    FieldPoint FencePoint(double degrees, double beyond = 0) const;
    // The distances as known: left line, left alley, centre, right alley, right line.
    const std::array<double, 5>& Distances() const { return distance_; }
    static double DegreesOf(std::size_t distance) { return -45.0 + 22.5 * static_cast<double>(distance); }

    // 0 and 4 are the plate.
    static FieldPoint Base(int base);
    static FieldPoint Batter(bool left) { return {left ? 4.5 : -4.5, 1.0}; }
    static constexpr FieldPoint kMound{0, 60.5};
    // Where the man of a position stands; outfielders stand deeper in a bigger park.
    FieldPoint Fielder(Position position) const;

    // Seen from high behind the plate: straight lines stay straight, what is far is smaller.
    static FieldPoint OnPicture(FieldPoint ground);
    // How big a foot is there, against a foot at the plate.
    static double Nearness(FieldPoint ground);

  private:
    std::array<double, 5> distance_{};
};

}  // namespace tarvane
