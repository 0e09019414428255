#include "ui/fieldview.h"

#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <algorithm>

#include "ui/parkpainter.h"
#include "ui/qtext.h"
#include "ui/theme.h"

namespace tarvane {

namespace {

constexpr std::array<const char*, 9> kFielderLabels{"lblP",  "lblC",  "lbl1B", "lbl2B", "lbl3B",
                                                    "lblSS", "lblLF", "lblCF", "lblRF"};
constexpr std::array<const char*, 3> kRunnerLabels{"lblBR1", "lblBR2", "lblBR3"};

// Where a label lies as seen from its man, so that no two meet.
enum class Beside { Below, Above, Left, Right };
constexpr std::array<Beside, kMenOnField> kBeside{
    Beside::Below, Beside::Below, Beside::Right, Beside::Right, Beside::Left,  Beside::Left, Beside::Below,
    Beside::Below, Beside::Below, Beside::Right, Beside::Right, Beside::Above, Beside::Left};

double SpotSize(double height) {
    return std::max(3.5, height * 0.0115);
}

}  // namespace

FieldView::FieldView(QWidget* parent) : QWidget(parent) {
    setMinimumSize(300, 220);
}

void FieldView::SetPark(const Ballpark& park) {
    plan_ = ParkPlan(park);
    park_ = own_ = {};
    map_.reset();
    if (!park.imagePath.empty() && own_.load(QText(park.imagePath)))
        map_ = GroundMap::Fit(KnownPlaces(park, plan_, own_.width(), own_.height()));
    Place();
    update();
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
    moment_.reset();
    for (std::size_t i = 0; i < kFielderLabels.size(); ++i) {
        Set(kFielderLabels[i], labels.fielder[i], "fielder");
        there_[i] = !labels.fielder[i].text.empty();
    }
    for (std::size_t i = 0; i < kRunnerLabels.size(); ++i) {
        Set(kRunnerLabels[i], labels.runner[i], "runner");
        there_[kFirstRunnerMan + i] = !labels.runner[i].text.empty();
    }
    Set("lblLH", labels.leftBatter, "batter");
    Set("lblRH", labels.rightBatter, "batter");
    batsLeft_ = !labels.leftBatter.text.empty();
    there_[kBatterMan] = batsLeft_ || !labels.rightBatter.text.empty();
    Place();
    update();
}

void FieldView::Show(const std::optional<FieldMoment>& moment) {
    moment_ = moment;
    Place();
    update();
}

QWidget* FieldView::LabelOf(std::size_t man) const {
    const char* name = man < kBatterMan    ? kFielderLabels[man]
                       : man == kBatterMan ? (batsLeft_ ? "lblLH" : "lblRH")
                                           : kRunnerLabels[man - kFirstRunnerMan];
    return findChild<QLabel*>(QString::fromLatin1(name));
}

FieldPoint FieldView::Standing(std::size_t man) const {
    if (moment_ && moment_->man[man]) return *moment_->man[man];
    if (man < kBatterMan) return plan_.Fielder(static_cast<Position>(man + 1));
    if (man == kBatterMan) return ParkPlan::Batter(batsLeft_);
    return ParkPlan::Base(static_cast<int>(man - kFirstRunnerMan) + 1);
}

QPointF FieldView::OnWidget(FieldPoint ground) const {
    const FieldPoint share = map_ ? map_->OnPicture(ground) : ParkPlan::OnPicture(ground);
    return {share.x * width(), share.y * height()};
}

void FieldView::Place() {
    const double gap = SpotSize(height()) + 3;
    for (std::size_t man = 0; man < kMenOnField; ++man) {
        QWidget* label = LabelOf(man);
        if (label == nullptr || !there_[man]) continue;
        label->adjustSize();
        label->setVisible(!moment_ || !moment_->gone[man]);
        const QPointF spot = OnWidget(Standing(man));
        const double w = label->width(), h = label->height();
        Beside beside = kBeside[man];
        if (man == kBatterMan && !batsLeft_) beside = Beside::Left;
        QPointF at(spot.x() - w / 2, spot.y() - h / 2);
        switch (beside) {
            case Beside::Below: at.setY(spot.y() + gap); break;
            case Beside::Above: at.setY(spot.y() - gap - h); break;
            case Beside::Left: at.setX(spot.x() - gap - w); break;
            case Beside::Right: at.setX(spot.x() + gap); break;
        }
        label->move(std::clamp(static_cast<int>(at.x()), 2, std::max(2, width() - label->width() - 2)),
                    std::clamp(static_cast<int>(at.y()), 2, std::max(2, height() - label->height() - 2)));
    }
}

void FieldView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Place();
}

void FieldView::PaintMen(QPainter& painter) const {
    const double size = SpotSize(height());
    for (std::size_t man = 0; man < kMenOnField; ++man) {
        if (!there_[man] || (moment_ && moment_->gone[man])) continue;
        const FieldPoint ground = Standing(man);
        const QPointF spot = OnWidget(ground);
        const double big = size * (0.55 + 0.45 * ParkPlan::Nearness(ground));
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, 90));
        painter.drawEllipse(spot + QPointF(0, big * 0.75), big * 1.1, big * 0.5);
        painter.setPen(QPen(QColor(0x10, 0x24, 0x1B), std::max(1.0, big * 0.25)));
        painter.setBrush(man < kBatterMan    ? QColor(0xD7, 0xE4, 0xD2)
                         : man == kBatterMan ? QColor(0xFB, 0xF8, 0xEC)
                                             : QColor(0xE8, 0xBE, 0x54));
        painter.drawEllipse(spot, big, big);
    }
}

void FieldView::PaintBall(QPainter& painter) const {
    if (!moment_ || !moment_->ball) return;
    const QPointF ground = OnWidget(*moment_->ball);
    const double near = ParkPlan::Nearness(*moment_->ball);
    const double size = std::max(2.5, height() * 0.0085);
    const QPointF ball = ground - QPointF(0, moment_->ballHeight * near * height() * 0.0028);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 110));
    painter.drawEllipse(ground, size * 0.9, size * 0.5);
    painter.setPen(QPen(QColor(0x8A, 0x1F, 0x1F), 1));
    painter.setBrush(Qt::white);
    const double big = size * (1 + moment_->ballHeight * 0.004);
    painter.drawEllipse(ball, big, big);
}

void FieldView::paintEvent(QPaintEvent*) {
    const QSize pixels = size() * devicePixelRatioF();
    if (park_.size() != pixels) {
        park_ = QPixmap(pixels);
        park_.setDevicePixelRatio(devicePixelRatioF());
        QPainter painter(&park_);
        painter.setFont(font());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        if (own_.isNull())
            ParkPainter(painter, QSizeF(size()), plan_).Paint();
        else
            painter.drawPixmap(rect(), own_);
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, park_);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintMen(painter);
    PaintBall(painter);
}

}  // namespace tarvane
