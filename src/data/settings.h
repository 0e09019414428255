#pragma once

#include <filesystem>

#include "core/database.h"
#include "core/paths.h"
#include "records/settings.h"

namespace tarvane {

// Reads the row of GameSettings. A port of 5010 becomes 1001, in the table too; the newest preferences are read only
// from a DBVersion above 1. Throws DatabaseError if there is no row.
GameSettings LoadGameSettings(Database& common);
void SaveGameSettings(Database& common, const GameSettings& settings);

ScreenSettings LoadScreenSettings(Database& common);
void SaveScreenSettings(Database& common, const ScreenSettings& settings);

// No row leaves all names empty.
GamePlaySounds LoadGamePlaySounds(Database& common);

// Makes the row if there is none.
void SaveGamePlaySounds(Database& common, const GamePlaySounds& sounds);

// The file of a sound of the settings; empty for an empty name.
std::filesystem::path SoundFile(const DataPaths& paths, const std::string& name);
// The picture of the main menu: the one chosen if it is there, else the one that comes with the program.
std::filesystem::path MainMenuImageFile(const DataPaths& paths, const GameSettings& settings);

}  // namespace tarvane
