#pragma once

#include <array>
#include <optional>
#include <utility>
#include <vector>

#include "records/park.h"
#include "ui/parkplan.h"

namespace tarvane {

// How the ground of a park lies on somebody's picture of it: a perspective view, told by where some men stand on the
// picture. Straight lines stay straight, so everything between and beyond the men has its place too.
class GroundMap {
  public:
    // A place on the ground and its place on the picture, as shares of the picture's width and height.
    using Known = std::pair<FieldPoint, FieldPoint>;
    // The view that comes nearest to all that is known (least squares). Nothing for fewer than four places, or for
    // places that no view of a field can show.
    static std::optional<GroundMap> Fit(const std::vector<Known>& known);

    FieldPoint OnPicture(FieldPoint ground) const;

  private:
    std::array<double, 8> h_{};
};

// What a park's row tells of its picture: positions in twips, fifteen to a pixel of the picture, 0, 0 for a man without
// a place. width and height are the picture's own, in pixels.
std::vector<GroundMap::Known> KnownPlaces(const Ballpark& park, const ParkPlan& plan, int width, int height);

}  // namespace tarvane
