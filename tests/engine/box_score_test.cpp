#include "box_game.h"

namespace tarvane {
namespace {

constexpr Side V = Side::Visitor;
constexpr Side H = Side::Home;

TEST(BoxScore, BatterAndPitcherTakeEachResult) {
    struct Row {
        Result result;
        int outs;
        BattingCounts batter;  // AB H 2B 3B HR RBI BB SO HBP SH SF GIDP
        int H, HR, BB, SO, HBP, BF, charged;
    };
    // One run batted in stands ready on every play, so that a result that must not take it shows it.
    const Row rows[] = {
        {Result::SingleTwoBases, 0, {1, 1, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0}, 1, 0, 0, 0, 0, 1, 1},
        {Result::DoubleDecision, 0, {1, 1, 1, 0, 0, 1, 0, 0, 0, 0, 0, 0}, 1, 0, 0, 0, 0, 1, 1},
        {Result::Triple, 0, {1, 1, 0, 1, 0, 1, 0, 0, 0, 0, 0, 0}, 1, 0, 0, 0, 0, 1, 1},
        {Result::HR, 0, {1, 1, 0, 0, 1, 1, 0, 0, 0, 0, 0, 0}, 1, 1, 0, 0, 0, 1, 0},
        {Result::BB, 0, {0, 0, 0, 0, 0, 1, 1, 0, 0, 0, 0, 0}, 0, 0, 1, 0, 0, 1, 1},
        {Result::HBP, 0, {0, 0, 0, 0, 0, 1, 0, 0, 1, 0, 0, 0}, 0, 0, 0, 0, 1, 1, 1},
        {Result::E, 0, {1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, 0, 0, 0, 0, 0, 1, 1},
        {Result::K, 1, {1, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0}, 0, 0, 0, 1, 0, 1, 0},
        {Result::GAdvance, 1, {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0}, 0, 0, 0, 0, 0, 1, 0},
        {Result::FC, 1, {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0}, 0, 0, 0, 0, 0, 1, 0},
        {Result::DP, 2, {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1}, 0, 0, 0, 0, 0, 1, 0},
        {Result::SFDecision, 1, {0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0}, 0, 0, 0, 0, 0, 1, 0},
        {Result::SH, 1, {0, 0, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0}, 0, 0, 0, 0, 0, 1, 0},
        {Result::WP, 0, {}, 0, 0, 0, 0, 0, 0, 0},
        {Result::YellowXInj, 0, {}, 0, 0, 0, 0, 0, 0, 0},
    };
    for (const Row& row : rows) {
        for (const bool left : {false, true}) {
            SCOPED_TRACE(static_cast<int>(row.result));
            BoxGame game;
            game.state[H].PitcherThrows = left ? kLeftHand : kRightHand;
            game.Book(row.result, row.outs, [](Play& play) { play.RBIOnPlay = 1; });
            const BatterLine& line = game.Batter(V, 1);
            EXPECT_EQ(line.total, row.batter);
            EXPECT_EQ(left ? line.vsLeft : line.vsRight, row.batter);
            EXPECT_EQ(left ? line.vsRight : line.vsLeft, BattingCounts{});
            const PitchingLine& pitcher = game.Pitcher(H, 0);
            EXPECT_EQ(pitcher.IPOuts, row.outs);
            EXPECT_EQ(std::tie(pitcher.H, pitcher.HR, pitcher.BB, pitcher.SO, pitcher.HBP, pitcher.BF),
                      std::make_tuple(row.H, row.HR, row.BB, row.SO, row.HBP, row.BF));
            EXPECT_EQ(pitcher.RunnersCharged, row.charged);
            EXPECT_EQ(game.state.play.RBIOnPlay, 0) << "the play's counters go to zero";
        }
    }
}

TEST(BoxScore, OnlyOutsFromThePitchersChartAreHisAutomaticOuts) {
    const auto autoOuts = [](Result result, int outs) {
        BoxGame game;
        game.Book(result, outs, [](Play& play) { play.AutoOutPlay = true; });
        return game.Pitcher(H, 0).AutoOuts;
    };
    EXPECT_EQ(autoOuts(Result::G, 1), 1);
    EXPECT_EQ(autoOuts(Result::FDecision, 1), 1);
    EXPECT_EQ(autoOuts(Result::K, 1), 1);
    EXPECT_EQ(autoOuts(Result::SF, 1), 0);
    EXPECT_EQ(autoOuts(Result::DP, 2), 0);
}

TEST(BoxScore, FlyWithoutARunIsAnAtBat) {
    BoxGame game;
    game.Book(Result::SFDecision, 1, [](Play& play) { play.FieldedBy = Position::CF; });
    EXPECT_EQ(game.state.play.PlayResult, Result::F);
    EXPECT_EQ(game.Batter(V, 1).total.AB, 1);
    EXPECT_EQ(game.Batter(V, 1).total.SF, 0);
    EXPECT_EQ(game.Fielder(H, Position::CF).PutOuts, 1);
}

// Credits as "PO A DP GDP" of pitcher, catcher, first, second and third base.
std::string Credits(BoxGame& game) {
    std::string text;
    for (const Position p : {Position::P, Position::C, Position::B1, Position::B2, Position::B3}) {
        const FielderLine& line = game.Fielder(H, p);
        text += std::to_string(line.PutOuts) + std::to_string(line.Assists) + std::to_string(line.DoublePlays) +
                std::to_string(line.GreatDefensivePlays) + ' ';
    }
    return text;
}

TEST(BoxScore, FieldersAreCreditedByWhereTheOutWasMade) {
    const auto credits = [](Result result, int outs, Position by, PlayAt at, const std::function<void(Play&)>& more) {
        BoxGame game;
        game.Book(result, outs, [&](Play& play) {
            play.FieldedBy = by;
            play.playAt = at;
            if (more) more(play);
        });
        return Credits(game);
    };
    const auto great = [](Play& play) { play.GreatPlay = true; };
    const auto doubledOff = [](Play& play) { play.SqueezeDoubledOff = true; };
    EXPECT_EQ(credits(Result::G, 1, Position::B3, PlayAt::None, great), "0000 0000 1000 0000 0101 ");
    EXPECT_EQ(credits(Result::G, 1, Position::B1, PlayAt::None, {}), "0000 0000 1000 0000 0000 ");
    EXPECT_EQ(credits(Result::FC, 1, Position::P, PlayAt::Second, {}), "0100 0000 0000 1000 0000 ");
    EXPECT_EQ(credits(Result::FC, 1, Position::C, PlayAt::Home, {}), "0000 1000 0000 0000 0000 ");
    EXPECT_EQ(credits(Result::K, 1, Position::None, PlayAt::None, {}), "0000 1000 0000 0000 0000 ");
    EXPECT_EQ(credits(Result::F, 1, Position::B2, PlayAt::None, great), "0000 0000 0000 1001 0000 ");
    EXPECT_EQ(credits(Result::F, 2, Position::P, PlayAt::None, doubledOff), "1110 0000 0000 0000 1010 ");
    EXPECT_EQ(credits(Result::DP, 2, Position::B3, PlayAt::None, {}), "0000 0000 1010 1110 0110 ");
    EXPECT_EQ(credits(Result::DP, 2, Position::B2, PlayAt::None, {}), "0000 0000 1010 1120 0000 ");
    EXPECT_EQ(credits(Result::SH, 1, Position::P, PlayAt::None, {}), "0100 0000 1000 0000 0000 ");
    EXPECT_EQ(credits(Result::G, 2, Position::P, PlayAt::None, {}), "0100 0000 1000 1000 0000 ");
}

TEST(BoxScore, BuntsReachOrAreOuts) {
    BoxGame game;
    game.Book(Result::SH, 0, [](Play& play) {
        play.buntResult = BuntResult::SHE;
        play.ErrorBy = Position::P;
        play.FieldedBy = Position::P;
    });
    EXPECT_EQ(game.Batter(V, 1).total.SH, 1);
    EXPECT_EQ(game.Pitcher(H, 0).IPOuts, 0);
    EXPECT_EQ(game.Pitcher(H, 0).RunnersCharged, 1);
    EXPECT_EQ(game.Fielder(H, Position::P).Errors, 1);
    EXPECT_EQ(game.Fielder(H, Position::P).Assists, 0);
    EXPECT_EQ(game.state.play.buntResult, BuntResult::None);

    // The bunt ends as a plain ground out although a runner is doubled off with the batter.
    game.Book(Result::G, 2);
    EXPECT_EQ(game.Pitcher(H, 0).IPOuts, 2);
    EXPECT_EQ(game.Pitcher(H, 0).RunnersCharged, 0);
    EXPECT_EQ(game.Batter(V, 1).total.GIDP, 0);
}

TEST(BoxScore, RunnersOnTheirOwn) {
    BoxGame game;
    const auto runner = [](Position error) {
        return [error](Play& play) {
            play.StolenBaseSlot = 4;
            play.ErrorBy = error;
        };
    };
    game.Pitcher(H, 0).RunnersCharged = 3;
    game.Pitcher(H, 0).Reminded = true;
    game.Book(Result::SB, 0, runner(Position::C));
    game.Book(Result::CSE, 0, runner(Position::SS));
    EXPECT_TRUE(game.Pitcher(H, 0).Reminded) << "no out, so the reminder stays given";
    game.Book(Result::CS, 1, runner(Position::None));
    game.Book(Result::PK, 1, runner(Position::None));
    game.Book(Result::PB);
    const BatterLine& line = game.Batter(V, 4);
    EXPECT_EQ(line.SB, 1);
    EXPECT_EQ(line.CS, 2);
    const FielderLine& catcher = game.Fielder(H, Position::C);
    EXPECT_EQ(catcher.OpponentSB, 1);
    EXPECT_EQ(catcher.OpponentCS, 2);
    EXPECT_EQ(catcher.Assists, 1);
    EXPECT_EQ(catcher.Errors, 1);
    EXPECT_EQ(catcher.PassBalls, 1);
    EXPECT_EQ(game.Fielder(H, Position::SS).Errors, 1);
    EXPECT_EQ(game.Pitcher(H, 0).IPOuts, 2);
    EXPECT_EQ(game.Pitcher(H, 0).BF, 0);
    EXPECT_EQ(game.Pitcher(H, 0).RunnersCharged, 1);
    EXPECT_FALSE(game.Pitcher(H, 0).Reminded);

    game.state.play.FieldedBy = Position::CF;
    Step step{game.data, game.state};
    BookDecisionOut(step, Position::B3);
    BookDecisionError(step, Position::CF);
    EXPECT_EQ(game.Fielder(H, Position::CF).Assists, 1);
    EXPECT_EQ(game.Fielder(H, Position::CF).Errors, 1);
    EXPECT_EQ(game.Fielder(H, Position::B3).PutOuts, 1);
    EXPECT_EQ(game.Pitcher(H, 0).IPOuts, 3);
}

// A pitcher's line as "R ER charged".
std::string Charge(BoxGame& game, int line) {
    const PitchingLine& p = game.Pitcher(H, line);
    return std::to_string(p.R) + ' ' + std::to_string(p.ER) + ' ' + std::to_string(p.RunnersCharged);
}

TEST(BoxScore, RunsAreChargedToThoseWhoPutThemOn) {
    const auto setup = [](int first, int second) {
        BoxGame game;
        EXPECT_EQ(game.BringIn(H, 3), Reject::None);
        game.Pitcher(H, 0).RunnersCharged = static_cast<std::uint8_t>(first);
        game.Pitcher(H, 1).RunnersCharged = static_cast<std::uint8_t>(second);
        return game;
    };
    {
        BoxGame game = setup(2, 0);  // a single brings in one of two inherited men
        game.Book(Result::Single, 0, BoxGame::Runs(game.state, {3}, 1, 1));
        EXPECT_EQ(Charge(game, 0), "1 1 1");
        EXPECT_EQ(Charge(game, 1), "0 0 1");
    }
    {
        BoxGame game = setup(1, 0);
        game.Book(Result::Triple, 0, BoxGame::Runs(game.state, {3}, 0, 1));
        EXPECT_EQ(Charge(game, 0), "1 0 0");
        EXPECT_EQ(Charge(game, 1), "0 0 1");
    }
    {
        BoxGame game = setup(1, 1);  // a home run with an inherited man and one of his own on
        game.state.ErrorInInning = true;
        game.Book(Result::HR, 0, BoxGame::Runs(game.state, {3, 4, 1}, 3, 3));
        EXPECT_EQ(Charge(game, 0), "1 2 0");
        EXPECT_EQ(Charge(game, 1), "2 1 0");
        EXPECT_FALSE(game.state.ErrorInInning);
        EXPECT_EQ(game.Batter(V, 3).R, 1);
        EXPECT_EQ(game.Batter(V, 1).R, 1);
        EXPECT_EQ(game.Batter(V, 1).total.RBI, 3);
    }
}

TEST(BoxScore, FullLinesStopRecording) {
    BoxGame game;
    game.data.team[H].roster.batters.resize(kMaxRosterRecords);
    for (std::size_t i = 14; i < kMaxRosterRecords; ++i)
        game.data.team[H].roster.batters[i].playerName = std::to_string(i);
    CompileIdentities(game.data.team[H]);
    for (int man = 14; man < 100; ++man) {
        LineupInput lineup = game.Now(H);
        lineup.player[3] = BoxGame::Man(man);
        ASSERT_EQ(game.Change(lineup), Reject::None);
    }
    EXPECT_EQ(game.state[H].box.BatterLineCount, kMaxBatterLines);
    EXPECT_EQ(game.state[H].box.FielderLineCount, kMaxFielderLines);
    EXPECT_EQ(FindBatterLine(game.state[H], 4), nullptr);
    game.NextHalf();
    game.state[H].BatterSlot = 4;
    game.Book(Result::HR, 0, BoxGame::Runs(game.state, {4}, 1, 1));
    EXPECT_EQ(game.Pitcher(V, 0).HR, 1) << "the pitcher's line goes on";

    for (int arm = 3; arm < 12; ++arm) ASSERT_EQ(game.BringIn(V, arm), Reject::None);
    EXPECT_EQ(game.BringIn(V, 12), Reject::TooManyPitchers);
    EXPECT_FALSE(PitcherLeft(game.data, game.state, V));
}

}  // namespace
}  // namespace tarvane
