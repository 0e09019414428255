#include "box_game.h"

namespace tarvane {
namespace {

constexpr Side V = Side::Visitor;
constexpr Side H = Side::Home;

// "W", "L", "S" or "-" for each pitcher of a side, in the order in which they pitched.
std::string Marks(BoxGame& game, Side side) {
    std::string text;
    for (int i = 0; i < game.state[side].box.PitchersUsed; ++i) {
        const PitchingLine& line = game.Pitcher(side, i);
        const std::string marks = std::string(line.Win ? "W" : "") + (line.Loss ? "L" : "") + (line.Save ? "S" : "");
        text += marks.empty() ? "-" : marks;
    }
    return text;
}

// The side at bat scores on a single by the man in slot 1, charged to the pitcher as his own.
void Score(BoxGame& game, int runs, bool inherited = false) {
    std::vector<int> slots;
    for (int i = 0; i < runs; ++i) slots.push_back(2 + i);
    BoxLines& box = game.state.Fielding().box;
    const int owner = inherited ? box.PitchersUsed - 2 : box.PitchersUsed - 1;
    auto& charged = box.pitching[static_cast<std::size_t>(owner)].RunnersCharged;
    charged = static_cast<std::uint8_t>(charged + runs);
    game.Book(Result::Single, 0, BoxGame::Runs(game.state, slots, runs, runs));
}

TEST(Decisions, StarterNeedsFiveInnings) {
    BoxGame game;
    Score(game, 2);
    EXPECT_EQ(Marks(game, V) + Marks(game, H), "-L");
    game.Pitcher(V, 0).IPOuts = 14;
    LonePitcherWin(game.state, V);
    EXPECT_EQ(Marks(game, V), "-");
    game.Pitcher(V, 0).IPOuts = 15;
    LonePitcherWin(game.state, V);
    EXPECT_EQ(Marks(game, V) + Marks(game, H), "WL");
}

TEST(Decisions, LoneStarterAheadAgainHasNoLossLeft) {
    BoxGame game;
    game.NextHalf();
    Score(game, 1);
    EXPECT_EQ(Marks(game, V), "L");
    game.NextHalf();
    Score(game, 2);
    EXPECT_EQ(Marks(game, V) + Marks(game, H), "-L") << "one game has one loser";
}

TEST(Decisions, LeavingStarterKeepsHisWinThroughATieOnlyUntilTheLeadChanges) {
    BoxGame game;
    Score(game, 1);
    game.Pitcher(V, 0).IPOuts = 15;
    game.NextHalf();
    ASSERT_EQ(game.BringIn(V, 3), Reject::None);
    EXPECT_EQ(Marks(game, V), "W-");
    Score(game, 1);
    EXPECT_EQ(Marks(game, V) + Marks(game, H), "W--") << "a tie takes from the men in the game only";
    game.NextHalf();
    Score(game, 1);
    EXPECT_EQ(Marks(game, V) + Marks(game, H), "-WL");
    game.NextHalf();
    Score(game, 2);
    EXPECT_EQ(Marks(game, V) + Marks(game, H), "-L-") << "a lone starter short of five innings isn't the winner yet";
}

TEST(Decisions, LossFallsToThePitcherWhoseRunnersScored) {
    BoxGame game;
    game.state[H].Runs = 1;
    ASSERT_EQ(game.BringIn(H, 3), Reject::None);
    Score(game, 2, true);
    EXPECT_EQ(Marks(game, H), "L-");

    BoxGame own;
    own.state[H].Runs = 1;
    ASSERT_EQ(own.BringIn(H, 3), Reject::None);
    Score(own, 2);
    EXPECT_EQ(Marks(own, H), "-L");
}

TEST(Decisions, ReliefWinGoesToTheManInTheGameAndTakesHisSave) {
    BoxGame game;
    game.state.Inning = 5;
    Score(game, 2);
    game.NextHalf();
    ASSERT_EQ(game.BringIn(V, 3), Reject::None);
    EXPECT_EQ(Marks(game, V), "-S");
    ReliefWin(game.state, V);
    EXPECT_EQ(Marks(game, V), "-W");
    ASSERT_EQ(game.BringIn(V, 4), Reject::None);
    ReliefWin(game.state, V);
    EXPECT_EQ(Marks(game, V), "-WS") << "the win is given once";
    game.state[H].Runs = 9;
    DropLosersSave(game.state);
    EXPECT_EQ(Marks(game, V), "-W-");
}

TEST(Decisions, SaveOnEntryByLeadInningAndSide) {
    struct Case {
        Side side;
        int inning, lead, on, outs;
        bool save;
    };
    const Case cases[] = {
        {V, 4, 2, 0, 0, false}, {V, 5, 3, 0, 2, true},   {H, 8, 4, 2, 1, false}, {H, 8, 4, 3, 1, true},
        {V, 9, 3, 0, 0, true},  {V, 9, 3, 0, 1, false},  {V, 9, 3, 1, 1, true},  {H, 9, 2, 0, 2, true},
        {V, 11, 1, 0, 0, true}, {H, 11, 1, 0, 0, false}, {H, 9, 0, 3, 0, false}, {H, 9, 6, 3, 0, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::to_string(c.inning) + " lead " + std::to_string(c.lead) + " on " + std::to_string(c.on));
        BoxGame game;
        game.state.Inning = static_cast<std::uint8_t>(c.inning);
        game.state.BattingSide = Other(c.side);
        game.state.Outs = static_cast<std::uint8_t>(c.outs);
        game.state[c.side].Runs = static_cast<std::int16_t>(c.lead);
        for (std::size_t base = 1; base <= static_cast<std::size_t>(c.on); ++base) {
            game.state.Batting().runner[base].slot = static_cast<std::uint8_t>(base);
        }
        ASSERT_EQ(game.BringIn(c.side, 3), Reject::None);
        EXPECT_EQ(game.Pitcher(c.side, 1).Save, c.save);
    }
}

TEST(Decisions, SaveIsLostWithTheLead) {
    BoxGame game;
    game.state.Inning = 8;
    Score(game, 1);
    game.NextHalf();
    ASSERT_EQ(game.BringIn(V, 3), Reject::None);
    ASSERT_TRUE(game.Pitcher(V, 1).Save);
    Score(game, 1);
    EXPECT_FALSE(game.Pitcher(V, 1).Save);
    ASSERT_EQ(game.BringIn(V, 4), Reject::None);
    EXPECT_FALSE(game.Pitcher(V, 2).Save) << "a tie is no lead to save";
}

TEST(Decisions, LeftOnBaseIsWhatThePitchersStillAnswerFor) {
    BoxGame game;
    ASSERT_EQ(game.BringIn(H, 3), Reject::None);
    game.Pitcher(H, 0).RunnersCharged = 2;
    game.Pitcher(H, 1).RunnersCharged = 1;
    SumLeftOnBase(game.state, V);
    SumLeftOnBase(game.state, V);
    EXPECT_EQ(game.state[V].LOB, 3);
    EXPECT_EQ(game.state[H].LOB, 0);
}

}  // namespace
}  // namespace tarvane
