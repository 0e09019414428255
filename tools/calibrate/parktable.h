#pragma once

#include "facttable.h"
#include "parkfences.h"

namespace tarvane::calibrate {

// What a park chart is laid for: the factors of a row of park facts, less 1, each corrected by what replays showed.
ChartWishes ParkWishes(const FactTable& parks, std::int32_t parkID);

// The seed table of parks: each park with its fences as far as they are known and the chart that gives its factors in the
// leagues of its year, all together; a park of no year, and one whose year the eras lack, has an empty chart.
void WriteParkSeed(const std::filesystem::path& file, const FactTable& parks, const ParkFences& fences,
                   const FactTable& eras);

}  // namespace tarvane::calibrate
