// The preferences of an open game: their screen, and the look that they ask for.

#include <QMenu>

#include "ui/frmgame.h"
#include "ui/frmsettingsgame.h"
#include "ui/storedseasons.h"
#include "ui/theme.h"
#include "ui/userlook.h"
#include "ui_frmgame.h"

namespace tarvane {

void frmGame::UseSettings(tarvane::Session& session) {
    store_ = &session;
    WearLook();
}

void frmGame::OpenSettings() {
    if (store_ == nullptr) {
        settings_->popup(ui_->chkSettings->mapToGlobal(QPoint(0, -settings_->sizeHint().height())));
        return;
    }
    pause_.stop();  // the game goes on when he comes back
    auto* screen = new frmSettingsGame(*store_, services_);
    connect(screen, &SettingsScreen::Saved, this, [this] {
        GameOptions options = OptionsFrom(*store_);
        options.computer = session_.Options().computer;  // who manages was settled when the game was set up
        session_.Options() = options;
        WearLook();
        Refresh();
        Q_EMIT PreferencesChanged();
    });
    OpenOver(screen);
}

void frmGame::WearLook() {
    const UserLook look = LookFrom(store_->Settings());
    WearColors(*ui_->grdScoreBoard, look.scoreBoard);
    WearColors(*ui_->txtPlayByPlay, look.playByPlay);
    for (const auto& [widget, scale] : {std::pair<QWidget*, double>{ui_->grdScoreBoard, look.scoreBoardScale},
                                        std::pair<QWidget*, double>{ui_->txtPlayByPlay, look.playByPlayScale}}) {
        if (!widget->property("houseScale").isValid())
            widget->setProperty(
                "houseScale", widget->property("fontScale").isValid() ? widget->property("fontScale").toDouble() : 1.0);
        widget->setProperty("fontScale", widget->property("houseScale").toDouble() * scale);
    }
    ScaleFonts(*this, TextPixels(width(), height()));
}

// The user's text colour on a score board of his own; the house's board lights what is new in gold.
void frmGame::ColorScoreBoard() {
    if (store_ == nullptr) return;
    const auto colors = LookFrom(store_->Settings()).scoreBoard;
    if (!colors) return;
    for (int row = 0; row < ui_->grdScoreBoard->rowCount(); ++row)
        for (int column = 0; column < ui_->grdScoreBoard->columnCount(); ++column)
            ui_->grdScoreBoard->item(row, column)->setForeground(colors->fore);
}

}  // namespace tarvane
