#include "manager/changes.h"

#include <gtest/gtest.h>

#include <set>

#include "engine/availability.h"
#include "engine/step.h"
#include "manager/roster.h"
#include "rosters.h"

namespace tarvane::testing {
namespace {

constexpr Side V = Side::Visitor;
constexpr Side H = Side::Home;

// A game at its first pitch between two clubs of the shared test roster, without charts: line-ups only.
struct LineupGame {
    GameData data;
    GameState state;

    explicit LineupGame(bool dh = false) : LineupGame(MakeRoster(), dh) {}
    LineupGame(const TeamRoster& roster, bool dh) {
        data.DHUsed = dh;
        data.team[V].roster = data.team[H].roster = roster;
    }

    void Start() {
        for (const Side side : kBothSides) CompileIdentities(data.team[side]);
        for (const Side side : kBothSides) {
            LineupInput lineup;
            lineup.side = side;
            for (std::size_t i = 0; i < 8; ++i) {
                lineup.player[i] = {'B', static_cast<std::int16_t>(i)};
                lineup.position[i] = kField[i];
            }
            lineup.pitcher = {'P', 0};
            lineup.player[8] = data.DHUsed ? PlayerRef{'B', 11} : lineup.pitcher;
            lineup.position[8] = data.DHUsed ? Position::DH : Position::P;
            for (std::size_t i = 0; i < 9; ++i) {
                state[side].lineup[i].player = lineup.player[i];
                state[side].lineup[i].position = lineup.position[i];
            }
            state[side].pitcher = lineup.pitcher;
            RebuildLineupDetails(data, state, side);
        }
        SetupBoxScore(data, state);
    }

    bool Take(const std::optional<LineupInput>& lineup) {
        if (!lineup || CheckLineupChange(data, state, *lineup) != Reject::None) return false;
        Step step{data, state};
        ChangeLineup(step, *lineup);
        state.awaited = Awaited{};
        return true;
    }

    // The half ends with three outs for the pitcher; the side that goes into the field is looked over.
    void NextHalf() {
        CurrentPitchingLine(state.Fielding()).IPOuts =
            static_cast<std::int16_t>(CurrentPitchingLine(state.Fielding()).IPOuts + 3);
        if (state.BattingSide == H) ++state.Inning;
        state.BattingSide = Other(state.BattingSide);
        Step step{data, state};
        ValidatePositions(step, state.FieldingSide());
    }

    // The roster index of the man at a position; -1 if nobody stands there.
    int At(Side side, Position position) const {
        for (const LineupSlot& slot : state[side].lineup)
            if (slot.position == position) return slot.player.index;
        return -1;
    }

    bool PinchFor(Side side, Position position, int man, Position as = Position::PH) {
        for (int slot = 1; slot <= 9; ++slot)
            if (state[side].lineup[static_cast<std::size_t>(slot - 1)].position == position)
                return Take(Pinch(data, state, side, slot, {'B', static_cast<std::int16_t>(man)}, as));
        return false;
    }
};

TEST(Changes, NewPitcherTakesThePitchersSlotOrNone) {
    LineupGame game;
    game.Start();
    ASSERT_TRUE(game.Take(BringInPitcher(game.data, game.state, H)));
    EXPECT_EQ(game.state[H].pitcher, (PlayerRef{'P', 1})) << "the best chart that is left";
    EXPECT_EQ(game.state[H].lineup[8].player, game.state[H].pitcher);
    EXPECT_TRUE(game.Take(BringInPitcher(game.data, game.state, H, {'P', 9})));
    EXPECT_FALSE(game.Take(BringInPitcher(game.data, game.state, H, {'P', 1}))) << "he has been taken out";

    LineupGame dh(true);
    dh.Start();
    ASSERT_TRUE(dh.Take(BringInPitcher(dh.data, dh.state, H, {'P', 9})));
    EXPECT_EQ(dh.state[H].lineup[8].player, (PlayerRef{'B', 11}));
}

TEST(Changes, ThePinchHitterForThePitcherGivesWayToAReliever) {
    LineupGame game;
    game.Start();
    ASSERT_TRUE(game.PinchFor(V, Position::P, 14));
    game.NextHalf();
    ASSERT_EQ(game.state.awaited.position, Position::P);
    ASSERT_TRUE(game.Take(AnswerForcedChange(game.data, game.state, V)));
    EXPECT_EQ(game.state[V].lineup[8].player, (PlayerRef{'P', 1}));
    EXPECT_EQ(game.At(V, Position::CF), 6);
}

TEST(Changes, PinchMenStayWhereTheyAreRated) {
    LineupGame game;
    game.Start();
    ASSERT_TRUE(game.PinchFor(V, Position::SS, 9));                 // rated SS, 2B, 3B
    ASSERT_TRUE(game.PinchFor(V, Position::CF, 11, Position::PR));  // rated 1B only
    game.NextHalf();
    ASSERT_TRUE(game.Take(AnswerForcedChange(game.data, game.state, V)));
    EXPECT_EQ(game.At(V, Position::SS), 9);
    EXPECT_EQ(game.At(V, Position::CF), 14) << "the runner gives way to the bench's best in centre";
}

TEST(Changes, MenMoveRatherThanStandOutOfPosition) {
    LineupGame game;
    game.data.team[V].roster.batters.resize(12);  // the bench: C; SS, 2B, 3B; the outfield; 1B
    game.Start();
    game.data.team[V].roster.batters[4].Pos[1] = {Position::B2, 1, 'F'};
    ASSERT_TRUE(game.PinchFor(V, Position::B3, 11));  // only rated at first
    ASSERT_TRUE(game.PinchFor(V, Position::SS, 9));
    game.NextHalf();
    ASSERT_TRUE(game.Take(AnswerForcedChange(game.data, game.state, V)));
    for (const LineupSlot& slot : game.state[V].lineup) {
        if (slot.position == Position::P) continue;
        const bool rated = RatingAt(game.data.team[V].roster, slot.player, slot.position) != nullptr;
        EXPECT_EQ(rated, slot.player.index != 11) << PositionText(slot.position);
    }
    EXPECT_EQ(game.At(V, Position::B3), 11) << "nobody else is left; all others stand where they are rated";
}

TEST(Changes, HurtMenAreReplacedAtTheirPlaces) {
    LineupGame game;
    game.Start();
    const auto hurt = [&](Side side, std::size_t slot) {
        LineupSlot& man = game.state[side].lineup[slot];
        game.state.awaited = {Await::LineupChange,
                              DecisionKind::None,
                              LineupCause::InjuredFielder,
                              side,
                              man.position,
                              static_cast<std::uint8_t>(slot + 1)};
        if (man.position == Position::P) game.state[side].pitcher = {'P', -1};
        man.player.index = -1;
        man.position = Position::Inj;
    };
    hurt(H, 0);
    ASSERT_TRUE(game.Take(AnswerForcedChange(game.data, game.state, H)));
    EXPECT_EQ(game.At(H, Position::C), 8);
    hurt(H, 8);
    ASSERT_TRUE(game.Take(AnswerForcedChange(game.data, game.state, H)));
    EXPECT_EQ(game.state[H].pitcher, (PlayerRef{'P', 1}));
    hurt(V, 3);
    ASSERT_TRUE(game.Take(ReplaceInjured(game.data, game.state, V, {'B', 12})));
    EXPECT_EQ(game.At(V, Position::B3), 12) << "the man named takes the place";
    EXPECT_FALSE(ReplaceInjured(game.data, game.state, V)) << "nobody is hurt";
}

// Clubs of any shape, changed until nobody is left: each change is legal, no man comes back, and the field is full.
TEST(Changes, RandomClubsNeverRunIntoAnImpossibleLineup) {
    int games = 0, changes = 0, exhausted = 0;
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(seed);
        Random random(seed);
        const TeamRoster roster = RandomRoster(random);
        if (roster.batters.size() < 12) continue;
        LineupGame game(roster, random.Below(2) == 0);
        for (Batter& man : game.data.team[V].roster.batters) man.Inactive = false;
        for (int i : {0, 1, 2, 3, 4, 5, 6, 7, 11})
            game.data.team[V].roster.batters[static_cast<std::size_t>(i)].injury = {};
        game.data.team[H].roster = game.data.team[V].roster;
        game.Start();
        ++games;
        PerSide<std::set<std::string>> gone, now;
        for (int turn = 0; turn < 40; ++turn) {
            const Side bat = game.state.BattingSide;
            const auto bench = Bench(game.data, game.state, bat);
            const int slot = 1 + static_cast<int>(random.Below(9));
            if (bench.empty()) ++exhausted;
            if (!bench.empty() && random.Below(2) == 0) {
                const PlayerRef man = bench[random.Below(static_cast<std::uint32_t>(bench.size()))];
                const Position as = random.Below(2) == 0 ? Position::PH : Position::PR;
                if (game.Take(Pinch(game.data, game.state, bat, slot, man, as))) ++changes;
            }
            const Side field = game.state.FieldingSide();
            if (random.Below(3) == 0 && game.Take(BringInPitcher(game.data, game.state, field))) ++changes;
            game.NextHalf();
            const Awaited awaited = game.state.awaited;
            if (awaited.kind == Await::LineupChange) {
                ASSERT_TRUE(game.Take(AnswerForcedChange(game.data, game.state, awaited.side)));
                ++changes;
            }
            Step step{game.data, game.state};
            ValidatePositions(step, game.state.FieldingSide());
            ASSERT_EQ(game.state.awaited.kind, Await::Roll);
            for (const Side side : kBothSides) {
                std::set<std::string> names;
                for (const LineupSlot& s : game.state[side].lineup) names.insert(PlayerName(game.data[side], s.player));
                if (game.data.DHUsed) names.insert(PlayerName(game.data[side], game.state[side].pitcher));
                for (const std::string& name : now[side])
                    if (names.count(name) == 0) gone[side].insert(name);
                for (const std::string& name : names) ASSERT_EQ(gone[side].count(name), 0U) << name;
                now[side] = names;
            }
        }
    }
    EXPECT_GT(games, 100);
    EXPECT_GT(changes, 1000);
    EXPECT_GT(exhausted, 100);
}

}  // namespace
}  // namespace tarvane::testing
