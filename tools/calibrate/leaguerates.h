#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/database.h"
#include "season/gametally.h"

namespace tarvane::calibrate {

// What a league did, real or replayed. Batting is per plate appearance (intentional walks are no plate appearance here:
// the computer managers order none), the rest per team and game. Nothing where the year has no count.
struct LeagueRates {
    double PA = 0;  // plate appearances per team and game
    double H = 0, Singles = 0, Doubles = 0, Triples = 0, HR = 0, BB = 0, SO = 0, HBP = 0;
    double R = 0, SB = 0, SH = 0, E = 0, PB = 0, Pitchers = 0, CG = 0, SV = 0, SHO = 0;
    std::optional<double> SF, GIDP, CS;
};

// A rate by its name, for tables that people read.
struct NamedRate {
    const char* name;
    std::optional<double> value;
};
std::vector<NamedRate> Listed(const LeagueRates& rates);

// The real rates of one league of a season made from statistics, by the league's short name ("AL").
LeagueRates RealRates(Database& season, const std::string& league);

LeagueRates ReplayRates(const GameTally& tally);

}  // namespace tarvane::calibrate
