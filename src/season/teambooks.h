#pragma once

#include "season/accounts.h"

namespace tarvane {

// The row of a team as the posting reads and writes it.
struct TeamBooks {
    int RF = 0, RA = 0, W = 0, L = 0, HomeWins = 0, HomeLosses = 0, DivWins = 0, DivLosses = 0, PitcherAutoOuts = 0;
    double Pct = 0, ERA = 0, WHIP = 0, FieldingPct = 0;
    BattingTotals batting;
    BattingRates rates;
    PitchingTotals pitching;
    FieldingTotals fielding;
};

// Adds what the team did in a game to its totals, and works the rates out again.
void AddTeamGame(TeamBooks& books, const TeamGame& game);

// Adds the win or the loss; a tie is neither. division: both teams are of one division.
void AddResult(TeamBooks& books, const TeamGame& game, bool division, bool home);

// Adds member by member: collects the counts of one record, which To() then adds to those of another. The lists of
// columns pair them.
class Adder {
  public:
    template <class T>
    void operator()(std::string_view, std::string_view, const T& value) {
        values_.push_back(static_cast<int>(value));
    }
    struct Into {
        const std::vector<int>& values;
        std::size_t next = 0;
        template <class T>
        void operator()(std::string_view, std::string_view, T& value) {
            value = static_cast<T>(value + values[next++]);
        }
    };
    Into To() const { return {values_}; }

  private:
    std::vector<int> values_;
};

}  // namespace tarvane
