#pragma once

#include <optional>
#include <string>

namespace tarvane {

// One set of split columns of LahmanBatting (against left- or right-handed pitching).
struct SplitLine {
    int AB = 0, H = 0, Doubles = 0, Triples = 0, HR = 0, RBI = 0, BB = 0, SO = 0, HBP = 0, SH = 0, SF = 0, GIDP = 0;
    friend bool operator==(const SplitLine&, const SplitLine&) = default;
};

// A row of LahmanBatting: a real season line of one player, one club, one stint. An empty value was not recorded.
struct LahmanBattingRow {
    std::string playerID, lgID, teamID, KorvTeamID;
    int yearID = 0, stint = 0, G = 0, AB = 0, R = 0, H = 0, Doubles = 0, Triples = 0, HR = 0, RBI = 0, SB = 0, BB = 0;
    std::optional<int> CS, SO, IBB, HBP, SH, SF, GIDP;
    SplitLine vsLeft, vsRight;
    int HitRunRating = 0;  // seasons the row stands for; 0 is one
};

// A row of LahmanPitching.
struct LahmanPitchingRow {
    std::string playerID, lgID, teamID, KorvTeamID;
    int yearID = 0, stint = 0, W = 0, L = 0, G = 0, GS = 0, CG = 0, SHO = 0, SV = 0, IPouts = 0, H = 0, ER = 0, HR = 0,
        BB = 0, SO = 0;
    std::optional<int> IBB, WP, HBP, BK, GF, BFP, R;
    double ERA = 0;
    double OppAB = 0;  // estimated where the source has no opponents' average
    int EPC = 0;       // seasons the row stands for; 0 is one
};

// A row of LahmanFielding: games and, for outfielders, shares of the club's outfield line, so these can be fractions.
struct LahmanFieldingRow {
    std::string playerID, lgID, teamID, KorvTeamID, Pos;
    int yearID = 0, stint = 0;
    double G = 0, PO = 0, A = 0, E = 0, DP = 0, PB = 0;
};

}  // namespace tarvane
