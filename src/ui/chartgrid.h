#pragma once

#include <QTableWidget>

#include "engine/chart.h"
#include "engine/game.h"

namespace tarvane {

// How a chart cell looks: ground and text with good contrast, and a small sign, so that colour is never the only mark.
enum class CellSign { None, Dot, Square, Triangle, Diamond, Ring };
struct CellLook {
    QColor ground, text;
    CellSign sign = CellSign::None;
};
CellLook LookOf(CellColor color);
CellLook LookOf(const ChartCell& cell);
void PaintSign(QPainter& painter, CellSign sign, const QRectF& box, const QColor& color);

// The active chart. Row 0 holds the heads, rows 1 to 30 the rolls 10 to 39, rows 31 and 32 what a sheet adds to them.
// Column 0 holds the roll numbers. The rows share the height there is, and the text grows with them.
class ChartGrid : public QTableWidget {
    Q_OBJECT

  public:
    explicit ChartGrid(QWidget* parent = nullptr);

    // Shows a chart; roll 10 to 39 marks its row, 0 none.
    void SetChart(const SheetView& chart, int roll);

  Q_SIGNALS:
    // A click, or Enter, on the row of a roll.
    void RollChosen(int chartRoll);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Heads(const SheetView& chart);
    void Rows(const SheetView& chart, int roll);
    void ExtraRow(int row, const std::string& label, const std::string& text);
    void ShareHeight();
    QTableWidgetItem* Cell(int row, int column);
};

}  // namespace tarvane
