// Commands that make and list seasons.

#include <fmt/format.h>

#include <algorithm>

#include "base/error.h"
#include "base/text.h"
#include "data/seasons.h"
#include "import/importseason.h"
#include "installation.h"
#include "sample/sampleleague.h"
#include "season/managerlists.h"

namespace tarvane::replay {

namespace {

constexpr long kFirstYear = 1901;
constexpr long kLastYear = 2100;

// "Y:CODE": one team of a year.
TeamChoice ParseTeam(const std::string& text) {
    const auto colon = text.find(':');
    const auto year = ParseInt(text.substr(0, colon));
    if (colon == std::string::npos || colon + 1 == text.size() || !year || *year < kFirstYear || *year > kLastYear)
        throw UserError(fmt::format("option --team takes a year and a team's code such as 1927:NYA, not '{}'", text));
    return {static_cast<int>(*year), text.substr(colon + 1)};
}

std::vector<TeamChoice> ChosenTeams(const Options& options) {
    std::vector<TeamChoice> teams;
    for (const std::string& text : options.Texts("--team")) teams.push_back(ParseTeam(text));
    for (const std::string& text : options.Texts("--year")) {
        const auto year = ParseInt(text);
        if (!year || *year < kFirstYear || *year > kLastYear)
            throw UserError(fmt::format("option --year takes a year from {} on, not '{}'", kFirstYear, text));
        const bool single = std::any_of(teams.begin(), teams.end(),
                                        [&](const TeamChoice& t) { return t.yearID == *year && !t.teamID.empty(); });
        if (!single) teams.push_back({static_cast<int>(*year), {}});
    }
    for (const TeamChoice& team : teams) {
        const auto years = options.Texts("--year");
        if (std::find(years.begin(), years.end(), fmt::format("{}", team.yearID)) == years.end())
            throw UserError(fmt::format("--team {}:{} needs --year {} too", team.yearID, team.teamID, team.yearID));
    }
    return teams;
}

ImportRequest RequestOf(const Options& options) {
    ImportRequest request;
    request.seasonName = options.Positional(0);
    request.source = options.Text("--source");
    request.teams = ChosenTeams(options);
    request.minIPOuts = static_cast<int>(3 * options.Number("--min-ip", 0, 0, 400));
    request.minAB = static_cast<int>(options.Number("--min-ab", 0, 0, 1000));
    request.includeYear = options.Has("--include-year");
    request.freeAgents = options.Has("--free-agents");
    request.align = !options.Has("--no-align");
    request.colors = !options.Has("--no-colors");
    request.overwrite = options.Has("--overwrite");
    request.PAFactor = options.Real("--pa-factor");
    if (request.PAFactor && (*request.PAFactor <= 0 || *request.PAFactor >= 1))
        throw UserError("option --pa-factor takes a number between 0 and 1");
    request.retro = options.Has("--retro");
    request.seed = options.Seed().value_or(1);
    request.lineups.basedOnUsage = true;  // the men who really played, not the best charts of a few at bats
    request.generateManagers = GenerateImportedManagers;
    return request;
}

}  // namespace

int NewSeason(const Context& context, const Options& options) {
    const ImportRequest request = RequestOf(options);
    Installation installation(context);
    ImportResult result;
    {
        TerminalProgress progress;
        result = ImportSeason(request, installation.Paths(), installation.Common(), &progress);
    }
    for (const std::string& line : result.counts.notes) fmt::print("{}\n", line);
    fmt::print("season \"{}\": {} teams, {} batters, {} pitchers\n", request.seasonName, result.counts.teams,
               result.counts.batters, result.counts.pitchers);
    return 0;
}

int Seasons(const Context& context, const Options& options) {
    Installation installation(context);
    if (const std::string name = options.Text("--activate"); !name.empty()) installation.Activate(name);
    for (const SeasonEntry& season : ListSeasons(installation.Common()))
        fmt::print("{}{}\n", season.LeagueName, season.Active ? "  (active)" : "");
    return 0;
}

int SampleLeague(const Context&, const Options& options) {
    const std::filesystem::path folder = options.Positional(0);
    WriteSampleLeague(folder, options.Seed().value_or(1975));
    fmt::print("a fictional league of {} stands in {}\n", kSampleYear, folder.string());
    return 0;
}

}  // namespace tarvane::replay
