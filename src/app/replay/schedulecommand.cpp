// Commands that make and write a season's schedule.

#include <fmt/format.h>

#include <algorithm>

#include "base/error.h"
#include "base/file.h"
#include "data/resets.h"
#include "data/rules.h"
#include "data/teams.h"
#include "installation.h"
#include "season/balancedschedule.h"
#include "season/plannedlineups.h"
#include "season/scheduleimport.h"

namespace tarvane::replay {

namespace {

constexpr long kMostGames = 174;

// A reset's messages are for boxes; the command tells in its own words what it did.
class NoMessages : public MessageSink {
  public:
    void Warn(const std::string&, const std::string&) override {}
    void Inform(const std::string&, const std::string&) override {}
};

// Results and statistics of the games that a new schedule takes away.
void ResetStatistics(Database& season, const std::filesystem::path& gameResults) {
    NoMessages messages;
    LeagueRules rules = LoadLeagueRules(season);
    ResetLeagueStats(season, rules, gameResults, messages);
}

// As the catalogue has it, whatever the case of the word on the command line.
std::string SeasonName(const Database& season) {
    return season.Path().parent_path().filename().string();
}

// The season's games replaced by what write makes, all or nothing.
template <class Write>
void WithSchedule(Installation& installation, const Options& options, Database& season, Write write) {
    const bool played = CountPlayedGames(season) > 0;
    if (!options.Has("--replace")) RefusePlayedSchedule(season);
    Transaction transaction(season);
    write();
    if (played) ResetStatistics(season, installation.Paths().GameResults(SeasonName(season)));
    transaction.Commit();
    if (played) fmt::print("results and statistics of the games played before were taken away\n");
}

void TellImport(const ScheduleImportResult& result, bool gameLog) {
    fmt::print("{} games scheduled\n", result.games);
    if (result.leftOut > 0) {
        std::string codes;
        for (const auto& [code, games] : result.unknown)
            codes += fmt::format("{}{} ({})", codes.empty() ? "" : ", ", code, games);
        fmt::print("{} games left out, of teams that this season doesn't have: {}\n", result.leftOut, codes);
    }
    if (!gameLog) return;
    fmt::print("{} line-ups fixed as played\n", result.lineups);
    if (result.incomplete > 0)
        fmt::print("{} line-ups left to the managers, because a man of theirs or the DH is missing\n",
                   result.incomplete);
    if (result.relieversStarting > 0)
        fmt::print("{} of their starters are relievers alone in this season; the managers choose in their place\n",
                   result.relieversStarting);
    for (const MissingMan& man : result.missing)
        fmt::print("not found in the season: {} ({}){}, {} {}\n", man.name, man.retroID,
                   man.starter ? " as starting pitcher" : "", man.games, man.games == 1 ? "game" : "games");
}

void TellPlanned(int lineups) {
    if (lineups > 0) fmt::print("{} line-ups planned by the men's real use\n", lineups);
}

// The year that the teams played in, the latest of them.
int YearOf(const std::vector<Team>& teams) {
    constexpr int kFirstYear = 1871;
    int year = 0;
    for (const Team& team : teams) year = std::max<int>(year, team.yearID);
    if (year < kFirstYear) throw UserError("the teams of this season have no year; say --year Y");
    return year;
}

}  // namespace

int ImportScheduleFile(const Context& context, const Options& options) {
    Installation installation(context);
    Database season = installation.OpenSeason(options.Positional(0));
    const std::filesystem::path path = options.Positional(1);
    const ScheduleFile file = ParseScheduleFile(ReadFile(path), path.string());
    ScheduleImportChoice choice;
    choice.leaveOutUnknown = !options.Has("--strict");
    choice.lineups = !options.Has("--no-lineups");
    ScheduleImportResult result;
    int planned = 0;
    WithSchedule(installation, options, season, [&] {
        result = ImportSchedule(season, file, choice);
        if (choice.lineups && GoesByRealUse(season)) planned = PlanScheduledLineups(season);
    });
    TellImport(result, file.gameLog && choice.lineups);
    TellPlanned(planned);
    return 0;
}

int MakeSchedule(const Context& context, const Options& options) {
    Installation installation(context);
    Database season = installation.OpenSeason(options.Positional(0));
    const std::vector<Team> teams = LoadTeamList(season, {});
    const long asked = options.Number("--year", 0, 1871, 2100);
    const int year = asked != 0 ? static_cast<int>(asked) : YearOf(teams);
    const auto games = static_cast<int>(options.Number("--games", kUsualGames, 1, kMostGames));
    const std::vector<NewGame> schedule = BalancedSchedule(teams, year, games);
    int planned = 0;
    WithSchedule(installation, options, season, [&] {
        ReplaceSchedule(season, schedule);
        if (!options.Has("--no-lineups") && GoesByRealUse(season)) planned = PlanScheduledLineups(season);
    });
    fmt::print("{} games scheduled from {} to {}\n", schedule.size(), schedule.front().date, schedule.back().date);
    TellPlanned(planned);
    return 0;
}

int ExportScheduleFile(const Context& context, const Options& options) {
    Installation installation(context);
    Database season = installation.OpenSeason(options.Positional(0));
    const std::filesystem::path path = options.Positional(1);
    if (std::filesystem::exists(path) && !options.Has("--overwrite"))
        throw UserError(fmt::format("{} is there already; say --overwrite to replace it", path.string()));
    WriteFile(path, ExportSchedule(season));
    fmt::print("the schedule stands in {}\n", path.string());
    return 0;
}

}  // namespace tarvane::replay
