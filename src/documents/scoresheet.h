#pragma once

#include <string>
#include <vector>

#include "documents/boxdocument.h"
#include "engine/game.h"

namespace tarvane {

// A man's line of the score sheet: what he did, by inning.
struct ScoreSheetRow {
    PlayerRef player;
    std::uint8_t slot = 0;  // 1 to 9
    std::string name;
    std::string position;              // a catcher's with " I" or " O" behind it, as he is rated
    std::vector<std::string> innings;  // from the first; several marks of an inning parted by a blank
    friend bool operator==(const ScoreSheetRow&, const ScoreSheetRow&) = default;
};

// The score sheet of a game, kept while it is played: the men of both orders, each with the results of his turns at
// bat. A mark is the result with the fielder's number behind it (G6, F8, 1B7, HR, K); a run that he scored later or at
// once is a dot behind the mark of that inning.
class ScoreSheet : public GameListener {
  public:
    // Ready for a game; the men who begin it are taken over with its first event.
    void Clear();
    void OnEvent(const GameData& data, const GameState& state, const GameEvent& event) override;

    // In the order of the slots, and in each of the men's coming in.
    std::vector<ScoreSheetRow> Rows(Side side) const;

    // The rows as lines of text and back: tabs part the fields. Read throws UserError on a line that is none.
    std::string Write() const;
    void Read(const GameData& data, const std::string& lines);

  private:
    void Begin(const GameData& data, const GameState& state);
    void Enter(const GameData& data, const GameState& state, Side side);
    ScoreSheetRow* Now(Side side, int slot);

    PerSide<std::vector<ScoreSheetRow>> rows_;
};

// The sheet as a document, with the line score and the pitchers of the box.
std::string ScoreSheetText(const ScoreSheet& sheet, const BoxDocument& box);
std::string ScoreSheetHtml(const ScoreSheet& sheet, const BoxDocument& box);

// The rows of one side as a table: name, POS, one column an inning.
DocumentTable ScoreSheetTable(const ScoreSheet& sheet, const BoxDocument& box, Side side);

}  // namespace tarvane
