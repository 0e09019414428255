#include "ratings/plan.h"

#include <charconv>
#include <stdexcept>

namespace tarvane {

namespace {

[[noreturn]] void NoPlan(std::string_view text) {
    throw std::logic_error("Not a layout plan: \"" + std::string(text) + "\"");
}

std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

// The parts of a text between separators, trimmed.
std::vector<std::string_view> Parts(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    while (true) {
        const std::size_t at = text.find(separator);
        parts.push_back(Trimmed(text.substr(0, at)));
        if (at == std::string_view::npos) return parts;
        text.remove_prefix(at + 1);
    }
}

int ParseNumber(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) NoPlan(text);
    return number;
}

// Takes a test such as "n8:" or "r50:" off the front of a text, if it begins with that letter.
bool TakeTest(std::string_view& text, char letter, int& number) {
    if (text.empty() || text.front() != letter) return false;
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) NoPlan(text);
    number = ParseNumber(text.substr(1, colon - 1));
    text = Trimmed(text.substr(colon + 1));
    return true;
}

Walk ParseWalk(std::string_view text) {
    Walk walk;
    if (!text.empty() && text.back() == '~') {
        walk.tolerant = true;
        text.remove_suffix(1);
    }
    const std::size_t arrow = text.find('>');
    if (arrow == std::string_view::npos) NoPlan(text);
    walk.from = ParseNumber(text.substr(0, arrow));
    walk.to = ParseNumber(text.substr(arrow + 1));
    for (const int cell : {walk.from, walk.to}) {
        if (cell < kFirstRoll || cell > kLastRoll) NoPlan(text);
    }
    return walk;
}

Choice ParseChoice(std::string_view text) {
    Choice choice;
    TakeTest(text, 'n', choice.atLeast);
    for (std::string_view part : Parts(text, '|')) {
        Route route;
        TakeTest(part, 'r', route.drawUpTo);
        for (const std::string_view walk : Parts(part, ',')) route.walks.push_back(ParseWalk(walk));
        choice.routes.push_back(std::move(route));
    }
    if (choice.routes.back().drawUpTo != 100) NoPlan(text);
    return choice;
}

// One run of a plan over a chart.
struct Placing {
    Draws draws;
    int n;
    CellTexts& texts;
    std::int32_t color;
    ChartCells& cells;
    Random& random;
    int draw = 0;

    void TakeWalk(const Walk& walk) {
        const int step = walk.from <= walk.to ? 1 : -1;
        for (int roll = walk.from; n > 0; roll += step) {
            ChartCell& cell = cells[static_cast<std::size_t>(roll - kFirstRoll)];
            const int weight = CellWeight(roll);
            if (IsFree(cell) && n >= weight - (walk.tolerant ? 1 : 0)) {
                cell = {texts.Next(), color};
                n -= weight;
            }
            if (roll == walk.to) return;
        }
    }

    void TakeStage(const Stage& stage) {
        for (const Choice& choice : stage.choices) {
            if (n < choice.atLeast) continue;
            if (choice.routes.size() > 1 && (draws == Draws::PerStage || draw == 0)) draw = random.RandomPercent();
            for (const Route& route : choice.routes) {
                if (choice.routes.size() > 1 && draw > route.drawUpTo) continue;
                for (const Walk& walk : route.walks) TakeWalk(walk);
                return;
            }
        }
    }
};

class SameText : public CellTexts {
  public:
    explicit SameText(std::string_view text) : text_(text) {}
    std::string Next() override { return text_; }

  private:
    std::string text_;
};

}  // namespace

Plan ParsePlan(std::string_view text) {
    Plan plan;
    for (const std::string_view stageText : Parts(text, '/')) {
        Stage stage;
        for (const std::string_view choice : Parts(stageText, ';')) stage.choices.push_back(ParseChoice(choice));
        plan.stages.push_back(std::move(stage));
    }
    return plan;
}

ChartCells FreeCells() {
    ChartCells cells;
    cells.fill({" ", kFreeCell});
    return cells;
}

int PlaceByPlan(const Plan& plan, Draws draws, int n, CellTexts& texts, std::int32_t color, ChartCells& cells,
                Random& random) {
    Placing placing{draws, n, texts, color, cells, random};
    for (const Stage& stage : plan.stages) {
        if (placing.n <= 0) break;
        placing.TakeStage(stage);
    }
    return placing.n;
}

int PlaceByPlan(const Plan& plan, Draws draws, int n, std::string_view text, std::int32_t color, ChartCells& cells,
                Random& random) {
    SameText same(text);
    return PlaceByPlan(plan, draws, n, same, color, cells, random);
}

}  // namespace tarvane
