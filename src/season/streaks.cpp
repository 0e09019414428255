#include "season/streaks.h"

#include <fmt/core.h>

#include "data/resets.h"

namespace tarvane {

namespace {

// A streak grows by the result of the latest game; the ten results move up when all slots are taken.
std::string GrowStreak() {
    std::string slots;
    for (int slot = 1; slot <= 10; ++slot) {
        const std::string own = fmt::format("Game{}WL", slot);
        const std::string next = slot < 10 ? fmt::format("Game{}WL", slot + 1) : "?1";
        // Full: everything moves. Else the first free slot, whose forerunner is taken, takes the result.
        const std::string free =
            slot == 1 ? fmt::format("coalesce({}, '') NOT IN ('W', 'L')", own)
                      : fmt::format("coalesce({}, '') NOT IN ('W', 'L') AND Game{}WL IN ('W', 'L')", own, slot - 1);
        slots += fmt::format(", {0} = CASE WHEN Game10WL IN ('W', 'L') THEN {1} WHEN {2} THEN ?1 ELSE {0} END", own,
                             next, free);
    }
    return "UPDATE KorvTeams SET StreakNumberGames = CASE WHEN WinLossStreak = ?1 THEN coalesce(StreakNumberGames, 0) "
           "+ 1 ELSE 1 END, WinLossStreak = ?1" +
           slots + " WHERE TeamIdx = ?2";
}

}  // namespace

StreakKeeper::StreakKeeper(Database& season) : season_(season), grow_(season.Prepare(GrowStreak())) {}

bool StreakKeeper::IsLatest(std::int32_t teamIdx, const Place& game) {
    const auto [last, unknown] = lastPlayed_.try_emplace(teamIdx);
    if (unknown) {
        Statement row = season_.Prepare(
            "SELECT GameDate, GameID FROM Schedule WHERE Played <> 0 AND (VisitorTeamIndex = ?1 OR HomeTeamIndex = ?1) "
            "AND GameID <> ?2 ORDER BY GameDate DESC, GameID DESC LIMIT 1");
        row.Bind(1, std::int64_t{teamIdx});
        row.Bind(2, game.second);
        if (row.Step()) last->second = {row.Text(0), row.Int(1)};
    }
    if (game < last->second) return false;
    last->second = game;
    return true;
}

bool StreakKeeper::Add(std::int32_t teamIdx, std::int32_t gameID, const std::string& gameDate, bool won) {
    if (!IsLatest(teamIdx, {gameDate, gameID})) {
        RebuildStreaks(season_, teamIdx);
        return false;
    }
    grow_.Bind(1, std::string(won ? "W" : "L"));
    grow_.Bind(2, std::int64_t{teamIdx});
    grow_.Step();
    grow_.Reset();
    return true;
}

}  // namespace tarvane
