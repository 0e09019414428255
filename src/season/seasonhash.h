#pragma once

#include <cstdint>

#include "core/database.h"

namespace tarvane {

// One number over every row of every table of a season. It depends on what the tables hold alone: not on the order in
// which rows were written or on how the file is laid out. Two seasons of equal hash were played alike.
std::uint64_t HashSeason(Database& season);

}  // namespace tarvane
