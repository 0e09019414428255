#include "ui/frmchoice.h"

#include "ui/qtext.h"
#include "ui/theme.h"
#include "ui_frmchoice.h"

namespace tarvane {

frmChoice::frmChoice(const std::string& text, const std::string& title, const std::string& first,
                     const std::string& second, QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmChoice>()) {
    ui_->setupUi(this);
    setWindowTitle(QText(title));
    ui_->lblBanner->setText(QText(text));
    ui_->chkBase->setText(QStringLiteral("&") + QText(first));
    ui_->chkHome->setText(QText(second));
    // "Steal 2B" and "Steal Home" begin alike: the second way takes its last word's letter.
    const auto word = ui_->chkHome->text().lastIndexOf(QLatin1Char(' ')) + 1;
    ui_->chkHome->setText(ui_->chkHome->text().insert(word == 0 ? 1 : word, QLatin1Char('&')));
    connect(ui_->chkBase, &QPushButton::clicked, this, [this] { Choose(0); });
    connect(ui_->chkHome, &QPushButton::clicked, this, [this] { Choose(1); });
    connect(ui_->chkCancel, &QPushButton::clicked, this, &QDialog::reject);
    ScaleFonts(*this, parent == nullptr ? TextPixels(1024, 768) : TextPixels(parent->width(), parent->height()));
}

frmChoice::~frmChoice() = default;

void frmChoice::Choose(int way) {
    way_ = way;
    accept();
}

}  // namespace tarvane
