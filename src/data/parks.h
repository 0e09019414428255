#pragma once

#include <filesystem>
#include <vector>

#include "core/database.h"
#include "core/messages.h"
#include "records/era.h"
#include "records/park.h"
#include "records/rules.h"

namespace tarvane {

// Loaders of what changes a dice roll. One that doesn't find exactly one row warns, leaves what it was given as it was
// and gives false: a game goes on with the last values.

// Reads a park, and into baseline the averages of its year, against which its factors are worked out: all 0 if the park
// has no averages of its own, is an average park, or its year has no combined row. images is the folder of the
// pictures.
bool LoadBallpark(Database& common, std::int32_t parkID, const std::filesystem::path& images, MessageSink& messages,
                  Ballpark& park, EraAverages& baseline);

// Reads the chart of an era, unless normalizeEraID is above 0, and into baseline the averages of the era that its
// factors are measured against: the one that normalizeEraID names (which takes the era found if it was 0), or the one
// the era's row names. Does nothing, and gives true, if year effects are off or eraID is 0.
bool LoadYearEffects(Database& common, const LeagueRules& rules, std::int32_t eraID, std::int32_t& normalizeEraID,
                     MessageSink& messages, YearEffects& effects, EraAverages& baseline);

bool LoadDefensiveEra(Database& common, std::int32_t eraID, MessageSink& messages, DefensiveEra& era);

// The baseline of one era, for the league lgIdx. False if there is no such era.
bool LoadEraBaseline(Database& common, std::int32_t eraID, std::int16_t lgIdx, LeagueBaseline& baseline);

// The baselines of the season's leagues, up to three; a league without an era has none.
std::vector<LeagueBaseline> LoadLeagueBaselines(Database& common, Database& season);

}  // namespace tarvane
