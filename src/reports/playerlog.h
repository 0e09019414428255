#pragma once

#include <string>
#include <vector>

#include "core/database.h"
#include "reports/table.h"

namespace tarvane {

// The games of a player, in the order of their dates: a table for his row as a batter, one for his row as a pitcher,
// each if there is such a row. A row of a pitcher's log that holds his batting alone is no appearance and is left out.
// Names are taken case aside; teamID narrows them, empty for any. Throws UserError if nobody has the name, or several
// men have.
std::vector<ReportTable> PlayerLog(Database& season, const std::string& playerName, const std::string& teamID = {},
                                   bool tournament = false);

}  // namespace tarvane
