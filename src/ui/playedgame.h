#pragma once

#include <filesystem>

#include "documents/gamefiles.h"
#include "ui/seasonaccess.h"

namespace tarvane {

// A game under way or over, as its documents and its posting need it.
struct PlayedGame {
    GamePtr setup;
    GameState state;
    ScoreSheet sheet;
    long seconds = -1;                       // it took so far; below 0: not known
    std::filesystem::path resumedFrom = {};  // the file it was taken up from; empty: none

    FinishedGame Facts() const { return {setup->data, state, sheet, seconds}; }
};

}  // namespace tarvane
