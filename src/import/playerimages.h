#pragma once

#include "core/database.h"
#include "core/paths.h"

namespace tarvane {

// Gives each batter and pitcher the photograph named after him and his team, else after him alone. A player without one
// keeps what he has.
void AssignPlayerImages(Database& season, const DataPaths& paths);

}  // namespace tarvane
