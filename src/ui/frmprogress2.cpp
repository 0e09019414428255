#include "ui/frmprogress2.h"

#include <fmt/format.h>

#include "ui/qtext.h"
#include "ui_frmprogress2.h"

namespace tarvane {

std::string ClockText(double seconds) {
    const auto whole = static_cast<long>(seconds + 0.5);
    if (whole >= 3600) return fmt::format("{}:{:02}:{:02}", whole / 3600, whole / 60 % 60, whole % 60);
    return fmt::format("{}:{:02}", whole / 60, whole % 60);
}

frmProgress2::frmProgress2(QWidget* parent) : QFrame(parent), ui_(std::make_unique<Ui::frmProgress2>()) {
    ui_->setupUi(this);
}

frmProgress2::~frmProgress2() = default;

void frmProgress2::Show(const QuickPlayProgress& progress, const std::string& game, bool stopping) {
    ui_->lblTask->setText(stopping ? tr("Stopping after the current game ...") : tr("Running Quick Play"));
    ui_->ProgBar->setRange(0, static_cast<int>(progress.total));
    ui_->ProgBar->setValue(static_cast<int>(progress.done));
    ui_->lblGames->setText(QText(fmt::format("{} of {} games", progress.done, progress.total)));
    const bool known = progress.done > 0;
    ui_->lblSpeed->setText(known ? QText(fmt::format("{:.0f} games a second", progress.GamesPerSecond()))
                                 : tr("Loading the teams ..."));
    ui_->lblTimeLeft->setText(known ? QText(ClockText(progress.SecondsLeft()) + " left") : QString());
    ui_->lblGame->setText(QText(game));
}

}  // namespace tarvane
