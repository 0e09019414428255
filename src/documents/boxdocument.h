#pragma once

#include <string>
#include <vector>

#include "engine/game.h"

namespace tarvane {

// A table of a document: the first column is of names, the others of figures. The cells of a row are as many as heads.
struct DocumentTable {
    std::vector<std::string> heads;
    std::vector<std::vector<std::string>> rows;
    bool totals = false;  // the last row sums the others
};

// "HR:" and who hit them.
struct DocumentNote {
    std::string label, text;
};

// All that a box score says of one side.
struct BoxSide {
    std::string team;       // full name
    std::string logo;       // file of its picture, as written into the document; empty for none
    DocumentTable batting;  // name, POS, AB ... AVG; the fielding columns stand from fieldingFrom to fieldingTo
    std::vector<DocumentNote> notes;
    DocumentTable pitching;
};

inline constexpr std::size_t kFieldingFrom = 16, kFieldingTo = 20;  // PO, A, E, DP of the batting table

// The box score of a finished game as plain rows: one list of facts for text, HTML and screens.
struct BoxDocument {
    std::string title;  // "Cincinnati Reds at Boston Red Sox"
    std::string place;  // date and park
    DocumentTable lineScore;
    PerSide<BoxSide> side;
    std::string elapsed;  // "Time to play game: 0:12:07"; empty if nobody kept the time
};

// The rosters of data hold the season before the game: averages and records are those after it. seconds below 0: the
// time isn't known.
BoxDocument MakeBoxDocument(const GameData& data, const GameState& state, long seconds = -1);

// "h:mm:ss", or "Less than 1 second".
std::string ElapsedText(long seconds);

struct DocumentStyle {
    bool condensed = false;  // without the fielding columns
};

// UTF-8; lines end in line feeds.
std::string BoxScoreText(const BoxDocument& box, const DocumentStyle& style);
// A whole page, valid by itself: style and print style in it, no script, nothing fetched but the teams' pictures.
std::string BoxScoreHtml(const BoxDocument& box, const DocumentStyle& style);

}  // namespace tarvane
