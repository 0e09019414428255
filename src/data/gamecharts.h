#pragma once

#include "core/database.h"
#include "records/gamecharts.h"

namespace tarvane {

// The seven charts of the common database. Rows come in stored order, the error ratings by letter. An empty table gives
// no rows; one with more rows than its chart has is a DatabaseError.
GameCharts LoadGameCharts(Database& common);

}  // namespace tarvane
