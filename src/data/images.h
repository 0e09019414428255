#pragma once

#include <filesystem>

#include "core/database.h"

namespace tarvane {

// Gives each player of the season the photograph that bears his name: First_Last with the team's code, else First_Last
// alone, each as .jpg, .bmp or .png; case doesn't matter. One without a photograph keeps what he has. Gives how many
// were found.
int AssignPlayerImages(Database& season, const std::filesystem::path& folder);

}  // namespace tarvane
