#pragma once

#include <vector>

#include "accuracy/comparison.h"
#include "reports/table.h"

namespace tarvane {

// The comparison as plain tables: league rates, clubs, players, use, hands, parks, and what must hold.
std::vector<ReportTable> ComparisonTables(const Comparison& comparison);

}  // namespace tarvane
