#include "ui/menugrid.h"

#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyledItemDelegate>

#include "ui/theme.h"

namespace tarvane {

namespace {

// The grid lights its cells itself: the style adds no focus frame and no glow.
class PlainCells : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver | QStyle::State_Selected);
    }
};

}  // namespace

MenuGrid::MenuGrid(QWidget* parent) : QTableWidget(parent) {
    setRowCount(1);
    horizontalHeader()->hide();
    verticalHeader()->hide();
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    verticalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::NoSelection);
    setWordWrap(true);
    setItemDelegate(new PlainCells(this));
    setMouseTracking(true);
    viewport()->setCursor(Qt::PointingHandCursor);
    setTabKeyNavigation(false);
    connect(this, &QTableWidget::cellClicked, this, [this](int, int column) { Choose(column); });
}

void MenuGrid::SetCommands(const std::vector<MenuCommand>& commands) {
    setColumnCount(static_cast<int>(commands.size()));
    enabled_.clear();
    for (std::size_t i = 0; i < commands.size(); ++i) {
        auto* cell = new QTableWidgetItem(QString::fromStdString(commands[i].text));
        cell->setTextAlignment(Qt::AlignCenter);
        cell->setToolTip(cell->text());
        setItem(0, static_cast<int>(i), cell);
        enabled_.push_back(commands[i].enabled);
    }
    setCurrentCell(0, 0);
    Paint();
}

void MenuGrid::Choose(int column) {
    if (column >= 0 && column < columnCount() && enabled_[static_cast<std::size_t>(column)]) Q_EMIT Chosen(column);
}

void MenuGrid::SetColors(const std::optional<UserColors>& colors) {
    colors_ = colors;
    Paint();
}

void MenuGrid::Paint() {
    for (int column = 0; column < columnCount(); ++column) {
        QTableWidgetItem* cell = item(0, column);
        const bool lit = column == hovered_ || (hasFocus() && column == currentColumn());
        QColor ground = colors_ ? colors_->back : theme::kCream;
        QColor text = colors_ ? colors_->fore : theme::kInk;
        if (!enabled_[static_cast<std::size_t>(column)]) {
            ground = QColor(0xE0, 0xE0, 0xE0);
            text = QColor(0x6A, 0x6A, 0x6A);
        } else if (lit) {
            ground = theme::kGold;
            text = theme::kInk;
        }
        cell->setBackground(ground);
        cell->setForeground(text);
    }
}

void MenuGrid::mouseMoveEvent(QMouseEvent* event) {
    hovered_ = columnAt(event->position().toPoint().x());
    Paint();
    QTableWidget::mouseMoveEvent(event);
}

void MenuGrid::leaveEvent(QEvent* event) {
    hovered_ = -1;
    Paint();
    QTableWidget::leaveEvent(event);
}

void MenuGrid::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space) {
        Choose(currentColumn());
        return;
    }
    QTableWidget::keyPressEvent(event);
    Paint();
}

void MenuGrid::focusInEvent(QFocusEvent* event) {
    QTableWidget::focusInEvent(event);
    Paint();
}

void MenuGrid::focusOutEvent(QFocusEvent* event) {
    QTableWidget::focusOutEvent(event);
    Paint();
}

}  // namespace tarvane
