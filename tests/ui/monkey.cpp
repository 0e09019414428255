#include "ui/monkey.h"

#include <fmt/format.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

namespace tarvane::testing {
namespace {

constexpr std::size_t kRemembered = 60;
constexpr std::chrono::milliseconds kWaits(200);

std::string NameOf(const QWidget& widget) {
    return fmt::format("{} {}", widget.metaObject()->className(), widget.objectName().toStdString());
}

}  // namespace

void RandomDialogs::Note(const char* what, const std::string& title, const std::string& text) {
    ++boxes;
    told(fmt::format("{}: {}: {}", what, title, text));
}

Reply RandomDialogs::Ask(const std::string& text, const std::string& title, bool offerCancel) {
    Note("asked", title, text);
    if (always) return *always;
    // A game is long: he mostly stays in it, else nobody would ever see its later innings.
    if (text.find("quit game") != std::string::npos && random_.Below(20) != 0) return Reply::Cancel;
    // Who is told that his statistics may not fit any more, and wants it so, gets what he wants: nothing to audit.
    if (text.find("become invalid") != std::string::npos) return Reply::Yes;
    return static_cast<Reply>(random_.Below(offerCancel ? 3 : 2));
}

int RandomDialogs::Choose(const std::string& text, const std::string& title, const std::string&, const std::string&) {
    Note("chose", title, text);
    return static_cast<int>(random_.Below(3)) - 1;
}

int RandomDialogs::Pick(const std::string& text, const std::string& title, const std::vector<std::string>& choices) {
    Note("picked", title, text);
    return static_cast<int>(random_.Below(static_cast<std::uint32_t>(choices.size() + 1))) - 1;
}

std::optional<std::filesystem::path> RandomDialogs::AnyFile(const std::string& title) {
    Note("file", title, {});
    const std::size_t i = random_.Below(static_cast<std::uint32_t>(files_.size() + 1));
    if (i == files_.size()) return std::nullopt;
    return files_[i];
}

std::vector<QWidget*> Monkey::Windows() {
    std::vector<QWidget*> windows;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible()) windows.push_back(window);
    // A list that dropped down, or a dialog, is in front of the screen it belongs to.
    std::stable_sort(windows.begin(), windows.end(), [](const QWidget* a, const QWidget* b) {
        const auto rank = [](const QWidget* w) {
            return w == QApplication::activePopupWidget() ? 2 : w == QApplication::activeModalWidget() ? 1 : 0;
        };
        return rank(a) < rank(b);
    });
    return windows;
}

void Monkey::Remember(std::string deed) {
    memory_.push_back(fmt::format("{:{}}{}", "", 2 * depth_, deed));  // further in: while the one before it waits
    if (memory_.size() > kRemembered) memory_.pop_front();
}

std::string Monkey::Memory() const {
    return fmt::format("{}", fmt::join(memory_, "\n"));
}

void Monkey::Act() {
    const std::vector<QWidget*> windows = Windows();
    if (windows.empty()) return;
    // A menu or a box that waits for its answer runs its own loop: the click on what opened it doesn't come back until
    // somebody acts on it.
    ++depth_;
    QTimer stillActing;
    QObject::connect(&stillActing, &QTimer::timeout, [this] { Act(); });
    stillActing.start(kWaits);
    QWidget& window = *windows.back();
    const int kind = Below(10);
    if (kind < 6)
        ClickSomething(window);
    else if (kind < 9)
        TypeSomething(window);
    else
        TurnWheel(window);
    stillActing.stop();
    --depth_;
    QApplication::processEvents();
}

void Monkey::ClickSomething(QWidget& window) {
    std::vector<QWidget*> targets;
    for (QWidget* child : window.findChildren<QWidget*>())
        if (child->isVisible() && child->isEnabled() && !child->size().isEmpty() && child->window() == &window)
            targets.push_back(child);
    if (targets.empty()) targets.push_back(&window);
    // Half of the clicks go to what answers to them.
    std::vector<QWidget*> buttons;
    for (QWidget* target : targets)
        if (qobject_cast<QAbstractButton*>(target) != nullptr) buttons.push_back(target);
    const std::vector<QWidget*>& chosen = !buttons.empty() && Below(2) == 0 ? buttons : targets;
    QWidget* target = chosen[static_cast<std::size_t>(Below(static_cast<int>(chosen.size())))];
    const QPoint at(Below(target->width()), Below(target->height()));
    const int way = Below(20);
    Remember(fmt::format("{} {} of {} at {},{}",
                         way == 0   ? "double click on"
                         : way == 1 ? "right click on"
                                    : "click on",
                         NameOf(*target), NameOf(window), at.x(), at.y()));
    if (way == 0)
        QTest::mouseDClick(target, Qt::LeftButton, {}, at);
    else
        QTest::mouseClick(target, way == 1 ? Qt::RightButton : Qt::LeftButton, {}, at);
}

void Monkey::TypeSomething(QWidget& window) {
    static const Qt::Key keys[]{Qt::Key_Tab,   Qt::Key_Backtab, Qt::Key_Return,   Qt::Key_Escape,    Qt::Key_Space,
                                Qt::Key_Up,    Qt::Key_Down,    Qt::Key_Left,     Qt::Key_Right,     Qt::Key_Home,
                                Qt::Key_End,   Qt::Key_PageUp,  Qt::Key_PageDown, Qt::Key_Backspace, Qt::Key_Delete,
                                Qt::Key_Enter, Qt::Key_F1,      Qt::Key_F5};
    QWidget* focus = window.focusWidget() != nullptr ? window.focusWidget() : &window;
    const int kind = Below(8);
    if (kind < 4) {
        const Qt::Key key = keys[Below(static_cast<int>(std::size(keys)))];
        // Escape leaves the screen: seldom, else nothing else would ever be reached.
        if (key == Qt::Key_Escape && Below(10) != 0) return;
        Remember(fmt::format("key {} in {} of {}", static_cast<int>(key), NameOf(*focus), NameOf(window)));
        QTest::keyClick(focus, key, Below(8) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
    } else if (kind < 6) {
        const int letter = Below(36);
        const auto key = static_cast<Qt::Key>(letter < 26 ? Qt::Key_A + letter : Qt::Key_0 + letter - 26);
        Remember(fmt::format("ALT {} in {} of {}", static_cast<int>(key), NameOf(*focus), NameOf(window)));
        QTest::keyClick(focus, key, Below(4) == 0 ? Qt::ControlModifier : Qt::AltModifier);
    } else {
        static const char* const texts[]{"0",  "-1", "12",    "999999999999",     "1975-04-08", "x", "New York",
                                         "\\", "%s", "'; --", "\xC3\xA9\xC3\xB1", "0.5",        ",", "B"};
        const char* text = texts[Below(static_cast<int>(std::size(texts)))];
        Remember(fmt::format("text {} in {} of {}", text, NameOf(*focus), NameOf(window)));
        const QPointer<QWidget> alive(focus);
        for (const QChar c : QString::fromUtf8(text))
            if (alive) QTest::sendKeyEvent(QTest::Click, alive, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
}

void Monkey::TurnWheel(QWidget& window) {
    const QPoint at(Below(window.width()), Below(window.height()));
    QWidget* target = window.childAt(at);
    if (target == nullptr) return;
    Remember(fmt::format("wheel over {} of {}", NameOf(*target), NameOf(window)));
    const QPoint turn(0, Below(2) == 0 ? 120 : -120);
    QWheelEvent event(QPointF(target->rect().center()), QPointF(target->mapToGlobal(target->rect().center())), {}, turn,
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(target, &event);
}

}  // namespace tarvane::testing
