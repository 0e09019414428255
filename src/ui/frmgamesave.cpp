// Leaving a game that isn't over.

#include "base/error.h"
#include "savegame/savefile.h"
#include "ui/frmgame.h"
#include "ui/gamequestions.h"

namespace tarvane {

namespace {
constexpr const char* kQuitTitle = "Tarvane PC Baseball Game Play";
}

bool frmGame::MayClose() {
    if (mayClose_ || session_.Over()) return true;
    services_.sound.Stop();
    services_.sound.Beep();
    // A result that is being shown stays while he thinks.
    const int left = pause_.isActive() ? pause_.remainingTime() : -1;
    pause_.stop();
    show_->Hold(true);
    const Question question = QuitQuestion(session_.Game());
    const Reply reply = services_.dialogs.Ask(question.text, question.title, true);
    if (reply == Reply::No) GiveUp();
    if (reply == Reply::No || (reply == Reply::Yes && SaveGame())) return true;
    if (left >= 0) pause_.start(left);
    show_->Hold(false);
    return false;
}

bool frmGame::SaveGame() {
    if (saveFile_.empty()) {
        services_.dialogs.Warn("The game can't be saved: there is no season on the disk to keep it in.", kQuitTitle);
        return false;
    }
    try {
        SavedGame game = session_.Saved();
        game.MusicClipPlayed = sounds_.SongsPlayed();
        game.seconds = secondsBefore_ + static_cast<double>(clock_.elapsed()) / 1000;
        WriteSaveFile(saveFile_, game);
    } catch (const UserError& failure) {  // the game is still on the screen: he can make room and try again
        services_.dialogs.Warn(failure.what(), kQuitTitle);
        return false;
    }
    Q_EMIT Saved();
    return true;
}

// A game that isn't kept takes its file with it.
void frmGame::GiveUp() {
    if (saveFile_.empty()) return;
    try {
        DeleteSavedGame(saveFile_);
    } catch (const UserError& failure) {
        services_.dialogs.Warn(failure.what(), kQuitTitle);
    }
}

}  // namespace tarvane
