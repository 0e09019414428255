#include "installation.h"

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>

#include "base/error.h"
#include "base/text.h"
#include "data/seasons.h"
#include "data/seeds.h"
#include "data/upgrade.h"

namespace tarvane::replay {

namespace {

DataPaths Prepare(const Context& context) {
    const DataPaths paths =
        context.dataDir.empty() ? DetermineDataPath() : DetermineDataPath(std::filesystem::absolute(context.dataDir));
    MakeDataFiles(paths, AssetsPath() / "seeds");
    return paths;
}

}  // namespace

Installation::Installation(const Context& context) : paths_(Prepare(context)), common_(paths_.CommonFile()) {
    UpgradeCommonTables(common_);
    EnsureDefensiveEras(common_, paths_.DefensiveErasFile());
}

SeasonEntry Installation::FindSeason(const std::string& name) {
    const auto seasons = ListSeasons(common_);
    const auto found = std::find_if(seasons.begin(), seasons.end(),
                                    [&](const SeasonEntry& s) { return EqualsIgnoreCase(s.LeagueName, name); });
    if (found == seasons.end()) {
        std::string names;
        for (const SeasonEntry& s : seasons) names += fmt::format("{}\"{}\"", names.empty() ? "" : ", ", s.LeagueName);
        throw UserError(fmt::format("there is no season \"{}\"; {}", name,
                                    names.empty() ? "make one with new-season" : "there are: " + names));
    }
    return *found;
}

void Installation::Activate(const std::string& name) {
    const SeasonEntry season = FindSeason(name);
    Transaction transaction(common_);
    common_.Execute("UPDATE SeasonsDB SET Active = 0");
    common_.Execute("UPDATE SeasonsDB SET Active = -1 WHERE LeagueID = ?", {season.LeagueID});
    transaction.Commit();
}

Database Installation::OpenSeason(const std::string& name) {
    Database season(paths_.SeasonFile(FindSeason(name).LeagueName));
    UpgradeSeasonTables(season);
    UpgradeLeagueRules(season);
    return season;
}

TerminalProgress::TerminalProgress() : terminal_(isatty(STDERR_FILENO) != 0) {}

TerminalProgress::~TerminalProgress() {
    Clear();
}

bool TerminalProgress::Report(std::string_view what, int done, int total) {
    if (!terminal_) return true;
    const auto now = std::chrono::steady_clock::now();
    if (shown_ && now - last_ < std::chrono::milliseconds(80)) return true;
    last_ = now;
    shown_ = true;
    const int percent = total > 0 ? static_cast<int>(100LL * done / total) : 0;
    fmt::print(stderr, "\r\x1b[K{} {}%", what, percent);
    std::fflush(stderr);
    return true;
}

void TerminalProgress::Clear() {
    if (!shown_) return;
    fmt::print(stderr, "\r\x1b[K");
    std::fflush(stderr);
}

}  // namespace tarvane::replay
