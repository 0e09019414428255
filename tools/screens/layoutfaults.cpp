#include "layoutfaults.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QPushButton>
#include <QRadioButton>

namespace tarvane {
namespace {

constexpr int kSlack = 2;  // pixels that styles round by

QString NameOf(const QWidget& widget) {
    return widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : widget.objectName();
}

bool PartOfQt(const QWidget& widget) {
    for (const QWidget* at = &widget; at != nullptr && !at->isWindow(); at = at->parentWidget())
        if (at->objectName().startsWith(QStringLiteral("qt_")) || at->inherits("QCalendarWidget")) return true;
    return qobject_cast<const QAbstractSpinBox*>(widget.parentWidget()) != nullptr ||
           qobject_cast<const QComboBox*>(widget.parentWidget()) != nullptr;
}

QString TextOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
    return {};
}

// Lists to choose from; heads and grids that only show something are none.
bool IsList(const QWidget& widget) {
    const auto* view = qobject_cast<const QAbstractItemView*>(&widget);
    return view != nullptr && !view->inherits("QHeaderView") &&
           view->selectionMode() != QAbstractItemView::NoSelection;
}

bool IsControl(const QWidget& widget) {
    return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr || qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr || IsList(widget);
}

QList<QWidget*> Seen(const QWidget& screen) {
    QList<QWidget*> seen;
    for (QWidget* widget : screen.findChildren<QWidget*>())
        if (widget->isVisible() && widget->window() == &screen && !PartOfQt(*widget)) seen.append(widget);
    return seen;
}

void FindCutText(const QList<QWidget*>& seen, QStringList& faults) {
    for (const QWidget* widget : seen) {
        const QString text = TextOf(*widget).trimmed();
        if (text.isEmpty()) continue;
        const auto* label = qobject_cast<const QLabel*>(widget);
        const bool wraps = label != nullptr && label->wordWrap();
        const int width = wraps ? 0 : widget->sizeHint().width();
        const int height = wraps ? widget->heightForWidth(widget->width()) : widget->sizeHint().height();
        // A button's text has its style's margins around it; it is cut only when they are used up.
        const int margins = qobject_cast<const QPushButton*>(widget) != nullptr ? 12 : kSlack;
        if (width > widget->width() + margins || height > widget->height() + margins + kSlack)
            faults.append(QStringLiteral("%1 cuts \"%2\": %3x%4 of %5x%6")
                              .arg(NameOf(*widget), text.left(40))
                              .arg(widget->width())
                              .arg(widget->height())
                              .arg(width)
                              .arg(height));
    }
}

void FindOverlaps(const QWidget& screen, const QList<QWidget*>& seen, QStringList& faults) {
    QList<QPair<const QWidget*, QRect>> placed;
    for (const QWidget* widget : seen) {
        if (!IsControl(*widget) && TextOf(*widget).trimmed().isEmpty()) continue;
        const QRect at(widget->mapTo(&screen, QPoint(0, 0)), widget->size());
        const QRect core = at.adjusted(kSlack, kSlack, -kSlack, -kSlack);
        for (const auto& [other, rect] : placed)
            if (rect.intersects(core) && !other->isAncestorOf(widget) && !widget->isAncestorOf(other) &&
                widget->visibleRegion().boundingRect().isValid() && other->visibleRegion().boundingRect().isValid())
                faults.append(QStringLiteral("%1 lies over %2").arg(NameOf(*widget), NameOf(*other)));
        placed.append({widget, core});
    }
}

QChar AltKeyOf(const QWidget& widget) {
    const QString text = TextOf(widget);
    for (int i = 0; i + 1 < text.size(); ++i)
        if (text[i] == QLatin1Char('&')) {
            if (text[i + 1] != QLatin1Char('&')) return text[i + 1].toUpper();
            ++i;
        }
    return {};
}

void FindUnreachable(const QList<QWidget*>& seen, QStringList& faults) {
    QMap<QChar, QString> keys;
    for (const QWidget* widget : seen) {
        if (!widget->isEnabled()) continue;
        const auto* label = qobject_cast<const QLabel*>(widget);
        const QChar key = label != nullptr && label->buddy() == nullptr ? QChar() : AltKeyOf(*widget);
        if (!key.isNull()) {
            if (keys.contains(key))
                faults.append(QStringLiteral("ALT+%1 is %2's and %3's").arg(key).arg(keys[key], NameOf(*widget)));
            keys[key] = NameOf(*widget);
        }
        if (IsControl(*widget) && key.isNull() && (widget->focusPolicy() & Qt::TabFocus) == 0)
            faults.append(QStringLiteral("%1 can't be reached by keyboard").arg(NameOf(*widget)));
    }
}

}  // namespace

QStringList LayoutFaults(const QWidget& screen) {
    QStringList faults;
    const QList<QWidget*> seen = Seen(screen);
    FindCutText(seen, faults);
    FindOverlaps(screen, seen, faults);
    FindUnreachable(seen, faults);
    return faults;
}

}  // namespace tarvane
