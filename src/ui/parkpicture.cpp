#include "ui/parkpicture.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>

#include "ui/theme.h"

namespace tarvane {

namespace {

void PaintSky(QPainter& painter, const QRectF& area) {
    QLinearGradient sky(area.topLeft(), area.bottomLeft());
    sky.setColorAt(0.0, QColor(0x1B, 0x2E, 0x4B));
    sky.setColorAt(0.55, QColor(0x6B, 0x5B, 0x74));
    sky.setColorAt(1.0, QColor(0xE9, 0xA8, 0x6B));
    painter.fillRect(area, sky);
}

// Two decks of seats behind the outfield, full of people: dots in a fixed pattern.
void PaintStands(QPainter& painter, double width, double top, double bottom) {
    QPainterPath stands(QPointF(0, bottom));
    stands.lineTo(0, top);
    stands.quadTo(width * 0.5, top + (bottom - top) * 0.75, width, top);
    stands.lineTo(width, bottom);
    painter.fillPath(stands, QColor(0x24, 0x2B, 0x36));
    painter.save();
    painter.setClipPath(stands);
    painter.setPen(Qt::NoPen);
    const std::array<QColor, 4> crowd{QColor(0xC9, 0xB8, 0x93), QColor(0x9A, 0x4A, 0x36), QColor(0x56, 0x6C, 0x86),
                                      QColor(0xE5, 0xDD, 0xC6)};
    const double step = std::max(4.0, (bottom - top) / 11.0);
    for (int row = 0; top + row * step < bottom; ++row) {
        for (int seat = 0; seat * step < width; ++seat) {
            const int pattern = (row * 7 + seat * 13 + row * seat * 3) % 11;
            if (pattern > 6) continue;
            painter.setBrush(crowd[static_cast<std::size_t>(pattern % 4)]);
            const double x = seat * step + (row % 2) * step * 0.5;
            painter.drawEllipse(QPointF(x, top + row * step), step * 0.22, step * 0.22);
        }
    }
    painter.restore();
}

void PaintLights(QPainter& painter, double x, double top, double bottom, double size) {
    painter.setPen(QPen(QColor(0x16, 0x1B, 0x22), size * 0.12));
    painter.drawLine(QPointF(x, top), QPointF(x, bottom));
    QRadialGradient glow(QPointF(x, top), size * 2.6);
    glow.setColorAt(0, QColor(255, 246, 214, 150));
    glow.setColorAt(1, QColor(255, 246, 214, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(glow);
    painter.drawEllipse(QPointF(x, top), size * 2.6, size * 2.6);
    painter.setBrush(QColor(0xFF, 0xF7, 0xDC));
    for (int row = 0; row < 2; ++row)
        for (int lamp = -2; lamp <= 2; ++lamp)
            painter.drawEllipse(QPointF(x + lamp * size * 0.3, top + row * size * 0.32), size * 0.11, size * 0.11);
}

void PaintGrass(QPainter& painter, const QRectF& field) {
    painter.fillRect(field, QColor(0x2B, 0x6B, 0x45));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x33, 0x79, 0x50));
    const QPointF far(field.center().x(), field.top() - field.height() * 0.9);
    for (int stripe = -10; stripe <= 10; stripe += 2) {
        const double left = field.center().x() + stripe * field.width() * 0.09;
        QPainterPath path(far);
        path.lineTo(left, field.bottom());
        path.lineTo(left + field.width() * 0.09, field.bottom());
        path.closeSubpath();
        painter.save();
        painter.setClipRect(field);
        painter.drawPath(path);
        painter.restore();
    }
}

// The infield as seen from high behind the plate.
void PaintInfield(QPainter& painter, const QRectF& field) {
    const double x = field.center().x();
    const double h = field.height();
    const auto at = [&](double dx, double dy) { return QPointF(x + dx * h, field.top() + dy * h); };
    painter.save();
    painter.setClipRect(field);
    QPainterPath dirt(at(0, 1.12));
    dirt.lineTo(at(1.35, 0.55));
    dirt.cubicTo(at(1.0, 0.12), at(-1.0, 0.12), at(-1.35, 0.55));
    dirt.closeSubpath();
    painter.fillPath(dirt, QColor(0xB0, 0x6B, 0x3F));
    QPainterPath grass(at(0, 0.98));
    grass.lineTo(at(0.86, 0.62));
    grass.lineTo(at(0, 0.34));
    grass.lineTo(at(-0.86, 0.62));
    grass.closeSubpath();
    painter.fillPath(grass, QColor(0x37, 0x82, 0x56));
    painter.setPen(QPen(QColor(0xF4, 0xEE, 0xDC), std::max(1.0, h * 0.012)));
    painter.drawLine(at(0, 1.06), at(3.2, -0.28));
    painter.drawLine(at(0, 1.06), at(-3.2, -0.28));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xB9, 0x76, 0x49));
    painter.drawEllipse(at(0, 0.64), h * 0.16, h * 0.055);
    painter.setBrush(QColor(0xFB, 0xF8, 0xEC));
    for (const QPointF& base : {at(0.9, 0.62), at(0, 0.33), at(-0.9, 0.62)})
        painter.drawEllipse(base, h * 0.045, h * 0.02);
    painter.restore();
}

void PaintName(QPainter& painter, const QRectF& area, const QFont& plain) {
    QFont font = plain;
    font.setBold(true);
    font.setPixelSize(std::max(18, static_cast<int>(area.height() * 0.22)));
    font.setLetterSpacing(QFont::PercentageSpacing, 103);
    painter.setFont(font);
    const QRectF place = area.adjusted(area.width() * 0.025, 0, 0, -area.height() * 0.05);
    const QString name = QStringLiteral("Tarvane PC Baseball");
    painter.setPen(QColor(0, 0, 0, 150));
    painter.drawText(place.translated(2, 3), Qt::AlignLeft | Qt::AlignBottom, name);
    painter.setPen(theme::kCream);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignBottom, name);
}

}  // namespace

void ParkPicture::SetPicture(const QString& file) {
    const QPixmap picture(file);
    if (!picture.isNull() || file.isEmpty()) own_ = picture;
    update();
}

void ParkPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF area(rect());
    if (!own_.isNull()) {
        const QPixmap scaled = own_.scaled(size(), Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
        painter.drawPixmap((width() - scaled.width()) / 2, (height() - scaled.height()) / 2, scaled);
    } else {
        const double h = area.height();
        const double wall = h * 0.56;
        PaintSky(painter, QRectF(0, 0, area.width(), wall));
        PaintStands(painter, area.width(), h * 0.30, wall);
        for (const double place : {0.07, 0.36, 0.64, 0.93})
            PaintLights(painter, area.width() * place, h * 0.16, wall, h * 0.09);
        painter.fillRect(QRectF(0, wall - h * 0.05, area.width(), h * 0.05), theme::kFieldDeep);
        const QRectF field(0, wall, area.width(), h - wall);
        PaintGrass(painter, field);
        PaintInfield(painter, field);
    }
    PaintName(painter, area, font());
}

}  // namespace tarvane
