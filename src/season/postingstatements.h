#pragma once

#include <optional>
#include <string>

#include "season/teambooks.h"

namespace tarvane {

// What both logs say about a man's game besides his counts.
struct LogHead {
    std::int32_t GameID = 0, PlayerID = 0;
    std::string GameDate, TeamID, Position = " ";
    bool TourneyGame = false;
    FieldingTotals fielding;
    Injury injury;
};
struct BatterLogRow {
    LogHead head;
    BattingTotals total, vsLeft, vsRight;
};
struct PitcherLogRow {
    LogHead head;
    PitchingTotals pitching;
    int PitcherAutoOuts = 0, PitcherRestDays = 0, PitchedOnDay = 0;
    BattingTotals batting;
};

// What a bracket's row says of its game.
struct SeriesGame {
    int series = 0, round = 0;  // round: 1 to 4
    bool losersBracket = false;
    int winsNeeded = 0;
    int winnerTo = 0, loserTo = 0;  // series; 0: none
};

// The statements of the posting, prepared once. Every write tells whether it met its row.
class PostingStatements {
  public:
    // injuries: the season plays with injuries, so their columns are written. tourney: the tournament's tables, whose
    // columns are those of the league's, take the place of them; the logs serve both.
    PostingStatements(Database& season, bool injuries, bool tourney);

    std::optional<TeamBooks> ReadTeam(std::int32_t teamIdx);  // nothing unless there is exactly one row
    void WriteTeam(std::int32_t teamIdx, const TeamBooks& books);

    bool WriteBatter(const std::string& teamID, const Batter& batter);
    bool WritePitcher(const std::string& teamID, const Pitcher& pitcher);
    // Rest and injury of a man who didn't play, where they have changed.
    void WriteIdle(const std::string& teamID, const Batter& batter);
    void WriteIdle(const std::string& teamID, const Pitcher& pitcher);

    // A row by its key alone, whatever team it stands under; nothing if there is none.
    std::optional<Batter> ReadBatter(std::int32_t playerID);
    std::optional<Pitcher> ReadPitcher(std::int32_t playerID);
    void WriteMoved(const Batter& batter);
    void WriteMoved(const Pitcher& pitcher);

    void AddFieldingRow(const std::string& teamID, const std::string& name, std::int32_t playerID,
                        const FielderLine& line);
    void AddLog(const BatterLogRow& row);
    void AddLog(const PitcherLogRow& row);
    void AddWinAgainst(std::int32_t teamIdx, std::int32_t opponentIdx);

    struct ScheduleResult {
        int innings = 0;
        bool divisionGame = false;
        std::string resultsFile1, resultsFile2;
        PerSide<TeamGame> team;
    };
    bool WriteSchedule(std::int32_t gameID, const ScheduleResult& result);
    // Nothing if the bracket has no such game.
    std::optional<SeriesGame> ReadSeriesGame(std::int32_t gameID);
    // Adds a win or a loss to the team's present series; gives its wins, or losses, in it.
    int AddToSeries(std::int32_t teamIdx, const SeriesGame& game, bool won);
    void CountResultsFile();

  private:
    Statement Make(const std::string& sql) { return season_.Prepare(sql); }

    Database& season_;
    bool injuries_, tourney_;
    Statement readTeam_, writeTeam_, writeBatter_, writePitcher_, idleBatter_, idlePitcher_, readBatter_, readPitcher_,
        writeMovedBatter_, writeMovedPitcher_, readFielding_, writeFielding_, addFielding_, batterLog_, pitcherLog_,
        versus_, schedule_, resultsFile_;
};

}  // namespace tarvane
