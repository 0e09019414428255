#include <gtest/gtest.h>

#include <map>

#include "fixture.h"

namespace tarvane {
namespace {

// Checks after every step cost more than the games; an optimised build plays many more of them.
#ifdef NDEBUG
constexpr int kGames = 1500, kPlays = 1000000;
#else
constexpr int kGames = 60, kPlays = 60000;
#endif

LineupInput Now(const GameState& state, Side side) {
    LineupInput lineup;
    lineup.side = side;
    lineup.pitcher = state[side].pitcher;
    for (std::size_t i = 0; i < 9; ++i) {
        lineup.player[i] = state[side].lineup[i].player;
        lineup.position[i] = state[side].lineup[i].position;
    }
    return lineup;
}

// Orders and answers by the dice, sensible or not, so that every chart and every change comes up.
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
                input = NewPitcher(data, state, side);
            else
                return false;
            return true;
        }
        if (draw < 6)
            input = BuntInput{draw < 3 ? BuntType::Sacrifice : BuntType::Squeeze};
        else if (draw < 12)
            input = StealInput{"23H"[draw % 3]};
        else if (draw == 12)
            input = PinchHitter(state, side);
        else
            return false;
        return true;
    }

  private:
    LineupInput NewPitcher(const GameData& data, const GameState& state, Side side) {
        LineupInput lineup = Now(state, side);
        lineup.pitcher = {'P', static_cast<std::int16_t>(random_.Below(13))};
        for (std::size_t i = 0; i < 9 && !data.DHUsed; ++i)
            if (lineup.position[i] == Position::P) lineup.player[i] = lineup.pitcher;
        return lineup;
    }

    LineupInput PinchHitter(const GameState& state, Side side) {
        LineupInput lineup = Now(state, side);
        const auto slot = static_cast<std::size_t>(state[side].BatterSlot - 1);
        lineup.player[slot] = {'B', static_cast<std::int16_t>(8 + random_.Below(10))};
        lineup.position[slot] = Position::PH;
        return lineup;
    }

    Random random_;
};

// Drives a game by itself, checking after every step: that Check and Advance agree, that a refused input leaves the
// state as it was, and that everything still holds.
class CheckedGame {
  public:
    CheckedGame(const GameData& gameData, std::uint64_t seed)
        : data(gameData), state(fixture::FirstPitch(gameData)), random_(seed), visitor_(seed + 1), home_(seed + 2) {}

    void Play() {
        for (int step = 0; !state.GameOverFlag && !testing::Test::HasFailure(); ++step) {
            ASSERT_LT(step, 20000) << "the game doesn't end";
            Step();
        }
    }

    const GameData& data;
    GameState state;
    std::map<SheetCode, int> sheets;
    int decisions = 0, changes = 0;

  private:
    void Step() {
        if (state.awaited.kind == Await::Decision) {
            ++decisions;
            const Side side = state.awaited.side;
            Take(DecisionInput{side, ManagerOf(side).Decide(data, state, side)}, true);
        } else if (state.awaited.kind == Await::LineupChange) {
            ++changes;
            Take(RollInput{20, {}}, false);
            LineupInput lineup;
            ASSERT_TRUE(ManagerOf(state.awaited.side).ForcedLineup(data, state, state.awaited.side, lineup))
                << "cause " << static_cast<int>(state.awaited.cause) << " position "
                << PositionText(state.awaited.position) << ", pitchers used "
                << int{state[state.awaited.side].box.PitchersUsed};
            Take(lineup, true);
        } else {
            Order(state.FieldingSide());
            Order(state.BattingSide);
            if (state.awaited.kind != Await::Roll) return;
            ++sheets[state.sheet];
            const int roll = ChartRollFromRaw(random_.RandomRoll216());
            Take(RollInput{static_cast<std::uint8_t>(roll), DrawPlayValues(random_)}, true);
        }
    }

    void Order(Side side) {
        Input input;
        if (state.awaited.kind != Await::Roll || !ManagerOf(side).BeforePitch(data, state, side, input)) return;
        Take(input, Check(data, state, input) == Reject::None);
    }

    void Take(const Input& input, bool legal) {
        const GameState before = state;
        const Reject reject = Advance(data, state, input);
        ASSERT_EQ(reject == Reject::None, legal) << RejectText(reject);
        if (!legal) {
            ASSERT_EQ(before, state);
        }
        ASSERT_EQ(StateOk(data, state), "")
            << "sheet " << SheetCodeText(before.sheet) << " result " << ResultText(state.play.PlayResult);
    }

    RestlessManager& ManagerOf(Side side) { return side == Side::Visitor ? visitor_ : home_; }

    Random random_;
    RestlessManager visitor_, home_;
};

GameData EraData() {
    LeagueRules rules = fixture::FullRules();
    rules.DefChartEraID = 1;
    rules.UseYearEffects = false;
    GameData data = fixture::MakeGameData(rules);
    for (std::size_t i = 0; i < 18; ++i) {
        DefensiveEraRange& range = data.defensiveEra.range[i];
        range.StartRange = static_cast<std::uint8_t>(i * 6);
        range.EndRange = static_cast<std::uint8_t>(i * 6 + 5);
        for (std::size_t roll = 0; roll < 6; ++roll)
            range.cell[roll] = roll < i / 3 ? ChartCell{"G", kRedWord} : ChartCell{" ", kGreenWord};
    }
    CompileGameData(data);
    return data;
}

TEST(Game, EveryRuleHoldsAfterEveryStep) {
    LeagueRules bare;
    bare.UseParkEffects = bare.UseYearEffects = bare.UseYellowXInjuryChart = bare.PitcherStamina = false;
    bare.BatterBBSORating = bare.UseErrorRatings = false;
    LeagueRules shortReliefs = fixture::FullRules();
    shortReliefs.RelieverMaxIPOuts = 3;
    const std::vector<std::pair<const char*, GameData>> leagues{
        {"all rules", fixture::MakeGameData()},
        {"designated hitter", fixture::MakeGameData(fixture::FullRules(), true)},
        {"bare", fixture::MakeGameData(bare)},
        {"short relief", fixture::MakeGameData(shortReliefs)},
        {"defensive era", EraData()},
        {"default rules", fixture::MakeGameData(LeagueRules{})}};
    for (const auto& [name, data] : leagues) {
        SCOPED_TRACE(name);
        std::map<SheetCode, int> sheets;
        int decisions = 0, changes = 0;
        for (int seed = 1; seed <= kGames && !HasFailure(); ++seed) {
            SCOPED_TRACE(seed);
            CheckedGame game(data, static_cast<std::uint64_t>(seed) * 100);
            game.Play();
            for (const auto& [sheet, rolls] : game.sheets) sheets[sheet] += rolls;
            decisions += game.decisions;
            changes += game.changes;
        }
        for (const SheetCode sheet : {SheetCode::P, SheetCode::B, SheetCode::Bt, SheetCode::S, SheetCode::M})
            EXPECT_GT(sheets[sheet], kGames / 10) << SheetCodeText(sheet);
        EXPECT_EQ(sheets[SheetCode::XI] > 0, data.rules.UseYellowXInjuryChart);
        EXPECT_EQ(sheets[SheetCode::X] > 0, !data.rules.UseYellowXInjuryChart);
        EXPECT_EQ(sheets[SheetCode::PS] > 0, data.rules.PitcherStamina);
        EXPECT_EQ(sheets[SheetCode::BBSO] > 0, data.rules.BatterBBSORating);
        EXPECT_GT(decisions, kGames);
        EXPECT_GT(changes, 0);
    }
}

class Recorder : public GameListener {
  public:
    void OnEvent(const GameData&, const GameState&, const GameEvent& event) override {
        tags.push_back(event.tag);
        if (event.kind == EventKind::HalfEnded) ++halves;
        if (event.kind == EventKind::GameEnded) ++ends;
    }
    std::vector<Tag> tags;
    int halves = 0, ends = 0;
};

// The same seed is the same game, whether anybody listens or not, and a copy goes on like its original.
TEST(Game, SeedDecidesAndCopiesAgree) {
    const GameData data = fixture::MakeGameData();
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        const auto play = [&](GameListener* listener) {
            GameState state = fixture::FirstPitch(data);
            Random random(seed);
            RestlessManager visitor(seed + 1), home(seed + 2);
            PlayOut(data, state, random, visitor, home, listener);
            return state;
        };
        Recorder recorder;
        const GameState silent = play(nullptr), told = play(&recorder);
        EXPECT_TRUE(silent == told);
        EXPECT_TRUE(silent.GameOverFlag);
        EXPECT_EQ(recorder.ends, 1);
        const int played = 2 * (silent.Inning - 1) + (silent.BattingSide == Side::Home ? 1 : 0);
        EXPECT_EQ(recorder.halves, played);
        EXPECT_GT(recorder.tags.size(), 200U);
    }
    GameState original = fixture::FirstPitch(data);
    Random random(9), dice(9);
    for (int step = 0; step < 60; ++step) {
        if (original.awaited.kind == Await::Decision) {
            Advance(data, original, DecisionInput{original.awaited.side, step % 2 == 0});
            continue;
        }
        Advance(data, original,
                RollInput{static_cast<std::uint8_t>(ChartRollFromRaw(dice.RandomRoll216())), DrawPlayValues(dice)});
    }
    GameState copy = original;
    Random again = random;
    Manager plain;
    PlayOut(data, original, random, plain, plain);
    PlayOut(data, copy, again, plain, plain);
    EXPECT_TRUE(original == copy);
}

// A chart of known weights gives its results in their shares: chi-square over the results against the cells' weights.
TEST(Game, ChartGivesItsFrequencies) {
    LeagueRules rules;
    rules.UseParkEffects = rules.UseYearEffects = rules.PitcherStamina = rules.UseErrorRatings = false;
    GameData data = fixture::MakeGameData(rules);
    for (PitcherCharts& charts : data.team[Side::Home].pitcherCharts) charts.pitch.fill(CompileCell({" ", kGreenWord}));
    GameState pitched = fixture::FirstPitch(data);
    Advance(data, pitched, RollInput{20, {}});
    ASSERT_EQ(pitched.sheet, SheetCode::B);
    const Chart& chart = data[Side::Visitor].batterCharts[0].vsR;
    std::map<Result, double> weight, count;
    for (std::size_t i = 0; i < kChartRows; ++i) {
        const Cell& cell = chart[i];
        Result result = cell.result;
        if (cell.color == CellColor::Blue) result = Result::K;
        if (cell.color == CellColor::Yellow && cell.text == CellText::Blank) result = Result::BB;
        // With nobody on, these are what is left of the plays that need a runner.
        if (result == Result::DP) result = Result::G;
        if (result == Result::SF || result == Result::SFDecision) result = Result::F;
        weight[result] += kCellWeight[i];
    }
    Random random(2024);
    for (int play = 0; play < kPlays; ++play) {
        GameState state = pitched;
        const int roll = ChartRollFromRaw(random.RandomRoll216());
        ASSERT_EQ(Advance(data, state, RollInput{static_cast<std::uint8_t>(roll), DrawPlayValues(random)}),
                  Reject::None);
        ++count[state.play.PlayResult];
    }
    double chiSquare = 0;
    for (const auto& [result, weightOf] : weight) {
        const double expected = kPlays * weightOf / 216;
        chiSquare += (count[result] - expected) * (count[result] - expected) / expected;
    }
    EXPECT_EQ(count.size(), weight.size());
    EXPECT_GE(weight.size(), 14U);
    // One run in ten thousand lies above this for so many results.
    EXPECT_LT(chiSquare, 42) << weight.size() << " results";
}

}  // namespace
}  // namespace tarvane
