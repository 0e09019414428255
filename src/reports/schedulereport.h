#pragma once

#include "core/database.h"
#include "reports/table.h"

namespace tarvane {

// How often each team meets each other in the schedule, played or not: a row of totals for each team (games on the road
// and at home), then one for each opponent that it meets.
ReportTable ScheduleReport(Database& season);

}  // namespace tarvane
