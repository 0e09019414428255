#include "ui/chartgrid.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

#include "ui/theme.h"

namespace tarvane {

namespace {

constexpr int kRowCount = 33;
constexpr int kSignRole = Qt::UserRole;
constexpr int kMarkedRole = Qt::UserRole + 1;
const QColor kRolledGround{0x80, 0x80, 0xFF};

// Paints a cell with its sign at the left and a frame around the row of the roll.
class ChartDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const QRect area = option.rect;
        painter->fillRect(area, index.data(Qt::BackgroundRole).value<QBrush>());
        const QColor text = index.data(Qt::ForegroundRole).value<QBrush>().color();
        const double side = area.height() * 0.42;
        const QRectF box(area.left() + 5, area.center().y() - side / 2 + 0.5, side, side);
        PaintSign(*painter, static_cast<CellSign>(index.data(kSignRole).toInt()), box, text);
        painter->setPen(text);
        painter->setFont(index.data(Qt::FontRole).value<QFont>());
        const int flags = Qt::AlignCenter | (index.row() == 0 ? static_cast<int>(Qt::TextWordWrap) : 0);
        painter->drawText(area.adjusted(3, 0, -3, 0), flags, index.data().toString());
        if (index.data(kMarkedRole).toBool()) {
            painter->setRenderHint(QPainter::Antialiasing, false);
            painter->setPen(QPen(theme::kInk, 2));
            painter->drawLine(area.topLeft() + QPoint(0, 1), area.topRight() + QPoint(1, 1));
            painter->drawLine(area.bottomLeft(), area.bottomRight() + QPoint(1, 0));
        }
        painter->restore();
    }
};

// A blank cell of the park or the year changes nothing: it keeps only a breath of its colour.
CellLook FaintIfBlank(const ChartCell& cell) {
    CellLook look = LookOf(cell);
    if (cell.text.find_first_not_of(' ') != std::string::npos) return look;
    const auto mix = [](int color, int paper) { return (color + 4 * paper) / 5; };
    look.ground = QColor(mix(look.ground.red(), theme::kPaper.red()), mix(look.ground.green(), theme::kPaper.green()),
                         mix(look.ground.blue(), theme::kPaper.blue()));
    look.sign = CellSign::None;
    return look;
}

}  // namespace

CellLook LookOf(CellColor color) {
    switch (color) {
        case CellColor::Green: return {QColor(0xB5, 0xDC, 0xA9), QColor(0x14, 0x33, 0x1B), CellSign::Dot};
        case CellColor::Red: return {QColor(0xEC, 0xA3, 0x92), QColor(0x40, 0x10, 0x08), CellSign::Square};
        case CellColor::Blue: return {QColor(0x9A, 0xBF, 0xE6), QColor(0x0B, 0x23, 0x42), CellSign::Triangle};
        case CellColor::Yellow: return {QColor(0xF6, 0xDF, 0x86), QColor(0x3A, 0x2D, 0x00), CellSign::Diamond};
        case CellColor::White: return {QColor(0xFF, 0xFF, 0xFF), theme::kInk, CellSign::Ring};
        case CellColor::Other: break;
    }
    return {theme::kPaper, theme::kInk, CellSign::None};
}

CellLook LookOf(const ChartCell& cell) {
    CellLook look = LookOf(CellColorFromWord(cell.color));
    const bool blank = cell.text.find_first_not_of(' ') == std::string::npos;
    if (blank && look.sign == CellSign::Ring) look.sign = CellSign::None;  // white and empty says nothing
    return look;
}

void PaintSign(QPainter& painter, CellSign sign, const QRectF& box, const QColor& color) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    const QPointF middle = box.center();
    switch (sign) {
        case CellSign::None: break;
        case CellSign::Dot: painter.drawEllipse(box); break;
        case CellSign::Square: painter.drawRect(box.adjusted(0.5, 0.5, -0.5, -0.5)); break;
        case CellSign::Triangle:
            painter.drawPolygon(QPolygonF{{QPointF(middle.x(), box.top()), box.bottomRight(), box.bottomLeft()}});
            break;
        case CellSign::Diamond:
            painter.drawPolygon(
                QPolygonF{{QPointF(middle.x(), box.top() - 1), QPointF(box.right() + 1, middle.y()),
                           QPointF(middle.x(), box.bottom() + 1), QPointF(box.left() - 1, middle.y())}});
            break;
        case CellSign::Ring:
            painter.setBrush(Qt::NoBrush);
            painter.setPen(QPen(color, 1.4));
            painter.drawEllipse(box);
            break;
    }
}

ChartGrid::ChartGrid(QWidget* parent) : QTableWidget(kRowCount, 4, parent) {
    horizontalHeader()->hide();
    verticalHeader()->hide();
    horizontalHeader()->setMinimumSectionSize(20);
    verticalHeader()->setMinimumSectionSize(0);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::NoSelection);
    setItemDelegate(new ChartDelegate(this));
    setTabKeyNavigation(false);
    setShowGrid(true);
    connect(this, &QTableWidget::cellClicked, this, [this](int row, int) {
        if (row >= 1 && row <= static_cast<int>(kChartRows)) Q_EMIT RollChosen(row + kFirstRoll - 1);
    });
}

QTableWidgetItem* ChartGrid::Cell(int row, int column) {
    QTableWidgetItem* cell = item(row, column);
    if (cell == nullptr) {
        cell = new QTableWidgetItem;
        setItem(row, column, cell);
    }
    return cell;
}

void ChartGrid::SetChart(const SheetView& chart, int roll) {
    setUpdatesEnabled(false);
    setColumnCount(chart.columns + 1);
    Heads(chart);
    Rows(chart, roll);
    ExtraRow(31, chart.extraLabel31, chart.extraText31);
    ExtraRow(32, chart.extraLabel32, chart.extraText32);
    ShareHeight();
    setUpdatesEnabled(true);
}

void ChartGrid::Heads(const SheetView& chart) {
    for (int column = 0; column <= chart.columns; ++column) {
        QTableWidgetItem* cell = Cell(0, column);
        QString text = QStringLiteral("Roll");
        if (column == 1) text = QString::fromStdString(chart.title.empty() ? chart.head[0] : chart.title);
        if (column > 1) text = QString::fromStdString(chart.head[static_cast<std::size_t>(column - 1)]);
        cell->setText(text);
        cell->setToolTip(text);
        cell->setBackground(theme::kBoard);
        cell->setForeground(theme::kCream);
        cell->setData(kSignRole, 0);
    }
}

void ChartGrid::Rows(const SheetView& chart, int roll) {
    for (int i = 0; i < static_cast<int>(kChartRows); ++i) {
        const bool rolled = i + kFirstRoll == roll;
        QTableWidgetItem* number = Cell(i + 1, 0);
        number->setText(QString::number(i + kFirstRoll));
        number->setBackground(rolled ? kRolledGround : QColor(Qt::white));
        number->setForeground(theme::kInk);
        number->setData(kMarkedRole, rolled);
        number->setData(kSignRole, 0);
        for (int column = 1; column <= chart.columns; ++column) {
            const ChartCell& cell = chart.cell[static_cast<std::size_t>(column - 1)][static_cast<std::size_t>(i)];
            const CellLook look = column == 1 ? LookOf(cell) : FaintIfBlank(cell);
            QTableWidgetItem* shown = Cell(i + 1, column);
            shown->setText(QString::fromStdString(cell.text).trimmed());
            shown->setBackground(look.ground);
            shown->setForeground(look.text);
            shown->setData(kSignRole, static_cast<int>(look.sign));
            shown->setData(kMarkedRole, rolled);
        }
    }
}

void ChartGrid::ExtraRow(int row, const std::string& label, const std::string& text) {
    setRowHidden(row, label.empty() && text.empty());
    for (int column = 0; column < columnCount(); ++column) {
        QTableWidgetItem* cell = Cell(row, column);
        cell->setText(column == 0   ? QString::fromStdString(label)
                      : column == 1 ? QString::fromStdString(text)
                                    : QString());
        cell->setBackground(theme::kCream);
        cell->setForeground(theme::kInk);
        cell->setData(kSignRole, 0);
    }
}

// The head is two rows high; what whole pixels leave over goes to the first rows, one each.
void ChartGrid::ShareHeight() {
    int rows = 0;
    for (int row = 1; row < rowCount(); ++row)
        if (!isRowHidden(row)) ++rows;
    const int height = viewport()->height();
    const int each = std::max(12, static_cast<int>(height / (rows + 2.1)));
    setRowHeight(0, each * 2);
    int spare = height - each * (rows + 2);
    for (int row = 1; row < rowCount(); ++row)
        if (!isRowHidden(row)) setRowHeight(row, each + (spare-- > 0 ? 1 : 0));

    QFont font = this->font();
    font.setPixelSize(std::clamp(static_cast<int>(each * 0.68), 9, 22));
    QFont bold = font;
    bold.setBold(true);
    QFont head = font;
    head.setPixelSize(std::clamp(static_cast<int>(each * 0.62), 9, 18));
    for (int row = 0; row < rowCount(); ++row)
        for (int column = 0; column < columnCount(); ++column)
            if (QTableWidgetItem* cell = item(row, column)) cell->setFont(row == 0 ? head : column < 2 ? bold : font);

    const int width = viewport()->width();
    const int rolls = std::max(30, each * 2);
    setColumnWidth(0, rolls);
    for (int column = 1; column < columnCount(); ++column) {
        const int left = (width - rolls) / (columnCount() - 1);
        setColumnWidth(column, column + 1 == columnCount() ? width - rolls - left * (columnCount() - 2) : left);
    }
}

void ChartGrid::resizeEvent(QResizeEvent* event) {
    QTableWidget::resizeEvent(event);
    ShareHeight();
}

void ChartGrid::keyPressEvent(QKeyEvent* event) {
    const int row = currentRow();
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && row >= 1 &&
        row <= static_cast<int>(kChartRows)) {
        Q_EMIT RollChosen(row + kFirstRoll - 1);
        return;
    }
    if (event->key() == Qt::Key_Escape) {
        event->ignore();
        return;
    }
    QTableWidget::keyPressEvent(event);
}

}  // namespace tarvane
