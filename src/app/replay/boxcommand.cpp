// The command that prints the box score of a posted game.

#include <fmt/format.h>

#include "base/file.h"
#include "documents/loggedbox.h"
#include "installation.h"

namespace tarvane::replay {

int ShowBox(const Context& context, const Options& options) {
    constexpr long kMostGames = 1'000'000;
    Installation installation(context);
    const std::string& name = options.Positional(0);
    Database season = installation.OpenSeason(name);
    const auto gameID = static_cast<std::int32_t>(options.Number("--game", 0, 1, kMostGames));
    const std::string file = BoxScoreFileOf(season, gameID);
    const std::filesystem::path path = installation.Paths().GameResults(name) / file;
    if (file.ends_with(".txt") && std::filesystem::exists(path))
        fmt::print("{}", ReadFile(path));
    else
        fmt::print("{}", BoxScoreText(LoggedBox(season, gameID), {}));
    return 0;
}

}  // namespace tarvane::replay
