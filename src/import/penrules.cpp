#include "import/penrules.h"

#include <algorithm>
#include <array>

namespace tarvane {

namespace {

constexpr int kAnyOuts = 999, kNoLimit = 45, kUsualLimit = 15;

// Found by replaying seasons of each time until a game had as many pitchers, and starters as many innings, as it really
// had. Where even long rests leave more relievers than there were, the rest stays under a month.
constexpr std::array<PenRules, 10> kPens{{{1901, 25, 25, 25, kNoLimit},
                                         {1920, 20, 20, 20, kNoLimit},
                                         {1934, 15, 15, 15, kNoLimit},
                                         {1946, 10, 10, 10, kNoLimit},
                                         {1958, 4, 5, 6, kNoLimit},
                                         {1966, 0, 1, 2, kUsualLimit},
                                         {1981, 0, 1, 2, 7},
                                         {1993, 0, 1, 2, 5},
                                          {2005, 0, 1, 2, 4},
                                          {2016, 0, 1, 2, 3}}};
// Outs of the three kinds of outing, each from the end of the one before.
constexpr std::array<int, 3> kLastOut{5, 11, kAnyOuts};

}  // namespace

const PenRules& PenRulesOf(int year) {
    const auto later =
        std::find_if(kPens.begin() + 1, kPens.end(), [year](const PenRules& pen) { return pen.firstYear > year; });
    return *(later - 1);
}

void WritePenRules(Database& season, const std::vector<LahmanTeam>& teams) {
    if (teams.empty()) return;
    const PenRules& pen = PenRulesOf(MainYear(teams));
    const std::array<int, 3> rest{pen.shortRest, pen.middleRest, pen.longRest};
    for (std::size_t i = 0; i < rest.size(); ++i) {
        const int from = i == 0 ? 0 : kLastOut[i - 1] + 1;
        season.Execute(
            "UPDATE PitcherRestSettings SET IPOutsFrom = ?, IPOutsTo = ?, RestDays = ? WHERE pitcherType = 'R' AND "
            "RestID = ?",
            {std::int64_t{from}, std::int64_t{kLastOut[i]}, std::int64_t{rest[i]}, static_cast<std::int64_t>(i + 1)});
    }
    season.Execute("UPDATE LeagueRules SET RelieverMaxIPOuts = ?", {std::int64_t{pen.mostOuts}});
}

}  // namespace tarvane
