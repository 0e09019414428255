#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "engine/events.h"
#include "engine/gamedata.h"
#include "engine/gamestate.h"

namespace tarvane {

// --- What can be put into a game -------------------------------------------------------------------------------------

// A roll on the sheet that the state asks for, with the hidden values drawn for it.
struct RollInput {
    std::uint8_t chartRoll = 0;  // 10 to 39
    PlayValues values;
};

// The answer to the decision awaited: Yes takes the base, gives up the run, or bunts again.
struct DecisionInput {
    Side side = Side::Visitor;
    bool yes = false;
};

// An intentional walk, ordered by the side in the field before a pitcher's roll. No chart is read; the values are drawn
// all the same.
struct IntentionalWalkInput {
    PlayValues values;
};

// Starts a bunt ('S' or 'Z' by the runners, or as asked on first and third) or a steal ('2', '3', 'H').
struct BuntInput {
    BuntType type = BuntType::Sacrifice;
};
struct StealInput {
    char target = '2';
};

// A whole new line-up for one side: nine slots and the pitcher. Men not named any more are out of the game.
struct LineupInput {
    Side side = Side::Visitor;
    std::array<PlayerRef, 9> player{};
    std::array<Position, 9> position{};
    PlayerRef pitcher{'P', -1};
};

using Input = std::variant<RollInput, DecisionInput, IntentionalWalkInput, BuntInput, StealInput, LineupInput>;

// Why an input isn't legal now. None means that it is.
enum class Reject : std::uint8_t {
    None, GameOver, NotAwaited, BadRoll, WrongSide, WrongSheet, NoRunner, TooManyOuts, BaseOccupied, UnknownPlayer,
    PlayerMissing, PositionMissing, DuplicatePlayer, PositionsIncomplete, PitcherMissing, NotAStarter, Resting, Injured,
    Inactive, AlreadyOut, TooManyPitchers, CannotPitch, LeadTooGreat
};
std::string_view RejectText(Reject reject);

// --- The game --------------------------------------------------------------------------------------------------------

// A game at its first pitch: line-ups must have passed CheckStartingLineup. Fills the box lines, the slot defence and
// the pitchers' blocks. Controls say what a computer manages.
Reject StartGame(const GameData& data, const LineupInput& visitor, const LineupInput& home, GameState& state);

// The one question before every input: is it legal now? Screens enable their buttons by it.
Reject Check(const GameData& data, const GameState& state, const Input& input);

// The one door: asks Check, takes the input and runs to the next point where something from outside is due, which then
// stands in state.awaited and state.sheet. A rejected input changes nothing and tells nothing.
Reject Advance(const GameData& data, GameState& state, const Input& input, GameListener* listener = nullptr);

// Re-checks what must hold between steps: one man on one base, outs, runs by inning, order whole, nine fielders, lines
// within limits. Empty when all holds; else the first thing that doesn't, for a test's message.
std::string StateOk(const GameData& data, const GameState& state);

// --- Who answers -----------------------------------------------------------------------------------------------------

// The in-game decisions of one side. A manager reads the state and answers; his own chance comes from a generator of
// his own. The default holds: no bunt, no steal, no extra base, no run given up, no change that isn't forced.
class Manager {
  public:
    virtual ~Manager() = default;

    // The answer to state.awaited, which is this side's decision.
    virtual bool Decide(const GameData& data, const GameState& state, Side side);

    // Called once at each arrival at a pitcher's sheet: an input to put in before the roll (a line-up, a bunt, a steal,
    // an intentional walk), or false for none. Called again after each input taken.
    virtual bool BeforePitch(const GameData& data, const GameState& state, Side side, Input& input);

    // A line-up that ends the wait for a forced change (an injury, a reliever at his limit, an open position). The
    // default takes the first man who can stand there. False if nobody is left at all.
    virtual bool ForcedLineup(const GameData& data, const GameState& state, Side side, LineupInput& lineup);
};

// Plays to the end: a loop over Advance with rolls from random and answers from the two managers.
void PlayOut(const GameData& data, GameState& state, Random& random, Manager& visitor, Manager& home,
             GameListener* listener = nullptr);

// --- What a screen shows ---------------------------------------------------------------------------------------------

// The active chart as a table: heads, thirty rows of up to three columns, and the two extra rows where a sheet has them.
struct SheetView {
    std::string title;                  // head of column 1
    std::array<std::string, 3> head{};  // heads of columns 1 to 3
    int columns = 1;                    // 1 to 3: own column, then park, year
    std::array<std::array<ChartCell, kChartRows>, 3> cell{};
    std::string extraLabel31, extraText31, extraLabel32, extraText32;
};
SheetView MakeSheetView(const GameData& data, const GameState& state);

// --- Line-ups --------------------------------------------------------------------------------------------------------

// The checks of a line-up before a game, in their order; name takes the man concerned.
Reject CheckStartingLineup(const GameData& data, const LineupInput& lineup, std::string* name = nullptr);

// Slot defence, error ratings, catcher marks, DR total and automatic outs of one side, from its slots and its pitcher.
void RebuildLineupDetails(const GameData& data, GameState& state, Side side);

// Which of the rolls 10 to 15 a defensive total turns into outs, as bits 0 to 5.
std::uint8_t AutoOutsFromTotal(int drTotal);

}  // namespace tarvane
