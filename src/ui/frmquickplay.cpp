#include "ui/frmquickplay.h"

#include "ui/qtext.h"
#include "ui/theme.h"
#include "ui_frmquickplay.h"

namespace tarvane {

frmQuickPlay::frmQuickPlay(std::vector<QuickPlayChoice> choices, Services services, QWidget* parent)
    : QDialog(parent), choices_(std::move(choices)), services_(services), ui_(std::make_unique<Ui::frmQuickPlay>()) {
    ui_->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    for (const QuickPlayChoice& choice : choices_) ui_->cmbGamePlayOptions->addItem(QText(choice.text));
    ui_->cmbGamePlayOptions->setPlaceholderText(tr("How far?"));
    ui_->cmbGamePlayOptions->setCurrentIndex(-1);
    ui_->chkPlay->setDefault(true);
    if (parent != nullptr) ScaleFonts(*this, TextPixels(parent->width(), parent->height()));
    connect(ui_->chkPlay, &QPushButton::clicked, ui_->cmdPlay, &QPushButton::click);
    connect(ui_->chkCancel, &QPushButton::clicked, ui_->cmdCancel, &QPushButton::click);
    connect(ui_->cmdPlay, &QPushButton::clicked, this, &frmQuickPlay::Play);
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmQuickPlay::~frmQuickPlay() = default;

void frmQuickPlay::Play() {
    const int chosen = ui_->cmbGamePlayOptions->currentIndex();
    if (chosen < 0) {
        services_.dialogs.Warn("Please choose a quick play option.", "Quick Play Options");
        return;
    }
    const int inning = choices_[static_cast<std::size_t>(chosen)].throughInning;
    const bool spectator = ui_->chkSpectatorMode->isChecked();
    accept();
    Q_EMIT Chosen(inning, spectator);
}

}  // namespace tarvane
