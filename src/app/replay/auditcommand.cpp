// The command that holds a season's books against each other.

#include <fmt/format.h>

#include "base/error.h"
#include "installation.h"
#include "season/scheduleimport.h"
#include "season/seasonaudit.h"

namespace tarvane::replay {

int Audit(const Context& context, const Options& options) {
    constexpr std::size_t kShown = 50;
    Installation installation(context);
    Database season = installation.OpenSeason(options.Positional(0));
    const std::vector<std::string> faults = AuditSeason(season);
    for (std::size_t i = 0; i < faults.size() && i < kShown; ++i) fmt::print("{}\n", faults[i]);
    if (!faults.empty())
        throw UserError(fmt::format("{} accounts don't balance{}", faults.size(),
                                    faults.size() > kShown ? fmt::format("; the first {} are shown", kShown) : ""));
    fmt::print("all accounts of {} games balance\n", CountPlayedGames(season));
    return 0;
}

}  // namespace tarvane::replay
