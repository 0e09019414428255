#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ratings/derivation.h"

namespace tarvane {

// A chart to be printed, with the head of its column.
struct TitledChart {
    std::string title;
    const ChartCells* cells;
};

// Thirty rows of text, one a roll: the roll, its weight of 216, and for each chart the cell's text and the letter of
// its colour: G green (hit), R red (out), B blue (strikeout), Y yellow (free base or Yellow X), W white (error).
std::string ChartText(const std::vector<TitledChart>& charts);

char ColorLetter(std::int32_t color);

// The way from a batter's statistics to the weights on his charts, as aligned text: each share, what it is made of, the
// weight asked, and the weight that the chart holds. Takes the charts as they stand in the derivation.
std::string ExplainBatter(const BatterDerivation& d, std::string_view name);
std::string ExplainPitcher(const PitcherDerivation& d, std::string_view name);

// Running, bunting and fielding ratings in the same style.
std::string ExplainRunning(const RunningDerivation& d);
std::string ExplainFielding(const std::vector<FieldingDerivation>& entries);

// Puts the charts and ratings that are stored with a player in the place of those just derived, so that an explanation
// tells of what he plays with. The weights asked for stay; only an error's weight is drawn anew and may differ.
void UseStoredCharts(BatterDerivation& d, const Batter& stored);
void UseStoredCharts(PitcherDerivation& d, const Pitcher& stored);

}  // namespace tarvane
