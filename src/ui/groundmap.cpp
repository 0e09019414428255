#include "ui/groundmap.h"

#include <cmath>
#include <utility>

namespace tarvane {

namespace {

constexpr std::size_t kUnknown = 8;
constexpr double kFeet = 100;  // the equations are better behaved in hundreds of feet
using Row = std::array<double, kUnknown + 1>;
using System = std::array<Row, kUnknown>;

// Adds an equation's share to the normal equations.
void Add(System& normal, const Row& equation) {
    for (std::size_t i = 0; i < kUnknown; ++i)
        for (std::size_t j = 0; j <= kUnknown; ++j) normal[i][j] += equation[i] * equation[j];
}

// Gauss and Jordan, with the largest pivot; false if the equations leave something open.
bool Solve(System& system) {
    constexpr double kNothing = 1e-12;
    for (std::size_t column = 0; column < kUnknown; ++column) {
        std::size_t pivot = column;
        for (std::size_t row = column + 1; row < kUnknown; ++row)
            if (std::abs(system[row][column]) > std::abs(system[pivot][column])) pivot = row;
        if (std::abs(system[pivot][column]) < kNothing) return false;
        std::swap(system[pivot], system[column]);
        for (std::size_t row = 0; row < kUnknown; ++row) {
            if (row == column) continue;
            const double times = system[row][column] / system[column][column];
            for (std::size_t j = column; j <= kUnknown; ++j) system[row][j] -= times * system[column][j];
        }
    }
    return true;
}

}  // namespace

std::optional<GroundMap> GroundMap::Fit(const std::vector<Known>& known) {
    constexpr std::size_t kLeast = 4;
    if (known.size() < kLeast) return std::nullopt;
    System normal{};
    for (const auto& [ground, share] : known) {
        const double x = ground.x / kFeet, y = ground.y / kFeet;
        Add(normal, {x, y, 1, 0, 0, 0, -x * share.x, -y * share.x, share.x});
        Add(normal, {0, 0, 0, x, y, 1, -x * share.y, -y * share.y, share.y});
    }
    if (!Solve(normal)) return std::nullopt;
    GroundMap map;
    for (std::size_t i = 0; i < kUnknown; ++i) map.h_[i] = normal[i][kUnknown] / normal[i][i];
    // Second base must lie deeper in the picture than the plate, and the right line right of the left one: else the
    // places are a jumble.
    const FieldPoint plate = map.OnPicture({}), second = map.OnPicture(ParkPlan::Base(2));
    if (!(second.y < plate.y && map.OnPicture(ParkPlan::Base(3)).x < map.OnPicture(ParkPlan::Base(1)).x))
        return std::nullopt;
    return map;
}

FieldPoint GroundMap::OnPicture(FieldPoint ground) const {
    const double x = ground.x / kFeet, y = ground.y / kFeet;
    const double depth = h_[6] * x + h_[7] * y + 1;
    return {(h_[0] * x + h_[1] * y + h_[2]) / depth, (h_[3] * x + h_[4] * y + h_[5]) / depth};
}

std::vector<GroundMap::Known> KnownPlaces(const Ballpark& park, const ParkPlan& plan, int width, int height) {
    constexpr double kTwips = 15;
    std::vector<GroundMap::Known> known;
    const auto add = [&](FieldPoint ground, std::int32_t left, std::int32_t top) {
        if (left == 0 && top == 0) return;
        known.push_back({ground, {left / kTwips / width, top / kTwips / height}});
    };
    for (std::size_t i = 0; i < park.PosTop.size(); ++i)
        add(plan.Fielder(static_cast<Position>(i + 1)), park.PosLeft[i], park.PosTop[i]);
    add(ParkPlan::Batter(true), park.PosBatterLLeft, park.PosBatterLTop);
    add(ParkPlan::Batter(false), park.PosBatterRLeft, park.PosBatterRTop);
    for (std::size_t base = 0; base < park.PosRunnerTop.size(); ++base)
        add(ParkPlan::Base(static_cast<int>(base) + 1), park.PosRunnerLeft[base], park.PosRunnerTop[base]);
    return known;
}

}  // namespace tarvane
