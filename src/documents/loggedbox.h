#pragma once

#include "core/database.h"
#include "documents/boxdocument.h"

namespace tarvane {

// The box score of a posted game from the season's logs: all but the innings, the places in the field after the first,
// the automatic outs' column and the averages, which no log holds. Throws UserError for a game that isn't there or
// hasn't been played.
BoxDocument LoggedBox(Database& season, std::int32_t gameID);

// The name of the game's box score file, empty if none was written. Throws as above.
std::string BoxScoreFileOf(Database& season, std::int32_t gameID);

}  // namespace tarvane
