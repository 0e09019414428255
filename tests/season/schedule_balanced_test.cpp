#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <set>

#include "base/error.h"
#include "season/balancedschedule.h"

namespace tarvane {
namespace {

using Count = std::map<std::int32_t, int>;

std::vector<Team> Teams(const std::vector<int>& leagues) {
    std::vector<Team> teams;
    for (std::size_t league = 0; league < leagues.size(); ++league)
        for (int i = 0; i < leagues[league]; ++i) {
            Team& team = teams.emplace_back();
            team.TeamIdx = static_cast<std::int32_t>(teams.size());
            team.lgIdx = static_cast<std::int16_t>(league + 1);
        }
    return teams;
}

struct Tally {
    explicit Tally(const std::vector<NewGame>& games) {
        std::set<std::pair<std::string, std::int32_t>> busy;
        for (const NewGame& game : games) {
            const std::int32_t v = game.teamIdx[Side::Visitor], h = game.teamIdx[Side::Home];
            ++home[h];
            ++all[v];
            ++all[h];
            ++pairs[std::minmax(v, h)];
            for (const std::int32_t team : {v, h}) twiceADay = twiceADay || !busy.emplace(game.date, team).second;
            inSeason = inSeason && game.date >= "1975-04-01" && game.date <= "1975-09-30";
        }
    }
    Count home, all;
    std::map<std::pair<std::int32_t, std::int32_t>, int> pairs;
    bool twiceADay = false, inSeason = true;
};

TEST(BalancedSchedule, EverybodyMeetsEverybodyAsOften) {
    struct Case {
        std::vector<int> leagues;
        int games, gamesLeast, homeApart;
    };
    // Two leagues of eight; divisions of other sizes; one left over; fewer games than opponents; leagues with a team
    // that rests each round.
    for (const Case& c : {Case{{8, 8}, 154, 154, 0},
                          {{12, 12}, 162, 162, 4},
                          {{14, 16}, 162, 162, 6},
                          {{8}, 5, 5, 5},
                          {{2}, 154, 154, 0},
                          {{5, 4}, 101, 100, 8},
                          {{1, 3}, 60, 60, 2}}) {
        const std::vector<Team> teams = Teams(c.leagues);
        const Tally tally(BalancedSchedule(teams, 1975, c.games));
        EXPECT_FALSE(tally.twiceADay);
        EXPECT_TRUE(tally.inSeason);
        ASSERT_EQ(tally.all.size(), teams.size());
        for (const auto& [team, games] : tally.all) {
            EXPECT_LE(games, c.games);
            EXPECT_GE(games, c.gamesLeast);
            EXPECT_LE(std::abs(2 * tally.home.at(team) - games), c.homeApart) << c.games << " team " << team;
        }
        std::map<std::int16_t, std::pair<int, int>> range;  // games of a pair of a league, least and most
        for (const auto& [pair, games] : tally.pairs) {
            auto& [least, most] =
                range.try_emplace(teams[static_cast<std::size_t>(pair.first - 1)].lgIdx, games, games).first->second;
            least = std::min(least, games);
            most = std::max(most, games);
        }
        for (const auto& [league, games] : range) EXPECT_LE(games.second - games.first, 1);
    }
}

TEST(BalancedSchedule, SaysWhatDoesNotFit) {
    EXPECT_THROW(BalancedSchedule(Teams({1}), 1975), UserError);
    EXPECT_THROW(BalancedSchedule(Teams({8}), 1975, 0), UserError);
    EXPECT_THROW(BalancedSchedule(Teams({8}), 1975, 200), UserError);
}

}  // namespace
}  // namespace tarvane
