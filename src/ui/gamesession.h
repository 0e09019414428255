#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/random.h"
#include "documents/scoresheet.h"
#include "engine/game.h"
#include "savegame/savegame.h"
#include "ui/gameoptions.h"
#include "ui/playbyplay.h"
#include "ui/seasonaccess.h"

namespace tarvane {

// A chart as it was when a roll was read on it, and what the roll showed.
struct ChartShown {
    SheetView chart;
    SheetCode sheet = SheetCode::None;
    int roll = 0;  // 10 to 39; 0 before the first roll
    int tens = 0;  // the faces of the three dice
    std::array<int, 2> dice{};
    bool secondDiceSound = false;  // which of the two dice sounds goes with it
    std::string playByPlay;        // the running text when the chart was put away
};

// A computer manager's move that the user is to confirm.
struct ProposedMove {
    Side side = Side::Visitor;
    Input input;
};

// Something to tell a manager in a box.
struct Reminder {
    std::string title, text;
};

// Somebody who watches a game as it is played on the screen: hears nothing of what is played quickly.
class Onlooker : public GameListener {
  public:
    // Around each input: the state before it and after it.
    virtual void StepBegins(const GameState&) {}
    virtual void StepEnds(const GameState&) {}
};

// One game as a person plays it: the rolls of his clicks, the answers of the computer managers, the chart of the roll
// before, and the running text. It waits for nobody: each call takes one step and comes back.
class GameSession : private GameListener {
  public:
    GameSession(GamePtr setup, const GameOptions& options, std::uint64_t seed);
    // A game taken up again. The seed serves only a save that doesn't hold its dice.
    GameSession(SavedGame saved, const GameOptions& options, std::uint64_t seed);
    ~GameSession() override;

    // They outlive the session.
    void AddOnlooker(Onlooker& onlooker) { onlookers_.push_back(&onlooker); }

    // The line-ups take the field; a reason if they may not. A game taken up again goes on where it stood.
    Reject Start();

    // --- Inputs. Each does nothing and gives false if it isn't legal now. ---

    bool Roll();  // one roll of the dice on the sheet that is up
    bool RollByHand(int chartRoll);
    bool IntentionalWalk();
    bool Bunt(BuntType type);
    bool Steal(char target);
    bool Answer(bool yes);  // to the decision awaited of a human

    // New line-ups of humans, before a pitch or where one is awaited: all of them, or none and the reason.
    Reject ChangeLineups(std::vector<LineupInput> lineups);

    // The user's word on the move that waits for it; No drops the move.
    bool Confirm(bool yes);

    // The computer plays both teams until the end of inning throughInning (0: of the game).
    void QuickPlay(int throughInning);
    // The same, play by play for a spectator: every sheet rolls by itself until then.
    void Watch(int throughInning);

    // --- What stands ---

    const GameData& Data() const { return setup_->data; }
    const PreparedGame& Game() const { return *setup_; }
    const GamePtr& Setup() const { return setup_; }
    const GameState& State() const { return state_; }
    GameOptions& Options() { return options_; }
    const GameOptions& Options() const { return options_; }
    bool SpectatorMode = false;

    bool Over() const { return state_.GameOverFlag; }
    bool CanRoll() const { return !Over() && !proposed_ && state_.awaited.kind == Await::Roll; }
    // The sheet that is up rolls without a click.
    bool RollsByItself() const;
    // A human must answer before anything else happens.
    bool AwaitsHuman() const;
    bool ComputerManages(Side side) const { return state_.computer[side].game; }

    const std::optional<ProposedMove>& Proposed() const { return proposed_; }

    const std::optional<ChartShown>& LastChart() const { return last_; }
    std::string RunningText() const { return text_.Text(); }
    const ScoreSheet& Sheet() const { return sheet_; }

    // The game as it stands, to be put away; how long it took is for the caller to say. Watching ends with it.
    SavedGame Saved() const;

    // Reminders to managers since the last call, oldest first.
    std::vector<Reminder> TakeReminders();

    // The generator of a side's computer manager in a game of this seed.
    static Random ManagerRandom(std::uint64_t seed, Side side);

  private:
    void OnEvent(const GameData& data, const GameState& state, const GameEvent& event) override;
    void MakeManagers(std::uint64_t seed);
    void Remember(const SessionMemory& memory);
    bool Take(const Input& input);
    bool RollWith(int chartRoll);
    void Remember(int chartRoll);
    void Settle();
    void EndWatching();
    void Remember(const GameData& data, const GameState& state, const GameEvent& event);
    bool Confirms(const Input& input) const;
    bool AnswerForComputer();
    bool AnswerDecision(Side side);
    bool BeforePitch();

    GamePtr setup_;
    GameOptions options_;
    GameState state_;
    Random random_;
    Random decoration_;  // dice faces; the game never sees it
    PerSide<std::unique_ptr<ComputerManager>> manager_;
    std::vector<Onlooker*> onlookers_;
    std::optional<ChartShown> last_;
    PlayByPlay text_;
    ScoreSheet sheet_;
    std::vector<Reminder> reminders_;
    std::optional<ProposedMove> proposed_;
    PerSide<bool> declined_{{false, false}};  // the user has dropped a move of that side before this pitch
    int orders_ = 0;                          // of computer managers before this pitch
    // What a watched stretch gives back at its end, and the last inning of it (0: the game).
    struct Watched {
        PerSide<SideControl> state, options;
        int throughInning = 0;
    };
    std::optional<Watched> watched_;
    bool resumed_ = false;
    std::string toldBefore_;  // in the game's earlier sittings
    bool quiet_ = false;      // quick play: nothing is told
    bool arrived_ = false;    // the computer managers have not yet been asked before this pitch
};

}  // namespace tarvane
