#pragma once

#include <string>
#include <vector>

#include "data/session.h"

#include "ui/playedgame.h"

namespace tarvane {

// What of a finished game is kept.
struct KeepChoices {
    bool stats = false;
    GameFilesChoice files;
};

// The choices that the settings make.
KeepChoices KeepChoicesOf(const GameSettings& settings, const ScreenSettings& screens);

// Writes the documents of a game, and posts a game of the schedule to the open season, all of it or nothing; an
// exhibition leaves its statistics alone. Gives what was missing in the tables, and the documents that couldn't be
// written: they are no reason to lose the game. Throws UserError if the season can't be written: then it is as it was.
std::vector<std::string> KeepGame(Session& session, const PlayedGame& game, const KeepChoices& choices);

}  // namespace tarvane
