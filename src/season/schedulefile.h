#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/side.h"
#include "records/position.h"

namespace tarvane {

// Schedules come as Retrosheet's schedule files (12 fields a line: date, game number, day, visitor, its league and game
// number, home team, its league and game number, day or night, postponement, make-up date) or as its game logs (161
// fields a line). Both may end their lines with LF or CRLF and their text with a DOS end-of-file mark. Games stand at
// the date they were made for: postponements and make-up dates are history that a replay doesn't repeat.

// A man as a game log names him.
struct LoggedMan {
    std::string retroID, name;
    Position position = Position::None;
};

// Who began a game for one team: the batting order with the positions, and the starting pitcher, who bats in it unless
// a DH does.
struct LoggedTeam {
    std::array<LoggedMan, 9> nine;
    LoggedMan starter;
};

struct FileGame {
    int line = 0;               // in the file, from 1
    std::string date;           // yyyy-mm-dd; empty if the file has no date there
    PerSide<std::string> code;  // the teams' codes as the file has them
};

struct ScheduleFile {
    std::string name;
    bool gameLog = false;
    std::vector<FileGame> games;              // in the order of the file
    std::vector<PerSide<LoggedTeam>> logged;  // of a game log: one for each game
};

// Reads either kind, told apart by the number of fields. Throws UserError that names file and line for a line that is
// neither. An empty text is a schedule without games.
ScheduleFile ParseScheduleFile(std::string_view text, const std::string& name);

// One line of a schedule file: date (yyyy-mm-dd) and teams, all other fields empty, with CRLF.
std::string ScheduleFileLine(std::string_view date, std::string_view visitorCode, std::string_view homeCode);

}  // namespace tarvane
