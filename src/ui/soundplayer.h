#pragma once

#include <memory>

#include "ui/services.h"

namespace tarvane {

// The sound of a running desktop: wave files as effects, other files as the system's media player can play them.
// Devices are looked for with the first sound; without one all is silent and costs nothing.
std::unique_ptr<SoundPlayer> MakeSoundPlayer();

}  // namespace tarvane
