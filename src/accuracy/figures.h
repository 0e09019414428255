#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "accuracy/counts.h"
#include "core/database.h"

namespace tarvane {

// The totals of one season, real or replayed, in one form, so that the two can be held against each other.

struct LeagueFigures {
    int lgIdx = 0;
    std::string name;
    Counts counts;
};

struct TeamFigures {
    std::string teamID, name;
    int lgIdx = 0;
    double games = 0, W = 0, L = 0, RF = 0, RA = 0;
};

// At bats and what came of them; in all, or against pitchers of one hand.
struct BattingFigures {
    double AB = 0, H = 0, Doubles = 0, Triples = 0, HR = 0, BB = 0, SO = 0, HBP = 0, SH = 0, SF = 0;
    double PA() const { return AB + BB + HBP + SH + SF; }
};

// A man and his club's code: who played for two clubs stands twice.
using ManKey = std::pair<std::string, std::string>;

struct BatterFigures {
    std::string name;
    std::int32_t bats = 0;  // kLeftHand, kRightHand, kSwitchHitter; 0: unknown
    BattingFigures total, vsLeft, vsRight;
    bool SORecorded = true;  // some leagues didn't count their batters' strikeouts
};

struct PitcherFigures {
    std::string name;
    double BF = 0, H = 0, HR = 0, BB = 0, SO = 0, G = 0, GS = 0, IPOuts = 0;
};

// Both teams together in the games at a club's home and in its games on the road.
struct ParkFigures {
    std::string teamID;
    double homeGames = 0, roadGames = 0, homeRuns = 0, roadRuns = 0, homeAB = 0, roadAB = 0, homeHR = 0, roadHR = 0;
    double homeRunsSquared = 0, roadRunsSquared = 0;  // sums over games, for the noise of a mean
    std::map<std::string, double> roadGamesAt;        // by the host
};

struct SeasonFigures {
    int year = 0;                        // the latest of its teams
    std::vector<LeagueFigures> leagues;  // by lgIdx
    std::vector<TeamFigures> teams;      // by TeamIdx
    std::map<ManKey, BatterFigures> batters;
    std::map<ManKey, PitcherFigures> pitchers;
    std::vector<ParkFigures> parks;  // by TeamIdx; none of the real season, whose games the tables don't hold
    double homeWins = 0, games = 0;  // the same
};

// The real season as the imported statistics have it. A count that less than kRecordedShare of the league's plate
// appearances have is left empty; the strikeouts of batters are then those of the pitchers. Starters' innings are
// estimated (EstimateStarterOuts). Throws UserError if the season holds no real statistics.
SeasonFigures ReadRealFigures(Database& season);
bool HasRealFigures(Database& season);
inline constexpr double kRecordedShare = 0.97;

// What the posted games of the season add up to. Throws UserError if none has been played.
SeasonFigures ReadReplayedFigures(Database& season);

// Books a replay's sacrifice flies as those of the real season were: under SF where it has them, as sacrifices in the
// years of that rule (1908 to 1930 and 1939), else as at bats.
void BookSacrificeFlies(SeasonFigures& replayed, const SeasonFigures& real);

// Outs of the average start from pitchers' season lines: least squares of outs on starts and relief games. Season lines
// don't tell the two apart, so both sides of a comparison go through the same estimate.
struct SeasonLine {
    double G = 0, GS = 0, IPOuts = 0;
};
std::optional<double> EstimateStarterOuts(const std::vector<SeasonLine>& lines);

}  // namespace tarvane
