#include "laboratory.h"

#include <fmt/format.h>

#include <algorithm>

#include "accuracy/figures.h"
#include "base/error.h"
#include "data/seeds.h"
#include "data/upgrade.h"
#include "import/importseason.h"
#include "season/managedgame.h"
#include "season/managerlists.h"

namespace tarvane::calibrate {

namespace {

constexpr const char* kSeason = "Calibration";
constexpr int kRotations = 4;  // starters tried for each pairing

ImportRequest RequestFor(int year, const std::filesystem::path& source) {
    ImportRequest request;
    request.seasonName = kSeason;
    request.source = source;
    request.teams = {{year, {}}};
    request.overwrite = true;
    request.lineups.basedOnUsage = true;
    request.generateManagers = GenerateImportedManagers;
    return request;
}

std::vector<std::string> Texts(Database& season, const std::string& sql, const std::vector<Value>& parameters = {}) {
    Statement query = season.Prepare(sql);
    for (std::size_t i = 0; i < parameters.size(); ++i) query.Bind(static_cast<int>(i) + 1, parameters[i]);
    std::vector<std::string> texts;
    while (query.Step()) texts.push_back(query.Text(0));
    return texts;
}

std::int32_t StarterOf(const GameSetup& setup, Side side) {
    const auto index = static_cast<std::size_t>(setup.lineup[side].pitcher.index);
    return setup.data[side].roster.pitchers[index].playerID;
}

void PlayInto(const GameSetup& setup, std::uint64_t seed, GameTally& tally) {
    GameState state;
    StartSetup(setup, state);
    PlayByComputers(setup, seed, state);
    tally.Add(state);
}

}  // namespace

Laboratory::Laboratory(const std::filesystem::path& folder, const std::filesystem::path& seeds,
                       const std::filesystem::path& source)
    : source_(source) {
    std::filesystem::remove_all(folder);
    paths_ = DetermineDataPath(folder);
    MakeDataFiles(paths_, seeds);
    common_ = std::make_unique<Database>(paths_.CommonFile());
    UpgradeCommonTables(*common_);
    EnsureDefensiveEras(*common_, paths_.DefensiveErasFile());
}

void Laboratory::SetEra(std::int32_t eraID, const EraRow& row) {
    std::string columns;
    std::vector<Value> values;
    for (const auto& [column, value] : row) {
        columns += (columns.empty() ? "\"" : ", \"") + column + "\" = ?";
        values.push_back(value);
    }
    values.emplace_back(std::int64_t{eraID});
    common_->Execute("UPDATE KorvYears SET " + columns + " WHERE EraId = ?", values);
}

void Laboratory::MakeSeason(int year) {
    season_.reset();
    ImportSeason(RequestFor(year, source_), paths_, *common_);
    season_ = std::make_unique<Database>(paths_.SeasonFile(kSeason));
    leagues_ = Texts(*season_, "SELECT shortName FROM Leagues ORDER BY lgIdx");
}

Openness Laboratory::OpennessOf(const std::string& league) {
    Openness open{};
    for (int roll = kFirstRoll; roll <= kLastRoll; ++roll) {
        const auto cell = static_cast<std::size_t>(roll - kFirstRoll);
        if (kUsualOpenness[cell] == 0) continue;
        Statement query = season_->Prepare(fmt::format(
            "SELECT sum(l.BFP * (p.pitch{0}Color = {1} AND p.pitch{0} IN (' ', '(HR)', 'HR'))) * 1.0 / sum(l.BFP) FROM "
            "KorvPitchers p JOIN LahmanPitching l ON l.playerID = p.LahmanPlayerID AND l.KorvTeamID = p.teamID WHERE "
            "l.lgID = ?",
            roll, kGreenWord));
        query.Bind(1, league);
        if (query.Step()) open[cell] = query.Double(0);
    }
    return open;
}

Counts Laboratory::Real(const std::string& league) {
    const auto found = std::find(leagues_.begin(), leagues_.end(), league);
    const SeasonFigures real = ReadRealFigures(*season_);
    return real.leagues.at(static_cast<std::size_t>(found - leagues_.begin())).counts;
}

Counts Laboratory::Play(const std::string& league, long games, std::uint64_t seed) {
    const auto codes = Texts(*season_, "SELECT teamID FROM KorvTeams WHERE lgID = ? ORDER BY TeamIdx", {league});
    if (codes.size() < 2) throw UserError("league " + league + " has fewer than two teams");
    const auto teams = static_cast<long>(codes.size());
    const long perStarter = std::max(1L, games / (teams * (teams - 1) * kRotations) + 1);
    GameTally tally;
    const auto full = [&] { return tally.games / 2 >= games; };
    for (std::size_t distance = 1; !full(); distance = distance % (codes.size() - 1) + 1) {
        for (std::size_t i = 0; i < codes.size() && !full(); ++i) {
            GameSetup setup = LoadExhibition(*common_, *season_, codes[i], codes[(i + distance) % codes.size()]);
            for (int rotation = 0; rotation < kRotations && !full(); ++rotation) {
                for (long n = 0; n < perStarter && !full(); ++n) PlayInto(setup, ++seed, tally);
                ChooseBothLineups(setup, {{StarterOf(setup, Side::Visitor), StarterOf(setup, Side::Home)}});
            }
        }
    }
    return CountsOf(tally);
}

}  // namespace tarvane::calibrate
