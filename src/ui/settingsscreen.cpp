#include "ui/settingsscreen.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/error.h"

namespace tarvane {

namespace {

QPushButton* MakeCommand(const char* name, const QString& text, const char* role, QBoxLayout* to) {
    auto* button = new QPushButton(text);
    button->setObjectName(QString::fromLatin1(name));
    button->setProperty("role", QString::fromLatin1(role));
    to->addWidget(button);
    return button;
}

}  // namespace

SettingsScreen::SettingsScreen(const QString& title, std::string subject, std::string boxTitle, Services services,
                               QWidget* parent)
    : Screen(parent), services_(services), subject_(std::move(subject)), boxTitle_(std::move(boxTitle)) {
    setWindowTitle(QStringLiteral("Tarvane PC Baseball - ") + title);
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(28, 16, 28, 16);
    page->setSpacing(10);
    auto* head = MakeLabel("lblTitle", title);
    head->setProperty("role", "title");
    head->setProperty("fontScale", 1.7);
    page->addWidget(head);
    body_ = new QVBoxLayout;
    body_->setSpacing(10);
    page->addLayout(body_, 1);
    auto* row = new QHBoxLayout;
    commands_ = new QHBoxLayout;
    row->addLayout(commands_);
    status_ = MakeLabel("lblStatus", QString());
    status_->setProperty("role", "status");
    row->addWidget(status_);
    row->addStretch(1);
    save_ = MakeCommand("chkSave", tr("&Save Changes"), "primary", row);
    connect(save_, &QPushButton::clicked, this, [this] { Save(); });
    leave_ = MakeCommand("chkCancel", tr("&Close Window"), "", row);
    connect(leave_, &QPushButton::clicked, this, &QWidget::close);
    page->addLayout(row);
    save_->setEnabled(false);
}

void SettingsScreen::Changed() {
    if (filling_) return;
    save_->setEnabled(true);
    status_->clear();
}

void SettingsScreen::Show() {
    filling_ = true;
    for (const Bound& bound : bound_) bound.show();
    filling_ = false;
    save_->setEnabled(false);
}

void SettingsScreen::Take() {
    for (const Bound& bound : bound_) bound.take();
}

bool SettingsScreen::Save() {
    try {
        if (!Store()) return false;
    } catch (const UserError& failure) {  // what was changed is still on the screen: he can try again
        services_.dialogs.Warn(failure.what(), boxTitle_);
        return false;
    }
    if (save_->hasFocus()) leave_->setFocus();
    save_->setEnabled(false);
    status_->setText(tr("Saved."));
    Q_EMIT Saved();
    return true;
}

bool SettingsScreen::MayClose() {
    if (!save_->isEnabled()) return true;
    const Reply reply = services_.dialogs.Ask(subject_ +
                                                  " have changed. Do you want to save your changes?\n"
                                                  "Click Yes to save changes. Click Cancel to remain on this screen.\n"
                                                  "Click No to leave this screen and discard changes.",
                                              boxTitle_, true);
    return reply == Reply::No || (reply == Reply::Yes && Save());
}

// The commands were made before the controls; the keyboard comes to them last.
void SettingsScreen::showEvent(QShowEvent* event) {
    Screen::showEvent(event);
    if (ordered_) return;
    ordered_ = true;
    QWidgetList others;
    for (QWidget* at = nextInFocusChain(); at != this; at = at->nextInFocusChain())
        if (at != save_ && at != leave_ && (at->focusPolicy() & Qt::TabFocus) != 0) others.append(at);
    if (others.isEmpty()) return;
    setTabOrder(others.back(), save_);
    setTabOrder(save_, leave_);
    others.front()->setFocus();
}

void SettingsScreen::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const QWidget* focus = focusWidget();
    if (enter && qobject_cast<const QPushButton*>(focus) == nullptr &&
        qobject_cast<const QAbstractItemView*>(focus) == nullptr)
        save_->click();
    else
        Screen::keyPressEvent(event);
}

void SettingsScreen::Refuse(const std::string& text, QWidget* control) {
    services_.dialogs.Warn(text, boxTitle_);
    if (control != nullptr) control->setFocus();
}

QVBoxLayout* SettingsScreen::AddCard(QBoxLayout* to, const char* name, const QString& caption) {
    auto* card = new QFrame;
    card->setObjectName(QString::fromLatin1(name));
    card->setProperty("role", "card");
    auto* inside = new QVBoxLayout(card);
    inside->setContentsMargins(14, 10, 14, 10);
    inside->setSpacing(5);
    auto* head = MakeLabel(nullptr, caption);
    head->setObjectName(QStringLiteral("cap") + QString::fromLatin1(name));
    head->setProperty("role", "caption");
    inside->addWidget(head);
    to->addWidget(card);
    return inside;
}

QCheckBox* SettingsScreen::AddCheck(QBoxLayout* to, const char* name, const QString& caption, bool& value) {
    auto* box = new QCheckBox(caption);
    box->setObjectName(QString::fromLatin1(name));
    connect(box, &QCheckBox::toggled, this, &SettingsScreen::Changed);
    Bind([box, &value] { box->setChecked(value); }, [box, &value] { value = box->isChecked(); });
    to->addWidget(box);
    return box;
}

QComboBox* SettingsScreen::MakeList(const char* name, const QStringList& choices, std::function<int()> read,
                                    std::function<void(int)> write) {
    auto* list = new QComboBox;
    list->setObjectName(QString::fromLatin1(name));
    list->addItems(choices);
    connect(list, &QComboBox::currentIndexChanged, this, &SettingsScreen::Changed);
    Bind([list, read] { list->setCurrentIndex(read()); }, [list, write] { write(list->currentIndex()); });
    return list;
}

QComboBox* SettingsScreen::AddList(QBoxLayout* to, const char* name, const QString& label, const QStringList& choices,
                                   std::function<int()> read, std::function<void(int)> write) {
    QComboBox* list = MakeList(name, choices, std::move(read), std::move(write));
    if (label.isEmpty()) {
        to->addWidget(list);
        return list;
    }
    auto* row = new QHBoxLayout;
    auto* text = MakeLabel(nullptr, label);
    text->setObjectName(QStringLiteral("lbl") + QString::fromLatin1(name));
    text->setBuddy(list);
    row->addWidget(text, 1);
    row->addWidget(list);
    to->addLayout(row);
    return list;
}

QLabel* SettingsScreen::MakeLabel(const char* name, const QString& text) {
    auto* label = new QLabel(text);
    if (name != nullptr) label->setObjectName(QString::fromLatin1(name));
    return label;
}

}  // namespace tarvane
