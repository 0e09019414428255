#pragma once

#include <filesystem>

#include "sample/league.h"

namespace tarvane::sample {

// Writes the tables of a played season into the folder. Throws UserError.
void WriteTables(const std::filesystem::path& folder, const MadeLeague& league);

}  // namespace tarvane::sample
