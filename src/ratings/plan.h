#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/random.h"
#include "records/cell.h"

namespace tarvane {

// How a result finds its cells. A plan is a list of stages; a stage picks one of several routes by a draw, and a route
// is a list of walks along the chart. Plans are written as short texts, so that the whole layout can be read as a
// table:
//
//   n8: r50: 31>38, 26>22 | 22>27, 37>30 ; n4: 28>21 / 10>39~
//
//   /      next stage, which runs as long as weight is left
//   ;      "or else": of such choices only the first whose test holds is taken
//   n8:    the test: at least 8 of the weight is left
//   |      another route of the choice
//   r50:   this route if the draw of 1 to 100 is at most 50; a route without it takes all other draws
//   31>38  a walk over the cells 31 to 38; 38>31 goes the other way
//   ~      the walk takes a cell already when one unit of its weight is missing
struct Walk {
    int from = 0, to = 0;  // chart rolls, 10 to 39
    bool tolerant = false;
};

struct Route {
    int drawUpTo = 100;
    std::vector<Walk> walks;
};

struct Choice {
    int atLeast = -32768;  // weight that must be left
    std::vector<Route> routes;
};

struct Stage {
    std::vector<Choice> choices;
};

struct Plan {
    std::vector<Stage> stages;
};

// Throws std::logic_error with the text if it isn't a plan: plans are part of the program, not of its data.
Plan ParsePlan(std::string_view text);

// One draw serves all stages, or each stage that has a choice of routes draws its own.
enum class Draws { PerStage, Once };

// A chart being filled. A cell is free until it has a colour.
inline constexpr std::int32_t kFreeCell = 0;
ChartCells FreeCells();
inline bool IsFree(const ChartCell& cell) {
    return cell.color == kFreeCell;
}

// Gives the text of a cell that is taken; most results always give the same.
class CellTexts {
  public:
    virtual ~CellTexts() = default;
    virtual std::string Next() = 0;
};

// Places weight n of a result by the plan and returns what is left of it, which can be -1 after a tolerant walk.
// Nothing is placed and nothing drawn for n of 0 or less.
int PlaceByPlan(const Plan& plan, Draws draws, int n, CellTexts& texts, std::int32_t color, ChartCells& cells,
                Random& random);
int PlaceByPlan(const Plan& plan, Draws draws, int n, std::string_view text, std::int32_t color, ChartCells& cells,
                Random& random);

}  // namespace tarvane
