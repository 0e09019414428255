#include "season/balancedschedule.h"

#include <fmt/core.h>

#include <algorithm>
#include <map>
#include <numeric>

#include "base/error.h"
#include "season/calendar.h"

namespace tarvane {

namespace {

constexpr int kFirstMonth = 4, kFirstDay = 8;
constexpr int kSeriesLength = 3;
constexpr std::int32_t kNobody = 0;

using RoundRobin = std::vector<std::int32_t>;  // TeamIdx; of even length, kNobody for the team that rests

struct Pairing {
    std::int32_t visitor = kNobody, home = kNobody;
};

// One round of the round robin: all stand in two rows that face each other, the first stays, the others move on by one
// place each round. Who is at home changes from pair to pair and from round to round.
std::vector<Pairing> RoundOf(const RoundRobin& league, std::size_t round, bool turned) {
    const std::size_t n = league.size();
    const auto at = [&](std::size_t place) { return league[place == 0 ? 0 : 1 + (place - 1 + round) % (n - 1)]; };
    std::vector<Pairing> pairs;
    for (std::size_t i = 0; i < n / 2; ++i) {
        const std::int32_t a = at(i), b = at(n - 1 - i);
        if (a == kNobody || b == kNobody) continue;
        const bool aAtHome = ((i == 0 ? round : i) % 2 == 0) != turned;
        pairs.push_back(aAtHome ? Pairing{b, a} : Pairing{a, b});
    }
    return pairs;
}

struct Series {
    std::vector<Pairing> pairs;
    int games = 0;
};

// Cycles of rounds, in each of which everybody meets everybody once; the pairs' games are spread evenly over an even
// number of cycles, so that both sides are at home as often. What is left over are single games of the last cycle.
std::vector<Series> SeriesOf(const RoundRobin& league, int gamesPerTeam) {
    const int rounds = static_cast<int>(league.size()) - 1;
    const int opponents = rounds - static_cast<int>(std::count(league.begin(), league.end(), kNobody));
    const int perPair = gamesPerTeam / opponents, leftOver = gamesPerTeam % opponents;
    const int wanted = (perPair + kSeriesLength - 1) / kSeriesLength;
    const int cycles = perPair < 2 ? 1 : wanted + wanted % 2;
    std::vector<Series> all;
    for (int cycle = 0; cycle < cycles; ++cycle)
        for (int round = 0; round < rounds; ++round) {
            const int extra = cycle == cycles - 1 && round < leftOver ? 1 : 0;
            const int games = perPair / cycles + (cycle < perPair % cycles ? 1 : 0) + extra;
            if (games > 0) all.push_back({RoundOf(league, static_cast<std::size_t>(round), cycle % 2 != 0), games});
        }
    return all;
}

// Days off are spread between the series.
void PlaceSeries(const std::vector<Series>& all, int year, std::vector<NewGame>& schedule) {
    const long first = *DayCount(fmt::format("{:04}-{:02}-{:02}", year, kFirstMonth, kFirstDay));
    const int days = static_cast<int>(*DayCount(fmt::format("{:04}-09-30", year)) - first) + 1;
    const int needed =
        std::accumulate(all.begin(), all.end(), 0, [](int sum, const Series& s) { return sum + s.games; });
    if (needed > days)
        throw UserError(
            fmt::format("{} days of games don't fit between April and September, which have {}. Choose fewer "
                        "games.",
                        needed, days));
    int before = 0;
    for (const Series& series : all) {
        const int start = before * days / needed;
        for (int game = 0; game < series.games; ++game)
            for (const Pairing& pair : series.pairs)
                schedule.push_back({DateText(first + start + game), {{pair.visitor, pair.home}}});
        before += series.games;
    }
}

std::vector<RoundRobin> RoundRobinsOf(const std::vector<Team>& teams) {
    std::map<std::int16_t, RoundRobin> byIndex;
    for (const Team& team : teams) byIndex[team.lgIdx].push_back(team.TeamIdx);
    const bool alone = std::any_of(byIndex.begin(), byIndex.end(), [](const auto& l) { return l.second.size() == 1; });
    std::vector<RoundRobin> leagues;
    for (const auto& [index, league] : byIndex) {
        if (leagues.empty() || !alone) leagues.emplace_back();
        leagues.back().insert(leagues.back().end(), league.begin(), league.end());
    }
    for (RoundRobin& league : leagues)
        if (league.size() % 2 != 0) league.push_back(kNobody);
    return leagues;
}

}  // namespace

std::vector<NewGame> BalancedSchedule(const std::vector<Team>& teams, int year, int gamesPerTeam) {
    if (teams.size() < 2) throw UserError("A schedule needs two teams at least.");
    if (gamesPerTeam < 1) throw UserError("A schedule needs one game for each team at least.");
    std::vector<NewGame> schedule;
    for (const RoundRobin& league : RoundRobinsOf(teams)) PlaceSeries(SeriesOf(league, gamesPerTeam), year, schedule);
    std::stable_sort(schedule.begin(), schedule.end(),
                     [](const NewGame& a, const NewGame& b) { return a.date < b.date; });
    return schedule;
}

}  // namespace tarvane
