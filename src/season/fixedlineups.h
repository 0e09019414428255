#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "core/database.h"
#include "records/team.h"
#include "season/loggedplayers.h"
#include "season/scheduleimport.h"

namespace tarvane {

// Writes line-ups that are made for single games, and ties the games to them.
class FixedLineupWriter {
  public:
    explicit FixedLineupWriter(Database& season);
    void Write(const LineupList& list, std::int64_t gameID, Side side);

  private:
    Database& season_;
    Statement insert_;
    PerSide<Statement> tie_;
};

// Writes the line-ups of a game log as line-ups fixed for their games.
class LineupFixer {
  public:
    LineupFixer(Database& season, const std::vector<Team>& teams);

    struct Game {
        std::int64_t gameID = 0;
        std::string date;
        Side side = Side::Visitor;
        std::int32_t teamIdx = 0;
        bool dhUsed = false;
    };
    // A nine in which the pitcher bats can't play a game with a DH: clubs could do without him in their own park, a
    // season can't. Counts what it did, and whom it didn't find, in result.
    void Fix(const Game& game, const LoggedTeam& logged, ScheduleImportResult& result);

  private:
    bool Fill(const std::string& teamID, const LoggedTeam& logged, LineupList& list, ScheduleImportResult& result);
    void NoteMissing(const LoggedMan& man, bool starter, ScheduleImportResult& result);

    const std::vector<Team>& teams_;
    LoggedPlayers players_;
    FixedLineupWriter writer_;
    std::map<std::string, std::size_t> missingAt_;  // place in the result's list
};

}  // namespace tarvane
