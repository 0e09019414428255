#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "core/database.h"
#include "season/schedulefile.h"

namespace tarvane {

// A game before it has a row.
struct NewGame {
    std::string date;  // yyyy-mm-dd
    PerSide<std::int32_t> teamIdx;
};

// Games of the schedule that have been played.
int CountPlayedGames(Database& season);

// Deletes all games and the line-ups fixed for them, and writes the new ones in the order of their dates, those of one
// day in the order given. Gives the GameID of each, in the order given. One transaction.
std::vector<std::int64_t> ReplaceSchedule(Database& season, const std::vector<NewGame>& games);

// Throws UserError that tells what to do if games of the season have been played.
void RefusePlayedSchedule(Database& season);

struct ScheduleImportChoice {
    bool leaveOutUnknown = true;   // games of clubs that the season doesn't have; else they are a fault
    bool keepBeforeFault = false;  // a fault ends the import with the games before it; else it throws and undoes all
    bool lineups = true;           // from a game log: who started
};

// A man of a game log whom the season doesn't have, and in how many games.
struct MissingMan {
    std::string retroID, name;
    bool starter = false;
    int games = 0;

    // The line of the error log.
    std::string LogLine() const;
};

struct ScheduleImportResult {
    int games = 0;
    int leftOut = 0;                     // games
    std::map<std::string, int> unknown;  // codes of clubs that the season doesn't have, and their games
    std::string fault;                   // what ended the import; empty if nothing did
    int lineups = 0;                     // fixed for their games
    int incomplete = 0;                  // left out: a man is missing, or the DH
    int relieversStarting = 0;           // starters who are relievers alone in this season
    std::vector<MissingMan> missing;
};

// Replaces the schedule by that of the file. A fault is a date that is none or (see the choice) an unknown club; its
// text names the line. Line-ups of a game log become line-ups fixed for their games: rows of Lineups with the GameID
// and, as playerIDP, the starting pitcher, whose lineupID stands in the game's VisitorLineupNbr or HomeLineupNbr. A
// nine with a man whom the season doesn't have or a DH missing is left out, so that the computer manager makes one.
ScheduleImportResult ImportSchedule(Database& season, const ScheduleFile& file,
                                    const ScheduleImportChoice& choice = {});

// The schedule as a schedule file, in the order of the dates.
std::string ExportSchedule(Database& season);

}  // namespace tarvane
