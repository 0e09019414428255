// Players: rates in units of noise, use, and the hands.

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

#include "accuracy/comparison.h"
#include "records/player.h"

namespace tarvane {

namespace {

constexpr double kLeastTrials = 50;  // of a replay, for its rate to count

struct Share {
    double count = 0, trials = 0;
};

template <class Man>
struct ShareOf {
    const char* what;
    std::function<Share(const Man&)> of;
};

const std::vector<ShareOf<BatterFigures>>& BatterShares() {
    static const std::vector<ShareOf<BatterFigures>> shares{
        {"AVG",
         [](const BatterFigures& m) {
             return Share{m.total.H, m.total.AB};
         }},
        {"HR",
         [](const BatterFigures& m) {
             return Share{m.total.HR, m.total.PA()};
         }},
        {"BB",
         [](const BatterFigures& m) {
             return Share{m.total.BB, m.total.PA()};
         }},
        {"SO",
         [](const BatterFigures& m) {
             return Share{m.total.SO, m.SORecorded ? m.total.PA() : 0};
         }},
        {"2B",
         [](const BatterFigures& m) {
             return Share{m.total.Doubles, m.total.PA()};
         }},
    };
    return shares;
}

const std::vector<ShareOf<PitcherFigures>>& PitcherShares() {
    static const std::vector<ShareOf<PitcherFigures>> shares{
        {"H",
         [](const PitcherFigures& m) {
             return Share{m.H, m.BF};
         }},
        {"HR",
         [](const PitcherFigures& m) {
             return Share{m.HR, m.BF};
         }},
        {"BB",
         [](const PitcherFigures& m) {
             return Share{m.BB, m.BF};
         }},
        {"SO",
         [](const PitcherFigures& m) {
             return Share{m.SO, m.BF};
         }},
    };
    return shares;
}

bool Regular(const BatterFigures& man) {
    return man.total.AB >= kRegularAB;
}
bool Regular(const PitcherFigures& man) {
    return man.BF >= kRegularBF;
}

using BatterTable = std::map<ManKey, BatterFigures> SeasonFigures::*;
using PitcherTable = std::map<ManKey, PitcherFigures> SeasonFigures::*;

// One kind of rate of all regulars.
template <class Man, class Table>
SpreadComparison CompareShare(const SeasonFigures& real, const std::vector<SeasonFigures>& replays, Table table,
                              const ShareOf<Man>& share) {
    SpreadComparison result;
    result.what = share.what;
    std::vector<double> scores;
    for (const auto& [key, man] : real.*table) {
        if (!Regular(man)) continue;
        const Share was = share.of(man);
        if (was.trials <= 0) continue;  // not recorded
        Share all;
        double counted = 0;
        for (const SeasonFigures& replay : replays) {
            const auto found = (replay.*table).find(key);
            if (found == (replay.*table).end()) continue;
            const Share now = share.of(found->second);
            if (now.trials < kLeastTrials) continue;
            scores.push_back(NoiseScore(was.count, was.trials, now.count, now.trials));
            all.count += now.count, all.trials += now.trials, counted += 1;
        }
        if (counted == 0) continue;
        const double chance = was.count / was.trials;
        result.points.push_back(
            {man.name, chance, all.count / all.trials, std::sqrt(chance * (1 - chance) / (all.trials / counted))});
    }
    result.spread = SpreadOf(scores);
    return result;
}

std::map<std::string, double> GamesOf(const SeasonFigures& figures) {
    std::map<std::string, double> games;
    for (const TeamFigures& team : figures.teams) games[team.teamID] = team.games;
    return games;
}

// measure per team game, summed over the replays on one side and real on the other.
template <class Man, class Table>
UsageComparison CompareUse(const SeasonFigures& real, const std::vector<SeasonFigures>& replays, Table table,
                           std::string what, const std::function<double(const Man&)>& measure) {
    UsageComparison result;
    result.what = std::move(what);
    const auto realGames = GamesOf(real);
    std::map<std::string, double> games;
    for (const SeasonFigures& replay : replays)
        for (const auto& [team, number] : GamesOf(replay)) games[team] += number;
    std::vector<double> ratios;
    for (const auto& [key, man] : real.*table) {
        if (!Regular(man) || realGames.at(key.second) <= 0 || games[key.second] <= 0) continue;
        double sum = 0;
        for (const SeasonFigures& replay : replays) {
            const auto found = (replay.*table).find(key);
            if (found != (replay.*table).end()) sum += measure(found->second);
        }
        const double was = measure(man) / realGames.at(key.second), now = sum / games[key.second];
        result.points.push_back({man.name, was, now, 0});
        ratios.push_back(now / was);
    }
    if (ratios.empty()) return result;
    const auto fits = std::count_if(ratios.begin(), ratios.end(), [](double r) { return r >= 0.9 && r <= 1.1; });
    result.within = static_cast<double>(fits) / static_cast<double>(ratios.size());
    std::sort(ratios.begin(), ratios.end());
    result.median = (ratios[(ratios.size() - 1) / 2] + ratios[ratios.size() / 2]) / 2;
    return result;
}

void Add(BattingFigures& to, const BattingFigures& f, double walksKept) {
    to.AB += f.AB, to.H += f.H, to.Doubles += f.Doubles, to.Triples += f.Triples, to.HR += f.HR;
    to.BB += f.BB * walksKept, to.HBP += f.HBP, to.SF += f.SF;
}

double OPS(const BattingFigures& f) {
    const double on = f.AB + f.BB + f.HBP + f.SF;
    const double bases = f.H + f.Doubles + 2 * f.Triples + 3 * f.HR;
    if (on <= 0 || f.AB <= 0) return 0;
    return (f.H + f.BB + f.HBP) / on + bases / f.AB;
}

// Sums of the hands: batters left, right and switch, each against left and right.
constexpr std::array<std::int32_t, 3> kHands{kLeftHand, kRightHand, kSwitchHitter};
using HandSums = std::array<std::array<BattingFigures, 2>, 3>;

// hands and pitchers are told by the real season, so that both sides sum over the same men. The tables of splits hold
// the intentional walks, those of the totals here don't: they are taken off in proportion.
HandSums SumHands(const SeasonFigures& figures, const SeasonFigures& real, bool replayed) {
    HandSums sums{};
    for (const auto& [key, man] : figures.batters) {
        const auto was = real.batters.find(key);
        if (was == real.batters.end()) continue;
        const auto pitcher = real.pitchers.find(key);
        if (pitcher != real.pitchers.end() && pitcher->second.BF > was->second.total.PA()) continue;
        const auto hand = std::find(kHands.begin(), kHands.end(), was->second.bats);
        if (hand == kHands.end()) continue;
        auto& row = sums[static_cast<std::size_t>(hand - kHands.begin())];
        const double splitWalks = man.vsLeft.BB + man.vsRight.BB;
        const double kept = replayed || splitWalks <= 0 ? 1 : std::min(1.0, man.total.BB / splitWalks);
        Add(row[0], man.vsLeft, kept);
        Add(row[1], man.vsRight, kept);
    }
    return sums;
}

}  // namespace

Verdict SpreadComparison::Judge() const {
    if (points.empty()) return Verdict::None;
    if (std::abs(spread.mean) > kMeanScoreBound || spread.deviation > bound) return Verdict::Fail;
    return spread.deviation <= aim ? Verdict::Aim : Verdict::Bound;
}

Verdict UsageComparison::Judge() const {
    return points.empty() ? Verdict::None : within >= kUsageBound ? Verdict::Aim : Verdict::Fail;
}

Verdict PlatoonComparison::Judge() const {
    if (real <= 0 || replay.mean <= 0 || batters == "switch") return Verdict::None;
    return comparing::Within(replay.mean / real - 1, kPlatoonBound, kPlatoonBound);
}

void comparing::CompareMen(const SeasonFigures& real, const std::vector<SeasonFigures>& replays,
                           Comparison& comparison) {
    for (const auto& share : BatterShares()) {
        auto row = CompareShare<BatterFigures, BatterTable>(real, replays, &SeasonFigures::batters, share);
        row.men = "batters", row.bound = 1.15, row.aim = 1.05;
        comparison.spreads.push_back(std::move(row));
    }
    for (const auto& share : PitcherShares()) {
        auto row = CompareShare<PitcherFigures, PitcherTable>(real, replays, &SeasonFigures::pitchers, share);
        row.men = "pitchers", row.bound = 1.2, row.aim = 1.1;
        comparison.spreads.push_back(std::move(row));
    }
    comparison.usage.push_back(CompareUse<BatterFigures, BatterTable>(
        real, replays, &SeasonFigures::batters, "at bats", [](const BatterFigures& m) { return m.total.AB; }));
    comparison.usage.push_back(CompareUse<PitcherFigures, PitcherTable>(
        real, replays, &SeasonFigures::pitchers, "innings", [](const PitcherFigures& m) { return m.IPOuts / 3; }));
}

void comparing::ComparePlatoon(const SeasonFigures& real, const std::vector<SeasonFigures>& replays,
                               Comparison& comparison) {
    const HandSums was = SumHands(real, real, false);
    std::vector<HandSums> now;
    for (const SeasonFigures& replay : replays) now.push_back(SumHands(replay, real, true));
    constexpr const char* kNames[] = {"left", "right", "switch"};
    for (std::size_t hand = 0; hand < kHands.size(); ++hand)
        for (std::size_t against = 0; against < 2; ++against) {
            std::vector<double> values;
            for (const HandSums& sums : now) values.push_back(OPS(sums[hand][against]));
            comparison.platoon.push_back({kNames[hand], kNames[against], OPS(was[hand][against]), MeanOf(values)});
        }
}

}  // namespace tarvane
