// The command that plays one game.

#include <fmt/format.h>

#include <memory>

#include "base/error.h"
#include "engine/boxtext.h"
#include "installation.h"
#include "narration/narrator.h"
#include "season/managedgame.h"

namespace tarvane::replay {

namespace {

// "average" for both sides or "aggressive,conservative" for visitors and home.
void OverrideManagers(const std::string& text, GameSetup& setup) {
    const auto comma = text.find(',');
    const PerSide<std::string> words{
        {text.substr(0, comma), comma == std::string::npos ? text : text.substr(comma + 1)}};
    for (const Side side : kBothSides) {
        std::uint8_t tendency = 0;
        if (words[side] == "aggressive") tendency = 1;
        if (words[side] == "average") tendency = 2;
        if (words[side] == "conservative") tendency = 3;
        if (tendency == 0)
            throw UserError(
                fmt::format("option --managers takes aggressive, average or conservative, one for both or two with a "
                            "comma, not '{}'",
                            text));
        setup.data.team[side].roster.tendencies = {tendency, tendency, tendency, tendency,
                                                   tendency, tendency, tendency};
    }
}

}  // namespace

int PlayGame(const Context& context, const Options& options) {
    Installation installation(context);
    Database season = installation.OpenSeason(options.Positional(0));
    GameSetup setup = LoadExhibition(installation.Common(), season, options.Text("--visitor"), options.Text("--home"));
    if (options.Has("--managers")) OverrideManagers(options.Text("--managers"), setup);
    for (const std::string& message : setup.messages) fmt::print(stderr, "{}\n", message);

    GameState state;
    StartSetup(setup, state);
    std::unique_ptr<Wordings> wordings;
    std::unique_ptr<Narrator> narrator;
    if (options.Has("--play-by-play")) {
        wordings = std::make_unique<Wordings>(Wordings::Load(AssetsPath() / "narration" / "playbyplay.txt"));
        narrator = std::make_unique<Narrator>(*wordings, [](const std::string& text) { fmt::print("{}\n", text); });
        narrator->Welcome(setup.data, state);
    }
    PlayByComputers(setup, SeedOf(options), state, narrator.get());
    if (narrator) {
        narrator->Finish();
        fmt::print("\n");
    }
    fmt::print("{}\n{}\n", BoxScoreText(setup.data, state), BoxProofText(setup.data, state));
    return ProveBox(state).Proves() ? 0 : 1;
}

}  // namespace tarvane::replay
