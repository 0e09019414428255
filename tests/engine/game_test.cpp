#include <gtest/gtest.h>

#include "fixture.h"

namespace tarvane {
namespace {

// Answers at random and orders at random before each pitch, so that every chart is played on.
class RestlessManager : public Manager {
  public:
    explicit RestlessManager(std::uint64_t seed) : random_(seed) {}

    bool Decide(const GameData&, const GameState&, Side) override { return random_.Below(2) == 0; }

    bool BeforePitch(const GameData& data, const GameState& state, Side side, Input& input) override {
        const std::uint32_t draw = random_.Below(60);
        if (side == state.FieldingSide()) {
            if (draw == 0)
                input = IntentionalWalkInput{DrawPlayValues(random_)};
            else if (draw == 1)
                return NewPitcher(data, state, side, input);
            else
                return false;
            return true;
        }
        if (draw < 6)
            input = BuntInput{draw < 3 ? BuntType::Sacrifice : BuntType::Squeeze};
        else if (draw < 12)
            input = StealInput{"23H"[draw % 3]};
        else if (draw == 12)
            return PinchHitter(state, side, input);
        else
            return false;
        return true;
    }

  private:
    static LineupInput Now(const GameState& state, Side side) {
        LineupInput lineup;
        lineup.side = side;
        lineup.pitcher = state[side].pitcher;
        for (std::size_t i = 0; i < 9; ++i) {
            lineup.player[i] = state[side].lineup[i].player;
            lineup.position[i] = state[side].lineup[i].position;
        }
        return lineup;
    }

    bool NewPitcher(const GameData& data, const GameState& state, Side side, Input& input) {
        LineupInput lineup = Now(state, side);
        lineup.pitcher = {'P', static_cast<std::int16_t>(random_.Below(13))};
        for (std::size_t i = 0; i < 9; ++i)
            if (lineup.position[i] == Position::P) lineup.player[i] = lineup.pitcher;
        input = lineup;
        return Check(data, state, input) == Reject::None;
    }

    bool PinchHitter(const GameState& state, Side side, Input& input) {
        LineupInput lineup = Now(state, side);
        const auto slot = static_cast<std::size_t>(state[side].BatterSlot - 1);
        lineup.player[slot] = {'B', static_cast<std::int16_t>(8 + random_.Below(10))};
        lineup.position[slot] = Position::PH;
        input = lineup;
        return true;
    }

    Random random_;
};

// Plays on step by step with StateOk after each; the first fault ends it.
class CheckedManager : public RestlessManager {
    using RestlessManager::RestlessManager;

  public:
    bool BeforePitch(const GameData& data, const GameState& state, Side side, Input& input) override {
        if (fault.empty()) fault = StateOk(data, state);
        return RestlessManager::BeforePitch(data, state, side, input);
    }
    bool Decide(const GameData& data, const GameState& state, Side side) override {
        if (fault.empty()) fault = StateOk(data, state);
        return RestlessManager::Decide(data, state, side);
    }
    std::string fault;
};

TEST(Game, Smoke) {
    const GameData data = fixture::MakeGameData();
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        GameState state = fixture::FirstPitch(data);
        ASSERT_EQ(StateOk(data, state), "");
        Random random(seed);
        CheckedManager visitor(seed + 1000), home(seed + 2000);
        PlayOut(data, state, random, visitor, home);
        ASSERT_EQ(visitor.fault + home.fault, "") << "seed " << seed;
        ASSERT_TRUE(state.GameOverFlag) << "seed " << seed;
        ASSERT_EQ(StateOk(data, state), "") << "seed " << seed;
    }
}

}  // namespace
}  // namespace tarvane
