#include "accuracy/seasonteams.h"

#include <algorithm>

namespace tarvane {

namespace {

template <class Key>
std::optional<SeasonTeams::Place> Look(const std::map<Key, SeasonTeams::Place>& places, const Key& key) {
    const auto found = places.find(key);
    return found == places.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace

SeasonTeams::SeasonTeams(Database& season) {
    // A season without leagues has all its teams under one number.
    Statement leagues = season.Prepare(
        "SELECT t.lgIdx, coalesce((SELECT lgName FROM Leagues l WHERE l.lgIdx = t.lgIdx), 'all teams') "
        "FROM KorvTeams t GROUP BY t.lgIdx ORDER BY t.lgIdx");
    while (leagues.Step()) empty_.leagues.push_back({static_cast<int>(leagues.Int(0)), leagues.Text(1), {}});
    Statement teams =
        season.Prepare("SELECT TeamIdx, teamID, fullName, lgIdx, coalesce(yearID, 0) FROM KorvTeams ORDER BY TeamIdx");
    while (teams.Step()) {
        TeamFigures team;
        team.teamID = teams.Text(1);
        team.name = teams.Text(2);
        team.lgIdx = static_cast<int>(teams.Int(3));
        empty_.year = std::max(empty_.year, static_cast<int>(teams.Int(4)));
        const auto league = std::find_if(empty_.leagues.begin(), empty_.leagues.end(),
                                         [&](const LeagueFigures& l) { return l.lgIdx == team.lgIdx; });
        const Place place{empty_.teams.size(), static_cast<std::size_t>(league - empty_.leagues.begin())};
        byCode_[team.teamID] = place;
        byIndex_[teams.Int(0)] = place;
        empty_.teams.push_back(std::move(team));
    }
}

std::optional<SeasonTeams::Place> SeasonTeams::Find(const std::string& teamID) const {
    return Look(byCode_, teamID);
}

std::optional<SeasonTeams::Place> SeasonTeams::FindByIndex(std::int64_t teamIdx) const {
    return Look(byIndex_, teamIdx);
}

}  // namespace tarvane
