#include "scenariotable.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "../engine/fixture.h"

namespace tarvane::scenario {

namespace {

const std::vector<std::string_view> kCharts{"pitcher",  "batter", "bunt",   "steal", "decision",
                                            "fielding", "basic",  "injury", "park",  "year"};
enum ChartName : std::size_t { kPitcher, kBatter, kBunt, kSteal, kDecision, kFielding, kBasic, kInjury, kPark, kYear };
constexpr std::array<const char*, 8> kSheetOfChart{"P", "B", "Bt", "S", "M", "", "X", "XI"};

const std::vector<std::string_view> kColors{"green", "red", "blue", "yellow", "white"};
constexpr std::array<std::int32_t, 5> kColorWords{kGreenWord, kRedWord, kBlueWord, kYellowWord, kWhiteWord};

const std::vector<std::string_view> kRules{"UseErrorRatings",      "SpecialErrorRule", "CatcherORating",
                                           "PitcherStamina",       "BatterBBSORating", "AutoOutsForOF",
                                           "UseYellowXInjuryChart"};
constexpr std::array<bool LeagueRules::*, 7> kRuleMembers{
    &LeagueRules::UseErrorRatings,      &LeagueRules::SpecialErrorRule, &LeagueRules::CatcherORating,
    &LeagueRules::PitcherStamina,       &LeagueRules::BatterBBSORating, &LeagueRules::AutoOutsForOF,
    &LeagueRules::UseYellowXInjuryChart};

const std::vector<std::string_view> kValues{"RunnerRoll",    "CoverRoll",   "FieldingRoll",
                                            "ErrorRoll",     "ErrorColumn", "FlyFielderRoll",
                                            "ErrorSpotRoll", "InfieldRoll", "ErrorKindRoll"};
constexpr std::array<std::uint8_t PlayValues::*, 9> kValueMembers{
    &PlayValues::RunnerRoll,    &PlayValues::CoverRoll,   &PlayValues::FieldingRoll,
    &PlayValues::ErrorRoll,     &PlayValues::ErrorColumn, &PlayValues::FlyFielderRoll,
    &PlayValues::ErrorSpotRoll, &PlayValues::InfieldRoll, &PlayValues::ErrorKindRoll};

std::size_t ReadSheetSide(Words& words) {
    return words.OneOf("the side", {"visitor", "home"});
}

Cell ReadCell(Words& words) {
    ChartCell cell;
    cell.text = words.Next("the cell's text");
    cell.color = kColorWords[words.OneOf("the colour", kColors)];
    return CompileCell(cell);
}

// Plain baseball: what the cells say happens, and nothing else.
GameData PlainData() {
    static const GameData base = fixture::MakeGameData();
    GameData data = base;
    data.rules = LeagueRules{};
    data.rules.UseParkEffects = data.rules.UseYearEffects = data.rules.PitcherStamina = false;
    data.rules.BatterBBSORating = data.rules.UseErrorRatings = data.rules.CatcherORating = false;
    const auto filled = [](const char* text, std::int32_t color) {
        return CompileChart(fixture::Everywhere(text, color));
    };
    // A roll that nobody foresaw says nothing, and the scenario goes another way than it expects.
    const Chart nothing = filled(" ", kWhiteWord);
    data.compiled.Bunt.fill(nothing);
    data.compiled.StolenBase.fill(nothing);
    data.compiled.MgrDec.fill(nothing);
    data.compiled.YellowXInjuries.fill(nothing);
    data.compiled.YellowXBasic = nothing;
    data.compiled.Fielding.fill(filled("SS", kWhiteWord));
    data.parkChart = data.yearChart = filled(" ", kGreenWord);
    for (const Side side : kBothSides)
        for (PitcherCharts& charts : data.team[side].pitcherCharts) charts.pitch = filled(" ", kGreenWord);
    return data;
}

template <std::size_t N>
void PutInRows(Words& words, std::array<Chart, N>& charts, int row, std::size_t from, std::size_t to,
               const Cell& cell) {
    if (row > static_cast<int>(N)) words.Fail(fmt::format("the chart has {} rows", N));
    for (std::size_t i = 0; i < N; ++i)
        if (row == 0 || row == static_cast<int>(i) + 1)
            std::fill(charts[i].begin() + static_cast<std::ptrdiff_t>(from),
                      charts[i].begin() + static_cast<std::ptrdiff_t>(to), cell);
}

}  // namespace

Side ReadSide(Words& words) {
    return ReadSheetSide(words) == 0 ? Side::Visitor : Side::Home;
}

PlayerRef ReadPlayer(const Words& words, const std::string& text) {
    if (text.size() < 2 || (text[0] != 'B' && text[0] != 'P'))
        words.Fail("\"" + text + "\" is no player, like B9 or P5");
    return {text[0], static_cast<std::int16_t>(std::atoi(text.c_str() + 1))};
}

ScenarioTable::ScenarioTable(const Scenario& scenario) : data(PlainData()), scenario_(scenario) {
    nextRoll_.fill(20);
    values_.InfieldRoll = 90;
    bool playing = false;
    for (const Statement& statement : scenario.statements) {
        Words words(scenario, statement);
        rolls_.emplace_back();
        sheets_.emplace_back();
        if (statement.expected) continue;
        const bool setting = SetUp(words);
        if (setting && playing) words.Fail("the situation is set up before the first play");
        if (!setting && words.Peek() != "values") playing = true;
        if (!setting) PlaceRolls(words);
        if (setting) words.Done();
    }
    TakeSituation();
    start = state;
    log = StartReplayLog(data, start);
}

bool ScenarioTable::SetUp(Words& words) {
    Situation& s = situation_;
    if (words.Take("top") || words.Peek() == "bottom") {
        if (words.Take("bottom")) s.side = Side::Home;
        s.inning = words.Number("the inning", 1, 30);
    } else if (words.Take("outs")) {
        s.outs = words.Number("outs", 0, 2);
    } else if (words.Take("score")) {
        for (const Side side : kBothSides) s.score[side] = words.Number("the score", 0, 99);
    } else if (words.Take("bases")) {
        SetBases(words);
    } else if (words.Take("batter")) {
        s.batter = words.Number("the batter's slot", 1, 9);
    } else if (words.Take("error-in-inning")) {
        s.errorInInning = true;
    } else if (words.Take("computer")) {
        SideControl& control = s.computer[ReadSide(words)];
        (words.OneOf("what it manages", {"game", "subs"}) == 0 ? control.game : control.subs) = true;
    } else if (words.Take("rule")) {
        if (words.Take("RelieverMaxIPOuts"))
            data.rules.RelieverMaxIPOuts = static_cast<std::int16_t>(words.Number("the limit", 1, 99));
        else
            SetRule(words);
    } else if (words.Take("catcher")) {
        Batter& catcher = data.team[ReadSide(words)].roster.batters[0];
        (words.OneOf("the mark", {"I", "O"}) == 0 ? catcher.CatcherIRating : catcher.CatcherORating) = true;
    } else if (words.Take("dh")) {
        data.DHUsed = true;
    } else if (words.Take("man")) {
        SetMan(words);
    } else if (words.Take("chart")) {
        SetChart(words);
    } else {
        return false;
    }
    return true;
}

void ScenarioTable::SetRule(Words& words) {
    const std::size_t rule = words.OneOf("the rule", kRules);
    data.rules.*kRuleMembers[rule] = words.OneOf("on or off", {"off", "on"}) == 1;
}

void ScenarioTable::SetMan(Words& words) {
    const Side side = ReadSide(words);
    const int slot = words.Number("the slot", 1, 8);
    Batter& man = data.team[side].roster.batters[static_cast<std::size_t>(slot - 1)];
    while (words.More()) {
        if (words.Take("run")) {
            man.runRating = static_cast<std::uint8_t>(words.Number("the run rating", 0, 5));
        } else if (words.Take("bunt")) {
            man.BuntRating = words.Next("the bunt rating");
        } else if (words.Take("bats")) {
            constexpr std::array<std::int32_t, 3> hands{kLeftHand, kRightHand, kSwitchHitter};
            man.bats = hands[words.OneOf("the hand", {"L", "R", "S"})];
        } else {
            words.Fail("a man has run, bunt and bats, not \"" + words.Peek() + "\"");
        }
    }
}

void ScenarioTable::SetBases(Words& words) {
    for (Runner& runner : situation_.runner) {
        const std::string text = words.Next("a base");
        if (text == "-") continue;
        runner.slot = static_cast<std::uint8_t>(text[0] - '0');
        runner.Unearned = text.size() > 1 && text[1] == 'u';
        if (runner.slot < 1 || runner.slot > 9) words.Fail("a base holds a slot, 1 to 9, or -, not \"" + text + "\"");
    }
}

void ScenarioTable::SetChart(Words& words) {
    const std::size_t chart = words.OneOf("the chart", kCharts);
    const int row = words.Take("row") ? words.Number("the row", 1, 18) : 0;
    const int roll = words.Take("roll") ? words.Number("the roll", kFirstRoll, kLastRoll) : 0;
    if (chart == kPark) data.rules.UseParkEffects = true;
    if (chart == kYear) data.rules.UseYearEffects = true;
    const Cell cell = ReadCell(words);
    PutCell(words, chart, row, roll, cell);
}

void ScenarioTable::PutCell(Words& words, std::size_t chart, int row, int roll, const Cell& cell) {
    const std::size_t from = roll == 0 ? 0 : static_cast<std::size_t>(roll - kFirstRoll);
    const std::size_t to = roll == 0 ? kChartRows : from + 1;
    const auto put = [&](Chart& one) {
        std::array<Chart, 1> rows{one};
        PutInRows(words, rows, 0, from, to, cell);
        one = rows[0];
    };
    switch (chart) {
        case kPitcher:
        case kBatter:
            for (const Side side : kBothSides) {
                for (BatterCharts& charts : data.team[side].batterCharts)
                    if (chart == kBatter) put(charts.vsL), put(charts.vsR);
                for (PitcherCharts& charts : data.team[side].pitcherCharts)
                    put(chart == kBatter ? charts.Bat : charts.pitch);
            }
            break;
        case kBunt: PutInRows(words, data.compiled.Bunt, row, from, to, cell); break;
        case kSteal: PutInRows(words, data.compiled.StolenBase, row, from, to, cell); break;
        case kDecision: PutInRows(words, data.compiled.MgrDec, row, from, to, cell); break;
        case kFielding: PutInRows(words, data.compiled.Fielding, row, from, to, cell); break;
        case kInjury: PutInRows(words, data.compiled.YellowXInjuries, row, from, to, cell); break;
        case kBasic: put(data.compiled.YellowXBasic); break;
        case kPark: put(data.parkChart); break;
        default: put(data.yearChart);
    }
}

// Line scores, lines and outs of a game that has come so far, as the invariants want them.
void ScenarioTable::TakeSituation() {
    const Situation& s = situation_;
    state = fixture::FirstPitch(data);
    state.computer = s.computer;
    state.BattingSide = s.side;
    state.Inning = static_cast<std::uint8_t>(s.inning);
    state.Outs = static_cast<std::uint8_t>(s.outs);
    state.ErrorInInning = s.errorInInning;
    state.sheet = SheetCode::P;
    state.StaminaCheckPending = false;
    for (const Side side : kBothSides) {
        const int runs = s.score[side];
        TeamState& team = state[side];
        team.Runs = team.InningRuns[0] = static_cast<std::int16_t>(runs);
        team.box.batter[7].R = static_cast<std::uint8_t>(runs);
        PitchingLine& pitcher = state[Other(side)].box.pitching[0];
        pitcher.R = static_cast<std::int16_t>(runs);
        const int halves = side == s.side || s.side == Side::Visitor ? s.inning - 1 : s.inning;
        pitcher.IPOuts = static_cast<std::int16_t>(3 * halves + (side == s.side ? s.outs : 0));
    }
    // Who is ahead would win it as it stands, with the pitchers who began.
    for (const Side side : kBothSides) {
        const int lead = s.score[side] - s.score[Other(side)];
        PitchingLine& pitcher = state[side].box.pitching[0];
        pitcher.Win = lead > 0 && pitcher.IPOuts >= 15;
        pitcher.Loss = lead < 0;
    }
    if (s.inning == 1) state.HalfInningRuns = state.Batting().Runs;
    state.Batting().BatterSlot = static_cast<std::uint8_t>(s.batter);
    for (std::size_t base = 1; base <= 3; ++base) {
        state.Batting().runner[base] = s.runner[base - 1];
        if (s.runner[base - 1].On()) ++state.Fielding().box.pitching[0].RunnersCharged;
    }
}

std::uint8_t ScenarioTable::PlaceRoll(Words& words, std::size_t chart) {
    const int row = words.Take("row") ? words.Number("the row", 1, 18) : 0;
    const Cell cell = ReadCell(words);
    const int roll = words.Take("at") ? words.Number("the roll", kFirstRoll, kLastRoll) : nextRoll_[chart]++;
    PutCell(words, chart, row, roll, cell);
    return static_cast<std::uint8_t>(roll);
}

bool ScenarioTable::PlaceRolls(Words& words) {
    std::vector<std::uint8_t>& rolls = rolls_.back();
    if (words.Take("pitch")) {
        rolls.push_back(PlaceRoll(words, kPitcher));
        sheets_.back() = "P";
    } else if (words.Take("bat")) {
        rolls = {10, PlaceRoll(words, kBatter)};
        sheets_.back() = "B";
    } else if (words.Take("stamina") || words.Peek() == "rating") {
        sheets_.back() = words.Take("rating") ? "BBSO" : "PS";
        rolls.push_back(static_cast<std::uint8_t>(words.Number("the roll", kFirstRoll, kLastRoll)));
    } else if (words.Take("roll")) {
        const std::size_t chart = words.OneOf("the chart", kCharts);
        if (chart >= kSheetOfChart.size() || chart == kFielding) words.Fail("nobody rolls on that chart by itself");
        rolls.push_back(PlaceRoll(words, chart));
        sheets_.back() = kSheetOfChart[chart];
    } else {
        return false;
    }
    words.Done();
    return true;
}

void ScenarioTable::Run() {
    for (std::size_t i = 0; i < scenario_.statements.size(); ++i) {
        const Statement& statement = scenario_.statements[i];
        if (statement.expected)
            Expect(statement);
        else
            Play(statement, i);
    }
    if (expectations == 0) FailAt(scenario_.file, scenario_.line, "a scenario that expects nothing");
}

LineupInput ScenarioTable::ChangedLineup(Words& words) {
    LineupInput lineup;
    lineup.side = ReadSide(words);
    const TeamState& team = state[lineup.side];
    lineup.pitcher = team.pitcher;
    for (std::size_t i = 0; i < 9; ++i) {
        lineup.player[i] = team.lineup[i].player;
        lineup.position[i] = team.lineup[i].position;
    }
    while (words.More()) {
        const std::string change = words.Next("a change");
        const std::size_t equals = change.find('='), colon = change.find(':');
        if (equals == std::string::npos) words.Fail("a change is like 4=B9:SS or pitcher=P5, not \"" + change + "\"");
        const std::string where = change.substr(0, equals);
        const PlayerRef man = ReadPlayer(words, change.substr(equals + 1, colon - equals - 1));
        if (where == "pitcher") {
            lineup.pitcher = man;
            continue;
        }
        const auto slot = static_cast<std::size_t>(where[0] - '1');
        if (slot > 8 || colon == std::string::npos) words.Fail("\"" + change + "\" names no slot and position");
        lineup.player[slot] = man;
        lineup.position[slot] = PositionFromText(change.substr(colon + 1));
    }
    return lineup;
}

std::vector<Input> ScenarioTable::InputsOf(Words& words, std::size_t index) {
    if (!rolls_[index].empty()) {
        std::vector<Input> inputs;
        for (const std::uint8_t roll : rolls_[index]) inputs.emplace_back(RollInput{roll, values_});
        return inputs;
    }
    if (words.Take("bunt"))
        return {BuntInput{words.OneOf("the bunt", {"sacrifice", "squeeze"}) == 0 ? BuntType::Sacrifice
                                                                                 : BuntType::Squeeze}};
    if (words.Take("steal")) return {StealInput{words.Next("the base")[0]}};
    if (words.Take("walk")) return {IntentionalWalkInput{values_}};
    if (words.Take("change")) return {ChangedLineup(words)};
    if (words.Take("answer")) {
        const Side side = ReadSide(words);
        return {DecisionInput{side, words.OneOf("the answer", {"no", "yes"}) == 1}};
    }
    if (words.Take("forced")) {
        LineupInput lineup;
        Manager manager;
        if (!manager.ForcedLineup(data, state, state.awaited.side, lineup)) words.Fail("nobody can be forced in");
        return {lineup};
    }
    words.Fail("\"" + words.Peek() + "\" is no statement");
}

void ScenarioTable::Play(const Statement& statement, std::size_t index) {
    Words words(scenario_, statement);
    if (rolls_[index].empty() && SetUp(words)) return;
    if (words.Take("values")) {
        while (words.More()) {
            std::uint8_t PlayValues::*const member = kValueMembers[words.OneOf("the value", kValues)];
            values_.*member = static_cast<std::uint8_t>(words.Number("the value", 1, 100));
        }
        return;
    }
    if (words.Take("refused")) {
        const std::string reason = words.Next("the reason");
        const std::vector<Input> inputs = InputsOf(words, index);
        const GameState before = state;
        const Reject reject = Advance(data, state, inputs.front());
        Compare(statement, "the reason", std::string(RejectText(reject)), reason);
        Compare(statement, "a refused input", state == before ? "changes nothing" : "changes", "changes nothing");
        return;
    }
    const std::vector<Input> inputs = InputsOf(words, index);
    for (std::size_t i = 0; i < inputs.size(); ++i) {
        if (i + 1 == inputs.size() && !sheets_[index].empty())
            Compare(statement, "the sheet of the roll", std::string(SheetCodeText(state.sheet)), sheets_[index]);
        Take(words, inputs[i]);
    }
}

void ScenarioTable::Take(const Words& words, const Input& input) {
    const Reject reject = Advance(data, state, input);
    if (reject != Reject::None) words.Fail("refused: " + std::string(RejectText(reject)));
    AddReplayStep(log, input, state);
    if (const std::string fault = StateOk(data, state); !fault.empty()) words.Fail("the state: " + fault);
}

}  // namespace tarvane::scenario
