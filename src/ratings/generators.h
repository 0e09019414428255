#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/error.h"
#include "base/progress.h"
#include "base/random.h"
#include "core/database.h"
#include "ratings/derivation.h"
#include "ratings/splits.h"
#include "records/era.h"

namespace tarvane {

// The generators over a season's database, to be run in this order: splits, player ratings, batter cells, pitcher cells
// (batter cells read the running ratings). Each works inside one transaction of its own or of its caller's: a failure
// or a stop leaves the season as it was. The same database and seed give the same charts.

// A run for one player. The era then comes from the screen, whatever the player's league.
struct SinglePlayer {
    bool pitcher = false;
    std::int32_t playerID = 0;
    std::string teamID;
    std::int32_t EraID = 0;
};

// What one run covers.
struct GeneratorScope {
    std::optional<SinglePlayer> player;  // none: the whole season
    ChartSettings settings;
};

// Rows that a run wrote, and those it had to leave.
struct GeneratorReport {
    int written = 0;
    int withoutStatistics = 0;  // no line in the Lahman tables
    int withoutEra = 0;         // the league has no year effect
};

// A run over a season without leagues. what() is the message in two lines.
class NoLeaguesError : public UserError {
  public:
    NoLeaguesError(const std::string& what, const std::string& title);
    std::string Title;
};

// Writes the vsLeft and vsRight columns of LahmanBatting for every line that has a KorvBatters row. retro may be null.
GeneratorReport GenerateSplits(Database& season, const SplitSettings& settings, RetroSplitLookup* retro, Random& random,
                               Progress* progress = nullptr);

// Writes running, bunting, fielding and error ratings and the catchers' marks. A player without a Lahman line gets
// runRating 0 and BuntRating "B" and keeps the rest; marks are set, never taken away.
GeneratorReport GeneratePlayerRatings(Database& season, Database& common, const GeneratorScope& scope,
                                      Progress* progress = nullptr);

// Writes charts, chances and control ratings of batters. A player without a Lahman line keeps what he has.
GeneratorReport GenerateBatterCells(Database& season, Database& common, const GeneratorScope& scope, Random& random,
                                    Progress* progress = nullptr);

// The same of pitchers, with their stamina and their charts at bat.
GeneratorReport GeneratePitcherCells(Database& season, Database& common, const GeneratorScope& scope, Random& random,
                                     Progress* progress = nullptr);

// The mean PAFactor of the leagues' eras to three decimals: what an import takes as the share of plate appearances to
// use as at bats; 0.95 if no league has an era.
double MeanPAFactor(const std::vector<LeagueBaseline>& baselines);

}  // namespace tarvane
