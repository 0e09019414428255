// Commands that print reports of a season.

#include <fmt/format.h>

#include <algorithm>
#include <cstdio>

#include "base/error.h"
#include "base/text.h"
#include "data/teams.h"
#include "installation.h"
#include "reports/leaders.h"
#include "reports/playerlog.h"
#include "reports/schedulereport.h"
#include "reports/standings.h"

namespace tarvane::replay {

namespace {

void PrintTables(const std::vector<ReportTable>& tables, const Options& options, std::size_t abreast = 1) {
    if (options.Has("--csv") && options.Has("--json")) throw UserError("say --csv or --json, not both");
    const ReportForm form = options.Has("--csv")    ? ReportForm::Csv
                            : options.Has("--json") ? ReportForm::Json
                                                    : ReportForm::Text;
    fmt::print("{}", RenderTables(tables, form, abreast));
}

std::int16_t LeagueNamed(Database& season, const std::string& name) {
    std::string names;
    for (const League& league : LoadLeagues(season).leagues) {
        if (EqualsIgnoreCase(name, league.shortName) || EqualsIgnoreCase(name, league.lgName)) return league.lgIdx;
        names += fmt::format("{}{}", names.empty() ? "" : ", ", league.shortName);
    }
    throw UserError(fmt::format("there is no league \"{}\"; {}", name,
                                names.empty() ? "this season has none" : "there are: " + names));
}

int TopOf(const Options& options) {
    constexpr long kUsual = 10, kMost = 100000;
    if (EqualsIgnoreCase(options.Text("--top"), "all")) return 0;
    return static_cast<int>(options.Number("--top", kUsual, 1, kMost));
}

}  // namespace

int ShowStandings(const Context& context, const Options& options) {
    Installation installation(context);
    Database season = installation.OpenSeason(options.Positional(0));
    StandingsChoice choice;
    choice.oneLeague = options.Has("--one-league");
    PrintTables(Standings(season, choice), options);
    return 0;
}

int ShowLeaders(const Context& context, const Options& options) {
    Installation installation(context);
    Database season = installation.OpenSeason(options.Positional(0));
    LeadersChoice choice;
    choice.top = TopOf(options);
    choice.category = options.Text("--category");
    if (options.Has("--league")) choice.lgIdx = LeagueNamed(season, options.Text("--league"));
    std::vector<ReportTable> tables = BattingLeaders(season, choice);
    const std::vector<ReportTable> pitching = PitchingLeaders(season, choice);
    if (tables.empty() && pitching.empty())
        throw UserError(fmt::format("there is no category \"{}\"; there are: {}", choice.category,
                                    fmt::join(LeaderCategories(), ", ")));
    // "Walks" means one thing at the plate and another on the mound.
    for (ReportTable& table : tables) table.title = "Batting: " + table.title;
    for (const ReportTable& table : pitching) {
        tables.push_back(table);
        tables.back().title = "Pitching: " + table.title;
    }
    constexpr std::size_t kAbreast = 3;
    PrintTables(tables, options, kAbreast);
    return 0;
}

int ShowTeamVsTeam(const Context& context, const Options& options) {
    Installation installation(context);
    Database season = installation.OpenSeason(options.Positional(0));
    TeamVsTeamChoice choice;
    choice.interLeague = options.Has("--inter-league");
    choice.list = options.Has("--list") || options.Has("--team");
    if (options.Has("--team")) {
        const std::vector<Team> teams = LoadTeamList(season, {});
        const Team* team = FindTeamByCode(teams, options.Text("--team"));
        if (!team) throw UserError(fmt::format("the season has no team \"{}\"", options.Text("--team")));
        choice.team = team->TeamIdx;
    }
    PrintTables(TeamVersusTeam(season, choice), options);
    return 0;
}

int ShowPlayerLog(const Context& context, const Options& options) {
    Installation installation(context);
    Database season = installation.OpenSeason(options.Positional(0));
    PrintTables(PlayerLog(season, options.Text("--player"), options.Text("--team")), options);
    return 0;
}

int ShowScheduleReport(const Context& context, const Options& options) {
    Installation installation(context);
    Database season = installation.OpenSeason(options.Positional(0));
    PrintTables({ScheduleReport(season)}, options);
    return 0;
}

}  // namespace tarvane::replay
