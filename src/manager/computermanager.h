#pragma once

#include <optional>

#include "manager/pitchersearch.h"
#include "manager/substitution.h"

namespace tarvane {

// The program as manager of one side in one game: substitutions where state.computer says subs, bunts, steals, extra
// bases and runs given up where it says game, by the tendencies of the roster. His draws come from a generator of his
// own, so the same play bundles give the same plays whoever manages. He never orders an intentional walk.
//
// He keeps three things that the state of a game doesn't hold: whether a closer is in, whom he sent up or on base for
// the batter of the moment, and his generator. They are his memory, which a saved game holds beside the state.
class ComputerManager final : public Manager {
  public:
    ComputerManager(Side side, Random random, ManagerKnowledge knowledge = {})
        : side_(side), random_(random), knowledge_(std::move(knowledge)) {}

    struct Memory {
        Random random{0};
        bool closerIn = false;
        int battersFaced = -1, inning = 0;  // the turn at bat for which a pinch hitter or runner went in
    };
    Memory Remembered() const { return {random_, closerIn_, pinchMove_.battersFaced, pinchMove_.inning}; }
    void Remember(const Memory& memory) {
        random_ = memory.random;
        closerIn_ = memory.closerIn;
        pinchMove_ = {memory.battersFaced, memory.inning};
    }

    bool Decide(const GameData& data, const GameState& state, Side side) override;
    bool BeforePitch(const GameData& data, const GameState& state, Side side, Input& input) override;
    bool ForcedLineup(const GameData& data, const GameState& state, Side side, LineupInput& lineup) override;

  private:
    SubsSituation SubsSituationOf(const GameState& state) const;
    bool ChangePitcher(const GameData& data, const GameState& state, Input& input);
    bool BattingSubs(const GameData& data, const GameState& state, Input& input);
    bool SendPinchRunner(const GameData& data, const GameState& state, Input& input);
    bool SendPinchHitter(const GameData& data, const GameState& state, Input& input);
    bool Strategy(const GameData& data, const GameState& state, Input& input);

    bool PitcherInReserve(const GameData& data, const GameState& state);
    bool MayEnter(const GameData& data, const GameState& state, int batter);
    bool SlowRunnersOnly(const GameState& state) const;
    bool Propose(const GameData& data, const GameState& state, const std::optional<LineupInput>& lineup, Input& input);

    PlayerRef ReplacementAt(const GameData& data, const GameState& state, Position position);
    PlayerRef ForcedPitcher(const GameData& data, const GameState& state);

    // The turn at bat for which a pinch hitter or runner went in: the other side's batters faced, and the inning.
    struct Turn {
        int battersFaced = -1, inning = 0;
        friend bool operator==(const Turn&, const Turn&) = default;
    };
    static Turn TurnOf(const GameState& state);

    Side side_;
    Random random_;
    ManagerKnowledge knowledge_;
    bool closerIn_ = false;
    Turn pinchMove_;
};

}  // namespace tarvane
