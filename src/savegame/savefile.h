#pragma once

#include <filesystem>

#include "savegame/savegame.h"

namespace tarvane {

inline constexpr std::int32_t kExhibitionGameID = 0;

// Where a game of a season is saved: SaveGame<GameID>.txt for one of the schedule or of a tournament; the one
// exhibition game that there is at a time has GameID 0 and is ExhGame.txt.
std::filesystem::path SaveGameFile(const std::filesystem::path& seasonFolder, std::int32_t GameID);

// Writes a game whole or not at all; an earlier save of it gives way. Throws UserError that names the file.
void WriteSaveFile(const std::filesystem::path& file, const SavedGame& game);

// Takes a game up again from its file: rosters, charts, park and year as they stood; the rules, the game's charts, the
// defensive era and the real statistics from the tables. Throws UserError that says what is wrong, also if the
// file is of another game than its name says; the file stays.
SavedGame ResumeSavedGame(Database& common, Database& season, const std::filesystem::path& file);

// Takes the file of a game away that is over or given up. Throws UserError if it can't be deleted.
void DeleteSavedGame(const std::filesystem::path& file);

// Brings the season's figures of both rosters (counts, rates, rest, injuries) to what the tables hold now: games may
// have been posted since the game was begun, and the posting adds to what the rosters say. Ratings and charts stay. To
// be called with the game over, before it is posted.
void TakeSeasonFigures(Database& season, GameData& data, int daysReduced);

}  // namespace tarvane
