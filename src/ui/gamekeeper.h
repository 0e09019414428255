#pragma once

#include <string>
#include <vector>

#include "data/session.h"
#include "engine/gamestate.h"
#include "ui/seasonaccess.h"

namespace tarvane {

// What of a finished game is kept.
struct KeepChoices {
    bool stats = false, boxScore = false, scoreSheet = false;
    char format = 'H';  // 'T' text, 'H' HTML, 'X' workbook
    bool condensed = false, teamLogo = false;
};

// The choices that the settings make.
KeepChoices KeepChoicesOf(const GameSettings& settings, const ScreenSettings& screens);

// Posts a game of the schedule to the open season, all of it or nothing; an exhibition leaves the season alone. Gives
// what was missing in the tables. Throws UserError if the season can't be written: then it is as it was.
std::vector<std::string> KeepGame(Session& session, const PreparedGame& game, const GameState& state,
                                  const KeepChoices& choices);

}  // namespace tarvane
