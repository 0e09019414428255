#pragma once

#include <QWidget>

#include "ui/gameview.h"

namespace tarvane {

// The ball field from above, and on it the labels of the men: its child labels lblP to lblRF, lblLH and lblRH at the
// plate and lblBR1 to lblBR3 at the bases, which it places by their names.
class FieldView : public QWidget {
    Q_OBJECT

  public:
    explicit FieldView(QWidget* parent = nullptr);

    void SetLabels(const FieldLabels& labels);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Set(const char* name, const FieldLabel& label, const char* role);
    void Place();
};

}  // namespace tarvane
