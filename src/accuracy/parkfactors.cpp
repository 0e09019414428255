#include "accuracy/parkfactors.h"

#include "data/rules.h"

namespace tarvane {

std::map<std::string, ParkFactor> ReadParkFactors(Database& common, Database& season) {
    const bool used = LoadLeagueRules(season).UseParkEffects;
    std::map<std::string, ParkFactor> factors;
    Statement park = common.Prepare(
        "SELECT Stadium, SinglesRate, DoublesRate, TriplesRate, HRRate FROM KorvBallparks WHERE parkID = ?");
    Statement teams = season.Prepare("SELECT teamID, ParkID FROM KorvTeams");
    while (teams.Step()) {
        ParkFactor& factor = factors[teams.Text(0)];
        park.Reset();
        park.Bind(1, teams.Int(1));
        if (!park.Step()) continue;
        factor.stadium = park.Text(0);
        if (used) factor = {park.Text(0), park.Double(1), park.Double(2), park.Double(3), park.Double(4)};
    }
    return factors;
}

}  // namespace tarvane
