#pragma once

#include <vector>

#include "savegame/savefields.h"
#include "savegame/savegame.h"

namespace tarvane {

// The trailing block of a save file: what the records before it lack for the game to go on as if it had never been put
// away. It begins with a mark and a version; its last line closes the file with a fingerprint of all before it.
inline constexpr int kSaveBlockVersion = 1;

// Throws UserError if the block is of a later program.
void SaveBlockMark(SaveFields& f);

// Everything between the mark and the closing line. The lines of the box score are in the state already; sheetMen takes
// the men of the score sheet's rows.
void SaveBlock(SaveFields& f, SavedGame& game, PerSide<std::vector<ScoreSheetRow>>& sheetMen);

// A fingerprint of the state, by which a reader knows that nothing of it was forgotten.
void SaveStateMark(SaveFields& f, const GameState& state);

}  // namespace tarvane
