#include "ui/screen.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>

#include "ui/theme.h"

namespace tarvane {

Screen::Screen(QWidget* parent) : QWidget(parent, Qt::Window) {
    setAttribute(Qt::WA_StyledBackground);
    setProperty("screen", true);
}

void Screen::closeEvent(QCloseEvent* event) {
    if (!MayClose()) {
        event->ignore();
        return;
    }
    event->accept();
    Q_EMIT Closed();
}

void Screen::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    ScaleFonts(*this, TextPixels(width(), height()));
}

void Screen::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (auto* button = qobject_cast<QPushButton*>(focusWidget())) {
            button->click();
            return;
        }
    }
    QWidget::keyPressEvent(event);
}

void Screen::OpenOver(Screen* next) {
    next->setAttribute(Qt::WA_DeleteOnClose);
    connect(next, &Screen::Closed, this, [this] {
        show();
        Returned();
    });
    next->setGeometry(geometry());
    next->setWindowState(windowState());
    next->show();
    hide();
}

}  // namespace tarvane
