#include "ui/qtservices.h"

#include <QApplication>
#include <QColorDialog>
#include <QDesktopServices>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

#include "ui/frmchoice.h"
#include "ui/frmdocument.h"
#include "ui/qtext.h"
#include "ui/userlook.h"

namespace tarvane {

namespace {

void Box(QMessageBox::Icon icon, const std::string& text, const std::string& title) {
    QMessageBox box(icon, QText(title), QText(text), QMessageBox::Ok, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

}  // namespace

void QtDialogs::Warn(const std::string& text, const std::string& title) {
    Box(QMessageBox::Warning, text, title);
}

void QtDialogs::Remind(const std::string& text, const std::string& title) {
    Box(QMessageBox::Information, text, title);
}

Reply QtDialogs::Ask(const std::string& text, const std::string& title, bool offerCancel) {
    QMessageBox::StandardButtons buttons = QMessageBox::Yes | QMessageBox::No;
    if (offerCancel) buttons |= QMessageBox::Cancel;
    QMessageBox box(QMessageBox::Question, QText(title), QText(text), buttons, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    switch (box.exec()) {
        case QMessageBox::Yes: return Reply::Yes;
        case QMessageBox::No: return Reply::No;
        default: return offerCancel ? Reply::Cancel : Reply::No;
    }
}

int QtDialogs::Choose(const std::string& text, const std::string& title, const std::string& first,
                      const std::string& second) {
    frmChoice choice(text, title, first, second, QApplication::activeWindow());
    choice.exec();
    return choice.Way();
}

int QtDialogs::Pick(const std::string& text, const std::string& title, const std::vector<std::string>& choices) {
    QStringList items;
    for (const std::string& choice : choices) items << QText(choice);
    bool taken = false;
    const QString item =
        QInputDialog::getItem(QApplication::activeWindow(), QText(title), QText(text), items, 0, false, &taken);
    return taken ? static_cast<int>(items.indexOf(item)) : -1;
}

void QtDialogs::ShowDocument(const std::string& text, const std::string& title) {
    frmDocument(text, title, QApplication::activeWindow()).exec();
}

std::optional<std::uint32_t> QtDialogs::PickColor(std::uint32_t color) {
    const QColor chosen =
        QColorDialog::getColor(ColorOf(static_cast<std::int32_t>(color)), QApplication::activeWindow());
    if (!chosen.isValid()) return std::nullopt;
    return static_cast<std::uint32_t>(StoredColor(chosen));
}

std::optional<std::filesystem::path> QtDialogs::OpenFile(const std::string& title, const std::filesystem::path& folder,
                                                         const std::string& filter) {
    const QString name = QFileDialog::getOpenFileName(QApplication::activeWindow(), QText(title),
                                                      QString::fromStdString(folder.string()), QText(filter));
    if (name.isEmpty()) return std::nullopt;
    return std::filesystem::path(name.toStdString());
}

std::optional<std::filesystem::path> QtDialogs::SaveFile(const std::string& title, const std::filesystem::path& folder,
                                                         const std::string& name, const std::string& filter) {
    const QString file =
        QFileDialog::getSaveFileName(QApplication::activeWindow(), QText(title), QText((folder / name).string()),
                                     QText(filter), nullptr, QFileDialog::DontConfirmOverwrite);
    if (file.isEmpty()) return std::nullopt;
    return std::filesystem::path(file.toStdString());
}

void DesktopBrowser::Open(const std::string& address) {
    QDesktopServices::openUrl(QUrl(QText(address)));
}

}  // namespace tarvane
