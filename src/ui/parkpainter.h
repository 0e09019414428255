#pragma once

#include <QPainter>

#include "ui/parkplan.h"

namespace tarvane {

// Draws a park from its plan: stands, fence with its distances, warning track, mown grass, infield, lines and bases.
class ParkPainter {
  public:
    ParkPainter(QPainter& painter, const QSizeF& size, const ParkPlan& plan)
        : painter_(painter), size_(size), plan_(plan) {}

    void Paint();

  private:
    QPointF At(FieldPoint ground) const;
    QPainterPath Fair(double beyond) const;
    QPainterPath Polygon(std::initializer_list<FieldPoint> corners) const;
    QPainterPath Disc(FieldPoint middle, double feet) const;

    void Stands();
    void Fence();
    void Grass();
    void Infield();
    void Lines();

    QPainter& painter_;
    QSizeF size_;
    const ParkPlan& plan_;
};

}  // namespace tarvane
