#include <fmt/format.h>
#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "scenariotable.h"

namespace tarvane::scenario {

namespace {

template <class Line>
using Counters = std::map<std::string, std::function<int(const Line&)>>;

const Counters<BatterLine>& BatterCounters() {
    static const Counters<BatterLine> counters{{"AB", [](const auto& l) { return l.total.AB; }},
                                               {"H", [](const auto& l) { return l.total.H; }},
                                               {"2B", [](const auto& l) { return l.total.Doubles; }},
                                               {"3B", [](const auto& l) { return l.total.Triples; }},
                                               {"RBI", [](const auto& l) { return l.total.RBI; }},
                                               {"BB", [](const auto& l) { return l.total.BB; }},
                                               {"SO", [](const auto& l) { return l.total.SO; }},
                                               {"HBP", [](const auto& l) { return l.total.HBP; }},
                                               {"SH", [](const auto& l) { return l.total.SH; }},
                                               {"SF", [](const auto& l) { return l.total.SF; }},
                                               {"GIDP", [](const auto& l) { return l.total.GIDP; }},
                                               {"R", [](const auto& l) { return l.R; }},
                                               {"SB", [](const auto& l) { return l.SB; }},
                                               {"CS", [](const auto& l) { return l.CS; }}};
    return counters;
}

const Counters<PitchingLine>& PitcherCounters() {
    static const Counters<PitchingLine> counters{
        {"H", [](const auto& l) { return l.H; }},       {"R", [](const auto& l) { return l.R; }},
        {"ER", [](const auto& l) { return l.ER; }},     {"BB", [](const auto& l) { return l.BB; }},
        {"SO", [](const auto& l) { return l.SO; }},     {"Outs", [](const auto& l) { return l.IPOuts; }},
        {"BF", [](const auto& l) { return l.BF; }},     {"On", [](const auto& l) { return l.RunnersCharged; }},
        {"Win", [](const auto& l) { return l.Win; }},   {"Loss", [](const auto& l) { return l.Loss; }},
        {"Save", [](const auto& l) { return l.Save; }}, {"HBP", [](const auto& l) { return l.HBP; }}};
    return counters;
}

const Counters<FielderLine>& FielderCounters() {
    static const Counters<FielderLine> counters{
        {"PO", [](const auto& l) { return l.PutOuts; }},   {"A", [](const auto& l) { return l.Assists; }},
        {"E", [](const auto& l) { return l.Errors; }},     {"DP", [](const auto& l) { return l.DoublePlays; }},
        {"PB", [](const auto& l) { return l.PassBalls; }}, {"SB", [](const auto& l) { return l.OpponentSB; }},
        {"CS", [](const auto& l) { return l.OpponentCS; }}};
    return counters;
}

// "-": empty, else the slot, with a u for a man whose run won't be earned.
std::string RunnerText(const Runner& runner) {
    return runner.On() ? std::to_string(runner.slot) + (runner.Unearned ? "u" : "") : "-";
}

std::string SideText(Side side) {
    return side == Side::Visitor ? "visitor" : "home";
}

std::string AwaitedText(const Awaited& awaited) {
    constexpr std::array<const char*, 4> decisions{"?", "extra", "defence", "again"};
    constexpr std::array<const char*, 5> causes{"?", "fielder", "hurt-batter", "limit", "positions"};
    switch (awaited.kind) {
        case Await::Roll: return "roll";
        case Await::GameOver: return "nothing";
        case Await::Decision:
            return std::string(decisions[static_cast<std::size_t>(awaited.decision)]) + " " + SideText(awaited.side);
        case Await::LineupChange: break;
    }
    return std::string(causes[static_cast<std::size_t>(awaited.cause)]) + " " + SideText(awaited.side);
}

int RowOf(const GameState& state) {
    if (state.sheet == SheetCode::Bt) return state.play.BuntRow;
    return state.sheet == SheetCode::S ? state.play.StealRow : state.play.MDRow;
}

std::string Rest(Words& words) {
    std::string text;
    while (words.More()) text += (text.empty() ? "" : " ") + words.Next("a word");
    return text;
}

std::string PositionName(Position position) {
    std::string text(PositionText(position));
    while (!text.empty() && text.back() == ' ') text.pop_back();
    return text.empty() ? "-" : text;
}

template <class Line, class Check>
void CheckCounters(Words& words, const Line& line, const Counters<Line>& counters, const Check& check) {
    while (words.More()) {
        const std::string pair = words.Next("a counter");
        const std::size_t equals = pair.find('=');
        const auto counter = counters.find(pair.substr(0, equals));
        if (equals == std::string::npos || counter == counters.end())
            words.Fail("\"" + pair + "\" is no counter=value");
        check(counter->first, std::to_string(counter->second(line)), pair.substr(equals + 1));
    }
}

template <class Lines, class Pick>
auto FindLine(const Lines& lines, int count, Pick pick) -> decltype(&lines[0]) {
    for (int i = 0; i < count; ++i)
        if (pick(lines[static_cast<std::size_t>(i)])) return &lines[static_cast<std::size_t>(i)];
    return nullptr;
}

}  // namespace

void ScenarioTable::Compare(const Statement& at, const std::string& what, const std::string& is,
                            const std::string& due) {
    if (is != due) ADD_FAILURE_AT(scenario_.file.c_str(), at.line) << what << ": " << is << ", expected " << due;
}

void ScenarioTable::ExpectBases(Words& words, const Statement& at) {
    const TeamState& team = state.Batting();
    std::string is;
    for (std::size_t base = 1; base <= 3; ++base) is += (base > 1 ? " " : "") + RunnerText(team.runner[base]);
    Compare(at, "bases", is, Rest(words));
}

void ScenarioTable::ExpectAwaited(Words& words, const Statement& at) {
    Compare(at, "awaited", AwaitedText(state.awaited), Rest(words));
}

void ScenarioTable::ExpectLine(Words& words, const Statement& at) {
    const std::size_t kind = words.OneOf("the kind of line", {"batter", "pitcher", "fielder"});
    const Side side = ReadSide(words);
    const BoxLines& box = state[side].box;
    const auto check = [&](const std::string& name, const std::string& is, const std::string& due) {
        Compare(at, name, is, due);
    };
    if (kind == 0) {
        const int slot = words.Number("the slot", 1, 10);
        const BatterLine* line =
            FindLine(box.batter, box.BatterLineCount, [&](const BatterLine& l) { return l.Active && l.Slot == slot; });
        if (!line) words.Fail("no such batter's line");
        CheckCounters(words, *line, BatterCounters(), check);
    } else if (kind == 1) {
        const int number = words.Number("which pitcher", 1, box.PitchersUsed);
        CheckCounters(words, box.pitching[static_cast<std::size_t>(number - 1)], PitcherCounters(), check);
    } else {
        const Position position = PositionFromText(words.Next("the position"));
        const FielderLine* line = FindLine(box.fielder, box.FielderLineCount,
                                           [&](const FielderLine& l) { return l.Active && l.position == position; });
        if (!line) words.Fail("no such fielder's line");
        CheckCounters(words, *line, FielderCounters(), check);
    }
}

void ScenarioTable::ExpectFlag(Words& words, const Statement& at) {
    const tarvane::Play& p = state.play;
    const std::map<std::string, bool> flags{{"ErrorInInning", state.ErrorInInning},
                                            {"BuntTriedThisAtBat", p.BuntTriedThisAtBat},
                                            {"SecondBuntAttempt", p.SecondBuntAttempt},
                                            {"StealHomeTried", p.StealHomeTried},
                                            {"TwoStrikeFoul", p.buntResult == BuntResult::TwoK},
                                            {"PitcherTired", state.Fielding().PitcherTired},
                                            {"BottomNotPlayed", state.BottomNotPlayed}};
    const auto flag = flags.find(words.Next("the flag"));
    if (flag == flags.end()) words.Fail("no such flag");
    const bool due = words.OneOf("the flag", {"off", "on"}) == 1;
    Compare(at, flag->first, flag->second ? "on" : "off", due ? "on" : "off");
}

void ScenarioTable::ExpectInjured(Words& words, const Statement& at) {
    std::string is;
    for (std::size_t i = 0; i < state.injuryCount; ++i) {
        const GameInjury& one = state.injury[i];
        is += fmt::format("{}{} {}{} {}", is.empty() ? "" : " ", SideText(one.side), one.player.type, one.player.index,
                          one.days);
    }
    Compare(at, "injured", is.empty() ? "nobody" : is, Rest(words));
}

void ScenarioTable::Expect(const Statement& statement) {
    ++expectations;
    Words words(scenario_, statement);
    const auto pair = [](int visitor, int home) { return fmt::format("{} {}", visitor, home); };
    const TeamState &v = state[Side::Visitor], &h = state[Side::Home];
    const std::string what = words.Next("what");
    if (what == "bases") return ExpectBases(words, statement);
    if (what == "awaits") return ExpectAwaited(words, statement);
    if (what == "line") return ExpectLine(words, statement);
    if (what == "flag") return ExpectFlag(words, statement);
    if (what == "injured") return ExpectInjured(words, statement);
    const std::map<std::string, std::string> simple{
        {"outs", std::to_string(state.Outs)},
        {"runs", pair(v.Runs, h.Runs)},
        {"hits", pair(v.Hits, h.Hits)},
        {"errors", pair(v.Errors, h.Errors)},
        {"lob", pair(v.LOB, h.LOB)},
        {"result", std::string(ResultText(state.play.PlayResult))},
        {"sheet", std::string(SheetCodeText(state.sheet))},
        {"batter", std::to_string(state.Batting().BatterSlot)},
        {"inning", fmt::format("{} {}", state.BattingSide == Side::Visitor ? "top" : "bottom", state.Inning)},
        {"row", std::to_string(RowOf(state))},
        {"fielded", PositionName(state.play.FieldedBy)},
        {"error-by", PositionName(state.play.ErrorBy)},
        {"decision-error-by", PositionName(state.play.DecisionErrorBy)},
        {"pivot", PositionName(state.play.ForcePivot)},
        {"over", !state.GameOverFlag ? "no"
                 : state.WalkOff     ? "walk-off"
                                     : "final"}};
    const auto found = simple.find(what);
    if (found == simple.end()) words.Fail("nothing called \"" + what + "\" can be expected");
    Compare(statement, what, found->second, Rest(words));
}

}  // namespace tarvane::scenario
