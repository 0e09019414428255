#pragma once

#include <string_view>
#include <vector>

#include "core/database.h"
#include "import/teamlist.h"

namespace tarvane {

// Whether the league's games were played with the designated hitter: the American League from 1973, the National League
// in 2020 and from 2022.
bool PlayedWithDH(std::string_view lgID, int year);

// The rule that a new season of these teams starts with: the DH for everybody if all of them had it, by home team if
// some had, else none.
void WriteDHRule(Database& season, const std::vector<LahmanTeam>& teams);

}  // namespace tarvane
