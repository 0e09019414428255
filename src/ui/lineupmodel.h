#pragma once

#include <optional>
#include <string>
#include <vector>

#include "engine/game.h"
#include "ui/seasonaccess.h"

namespace tarvane {

inline constexpr const char* kLineupsTitle = "Choose Pitchers and Lineups";
// The row below the nine slots: a pitcher for whom a DH bats.
inline constexpr int kPitcherRow = 9;

// What stands in the way of a man's use, first things first.
enum class RosterMark { Free, InLineup, Gone, Injured, Inactive, Resting };

// A box about line-ups; an empty text is none.
struct LineupNotice {
    std::string text, title = kLineupsTitle;
    bool Any() const { return !text.empty(); }
};

// One line of the order as a list shows it. The man may be nobody.
struct LineupRow {
    std::string slot, name, position;
    PlayerRef man;
    std::int32_t hand = 0;  // bats, or throws in the pitcher's row; 0 for nobody
    bool trouble = false;   // the place is open or held twice, or its man can't play
    bool atBat = false;     // in a game: his turn
};

// Which men of a roster a list shows.
struct RosterFilter {
    std::string text;
    bool pitchers = false;
    char role = ' ';                     // pitchers: 'S', 'R' or all
    Position position = Position::None;  // batters: rated here, or all
};

// The line-ups of both teams while somebody works on them, before a game or in it. Every move is data: screens put
// drags and keys into it. A move that the rules refuse outright gives the reason and changes nothing; whatever else is
// wrong with a line-up is found by Fault when the user wants to play.
class LineupModel {
  public:
    // Before a game. A side whose line-ups a computer makes has its nine; the other has its rotation's next starter and
    // waits for a list to be chosen.
    explicit LineupModel(const PreparedGame& game);
    // In a game, before a pitch or when a change is awaited. Both must outlive the model and stay as they are.
    LineupModel(const PreparedGame& game, const GameState& state);

    const GameData& Data() const { return game_.data; }
    const PreparedGame& Game() const { return game_; }
    bool DuringGame() const { return state_ != nullptr; }
    // The side whose change the game waits for.
    std::optional<Side> ForcedSide() const;
    // Why the user can't change a side's line-up; empty if he can.
    std::string Locked(Side side) const;

    // --- What stands ---

    const LineupInput& Lineup(Side side) const { return lineup_[side]; }
    std::vector<LineupRow> Rows(Side side) const;  // nine, and the pitcher's with a DH
    int SlotAtBat(Side side) const;                // 0 to 8; -1 before a game
    bool OnBase(Side side, int slot) const;
    bool Changed(Side side) const;
    // The positions that a slot can be given.
    std::vector<Position> Positions() const;
    // "Automatic Outs: 11 13 (36)", or the defensive era's pitcher and total, for the line-up as it stands here.
    std::string DefenceText(Side side) const;

    // --- Men ---

    static std::vector<RosterFilter> Filters();
    std::vector<PlayerRef> Roster(Side side, const RosterFilter& filter) const;  // the useful ones first
    std::vector<PlayerRef> Gone(Side side) const;                                // played and replaced
    RosterMark MarkOf(Side side, PlayerRef man) const;
    std::string MarkText(Side side, PlayerRef man) const;  // "in lineup", "resting 2 days", ...; empty for a free man

    // --- Stored line-ups, before a game ---

    // The computer's own nine, then the team's lists.
    std::vector<std::string> ListNames(Side side) const;
    int ChosenList(Side side) const { return chosen_[side]; }  // -1: none yet
    void TakeList(Side side, int list);
    // The list marked for a pitcher's hand and the kind of game; -1 if there is none.
    int ListAgainst(Side side, bool left) const;

    // --- Moves; each gives why it isn't made, or an empty text ---

    std::string Place(Side side, int row, PlayerRef man);
    // The men of two slots change places in the order; in a game, where the order stands, their positions.
    std::string Swap(Side side, int from, int to);
    // Another who stands there takes the place that becomes free.
    std::string SetPosition(Side side, int slot, Position position);
    // Empties a slot before a game.
    std::string Remove(Side side, int row);
    std::string PinchHit(Side side, PlayerRef man);
    std::string PinchRun(Side side, int slot, PlayerRef man);
    // A pinch hitter in a slot whose turn it isn't: to be confirmed first.
    bool AsksForPinch(Side side, int slot, Position position) const;
    // The computer manager's choice: a whole nine before a game, the answer to a forced change in it. False if nobody
    // can be found.
    bool LetComputerChoose(Side side);
    // Back to what it was.
    void Undo(Side side);

    // --- The end ---

    // What keeps the game from being played with these line-ups, visitors first.
    LineupNotice Fault() const;
    // In a game: the line-ups that differ, and the one that is awaited.
    std::vector<LineupInput> Changes() const;
    // Why the screen opens by itself: who is hurt, at his limit, or without a place.
    LineupNotice ForcedNotice() const;

  private:
    const TeamRoster& RosterOf(Side side) const { return game_.data[side].roster; }
    std::string NameOf(Side side, PlayerRef man) const;
    bool PitchersRow(Side side, int row) const;
    void SettlePitcher(Side side);
    bool InDraft(Side side, PlayerRef man) const;
    LineupNotice FaultBefore(Side side) const;
    LineupNotice FaultDuring(Side side) const;
    LineupNotice Told(Side side, Reject reject, PlayerRef man) const;
    PlayerRef Blamed(Side side, Reject reject) const;

    const PreparedGame& game_;
    const GameState* state_ = nullptr;
    PerSide<LineupInput> lineup_, before_;
    PerSide<int> chosen_{{-1, -1}}, chosenBefore_{{-1, -1}};
    PerSide<std::vector<std::size_t>> lists_;  // stored line-ups that hold men, as places in the roster's lists
};

// The line-up as the state has it; an injured man's slot keeps the position that has to be filled.
LineupInput StandingLineup(const GameState& state, Side side);

}  // namespace tarvane
