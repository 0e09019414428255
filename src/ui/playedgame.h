#pragma once

#include "documents/gamefiles.h"
#include "ui/seasonaccess.h"

namespace tarvane {

// A game under way or over, as its documents and its posting need it.
struct PlayedGame {
    GamePtr setup;
    GameState state;
    ScoreSheet sheet;
    long seconds = -1;  // it took so far; below 0: not known

    FinishedGame Facts() const { return {setup->data, state, sheet, seconds}; }
};

}  // namespace tarvane
