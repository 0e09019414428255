// One whole game, the engine alone: no manager's thinking, no listener, no posting.

#include <benchmark/benchmark.h>

#include "fixture.h"

namespace tarvane {
namespace {

void PlayGames(benchmark::State& run, const LeagueRules& rules) {
    const GameData data = fixture::MakeGameData(rules);
    const GameState first = fixture::FirstPitch(data);
    Random random(1);
    Manager visitor, home;
    std::uint64_t steps = 0, runs = 0;
    for (auto _ : run) {
        GameState state = first;
        PlayOut(data, state, random, visitor, home);
        steps += state.steps;
        runs += static_cast<std::uint64_t>(state[Side::Visitor].Runs + state[Side::Home].Runs);
    }
    const auto games = static_cast<double>(run.iterations());
    run.SetItemsProcessed(run.iterations());
    run.counters["steps"] = static_cast<double>(steps) / games;
    run.counters["runs"] = static_cast<double>(runs) / games;
}

void BM_GameAllRules(benchmark::State& run) {
    PlayGames(run, fixture::FullRules());
}
BENCHMARK(BM_GameAllRules);

void BM_GameDefaultRules(benchmark::State& run) {
    PlayGames(run, LeagueRules{});
}
BENCHMARK(BM_GameDefaultRules);

void BM_CompileGameData(benchmark::State& run) {
    GameData data = fixture::MakeGameData();
    for (auto _ : run) {
        CompileGameData(data);
        benchmark::DoNotOptimize(data.compiled);
    }
}
BENCHMARK(BM_CompileGameData);

}  // namespace
}  // namespace tarvane
