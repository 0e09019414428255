#pragma once

#include <filesystem>
#include <string>

#include "core/database.h"
#include "documents/scoresheet.h"
#include "records/rules.h"

namespace tarvane {

// What of a game is written into files, and how.
struct GameFilesChoice {
    bool boxScore = false, scoreSheet = false;
    char format = 'H';  // 'T' text, 'H' HTML
    DocumentStyle style;
    std::filesystem::path teamImages;  // folder of the teams' pictures, to show them; empty: don't
    bool Any() const { return boxScore || scoreSheet; }
};

// Names without a path, as the schedule keeps them; a blank where none was written.
struct GameFileNames {
    std::string boxScore = " ", scoreSheet = " ";
};

// "BoxScoreNYA@BOS12.txt" and so on: what stands before the teams goes by the kind of season, and one running number
// serves both documents of a game.
GameFileNames NameGameFiles(const GameFilesChoice& choice, const LeagueRules& rules, const GameData& data, int number);

// Writes the documents into the folder, which is made if it isn't there, each whole or not at all. Throws UserError
// that names the file.
void WriteGameFiles(const std::filesystem::path& folder, const GameFileNames& names, const GameFilesChoice& choice,
                    const BoxDocument& box, const ScoreSheet& sheet);

// What MakeBoxDocument and the score sheet need of a finished game.
struct FinishedGame {
    const GameData& data;
    const GameState& state;
    const ScoreSheet& sheet;
    long seconds = -1;  // it took; below 0: not known
};

// The documents of a game under the season's running number, which the posting of the game counts up. Throws UserError
// that names the file: nothing of the season is changed then.
GameFileNames KeepGameFiles(Database& season, const std::filesystem::path& folder, const GameFilesChoice& choice,
                            const FinishedGame& game);

}  // namespace tarvane
