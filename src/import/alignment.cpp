#include "import/alignment.h"

#include <algorithm>

namespace tarvane {

namespace {

constexpr int kFirstYearOfDivisions = 1969, kFirstYearOfThree = 1994;
constexpr std::int16_t kSecondLeaguesFirstDivision = 5;

std::string LeagueName(const std::string& lgID) {
    return lgID == "AL" ? "American League" : lgID == "NL" ? "National League" : "Federal League";
}

struct DivisionKind {
    const char* divID;
    const char* name;
};

std::vector<DivisionKind> DivisionsOf(int year, const std::string& lgID) {
    if (year < kFirstYearOfDivisions || lgID == "FL") return {};
    if (year < kFirstYearOfThree) return {{"E", "East"}, {"W", "West"}};
    return {{"E", "East"}, {"C", "Central"}, {"W", "West"}};
}

// The number of a division; 0 where there are none.
std::int16_t DivisionIndex(const std::vector<DivisionKind>& kinds, std::int16_t first, const std::string& divID) {
    for (std::size_t i = 0; i < kinds.size(); ++i)
        if (kinds[i].divID == divID) return static_cast<std::int16_t>(first + static_cast<std::int16_t>(i));
    return 0;
}

}  // namespace

Alignment AlignTeams(const std::vector<LahmanTeam>& teams, bool align, const std::string& seasonName,
                     const std::array<std::optional<std::int32_t>, 3>& eras) {
    Alignment result;
    result.aligned = align && CanAlign(teams);
    if (!result.aligned) {
        result.leagues.push_back({1, seasonName, "**", eras[0].value_or(0)});
        for (const LahmanTeam& team : teams) result.places[team.KorvTeamID] = {};
        return result;
    }
    const std::vector<std::string> leagues = LeaguesOf(teams);
    for (std::size_t i = 0; i < leagues.size(); ++i) {
        const auto lgIdx = static_cast<std::int16_t>(i + 1);
        const std::int16_t first = i == 0 ? 1 : kSecondLeaguesFirstDivision;
        const std::vector<DivisionKind> kinds = DivisionsOf(teams.front().yearID, leagues[i]);
        result.leagues.push_back({lgIdx, LeagueName(leagues[i]), leagues[i], eras[i].value_or(0)});
        for (const DivisionKind& kind : kinds)
            result.divisions.push_back({lgIdx, DivisionIndex(kinds, first, kind.divID), kind.name});
        for (const LahmanTeam& team : teams)
            if (team.lgID == leagues[i])
                result.places[team.KorvTeamID] = {lgIdx, DivisionIndex(kinds, first, team.divID)};
    }
    return result;
}

}  // namespace tarvane
