#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "accuracy/comparison.h"

namespace tarvane {

namespace {

// How league rates are told together.
std::string_view GroupOf(const LeagueRate& rate) {
    if (rate.per == Figure::PA) return "H to HBP a plate appearance";
    switch (rate.figure) {
        case Figure::R: return "runs a game";
        case Figure::Pitchers:
        case Figure::CG:
        case Figure::SV:
        case Figure::SHO:
        case Figure::StarterOuts: return "pitchers, CG, SV, SHO, starters' innings a game";
        default: return "SB, CS, SH, SF, GIDP, E, PB a game";
    }
}

void JudgeParks(const Comparison& comparison, const char* what, ParkComparison::Ratio ParkComparison::*ratio,
                std::vector<Judgement>& lines) {
    if (comparison.parks.empty()) return;
    const auto quiet = std::count_if(comparison.parks.begin(), comparison.parks.end(),
                                     [&](const ParkComparison& park) { return std::abs((park.*ratio).score) <= 2; });
    const double share = static_cast<double>(quiet) / static_cast<double>(comparison.parks.size());
    lines.push_back({"parks, share within noise of their factors", what, share, kParksWithinNoise,
                     share >= kParksWithinNoise ? Verdict::Aim : Verdict::Fail});
}

}  // namespace

std::vector<Judgement> JudgementsOf(const Comparison& comparison) {
    std::vector<Judgement> lines;
    for (const RateComparison& row : comparison.rates)
        if (row.Off())
            lines.push_back({fmt::format("{}, {}", row.league, GroupOf(*row.rate)), std::string(row.rate->name),
                             *row.Off(), row.rate->bound, row.Judge()});
    for (const SpreadComparison& row : comparison.spreads) {
        if (row.points.empty()) continue;
        lines.push_back({row.men + ", spread over noise", row.what, row.spread.deviation, row.bound,
                         comparing::Within(row.spread.deviation, row.bound, row.aim)});
    }
    for (const SpreadComparison& row : comparison.spreads)
        if (!row.points.empty())
            lines.push_back({row.men + ", mean over noise", row.what, row.spread.mean, kMeanScoreBound,
                             comparing::Within(row.spread.mean, kMeanScoreBound, kMeanScoreBound)});
    for (const UsageComparison& row : comparison.usage)
        if (!row.points.empty())
            lines.push_back({"use of regulars, share from 0.9 to 1.1", row.what, row.within, kUsageBound, row.Judge()});
    lines.push_back({"team runs for and against, root mean square off", "all", comparison.runsError, kRunsBound,
                     comparing::Within(comparison.runsError, kRunsBound, kRunsAim)});
    lines.push_back({"team wins, root mean square off", "all", comparison.winsError, kWinsBound,
                     comparing::Within(comparison.winsError, kWinsBound, kWinsAim)});
    for (const PlatoonComparison& row : comparison.platoon)
        if (row.Judge() != Verdict::None)
            lines.push_back({"OPS by hand", fmt::format("{} against {}", row.batters, row.pitchers),
                             row.replay.mean / row.real - 1, kPlatoonBound, row.Judge()});
    JudgeParks(comparison, "runs", &ParkComparison::runs, lines);
    JudgeParks(comparison, "home runs", &ParkComparison::HR, lines);
    return lines;
}

}  // namespace tarvane
