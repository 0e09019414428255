#include "box_game.h"

namespace tarvane {
namespace {

constexpr Side V = Side::Visitor;
constexpr Side H = Side::Home;

TEST(Lineup, AutomaticOutsRiseByOneRollAStep) {
    const auto chance = [](int total) {
        const unsigned rolls = AutoOutsFromTotal(total);
        int sum = 0;
        for (int roll = 10; roll <= 15; ++roll) {
            if (rolls >> (roll - 10) & 1U) sum += CellWeight(roll);
        }
        return sum;
    };
    EXPECT_EQ(chance(-1), 0);
    EXPECT_EQ(chance(0), 2);
    EXPECT_EQ(chance(108), 24);
    EXPECT_EQ(chance(109), 26);
    std::vector<int> starts;
    for (int total = 1; total <= 108; ++total) {
        const int step = chance(total) - chance(total - 1);
        ASSERT_TRUE(step == 0 || step == 1) << total;
        if (step == 1) starts.push_back(total);
    }
    EXPECT_EQ(starts, (std::vector<int>{10, 14, 19, 23, 28, 32, 37, 41, 46, 50,  55,
                                        59, 64, 68, 73, 77, 82, 86, 91, 95, 100, 104}));
}

TEST(Lineup, DefenceComesFromThePositionOrTheRules) {
    BoxGame game;
    game.data.rules.UseParkEffects = game.data.rules.UseYearEffects = true;
    game.data.park.DefAdjustment = 5;
    game.data.year.DefAdjustment = -2;
    Batter& shortstop = game.data.team[V].roster.batters[4];
    shortstop.Pos[0] = {Position::SS, 12, ' '};
    Batter& catcher = game.data.team[V].roster.batters[0];
    catcher.CatcherIRating = true;
    RebuildLineupDetails(game.data, game.state, V);
    // Ratings 0 to 7 with 12 in place of the shortstop's 4, the pitcher's 3 in slot 9, and the two adjustments.
    EXPECT_EQ(game.state[V].DRTotal, 28 - 4 + 12 + 3 + 3);
    EXPECT_EQ(game.state[V].AutoOuts, AutoOutsFromTotal(42));
    EXPECT_EQ(game.state[V].lineup[4].SlotErrorRating, 'V');
    EXPECT_TRUE(game.state[V].CatcherIRated);
    EXPECT_FALSE(game.state[V].CatcherORated);

    LineupInput lineup = game.Now(V);
    std::swap(lineup.position[4], lineup.position[6]);  // shortstop to centre field and back
    std::swap(lineup.position[0], lineup.position[1]);  // the first baseman catches
    ASSERT_EQ(game.Change(lineup), Reject::None);
    EXPECT_EQ(game.state[V].lineup[4].SlotDR, game.data.rules.CFOutOfPos);
    EXPECT_EQ(game.state[V].lineup[6].SlotDR, game.data.rules.IFOutOfPos);
    EXPECT_EQ(game.state[V].lineup[1].SlotDR, game.data.rules.COutOfPos);
    EXPECT_EQ(game.state[V].lineup[0].SlotDR, game.data.rules.FirstBaseOutOfPos);
    EXPECT_EQ(game.state[V].lineup[0].SlotErrorRating, 'Z');
    EXPECT_FALSE(game.state[V].CatcherIRated);

    BoxGame dh(true);
    EXPECT_EQ(dh.state[V].lineup[8].SlotDR, 0) << "a DH defends nothing";
    EXPECT_EQ(dh.state[V].DRTotal, 28 + 3) << "the pitcher counts though he isn't in the order";
}

TEST(Lineup, ParkMovesFatigueRatingsOnEntry) {
    BoxGame game;
    game.data.rules.UseParkEffects = true;
    game.data.park.PitcherTiredAdjustment = 4;
    game.data.park.SecondWindAdjustment = -30;
    auto& arms = game.data.team[H].roster.pitchers;
    arms[3].tiredRating = 38;
    arms[3].secondWindRating = 20;
    game.state[H].PitcherTired = true;
    game.state.StaminaCheckPending = false;
    ASSERT_EQ(game.BringIn(H, 3), Reject::None);
    EXPECT_EQ(game.state[H].PitcherStamina, 40);
    EXPECT_EQ(game.state[H].PitcherSecondWind, 10);
    EXPECT_FALSE(game.state[H].PitcherTired);
    EXPECT_TRUE(game.state.StaminaCheckPending);

    game.state.StaminaCheckPending = false;
    ASSERT_EQ(game.BringIn(V, 3), Reject::None);
    EXPECT_EQ(game.state[V].PitcherStamina, 10) << "no rating stays none";
    EXPECT_FALSE(game.state.StaminaCheckPending) << "his side bats: the man on the mound isn't tested in his place";
}

TEST(Lineup, StartingChecksInTheirOrder) {
    BoxGame game;
    game.data.dayNumber = 104;
    const auto check = [&](const std::function<void(LineupInput&, TeamRoster&)>& spoil) {
        BoxGame copy = game;
        LineupInput lineup = copy.StartingLineup(H);
        spoil(lineup, copy.data.team[H].roster);
        std::string name;
        for (const Side side : kBothSides) CompileIdentities(copy.data.team[side]);
        const Reject reject = CheckStartingLineup(copy.data, lineup, &name);
        return std::make_pair(reject, name);
    };
    using L = LineupInput;
    using R = TeamRoster;
    const auto of = [](Reject reject, const char* name = "") { return std::make_pair(reject, std::string(name)); };
    EXPECT_EQ(check([](L&, R&) {}), of(Reject::None, "H Arm 0"));
    EXPECT_EQ(check([](L& l, R&) { l.player[2] = PlayerRef{}; }), of(Reject::PlayerMissing));
    EXPECT_EQ(check([](L& l, R&) { l.position[2] = Position::None; }), of(Reject::PositionMissing));
    EXPECT_EQ(check([](L& l, R&) { l.player[2] = BoxGame::Man(99); }), of(Reject::UnknownPlayer));
    EXPECT_EQ(check([](L& l, R&) { l.player[2] = l.player[1]; }), of(Reject::DuplicatePlayer, "H Man 1"));
    EXPECT_EQ(check([](L& l, R&) { l.position[2] = Position::LF; }), of(Reject::PositionsIncomplete));
    EXPECT_EQ(check([](L& l, R&) { l.position[8] = Position::DH; }), of(Reject::PositionsIncomplete));
    EXPECT_EQ(check([](L& l, R&) { l.pitcher = PlayerRef{'P', -1}; }).first, Reject::PitcherMissing);
    EXPECT_EQ(check([](L& l, R&) { l.player[8] = BoxGame::Man(8); }).first, Reject::CannotPitch);
    EXPECT_EQ(check([](L& l, R&) { l.player[8] = BoxGame::Arm(1); }).first, Reject::PitcherMissing);
    EXPECT_EQ(check([](L& l, R&) { l.pitcher = l.player[8] = BoxGame::Arm(5); }), of(Reject::NotAStarter, "H Arm 5"));
    const auto rest = [](int days) {
        return [days](L&, R& r) {
            r.pitchers[0].PitchedOnDay = 100;
            r.pitchers[0].PitcherRestDays = static_cast<std::uint8_t>(days);
        };
    };
    EXPECT_EQ(check(rest(4)), of(Reject::Resting, "H Arm 0")) << "rest runs through the last of its days";
    EXPECT_EQ(check(rest(3)).first, Reject::None);
    const auto hurt = [](L&, R& r) { r.batters[3].injury.InjuredDaysRemaining = 1; };
    EXPECT_EQ(check(hurt), of(Reject::Injured, "H Man 3"));
    EXPECT_EQ(check([](L&, R& r) { r.pitchers[0].Inactive = true; }), of(Reject::Inactive, "H Arm 0"));
    // A man who stands in the order under his batter's record and pitches under his other one is there twice.
    const auto twoRecords = [](L&, R& r) { r.pitchers[0].LahmanPlayerID = r.batters[3].LahmanPlayerID; };
    EXPECT_EQ(check(twoRecords).first, Reject::DuplicatePlayer);
}

TEST(Lineup, PitcherMayBeHisOwnDesignatedHitter) {
    BoxGame game(true);
    game.data.team[V].roster.pitchers[0].LahmanPlayerID = game.data.team[V].roster.batters[8].LahmanPlayerID;
    CompileIdentities(game.data.team[V]);
    EXPECT_EQ(CheckStartingLineup(game.data, game.StartingLineup(V)), Reject::None);
    ASSERT_EQ(game.BringIn(V, 3), Reject::None);
    EXPECT_TRUE(InGame(game.data, game.state, V, BoxGame::Arm(0))) << "he still bats";
    EXPECT_EQ(game.BringIn(V, 0), Reject::AlreadyOut) << "but he has left the mound";
}

TEST(Lineup, AManRemovedNeverReturns) {
    BoxGame game;
    game.data.team[V].roster.pitchers[7].LahmanPlayerID = "man4";  // man 4 can pitch too
    CompileIdentities(game.data.team[V]);
    LineupInput lineup = game.Now(V);
    lineup.player[4] = BoxGame::Man(9);
    lineup.position[4] = Position::PH;
    ASSERT_EQ(game.Change(lineup), Reject::None);
    EXPECT_EQ(game.Batter(V, 5).position, Position::PH);

    lineup.player[4] = BoxGame::Man(4);
    EXPECT_EQ(game.Change(lineup), Reject::AlreadyOut);
    EXPECT_EQ(game.BringIn(V, 7), Reject::AlreadyOut) << "not under his other record either";
    lineup = game.Now(V);
    std::swap(lineup.player[1], lineup.player[2]);
    EXPECT_EQ(game.Change(lineup), Reject::AlreadyOut) << "no man changes his place in the order";

    game.RetireSide();
    Step step{game.data, game.state};
    ValidatePositions(step, V);
    EXPECT_EQ(game.state.awaited.kind, Await::LineupChange);
    EXPECT_EQ(game.state.awaited.side, V);
    EXPECT_EQ(game.state.awaited.position, Position::SS);
    EXPECT_EQ(game.state.awaited.slot, 5);
    EXPECT_EQ(game.Change(game.Now(H)), Reject::WrongSide);
    EXPECT_EQ(game.Change(game.Now(V)), Reject::PositionsIncomplete);
    lineup = game.Now(V);
    lineup.position[4] = Position::SS;
    ASSERT_EQ(game.Change(lineup), Reject::None);
    game.state.awaited = Awaited{};
    ValidatePositions(step, V);
    EXPECT_EQ(game.state.awaited.kind, Await::Roll);
    // One batting line from his at bat to the field, and a fielding line for each of his places.
    EXPECT_EQ(game.state[V].box.BatterLineCount, 10);
    EXPECT_EQ(game.state[V].box.FielderLineCount, 11);
    EXPECT_EQ(game.Fielder(V, Position::SS).player, BoxGame::Man(9));
    EXPECT_EQ(StateOk(game.data, game.state), "");
}

TEST(Lineup, PinchHitterForThePitcherAsksForANewOne) {
    BoxGame game;
    LineupInput lineup = game.Now(V);
    lineup.player[8] = BoxGame::Man(9);
    lineup.position[8] = Position::PH;
    ASSERT_EQ(game.Change(lineup), Reject::None);
    game.RetireSide();
    Step step{game.data, game.state};
    ValidatePositions(step, V);
    EXPECT_EQ(game.state.awaited.position, Position::P);
    lineup = game.Now(V);
    lineup.player[8] = BoxGame::Arm(0);
    lineup.position[8] = Position::P;
    EXPECT_EQ(game.Change(lineup), Reject::AlreadyOut);
    // A double switch: the reliever bats in the left fielder's place, the pinch hitter stays in left.
    lineup = game.Now(V);
    lineup.position[8] = Position::LF;
    lineup.player[5] = lineup.pitcher = BoxGame::Arm(3);
    lineup.position[5] = Position::P;
    EXPECT_EQ(game.Change(lineup), Reject::None);
    EXPECT_EQ(game.state[V].box.PitchersUsed, 2);
    game.state.awaited = Awaited{};
    EXPECT_EQ(StateOk(game.data, game.state), "");
}

TEST(Lineup, NobodyBatsForTheLastPitcher) {
    BoxGame game;
    LineupInput lineup = game.Now(V);
    lineup.player[8] = BoxGame::Man(9);
    lineup.position[8] = Position::PH;
    auto& arms = game.data.team[V].roster.pitchers;
    for (std::size_t i = 2; i < arms.size(); ++i) arms[i].Inactive = true;
    arms[1].injury.InjuredDaysRemaining = 3;
    EXPECT_EQ(game.Change(lineup), Reject::PitcherMissing);
    arms[12].Inactive = false;
    EXPECT_EQ(game.Change(lineup), Reject::None);
}

TEST(Lineup, ChangesNeedTheirMomentAndWholeField) {
    BoxGame game;
    LineupInput lineup = game.Now(H);
    lineup.player[0] = BoxGame::Man(8);
    lineup.position[0] = Position::PH;
    EXPECT_EQ(game.Change(lineup), Reject::PositionsIncomplete) << "the home team is in the field";
    lineup.position[0] = Position::C;
    game.state.sheet = SheetCode::B;
    EXPECT_EQ(game.Change(lineup), Reject::WrongSheet);
    game.state.sheet = SheetCode::P;
    game.data.team[H].roster.batters[8].Inactive = true;
    EXPECT_EQ(game.Change(lineup), Reject::Inactive);
    game.data.team[H].roster.batters[8].Inactive = false;
    game.state.awaited.kind = Await::Decision;
    EXPECT_EQ(game.Change(lineup), Reject::NotAwaited);
    game.state.awaited.kind = Await::Roll;
    EXPECT_EQ(game.Change(lineup), Reject::None);
}

TEST(Lineup, RestingRelieversComeInOnlyWhenNobodyIsRested) {
    BoxGame game;
    game.data.dayNumber = 10;
    auto& arms = game.data.team[H].roster.pitchers;
    for (std::size_t i = 1; i < arms.size(); ++i) {
        arms[i].PitchedOnDay = 9;
        arms[i].PitcherRestDays = i == 12 ? 0 : 2;
    }
    EXPECT_EQ(game.BringIn(H, 3), Reject::Resting);
    ASSERT_EQ(game.BringIn(H, 12), Reject::None);
    EXPECT_EQ(game.BringIn(H, 3), Reject::None);
}

}  // namespace
}  // namespace tarvane
