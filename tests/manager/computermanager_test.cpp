#include "manager/computermanager.h"

#include <gmock/gmock.h>

#include "../engine/fixture.h"
#include "engine/availability.h"
#include "manager/generate.h"
#include "manager/lineups.h"
#include "manager/roster.h"

namespace tarvane {
namespace {

// A computer manager whose every look at the game is preceded by a check of all that must hold.
class WatchedManager : public Manager {
  public:
    WatchedManager(Side side, std::uint64_t seed, ManagerKnowledge knowledge = {})
        : manager_(side, Random(seed), std::move(knowledge)) {}

    bool Decide(const GameData& data, const GameState& state, Side side) override {
        Look(data, state);
        const bool yes = manager_.Decide(data, state, side);
        ++decisions[yes ? 1 : 0];
        return yes;
    }
    bool BeforePitch(const GameData& data, const GameState& state, Side side, Input& input) override {
        Look(data, state);
        if (!manager_.BeforePitch(data, state, side, input)) return false;
        if (Check(data, state, input) != Reject::None) fault = "an order that the game refuses";
        if (std::holds_alternative<StealInput>(input)) ++steals;
        if (std::holds_alternative<BuntInput>(input)) ++bunts;
        if (const auto* lineup = std::get_if<LineupInput>(&input)) {
            const bool pitcher = lineup->pitcher != state[side].pitcher;
            ++(pitcher ? pitchers : pinchMen);
            if (pitcher == (side == state.BattingSide)) fault = "a change out of its half";
        }
        return true;
    }
    bool ForcedLineup(const GameData& data, const GameState& state, Side side, LineupInput& lineup) override {
        Look(data, state);
        ++forced;
        const bool named = manager_.ForcedLineup(data, state, side, lineup);
        if (!named) fault = "nobody for a change that the game waits for";
        return named;
    }

    std::string fault;
    int decisions[2] = {0, 0}, steals = 0, bunts = 0, pitchers = 0, pinchMen = 0, forced = 0;

  private:
    void Look(const GameData& data, const GameState& state) {
        if (fault.empty()) fault = StateOk(data, state);
    }
    ComputerManager manager_;
};

void Computerize(GameState& state) {
    state.computer[Side::Visitor] = state.computer[Side::Home] = {true, true, true};
}

GameData FixtureGame(bool dh) {
    GameData data = fixture::MakeGameData(fixture::FullRules(), dh);
    for (const Side side : kBothSides) {
        for (Pitcher& pitcher : data.team[side].roster.pitchers)
            pitcher.chance.Out = 0.2 + 0.01 * (pitcher.playerID % 7);
        GenerateComputerManager(data.team[side].roster, {});
    }
    return data;
}

TEST(ComputerManager, WholeGamesOfEveryTendencyHoldAndUseAllMoves) {
    int steals = 0, bunts = 0, pitchers = 0, pinchMen = 0, forced = 0, yes = 0, no = 0;
    for (const bool dh : {false, true}) {
        GameData data = FixtureGame(dh);
        for (std::uint64_t seed = 1; seed <= 120; ++seed) {
            for (const Side side : kBothSides) {
                const auto t = static_cast<std::uint8_t>(1 + (seed + (side == Side::Home ? 1 : 0)) % 3);
                data.team[side].roster.tendencies = {t, t, t, t, t, t, t};
            }
            GameState state = fixture::FirstPitch(data);
            Computerize(state);
            Random random(seed);
            WatchedManager visitor(Side::Visitor, seed + 1), home(Side::Home, seed + 2);
            PlayOut(data, state, random, visitor, home);
            ASSERT_TRUE(state.GameOverFlag);
            ASSERT_EQ(visitor.fault + home.fault, "") << "seed " << seed << " dh " << dh;
            ASSERT_EQ(StateOk(data, state), "");
            for (const WatchedManager* m : {&visitor, &home}) {
                steals += m->steals, bunts += m->bunts, pitchers += m->pitchers, pinchMen += m->pinchMen,
                    forced += m->forced;
                yes += m->decisions[1], no += m->decisions[0];
            }
        }
    }
    for (const int moves : {steals, bunts, pitchers, pinchMen, forced, yes, no}) EXPECT_GT(moves, 50);
}

TEST(ComputerManager, SameSeedsSameGameAndChanceOfItsOwn) {
    const GameData data = FixtureGame(false);
    const auto play = [&](std::uint64_t managers) {
        GameState state = fixture::FirstPitch(data);
        Computerize(state);
        Random random(5);
        ComputerManager visitor(Side::Visitor, Random(managers)), home(Side::Home, Random(managers + 1));
        PlayOut(data, state, random, visitor, home);
        return state;
    };
    EXPECT_EQ(play(1), play(1));
    EXPECT_NE(play(1), play(2));
    // Without a switch he does nothing: then the generator doesn't matter.
    const auto idle = [&](std::uint64_t seed) {
        GameState state = fixture::FirstPitch(data);
        Random random(5);
        ComputerManager visitor(Side::Visitor, Random(seed)), home(Side::Home, Random(seed + 1));
        PlayOut(data, state, random, visitor, home);
        return state;
    };
    EXPECT_EQ(idle(1), idle(2));
}

// Clubs short of everything: the line-up choosers and the managers must bring each game to its end.
TEST(ComputerManager, ThinAndHurtClubsFinishTheirGames) {
    Random random(77);
    int games = 0, resting = 0;
    for (int i = 0; i < 220; ++i) {
        const bool dh = random.Below(2) == 0;
        GameData data = fixture::MakeGameData(fixture::FullRules(), dh);
        data.rules.RelieverMaxIPOuts = static_cast<std::int16_t>(3 + random.Below(13));
        data.dayNumber = 100;
        PerSide<LineupInput> lineup;
        bool playable = true;
        for (const Side side : kBothSides) {
            TeamRoster& roster = data.team[side].roster;
            roster.batters.resize(9 + random.Below(10));
            roster.pitchers.resize(1 + random.Below(13));
            for (Batter& man : roster.batters) man.Inactive = random.Below(25) == 0;
            for (std::size_t arm = 1; arm < roster.pitchers.size(); ++arm) {
                Pitcher& pitcher = roster.pitchers[arm];
                if (random.Below(3) == 0) pitcher.PitcherRestDays = 3, pitcher.PitchedOnDay = 98, ++resting;
                if (random.Below(9) == 0)
                    pitcher.playerName = roster.pitchers[0].playerName,
                    pitcher.LahmanPlayerID = roster.pitchers[0].LahmanPlayerID;
            }
            for (std::uint8_t* t :
                 {&roster.tendencies.RelieverUsage, &roster.tendencies.PinchHitting, &roster.tendencies.PinchRunning})
                *t = static_cast<std::uint8_t>(1 + random.Below(3));
            if (random.Below(4) != 0) GenerateComputerManager(roster, {});
            GetPitcherRest(roster, data.dayNumber);
            StarterRequest request;
            request.dayNumber = data.dayNumber;
            LineupRequest nine;
            nine.side = side;
            nine.dhUsed = dh;
            nine.pitcher = ChooseStarter(roster, request).pitcher;
            const ChosenLineup choice = ChooseLineup(roster, nine);
            playable = playable && choice.trouble.empty();
            lineup[side] = choice.lineup;
            MakeRestingIneffective(roster);
        }
        if (!playable) continue;
        ++games;
        CompileGameData(data);
        for (const Side side : kBothSides) ASSERT_EQ(CheckStartingLineup(data, lineup[side]), Reject::None) << i;
        GameState state;
        Computerize(state);
        ASSERT_EQ(StartGame(data, lineup[Side::Visitor], lineup[Side::Home], state), Reject::None);
        Random rolls(static_cast<std::uint64_t>(i));
        WatchedManager visitor(Side::Visitor, static_cast<std::uint64_t>(i) + 1000),
            home(Side::Home, static_cast<std::uint64_t>(i) + 2000);
        PlayOut(data, state, rolls, visitor, home);
        ASSERT_TRUE(state.GameOverFlag) << i;
        ASSERT_EQ(visitor.fault + home.fault, "") << i;
        ASSERT_LE(state[Side::Home].box.PitchersUsed, kMaxPitchingLines);
    }
    EXPECT_GT(games, 120);
    EXPECT_GT(resting, 100);
}

}  // namespace
}  // namespace tarvane
