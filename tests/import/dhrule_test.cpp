#include "import/dhrule.h"

#include <gtest/gtest.h>

#include "support.h"

namespace tarvane::test {
namespace {

TEST(DHRule, FollowsTheLeaguesOfTheirYears) {
    EXPECT_FALSE(PlayedWithDH("AL", 1972));
    EXPECT_TRUE(PlayedWithDH("AL", 1973));
    EXPECT_FALSE(PlayedWithDH("NL", 2021));
    EXPECT_TRUE(PlayedWithDH("NL", 2020));
    EXPECT_FALSE(PlayedWithDH("FL", 1915));
}

TEST(DHRule, OneLeagueBothOrNone) {
    const TempFolder folder;
    Database season(folder / "season.mdb", Database::Mode::Create);
    season.Execute("CREATE TABLE LeagueRules (LeagueDH BOOLEAN, HometeamDH BOOLEAN)");
    season.Execute("INSERT INTO LeagueRules VALUES (0, 0)");
    const auto rule = [&](std::vector<std::pair<int, const char*>> of) {
        std::vector<LahmanTeam> teams(of.size());
        for (std::size_t i = 0; i < of.size(); ++i) teams[i].yearID = of[i].first, teams[i].lgID = of[i].second;
        WriteDHRule(season, teams);
        const Recordset rules = season.OpenRecordset("LeagueRules");
        return std::pair(rules.GetBool("LeagueDH"), rules.GetBool("HometeamDH"));
    };
    EXPECT_EQ(rule({{1975, "AL"}, {1975, "NL"}}), std::pair(false, true));
    EXPECT_EQ(rule({{2024, "AL"}, {2024, "NL"}}), std::pair(true, false));
    EXPECT_EQ(rule({{1927, "AL"}, {1975, "NL"}}), std::pair(false, false));
}

}  // namespace
}  // namespace tarvane::test
