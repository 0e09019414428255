#pragma once

#include <filesystem>
#include <vector>

#include "accuracy/figures.h"
#include "base/progress.h"

namespace tarvane {

struct ReplayPlan {
    int replays = 1;
    int workers = 0;           // processes at a time; 0: as many as there are processors
    bool actualUsage = false;  // whatever the season's rule says; false leaves the rule as it is
    bool ownLineups = false;   // the managers', made on the day; else those fixed for the games, where there are any
};

// Plays the season's schedule from its first game so many times, each replay on a fresh copy in a temporary folder,
// with seeds 1 to N and a process of its own, computer managers on both sides, and reads what each adds up to, in the
// order of the seeds. A season without a schedule gets a balanced one of the real number of games in the copies. The
// databases given are only read, and no file is left behind, whatever happens. Throws UserError if a replay fails (with
// its reason), Cancelled if progress asks for an end or the interrupt key is pressed.
std::vector<SeasonFigures> PlayReplays(Database& common, Database& season, const ReplayPlan& plan,
                                       Progress* progress = nullptr);

}  // namespace tarvane
