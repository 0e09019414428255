#include "import/choices.h"

#include <gmock/gmock.h>

#include "import/alignment.h"
#include "import/teamcolors.h"
#include "support.h"

namespace tarvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

LahmanTeam Team(int year, const std::string& league, const std::string& code, const std::string& division = "") {
    LahmanTeam team;
    team.yearID = year;
    team.lgID = league;
    team.LahmanTeamID = team.KorvTeamID = code;
    team.divID = division;
    team.name = code + " Nine";
    return team;
}

TEST(TeamList, TextsOfTheList) {
    LahmanTeam team = Team(1927, "AL", "NYA");
    team.name = "New York Yankees";
    team.W = 110;
    team.L = 44;
    team.KorvTeamID = "NY2";
    EXPECT_EQ(TeamEntryText(team), "1927 New York Yankees (NY2 - AL)     Wins: 110   Losses: 44");
    EXPECT_EQ(TeamCountText(1), "1 team for import");
    EXPECT_EQ(TeamCountText(0), "0 teams for import");
    const std::map<std::string, std::string> shortNames{{"Boston Red Sox", "Red Sox"},
                                                        {"Toronto Blue Jays", "Blue Jays"},
                                                        {"Chicago White Sox", "White Sox"},
                                                        {"Kansas City Athletics", "Athletics"},
                                                        {"Philadelphia Blue Jays", "Jays"},
                                                        {"Los Angeles Angels of Anaheim", "Anaheim"},
                                                        {"Nine", "Nine"},
                                                        {"", ""}};
    for (const auto& [name, shortName] : shortNames) EXPECT_EQ(ShortName(name), shortName);
}

TEST(TeamList, Choosing) {
    const std::vector<LahmanTeam> list{Team(1927, "AL", "NYA"), Team(1927, "NL", "CHN"), Team(1961, "AL", "NYA")};
    EXPECT_EQ(ChooseTeams(list, {{1927, ""}}).size(), 2U);
    EXPECT_EQ(ChooseTeams(list, {{1961, "nya"}, {1927, "CHN"}, {1927, "CHN"}}).size(), 2U) << "each once";
    EXPECT_EQ(ChooseTeams(list, {{1961, "NYA"}, {1927, "CHN"}})[0].yearID, 1927) << "in the list's order";
    EXPECT_THAT(MessageOf([&] { ChooseTeams(list, {{1926, ""}}); }), HasSubstr("1926"));
    EXPECT_THAT(MessageOf([&] { ChooseTeams(list, {{1927, "BOS"}}); }), HasSubstr("no team BOS in 1927"));
}

TEST(TeamList, CodesAreMadeUnique) {
    std::vector<LahmanTeam> teams{Team(1927, "AL", "NYA"), Team(1961, "AL", "NYA"), Team(1861, "AL", "NYA"),
                                  Team(1998, "AL", "NYA98"), Team(1998, "AL", "NYA")};
    EXPECT_EQ(FindDuplicateCode(teams), std::pair(std::size_t{0}, std::size_t{1}));
    EXPECT_EQ(CheckSelection(teams)->control, "txtTeamID1");
    const std::vector<std::string> told = MakeCodesUnique(teams);
    std::vector<std::string> codes;
    for (const LahmanTeam& team : teams) codes.push_back(team.KorvTeamID);
    EXPECT_THAT(codes, ElementsAre("NYA", "NYA61", "NYA1861", "NYA98", "NYA1998"));
    EXPECT_THAT(told.at(0), HasSubstr("1961 NYA Nine has the code NYA61"));
    EXPECT_FALSE(CheckSelection(teams));
    EXPECT_EQ(CheckSelection({})->message, "There are no teams selected for Import");
    for (const auto& [one, two] : {std::pair("", "A"), std::pair("A", " ")})
        EXPECT_EQ(CheckNewCodes(one, two), "Please specify Team ID.");
    for (const auto& [one, two] : {std::pair("f/a", "A"), std::pair("998", "A"), std::pair("A", "999"),
                                   std::pair("O'B", "A"), std::pair("ABCDEFGHIJK", "A")})
        EXPECT_EQ(CheckNewCodes(one, two), "Invalid Team ID.") << one << two;
    EXPECT_EQ(CheckNewCodes("NYA", "NYB"), "");
}

TEST(Choices, SeasonAndFilters) {
    ImportSettings settings;
    const auto fault = [&](const char* name, const char* ip, const char* ab) {
        const auto found = ReadSeasonForm(name, ip, ab, settings);
        return found ? found->message : std::string();
    };
    EXPECT_EQ(fault("  ", "", ""), "Please specify a Season Name");
    EXPECT_THAT(fault("O'Neill", "", ""), HasSubstr("can't name a season"));
    for (const char* wrong : {"x", "-1", "1e9", "nan"}) {
        EXPECT_EQ(fault("Mine", wrong, ""), "Invalid Min IP Filter");
        EXPECT_EQ(fault("Mine", "", wrong), "Invalid Min AB Filter");
    }
    EXPECT_EQ(fault(" Mine ", "10", "100"), "");
    EXPECT_EQ(settings.minIPOuts, 30);
    EXPECT_EQ(settings.minAB, 100);
    EXPECT_THAT(ConfirmationLines(settings),
                ElementsAre("Season Name: Mine", "Min IP Filter: 10", "Min AB Filter: 100", "Set Team Colors: Yes",
                            "Include Year in Team Name: No", "Make Players Free Agents: No"));
    EXPECT_EQ(fault("Mine", "", "0"), "");
    EXPECT_EQ(ConfirmationLines(settings)[1] + ConfirmationLines(settings)[2],
              "Min IP Filter: NoneMin AB Filter: None");
}

// Each thing alone is refused with its text; with two wrong, the earlier on the screen is told.
TEST(Choices, LastScreen) {
    FinishSettings good;
    good.eras = {19271, 19272, {}};
    good.PAFactor = 0.9;
    ASSERT_FALSE(CheckFinish(good, 2));
    EXPECT_EQ(CheckFinish(good, 3), (FormFault{"Please select Year Effect to Generate Player Ratings", "cmbEra3"}));
    struct Case {
        void (*spoil)(FinishSettings&);
        const char* message;
    };
    const Case cases[]{
        {[](FinishSettings& f) { f.eras[1] = {}; }, "Please select Year Effect to Generate Player Ratings"},
        {[](FinishSettings& f) { f.LHBAdjust = 0; }, "Invalid LH Batter vs Lefty Pitcher Adjustment."},
        {[](FinishSettings& f) { f.LHBAdjust = -1; }, "Invalid LH Batter vs Lefty Pitcher Adjustment."},
        {[](FinishSettings& f) { f.RHBAdjust = {}; }, "Invalid RH Batter vs Lefty Pitcher Adjustment."},
        {[](FinishSettings& f) { f.genLRSplits = false; }, "Must Generate L/R Splits to Generate Batter/Pitcher Cells"},
        {[](FinishSettings& f) { f.eras[0] = {}, f.genRatings = false; },
         "Please select Year Effect to Generate Batter/Pitcher Cells"},
        {[](FinishSettings& f) { f.PAFactor = 1; }, "Invalid PA Percentage to Generate Batter Cells."},
        {[](FinishSettings& f) { f.PAFactor = {}; }, "Invalid PA Percentage to Generate Batter Cells."},
        {[](FinishSettings& f) { f.PitcherOutFactor = 0; }, "Invalid Pitcher Out Normalization Percentage."},
        {[](FinishSettings& f) { f.assignImages = true, f.genBatterPitcherCells = false; },
         "Must Generate Batter and Pitcher Cells to Assign Player Images"},
        {[](FinishSettings& f) { f.genRatings = false; }, "Must Generate Player Ratings to Generate Computer Manager"},
        {[](FinishSettings& f) { f.genBatterPitcherCells = false; },
         "Must Generate Batter and Pitcher Cells to Generate Computer Manager"},
        {[](FinishSettings& f) { f.genComputerMgr = false, f.lineups.basedOnUsage = true; },
         "Must Generate Computer Managers if Generate Based on Actual Usage box is specified"},
        {[](FinishSettings& f) { f.genComputerMgr = false; },
         "Must Generate Computer Managers if Lineup Types box is specified"},
        {[](FinishSettings& f) { f.lineups.both = false; },
         "Please specify a Lineup Type box to Generate Computer Managers"},
    };
    for (const Case& first : cases) {
        FinishSettings one = good;
        first.spoil(one);
        ASSERT_TRUE(CheckFinish(one, 2)) << first.message;
        EXPECT_EQ(CheckFinish(one, 2)->message, first.message);
    }
    FinishSettings two = good;
    two.RHBAdjust = 1;
    two.PAFactor = 0;
    EXPECT_EQ(CheckFinish(two, 2)->control, "txtRHBvsLHP");
    FinishSettings none = good;
    none.genComputerMgr = none.lineups.both = none.genBatterPitcherCells = none.genRatings = false;
    none.eras = {};
    EXPECT_FALSE(CheckFinish(none, 2)) << "what isn't generated needs no era";
}

TEST(Alignment, LeaguesAndDivisionsOfTheYear) {
    struct Case {
        std::vector<LahmanTeam> teams;
        std::vector<std::string> leagues;  // number, short name
        std::vector<std::string> divisions;
        std::vector<std::string> places;
    };
    const Case cases[]{
        {{Team(1968, "NL", "CHN"), Team(1968, "AL", "BOS")}, {"1AL", "2NL"}, {}, {"BOS 1 0", "CHN 2 0"}},
        {{Team(1914, "AL", "BOS"), Team(1914, "FL", "CHF")}, {"1AL", "2FL"}, {}, {"BOS 1 0", "CHF 2 0"}},
        {{Team(1975, "AL", "BOS", "E"), Team(1975, "NL", "LAN", "W"), Team(1975, "NL", "PIT", "E")},
         {"1AL", "2NL"},
         {"1 1East", "1 2West", "2 5East", "2 6West"},
         {"BOS 1 1", "LAN 2 6", "PIT 2 5"}},
        {{Team(1998, "NL", "CHN", "C"), Team(1998, "NL", "ATL", "E"), Team(1998, "NL", "ARI", "W")},
         {"1NL"},
         {"1 1East", "1 2Central", "1 3West"},
         {"ARI 1 3", "ATL 1 1", "CHN 1 2"}},
        {{Team(1975, "AL", "BOS", "E"), Team(1976, "AL", "NYA", "E")}, {"1**"}, {}, {"BOS 1 1", "NYA 1 1"}},
        {{Team(1935, "NN2", "PC", ""), Team(1935, "AL", "NYA", "")}, {"1**"}, {}, {"NYA 1 1", "PC 1 1"}},
    };
    for (const Case& c : cases) {
        const Alignment alignment = AlignTeams(c.teams, true, "Mine", {1, 2, 3});
        std::vector<std::string> leagues, divisions, places;
        for (const League& league : alignment.leagues) {
            leagues.push_back(std::to_string(league.lgIdx) + league.shortName);
            EXPECT_EQ(league.EraID, league.lgIdx) << "the eras go by the leagues' numbers";
        }
        for (const Division& d : alignment.divisions)
            divisions.push_back(std::to_string(d.lgIdx) + " " + std::to_string(d.divIdx) + d.divName);
        for (const auto& [team, place] : alignment.places)
            places.push_back(team + " " + std::to_string(place.lgIdx) + " " + std::to_string(place.divIdx));
        EXPECT_EQ(leagues, c.leagues);
        EXPECT_EQ(divisions, c.divisions);
        EXPECT_EQ(places, c.places);
        EXPECT_EQ(LeagueCount(c.teams, true), c.leagues.size());
        EXPECT_EQ(LeagueCount(c.teams, false), 1U);
    }
    EXPECT_EQ(AlignTeams(cases[0].teams, false, "Mine", {}).leagues[0].lgName, "Mine");
}

TEST(TeamColors, EveryFranchiseCanBeRead) {
    for (const char* franchise : {"ANA", "BAL", "BOS", "CHW", "CLE", "DET", "KCR", "MIN", "NYY", "OAK", "SEA",
                                  "TBA", "TBD", "TEX", "TOR", "ARI", "ATL", "CHC", "CIN", "COL", "FLA", "HOU",
                                  "LAD", "MIL", "WSN", "MON", "NYM", "PHI", "PIT", "SDP", "SFG", "STL"}) {
        const TeamColors colors = ColorsOf(franchise);
        EXPECT_NE(colors, kPlainColors) << franchise;
        // Letters must stand out from their ground: far apart in brightness.
        const auto brightness = [](std::int32_t c) {
            return 0.3 * (c & 255) + 0.59 * ((c >> 8) & 255) + 0.11 * ((c >> 16) & 255);
        };
        EXPECT_GT(std::abs(brightness(colors.HmForeClr) - brightness(colors.HmBackClr)), 60) << franchise;
        EXPECT_GT(std::abs(brightness(colors.RdForeClr) - brightness(colors.RdBackClr)), 60) << franchise;
    }
    EXPECT_EQ(ColorsOf("BOS"), (TeamColors{217, 16777215, 217, 12632256}));
    EXPECT_EQ(ColorsOf("BLT"), kPlainColors);
}

}  // namespace
}  // namespace tarvane::test
