#include "season/topbatters.h"

#include <fmt/core.h>

#include <algorithm>

#include "base/rounding.h"

namespace tarvane {

namespace {

// Nobody is among the best before so many team decisions are in.
constexpr std::int64_t kFewestDecisions = 10;
constexpr double kAppearancesPerGame = 3.098, kInTournaments = 2.5;

}  // namespace

void TopBatters::Read(Database& season, bool tourney) {
    tourney_ = tourney;
    men_.clear();
    index_.clear();
    Statement rows = season.Prepare(
        fmt::format("SELECT playerID, Avg, SLG, HR, AB + BB + HBP, coalesce(NoLongerWithTeam, 0) FROM {} ORDER BY "
                    "playerID",
                    tourney ? "TourneyBatters" : "KorvBatters"));
    while (rows.Step()) {
        const auto id = static_cast<std::int32_t>(rows.Int(0));
        index_[id] = men_.size();
        men_.push_back({id, rows.Double(1), rows.Double(2), rows.Int(3), rows.Int(4), rows.Int(5) != 0});
    }
}

void TopBatters::Update(const TeamRoster& roster) {
    for (const Batter& batter : roster.batters) {
        const auto found = index_.find(batter.playerID);
        if (found == index_.end()) continue;
        Man& man = men_[found->second];
        man.Avg = batter.rates.Avg;
        man.SLG = batter.rates.SLG;
        man.HR = batter.total.HR;
        man.appearances = batter.total.AB + batter.total.BB + batter.total.HBP;
    }
}

template <class Figure>
void TopBatters::MarkBest(std::int64_t least, bool presentOnly, Figure figure, std::vector<bool>& marks) const {
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < men_.size(); ++i)
        if (figure(men_[i]) != 0 && men_[i].appearances >= least && !(presentOnly && men_[i].gone)) order.push_back(i);
    const auto limit = static_cast<std::size_t>(RoundHalfEven(static_cast<double>(men_.size()) / 10));
    // Men stand by playerID: among equals the lower one is the better.
    const auto better = [&](std::size_t a, std::size_t b) {
        return figure(men_[a]) != figure(men_[b]) ? figure(men_[a]) > figure(men_[b]) : a < b;
    };
    if (order.size() > limit) {
        std::nth_element(order.begin(), order.begin() + static_cast<std::ptrdiff_t>(limit), order.end(), better);
        order.resize(limit);
    }
    for (const std::size_t man : order) marks[man] = true;
}

std::vector<bool> TopBatters::Of(const TeamRoster& roster, std::int64_t teamDecisions, std::int64_t teams) const {
    std::vector<bool> top(roster.batters.size(), false);
    if (teams == 0 || teamDecisions < kFewestDecisions) return top;
    const double games = static_cast<double>(teamDecisions) / static_cast<double>(teams);
    const std::int64_t least = RoundHalfEven(games * (tourney_ ? kInTournaments : kAppearancesPerGame));
    std::vector<bool> marks(men_.size(), false);
    MarkBest(
        least, false, [](const Man& man) { return man.Avg; }, marks);
    MarkBest(
        least, true, [](const Man& man) { return man.SLG; }, marks);
    MarkBest(
        0, true, [](const Man& man) { return static_cast<double>(man.HR); }, marks);
    for (std::size_t i = 0; i < roster.batters.size(); ++i) {
        const auto found = index_.find(roster.batters[i].playerID);
        top[i] = found != index_.end() && marks[found->second];
    }
    return top;
}

}  // namespace tarvane
