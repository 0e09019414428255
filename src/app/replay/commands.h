#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

#include "options.h"

namespace tarvane::replay {

// What every command is given besides its own options.
struct Context {
    std::filesystem::path dataDir;      // empty: the user's own data folder
};

struct Command {
    std::string_view name;
    std::string_view positionalNames;  // "NAME", or empty
    std::size_t positionals = 0;
    std::string_view summary;
    std::string_view details;  // paragraphs for --help; may be empty
    std::vector<OptionSpec> options;
    int (*run)(const Context&, const Options&);
};

// All commands, in the order of the help.
const std::vector<Command>& Commands();

int NewSeason(const Context&, const Options&);
int Seasons(const Context&, const Options&);
int PlayGame(const Context&, const Options&);
int ShowChart(const Context&, const Options&);
int Bench(const Context&, const Options&);
int Rates(const Context&, const Options&);
int CompareSeason(const Context&, const Options&);
int PlaySeason(const Context&, const Options&);
int ShowBox(const Context&, const Options&);
int ShowHash(const Context&, const Options&);
int Audit(const Context&, const Options&);
int SampleLeague(const Context&, const Options&);
int ImportScheduleFile(const Context&, const Options&);
int MakeSchedule(const Context&, const Options&);
int ExportScheduleFile(const Context&, const Options&);
int ShowScheduleReport(const Context&, const Options&);
int ShowStandings(const Context&, const Options&);
int ShowLeaders(const Context&, const Options&);
int ShowTeamVsTeam(const Context&, const Options&);
int ShowPlayerLog(const Context&, const Options&);

// A seed for a run that was given none: from the clock, told on standard error so that the run can be repeated.
std::uint64_t SeedOf(const Options& options);

}  // namespace tarvane::replay
