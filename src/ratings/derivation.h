#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ratings/batter_chart.h"
#include "ratings/fielding.h"
#include "ratings/pitcher_chart.h"
#include "ratings/running.h"

namespace tarvane {

// The user's choices for a run of the generators.
struct ChartSettings {
    double PAFactorOverride = 0.915;  // F: the share of plate appearances to use as at bats
    double PitcherOutFactor = 1;      // "Pitcher Out Normalization"
};

// All that stands between a batter's statistics and his charts.
struct BatterDerivation {
    LahmanBattingRow line;
    LeagueBaseline league;
    double F = 0;
    double NIBBRatio = 0;
    int runRating = 0;
    CountsDerivation vsL, vsR;
    BattingChartPair charts;
    ControlRatings control;
};

// runRating is the one stored with the player. Draws the error weights of both sides, then lays the charts out.
BatterDerivation DeriveBatter(const LahmanBattingRow& line, const LeagueBaseline& league, const ChartSettings& settings,
                              int runRating, Random& random);

// All that stands between a pitcher's statistics and his charts.
struct PitcherDerivation {
    LeagueBaseline league;
    double outFactor = 1;
    PitchingDerivation pitching;
    PitchingChart chart;
    bool hasBattingLine = false;
    bool stockBatting = false;  // no line, no at bats, or no hit
    LahmanBattingRow battingLine;
    CountsDerivation batting;
    BattingChart batChart;
    ControlRatings control;
};

PitcherDerivation DerivePitcher(const LahmanPitchingRow& line, const LahmanBattingRow* battingLine,
                                const LeagueBaseline& league, const ChartSettings& settings, Random& random);

}  // namespace tarvane
