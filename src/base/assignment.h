#pragma once

#include <vector>

namespace tarvane {

// Gives each row a column of its own so that the sum of the values is greatest (the Hungarian method with potentials).
// value[row][column], all rows of one length, at least as many columns as rows. Returns the column of each row.
std::vector<int> BestAssignment(const std::vector<std::vector<double>>& value);

}  // namespace tarvane
