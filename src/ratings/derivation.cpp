#include "ratings/derivation.h"

namespace tarvane {

BatterDerivation DeriveBatter(const LahmanBattingRow& line, const LeagueBaseline& league, const ChartSettings& settings,
                              int runRating, Random& random) {
    BatterDerivation d;
    d.line = line;
    d.league = league;
    d.F = settings.PAFactorOverride;
    d.NIBBRatio = NonIntentionalShare(line);
    d.runRating = runRating;
    d.vsL = BatterCounts(line.vsLeft, kLeftSampleLimit, d.F, d.NIBBRatio, league, random);
    d.vsR = BatterCounts(line.vsRight, kRightSampleLimit, d.F, d.NIBBRatio, league, random);
    d.control = BatterControl(line, league);
    d.charts = PlaceBatterChart(d.vsL, d.vsR, runRating, random);
    return d;
}

PitcherDerivation DerivePitcher(const LahmanPitchingRow& line, const LahmanBattingRow* battingLine,
                                const LeagueBaseline& league, const ChartSettings& settings, Random& random) {
    PitcherDerivation d;
    d.league = league;
    d.outFactor = settings.PitcherOutFactor;
    d.pitching = DerivePitching(line, league, settings.PitcherOutFactor);
    d.chart = PlacePitchingChart(d.pitching.counts, random);
    d.stockBatting = true;
    if (battingLine != nullptr) {
        d.hasBattingLine = true;
        d.battingLine = *battingLine;
        PitcherBattingCounts batting = PitcherBattingCountsOf(*battingLine, league, random);
        d.stockBatting = !batting.usable;
        d.batting = batting.derivation;
    }
    if (d.stockBatting) {
        d.batChart = StockPitcherBatting();
    } else {
        d.batChart = PlacePitcherBatting(d.batting, random);
        d.control = PitcherControl(d.battingLine, league);
    }
    return d;
}

}  // namespace tarvane
