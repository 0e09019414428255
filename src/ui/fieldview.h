#pragma once

#include <QPixmap>
#include <QWidget>
#include <array>
#include <optional>

#include "ui/gameview.h"
#include "ui/groundmap.h"
#include "ui/playtimeline.h"

namespace tarvane {

// The ball field from above, and on it the men: a spot where each stands, and beside it his label, which is a child
// named lblP to lblRF, lblLH and lblRH at the plate and lblBR1 to lblBR3 at the bases.
// A park of which the user has a picture lies on that.
class FieldView : public QWidget {
    Q_OBJECT

  public:
    explicit FieldView(QWidget* parent = nullptr);

    void SetPark(const Ballpark& park);
    void SetLabels(const FieldLabels& labels);
    const ParkPlan& Plan() const { return plan_; }

    bool Moves() const { return moment_.has_value(); }
    // Shows a moment of a play; nothing: everybody where he stands between plays.
    void Show(const std::optional<FieldMoment>& moment);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Set(const char* name, const FieldLabel& label, const char* role);
    void Place();
    FieldPoint Standing(std::size_t man) const;
    QWidget* LabelOf(std::size_t man) const;
    QPointF OnWidget(FieldPoint ground) const;
    void PaintMen(QPainter& painter) const;
    void PaintBall(QPainter& painter) const;

    ParkPlan plan_;
    QPixmap own_;                   // the user's picture of the park; null: it is drawn
    std::optional<GroundMap> map_;  // how the ground lies on it; none: as on the drawn one
    QPixmap park_;                  // as painted last, for the size that it has
    bool batsLeft_ = false;
    std::array<bool, kMenOnField> there_{};
    std::optional<FieldMoment> moment_;
};

}  // namespace tarvane
