#include "ui/icon.h"

#include <QPainter>
#include <QPainterPath>

#include "ui/theme.h"

namespace tarvane {

namespace {

// A seam of the ball with its stitches; side is -1 for the left one, 1 for the right one.
void PaintSeam(QPainter& painter, double side) {
    QPainterPath seam(QPointF(50 + side * 17, 15));
    seam.quadTo(QPointF(50 + side * 3, 50), QPointF(50 + side * 17, 85));
    painter.drawPath(seam);
    for (double at = 0.12; at < 0.95; at += 0.12) {
        const QPointF knot = seam.pointAtPercent(at);
        painter.drawLine(knot, knot + QPointF(side * 6, -4));
        painter.drawLine(knot, knot + QPointF(-side * 5, -4));
    }
}

QPixmap Paint(int size) {
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 100.0, size / 100.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme::kField);
    painter.drawRoundedRect(QRectF(2, 2, 96, 96), 20, 20);
    painter.setBrush(theme::kPaper);
    painter.drawEllipse(QPointF(50, 50), 38, 38);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(theme::kClay, 3, Qt::SolidLine, Qt::RoundCap));
    PaintSeam(painter, -1);
    PaintSeam(painter, 1);
    return picture;
}

}  // namespace

QIcon HouseIcon() {
    QIcon icon;
    for (const int size : {16, 32, 48, 64, 128, 256}) icon.addPixmap(Paint(size));
    return icon;
}

}  // namespace tarvane
