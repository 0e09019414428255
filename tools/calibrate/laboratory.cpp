#include "laboratory.h"

#include <fmt/format.h>

#include <algorithm>

#include "accuracy/figures.h"
#include "accuracy/replays.h"
#include "data/seeds.h"
#include "data/upgrade.h"
#include "import/importseason.h"
#include "season/managerlists.h"

namespace tarvane::calibrate {

namespace {

constexpr const char* kSeason = "Calibration";

ImportRequest RequestFor(const std::vector<TeamChoice>& teams, const std::filesystem::path& source) {
    ImportRequest request;
    request.seasonName = kSeason;
    request.source = source;
    request.teams = teams;
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

void Laboratory::SetEra(std::int32_t eraID, const ChangedRow& row) {
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
    MakeSeason({{year, {}}});
}

void Laboratory::MakeSeason(const std::vector<TeamChoice>& teams) {
    season_.reset();
    ImportSeason(RequestFor(teams, source_), paths_, *common_);
    season_ = std::make_unique<Database>(paths_.SeasonFile(kSeason));
    leagues_ = Texts(*season_, "SELECT shortName FROM Leagues ORDER BY lgIdx");
}

Openness Laboratory::OpennessOf(const std::string& league) {
    Openness open{};
    for (int roll = kFirstRoll; roll <= kLastRoll; ++roll) {
        const auto cell = static_cast<std::size_t>(roll - kFirstRoll);
        if (kUsualOpenness[cell] == 0) continue;
        Statement query = season_->Prepare(fmt::format(
            "SELECT sum(l.BFP * (p.pitch{0}Color = {1} AND p.pitch{0} IN (' ', '(HR)'))) * 1.0 / sum(l.BFP) FROM "
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

std::map<std::string, Counts> Laboratory::Replay(int replays, int workers) {
    ReplayPlan plan;
    plan.replays = replays;
    plan.workers = workers;
    std::map<std::string, Counts> sums;
    for (const SeasonFigures& replay : PlayReplays(*common_, *season_, plan))
        for (std::size_t i = 0; i < leagues_.size(); ++i)
            for (std::size_t figure = 0; figure < kCounts; ++figure)
                if (const auto& count = replay.leagues.at(i).counts[static_cast<Figure>(figure)])
                    sums[leagues_[i]].Add(static_cast<Figure>(figure), *count);
    return sums;
}

}  // namespace tarvane::calibrate
