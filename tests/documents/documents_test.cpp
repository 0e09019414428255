#include <gmock/gmock.h>

#include <numeric>

#include "base/error.h"
#include "base/text.h"
#include "documents/gamefiles.h"
#include "documents/loggedbox.h"
#include "documents/page.h"
#include "engine/boxtext.h"
#include "engine/fixture.h"
#include "postingseason.h"

namespace tarvane {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

struct Played {
    GameData data = fixture::MakeGameData();
    GameState state = fixture::FirstPitch(data);
    ScoreSheet sheet;

    explicit Played(std::uint64_t seed) {
        Random random(seed);
        Manager hold;
        PlayOut(data, state, random, hold, hold, &sheet);
    }
};

int Column(const DocumentTable& table, const std::string& head, std::size_t row) {
    const auto at = std::find(table.heads.begin(), table.heads.end(), head) - table.heads.begin();
    return static_cast<int>(ParseInt(table.rows.at(row).at(static_cast<std::size_t>(at))).value_or(-1));
}

// Tags that open and close as they nest; the void ones of our pages apart.
std::string FirstUnbalanced(const std::string& html) {
    std::vector<std::string> open;
    for (std::size_t at = html.find('<'); at != std::string::npos; at = html.find('<', at + 1)) {
        const bool closes = html[at + 1] == '/';
        const std::size_t from = at + (closes ? 2 : 1), end = html.find_first_of(" >", from);
        const std::string name = html.substr(from, end - from);
        if (name == "!DOCTYPE" || name == "meta" || name == "img") continue;
        if (!closes)
            open.push_back(name);
        else if (open.empty() || open.back() != name)
            return "/" + name;
        else
            open.pop_back();
    }
    return open.empty() ? "" : open.back();
}

TEST(BoxDocument, AddsUpToTheLineScore) {
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        const Played game(seed);
        const BoxDocument box = MakeBoxDocument(game.data, game.state, 3725);
        for (const Side side : kBothSides) {
            const DocumentTable& batting = box.side[side].batting;
            const std::size_t last = batting.rows.size() - 1;
            EXPECT_EQ(Column(batting, "R", last), game.state[side].Runs);
            EXPECT_EQ(Column(batting, "H", last), game.state[side].Hits);
            EXPECT_EQ(Column(batting, "E", last), game.state[side].Errors);
            const DocumentTable& against = box.side[Other(side)].pitching;
            int hits = 0;
            for (std::size_t row = 0; row < against.rows.size(); ++row) hits += Column(against, "H", row);
            EXPECT_EQ(hits, game.state[side].Hits);
            for (const auto& row : batting.rows) EXPECT_EQ(row.size(), batting.heads.size());
        }
        const auto& home = box.lineScore.rows[1];
        EXPECT_EQ(home[9] == "x", game.state.BottomNotPlayed && game.state.Inning == 9);
        EXPECT_EQ(box.elapsed, "Time to play game: 1:02:05");
        EXPECT_THAT(BoxScoreText(box, {}), HasSubstr(" PO  "));
        EXPECT_THAT(BoxScoreText(box, {true}), Not(HasSubstr(" PO  ")));
    }
    EXPECT_EQ(ElapsedText(0), "Less than 1 second");
}

TEST(ScoreSheet, HasAMarkForEachTurnAndADotForEachRun) {
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        const Played game(seed);
        for (const Side side : kBothSides) {
            std::size_t marks = 0, runs = 0;
            for (const ScoreSheetRow& row : game.sheet.Rows(side))
                for (const std::string& cell : row.innings) {
                    if (!cell.empty()) marks += 1 + static_cast<std::size_t>(std::count(cell.begin(), cell.end(), ' '));
                    runs += static_cast<std::size_t>(std::count(cell.begin(), cell.end(), '\xE2'));
                }
            const SideProof proof = ProveBox(game.state).side[side];
            EXPECT_EQ(marks, static_cast<std::size_t>(proof.Appearances())) << seed;
            EXPECT_EQ(runs, static_cast<std::size_t>(proof.Runs)) << seed;
        }
        ScoreSheet again;
        again.Read(game.data, game.sheet.Write());
        for (const Side side : kBothSides) EXPECT_EQ(again.Rows(side), game.sheet.Rows(side));
    }
    const Played game(1);
    ScoreSheet sheet;
    for (const char* damaged :
         {"V\t1\tB", "X\t1\tB\t0\tC", "V\t10\tB\t0\tC", "V\t1\tB\t-1\tC", "V\t1\tB\t120\tC", "V\tx\tB\t0\tC"})
        EXPECT_THROW(sheet.Read(game.data, damaged), UserError) << damaged;
}

TEST(Documents, PagesAreWellFormedWhateverTheNames) {
    Played game(3);
    game.data.team[Side::Home].roster.team.fullName = "Q&A <Club> \"O'Neill\" \xC3\xA9";
    game.data.team[Side::Home].roster.batters[0].playerName = "<b>&amp;\xC3\x89mile</b>";
    const BoxDocument box = MakeBoxDocument(game.data, game.state, 1);
    for (const std::string& page :
         {BoxScoreHtml(box, {}), BoxScoreHtml(box, {true}), ScoreSheetHtml(game.sheet, box)}) {
        EXPECT_EQ(FirstUnbalanced(page), "");
        EXPECT_THAT(page, HasSubstr("Q&amp;A &lt;Club&gt; &quot;O&#39;Neill&quot; \xC3\xA9"));
        EXPECT_THAT(page, Not(HasSubstr("<Club>")));
    }
}

TEST(Documents, AreFiledUnderTheNamesOfTheSchedule) {
    Played game(2);
    game.data.team[Side::Visitor].roster.team.teamID = "NYA";
    game.data.team[Side::Home].roster.team.teamID = "BOS";
    GameFilesChoice choice;
    choice.boxScore = choice.scoreSheet = true;
    choice.format = 'T';
    LeagueRules rules;
    EXPECT_EQ(NameGameFiles(choice, rules, game.data, 12).boxScore, "BoxScoreNYA@BOS12.txt");
    rules.TourneyMode = true;
    rules.TourneyType = "P";
    choice.format = 'H';
    EXPECT_EQ(NameGameFiles(choice, rules, game.data, 3).scoreSheet, "PostSeasonScoreSheetNYA@BOS3.htm");
    rules.TourneyType = "D";
    choice.boxScore = false;
    EXPECT_EQ(NameGameFiles(choice, rules, game.data, 3).boxScore, " ");
    EXPECT_EQ(NameGameFiles(choice, rules, game.data, 3).scoreSheet, "TourneyScoreSheetNYA@BOS3.htm");
}

// Keeps the document of each game as it is over.
class Keeper : public SeasonWatcher {
  public:
    void GameOver(const GameSetup& setup, const GameState& state, GameToPost& posting) override {
        boxes.emplace_back(posting.GameID, MakeBoxDocument(setup.data, state));
    }
    std::vector<std::pair<std::int32_t, BoxDocument>> boxes;
};

TEST(LoggedBox, TellsWhatTheDocumentTold) {
    const auto made = testing::MakeScheduledSeason(2);
    Keeper keeper;
    SeasonPlayer player(*made->common, *made->season);
    SeasonRun run;
    run.games = 8;
    player.Run(run, keeper);
    ASSERT_EQ(keeper.boxes.size(), 8U);
    for (const auto& [id, box] : keeper.boxes) {
        const BoxDocument logged = LoggedBox(*made->season, id);
        EXPECT_EQ(logged.title, box.title);
        for (const Side side : kBothSides) {
            const auto totals = [](const DocumentTable& table) {
                auto row = table.rows.back();
                row.resize(21);
                return row;
            };
            EXPECT_EQ(totals(logged.side[side].batting), totals(box.side[side].batting)) << id;
            EXPECT_EQ(logged.side[side].pitching.rows.size(), box.side[side].pitching.rows.size());
            EXPECT_EQ(logged.side[side].notes.size(), box.side[side].notes.size());
        }
    }
    EXPECT_THROW(LoggedBox(*made->season, 9), UserError) << "not played";
    EXPECT_THROW(LoggedBox(*made->season, 999), UserError) << "not there";
    EXPECT_EQ(BoxScoreFileOf(*made->season, 1), "");
}

}  // namespace
}  // namespace tarvane
