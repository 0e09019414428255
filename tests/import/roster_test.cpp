#include "import/roster.h"

#include <gmock/gmock.h>

#include "import/lahmansource.h"
#include "records/player.h"
#include "support.h"

namespace tarvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

class Roster : public ::testing::Test {
  protected:
    Roster() {
        WriteFiles(folder_.Path(), SmallLeague());
        LahmanSource source(folder_.Path());
        list_ = ListTeams(source.ReadTeams());
        tables_ = source.ReadYears({1930, 1950});
    }

    LahmanTeam Team(int year, const std::string& code) { return ChooseTeams(list_, {{year, code}}).at(0); }

    TempFolder folder_;
    std::vector<LahmanTeam> list_;
    LahmanTables tables_;
};

template <class Row>
std::vector<std::string> Players(const std::vector<Row>& rows) {
    std::vector<std::string> ids;
    for (const Row& row : rows) {
        if constexpr (requires { row.playerID; })
            ids.push_back(row.playerID);
        else
            ids.push_back(row.LahmanPlayerID);
    }
    return ids;
}

std::vector<std::string> Positions(const TeamImport& import, const std::string& playerID) {
    std::vector<std::string> positions;
    for (const LahmanFieldingRow& row : import.fielding)
        if (row.playerID == playerID) positions.push_back(row.Pos);
    return positions;
}

const LahmanPitchingRow& Pitching(const TeamImport& import, const std::string& playerID) {
    return *std::find_if(import.pitching.begin(), import.pitching.end(),
                         [&](const auto& row) { return row.playerID == playerID; });
}

std::string Types(const TeamImport& import, const std::string& playerID) {
    std::string types;
    for (const NewPitcher& pitcher : import.pitchers)
        if (pitcher.LahmanPlayerID == playerID) types += pitcher.pitcherType;
    return types;
}

TEST_F(Roster, FiltersOfInningsAndAtBats) {
    RosterImporter importer(tables_, {30, 100, false});
    const TeamImport boston = importer.Import(Team(1930, "BOS"));
    // 99 at bats are too few, so are 30 outs; the pitcher of 30 outs who also hit comes in as a batter only.
    EXPECT_THAT(Players(boston.batters), ElementsAre("hitspit01", "outfiel01", "shortst01", "startpi01", "twoclub01"));
    EXPECT_THAT(Players(boston.pitchers), ElementsAre("bothwpi01", "bothwpi01", "startpi01", "nobatti01"));
    // A pitcher who hardly batted keeps his line of statistics without being one of the batters.
    EXPECT_THAT(Players(boston.batting),
                ElementsAre("bothwpi01", "hitspit01", "outfiel01", "shortst01", "startpi01", "twoclub01"));
    EXPECT_THAT(Players(boston.pitching), ElementsAre("bothwpi01", "startpi01", "nobatti01"));
    EXPECT_THAT(Positions(boston, "hitspit01"), ElementsAre("RF", "P")) << "each once, by games";
    EXPECT_THAT(Positions(boston, "fewoutp01"), IsEmpty());
    EXPECT_THAT(Positions(boston, "benchma01"), IsEmpty());
    EXPECT_THAT(Positions(boston, "nobatti01"), ElementsAre("P"));
}

TEST_F(Roster, NoFilterKeepsOutThoseWithNothing) {
    RosterImporter importer(tables_, {});
    const TeamImport boston = importer.Import(Team(1930, "BOS"));
    EXPECT_THAT(Players(boston.batters), UnorderedElementsAre("hitspit01", "outfiel01", "shortst01", "startpi01",
                                                              "twoclub01", "benchma01", "bothwpi01", "fewoutp01"));
    EXPECT_THAT(Positions(boston, "nevbatt01"), IsEmpty());
    EXPECT_EQ(Types(boston, "hitspit01"), "SR");
    EXPECT_EQ(boston.fielding.size(), 13U);
}

TEST_F(Roster, PitcherTypesByStarts) {
    struct Case {
        int GS, G;
        const char* types;
    };
    for (const Case& c : {Case{10, 20, "SR"}, Case{67, 100, "S"}, Case{66, 100, "SR"}, Case{25, 100, "R"},
                          Case{26, 100, "SR"}, Case{0, 1, "R"}, Case{2, 3, "SR"}, Case{3, 4, "S"}, Case{1, 4, "R"}})
        EXPECT_EQ(PitcherTypes(c.GS, c.G), c.types) << c.GS << " of " << c.G;
}

TEST_F(Roster, MissingFiguresOfPitchers) {
    RosterImporter importer(tables_, {});
    const TeamImport boston = importer.Import(Team(1930, "BOS")), chicago = importer.Import(Team(1930, "CHN"));
    EXPECT_DOUBLE_EQ(Pitching(boston, "startpi01").OppAB, 960);
    EXPECT_EQ(Pitching(boston, "startpi01").BFP, 1050);
    EXPECT_DOUBLE_EQ(Pitching(boston, "hitspit01").OppAB, 38.4) << "an average of 0, 30 outs and 10 hits";
    EXPECT_EQ(Pitching(boston, "bothwpi01").BFP, 460);
    EXPECT_EQ(Pitching(boston, "bothwpi01").R, 59);
    EXPECT_DOUBLE_EQ(Pitching(chicago, "cubspit01").OppAB, 912) << "9.99 is no average";
    EXPECT_EQ(Pitching(chicago, "cubspit01").BFP, std::nullopt) << "not recorded stays so";
    EXPECT_EQ(Pitching(chicago, "cubspit01").IBB, std::nullopt);
}

TEST_F(Roster, OutfieldIsSharedOutByGames) {
    RosterImporter importer(tables_, {});
    const TeamImport boston = importer.Import(Team(1930, "BOS"));
    EXPECT_THAT(Positions(boston, "outfiel01"), ElementsAre("LF", "RF", "1B")) << "in the place of the outfield's row";
    const auto left = std::find_if(boston.fielding.begin(), boston.fielding.end(),
                                   [](const auto& row) { return row.playerID == "outfiel01" && row.Pos == "LF"; });
    EXPECT_DOUBLE_EQ(left->G, 100);
    EXPECT_DOUBLE_EQ(left->PO, 200);
    EXPECT_DOUBLE_EQ(left->E, 6);
    EXPECT_DOUBLE_EQ(left->DP, 2);
    EXPECT_DOUBLE_EQ(left[1].A, 4);
    EXPECT_THAT(Positions(importer.Import(Team(1950, "BOS")), "outfiel01"), ElementsAre("LF", "RF"))
        << "from the later table";
    EXPECT_THAT(importer.OutfieldUnknown(), IsEmpty());
    EXPECT_THAT(Positions(importer.Import(Team(1930, "CHN")), "twospel01"), IsEmpty());
    EXPECT_THAT(importer.OutfieldUnknown(), ElementsAre("twospel01"));
}

TEST_F(Roster, PeopleAndTheirHands) {
    std::erase_if(tables_.Master, [](const PersonLine& person) { return person.playerID == "benchma01"; });
    RosterImporter importer(tables_, {});
    const TeamImport boston = importer.Import(Team(1930, "BOS"));
    std::map<std::string, std::pair<std::string, std::int32_t>> batters;
    for (const NewBatter& batter : boston.batters) batters[batter.LahmanPlayerID] = {batter.playerName, batter.bats};
    EXPECT_EQ(batters["outfiel01"], std::pair(std::string("Ossie Outfield"), kLeftHand));
    EXPECT_EQ(batters["twoclub01"].first, "Bartholomew\xC3\xA9 Twoclubs-Ver") << "25 letters, not bytes";
    EXPECT_EQ(batters["benchma01"], std::pair(std::string("benchma01"), kRightHand)) << "nobody knows him";
    EXPECT_THAT(importer.Nameless(), ElementsAre("benchma01"));
    for (const NewPitcher& pitcher : boston.pitchers)
        EXPECT_EQ(pitcher.throws_, pitcher.LahmanPlayerID == "startpi01" ? kLeftHand : kRightHand)
            << pitcher.LahmanPlayerID;
}

TEST_F(Roster, SpellsAndCodes) {
    RosterImporter importer(tables_, {});
    LahmanTeam chicago = Team(1930, "CHN");
    chicago.KorvTeamID = "CUB";
    const TeamImport cubs = importer.Import(chicago);
    EXPECT_THAT(Players(cubs.batters), ElementsAre("cubspit01", "twoclub01", "twospel01", "twospel01"));
    for (const LahmanBattingRow& row : cubs.batting) EXPECT_EQ(row.teamID + row.KorvTeamID, "CHNCUB");
    for (const NewBatter& batter : cubs.batters) EXPECT_EQ(batter.teamID, "CUB");

    RosterImporter free(tables_, {0, 0, true});
    const TeamImport agents = free.Import(chicago);
    for (const LahmanFieldingRow& row : agents.fielding) EXPECT_EQ(row.teamID + row.KorvTeamID, "999999");
    for (const NewPitcher& pitcher : agents.pitchers) EXPECT_EQ(pitcher.teamID, "999");
}

}  // namespace
}  // namespace tarvane::test
