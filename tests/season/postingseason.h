#pragma once

#include <fmt/core.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

#include "sample/sampleleague.h"
#include "season/seasonplay.h"
#include "seasons.h"

namespace tarvane::testing {

// A balanced schedule of so many rounds: every team plays once a round, by the circle method; from the second day of
// April on a round a day, the sides changing from one turn of the circle to the next.
inline void WriteRoundRobin(Database& season, int rounds) {
    std::vector<std::int64_t> teams;
    for (Recordset rows = season.OpenRecordset("KorvTeams", {}, {}, "TeamIdx"); !rows.EndOfFile(); rows.MoveNext())
        teams.push_back(rows.GetInt("TeamIdx"));
    Transaction transaction(season);
    Recordset schedule = season.OpenRecordset("Schedule");
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t pair = 0; pair < teams.size() / 2; ++pair) {
            std::int64_t visitor = teams[pair], home = teams[teams.size() - 1 - pair];
            if ((round + (pair == 0 ? round / 2 : 0)) % 2 == 1) std::swap(visitor, home);
            schedule.AddNew();
            const int day = round + 2;
            schedule.Set("GameDate", fmt::format("1975-{:02}-{:02}", 4 + day / 30, 1 + day % 30));
            schedule.Set("VisitorTeamIndex", visitor);
            schedule.Set("HomeTeamIndex", home);
            schedule.Update();
        }
        std::rotate(teams.begin() + 1, teams.end() - 1, teams.end());
    }
    transaction.Commit();
}

// The sample league with a schedule.
inline std::unique_ptr<PlayableSeason> MakeScheduledSeason(int rounds) {
    const TempFolder folder;
    WriteSampleLeague(folder.Path(), 11);
    auto made = std::make_unique<PlayableSeason>(folder.Path(), kSampleYear);
    WriteRoundRobin(*made->season, rounds);
    return made;
}

inline SeasonRunResult PlaySome(PlayableSeason& made, long games, std::uint64_t seed = 7) {
    SeasonPlayer player(*made.common, *made.season);
    SeasonWatcher nobody;
    SeasonRun run;
    run.seed = seed;
    run.games = games;
    return player.Run(run, nobody);
}

}  // namespace tarvane::testing
