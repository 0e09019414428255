#include "engine/replaylog.h"

#include <gtest/gtest.h>

#include <cstring>

#include "../engine/fixture.h"
#include "base/error.h"

namespace tarvane {
namespace {

// A whole game on real charts with every kind of input, answers and orders by chance.
struct RecordedGame {
    explicit RecordedGame(std::uint64_t seed) : data(fixture::MakeGameData()), state(fixture::FirstPitch(data)) {
        start = state;
        log = StartReplayLog(data, start);
        Random random(seed);
        while (!state.GameOverFlag) Take(NextInput(random));
    }
    void Take(const Input& input) {
        if (Advance(data, state, input) == Reject::None) AddReplayStep(log, input, state);
    }
    Input NextInput(Random& random) {
        if (state.awaited.kind == Await::Decision)
            return DecisionInput{state.awaited.side, random.RandomPercent() > 50};
        if (state.awaited.kind == Await::LineupChange) {
            LineupInput lineup;
            Manager().ForcedLineup(data, state, state.awaited.side, lineup);
            return lineup;
        }
        const int order = random.RandomPercent();
        if (order <= 4) return BuntInput{order <= 2 ? BuntType::Sacrifice : BuntType::Squeeze};
        if (order <= 8) return StealInput{"23H"[order % 3]};
        if (order == 9) return IntentionalWalkInput{DrawPlayValues(random)};
        RollInput roll;
        roll.chartRoll = static_cast<std::uint8_t>(ChartRollFromRaw(random.RandomRoll216()));
        roll.values = DrawPlayValues(random);
        return roll;
    }

    GameData data;
    GameState state, start;
    ReplayLog log;
};

const RecordedGame& Game() {
    static const RecordedGame game(7);
    return game;
}

TEST(ReplayLog, WholeGamesComeOutTheSameFromTheirText) {
    for (std::uint64_t seed = 1; seed <= 5; ++seed) {
        const RecordedGame game(seed);
        const ReplayLog read = ParseReplayLog(WriteReplayLog(game.log), "game");
        ASSERT_GT(read.steps.size(), 150U);
        const ReplayResult result = Replay(game.data, game.start, read);
        EXPECT_TRUE(result.same) << result.difference;
        EXPECT_EQ(result.state, game.state);
        EXPECT_EQ(WriteReplayLog(read), WriteReplayLog(game.log));
    }
}

// The step that was tampered with is the one at which the replay stops.
TEST(ReplayLog, StopsAtTheFirstStepThatDiffers) {
    const RecordedGame& game = Game();
    ReplayLog broken = game.log;
    std::size_t at = 100;
    while (!std::holds_alternative<RollInput>(broken.steps[at].input)) ++at;
    std::get<RollInput>(broken.steps[at].input).values.SpareRoll ^= 1U;
    ReplayResult result = Replay(game.data, game.start, broken);
    EXPECT_FALSE(result.same);
    EXPECT_EQ(result.step, at + 1);
    EXPECT_NE(result.difference.find(fmt::format("step {} (roll ", at + 1)), std::string::npos) << result.difference;
    EXPECT_NE(result.difference.find("other in the play under way"), std::string::npos) << result.difference;

    broken = game.log;
    broken.steps[40].after[static_cast<std::size_t>(StatePart::HomeLines)] ^= 1U;
    result = Replay(game.data, game.start, broken);
    EXPECT_EQ(result.step, 41U);
    EXPECT_NE(result.difference.find("other in the Home team's lines"), std::string::npos) << result.difference;

    broken = game.log;
    broken.steps.insert(broken.steps.begin() + 20, {DecisionInput{Side::Home, true}, {}});
    result = Replay(game.data, game.start, broken);
    EXPECT_EQ(result.step, 21U);
    EXPECT_NE(result.difference.find("refused"), std::string::npos) << result.difference;
}

TEST(ReplayLog, OtherDataOrAnotherStartIsToldBeforeTheFirstStep) {
    const RecordedGame& game = Game();
    const auto other = [&](const auto& change) {
        GameData data = game.data;
        change(data);
        CompileGameData(data);
        const ReplayResult result = Replay(data, game.start, game.log);
        EXPECT_EQ(result.step, 0U);
        return !result.same;
    };
    EXPECT_TRUE(other([](GameData& d) { d.rules.RelieverMaxIPOuts = 14; }));
    EXPECT_TRUE(other([](GameData& d) { d.charts.StolenBase[17].cell[29].color = kBlueWord; }));
    EXPECT_TRUE(other([](GameData& d) { d.team[Side::Home].roster.batters[15].vsL[0].text = "G"; }));
    EXPECT_TRUE(other([](GameData& d) { d.team[Side::Visitor].roster.pitchers[12].Pos[0].rating = 9; }));
    EXPECT_FALSE(other([](GameData& d) { d.team[Side::Home].roster.batters[0].playerName = "Another name"; }));

    GameState start = game.start;
    start[Side::Visitor].BatterSlot = 2;
    const ReplayResult result = Replay(game.data, start, game.log);
    EXPECT_EQ(result.difference, "start: other in the Visitors' state");
}

// A change of any field that counts for equality changes the fingerprint; one of padding doesn't.
TEST(ReplayLog, TheFingerprintSeesEveryFieldAndNoPadding) {
    const GameState& state = Game().state;
    const StateHash hash = HashState(state);
    std::size_t fields = 0;
    for (std::size_t at = 0; at < sizeof(GameState); ++at) {
        GameState other = state;
        unsigned char byte = 0;
        std::memcpy(&byte, reinterpret_cast<const unsigned char*>(&state) + at, 1);
        byte = static_cast<unsigned char>(byte ^ 1U);
        std::memcpy(reinterpret_cast<unsigned char*>(&other) + at, &byte, 1);
        const bool counts = !(other == state);
        fields += counts ? 1U : 0U;
        ASSERT_EQ(HashState(other) != hash, counts) << "byte " << at;
    }
    EXPECT_GT(fields, 3000U);
}

std::string FaultOf(const std::string& text) {
    try {
        ParseReplayLog(text, "a.replay");
    } catch (const UserError& error) {
        return error.what();
    }
    return "no fault";
}

TEST(ReplayLog, FaultsNameLineAndField) {
    const std::string hash = " 0 0 0 0 0 0 0", values = " 1 1 1 10 10 1 1 1 1 1 10";
    const std::string head = "tarvane-replay 1\ndata 0\nstart" + hash + "\n";
    EXPECT_EQ(FaultOf(head + "steal 2 |" + hash + "\r\nend 1\n"), "no fault");
    const std::pair<std::string, const char*> faults[]{
        {"", "a.replay, line 1: the record is cut off before its end line"},
        {"a game\n", "a.replay, line 1: \"a\" stands where \"tarvane-replay\" is due"},
        {"tarvane-replay 2\n", "a.replay, line 1: the format version is \"2\"; it must be a number from 1 to 1"},
        {head + "steal 2 |" + hash + "\n", "a.replay, line 5: the record is cut off before its end line"},
        {head + "steal 4 |" + hash + "\n", "a.replay, line 4: the base is \"4\"; it must be 2, 3 or H"},
        {head + "steal 2 | 0 0 0 0\n", "a.replay, line 4: the fingerprint of the Visitors' lines is missing"},
        {head + "steal 2 |" + hash + "\nend 2\n",
         "a.replay, line 5: the number of steps is \"2\"; it must be a number from 1 to 1"},
        {head + "roll 40" + values + " |" + hash + "\n",
         "a.replay, line 4: the roll is \"40\"; it must be a number from 10 to 39"},
        {head + "walk 1 1 1 10 10 6 1 1 1 1 10 |" + hash + "\n",
         "a.replay, line 4: ErrorColumn is \"6\"; it must be a number from 1 to 5"},
        {head + "lineup V P1 B0 1 X2 2\n",
         "a.replay, line 4: the man in slot 2 is \"X2\"; it must be B or P and a place in the roster, or -"},
        {head + "steal 2 |" + hash + " 0\n", "a.replay, line 4: \" 0\" is too much at the end of the line"},
        {head + "bribe H |" + hash + "\n",
         "a.replay, line 4: \"bribe\" is no input; it must be roll, decision, walk, bunt, steal, lineup or end"}};
    for (const auto& [text, fault] : faults) EXPECT_EQ(FaultOf(text), fault);
}

}  // namespace
}  // namespace tarvane
