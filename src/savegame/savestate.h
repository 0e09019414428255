#pragma once

#include "savegame/saveheader.h"

namespace tarvane {

// The head line of a game, all but the sizes of the score sheet's grids.
SaveHeader MakeSaveHeader(const SavedGame& game);

SaveHead HeadOfSave(const SaveHeader& header);

// What the head line says, put where the game has it.
void TakeHeader(const SaveHeader& header, SavedGame& game);

// The numbers of the box score's lines.
void CountLines(const SaveHeader& header, GameState& state);

// Brings the state of a file without further facts to the next pitch: line-ups from the lines of the box score that are
// active, nothing pending. Fails where the lines make no nine.
void StandAtPitcher(const SaveFields& f, SavedGame& game);

// Every man whom the further facts name is on his team.
void CheckMen(const SaveFields& f, const SavedGame& game);

}  // namespace tarvane
