#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/random.h"
#include "documents/scoresheet.h"
#include "manager/computermanager.h"
#include "season/preparedgame.h"

namespace tarvane {

inline constexpr std::size_t kMusicClips = 25;

// What the player of a game remembers beside its state, so that a game taken up again goes on as if it had never been
// put away.
struct SessionMemory {
    Random random{0};      // the dice
    Random decoration{0};  // their faces
    PerSide<ComputerManager::Memory> manager;
    bool arrived = false;                    // the computer managers have not yet been asked before this pitch
    int orders = 0;                          // theirs before this pitch
    PerSide<bool> declined{{false, false}};  // the user has dropped a move of that side before this pitch
    std::optional<Side> proposer;            // a move waits for the user's word
    Input proposed;
    std::string told;  // the running text
};

// A game that was left in its middle.
struct SavedGame {
    PreparedGame game;  // its rosters, charts, park and year are copies of their own
    GameState state;
    ScoreSheet sheet;
    double seconds = 0;  // played so far
    std::array<bool, kMusicClips> MusicClipPlayed{};
    // Nothing in a file without the block of further facts: the dice and the managers then start afresh, and the play
    // with the next pitch.
    std::optional<SessionMemory> session;
};

// Of which game a file is, by its first line.
struct SaveHead {
    PerSide<std::string> teamID, fullName;
    PerSide<std::int32_t> teamIdx{{0, 0}};
    bool scheduled = false;
    std::int32_t GameID = 0;  // 0 in an exhibition
    std::string gameDate;     // yyyy-mm-dd; empty outside the calendar
    std::int32_t parkID = 0, eraID = 0;
};

// The file of a game as text.
std::string WriteSaveGame(const SavedGame& game);

// Fills what isn't in a file: rules, the game's charts, the defensive era; and, where the season still has them, the
// rosters, the park, what managers know. It is called once the head is read.
using FillBasis = std::function<void(const SaveHead& head, PreparedGame& game)>;

// Reads a game back over its basis: what the file holds replaces what the basis says, and men keep the place that they
// have in the file. name is the file's, for messages. Throws UserError "<name>, line <n> (<record>): ..." for anything
// that isn't a whole file as it was written.
SavedGame ReadSaveGame(std::string_view text, const std::string& name, const FillBasis& fill);

}  // namespace tarvane
