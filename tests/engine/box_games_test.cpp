#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

#include "engine/availability.h"
#include "engine/boxtext.h"
#include "engine/step.h"
#include "fixture.h"

namespace tarvane {
namespace {

// Rules and rosters as a seed has them, from full clubs to such as hardly fill a line-up.
GameData RandomClubs(Random& random) {
    LeagueRules rules;
    for (bool* rule : {&rules.UseParkEffects, &rules.UseYearEffects, &rules.UseYellowXInjuryChart,
                       &rules.PitcherStamina, &rules.PitcherStaminaSecondary, &rules.BatterBBSORating,
                       &rules.UseErrorRatings, &rules.SpecialErrorRule, &rules.AutoOutsForOF})
        *rule = random.Below(3) != 0;
    rules.RelieverMaxIPOuts = static_cast<std::int16_t>(3 + 3 * random.Below(5));
    GameData data = fixture::MakeGameData(rules, random.Below(2) == 0);
    for (const Side side : kBothSides) {
        if (random.Below(3) != 0) continue;
        TeamData& team = data.team[side];
        team.roster.batters.resize(9 + random.Below(5) + (data.DHUsed ? 8U : 0U));
        team.roster.pitchers.resize(2 + random.Below(4));
    }
    CompileGameData(data);
    return data;
}

// Does whatever comes to mind before a pitch, legal or not.
class AnyInput {
  public:
    AnyInput(const GameData& data, const GameState& state, Random& random)
        : data_(data), state_(state), random_(random) {}

    Input Next() {
        switch (random_.Below(8)) {
            case 0: return IntentionalWalkInput{DrawPlayValues(random_)};
            case 1: return BuntInput{random_.Below(2) == 0 ? BuntType::Sacrifice : BuntType::Squeeze};
            case 2:
            case 3: return StealInput{"23H"[random_.Below(3)]};
            default: return Change(random_.Below(2) == 0 ? Side::Visitor : Side::Home);
        }
    }

  private:
    PlayerRef Anyone(Side side) {
        const TeamRoster& roster = data_[side].roster;
        const bool arm = random_.Below(3) == 0;
        const auto men = static_cast<std::uint32_t>(arm ? roster.pitchers.size() : roster.batters.size());
        return {arm ? 'P' : 'B', static_cast<std::int16_t>(random_.Below(men))};
    }

    Input Change(Side side) {
        LineupInput lineup;
        lineup.side = side;
        lineup.pitcher = state_[side].pitcher;
        for (std::size_t i = 0; i < 9; ++i) {
            lineup.player[i] = state_[side].lineup[i].player;
            lineup.position[i] = state_[side].lineup[i].position;
        }
        const std::uint32_t kind = random_.Below(4);
        const std::size_t slot = random_.Below(9);
        if (kind == 0) {
            lineup.pitcher = {'P', static_cast<std::int16_t>(random_.Below(13))};
            for (std::size_t i = 0; i < 9; ++i)
                if (lineup.position[i] == Position::P) lineup.player[i] = lineup.pitcher;
        } else if (kind == 1) {
            lineup.player[slot] = Anyone(side);
            lineup.position[slot] = random_.Below(2) == 0 ? Position::PH : Position::PR;
        } else if (kind == 2) {
            lineup.player[slot] = Anyone(side);
        } else {
            std::swap(lineup.position[slot], lineup.position[random_.Below(9)]);
        }
        return lineup;
    }

    const GameData& data_;
    const GameState& state_;
    Random& random_;
};

struct Sums {
    int runs = 0, on = 0, faced = 0, outs = 0, putOuts = 0;
};

Sums SumsOf(const GameState& state, Side batting) {
    Sums sums;
    const BoxLines& box = state[Other(batting)].box;
    for (int i = 0; i < box.PitchersUsed; ++i) {
        sums.faced += box.pitching[static_cast<std::size_t>(i)].BF;
        sums.outs += box.pitching[static_cast<std::size_t>(i)].IPOuts;
    }
    for (int i = 0; i < box.FielderLineCount; ++i) sums.putOuts += box.fielder[static_cast<std::size_t>(i)].PutOuts;
    for (std::size_t base = 1; base <= 3; ++base) sums.on += state[batting].runner[base].On() ? 1 : 0;
    sums.runs = state[batting].Runs;
    return sums;
}

// Keeps its own account of every man: who came to bat is on base, has scored or is out, and nobody else is. What the
// bases held when a half ended was left on base. It looks only between plays.
class Scorer {
  public:
    explicit Scorer(const GameState& state) : half_(state.BattingSide), before_(SumsOf(state, state.BattingSide)) {}

    std::string Watch(const GameState& state) {
        const bool rest = state.GameOverFlag || (state.awaited.kind == Await::Roll && state.sheet == SheetCode::P);
        if (!rest) return {};
        const Sums now = SumsOf(state, half_);
        const int left = before_.on + now.faced - before_.faced - (now.runs - before_.runs) - (now.outs - before_.outs);
        const bool ended = state.BattingSide != half_ || state.GameOverFlag;
        const int outs = now.outs - before_.outs;
        const int noPutOut = caught_ + picked_;
        if (now.putOuts - before_.putOuts != outs - noPutOut) return "put-outs don't fit the outs";
        caught_ = picked_ = 0;
        if (!ended && left != now.on) return "a man has come or gone";
        if (left < 0 || left > 3) return "too many or too few left on base";
        if (ended && !state.GameOverFlag) leftOnBase[half_] += left;
        if (state.GameOverFlag) leftAtEnd = left;
        half_ = state.BattingSide;
        before_ = SumsOf(state, half_);
        return {};
    }

    void CaughtStealing() { ++caught_; }
    void PickedOff() { ++picked_; }

    PerSide<int> leftOnBase;
    int leftAtEnd = 0;

  private:
    Side half_;
    Sums before_;
    int caught_ = 0, picked_ = 0;
};

class RunnersOut : public GameListener {
  public:
    explicit RunnersOut(Scorer& scorer) : scorer_(scorer) {}
    void OnEvent(const GameData&, const GameState& state, const GameEvent& event) override {
        if (event.kind != EventKind::RollRead || event.sheet != SheetCode::S) return;
        before = state.Outs;
        stealing = true;
    }
    void AfterStep(const GameState& state) {
        if (stealing && state.play.PlayResult == Result::CS) scorer_.CaughtStealing();
        if (stealing && state.play.PlayResult == Result::PK) scorer_.PickedOff();
        stealing = false;
    }
    int before = 0;
    bool stealing = false;

  private:
    Scorer& scorer_;
};

// The names of all who have left the game; a man seen in it after that is a fault.
class Roll {
  public:
    std::string Watch(const GameData& data, const GameState& state) {
        for (const Side side : kBothSides) {
            std::set<std::string> now;
            for (const LineupSlot& slot : state[side].lineup) now.insert(PlayerName(data[side], slot.player));
            if (data.DHUsed) now.insert(PlayerName(data[side], state[side].pitcher));
            now.erase("");
            for (const std::string& name : now_[side])
                if (now.count(name) == 0) gone_[side].insert(name);
            for (const std::string& name : now)
                if (gone_[side].count(name) != 0) return name + " has come back";
            now_[side] = now;
        }
        return {};
    }

  private:
    PerSide<std::set<std::string>> now_, gone_;
};

// Plays a game with everything that can happen; the first fault ends it and is returned.
std::string PlayAnyGame(const GameData& data, GameState& state, Random& random, Scorer& scorer) {
    RunnersOut runnersOut(scorer);
    Roll roll;
    for (int steps = 0; !state.GameOverFlag; ++steps) {
        if (steps > 20000) return "the game doesn't end";
        const GameState before = state;
        Input input = RollInput{};
        if (state.awaited.kind == Await::Decision) {
            input = DecisionInput{state.awaited.side, random.Below(2) == 0};
        } else if (state.awaited.kind == Await::LineupChange) {
            LineupInput lineup;
            Manager manager;
            if (!manager.ForcedLineup(data, state, state.awaited.side, lineup)) return "nobody can come in";
            input = lineup;
        } else if (random.Below(10) == 0) {
            input = AnyInput(data, state, random).Next();
        } else {
            input =
                RollInput{static_cast<std::uint8_t>(ChartRollFromRaw(random.RandomRoll216())), DrawPlayValues(random)};
        }
        if (Advance(data, state, input, &runnersOut) != Reject::None) {
            if (!(state == before)) return "a rejected input has changed the game";
            continue;
        }
        runnersOut.AfterStep(state);
        for (const std::string& fault : {StateOk(data, state), scorer.Watch(state), roll.Watch(data, state)})
            if (!fault.empty()) return fault + " (step " + std::to_string(steps) + ")";
    }
    return {};
}

// TARVANE_GAMES plays more of them.
std::uint64_t GamesToPlay() {
    const char* games = std::getenv("TARVANE_GAMES");
    return games ? std::strtoull(games, nullptr, 10) : 150;
}

TEST(BoxGames, EveryManIsAccountedForInRandomGames) {
    int relieved = 0, surplus = 0, walkOffs = 0;
    for (std::uint64_t seed = 1; seed <= GamesToPlay(); ++seed) {
        SCOPED_TRACE(seed);
        Random random(seed);
        const GameData data = RandomClubs(random);
        GameState state;
        ASSERT_EQ(StartGame(data, fixture::StartingLineup(data, Side::Visitor, 0),
                            fixture::StartingLineup(data, Side::Home, 1), state),
                  Reject::None);
        ASSERT_EQ(StateOk(data, state), "");
        Scorer scorer(state);
        ASSERT_EQ(PlayAnyGame(data, state, random, scorer), "") << BoxScoreText(data, state);
        const BoxProof proof = ProveBox(state);
        EXPECT_TRUE(proof.Proves()) << BoxProofText(data, state) << BoxScoreText(data, state);
        for (const Side side : kBothSides) {
            const SideProof& p = proof.side[side];
            const bool lastHalf = side == state.BattingSide && side == Side::Home;
            EXPECT_EQ(p.Runs + scorer.leftOnBase[side] + p.Outs + (side == state.BattingSide ? scorer.leftAtEnd : 0),
                      p.Appearances());
            if (!p.Relieved && !lastHalf) {
                const int end = side == state.BattingSide ? scorer.leftAtEnd : 0;
                EXPECT_EQ(p.LOB, scorer.leftOnBase[side] + end);
            }
            relieved += p.Relieved ? 1 : 0;
            surplus += p.Surplus();
        }
        walkOffs += state.WalkOff ? 1 : 0;
    }
    // The games reach what they are played for.
    EXPECT_GT(relieved, 50);
    EXPECT_GT(surplus, 0);
    EXPECT_GT(walkOffs, 5);
}

// Two men were sent on a fly, one after the other; the throw behind the second goes wild.
TEST(BoxGames, WildThrowBehindTheSecondManSendsTheFirstHome) {
    GameData data = fixture::MakeGameData();
    for (GameChartRow& row : data.charts.MgrDec) row.cell = fixture::Everywhere("E", kGreenWord);
    CompileGameData(data);
    GameState state = fixture::FirstPitch(data);
    state.sheet = SheetCode::M;
    state.Outs = 1;
    state.play.PlayResult = Result::SFDecision;
    state.play.extraBase = ExtraBaseCase::First;
    state.play.FieldedBy = Position::CF;
    state.play.MDRow = 1;
    TeamState& team = state[Side::Visitor];
    team.BatterSlot = 4;
    team.runner[3].slot = 2;  // he went there from second
    team.runner[1].slot = 3;
    state[Side::Home].box.pitching[0].RunnersCharged = 2;
    ASSERT_EQ(Advance(data, state, RollInput{20, {}}), Reject::None);
    EXPECT_EQ(team.Runs, 1);
    EXPECT_EQ(team.runner[3].slot, 3);
    EXPECT_EQ(StateOk(data, state), "");
}

}  // namespace
}  // namespace tarvane
