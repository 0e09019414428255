// Changes of the line-ups from the game screen.

#include "ui/frmgame.h"
#include "ui/frmgamelineups.h"

namespace tarvane {

// Opens the line-ups of a side. A change that the game waits for is told of first.
void frmGame::ChangeLineup(Side side) {
    if (lineupsOpen_) return;
    auto* screen = new frmGameLineups(session_, side, services_);
    const LineupNotice notice = screen->Model().ForcedNotice();
    if (notice.Any()) services_.dialogs.Remind(notice.text, notice.title);
    lineupsOpen_ = true;
    pause_.stop();
    OpenOver(screen);
}

void frmGame::Returned() {
    lineupsOpen_ = false;
    pause_.stop();
    GoOn();
}

}  // namespace tarvane
