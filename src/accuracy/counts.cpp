#include "accuracy/counts.h"

#include <utility>

namespace tarvane {

Counts CountsOf(const GameTally& t) {
    Counts counts;
    const std::pair<Figure, long> known[] = {
        {Figure::Games, t.games},
        {Figure::PA, t.PA},
        {Figure::AB, t.AB},
        {Figure::R, t.R},
        {Figure::H, t.H},
        {Figure::Singles, t.H - t.Doubles - t.Triples - t.HR},
        {Figure::Doubles, t.Doubles},
        {Figure::Triples, t.Triples},
        {Figure::HR, t.HR},
        {Figure::BB, t.BB},
        {Figure::SO, t.SO},
        {Figure::HBP, t.HBP},
        {Figure::SH, t.SH},
        {Figure::SF, t.SF},
        {Figure::GIDP, t.GIDP},
        {Figure::SB, t.SB},
        {Figure::CS, t.CS},
        {Figure::E, t.E},
        {Figure::PB, t.PB},
        {Figure::Pitchers, t.PitchersUsed},
        {Figure::CG, t.CG},
        {Figure::SV, t.SV},
        {Figure::StarterOuts, t.StarterOuts},
    };
    for (const auto& [count, value] : known) counts[count] = static_cast<double>(value);
    return counts;
}

const std::vector<LeagueRate>& LeagueRates() {
    static const std::vector<LeagueRate> rates{
        {"H", Figure::H, Figure::PA, 0.02, 0.01},
        {"1B", Figure::Singles, Figure::PA, 0.02, 0.01},
        {"2B", Figure::Doubles, Figure::PA, 0.02, 0.01},
        {"3B", Figure::Triples, Figure::PA, 0.05, 0.01},
        {"HR", Figure::HR, Figure::PA, 0.02, 0.01},
        {"BB-IBB", Figure::BB, Figure::PA, 0.02, 0.01},
        {"SO", Figure::SO, Figure::PA, 0.02, 0.01},
        {"HBP", Figure::HBP, Figure::PA, 0.05, 0.01},
        {"runs", Figure::R, Figure::Games, 0.02, 0.01},
        {"SB", Figure::SB, Figure::Games, 0.1, 0.05},
        {"CS", Figure::CS, Figure::Games, 0.1, 0.05},
        {"SH", Figure::SH, Figure::Games, 0.1, 0.05},
        {"SF", Figure::SF, Figure::Games, 0.1, 0.05},
        {"GIDP", Figure::GIDP, Figure::Games, 0.1, 0.05},
        {"E", Figure::E, Figure::Games, 0.1, 0.05},
        {"PB", Figure::PB, Figure::Games, 0.1, 0.05},
        {"pitchers", Figure::Pitchers, Figure::Games, 0.1, 0.05},
        {"CG", Figure::CG, Figure::Games, 0.1, 0.05},
        {"SV", Figure::SV, Figure::Games, 0.1, 0.05},
        {"SHO", Figure::SHO, Figure::Games, 0.1, 0.05},
        {"starters' innings", Figure::StarterOuts, Figure::Games, 0.1, 0.05},
    };
    return rates;
}

std::optional<double> RateOf(const LeagueRate& rate, const Counts& counts) {
    if (!counts[rate.figure] || counts.Of(rate.per) <= 0) return std::nullopt;
    const double value = counts.Of(rate.figure) / counts.Of(rate.per);
    return rate.figure == Figure::StarterOuts ? value / 3 : value;
}

}  // namespace tarvane
