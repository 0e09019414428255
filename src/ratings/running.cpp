#include "ratings/running.h"

#include <algorithm>
#include <cmath>

#include "base/rounding.h"

namespace tarvane {

namespace {

double FreqScoreOf(double steals, int timesOnFirst) {
    if (timesOnFirst <= 0 || steals <= 0) return 0;
    return std::sqrt(steals / timesOnFirst) / 0.07;
}

double TriplesScoreOf(const LahmanBattingRow& line, int ballsInPlay) {
    if (ballsInPlay == 0 || line.Triples == 0) return 0;
    return static_cast<double>(line.Triples) / ballsInPlay / 0.02 * 10;
}

double RunsScoreOf(const LahmanBattingRow& line) {
    const int timesOnBase = line.H + line.BB - line.HR - line.HBP.value_or(0);
    const int runs = line.R - line.HR;
    if (runs == 0 || timesOnBase == 0) return 0;
    return (static_cast<double>(runs) / timesOnBase - 0.1) / 0.04;
}

double GIDPScoreOf(const LahmanBattingRow& line, int ballsInPlay) {
    if (ballsInPlay == 0) return 0;
    return (0.055 - static_cast<double>(line.GIDP.value_or(0)) / ballsInPlay) / 0.005;
}

constexpr double kBatterStandard = 1.5;
constexpr double kFastest = 5.0;
// Until 1919 nobody counted who was caught. Everybody ran in those years, and in the leagues that began to count about
// 85 were caught for 100 that stole: to read "not counted" as "never caught" would double the steals. (The National
// League didn't count from 1926 to 1950 either, but ran so seldom that 0 comes nearer to its real steals.)
constexpr int kFirstCountedYear = 1920;
constexpr double kCaughtForStolen = 0.85;

int CaughtStealing(const LahmanBattingRow& line) {
    if (line.CS || line.yearID >= kFirstCountedYear) return line.CS.value_or(0);
    return static_cast<int>(RoundHalfEven(line.SB * kCaughtForStolen));
}

}  // namespace

RunningDerivation RateRunning(const LahmanBattingRow& line, bool pitcher) {
    const int CS = CaughtStealing(line);
    const int singles = line.H - (line.Doubles + line.Triples + line.HR);
    const int ballsInPlay = line.AB - line.HR - line.SO.value_or(0);

    RunningDerivation d;
    d.RateScore = ((line.SB + 3.0) / (line.SB + CS + 7.0) - 0.4) * 20;
    d.FreqScore = FreqScoreOf(CS + line.SB, singles + line.BB);
    d.TriplesScore = TriplesScoreOf(line, ballsInPlay);
    d.RunsScore = RunsScoreOf(line);
    d.GIDPScore = GIDPScoreOf(line, ballsInPlay);

    if (d.FreqScore + d.RateScore + d.TriplesScore + d.RunsScore + d.GIDPScore != 0) {
        d.value = (d.FreqScore * 10 + d.RateScore * 10 + d.TriplesScore * 6) / 32;
    }
    if (!pitcher) d.value /= kBatterStandard;
    d.runRating = static_cast<std::uint8_t>(RoundHalfEven(std::clamp(d.value, 0.0, kFastest)));
    d.BuntRating = line.SH.value_or(0) > 0 && line.AB > 0 ? 'A' : 'B';
    return d;
}

}  // namespace tarvane
