// The command that holds a season's replays against the real season.

#include <fmt/format.h>

#include "accuracy/comparison.h"
#include "accuracy/comparisonpage.h"
#include "accuracy/comparisontables.h"
#include "accuracy/replays.h"
#include "base/error.h"
#include "base/file.h"
#include "installation.h"

namespace tarvane::replay {

namespace {

constexpr long kMostReplays = 1000;

std::vector<SeasonFigures> ReplaysAsked(Database& common, Database& season, const Options& options) {
    if (!options.Has("--replays")) return {ReadReplayedFigures(season)};
    ReplayPlan plan;
    plan.replays = static_cast<int>(options.Number("--replays", 1, 1, kMostReplays));
    plan.workers = static_cast<int>(options.Number("--workers", 0, 1, 256));
    plan.actualUsage = options.Has("--actual-usage");
    plan.ownLineups = options.Has("--own-lineups");
    TerminalProgress progress;
    return PlayReplays(common, season, plan, &progress);
}

}  // namespace

int CompareSeason(const Context& context, const Options& options) {
    const std::filesystem::path page = options.Text("--html");
    if (!page.empty() && std::filesystem::exists(page) && !options.Has("--overwrite"))
        throw UserError(fmt::format("{} is there already; say --overwrite to replace it", page.string()));
    if (!page.parent_path().empty() && !std::filesystem::is_directory(page.parent_path()))
        throw UserError(fmt::format("there is no folder {}; make it first", page.parent_path().string()));
    Installation installation(context);
    Database season = installation.OpenSeason(options.Positional(0));
    const SeasonFigures real = ReadRealFigures(season);
    const auto parks = ReadParkFactors(installation.Common(), season);
    const Comparison comparison = Compare(real, ReplaysAsked(installation.Common(), season, options), parks);
    if (!page.empty()) WriteFile(page, ComparisonPage(comparison, options.Positional(0)));
    const auto tables = ComparisonTables(comparison);
    const ReportForm form = options.Has("--json")  ? ReportForm::Json
                            : options.Has("--csv") ? ReportForm::Csv
                                                   : ReportForm::Text;
    fmt::print("{}", RenderTables(tables, form));
    return 0;
}

}  // namespace tarvane::replay
