#pragma once

#include <string>

#include "accuracy/comparison.h"

namespace tarvane {

// The comparison as one HTML page that needs no other file: plots first, then the tables.
std::string ComparisonPage(const Comparison& comparison, const std::string& seasonName);

}  // namespace tarvane
