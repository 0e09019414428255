#include "accuracy/comparison.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace tarvane {

namespace {

// Wins that runs for and against usually bring.
double PythagoreanShare(double RF, double RA) {
    constexpr double kExponent = 1.83;
    if (RF + RA <= 0) return 0.5;
    return 1 / (1 + std::pow(RA / std::max(RF, 1e-9), kExponent));
}

void CompareRates(const SeasonFigures& real, const std::vector<SeasonFigures>& replays, Comparison& comparison) {
    for (std::size_t league = 0; league < real.leagues.size(); ++league)
        for (const LeagueRate& rate : LeagueRates()) {
            RateComparison& row = comparison.rates.emplace_back();
            row.league = real.leagues[league].name;
            row.rate = &rate;
            row.real = RateOf(rate, real.leagues[league].counts);
            std::vector<double> values;
            for (const SeasonFigures& replay : replays)
                if (const auto value = RateOf(rate, replay.leagues[league].counts)) values.push_back(*value);
            row.replay = MeanOf(values);
        }
}

TeamComparison CompareTeam(const SeasonFigures& real, const std::vector<SeasonFigures>& replays, std::size_t place) {
    const TeamFigures& was = real.teams[place];
    TeamComparison row;
    row.teamID = was.teamID;
    row.name = was.name;
    row.games = was.games;
    row.RF = was.RF / was.games;
    row.RA = was.RA / was.games;
    row.W = was.W;
    const double decisions = was.W + was.L;
    row.pythagorean = decisions * PythagoreanShare(was.RF, was.RA);
    std::vector<double> RF, RA, W, pythagorean;
    for (const SeasonFigures& replay : replays) {
        const TeamFigures& team = replay.teams[place];
        if (team.games <= 0) continue;
        RF.push_back(team.RF / team.games);
        RA.push_back(team.RA / team.games);
        if (team.W + team.L > 0) W.push_back(decisions * team.W / (team.W + team.L));
        pythagorean.push_back(decisions * PythagoreanShare(team.RF, team.RA));
    }
    row.replayRF = MeanOf(RF), row.replayRA = MeanOf(RA), row.replayW = MeanOf(W);
    row.replayPythagorean = MeanOf(pythagorean);
    return row;
}

void CompareTeams(const SeasonFigures& real, const std::vector<SeasonFigures>& replays, Comparison& comparison) {
    std::vector<double> runs, wins, luck;
    for (std::size_t place = 0; place < real.teams.size(); ++place) {
        if (real.teams[place].games <= 0 || real.teams[place].RA <= 0) continue;
        const TeamComparison row = CompareTeam(real, replays, place);
        runs.push_back(row.replayRF.mean / row.RF - 1);
        runs.push_back(row.replayRA.mean / row.RA - 1);
        wins.push_back(row.replayW.mean - row.W);
        luck.push_back(row.pythagorean - row.W);
        comparison.teams.push_back(row);
    }
    comparison.runsError = RootMeanSquare(runs);
    comparison.winsError = RootMeanSquare(wins);
    comparison.luck = RootMeanSquare(luck);
}

}  // namespace

std::string_view VerdictText(Verdict verdict) {
    switch (verdict) {
        case Verdict::Aim: return "aim";
        case Verdict::Bound: return "ok";
        case Verdict::Fail: return "FAIL";
        case Verdict::None: break;
    }
    return "";
}

Verdict comparing::Within(double off, double bound, double aim) {
    const double size = std::abs(off);
    return size <= aim ? Verdict::Aim : size <= bound ? Verdict::Bound : Verdict::Fail;
}

std::optional<double> RateComparison::Off() const {
    if (!real || *real <= 0) return std::nullopt;
    return replay.mean / *real - 1;
}

Verdict RateComparison::Judge() const {
    const auto off = Off();
    return off ? comparing::Within(*off, rate->bound, rate->aim) : Verdict::None;
}

Comparison Compare(const SeasonFigures& real, std::vector<SeasonFigures> replays,
                   const std::map<std::string, ParkFactor>& parks) {
    for (SeasonFigures& replay : replays) BookSacrificeFlies(replay, real);
    Comparison comparison;
    comparison.year = real.year;
    comparison.replays = replays.size();
    CompareRates(real, replays, comparison);
    CompareTeams(real, replays, comparison);
    comparing::CompareMen(real, replays, comparison);
    comparing::ComparePlatoon(real, replays, comparison);
    comparing::CompareParks(replays, parks, comparison);
    std::vector<double> homeShares;
    for (const SeasonFigures& replay : replays)
        if (replay.games > 0) homeShares.push_back(replay.homeWins / replay.games);
    comparison.homeShare = MeanOf(homeShares);
    return comparison;
}

}  // namespace tarvane
