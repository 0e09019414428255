#include "commands.h"

#include <fmt/format.h>

#include <chrono>
#include <cstdio>

namespace tarvane::replay {

namespace {

constexpr OptionSpec kSeed{"--seed", "N", "start the dice at N, so that the run can be repeated to the byte"};
constexpr OptionSpec kReplace{"--replace", "", "also when games have been played; their results and statistics go"};
constexpr OptionSpec kCsv{"--csv", "", "write comma-separated values"};
constexpr OptionSpec kJson{"--json", "", "write JSON"};

}  // namespace

const std::vector<Command>& Commands() {
    static const std::vector<Command> commands{
        {"new-season",
         "NAME",
         1,
         "make a season from real statistics",
         "PATH is a folder of Lahman CSV files or a Lahman database (.mdb). Without --team every team of the years is\n"
         "imported. When two chosen teams have the same code, the later ones get the code and two digits of the year.",
         {{"--source", "PATH", "the statistics", true},
          {"--year", "Y", "a season to import; may stand more than once", true, true},
          {"--team", "Y:CODE", "only this team of that year; may stand more than once", false, true},
          {"--min-ip", "N", "leave out pitchers with at most N innings"},
          {"--min-ab", "N", "leave out batters with at most N at bats"},
          {"--include-year", "", "put the year in front of the teams' names"},
          {"--free-agents", "", "make all players free agents"},
          {"--no-align", "", "one league instead of the original leagues and divisions"},
          {"--no-colors", "", "black and white instead of the teams' colours"},
          {"--pa-factor", "F", "share of plate appearances to use as at bats, between 0 and 1"},
          {"--retro", "", "real left/right splits from the workbook in the data folder, where it has them"},
          {"--overwrite", "", "replace a season of this name"},
          kSeed},
         NewSeason},
        {"seasons",
         "",
         0,
         "list the seasons, or choose the one that the desktop program opens on",
         "",
         {{"--activate", "NAME", "make this season the active one"}},
         Seasons},
        {"play",
         "NAME",
         1,
         "play one game and print its line score and box score",
         "",
         {{"--visitor", "CODE", "the visiting team", true},
          {"--home", "CODE", "the home team", true},
          {"--play-by-play", "", "tell the game as on the radio first"},
          {"--managers", "KIND", "aggressive, average or conservative instead of the teams' managers; or two: V,H"},
          kSeed},
         PlayGame},
        {"play-season",
         "NAME",
         1,
         "play the games of a season's schedule and post them",
         "Goes on where the season stands; computer managers play both sides. With the same seed every run gives the\n"
         "same season, also when it was stopped in between. The interrupt key stops after the game under way.",
         {{"--games", "N", "at most N games"},
          {"--through", "YYYY-MM-DD", "only games up to this date"},
          {"--box", "KIND", "box score and score sheet to write for each game: text, html or none"},
          kSeed},
         PlaySeason},
        {"box",
         "NAME",
         1,
         "print the box score of a game that has been played",
         "The document that was written when it was played, if that is text; else what the season's logs hold of it.",
         {{"--game", "ID", "the game's number in the schedule", true}},
         ShowBox},
        {"hash",
         "NAME",
         1,
         "print one hash over all that a season's tables hold",
         "Two seasons of the same hash hold the same rows.",
         {},
         ShowHash},
        {"audit",
         "NAME",
         1,
         "hold a season's books against each other",
         "Teams, players, logs, fielding and schedule, the two sides of each game, splits, rates, rest and streaks "
         "must "
         "say\n"
         "the same. What doesn't is printed, and the exit code is 1.",
         {},
         Audit},
        {"chart",
         "NAME",
         1,
         "show a player's charts and ratings and where each number comes from",
         "",
         {{"--player", "\"First Last\"", "the player", true},
          {"--team", "CODE", "his team, when the name isn't enough"},
          {"--pa-factor", "F", "the share that the season was imported with, if it was given one"}},
         ShowChart},
        {"compare",
         "NAME",
         1,
         "hold a season's replay against the season as it really was",
         "Without --replays: the games played so far. With it: so many replays of the whole schedule from its first\n"
         "game, on copies, with seeds 1 to N, computer managers on both sides; the season itself stays as it is.",
         {{"--replays", "N", "play N replays and compare their means"},
          {"--workers", "N", "processes at a time; without it as many as there are processors"},
          {"--actual-usage", "", "managers go by real use in the replays, whatever the season's rule says"},
          {"--own-lineups", "", "managers make the line-ups on the day, whatever the schedule has fixed"},
          {"--html", "FILE", "write a page with plots, too"},
          {"--overwrite", "", "replace FILE"},
          kCsv,
          kJson},
         CompareSeason},
        {"rates",
         "NAME",
         1,
         "play many games between a season's teams and hold their rates against the real season's",
         "All teams meet, with several starters each; nothing is written to the season. A real figure is there when "
         "the\n"
         "season was made from real statistics of whole leagues.",
         {{"--games", "N", "how many games; 2000 without it"}, kSeed},
         Rates},
        {"sample-league",
         "FOLDER",
         1,
         "write a fictional league in the layout of the Lahman CSV files",
         "For people without the real statistics: import the folder with new-season --year 1975.",
         {kSeed},
         SampleLeague},
        {"import-schedule",
         "NAME FILE",
         2,
         "take a season's games from a Retrosheet schedule file or game log",
         "Which of the two FILE is shows in its lines. Games of clubs that the season doesn't have are left out. Of a "
         "game\n"
         "log the starting pitchers and batting orders are fixed for their games too. For the other games the line-ups are\n"
         "planned by how often each man really played, where the season has real statistics and goes by real use.",
         {{"--no-lineups", "", "take the games alone; the managers make the line-ups on the day"},
          {"--strict", "", "stop at a club that the season doesn't have"},
          kReplace},
         ImportScheduleFile},
        {"make-schedule",
         "NAME",
         1,
         "make a season a balanced schedule from April to September",
         "Each team meets the others of its league as often, at home and away, in series. Line-ups are planned as for\n"
         "import-schedule.",
         {{"--games", "N", "games of each team; 154 without it"},
          {"--year", "Y", "the year, when it isn't that of the teams"},
          {"--no-lineups", "", "the managers make the line-ups on the day"},
          kReplace},
         MakeSchedule},
        {"export-schedule",
         "NAME FILE",
         2,
         "write a season's games as a schedule file",
         "",
         {{"--overwrite", "", "replace FILE"}},
         ExportScheduleFile},
        {"schedule-report",
         "NAME",
         1,
         "print how often each team meets each other",
         "",
         {kCsv, kJson},
         ShowScheduleReport},
        {"standings",
         "NAME",
         1,
         "print the standings",
         "",
         {{"--one-league", "", "all teams in one table"}, kCsv, kJson},
         ShowStandings},
        {"leaders",
         "NAME",
         1,
         "print the leaders in batting and pitching",
         "",
         {{"--top", "N", "how many of each; 10 without it; or all"},
          {"--category", "X", "this list alone: Hits, HR, Average, ERA, Saves, ..."},
          {"--league", "L", "players of this league alone: AL, NL"},
          kCsv,
          kJson},
         ShowLeaders},
        {"team-vs-team",
         "NAME",
         1,
         "print how each team fared against each other",
         "",
         {{"--inter-league", "", "also teams of different leagues"},
          {"--list", "", "a list with wins and losses instead of tables"},
          {"--team", "CODE", "the list of one team"},
          kCsv,
          kJson},
         ShowTeamVsTeam},
        {"log",
         "NAME",
         1,
         "print a player's games",
         "",
         {{"--player", "\"First Last\"", "the player", true},
          {"--team", "CODE", "his team, when the name isn't enough"},
          kCsv,
          kJson},
         ShowPlayerLog},
        {"bench",
         "",
         0,
         "play a fixed set of games and print their signature and the speed",
         "The signature is one hash over all box scores: it changes exactly when the game's behaviour does.",
         {{"--games", "N", "how many games; the signature that the tests hold is that of the default"}},
         Bench},
    };
    return commands;
}

std::uint64_t SeedOf(const Options& options) {
    if (const auto seed = options.Seed()) return *seed;
    const auto now = std::chrono::system_clock::now().time_since_epoch().count();
    const auto seed = static_cast<std::uint64_t>(now) % 1000000007ULL;
    fmt::print(stderr, "seed: {}\n", seed);
    return seed;
}

}  // namespace tarvane::replay
