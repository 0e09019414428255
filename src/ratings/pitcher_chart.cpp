#include "ratings/pitcher_chart.h"

#include "ratings/plan.h"

namespace tarvane {

namespace {

struct PitchingPlanRow {
    std::string_view text;  // empty: an out, grounder or fly by a draw of its own
    std::int32_t color;
    int PitchingCounts::*count;
    Draws draws;
    std::string_view plan;
};

constexpr PitchingPlanRow kPitchingRows[] = {
    {" ", kBlueWord, &PitchingCounts::nPitchSO, Draws::PerStage,
     "n30: r33: 34>36~, 25>23~ | r66: 34>32~, 23>25~ | 35>33~, 24>26~"
     " ; n12: r33: 32>35~, 26>22~ | r66: 23>25~, 31>37~ | 37>31~, 22>26~"
     " / r33: 30>37~ | r66: 28>20~ | 20>28~ / r40: 37>17~ | 17>37~"},
    {"", kRedWord, &PitchingCounts::nPitchOut, Draws::PerStage,
     "n24: r50: 36>32~, 23>25~ | 25>23~, 32>36~ / r50: 31>37~ | r66: 37>31~ | 21>27~ / r60: 37>17~ | 17>37~"},
    {" ", kStoredYellowWord, &PitchingCounts::nPitchBB, Draws::PerStage,
     "n24: r33: 33>36~, 25>24~ | r67: 23>25~, 35>32~ | 32>35~, 23>25~"
     " ; n12: r33: 22>26~, 36>32~ | r67: 32>37~, 36>32~ | 37>32~, 22>26~"
     " / r50: 21>37~ | 37>21~ / r50: 37>20 | 20>37"},
    {"1+", kGreenWord, &PitchingCounts::nPitchHit, Draws::Once,
     "n12: r30: 23>25, 36>32 | r60: 36>32, 24>22 | 32>36, 23>25"
     " ; n8: r25: 22>23, 28>26 | r50: 37>31, 31>37, 27>26 | r75: 26>25, 20>22 | 28>31, 28>26"
     " ; r30: 20>29~ | r60: 29>20~ | 17>21~ / r50: 37>17~ | 17>37~"},
    {"HR", kGreenWord, &PitchingCounts::nPitchHRUp, Draws::Once,
     "n8: r50: 22>26, 31>37 | 37>31, 26>23 ; r50: 17>37, 37>20 | 29>20, 37>17 / r35: 37>17~ | 17>37~"},
    {"(HR)", kGreenWord, &PitchingCounts::nPitchHRDown, Draws::Once,
     "n8: r50: 23>26, 31>37 | 37>31, 26>23 ; r50: 17>37 | 37>20 / r50: 37>17~ | 17>37~"},
};

// An out of the pitcher's is a grounder or a fly, each as likely, drawn for each cell it takes.
class OutTexts : public CellTexts {
  public:
    explicit OutTexts(Random& random) : random_(random) {}
    std::string Next() override {
        last_ = random_.RandomRoll216() <= 108 ? 'G' : 'F';
        return std::string(1, last_);
    }
    std::string Last() { return last_ == ' ' ? Next() : std::string(1, last_); }

  private:
    Random& random_;
    char last_ = ' ';
};

constexpr std::size_t kLastCell = kLastRoll - kFirstRoll;
constexpr std::size_t kYellowXCell = 38 - kFirstRoll;
constexpr std::size_t kDefenceCells = 6;

// Each result in turn: its plan, then cell 39, which no walk reaches, for two units or more that are left.
PlacedResult PlacePitching(const PitchingPlanRow& row, const Plan& plan, int asked, ChartCells& cells, Random& random) {
    PlacedResult placed{row.text.empty() ? "G/F" : row.text, row.color, asked, asked};
    if (asked <= 0) return placed;
    OutTexts outs(random);
    placed.rest = row.text.empty() ? PlaceByPlan(plan, row.draws, asked, outs, row.color, cells, random)
                                   : PlaceByPlan(plan, row.draws, asked, row.text, row.color, cells, random);
    if (IsFree(cells[kLastCell]) && placed.rest >= 2) {
        cells[kLastCell] = {row.text.empty() ? outs.Last() : std::string(row.text), row.color};
        placed.rest -= kCellWeight[kLastCell];
    }
    return placed;
}

const std::vector<Plan>& PitchingPlans() {
    static const std::vector<Plan> plans = [] {
        std::vector<Plan> parsed;
        for (const PitchingPlanRow& row : kPitchingRows) parsed.push_back(ParsePlan(row.plan));
        return parsed;
    }();
    return plans;
}

}  // namespace

PitchingChart PlacePitchingChart(const PitchingCounts& counts, Random& random) {
    PitchingChart chart;
    chart.cells = FreeCells();
    const std::vector<Plan>& plans = PitchingPlans();
    for (std::size_t i = 0; i < plans.size(); ++i) {
        const PitchingPlanRow& row = kPitchingRows[i];
        chart.placed.push_back(PlacePitching(row, plans[i], counts.*row.count, chart.cells, random));
    }
    for (ChartCell& cell : chart.cells) {
        if (IsFree(cell)) cell = {" ", kGreenWord};
    }
    for (std::size_t i = 0; i < kDefenceCells; ++i) chart.cells[i] = {"D", kGreenWord};
    chart.cells[kYellowXCell] = {"X", kStoredYellowWord};
    return chart;
}

}  // namespace tarvane
