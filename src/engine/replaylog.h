#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/game.h"

namespace tarvane {

// A game as it was put in: every input, and a fingerprint of the state after each, so that the game can be played again
// and the first step that comes out differently is found. It serves saved scenarios, reports of faults, and the proof
// that two builds play alike. The record holds no rosters and no charts: it is good for the data it was made with.

// The parts of a state that are told apart when a replay differs.
enum class StatePart : std::uint8_t { Situation, Play, Injuries, VisitorTeam, VisitorLines, HomeTeam, HomeLines };
inline constexpr std::size_t kStateParts = 7;
std::string_view StatePartText(StatePart part);

// A fingerprint of each part, taken field by field: padding counts for nothing, every field for something.
using StateHash = std::array<std::uint32_t, kStateParts>;
StateHash HashState(const GameState& state);

// Of all that a play reads from the data of a game: the compiled charts, the men's ratings and the rules. Names,
// statistics and pictures are left out.
std::uint64_t HashGameData(const GameData& data);

struct ReplayStep {
    Input input;
    StateHash after{};
};

struct ReplayLog {
    std::uint64_t dataHash = 0;
    StateHash startHash{};
    std::vector<ReplayStep> steps;
};

// A log of the game that begins in this state, with no steps yet.
ReplayLog StartReplayLog(const GameData& data, const GameState& start);
// Notes an input that has been taken, and the state that it led to.
void AddReplayStep(ReplayLog& log, const Input& input, const GameState& after);

// The record as text: a head, a line for each input, and an end line that tells a cut-off file.
std::string WriteReplayLog(const ReplayLog& log);
// Reads it back. name is the file's, for messages. Throws UserError "<name>, line <n>: <field> ..." for anything that
// isn't a record of this format.
ReplayLog ParseReplayLog(std::string_view text, const std::string& name);

// How a replay ended. At the first difference it stops: difference then says which step (from 1; 0 is the start itself)
// and what was different, and state is as this program plays that step.
struct ReplayResult {
    bool same = true;
    std::size_t step = 0;
    std::string difference;
    GameState state;
};
ReplayResult Replay(const GameData& data, const GameState& start, const ReplayLog& log);

}  // namespace tarvane
