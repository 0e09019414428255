#pragma once

#include <memory>
#include <optional>

#include "ratings/lahman_records.h"
#include "season/gamesetup.h"
#include "season/schedulesetup.h"

namespace tarvane {

// A game about to begin, with what its men did in the real season where that is known.
struct PreparedGame : GameSetup {
    PerSide<LahmanRecordSet> real;
    std::optional<ScheduledGame> scheduled;  // nothing: an exhibition
    int daysReduced = 0;  // taken off all rests of the league while the line-ups were made; goes into the posting
};
// It outlives the screen that plays it.
using GamePtr = std::shared_ptr<const PreparedGame>;

}  // namespace tarvane
