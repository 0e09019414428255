#include "data/toplists.h"

#include <fmt/core.h>

#include <string_view>

#include "base/rounding.h"

namespace tarvane {

namespace {

// Plate appearances a team game that a man needs to be listed: 3.098 in a season, 2.5 in a tournament.
constexpr double kLeaguePA = 3.098;
constexpr double kTourneyPA = 2.5;

std::int64_t OneNumber(Database& season, const std::string& sql) {
    Statement statement = season.Prepare(sql);
    return statement.Step() ? statement.Int(0) : 0;
}

// The first `limit` rows by a rate, those of them with a rate above 0 and at least minimumPA plate appearances.
std::vector<std::int32_t> BestBy(Database& season, std::string_view table, std::string_view rate,
                                 std::string_view where, std::int64_t limit, std::int64_t minimumPA) {
    Statement rows =
        season.Prepare(fmt::format("SELECT playerID FROM (SELECT playerID, {1} AS rate, AB + BB + HBP AS pa FROM {0} "
                                   "{2} ORDER BY {1} DESC, playerID "
                                   "LIMIT ?1) WHERE pa >= ?2 AND rate <> 0 ORDER BY rate DESC, playerID",
                                   table, rate, where));
    rows.Bind(1, limit);
    rows.Bind(2, minimumPA);
    std::vector<std::int32_t> players;
    while (rows.Step()) players.push_back(static_cast<std::int32_t>(rows.Int(0)));
    return players;
}

}  // namespace

void BuildTopBatterLists(Database& season, bool tournament, TopBatterLists& lists) {
    const std::string teams = tournament ? "TourneyTeams" : "KorvTeams";
    const std::string table = tournament ? "TourneyBatters" : "KorvBatters";
    const std::int64_t games = OneNumber(season, "SELECT total(W) + total(L) FROM " + teams);
    const std::int64_t teamCount = OneNumber(season, "SELECT count(*) FROM " + teams);
    if (games < 10 || teamCount == 0) return;
    const double perTeam = static_cast<double>(games) / static_cast<double>(teamCount);
    const std::int64_t minimumPA = RoundHalfEven(perTeam * (tournament ? kTourneyPA : kLeaguePA));
    const std::int64_t rows = OneNumber(season, "SELECT count(*) FROM " + table);
    const std::int64_t limit = RoundHalfEven(static_cast<double>(rows) / 10.0);
    constexpr std::string_view kWithTeam = "WHERE NoLongerWithTeam = 0";
    lists.TopAvgPlayers = BestBy(season, table, "Avg", "", limit, minimumPA);
    lists.TopSLGPlayers = BestBy(season, table, "SLG", kWithTeam, limit, minimumPA);
    lists.TopHRPlayers = BestBy(season, table, "HR", kWithTeam, limit, 0);
}

}  // namespace tarvane
