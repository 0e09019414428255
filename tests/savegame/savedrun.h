#pragma once

#include <memory>

#include "engine/fixture.h"
#include "engine/replaylog.h"
#include "savegame/savegame.h"

namespace tarvane::testing {

// A game between two computer managers, one input at a time, that can be put away before each of them.
class SavedRun {
  public:
    explicit SavedRun(std::uint64_t seed, bool dh = false) {
        saved_.session.emplace();
        saved_.session->random.Seed(seed);
        PreparedGame& game = saved_.game;
        game.data = fixture::MakeGameData(Rules(), dh);
        for (const Side side : kBothSides) {
            NameAll(game.data.team[side].roster, side);
            game.lineup[side] = fixture::StartingLineup(game.data, side, side == Side::Visitor ? 0 : 1);
            saved_.session->manager[side].random.Seed(seed * 2 + (side == Side::Home ? 1 : 0));
            saved_.state.computer[side] = {true, true, true};
        }
        EXPECT_EQ(StartGame(game.data, game.lineup[Side::Visitor], game.lineup[Side::Home], saved_.state),
                  Reject::None);
        saved_.session->arrived = true;
        Wake();
    }
    explicit SavedRun(SavedGame saved) : saved_(std::move(saved)) { Wake(); }

    static LeagueRules Rules() {
        LeagueRules rules = fixture::FullRules();
        rules.UseYellowXInjuryChart = true;
        rules.RelieverMaxIPOuts = 9;
        return rules;
    }
    // What a game takes from the season when it is taken up.
    static void Basis(const SaveHead&, PreparedGame& game) {
        game.data.rules = Rules();
        game.data.charts = fixture::Charts();
    }

    // The game as it stands.
    SavedGame Save() const {
        SavedGame saved = saved_;
        for (const Side side : kBothSides) saved.session->manager[side] = manager_[side]->Remembered();
        return saved;
    }
    const GameState& State() const { return saved_.state; }
    const GameData& Data() const { return saved_.game.data; }

    // One input, whoever it is due from.
    void Step() {
        const GameState& state = saved_.state;
        if (state.awaited.kind == Await::Decision) {
            const Side side = state.awaited.side;
            return Take(DecisionInput{side, manager_[side]->Decide(Data(), state, side)});
        }
        if (state.awaited.kind == Await::LineupChange) {
            LineupInput lineup;
            Manager plain;
            const Side side = state.awaited.side;
            ASSERT_TRUE(manager_[side]->ForcedLineup(Data(), state, side, lineup) ||
                        plain.ForcedLineup(Data(), state, side, lineup));
            return Take(lineup);
        }
        if (state.sheet == SheetCode::P && std::exchange(saved_.session->arrived, false)) {
            for (const Side side : {state.FieldingSide(), state.BattingSide}) {
                Input input;
                if (manager_[side]->BeforePitch(Data(), state, side, input)) return Take(input);
            }
        }
        const int roll = ChartRollFromRaw(saved_.session->random.RandomRoll216());
        Take(RollInput{static_cast<std::uint8_t>(roll), DrawPlayValues(saved_.session->random)});
    }
    void PlayToTheEnd() {
        for (int steps = 0; !State().GameOverFlag; ++steps) {
            ASSERT_LT(steps, 5000);
            ASSERT_NO_FATAL_FAILURE(Step());
        }
    }

    // Both documents of the game.
    std::string Documents() const {
        const BoxDocument box = MakeBoxDocument(Data(), State());
        return BoxScoreText(box, {}) + ScoreSheetText(saved_.sheet, box);
    }

  private:
    void Wake() {
        for (const Side side : kBothSides) {
            manager_[side] = std::make_unique<ComputerManager>(side, Random(0), saved_.game.knowledge[side]);
            manager_[side]->Remember(saved_.session->manager[side]);
        }
    }
    void Take(const Input& input) {
        const Reject reject = Advance(Data(), saved_.state, input, &saved_.sheet);
        ASSERT_EQ(reject, Reject::None) << RejectText(reject);
        if (State().sheet == SheetCode::P && State().awaited.kind == Await::Roll &&
            !std::holds_alternative<LineupInput>(input))
            saved_.session->arrived = true;
    }
    // Names with what files stumble over.
    static void NameAll(TeamRoster& roster, Side side) {
        roster.team.fullName = side == Side::Visitor ? "The \"Old\" Visitors, 1975" : "Homers";
        roster.team.teamID = side == Side::Visitor ? "VIS" : "HOM";
        int number = 0;
        for (Batter& man : roster.batters) man.playerName = fmt::format("Jos\xC3\xA9 \"B\" {}, Jr.", ++number);
        for (Pitcher& man : roster.pitchers) man.playerName = fmt::format("Pitcher {}", ++number);
    }

    SavedGame saved_;
    PerSide<std::unique_ptr<ComputerManager>> manager_;
};

}  // namespace tarvane::testing
