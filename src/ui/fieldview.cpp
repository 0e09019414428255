#include "ui/fieldview.h"

#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <algorithm>
#include <array>

#include "ui/theme.h"

namespace tarvane {

namespace {

// Where a label stands, as shares of the width and the height.
struct Spot {
    const char* name;
    double x, y;
};
constexpr std::array<Spot, 9> kFielderSpots{{{"lblP", 0.5, 0.605},
                                             {"lblC", 0.5, 0.962},
                                             {"lbl1B", 0.80, 0.565},
                                             {"lbl2B", 0.665, 0.45},
                                             {"lbl3B", 0.20, 0.565},
                                             {"lblSS", 0.335, 0.45},
                                             {"lblLF", 0.20, 0.265},
                                             {"lblCF", 0.5, 0.15},
                                             {"lblRF", 0.80, 0.265}}};
constexpr std::array<Spot, 3> kRunnerSpots{
    {{"lblBR1", 0.765, 0.685}, {"lblBR2", 0.5, 0.375}, {"lblBR3", 0.235, 0.685}}};
constexpr Spot kLeftBatter{"lblLH", 0.675, 0.865};
constexpr Spot kRightBatter{"lblRH", 0.325, 0.865};

const QColor kDirt{0xB9, 0x79, 0x4C};
const QColor kChalk{0xFB, 0xF8, 0xEC};

// The field fills its room: places are shares of the width and the height, so that the labels keep clear of one another
// in any shape of window.
struct Plan {
    double width, height;
    QPointF At(double x, double y) const { return {x * width, y * height}; }
};
constexpr double kPlateX = 0.5, kPlateY = 0.885, kBaseX = 0.19, kBaseY = 0.225;

QPointF Plate(const Plan& plan) {
    return plan.At(kPlateX, kPlateY);
}
QPointF FirstBase(const Plan& plan) {
    return plan.At(kPlateX + kBaseX, kPlateY - kBaseY);
}
QPointF SecondBase(const Plan& plan) {
    return plan.At(kPlateX, kPlateY - 2 * kBaseY);
}
QPointF ThirdBase(const Plan& plan) {
    return plan.At(kPlateX - kBaseX, kPlateY - kBaseY);
}

// The ground between the foul lines, out to a wall at a share of the way to the edge of the picture.
QPainterPath Outfield(const Plan& plan, double reach) {
    const double pole = 2.5 * reach;
    const QPointF left = plan.At(kPlateX - kBaseX * pole, kPlateY - kBaseY * pole);
    const QPointF right = plan.At(kPlateX + kBaseX * pole, kPlateY - kBaseY * pole);
    const double top = kPlateY - 0.92 * reach;
    QPainterPath path(Plate(plan));
    path.lineTo(left);
    path.cubicTo(plan.At(0.5 - 0.30 * reach, top), plan.At(0.5 + 0.30 * reach, top), right);
    path.closeSubpath();
    return path;
}

void PaintGround(QPainter& painter, const Plan& plan) {
    painter.fillRect(QRectF(0, 0, plan.width, plan.height), QColor(0x1B, 0x49, 0x32));
    painter.fillPath(Outfield(plan, 1.05), QColor(0x0F, 0x2C, 0x1E));  // the wall
    painter.fillPath(Outfield(plan, 1.035), kDirt);                    // the warning track
    const QPainterPath grass = Outfield(plan, 0.97);
    painter.fillPath(grass, QColor(0x2D, 0x71, 0x47));
    painter.save();
    painter.setClipPath(grass);
    for (int ring = 9; ring > 0; ring -= 2) {
        const double outer = ring * 0.105;
        QPainterPath band;
        band.addEllipse(plan.At(0.5, 0.66), plan.width * outer, plan.height * outer);
        QPainterPath hole;
        hole.addEllipse(plan.At(0.5, 0.66), plan.width * (outer - 0.105), plan.height * (outer - 0.105));
        painter.fillPath(band - hole, QColor(0x34, 0x7D, 0x50));
    }
    painter.restore();
}

void PaintInfield(QPainter& painter, const Plan& plan) {
    QPainterPath skin;
    skin.addEllipse(plan.At(0.5, 0.655), plan.width * 0.305, plan.height * 0.325);
    painter.fillPath(skin & Outfield(plan, 0.9), kDirt);
    QPainterPath grass(plan.At(0.5, kPlateY - 0.045));
    grass.lineTo(plan.At(kPlateX + kBaseX - 0.04, kPlateY - kBaseY));
    grass.lineTo(plan.At(0.5, kPlateY - 2 * kBaseY + 0.05));
    grass.lineTo(plan.At(kPlateX - kBaseX + 0.04, kPlateY - kBaseY));
    grass.closeSubpath();
    painter.fillPath(grass, QColor(0x38, 0x86, 0x57));
    painter.setPen(Qt::NoPen);
    painter.setBrush(kDirt);
    painter.drawEllipse(plan.At(0.5, 0.672), plan.width * 0.035, plan.height * 0.033);
    painter.drawEllipse(Plate(plan), plan.width * 0.062, plan.height * 0.058);
}

void PaintLinesAndBases(QPainter& painter, const Plan& plan) {
    const double size = std::max(4.0, plan.height * 0.013);
    painter.setPen(QPen(kChalk, std::max(1.4, plan.height * 0.004)));
    painter.drawLine(Plate(plan), plan.At(kPlateX + kBaseX * 2.42, kPlateY - kBaseY * 2.42));
    painter.drawLine(Plate(plan), plan.At(kPlateX - kBaseX * 2.42, kPlateY - kBaseY * 2.42));
    const double box = size * 1.5;
    for (const double side : {-1.0, 1.0})
        painter.drawRect(QRectF(Plate(plan).x() + side * size * 2.6 - box / 2, Plate(plan).y() - box, box, box * 2));
    painter.setPen(Qt::NoPen);
    painter.setBrush(kChalk);
    for (const QPointF& base : {FirstBase(plan), SecondBase(plan), ThirdBase(plan)})
        painter.drawPolygon(QPolygonF{{base + QPointF(0, -size), base + QPointF(size * 1.2, 0), base + QPointF(0, size),
                                       base + QPointF(-size * 1.2, 0)}});
    const QPointF plate = Plate(plan);
    painter.drawPolygon(QPolygonF{{plate + QPointF(-size, -size), plate + QPointF(size, -size),
                                   plate + QPointF(size, 0), plate + QPointF(0, size), plate + QPointF(-size, 0)}});
    const QPointF rubber = plan.At(0.5, 0.672);
    painter.drawRect(QRectF(rubber.x() - size, rubber.y() - 1.5, size * 2, 3));
}

}  // namespace

FieldView::FieldView(QWidget* parent) : QWidget(parent) {
    setMinimumSize(300, 220);
}

void FieldView::Set(const char* name, const FieldLabel& label, const char* role) {
    auto* shown = findChild<QLabel*>(QString::fromLatin1(name));
    if (shown == nullptr) return;
    shown->setProperty("role", QString::fromLatin1(role));
    shown->setProperty("framed", label.framed);
    shown->style()->unpolish(shown);
    shown->style()->polish(shown);
    shown->clear();  // a label keeps its size for an unchanged text, even in a new frame
    shown->setText(QString::fromStdString(label.text));
    shown->setVisible(!label.text.empty());
}

void FieldView::SetLabels(const FieldLabels& labels) {
    for (std::size_t i = 0; i < kFielderSpots.size(); ++i) Set(kFielderSpots[i].name, labels.fielder[i], "fielder");
    for (std::size_t i = 0; i < kRunnerSpots.size(); ++i) Set(kRunnerSpots[i].name, labels.runner[i], "runner");
    Set(kLeftBatter.name, labels.leftBatter, "batter");
    Set(kRightBatter.name, labels.rightBatter, "batter");
    Place();
}

void FieldView::Place() {
    const auto place = [this](const Spot& spot) {
        auto* label = findChild<QLabel*>(QString::fromLatin1(spot.name));
        if (label == nullptr) return;
        label->adjustSize();
        const int left = static_cast<int>(spot.x * width()) - label->width() / 2;
        const int top = static_cast<int>(spot.y * height()) - label->height() / 2;
        label->move(std::clamp(left, 2, std::max(2, width() - label->width() - 2)),
                    std::clamp(top, 2, std::max(2, height() - label->height() - 2)));
    };
    for (const Spot& spot : kFielderSpots) place(spot);
    for (const Spot& spot : kRunnerSpots) place(spot);
    place(kLeftBatter);
    place(kRightBatter);
}

void FieldView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Place();
}

void FieldView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Plan plan{static_cast<double>(width()), static_cast<double>(height())};
    PaintGround(painter, plan);
    PaintInfield(painter, plan);
    PaintLinesAndBases(painter, plan);
}

}  // namespace tarvane
