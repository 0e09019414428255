#include <gmock/gmock.h>

#include <sstream>

#include "box_game.h"
#include "engine/boxtext.h"

namespace tarvane {
namespace {

using ::testing::HasSubstr;

constexpr Side V = Side::Visitor;
constexpr Side H = Side::Home;

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

TEST(BoxText, LineScoreMarksWhatWasNotPlayed) {
    BoxGame game;
    game.data.team[V].roster.team.shortName = "Owls";
    game.data.team[H].roster.team.shortName = "Herons";
    game.state.Inning = 9;
    game.state[V].InningRuns = {0, 0, 0, 1};
    game.state[H].InningRuns = {0, 12, 0, 0, 0, 0, 0, 2};
    game.state[V].Runs = 1;
    game.state[H].Runs = 14;
    game.state[H].LOB = 11;
    game.state.BottomNotPlayed = true;
    EXPECT_EQ(LineScoreText(game.data, game.state),
              "         1  2 3  4 5 6  7 8 9    R   H   E  LOB\n"
              "Owls     0  0 0  1 0 0  0 0 0    1   0   0    0\n"
              "Herons   0 12 0  0 0 0  0 2 x   14   0   0   11\n");
    game.state.BottomNotPlayed = false;
    game.state.Inning = 11;
    const std::string extra = LineScoreText(game.data, game.state);
    EXPECT_THAT(extra, HasSubstr("7 8 9  10 11    R"));
    EXPECT_THAT(extra, HasSubstr("0 2 0   0      14")) << "the bottom of the eleventh is still to come";
}

TEST(BoxText, BatterWithManyPlacesAndMarksOfThePitchers) {
    BoxGame game;
    game.data.team[V].roster.batters[9].playerName = "José Ñandú";
    LineupInput lineup = game.Now(V);
    lineup.player[2] = BoxGame::Man(9);
    lineup.position[2] = Position::PH;
    ASSERT_EQ(game.Change(lineup), Reject::None);
    game.state[V].BatterSlot = 3;
    game.Book(Result::HR, 0, BoxGame::Runs(game.state, {3}, 1, 1));
    game.Book(Result::HR, 0, BoxGame::Runs(game.state, {3}, 1, 1));
    lineup.position[2] = Position::B2;
    ASSERT_EQ(game.Change(lineup), Reject::None);
    game.Pitcher(V, 0).Win = true;
    game.Pitcher(V, 0).IPOuts = 26;
    const std::string text = BoxScoreText(game.data, game.state);
    EXPECT_THAT(text, HasSubstr("\n  José Ñandú ph-2b"));
    EXPECT_THAT(text, HasSubstr("José Ñandú batted for V Man 2."));
    EXPECT_THAT(text, HasSubstr("HR: José Ñandú 2\n"));
    EXPECT_THAT(text, HasSubstr("V Arm 0 (W)"));
    EXPECT_THAT(text, HasSubstr(" 8.2 "));
    EXPECT_THAT(text, HasSubstr("H Arm 0 (L)"));
    // Letters of two bytes take one place: the man's line is as wide as the total's.
    int his = 0, totals = 0;
    for (const std::string& line : LinesOf(text)) {
        if (line.find("ph-2b") != std::string::npos) his = static_cast<int>(line.size()) - 3;
        if (totals == 0 && line.rfind("Totals", 0) == 0) totals = static_cast<int>(line.size());
    }
    EXPECT_GT(his, 0);
    EXPECT_EQ(his, totals);
}

TEST(BoxText, ProofCountsEachManOnce) {
    BoxGame game;
    for (const Result result : {Result::Single, Result::BB, Result::E}) game.Book(result);
    game.Book(Result::SH, 1, [](Play& play) { play.FieldedBy = Position::P; });
    game.Book(Result::HR, 0, BoxGame::Runs(game.state, {1, 2, 3, 5}, 1, 4));
    game.Book(Result::HBP);
    game.Book(Result::DP);
    EXPECT_TRUE(ProveBox(game.state).Proves());
    game.Book(Result::DP);
    EXPECT_FALSE(ProveBox(game.state).Proves()) << "two outs of a double play with nobody on";
    game.Pitcher(H, 0).IPOuts = 4;
    const BoxProof proof = ProveBox(game.state);
    EXPECT_EQ(proof.side[V].Appearances(), 8);
    EXPECT_EQ(proof.side[V].BF, 8);
    EXPECT_EQ(proof.side[V].Surplus(), 0);
    EXPECT_TRUE(proof.Proves());
    ++game.Pitcher(H, 0).BF;
    EXPECT_FALSE(ProveBox(game.state).Proves());
    EXPECT_THAT(BoxProofText(game.data, game.state), HasSubstr("= 8 is not BF 9; R 4 + LOB 0 + outs 4 = 8"));
}

}  // namespace
}  // namespace tarvane
