#pragma once

#include <optional>

#include "engine/replaylog.h"
#include "scenariofile.h"

namespace tarvane::scenario {

// Two clubs at a table on charts that say only what the scenario wants: it sets up the situation, takes the inputs,
// checks the invariants after each and what is expected, and keeps the record of the game. Faults of the game are test
// failures at the scenario's line, faults of the file are thrown.
class ScenarioTable {
  public:
    explicit ScenarioTable(const Scenario& scenario);
    void Run();

    GameData data;
    GameState start, state;
    ReplayLog log;
    int expectations = 0;

  private:
    struct Situation {
        Side side = Side::Visitor;
        int inning = 3, outs = 0, batter = 1;
        PerSide<int> score{};
        std::array<Runner, 3> runner{};
        bool errorInInning = false;
        PerSide<SideControl> computer{};
    };

    // --- setting up: data first, then the game, then the situation ---
    bool SetUp(Words& words);
    void SetRule(Words& words);
    void SetMan(Words& words);
    void SetChart(Words& words);
    void SetBases(Words& words);
    void PutCell(Words& words, std::size_t chart, int row, int roll, const Cell& cell);
    void TakeSituation();
    // The roll that gives this statement its cell: each has one of its own.
    std::uint8_t PlaceRoll(Words& words, std::size_t chart);
    bool PlaceRolls(Words& words);

    // --- playing ---
    void Play(const Statement& statement, std::size_t index);
    std::vector<Input> InputsOf(Words& words, std::size_t index);
    LineupInput ChangedLineup(Words& words);
    void Take(const Words& words, const Input& input);

    // --- checking: expectations.cpp ---
    void Expect(const Statement& statement);
    void ExpectBases(Words& words, const Statement& at);
    void ExpectAwaited(Words& words, const Statement& at);
    void ExpectLine(Words& words, const Statement& at);
    void ExpectFlag(Words& words, const Statement& at);
    void ExpectInjured(Words& words, const Statement& at);
    void Compare(const Statement& at, const std::string& what, const std::string& is, const std::string& due);

    const Scenario& scenario_;
    Situation situation_;
    std::vector<std::vector<std::uint8_t>> rolls_;  // by statement
    std::vector<std::string> sheets_;               // by statement: the sheet on which its last roll must be read
    std::array<int, 10> nextRoll_{};
    PlayValues values_;
};

Side ReadSide(Words& words);
PlayerRef ReadPlayer(const Words& words, const std::string& text);

}  // namespace tarvane::scenario
