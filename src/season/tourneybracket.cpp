#include "season/tourneybracket.h"

#include <fmt/core.h>

#include <algorithm>
#include <map>
#include <vector>

namespace tarvane {

namespace {

struct BracketRow {
    std::int64_t gameID = 0, visitor = 0, home = 0;
};

std::vector<BracketRow> RowsOfSeries(Database& season, int series) {
    Statement rows = season.Prepare(
        "SELECT GameID, VisitorTeamIndex, HomeTeamIndex FROM TourneySchedule WHERE SeriesNbr = ? ORDER BY GameDate, "
        "GameID");
    rows.Bind(1, std::int64_t{series});
    std::vector<BracketRow> games;
    while (rows.Step()) games.push_back({rows.Int(0), rows.Int(1), rows.Int(2)});
    return games;
}

// Past the first round: the games, from 1, that the team of an odd series has at home; all others are at home for the
// team of an even one.
bool OddSeriesAtHome(std::size_t games, std::size_t game) {
    static const std::map<std::size_t, std::vector<std::size_t>> kHome{
        {3, {1}}, {5, {3, 4}}, {7, {3, 4, 5}}, {9, {1, 2, 5, 6}}};
    const auto found = kHome.find(games);
    return found != kHome.end() && std::count(found->second.begin(), found->second.end(), game) > 0;
}

}  // namespace

void UpdateTourneyBracket(Database& season, int series, int targetSeries, std::int32_t teamIdx) {
    season.Execute("UPDATE TourneySchedule SET GameNotNeeded = -1 WHERE SeriesNbr = ? AND Played = 0",
                   {std::int64_t{series}});
    if (targetSeries == 0) return;
    const std::vector<BracketRow> games = RowsOfSeries(season, targetSeries);
    if (games.empty()) return;
    bool odd = series % 2 == 1;
    // Two series of odd numbers feed the final of eight teams: who comes second takes the place that is free.
    const BracketRow& first = games.front();
    if ((OddSeriesAtHome(games.size(), 1) == odd ? first.home : first.visitor) != 0) odd = !odd;
    for (std::size_t i = 0; i < games.size(); ++i) {
        const bool home = OddSeriesAtHome(games.size(), i + 1) == odd;
        season.Execute(
            fmt::format("UPDATE TourneySchedule SET {}TeamIndex = ? WHERE GameID = ?", home ? "Home" : "Visitor"),
            {std::int64_t{teamIdx}, games[i].gameID});
    }
}

}  // namespace tarvane
