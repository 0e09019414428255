// The command that shows a player's charts and where their numbers come from.

#include <fmt/format.h>

#include "data/parks.h"
#include "installation.h"
#include "ratings/generators.h"
#include "ratings/player_card.h"

namespace tarvane::replay {

int ShowChart(const Context& context, const Options& options) {
    Installation installation(context);
    Database season = installation.OpenSeason(options.Positional(0));
    ChartSettings settings;
    settings.PAFactorOverride =
        options.Real("--pa-factor").value_or(MeanPAFactor(LoadLeagueBaselines(installation.Common(), season)));
    fmt::print("{}",
               PlayerCard(season, installation.Common(), options.Text("--player"), options.Text("--team"), settings));
    return 0;
}

}  // namespace tarvane::replay
