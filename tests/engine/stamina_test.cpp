#include "box_game.h"

namespace tarvane {
namespace {

constexpr Side H = Side::Home;

struct Weary {
    bool tired = false, intermediate = false;
    friend bool operator==(const Weary&, const Weary&) = default;
};
constexpr Weary kFresh{}, kTired{true, false}, kIntermediate{false, true};

Weary Read(bool moderate, int stamina, int wind, Weary before, int roll) {
    BoxGame game;
    game.data.rules.PitcherStaminaSecondary = moderate;
    TeamState& team = game.state[H];
    team.PitcherStamina = static_cast<std::uint8_t>(stamina);
    team.PitcherSecondWind = static_cast<std::uint8_t>(wind);
    team.PitcherTired = before.tired;
    team.PitcherIntermediateTired = before.intermediate;
    Step step{game.data, game.state};
    ReadStamina(step, roll);
    return {team.PitcherTired, team.PitcherIntermediateTired};
}

TEST(Stamina, PlainLevel) {
    EXPECT_EQ(Read(false, 20, 15, kFresh, 19), kTired);
    EXPECT_EQ(Read(false, 20, 15, kFresh, 20), kFresh);
    EXPECT_EQ(Read(false, 20, 15, kTired, 14), kFresh);
    EXPECT_EQ(Read(false, 20, 15, kTired, 15), kTired);
}

TEST(Stamina, ModerateBands) {
    EXPECT_EQ(Read(true, 23, 10, kFresh, 20), kTired);
    EXPECT_EQ(Read(true, 23, 10, kFresh, 21), kIntermediate);
    EXPECT_EQ(Read(true, 23, 10, kFresh, 23), kFresh);
    EXPECT_EQ(Read(true, 24, 10, kFresh, 20), kTired);
    EXPECT_EQ(Read(true, 24, 10, kFresh, 21), kIntermediate) << "three rolls wide from 24 on";
    // Tired: the second wind comes before a partial recovery.
    EXPECT_EQ(Read(true, 23, 10, kTired, 22), kIntermediate);
    EXPECT_EQ(Read(true, 23, 23, kTired, 22), kFresh);
    EXPECT_EQ(Read(true, 23, 10, kTired, 30), kTired);
    EXPECT_EQ(Read(true, 23, 12, kIntermediate, 15), kTired);
    EXPECT_EQ(Read(true, 23, 12, kIntermediate, 11), kFresh);
    EXPECT_EQ(Read(true, 23, 12, kIntermediate, 22), kIntermediate);
}

TEST(Stamina, CheckIsTakenOnceAndOnlyWhereItCanChangeSomething) {
    BoxGame game;
    TeamState& team = game.state[H];
    LeagueRules rules;
    const auto take = [&](int stamina, int wind, bool tired) {
        game.state.StaminaCheckPending = true;
        team.PitcherStamina = static_cast<std::uint8_t>(stamina);
        team.PitcherSecondWind = static_cast<std::uint8_t>(wind);
        team.PitcherTired = tired;
        const bool due = TakeStaminaCheck(game.state, rules);
        EXPECT_FALSE(game.state.StaminaCheckPending);
        EXPECT_FALSE(TakeStaminaCheck(game.state, rules));
        return due;
    };
    EXPECT_FALSE(take(10, 20, false));
    EXPECT_TRUE(take(13, 10, false));
    EXPECT_FALSE(take(20, 10, true));
    EXPECT_TRUE(take(20, 11, true));
    rules.PitcherStaminaSecondary = true;
    EXPECT_TRUE(take(20, 10, true));

    game.state.StaminaCheckPending = true;
    game.state[Side::Visitor].PitcherChangePending = true;
    EXPECT_FALSE(TakeStaminaCheck(game.state, rules));
    EXPECT_TRUE(game.state.StaminaCheckPending) << "it waits for the new man";
    rules.PitcherStamina = false;
    game.state[Side::Visitor].PitcherChangePending = false;
    EXPECT_FALSE(TakeStaminaCheck(game.state, rules));
}

class Messages : public GameListener {
  public:
    void OnEvent(const GameData&, const GameState&, const GameEvent& event) override {
        if (event.kind == EventKind::Message) tags.push_back(event.tag);
    }
    std::vector<Tag> tags;
};

TEST(Stamina, RelieverAtHisLimitMustGo) {
    BoxGame game;
    game.data.rules.RelieverMaxIPOuts = 6;
    Messages messages;
    Step step{game.data, game.state, &messages};
    game.Pitcher(H, 0).IPOuts = 20;
    FatigueReminders(step, H);
    EXPECT_EQ(game.state.awaited.kind, Await::Roll) << "a starter has no limit";

    ASSERT_EQ(game.BringIn(H, 3), Reject::None);
    game.Pitcher(H, 1).IPOuts = 5;
    FatigueReminders(step, H);
    EXPECT_EQ(game.state.awaited.kind, Await::Roll);
    game.Pitcher(H, 1).IPOuts = 6;
    FatigueReminders(step, H);
    EXPECT_EQ(game.state.awaited.kind, Await::LineupChange);
    EXPECT_EQ(game.state.awaited.cause, LineupCause::RelieverLimit);
    EXPECT_EQ(game.state.awaited.side, H);
    EXPECT_EQ(game.state.awaited.slot, 9);
    EXPECT_TRUE(game.state[H].PitcherChangePending);
    EXPECT_EQ(messages.tags, std::vector<Tag>{Tag::PitcherFatigue});
    EXPECT_EQ(game.Change(game.Now(H)), Reject::CannotPitch);
    ASSERT_EQ(game.BringIn(H, 1), Reject::None);
    EXPECT_FALSE(game.state[H].PitcherChangePending);
    game.state.awaited = Awaited{};
    game.Pitcher(H, 2).IPOuts = 9;
    FatigueReminders(step, H);
    EXPECT_EQ(game.state.awaited.kind, Await::Roll) << "nor has a starter who relieves";

    ASSERT_EQ(game.BringIn(H, 4), Reject::None);
    for (auto& arm : game.data.team[H].roster.pitchers) arm.Inactive = true;
    game.Pitcher(H, 3).IPOuts = 9;
    FatigueReminders(step, H);
    EXPECT_EQ(game.state.awaited.kind, Await::Roll) << "nobody could take over";
}

TEST(Stamina, RestReminderOncePerBracket) {
    BoxGame game;
    game.data.rules.rest[0] = {'R', 0, 3, 1};
    game.data.rules.rest[1] = {'R', 4, 8, 2};
    Messages messages;
    Step step{game.data, game.state, &messages};
    ASSERT_EQ(game.BringIn(H, 3), Reject::None);
    PitchingLine& line = game.Pitcher(H, 1);
    for (int outs = 0; outs <= 8; ++outs) {
        line.IPOuts = static_cast<std::int16_t>(outs);
        line.Reminded = false;
        FatigueReminders(step, H);
        FatigueReminders(step, H);
    }
    EXPECT_EQ(messages.tags.size(), 2U);
    game.state.computer[H].subs = true;
    line.IPOuts = 7;
    line.Reminded = false;
    FatigueReminders(step, H);
    EXPECT_EQ(messages.tags.size(), 2U) << "a computer manager needs no reminding";
}

TEST(Stamina, ThePitcherDueToBatIsToldOfOnceBeforeEachTurn) {
    BoxGame game;
    Messages messages;
    Step step{game.data, game.state, &messages};
    const auto told = [&](int inning, Side side, int slot) {
        messages.tags.clear();
        game.state.Inning = static_cast<std::uint8_t>(inning);
        game.state[side].BatterSlot = static_cast<std::uint8_t>(slot);
        BattingReminder(step, side);
        return messages.tags == std::vector<Tag>{Tag::PitcherBatterReminder};
    };
    EXPECT_FALSE(told(5, Side::Visitor, 8)) << "early in the game he bats anyway";
    EXPECT_FALSE(told(6, Side::Visitor, 7));
    EXPECT_TRUE(told(6, Side::Visitor, 8)) << "on deck";
    EXPECT_FALSE(told(6, Side::Visitor, 8)) << "once is enough";
    game.state[Side::Visitor].BatterSlot = 9;
    game.Book(Result::K, 1);
    EXPECT_TRUE(told(8, Side::Visitor, 8)) << "he has batted since";
    EXPECT_FALSE(told(7, H, 8));
    EXPECT_TRUE(told(7, H, 9)) << "he leads off the next half";
    BoxGame designated(true);
    Step other{designated.data, designated.state, &messages};
    messages.tags.clear();
    designated.state.Inning = 7;
    for (int slot = 1; slot <= 9; ++slot) {
        designated.state[H].BatterSlot = static_cast<std::uint8_t>(slot);
        BattingReminder(other, H);
    }
    EXPECT_TRUE(messages.tags.empty());
}

TEST(Stamina, TheFirstRestingManWhoMustPitchIsTold) {
    BoxGame game;
    game.data.dayNumber = 10;
    for (Pitcher& arm : game.data.team[H].roster.pitchers) {
        arm.PitchedOnDay = 9;
        arm.PitcherRestDays = 3;
    }
    game.data.team[H].roster.pitchers[0].PitcherRestDays = game.data.team[H].roster.pitchers[3].PitcherRestDays = 0;
    Messages messages;
    Step step{game.data, game.state, &messages};
    std::vector<std::size_t> told;
    for (const int arm : {3, 4, 5}) {
        LineupInput lineup = game.Now(H);
        lineup.pitcher = lineup.player[8] = BoxGame::Arm(arm);
        ASSERT_EQ(CheckLineupChange(game.data, game.state, lineup), Reject::None) << arm;
        ChangeLineup(step, lineup);
        told.push_back(messages.tags.size());
    }
    EXPECT_EQ(told, (std::vector<std::size_t>{0, 1, 1}));
    EXPECT_EQ(messages.tags, std::vector<Tag>{Tag::NoRestedPitchers});
}

}  // namespace
}  // namespace tarvane
