#include "ui/parkplan.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarvane {

namespace {

constexpr double kHalfSide = 63.64;  // of the infield's square, corner to centre: 90 feet over the root of two
// The eye's distance in feet: nearer makes the outfield flatter and leaves the infield more room for names.
constexpr double kEye = 260;
// The plate on the picture, and how many shares a foot at the plate is. The widest parks just fit.
constexpr FieldPoint kPlate{0.5, 0.885};
constexpr double kFootWide = 0.475 / 131, kFootHigh = 0.865 / 182;
constexpr double kOutfieldDepth = 0.74;  // of the way to the fence

FieldPoint AtAngle(double degrees, double feet) {
    const double angle = degrees * std::numbers::pi / 180;
    return {feet * std::sin(angle), feet * std::cos(angle)};
}

}  // namespace

double Feet(FieldPoint from, FieldPoint to) {
    return std::hypot(to.x - from.x, to.y - from.y);
}

FieldPoint Between(FieldPoint from, FieldPoint to, double share) {
    return {from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share};
}

ParkPlan::ParkPlan(const Ballpark& park) {
    const Ballpark usual;
    const auto known = [](int feet, int otherwise) {
        return static_cast<double>(feet < 200 || feet > 600 ? otherwise : feet);
    };
    distance_ = {known(park.LFFence, usual.LFFence), known(park.AlleyLF, usual.AlleyLF),
                 known(park.CFFence, usual.CFFence), known(park.AlleyRF, usual.AlleyRF),
                 known(park.RFFence, usual.RFFence)};
}

// A smooth curve through the five known distances.
double ParkPlan::Fence(double degrees) const {
    const double place = std::clamp((degrees + 45) / 22.5, 0.0, 4.0);
    const auto from = std::min<std::size_t>(3, static_cast<std::size_t>(place));
    const double t = place - static_cast<double>(from);
    const double p1 = distance_[from], p2 = distance_[from + 1];
    const double p0 = from > 0 ? distance_[from - 1] : p1, p3 = from < 3 ? distance_[from + 2] : p2;
    const double m1 = (p2 - p0) / 2, m2 = (p3 - p1) / 2;
    const double t2 = t * t, t3 = t2 * t;
    return (2 * t3 - 3 * t2 + 1) * p1 + (t3 - 2 * t2 + t) * m1 + (3 * t2 - 2 * t3) * p2 + (t3 - t2) * m2;
}

FieldPoint ParkPlan::FencePoint(double degrees, double beyond) const {
    return AtAngle(degrees, Fence(degrees) + beyond);
}

FieldPoint ParkPlan::Base(int base) {
    switch (base) {
        case 1: return {kHalfSide, kHalfSide};
        case 2: return {0, 2 * kHalfSide};
        case 3: return {-kHalfSide, kHalfSide};
        default: return {};
    }
}

FieldPoint ParkPlan::Fielder(Position position) const {
    switch (position) {
        case Position::C: return {0, -9};
        case Position::B1: return {71, 92};
        case Position::B2: return {42, 140};
        case Position::B3: return {-71, 92};
        case Position::SS: return {-42, 140};
        case Position::LF: return AtAngle(-27, Fence(-27) * kOutfieldDepth);
        case Position::CF: return AtAngle(0, Fence(0) * kOutfieldDepth);
        case Position::RF: return AtAngle(27, Fence(27) * kOutfieldDepth);
        default: return kMound;
    }
}

double ParkPlan::Nearness(FieldPoint ground) {
    return kEye / std::max(60.0, ground.y + kEye);
}

FieldPoint ParkPlan::OnPicture(FieldPoint ground) {
    const double near = Nearness(ground);
    return {kPlate.x + ground.x * near * kFootWide, kPlate.y - ground.y * near * kFootHigh};
}

}  // namespace tarvane
