#include "ui/theme.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOptionButton>
#include <QVariant>
#include <QWidget>
#include <algorithm>

#include "ui/icon.h"

namespace tarvane {

namespace {

// One sheet for all screens. Controls say what they are by the dynamic property "role".
constexpr const char* kStyleSheet = R"(
QMainWindow, QWidget[screen="true"], QDialog { background: #1D4D36; }
QMenuBar { background: #103021; color: #F6F0DD; }
QMenuBar::item { padding: 4px 10px; background: transparent; }
QMenuBar::item:selected { background: #3B7A5A; }
QMenu { background: #FBF8EC; color: #26251F; border: 1px solid #D8CDAE; }
QMenu::item { padding: 5px 24px; }
QMenu::item:selected { background: #1D4D36; color: #F6F0DD; }

QLabel { color: #F6F0DD; }
QLabel[role="title"] { font-weight: bold; }
QLabel[role="hint"], QLabel[role="status"] { color: #DCE6D2; }
QLabel[role="caption"] { font-weight: bold; color: #E8BE54; }
QLabel[role="season"] { font-weight: bold; color: #F6F0DD; }
QLabel[role="splash"] { background: #103021; color: #F6F0DD; padding: 10px; }
QFrame[role="card"] { background: #F6F0DD; border-radius: 6px; }
QFrame[role="card"] QLabel { color: #26251F; }
QFrame[role="card"] QLabel[role="caption"] { color: #8A3D1E; }

QGroupBox { color: #26251F; border: 1px solid #D8CDAE; border-radius: 4px; margin-top: 10px; padding-top: 8px; font-weight: bold; }
QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0 4px; }
QGroupBox:disabled { color: #6F6959; }
QRadioButton, QCheckBox { color: #26251F; spacing: 6px; font-weight: normal; }
QCheckBox[role="plain"] { color: #F6F0DD; }
QTabBar::tab { background: #2C6448; color: #F6F0DD; border: 1px solid #4C8A69; padding: 6px 16px; }
QTabBar::tab:selected { background: #F6F0DD; color: #26251F; font-weight: bold; }
QTabBar:focus { outline: none; }
QScrollArea, QScrollArea > QWidget > QWidget#page { background: transparent; }
QTableWidget { alternate-background-color: #F3ECD6; }
QRadioButton:disabled, QCheckBox:disabled { color: #6F6959; }

QPushButton { background: #F6F0DD; color: #26251F; border: 1px solid #C9BD98; border-radius: 4px; padding: 5px 5px; }
QPushButton:hover { background: #FFFBEF; border-color: #E8BE54; }
QPushButton:pressed { background: #E3D9BC; }
QPushButton:checked { background: #E8BE54; border: 2px solid #26251F; padding: 4px 4px; }
QPushButton:focus { border: 2px solid #E8BE54; padding: 4px 4px; }
QPushButton:disabled { background: #54735F; color: #C3CDBF; border-color: #476553; }
QPushButton[role="primary"] { background: #E8BE54; border-color: #C49A30; font-weight: bold; padding: 7px 12px; }
QPushButton[role="primary"]:hover { background: #F3CF70; }
QPushButton[role="primary"]:focus { border: 2px solid #FFFFFF; padding: 6px 11px; }
QPushButton[role="primary"]:disabled { background: #54735F; color: #C3CDBF; border-color: #476553; }
QPushButton[role="quiet"] { padding: 5px 10px; background: #2C6448; color: #F6F0DD; border-color: #4C8A69; }
QPushButton[role="quiet"]:hover { background: #38755A; }
QPushButton[role="quiet"]:disabled { background: #25563D; color: #93AD9C; border-color: #35664C; }

QComboBox QAbstractItemView { background: #FBF8EC; color: #26251F; selection-background-color: #1D4D36;
                              selection-color: #F6F0DD; }

QTableWidget, QListWidget, QPlainTextEdit { background: #FBF8EC; color: #26251F; border: 1px solid #C9BD98;
    gridline-color: #D8CDAE; selection-background-color: #1D4D36; selection-color: #F6F0DD; }
QTableWidget:focus, QListWidget:focus, QPlainTextEdit:focus { border: 1px solid #E8BE54; }
QHeaderView::section { background: #E6DCBF; color: #26251F; border: none; border-right: 1px solid #D8CDAE;
    border-bottom: 1px solid #C9BD98; padding: 1px 3px; font-weight: bold; }
QListWidget::item { padding: 5px 8px; border: none; background: transparent; }
QListWidget::item:selected { background: #1D4D36; color: #F6F0DD; }
QToolTip { background: #FBF8EC; color: #26251F; border: 1px solid #C9BD98; }
QScrollBar:vertical { background: #E6DCBF; width: 12px; }
QScrollBar::handle:vertical { background: #A99D7C; border-radius: 5px; min-height: 24px; margin: 1px; }
QScrollBar::add-line, QScrollBar::sub-line { height: 0; width: 0; }
QTableWidget#grdScoreBoard { background: #0B2419; color: #F6F0DD; border: 2px solid #3B7A5A; gridline-color: #1E4533; }
QLabel[role="board"] { background: #0B2419; color: #E8BE54; border-radius: 3px; padding: 3px 12px; font-weight: bold; }
QLabel[role="drop"] { background: #FBF8EC; color: #26251F; border: 2px dashed #A99D7C; border-radius: 6px; padding: 4px 8px; }
QLabel[role="small"] { color: #DCE6D2; }
QLabel[role="bannerline"] { background: #F6F0DD; color: #26251F; border-radius: 4px; padding: 5px 8px; }
QLabel[role="wait"] { background: #A84E2A; color: #FFFFFF; border-radius: 4px; padding: 4px 10px; font-weight: bold; }
QLabel[role="panelname"] { font-weight: bold; }
QLabel[role="die"] { background: #FBF8EC; color: #26251F; border: 1px solid #C9BD98; border-radius: 7px; font-weight: bold; }
QLabel[role="die10"] { background: #A84E2A; color: #FFFFFF; border: 1px solid #7E3619; border-radius: 7px; font-weight: bold; }
QLabel[role="roll"] { color: #E8BE54; font-weight: bold; }
QLabel[role="result"] { background: #2C6448; color: #F6F0DD; border-radius: 4px; font-weight: bold; padding: 1px 6px; }
QLabel[role="fielder"] { background: rgba(11, 36, 25, 205); color: #F6F0DD; border: 1px solid transparent;
    border-radius: 4px; padding: 1px 5px; }
QLabel[role="runner"] { background: #E8BE54; color: #26251F; border: 1px solid #8A6A1B; border-radius: 4px; padding: 1px 5px;
    font-weight: bold; }
QLabel[role="batter"] { background: #FBF8EC; color: #26251F; border: 1px solid #C9BD98; border-radius: 4px; padding: 1px 5px;
    font-weight: bold; }
QLabel[role="fielder"][framed="true"] { border: 2px solid #E8BE54; }
QLabel[role="batter"][framed="true"] { border: 2px solid #D0541F; }
QMessageBox QLabel, QInputDialog QLabel { color: #F6F0DD; }
)";

QPalette HousePalette() {
    QPalette palette;
    palette.setColor(QPalette::Window, theme::kField);
    palette.setColor(QPalette::WindowText, theme::kCream);
    palette.setColor(QPalette::Base, theme::kPaper);
    palette.setColor(QPalette::AlternateBase, theme::kCream);
    palette.setColor(QPalette::Text, theme::kInk);
    palette.setColor(QPalette::Button, theme::kCream);
    palette.setColor(QPalette::ButtonText, theme::kInk);
    palette.setColor(QPalette::Highlight, theme::kField);
    palette.setColor(QPalette::HighlightedText, theme::kCream);
    return palette;
}

// Text on the dark ground is light, the tick in its light box must not be.
class HouseStyle : public QProxyStyle {
  public:
    HouseStyle() : QProxyStyle(QStringLiteral("Fusion")) {}
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        if (element != PE_IndicatorCheckBox) return QProxyStyle::drawPrimitive(element, option, painter, widget);
        QStyleOptionButton box;
        box.QStyleOption::operator=(*option);
        box.palette.setColor(QPalette::Text, theme::kInk);
        QProxyStyle::drawPrimitive(element, &box, painter, widget);
    }
};

// A button pressed by its ALT key clicks a moment later. When its screen has gone by then the click is lost: it would
// open a second screen beside the one that came.
class LateClicks : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() != QEvent::Timer) return false;
        const auto* button = qobject_cast<QAbstractButton*>(object);
        if (button == nullptr || button->isVisible() || button->isCheckable()) return false;
        const QSignalBlocker unheard(object);
        object->event(event);
        return true;
    }
};

}  // namespace

void ApplyTheme(QApplication& application) {
    QApplication::setStyle(new HouseStyle);
    QApplication::setPalette(HousePalette());
    QApplication::setWindowIcon(HouseIcon());
    application.installEventFilter(new LateClicks(&application));
    application.setStyleSheet(QString::fromLatin1(kStyleSheet));
}

void ScaleFonts(QWidget& window, double pixels) {
    const auto sized = [&](double scale) {
        QFont font = window.font();
        font.setPixelSize(std::max(8, static_cast<int>(pixels * scale + 0.5)));
        return font;
    };
    window.setFont(sized(1.0));
    // Under a style sheet children don't take over the window's size by themselves; the inner parts of a control do.
    const auto children = window.findChildren<QWidget*>();
    for (QWidget* child : children) {
        if (child->objectName().isEmpty() || child->objectName().startsWith(QStringLiteral("qt_"))) continue;
        const QVariant scale = child->property("fontScale");
        QFont font = child->font();
        font.setPixelSize(sized(scale.isValid() ? scale.toDouble() : 1.0).pixelSize());
        child->setFont(font);
    }
}

double TextPixels(int width, int height) {
    const double scale = std::min(width / 1024.0, height / 768.0);
    return std::clamp(13.0 * (0.2 + 0.8 * scale), 12.0, 22.0);
}

}  // namespace tarvane
