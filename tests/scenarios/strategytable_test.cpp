#include <fmt/format.h>
#include <gtest/gtest.h>

#include <map>

#include "base/error.h"
#include "base/file.h"
#include "base/text.h"
#include "manager/computermanager.h"
#include "manager/strategy.h"
#include "scenariotable.h"

namespace tarvane::scenario {
namespace {

// One line of strategy.tbl, taken apart.
struct StrategyLine {
    std::string kind, text;
    StrategySituation situation;
    Result result = Result::None;
    ExtraBaseCase which = ExtraBaseCase::None;
    std::vector<std::string> least;
};

const std::map<std::string, ExtraBaseCase> kCases{
    {"B", ExtraBaseCase::Both}, {"2", ExtraBaseCase::Second}, {"1", ExtraBaseCase::First}};

void TakeWord(StrategyLine& line, const std::string& word, int& rating, std::string& on) {
    StrategySituation& s = line.situation;
    const std::size_t equals = std::min(word.find('='), word.size());
    const std::string key = word.substr(0, equals), value = equals < word.size() ? word.substr(equals + 1) : "";
    const int number = static_cast<int>(ParseInt(value).value_or(-99));
    if (key == "side")
        s.side = value == "home" ? Side::Home : Side::Visitor;
    else if (key == "inning")
        s.Inning = number;
    else if (key == "outs")
        s.Outs = number;
    else if (key == "lead")
        s.lead = number;
    else if (key == "on")
        on = value;
    else if (key == "slot")
        s.batterSlot = number;
    else if (key == "pitcher")
        s.pitcherBats = true;
    else if (key == "bunt")
        s.BuntRating = value[0];
    else if (key == "tried")
        s.BuntTriedThisAtBat = true;
    else if (key == "rr")
        rating = number;
    else if (key == "result")
        line.result = value == "ED" ? Result::E : ResultFromText(value);
    else if (key == "case")
        line.which = kCases.at(value);
    else
        throw UserError(line.text + ": \"" + word + "\" is no part of a situation");
}

StrategyLine ParseStrategy(const std::string& text) {
    StrategyLine line;
    line.text = text;
    StrategySituation& s = line.situation;
    s.batterSlot = 8;
    s.BuntRating = 'A';
    int rating = 3;
    std::string on = "1";
    bool after = false;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find(' ', at), text.size());
        const std::string word = text.substr(at, end - at);
        at = end + 1;
        if (word == ":")
            after = true;
        else if (after)
            line.least.push_back(word);
        else if (line.kind.empty())
            line.kind = word;
        else
            TakeWord(line, word, rating, on);
    }
    for (std::size_t base = 1; base <= 3; ++base) s.runRating[base] = s.stealRating[base] = rating;
    s.on1 = on.find('1') != std::string::npos;
    s.on2 = on.find('2') != std::string::npos;
    s.on3 = on.find('3') != std::string::npos;
    return line;
}

// Whether a manager goes, and that he goes for what the bases allow.
bool Goes(const StrategyLine& line, int tendency, int r) {
    const StrategySituation& s = line.situation;
    const bool thirdButNotFirst = s.on3 && !s.Bases(true, false, true);
    if (line.kind == "bunt") {
        const BuntType bunt = BuntDecision(s, tendency, r);
        EXPECT_TRUE(bunt == BuntType::None || (bunt == BuntType::Squeeze) == thirdButNotFirst) << line.text;
        return bunt != BuntType::None;
    }
    if (line.kind == "steal") {
        const char target = StealDecision(s, tendency, thirdButNotFirst ? r : 100, thirdButNotFirst ? 100 : r);
        const char due = thirdButNotFirst ? 'H' : s.on2 ? '3' : '2';
        EXPECT_TRUE(target == ' ' || target == due) << line.text;
        return target != ' ';
    }
    if (line.kind == "further") return FurtherBuntDecision(s, tendency, r);
    if (line.kind == "extra") return ExtraBaseDecision(s, line.result, line.which, tendency, r);
    if (line.kind == "field") return GiveUpRun(s, r);
    throw UserError(line.text + ": no such decision");
}

// The least draw that goes; every greater one must go as well.
std::string LeastDraw(const StrategyLine& line, int tendency) {
    int least = 101;
    for (int r = 100; r >= 1; --r) {
        if (!Goes(line, tendency, r)) continue;
        EXPECT_EQ(least, r + 1) << line.text << ": a gap";
        least = r;
    }
    return least == 101 ? "-" : std::to_string(least);
}

TEST(StrategyTable, EveryLineHoldsForEveryDraw) {
    const std::string text = ReadFile(std::string(TARVANE_TEST_DIR) + "/strategy.tbl");
    std::map<std::string, int> lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        const std::string one = text.substr(at, end - at);
        at = end + 1;
        if (one.empty() || one[0] == '#') continue;
        const StrategyLine line = ParseStrategy(one);
        ASSERT_EQ(line.least.size(), line.kind == "field" ? 1U : 3U) << one;
        for (std::size_t i = 0; i < line.least.size(); ++i)
            EXPECT_EQ(LeastDraw(line, static_cast<int>(i) + 1), line.least[i]) << one << ", tendency " << i + 1;
        ++lines[line.kind];
    }
    EXPECT_EQ(lines.size(), 5U);
}

// --- The manager at the table: each question goes to its own tendency, each draw to its own question ---

struct AtTable {
    explicit AtTable(const std::string& plays)
        : scenarios(ParseScenarios("scenario a\ncomputer visitor game; computer home game\n" + plays, "table")),
          table(scenarios[0]) {
        table.Run();
    }
    // Of a hundred managers of chances of their own, how many would do it.
    template <class Does>
    double Percent(std::uint8_t ManagerTendencies::*tendency, std::uint8_t value, Does does,
                   Side side = Side::Visitor) {
        constexpr int kManagers = 4000;
        ManagerTendencies others{3, 3, 3, 3, 3, 3, 3};
        if (tendency == nullptr) tendency = &ManagerTendencies::Bunting;
        others.*tendency = value;
        table.data.team[side].roster.tendencies = others;
        int yes = 0;
        for (int seed = 1; seed <= kManagers; ++seed) {
            ComputerManager manager(side, Random(static_cast<std::uint64_t>(seed)));
            yes += does(manager) ? 1 : 0;
        }
        return 100.0 * yes / kManagers;
    }
    bool Decides(ComputerManager& manager, Side side) { return manager.Decide(table.data, table.state, side); }
    template <class Order>
    bool Orders(ComputerManager& manager) {
        Input input;
        return manager.BeforePitch(table.data, table.state, Side::Visitor, input) &&
               std::holds_alternative<Order>(input);
    }

    std::vector<Scenario> scenarios;
    ScenarioTable table;
};

constexpr double kNear = 3.2;  // four times the deviation of 4000 draws

TEST(ManagerAtTheTable, AsOftenAsHisTendencySays) {
    AtTable extra("bases 4 - -; bat \"(2)\" green\nexpect awaits extra visitor");
    const auto goes = [&](ComputerManager& manager) { return extra.Decides(manager, Side::Visitor); };
    EXPECT_NEAR(extra.Percent(&ManagerTendencies::BaseRunning, 1, goes), 50, kNear);
    EXPECT_NEAR(extra.Percent(&ManagerTendencies::BaseRunning, 2, goes), 35, kNear);
    EXPECT_NEAR(extra.Percent(&ManagerTendencies::BaseRunning, 3, goes), 20, kNear);

    AtTable again(
        "man visitor 4 run 0; bases 4 - -; bunt sacrifice; roll bunt \"2K\" white\nexpect awaits again visitor");
    again.table.state.play.BuntTriedThisAtBat = false;  // ordered by a man, fouled off, and now left to the computer
    const auto bunts = [&](ComputerManager& manager) { return again.Decides(manager, Side::Visitor); };
    EXPECT_NEAR(again.Percent(&ManagerTendencies::Bunting, 1, bunts), 15, kNear);
    EXPECT_EQ(again.Percent(&ManagerTendencies::Bunting, 3, bunts), 0);

    AtTable field("bases 4 - 6; bat \"G\" red\nexpect awaits defence home");
    const auto yields = [&](ComputerManager& manager) { return field.Decides(manager, Side::Home); };
    EXPECT_NEAR(field.Percent(nullptr, 3, yields, Side::Home), 10, kNear);
}

TEST(ManagerAtTheTable, StealsFirstThenBunts) {
    AtTable table("man visitor 4 run 5; bases 4 - -\nexpect sheet P");
    const auto steals = [&](ComputerManager& manager) { return table.Orders<StealInput>(manager); };
    const auto bunts = [&](ComputerManager& manager) { return table.Orders<BuntInput>(manager); };
    EXPECT_NEAR(table.Percent(&ManagerTendencies::BaseStealing, 1, steals), 38, kNear);
    EXPECT_NEAR(table.Percent(&ManagerTendencies::BaseStealing, 3, steals), 27, kNear);
    // A careful man steals in 27 of 100; of the other 73 a bold bunter bunts in 30.
    EXPECT_NEAR(table.Percent(&ManagerTendencies::Bunting, 1, bunts), 0.73 * 30, kNear);
    EXPECT_NEAR(table.Percent(&ManagerTendencies::Bunting, 3, bunts), 0.73 * 12, kNear);

    AtTable foul(
        "man visitor 4 run 0; bases 4 - -; bunt sacrifice; roll bunt \"2K\" white; answer visitor no\nexpect sheet P");
    const auto orders = [&](ComputerManager& manager) { return foul.Orders<BuntInput>(manager); };
    EXPECT_EQ(foul.Percent(&ManagerTendencies::Bunting, 1, orders), 0) << "two strikes: asked there and then or never";

    AtTable home("bases - 5 6; steal H; roll steal \"\" green\nexpect sheet P");
    const auto more = [&](ComputerManager& manager) { return home.Orders<StealInput>(manager); };
    EXPECT_EQ(home.Percent(&ManagerTendencies::BaseStealing, 1, more), 0) << "one steal of home is enough for a pitch";
}

}  // namespace
}  // namespace tarvane::scenario
