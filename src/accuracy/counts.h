#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "season/gametally.h"

namespace tarvane {

// What is counted in a league, in reality and in replay. Games are team games, two a game. BB are without the
// intentional ones, which no replay has, and PA = AB + BB + HBP + SH + SF with those walks. SHO are a pitcher's own:
// complete games without a run. SH hold the sacrifice flies of years that scored them as sacrifices.
enum class Figure : std::size_t {
    Games,
    PA,
    AB,
    R,
    H,
    Singles,
    Doubles,
    Triples,
    HR,
    BB,
    SO,
    HBP,
    SH,
    SF,
    GIDP,
    SB,
    CS,
    E,
    PB,
    Pitchers,
    CG,
    SV,
    SHO,
    StarterOuts,
    Last,
};
inline constexpr std::size_t kCounts = static_cast<std::size_t>(Figure::Last);

// Counts of one league or of one tally; a count that was never recorded is empty.
class Counts {
  public:
    std::optional<double>& operator[](Figure figure) { return values_[static_cast<std::size_t>(figure)]; }
    const std::optional<double>& operator[](Figure figure) const { return values_[static_cast<std::size_t>(figure)]; }
    // The count, or 0 where it wasn't recorded.
    double Of(Figure figure) const { return (*this)[figure].value_or(0); }
    // Adds to a count that was empty, too.
    void Add(Figure figure, double by) { (*this)[figure] = Of(figure) + by; }

  private:
    std::array<std::optional<double>, kCounts> values_{};
};

// The counts of games played in memory. GameTally's shutouts are the team's, several pitchers together; they stay out.
Counts CountsOf(const GameTally& tally);

// A rate of a league: a count over plate appearances or team games (starters' innings: outs over three), and how far a
// replay may be from the real rate and should at most be, as shares of it.
struct LeagueRate {
    std::string_view name;
    Figure figure;
    Figure per;  // PA or Games
    double bound, aim;
};

// H, 1B, 2B, 3B, HR, BB, SO and HBP per plate appearance; runs, steals, errors, pitching and the like per game.
const std::vector<LeagueRate>& LeagueRates();

// Empty if the count or what it is measured by isn't there.
std::optional<double> RateOf(const LeagueRate& rate, const Counts& counts);

}  // namespace tarvane
