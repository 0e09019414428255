#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "season/schedulefile.h"

namespace tarvane {

inline constexpr std::size_t kGameLogFields = 161;

// Starters and batting orders of a line of a game log. cells holds at least kGameLogFields.
PerSide<LoggedTeam> ReadLoggedTeams(const std::vector<std::string_view>& cells);

}  // namespace tarvane
