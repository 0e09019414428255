#include "box_game.h"

namespace tarvane {
namespace {

constexpr Side V = Side::Visitor;
constexpr Side H = Side::Home;

// A game a few plays old, as the runner step and the end of each play leave it.
BoxGame SomePlays() {
    BoxGame game;
    game.Book(Result::Double, 0, [&](Play&) { ++game.state[V].Hits; });
    game.state[V].runner[2].slot = 1;
    game.state[V].BatterSlot = 2;
    game.Book(Result::E, 0, [&](Play& play) {
        play.ErrorBy = Position::SS;
        ++game.state[H].Errors;
        game.state[V].runner[2] = {};
        game.state[V].runner[1] = {2, true};
        BoxGame::Runs(game.state, {1}, 0, 0)(play);
    });
    game.state.HalfInningRuns = game.state[V].InningRuns[0] = 1;
    game.state[V].BatterSlot = 3;
    game.Book(Result::K, 1);
    game.state[V].BatterSlot = 4;
    return game;
}

TEST(StateOk, HoldsForASoundGameAndFindsEachFault) {
    const BoxGame sound = SomePlays();
    EXPECT_EQ(StateOk(sound.data, sound.state), "");
    using S = GameState;
    const std::vector<std::function<void(S&)>> faults = {
        [](S& s) { s.Outs = 3; },
        [](S& s) { s.Outs = 0; },
        [](S& s) { s.GameOverFlag = true; },
        [](S& s) { s.sheet = SheetCode::None; },
        [](S& s) { s.awaited.kind = Await::LineupChange; },
        [](S& s) { s[V].runner[3].slot = 2; },
        [](S& s) { s[V].runner[1] = {}; },
        [](S& s) { s[V].runner[1].slot = s[V].BatterSlot; },
        [](S& s) { s[V].runner[2].slot = 7; },
        [](S& s) { s[H].runner[2].slot = 7; },
        [](S& s) { s[H].BatterSlot = 0; },
        [](S& s) { s.play.RBIOnPlay = 1; },
        [](S& s) { ++s[V].Runs; },
        [](S& s) { ++s[V].InningRuns[0]; },
        [](S& s) { ++s[V].InningRuns[5]; },
        [](S& s) { ++s[V].Hits; },
        [](S& s) { ++s[H].Errors; },
        [](S& s) { s[H].lineup[3].player = PlayerRef{}; },
        [](S& s) { s[H].lineup[3].player = s[H].lineup[4].player; },
        [](S& s) { s[H].lineup[3].player = BoxGame::Man(12); },
        [](S& s) { s[H].lineup[3].player = BoxGame::Man(90); },
        [](S& s) { s[H].lineup[3].position = Position::LF; },
        [](S& s) { s[H].pitcher = BoxGame::Arm(1); },
        [](S& s) { s[H].battersUsed = {}; },
        [](S& s) { s[H].DRTotal = 109; },
        [](S& s) { s[H].PitcherTired = s[H].PitcherIntermediateTired = true; },
        [](S& s) { s[H].PitcherSecondWind = 9; },
        [](S& s) { s[H].box.BatterLineCount = 41; },
        [](S& s) { s[H].box.PitchersUsed = 0; },
        [](S& s) { s[H].box.batter[2].Active = false; },
        [](S& s) { s[H].box.fielder[2].Slot = 4; },
        [](S& s) { s[H].box.fielder[2].position = Position::RF; },
        [](S& s) { s[V].box.batter[0].total.AB = 0; },
        [](S& s) { s[V].box.batter[0].total.SO = s[V].box.batter[0].vsRight.SO = 1; },
        [](S& s) { s[V].box.batter[0].R = 0; },
        [](S& s) { s[V].box.batter[5].total.BB = s[V].box.batter[5].vsRight.BB = 1; },
        [](S& s) { ++s[H].box.pitching[0].R; },
        [](S& s) { ++s[H].box.pitching[0].BF; },
        [](S& s) { ++s[H].box.pitching[0].HBP; },
        [](S& s) { ++s[H].box.pitching[0].IPOuts; },
        [](S& s) { s[H].box.pitching[0].ER = -1; },
        [](S& s) { s[H].box.pitching[0].Win = s[H].box.pitching[0].Loss = true; },
        [](S& s) { s[H].box.fielder[0].PutOuts = 2; },
        [](S& s) { ++s[H].box.fielder[0].Errors; },
    };
    for (std::size_t i = 0; i < faults.size(); ++i) {
        BoxGame game = sound;
        faults[i](game.state);
        EXPECT_NE(StateOk(game.data, game.state), "") << "fault " << i << " isn't seen";
    }
}

TEST(StateOk, AFinishedGameHasOneWinnerAndOneLoser) {
    BoxGame game = SomePlays();
    game.state.GameOverFlag = true;
    game.state.awaited.kind = Await::GameOver;
    EXPECT_NE(StateOk(game.data, game.state), "") << "nobody has won";
    game.Pitcher(V, 0).Win = true;
    EXPECT_EQ(StateOk(game.data, game.state), "");
    game.Pitcher(H, 0).Loss = false;
    EXPECT_NE(StateOk(game.data, game.state), "");
}

}  // namespace
}  // namespace tarvane
