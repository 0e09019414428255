// The command that plays many games of a season's teams and holds their rates against the real season's.

#include <fmt/format.h>

#include <chrono>
#include <string>

#include "base/error.h"
#include "installation.h"
#include "season/gametally.h"
#include "season/managedgame.h"

namespace tarvane::replay {

namespace {

constexpr long kRatedGames = 2000;
constexpr int kRotations = 4;  // starters tried for each pairing

struct RealSeason {
    double teamGames = 0;
    std::int64_t SB = 0, CS = 0, SH = 0, SF = 0, GIDP = 0, AB = 0, H = 0, Doubles = 0, Triples = 0, HR = 0, BB = 0,
                 IBB = 0, SO = 0, HBP = 0, R = 0, E = 0, PB = 0, G = 0, GS = 0, CG = 0, SV = 0, SHO = 0, ER = 0,
                 IPouts = 0;
};

RealSeason ReadReal(Database& season) {
    RealSeason real;
    Statement batting = season.Prepare(
        "SELECT sum(SB), sum(CS), sum(SH), sum(SF), sum(GIDP), sum(AB), sum(H), sum(\"2B\"), sum(\"3B\"), sum(HR), "
        "sum(BB), "
        "sum(IBB), sum(SO), sum(HBP), sum(R) FROM LahmanBatting");
    batting.Step();
    int column = 0;
    for (std::int64_t* sum : {&real.SB, &real.CS, &real.SH, &real.SF, &real.GIDP, &real.AB, &real.H, &real.Doubles,
                              &real.Triples, &real.HR, &real.BB, &real.IBB, &real.SO, &real.HBP, &real.R})
        *sum = batting.Int(column++);
    Statement pitching =
        season.Prepare("SELECT sum(G), sum(GS), sum(CG), sum(SV), sum(SHO), sum(ER), sum(IPouts) FROM LahmanPitching");
    pitching.Step();
    column = 0;
    for (std::int64_t* sum : {&real.G, &real.GS, &real.CG, &real.SV, &real.SHO, &real.ER, &real.IPouts})
        *sum = pitching.Int(column++);
    Statement fielding = season.Prepare("SELECT sum(E), sum(PB) FROM LahmanFielding");
    fielding.Step();
    real.E = fielding.Int(0);
    real.PB = fielding.Int(1);
    real.teamGames = static_cast<double>(real.GS);
    return real;
}

void PrintRow(std::string_view what, double replay, double real) {
    fmt::print("{:<22}{:>10.3f}{:>10.3f}{:>8}\n", what, replay, real,
               real > 0 ? fmt::format("{:.2f}", replay / real) : "");
}

void PrintRates(const GameTally& t, const RealSeason& r) {
    const auto games = static_cast<double>(t.games);
    const auto row = [&](std::string_view what, long replay, std::int64_t real) {
        PrintRow(what, static_cast<double>(replay) / games,
                 r.teamGames > 0 ? static_cast<double>(real) / r.teamGames : 0);
    };
    fmt::print("{:<22}{:>10}{:>10}{:>8}\n", "a team and game", "replay", "real", "ratio");
    row("R", t.R, r.R);
    row("AB", t.AB, r.AB);
    row("H", t.H, r.H);
    row("2B", t.Doubles, r.Doubles);
    row("3B", t.Triples, r.Triples);
    row("HR", t.HR, r.HR);
    row("BB (real less IBB)", t.BB, r.BB - r.IBB);
    row("SO", t.SO, r.SO);
    row("HBP", t.HBP, r.HBP);
    row("SB", t.SB, r.SB);
    row("CS", t.CS, r.CS);
    row("SH", t.SH, r.SH);
    row("SF", t.SF, r.SF);
    row("GIDP", t.GIDP, r.GIDP);
    row("E", t.E, r.E);
    row("PB", t.PB, r.PB);
    row("pitchers used", t.PitchersUsed, r.G);
    row("complete games", t.CG, r.CG);
    row("saves", t.SV, r.SV);
    row("shutouts", t.SHO, r.SHO);
    row("ER", t.ER, r.ER);
    const auto alone = [&](std::string_view what, double value) { fmt::print("{:<22}{:>10.3f}\n", what, value); };
    alone("pinch hitters", static_cast<double>(t.PinchHitters) / games);
    alone("pinch runners", static_cast<double>(t.PinchRunners) / games);
    alone("injuries", static_cast<double>(t.Injuries) / games);
    alone("starters' innings", static_cast<double>(t.StarterOuts) / games / 3);
    alone("home wins", static_cast<double>(t.HomeWins) / games * 2);
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
    PrintRates(tally, ReadReal(season));
    fmt::print(stderr, "{} games in {:.1f} s\n", tally.games / 2, seconds);
    return 0;
}

}  // namespace tarvane::replay
