#pragma once

#include <string>
#include <vector>

#include "engine/game.h"
#include "ui/seasonaccess.h"

namespace tarvane {

// How the figures of men are looked at on the line-up screens.
struct FigureView {
    bool vsLeft = false;       // a batter against left-handed pitching
    bool pitcherBats = false;  // a pitcher's batting instead of his pitching
    bool actual = false;       // the real season instead of the replayed one
    bool split = false;        // batting against that hand only, instead of all of it
};

// The chart of a man: his pitching, or his batting against the hand.
SheetView ManChart(const TeamRoster& roster, PlayerRef man, const FigureView& view);

// What a chart holds of each kind of result, in percent.
std::vector<std::string> ChanceHeads(bool pitching);
std::vector<std::string> ChanceTexts(const TeamRoster& roster, PlayerRef man, const FigureView& view);

// What he has done; blanks where nothing is known.
std::vector<std::string> StatHeads(bool pitching);
std::vector<std::string> StatTexts(const PreparedGame& game, Side side, PlayerRef man, const FigureView& view);

// The man as a line of the roster: name with his hand, positions or role, run and bunt rating.
std::vector<std::string> RosterTexts(const TeamRoster& roster, PlayerRef man);

// " (L)", " (R)" or " (S)".
std::string HandText(std::int32_t hand);

}  // namespace tarvane
