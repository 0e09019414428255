// Parks: home over road against the factors that are used.

#include <cmath>

#include "accuracy/comparison.h"

namespace tarvane {

namespace {

// The average rates of all replays, per at bat.
struct HitRates {
    double singles = 0, doubles = 0, triples = 0, HR = 0, walks = 0;
};

HitRates AverageRates(const std::vector<SeasonFigures>& replays) {
    HitRates sums;
    double AB = 0;
    for (const SeasonFigures& replay : replays)
        for (const LeagueFigures& league : replay.leagues) {
            const Counts& c = league.counts;
            AB += c.Of(Figure::AB);
            sums.singles += c.Of(Figure::Singles), sums.doubles += c.Of(Figure::Doubles);
            sums.triples += c.Of(Figure::Triples), sums.HR += c.Of(Figure::HR);
            sums.walks += c.Of(Figure::BB) + c.Of(Figure::HBP);
        }
    if (AB > 0)
        for (double* rate : {&sums.singles, &sums.doubles, &sums.triples, &sums.HR, &sums.walks}) *rate /= AB;
    return sums;
}

// On base times slugging per out of an average line in a park: what runs go by.
double RunsPerOut(const HitRates& average, const ParkFactor& f) {
    const double singles = average.singles * f.singles, doubles = average.doubles * f.doubles;
    const double triples = average.triples * f.triples, HR = average.HR * f.HR;
    const double hits = singles + doubles + triples + HR;
    const double bases = singles + 2 * doubles + 3 * triples + 4 * HR;
    return (hits + average.walks) / (1 + average.walks) * bases / (1 - hits);
}

struct Effects {
    double runs = 1, HR = 1;
};

ParkFigures SumOver(const std::vector<SeasonFigures>& replays, std::size_t place) {
    ParkFigures sum = replays.front().parks[place];
    for (std::size_t i = 1; i < replays.size(); ++i) {
        const ParkFigures& p = replays[i].parks[place];
        sum.homeGames += p.homeGames, sum.roadGames += p.roadGames, sum.homeRuns += p.homeRuns;
        sum.roadRuns += p.roadRuns, sum.homeAB += p.homeAB, sum.roadAB += p.roadAB;
        sum.homeHR += p.homeHR, sum.roadHR += p.roadHR;
        sum.homeRunsSquared += p.homeRunsSquared, sum.roadRunsSquared += p.roadRunsSquared;
        for (const auto& [host, games] : p.roadGamesAt) sum.roadGamesAt[host] += games;
    }
    return sum;
}

// Relative variance of a mean of runs a game.
double RelativeVariance(double games, double runs, double squares) {
    const double mean = runs / games;
    return (squares / games - mean * mean) / games / (mean * mean);
}

ParkComparison ComparePark(const ParkFigures& park, const std::map<std::string, Effects>& effects) {
    ParkComparison row;
    row.teamID = park.teamID;
    const Effects own = effects.at(park.teamID);
    Effects road{0, 0};
    for (const auto& [host, games] : park.roadGamesAt) {
        road.runs += effects.at(host).runs * games / park.roadGames;
        road.HR += effects.at(host).HR * games / park.roadGames;
    }
    row.runs.expected = own.runs / road.runs;
    row.HR.expected = own.HR / road.HR;
    row.runs.replay = (park.homeRuns / park.homeGames) / (park.roadRuns / park.roadGames);
    const double runsNoise = std::sqrt(RelativeVariance(park.homeGames, park.homeRuns, park.homeRunsSquared) +
                                       RelativeVariance(park.roadGames, park.roadRuns, park.roadRunsSquared));
    if (runsNoise > 0) row.runs.score = std::log(row.runs.replay / row.runs.expected) / runsNoise;
    if (park.homeHR > 0 && park.roadHR > 0) {
        row.HR.replay = (park.homeHR / park.homeAB) / (park.roadHR / park.roadAB);
        if (row.HR.expected > 0)
            row.HR.score = std::log(row.HR.replay / row.HR.expected) / std::sqrt(1 / park.homeHR + 1 / park.roadHR);
    }
    return row;
}

}  // namespace

void comparing::CompareParks(const std::vector<SeasonFigures>& replays,
                             const std::map<std::string, ParkFactor>& factors, Comparison& comparison) {
    const HitRates average = AverageRates(replays);
    const double neutral = RunsPerOut(average, {});
    std::map<std::string, Effects> effects;
    for (const ParkFigures& park : replays.front().parks) {
        const auto factor = factors.find(park.teamID);
        if (factor == factors.end()) {
            effects[park.teamID] = {};
        } else {
            effects[park.teamID] = {RunsPerOut(average, factor->second) / neutral, factor->second.HR};
        }
    }
    for (std::size_t place = 0; place < replays.front().parks.size(); ++place) {
        const ParkFigures park = SumOver(replays, place);
        if (park.homeGames < 2 || park.roadGames < 2 || park.homeRuns <= 0 || park.roadRuns <= 0) continue;
        ParkComparison row = ComparePark(park, effects);
        const auto factor = factors.find(park.teamID);
        if (factor != factors.end()) row.stadium = factor->second.stadium;
        comparison.parks.push_back(std::move(row));
    }
}

}  // namespace tarvane
