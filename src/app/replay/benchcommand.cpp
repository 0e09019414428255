// The command that measures the engine and prints the signature of its behaviour.

#include <fmt/format.h>

#include <chrono>

#include "base/error.h"
#include "base/tempfolder.h"
#include "import/importseason.h"
#include "installation.h"
#include "sample/sampleleague.h"
#include "season/managedgame.h"
#include "season/managerlists.h"

namespace tarvane::replay {

namespace {

constexpr long kDefaultGames = 2000;
constexpr std::size_t kLeakGames = 48;  // played before and after all others: they must come out the same
constexpr std::size_t kBatch = 256;  // games played between two readings of the clock, then hashed outside the timing

// FNV-1a over whole numbers: simple, and the same everywhere.
class Signature {
  public:
    template <class... Numbers>
    void Add(Numbers... numbers) {
        (AddOne(static_cast<std::int64_t>(numbers)), ...);
    }
    std::uint64_t Value() const { return hash_; }

  private:
    void AddOne(std::int64_t number) {
        for (int byte = 0; byte < 8; ++byte) {
            hash_ ^= static_cast<std::uint64_t>(number >> (8 * byte)) & 0xFF;
            hash_ *= 0x100000001B3ULL;
        }
    }
    std::uint64_t hash_ = 0xCBF29CE484222325ULL;
};

void AddCounts(Signature& signature, const BattingCounts& c) {
    signature.Add(c.AB, c.H, c.Doubles, c.Triples, c.HR, c.RBI, c.BB, c.SO, c.HBP, c.SH, c.SF, c.GIDP);
}

void AddBox(Signature& signature, const TeamState& team) {
    signature.Add(team.Runs, team.Hits, team.Errors, team.LOB);
    for (const std::int16_t runs : team.InningRuns) signature.Add(runs);
    for (std::size_t i = 0; i < team.box.BatterLineCount; ++i) {
        const BatterLine& line = team.box.batter[i];
        signature.Add(line.player.type, line.player.index, static_cast<int>(line.position), line.Slot, line.R, line.SB,
                      line.CS);
        for (const BattingCounts* counts : {&line.total, &line.vsLeft, &line.vsRight}) AddCounts(signature, *counts);
    }
    for (std::size_t i = 0; i < team.box.PitchersUsed; ++i) {
        const PitchingLine& p = team.box.pitching[i];
        signature.Add(p.player.index, p.H, p.R, p.ER, p.HR, p.BB, p.SO, p.HBP, p.IPOuts, p.BF, p.AutoOuts, p.Win,
                      p.Loss, p.Save);
    }
    for (std::size_t i = 0; i < team.box.FielderLineCount; ++i) {
        const FielderLine& f = team.box.fielder[i];
        signature.Add(f.player.type, f.player.index, static_cast<int>(f.position), f.PutOuts, f.Assists, f.Errors,
                      f.DoublePlays, f.PassBalls, f.OpponentSB, f.OpponentCS, f.GreatDefensivePlays);
    }
}

// The fictional league as a season in the scratch folder, and every pairing of neighbours in it.
std::vector<GameSetup> MakePairings(const Context& context, const std::filesystem::path& scratch) {
    WriteSampleLeague(scratch / "sample", 1975);
    Context own = context;
    own.dataDir = scratch / "data";
    Installation installation(own);
    ImportRequest request;
    request.seasonName = "Bench";
    request.source = scratch / "sample";
    request.teams = {{kSampleYear, {}}};
    request.generateManagers = GenerateImportedManagers;
    ImportSeason(request, installation.Paths(), installation.Common());
    Database season = installation.OpenSeason("Bench");
    std::vector<std::string> codes;
    for (Recordset teams = season.OpenRecordset("KorvTeams", {}, {}, "TeamIdx"); !teams.EndOfFile(); teams.MoveNext())
        codes.push_back(teams.GetText("teamID"));
    std::vector<GameSetup> pairings;
    for (std::size_t i = 0; i < codes.size(); ++i)
        pairings.push_back(LoadExhibition(installation.Common(), season, codes[i], codes[(i + 1) % codes.size()]));
    return pairings;
}

struct BenchResult {
    std::uint64_t signature = 0;
    double gamesPerSecond = 0;
};

void PlayOne(const GameSetup& setup, std::size_t number, bool computerManagers, GameState& state) {
    StartSetup(setup, state);
    if (computerManagers) return PlayByComputers(setup, number, state);
    Random dice(number);
    Manager hold;
    PlayOut(setup.data, state, dice, hold, hold);
}

BenchResult PlayAll(const std::vector<GameSetup>& pairings, std::size_t games, bool computerManagers) {
    using Clock = std::chrono::steady_clock;
    Signature signature;
    std::vector<GameState> states(kBatch);
    Clock::duration spent{};
    for (std::size_t first = 0; first < games; first += kBatch) {
        const std::size_t count = std::min(kBatch, games - first);
        const auto start = Clock::now();
        for (std::size_t i = 0; i < count; ++i) {
            states[i] = GameState{};
            PlayOne(pairings[(first + i) % pairings.size()], first + i, computerManagers, states[i]);
        }
        spent += Clock::now() - start;
        for (std::size_t i = 0; i < count; ++i)
            for (const Side side : kBothSides) AddBox(signature, states[i][side]);
    }
    return {signature.Value(), static_cast<double>(games) / std::chrono::duration<double>(spent).count()};
}

}  // namespace

int Bench(const Context& context, const Options& options) {
    const auto games = static_cast<std::size_t>(options.Number("--games", kDefaultGames, 1, 10'000'000));
    const TempFolder scratch;
    const auto pairings = MakePairings(context, scratch.Path());
    const std::uint64_t before = PlayAll(pairings, kLeakGames, true).signature;
    const BenchResult alone = PlayAll(pairings, games, false);
    fmt::print("engine alone: {:.0f} games per second, signature {:016x}\n", alone.gamesPerSecond, alone.signature);
    const BenchResult managed = PlayAll(pairings, games, true);
    if (PlayAll(pairings, kLeakGames, true).signature != before)
        throw UserError("the same games came out differently a second time: state leaks from one game into the next");
    Signature both;
    both.Add(static_cast<std::int64_t>(alone.signature), static_cast<std::int64_t>(managed.signature));
    fmt::print("signature: {:016x}\ngames per second: {:.0f}\n", both.Value(), managed.gamesPerSecond);
    return 0;
}

}  // namespace tarvane::replay
