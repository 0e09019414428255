#include "season/managedgame.h"

#include <fmt/core.h>

#include "base/error.h"

namespace tarvane {

void StartSetup(const GameSetup& setup, GameState& state) {
    const Reject reject = StartGame(setup.data, setup.lineup[Side::Visitor], setup.lineup[Side::Home], state);
    if (reject != Reject::None) throw UserError(fmt::format("the game can't begin: {}", RejectText(reject)));
    state.computer = setup.control;
}

void PlayByComputers(const GameSetup& setup, std::uint64_t seed, GameState& state, GameListener* listener) {
    Random source(seed);
    Random dice(source.Next());
    ComputerManager visitor(Side::Visitor, Random(source.Next()), setup.knowledge[Side::Visitor]);
    ComputerManager home(Side::Home, Random(source.Next()), setup.knowledge[Side::Home]);
    PlayOut(setup.data, state, dice, visitor, home, listener);
}

}  // namespace tarvane
