#pragma once

#include <optional>
#include <string>
#include <vector>

#include "accuracy/figures.h"
#include "accuracy/noise.h"
#include "accuracy/parkfactors.h"

namespace tarvane {

// A season's replays held against the season as it was.

enum class Verdict { None, Aim, Bound, Fail };  // None: nothing to judge by
std::string_view VerdictText(Verdict verdict);  // "", "aim", "ok", "FAIL"

struct RateComparison {
    std::string league;
    const LeagueRate* rate = nullptr;
    std::optional<double> real;
    Estimate replay;
    std::optional<double> Off() const;  // replay over real less 1
    Verdict Judge() const;
};

// Runs are per game, wins those of the club's real number of decisions.
struct TeamComparison {
    std::string teamID, name;
    double games = 0;
    double RF = 0, RA = 0, W = 0, pythagorean = 0;
    Estimate replayRF, replayRA, replayW, replayPythagorean;
};

// A man's rate, real and as the mean over the replays; noise is the standard deviation of a single replay's rate.
struct ManPoint {
    std::string name;
    double real = 0, replay = 0, noise = 0;
};

// How the men's rates scatter about the real ones, in units of noise (NoiseScore), each man once for each replay.
struct SpreadComparison {
    std::string men, what;
    std::vector<ManPoint> points;
    Spread spread;
    double bound = 0, aim = 0;
    Verdict Judge() const;
};

// Use of the men who played much: replay over real per team game.
struct UsageComparison {
    std::string what;
    std::vector<ManPoint> points;  // per team game; no noise
    double within = 0;             // share of men from 0.9 to 1.1
    double median = 0;             // of replay over real
    Verdict Judge() const;
};

// OPS of all batters of a hand against pitchers of a hand; pitchers at bat are left out on both sides.
struct PlatoonComparison {
    std::string batters, pitchers;  // "left", "right", "switch"
    double real = 0;
    Estimate replay;
    Verdict Judge() const;
};

// What happens in a club's park over what happens in its games elsewhere, both teams together: runs a game, and home
// runs an at bat. expected follows from the factors of its park and of those that it visits, runs by the product of on
// base and slugging per out. score: the difference of logarithms over its noise.
struct ParkComparison {
    struct Ratio {
        double replay = 0, expected = 1, score = 0;
    };
    std::string teamID, stadium;
    Ratio runs, HR;
};

struct Comparison {
    int year = 0;
    std::size_t replays = 0;
    std::vector<RateComparison> rates;
    std::vector<TeamComparison> teams;
    double runsError = 0, winsError = 0;  // root mean squares over clubs: shares of real runs, for and against; wins
    double luck = 0;                      // the same of real wins against real Pythagorean wins
    std::vector<SpreadComparison> spreads;
    std::vector<UsageComparison> usage;
    std::vector<PlatoonComparison> platoon;
    std::vector<ParkComparison> parks;
    Estimate homeShare;
};

// What must hold of a comparison, in one list: groups of values that are all to lie within bound of 0 (of spreads and
// root mean squares: below it; of shares: above it).
struct Judgement {
    std::string group, what;
    double value = 0, bound = 0;
    Verdict verdict = Verdict::None;
};
std::vector<Judgement> JudgementsOf(const Comparison& comparison);

// Players and clubs are those of the real season; a replay's men who aren't among them don't count. replays are booked
// as the real season was (BookSacrificeFlies) and must not be empty.
Comparison Compare(const SeasonFigures& real, std::vector<SeasonFigures> replays,
                   const std::map<std::string, ParkFactor>& parks);

inline constexpr double kRegularAB = 300, kRegularBF = 400;
inline constexpr double kRunsBound = 0.04, kRunsAim = 0.03, kWinsBound = 7, kWinsAim = 5.5, kPlatoonBound = 0.03;
inline constexpr double kUsageBound = 0.9;        // share of men from 0.9 to 1.1
inline constexpr double kMeanScoreBound = 0.1;    // of a spread's mean from 0
inline constexpr double kParksWithinNoise = 0.9;  // share of parks with a score from -2 to 2

namespace comparing {
// The parts of Compare.
void CompareMen(const SeasonFigures& real, const std::vector<SeasonFigures>& replays, Comparison& comparison);
void ComparePlatoon(const SeasonFigures& real, const std::vector<SeasonFigures>& replays, Comparison& comparison);
void CompareParks(const std::vector<SeasonFigures>& replays, const std::map<std::string, ParkFactor>& factors,
                  Comparison& comparison);
Verdict Within(double off, double bound, double aim);  // |off| against both
}  // namespace comparing

}  // namespace tarvane
