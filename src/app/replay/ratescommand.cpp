// The command that plays many games of a season's teams and holds their rates against the real season's.

#include <fmt/format.h>

#include <chrono>
#include <string>

#include "accuracy/figures.h"
#include "base/error.h"
#include "installation.h"
#include "season/gametally.h"
#include "season/managedgame.h"

namespace tarvane::replay {

namespace {

constexpr long kRatedGames = 2000;
constexpr int kRotations = 4;  // starters tried for each pairing

// Both leagues together; all empty if the season holds no real statistics.
Counts RealCounts(Database& season) {
    Counts sums;
    if (!HasRealFigures(season)) return sums;
    for (const LeagueFigures& league : ReadRealFigures(season).leagues)
        for (std::size_t i = 0; i < kCounts; ++i)
            if (const auto figure = static_cast<Figure>(i); league.counts[figure])
                sums.Add(figure, league.counts.Of(figure));
    return sums;
}

void PrintRow(std::string_view what, double replay, double real) {
    fmt::print("{:<22}{:>10.3f}{:>10.3f}{:>8}\n", what, replay, real,
               real > 0 ? fmt::format("{:.2f}", replay / real) : "");
}

void PrintRates(const GameTally& t, const Counts& real) {
    constexpr std::pair<std::string_view, Figure> kRows[] = {{"R", Figure::R},
                                                             {"AB", Figure::AB},
                                                             {"H", Figure::H},
                                                             {"2B", Figure::Doubles},
                                                             {"3B", Figure::Triples},
                                                             {"HR", Figure::HR},
                                                             {"BB (real less IBB)", Figure::BB},
                                                             {"SO", Figure::SO},
                                                             {"HBP", Figure::HBP},
                                                             {"SB", Figure::SB},
                                                             {"CS", Figure::CS},
                                                             {"SH", Figure::SH},
                                                             {"SF", Figure::SF},
                                                             {"GIDP", Figure::GIDP},
                                                             {"E", Figure::E},
                                                             {"PB", Figure::PB},
                                                             {"pitchers used", Figure::Pitchers},
                                                             {"complete games", Figure::CG},
                                                             {"saves", Figure::SV}};
    const Counts replay = CountsOf(t);
    fmt::print("{:<22}{:>10}{:>10}{:>8}\n", "a team and game", "replay", "real", "ratio");
    for (const auto& [name, figure] : kRows)
        PrintRow(name, replay.Of(figure) / replay.Of(Figure::Games),
                 real.Of(Figure::Games) > 0 ? real.Of(figure) / real.Of(Figure::Games) : 0);
    const auto alone = [&](std::string_view what, long count, double per) {
        fmt::print("{:<22}{:>10.3f}\n", what, static_cast<double>(count) / static_cast<double>(t.games) / per);
    };
    alone("ER", t.ER, 1);
    alone("shutouts", t.SHO, 1);
    alone("pinch hitters", t.PinchHitters, 1);
    alone("pinch runners", t.PinchRunners, 1);
    alone("injuries", t.Injuries, 1);
    alone("starters' innings", t.StarterOuts, 3);
    alone("home wins", t.HomeWins, 0.5);
    fmt::print("{:<22}{:>10}\n", "longest game", t.LongestGame);
}

std::vector<std::string> TeamCodes(Database& season) {
    std::vector<std::string> codes;
    for (Recordset teams = season.OpenRecordset("KorvTeams", {}, {}, "TeamIdx"); !teams.EndOfFile(); teams.MoveNext())
        codes.push_back(teams.GetText("teamID"));
    if (codes.empty()) throw UserError("the season has no teams");
    return codes;
}

void PlayInto(const GameSetup& setup, std::uint64_t seed, GameTally& tally) {
    GameState state;
    StartSetup(setup, state);
    PlayByComputers(setup, seed, state);
    if (const std::string fault = StateOk(setup.data, state); !fault.empty())
        throw UserError("a game ended wrongly: " + fault);
    tally.Add(state);
}

std::int32_t StarterOf(const GameSetup& setup, Side side) {
    const auto index = static_cast<std::size_t>(setup.lineup[side].pitcher.index);
    return setup.data[side].roster.pitchers[index].playerID;
}

}  // namespace

int Rates(const Context& context, const Options& options) {
    Installation installation(context);
    Database season = installation.OpenSeason(options.Positional(0));
    const long games = options.Number("--games", kRatedGames, 1, 10'000'000);
    const std::uint64_t seed = options.Seed().value_or(1);
    const auto codes = TeamCodes(season);
    GameTally tally;
    TerminalProgress progress;
    const auto start = std::chrono::steady_clock::now();
    // Every team visits its neighbours in the list, the distance growing; each pairing goes through its rotations.
    const long pairings =
        static_cast<long>(codes.size()) * static_cast<long>(std::max<std::size_t>(codes.size() - 1, 1));
    const long perStarter = std::max(1L, games / (pairings * kRotations) + 1);
    std::uint64_t number = seed;
    for (std::size_t distance = 1; tally.games / 2 < games; distance = distance % codes.size() + 1) {
        for (std::size_t i = 0; i < codes.size() && tally.games / 2 < games; ++i) {
            const std::string& home = codes[(i + distance) % codes.size()];
            if (home == codes[i] && codes.size() > 1) continue;
            GameSetup setup = LoadExhibition(installation.Common(), season, codes[i], home);
            for (int rotation = 0; rotation < kRotations && tally.games / 2 < games; ++rotation) {
                for (long n = 0; n < perStarter && tally.games / 2 < games; ++n) PlayInto(setup, ++number, tally);
                ChooseBothLineups(setup, {{StarterOf(setup, Side::Visitor), StarterOf(setup, Side::Home)}});
            }
            progress.Report("games", static_cast<int>(tally.games / 2), static_cast<int>(games));
        }
    }
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    PrintRates(tally, RealCounts(season));
    fmt::print(stderr, "{} games in {:.1f} s\n", tally.games / 2, seconds);
    return 0;
}

}  // namespace tarvane::replay
