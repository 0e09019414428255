#include "ui/parkpainter.h"

#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarvane {

namespace {

const QColor kInfieldDirt{0xB9, 0x79, 0x4C};
const QColor kTrack{0xA8, 0x6D, 0x45};
const QColor kWhite{0xFB, 0xF8, 0xEC};
const QColor kGrassDark{0x2D, 0x71, 0x47}, kGrassLight{0x36, 0x80, 0x52};
const QColor kOutside{0x23, 0x5C, 0x3C};
const QColor kWall{0x12, 0x33, 0x25};

constexpr double kTrackFeet = 15, kFoulRoom = 55, kSkinFeet = 95;
constexpr double kPi = std::numbers::pi;

}  // namespace

QPointF ParkPainter::At(FieldPoint ground) const {
    const FieldPoint share = ParkPlan::OnPicture(ground);
    return {share.x * size_.width(), share.y * size_.height()};
}

// The ground between the foul lines, to so many feet beyond the fence.
QPainterPath ParkPainter::Fair(double beyond) const {
    QPainterPath path(At({0, 0}));
    for (int degrees = -45; degrees <= 45; degrees += 3) path.lineTo(At(plan_.FencePoint(degrees, beyond)));
    path.closeSubpath();
    return path;
}

QPainterPath ParkPainter::Polygon(std::initializer_list<FieldPoint> corners) const {
    QPainterPath path;
    for (const FieldPoint& corner : corners)
        path.elementCount() == 0 ? path.moveTo(At(corner)) : path.lineTo(At(corner));
    path.closeSubpath();
    return path;
}

QPainterPath ParkPainter::Disc(FieldPoint middle, double feet) const {
    QPainterPath path;
    for (int step = 0; step <= 72; ++step) {
        const double angle = step * kPi / 36;
        const QPointF point = At({middle.x + feet * std::sin(angle), middle.y + feet * std::cos(angle)});
        step == 0 ? path.moveTo(point) : path.lineTo(point);
    }
    path.closeSubpath();
    return path;
}

// Rows of people all around, lit from the field: dots in a fixed pattern, smaller the farther they sit.
void ParkPainter::Stands() {
    QLinearGradient evening(0, 0, 0, size_.height());
    evening.setColorAt(0, QColor(0x19, 0x20, 0x2B));
    evening.setColorAt(1, QColor(0x2B, 0x33, 0x3F));
    painter_.fillRect(QRectF(QPointF(0, 0), size_), evening);
    painter_.setPen(Qt::NoPen);
    const QColor crowd[]{QColor(0xC9, 0xB8, 0x93), QColor(0x9A, 0x4A, 0x36), QColor(0x5D, 0x78, 0x97),
                         QColor(0xE5, 0xDD, 0xC6), QColor(0x6F, 0x7F, 0x5E)};
    const double step = std::max(4.5, size_.height() / 62);
    for (int row = 0; row * step < size_.height(); ++row) {
        for (int seat = 0; seat * step < size_.width(); ++seat) {
            const int pattern = (row * 7 + seat * 13 + row * seat * 3 + seat / 9) % 12;
            if (pattern > 7 || (seat + row / 3) % 17 == 0) continue;  // empty seats and aisles
            QColor colour = crowd[pattern % 5];
            colour.setAlpha(150);
            painter_.setBrush(colour);
            painter_.drawEllipse(QPointF((seat + (row % 2) * 0.5) * step, (row + 0.5) * step), step * 0.24,
                                 step * 0.24);
        }
    }
}

// The wall stands up from its line; its distances are painted on it.
void ParkPainter::Fence() {
    const double high = size_.height() * 0.032;
    QPainterPath wall, rail;
    for (int degrees = -45; degrees <= 45; degrees += 3) {
        const QPointF top = At(plan_.FencePoint(degrees)) - QPointF(0, high);
        if (degrees == -45) {
            wall.moveTo(top);
            rail.moveTo(top);
        } else {
            wall.lineTo(top);
            rail.lineTo(top);
        }
    }
    for (int degrees = 45; degrees >= -45; degrees -= 3) wall.lineTo(At(plan_.FencePoint(degrees)));
    wall.closeSubpath();
    painter_.fillPath(wall, kWall);
    painter_.strokePath(rail, QPen(QColor(0xE8, 0xBE, 0x54), std::max(1.2, size_.height() * 0.005)));

    QFont font = painter_.font();
    font.setPixelSize(std::max(9, static_cast<int>(high * 0.86)));
    font.setBold(true);
    painter_.setFont(font);
    painter_.setPen(kWhite);
    for (std::size_t i = 0; i < plan_.Distances().size(); ++i) {
        // The numbers of the lines a little inside, where the wall has room for them.
        const double degrees = std::clamp(ParkPlan::DegreesOf(i), -40.0, 40.0);
        const QPointF foot = At(plan_.FencePoint(degrees));
        painter_.drawText(QRectF(foot.x() - 60, foot.y() - high, 120, high), Qt::AlignCenter,
                          QString::number(static_cast<int>(plan_.Distances()[i])));
    }
}

void ParkPainter::Grass() {
    // Foul ground, as far as the rail of the stands.
    QPainterPath foul;
    const FieldPoint left = plan_.FencePoint(-45), right = plan_.FencePoint(45);
    foul.moveTo(At({left.x - 8, left.y}));
    for (const FieldPoint& corner :
         {FieldPoint{-120, 50}, FieldPoint{-kFoulRoom, -18}, FieldPoint{-22, -40}, FieldPoint{22, -40},
          FieldPoint{kFoulRoom, -18}, FieldPoint{120, 50}, FieldPoint{right.x + 8, right.y}})
        foul.lineTo(At(corner));
    foul.lineTo(At({0, 200}));
    foul.closeSubpath();
    painter_.strokePath(foul, QPen(kWall, size_.height() * 0.014, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
    painter_.fillPath(foul, kTrack);
    QTransform in;
    const QPointF middle = At({0, 90});
    in.translate(middle.x(), middle.y());
    in.scale(0.955, 0.955);
    in.translate(-middle.x(), -middle.y());
    painter_.fillPath(in.map(foul), kOutside);

    painter_.fillPath(Fair(0), kTrack);
    const QPainterPath grass = Fair(-kTrackFeet);
    painter_.fillPath(grass, kGrassDark);
    painter_.save();
    painter_.setClipPath(grass);
    // Mown in fans from the plate, and across.
    for (int band = -6; band < 6; band += 2) {
        const double from = band * 7.5, to = from + 7.5;
        const auto far = [](double degrees) {
            return FieldPoint{620 * std::sin(degrees * kPi / 180), 620 * std::cos(degrees * kPi / 180)};
        };
        painter_.fillPath(Polygon({{0, 0}, far(from), far(to)}), kGrassLight);
    }
    for (double feet = 170; feet < 520; feet += 60)
        painter_.fillPath(Disc({0, 0}, feet + 30) - Disc({0, 0}, feet), QColor(255, 255, 255, 12));
    painter_.restore();
}

void ParkPainter::Infield() {
    painter_.save();
    painter_.setClipPath(Fair(-kTrackFeet));
    painter_.fillPath(Disc(ParkPlan::kMound, kSkinFeet), kInfieldDirt);
    painter_.restore();
    // The skin runs on a little beyond the lines at first and third and around the plate.
    for (const int base : {1, 3}) painter_.fillPath(Disc(ParkPlan::Base(base), 8), kInfieldDirt);
    painter_.fillPath(Disc({0, 0}, 13), kInfieldDirt);
    const double side = 63.64;
    const double in = 9;  // of the basepaths
    const QPainterPath square = Polygon({{0, in}, {side - in, side}, {0, 2 * side - in}, {-side + in, side}});
    QPainterPath green = square - Disc({0, 0}, 13) - Disc(ParkPlan::kMound, 9);
    for (const int base : {1, 2, 3}) green -= Disc(ParkPlan::Base(base), 12);
    painter_.fillPath(green, QColor(0x3A, 0x8A, 0x5A));
    painter_.save();
    painter_.setClipPath(green);
    for (double y = 10; y < 125; y += 24)
        painter_.fillPath(Polygon({{-70, y}, {70, y}, {70, y + 12}, {-70, y + 12}}), QColor(0x33, 0x7E, 0x51));
    painter_.restore();
    painter_.fillPath(Disc(ParkPlan::kMound, 9), kInfieldDirt);
}

void ParkPainter::Lines() {
    const double thick = std::max(1.4, size_.height() * 0.0045);
    painter_.setPen(QPen(kWhite, thick));
    for (const int degrees : {-45, 45}) painter_.drawLine(At({0, 0}), At(plan_.FencePoint(degrees)));
    painter_.setPen(QPen(kWhite, thick * 0.7));
    for (const double side : {-1.0, 1.0}) {
        painter_.drawPath(Polygon({{side * 2.5, -4}, {side * 6.5, -4}, {side * 6.5, 4}, {side * 2.5, 4}}));
        // The poles.
        const QPointF foot = At(plan_.FencePoint(45 * side));
        painter_.save();
        painter_.setPen(QPen(QColor(0xE8, 0xBE, 0x54), thick));
        painter_.drawLine(foot, foot - QPointF(0, size_.height() * 0.085));
        painter_.restore();
    }
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(kWhite);
    for (const int base : {1, 2, 3}) {
        const FieldPoint at = ParkPlan::Base(base);
        const double big = 3.2;
        painter_.drawPath(Polygon({{at.x, at.y - big}, {at.x + big, at.y}, {at.x, at.y + big}, {at.x - big, at.y}}));
    }
    painter_.drawPath(Polygon({{0, -2.2}, {1.7, -0.6}, {1.7, 1.4}, {-1.7, 1.4}, {-1.7, -0.6}}));
    painter_.drawPath(Polygon({{-2, 60}, {2, 60}, {2, 61.2}, {-2, 61.2}}));
}

void ParkPainter::Paint() {
    painter_.setRenderHint(QPainter::Antialiasing);
    Stands();
    Grass();
    Infield();
    Fence();
    Lines();
}

}  // namespace tarvane
