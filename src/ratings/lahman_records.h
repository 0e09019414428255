#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/database.h"
#include "records/lahman.h"
#include "records/position.h"

namespace tarvane {

// The real statistics of a season in memory, for screens and for line-ups by actual use.

// A batting line with what follows from it. A row that stands for several seasons is told as one.
struct RealBattingLine {
    SplitLine counts;
    int PA = 0;  // AB, BB and HBP
    double OBP = 0, SLG = 0, AVG = 0, OPS = 0, RunsCreated = 0;
};

// Games at a position, as LahmanFielding has them.
struct RealGamesAt {
    Position position = Position::None;
    double G = 0;
};

struct LahmanRecord {
    std::string playerID, teamID;  // teamID is the season's code
    int stint = 0, yearID = 0;
    int G = 0, R = 0, SB = 0, CS = 0;
    RealBattingLine total, vsLeft, vsRight;
    std::vector<RealGamesAt> positions;  // with games, in the order P, C, 1B, 2B, 3B, SS, LF, CF, RF
};

struct LahmanPitchRecord {
    std::string playerID, teamID;
    int stint = 0, yearID = 0;
    int G = 0, GS = 0, W = 0, L = 0, SV = 0, CG = 0, SHO = 0, IPOuts = 0, BFP = 0, H = 0, ER = 0, HR = 0, BB = 0,
        SO = 0, HBP = 0, WP = 0, BK = 0, OppAB = 0;
    double ERA = 0;
};

// One team's records, or all teams'. Rows of men whom the roster doesn't have are among them.
struct LahmanRecordSet {
    std::vector<LahmanRecord> batters;
    std::vector<LahmanPitchRecord> pitchers;
    int SB = 0, SH = 0;               // sums over all batters
    int vsLeftAB = 0, vsRightAB = 0;  // sums of the split at bats
    int AB = 0, IPOuts = 0;           // sums over all rows

    // Real data is there when somebody batted and somebody pitched.
    bool Present() const { return AB > 0 && IPOuts > 0; }

    // The first record of a man, or null.
    const LahmanRecord* FindBatter(std::string_view LahmanPlayerID) const;
    const LahmanPitchRecord* FindPitcher(std::string_view LahmanPlayerID) const;
};

// The rows whose KorvTeamID is teamID; all rows for "999" or with allTeams.
LahmanRecordSet LoadLahmanRecords(Database& season, std::string_view teamID, bool allTeams = false);

// A line's rates. seasons is the divisor of the counts; 0 and 1 leave them as they are.
RealBattingLine MakeRealBattingLine(SplitLine counts, int seasons);

}  // namespace tarvane
