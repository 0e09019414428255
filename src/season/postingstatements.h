#pragma once

#include <optional>
#include <string>

#include "season/accounts.h"

namespace tarvane {

// The row of KorvTeams as the posting reads and writes it.
struct TeamBooks {
    int RF = 0, RA = 0, W = 0, L = 0, HomeWins = 0, HomeLosses = 0, DivWins = 0, DivLosses = 0, PitcherAutoOuts = 0;
    double Pct = 0, ERA = 0, WHIP = 0, FieldingPct = 0;
    BattingTotals batting;
    BattingRates rates;
    PitchingTotals pitching;
    FieldingTotals fielding;
};

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

// The statements of the posting, prepared once. Every write tells whether it met its row.
class PostingStatements {
  public:
    // injuries: the season plays with injuries, so their columns are written.
    PostingStatements(Database& season, bool injuries);

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
    void CountResultsFile();

  private:
    Statement Make(const std::string& sql) { return season_.Prepare(sql); }

    Database& season_;
    bool injuries_;
    Statement readTeam_, writeTeam_, writeBatter_, writePitcher_, idleBatter_, idlePitcher_, readBatter_, readPitcher_,
        writeMovedBatter_, writeMovedPitcher_, readFielding_, writeFielding_, addFielding_, batterLog_, pitcherLog_,
        versus_, schedule_, resultsFile_;
};

}  // namespace tarvane
