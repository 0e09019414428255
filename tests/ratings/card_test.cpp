// A player's card: what he plays with, and where it comes from.

#include "ratings/player_card.h"

#include <gtest/gtest.h>

#include "season_fixture.h"

namespace tarvane {
namespace {

class Card : public ::testing::Test {
  protected:
    Card() {
        f.AddRandomPlayers(4, 2, 1);
        test::GenerateAll(f, 1);
        f.season.Execute("INSERT INTO LeagueRules DEFAULT VALUES");
    }
    std::string Of(std::string_view name, std::string_view team = {}) {
        return PlayerCard(f.season, f.common, name, team, {});
    }
    test::SeasonFixture f;
};

TEST_F(Card, TellsOfTheStoredChart) {
    // A cell that someone has edited is shown as it stands, and counted.
    f.season.Execute(
        "UPDATE KorvBatters SET vsL34 = 'HR', vsL34Color = 65280, runRating = 5 WHERE LahmanPlayerID = 'b1'");
    const std::string card = Of("name B1", "aaa");
    EXPECT_NE(card.find("  34     18  HR   G"), std::string::npos) << card;
    EXPECT_NE(card.find("running 5"), std::string::npos);
    EXPECT_NE(card.find("Against left-handed pitching"), std::string::npos);
    EXPECT_NE(card.find("  C  "), std::string::npos) << "his fielding";
    EXPECT_NE(Of("Name p1").find("throws right"), std::string::npos);
}

TEST_F(Card, AManWithoutStatisticsHasAChartAllTheSame) {
    f.AddBatter("made", kRightHand);
    EXPECT_NE(Of("Name made").find("No real statistics"), std::string::npos);
}

TEST_F(Card, AManInBothTablesHasTwoCards) {
    f.AddBatter("p1", kLeftHand);
    const std::string cards = Of("Name p1");
    EXPECT_NE(cards.find("batter, bats left"), std::string::npos);
    EXPECT_NE(cards.find("starter, throws right"), std::string::npos);
}

TEST_F(Card, NamesThatComeNear) {
    try {
        Of("Nome b2");
        FAIL();
    } catch (const UserError& error) {
        EXPECT_STREQ(error.what(), "No player \"Nome b2\" in this season. Do you mean Name b2 (AAA)?");
    }
    EXPECT_THROW(Of("Name b2", "BBB"), UserError);
    EXPECT_THROW(Of(""), UserError);
}

}  // namespace
}  // namespace tarvane
