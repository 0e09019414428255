#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/database.h"
#include "records/cell.h"

namespace tarvane {

// A check of a season's charts against the statistics they were made from, without playing: the chance of each result
// of a plate appearance follows from the weights of the pitchers' and batters' charts, averaged as the men were used.

enum class AuditResult { Single, Double, Triple, HomeRun, Walk, HitBatter, Strikeout, Error, Out };
inline constexpr std::size_t kAuditResults = 9;
using AuditRates = std::array<double, kAuditResults>;  // shares of plate appearances

inline double& At(AuditRates& rates, AuditResult result) {
    return rates[static_cast<std::size_t>(result)];
}
inline double At(const AuditRates& rates, AuditResult result) {
    return rates[static_cast<std::size_t>(result)];
}
inline void AddTimes(AuditRates& sum, const AuditRates& rates, double weight) {
    for (std::size_t i = 0; i < kAuditResults; ++i) sum[i] += rates[i] * weight;
}

std::string_view AuditResultName(AuditResult result);

// What the charts alone don't say. The model has no park or year chart, no tired pitcher and no error on an out.
struct AuditSettings {
    double autoOutWeight = 2;  // of the 26 of the defence's cells: outs by an average defence
    double hitOnYellowX = 0;   // share of the Yellow X chart that hits the batter; the rest rolls again
    bool BatterBBSORating = true;
};

// The share of hit batters on the chart of Yellow X, from the common database.
double HitBattersOnYellowX(Database& common, bool injuryChart);

struct LeagueAudit {
    int lgIdx = 0;
    double PA = 0;        // AB, BB, HBP and SF
    AuditRates real{};    // of the Lahman rows; errors aren't told there and count as outs
    AuditRates charts{};  // of the charts
};

// One record a league and one for all together (lgIdx 0, the last).
std::vector<LeagueAudit> AuditCharts(Database& season, const AuditSettings& settings);

// The audit as an aligned table: result, real, charts, charts over real.
std::string AuditText(const std::vector<LeagueAudit>& audit);

// ---- the model, for one meeting

// What a pitcher's chart does, by weight of 216.
struct PitchingWeights {
    double swing = 0, hit = 0, out = 0, strikeout = 0, walk = 0, homeRunUp = 0, homeRunDown = 0, defence = 0,
           yellowX = 0;
    double hitBatter = 0, error = 0;
};
PitchingWeights WeightsOfPitchingChart(const ChartCells& cells);

// What a batting chart does, by weight of 216.
AuditRates WeightsOfBattingChart(const ChartCells& cells);

// The chances of a plate appearance. Ratings are 10 to 40; 40 is no test.
AuditRates MeetingRates(const PitchingWeights& pitcher, const AuditRates& batter, int BBRating, int SORating,
                        const AuditSettings& settings);

}  // namespace tarvane
