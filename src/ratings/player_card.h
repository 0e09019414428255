#pragma once

#include <string>
#include <string_view>

#include "core/database.h"
#include "ratings/derivation.h"

namespace tarvane {

// Everything about a player on one page: what he plays with (ratings, positions, both charts) and the way there from
// his statistics. Of two men of one name, or a man who bats and pitches, there is a card each.
//
// The name's case doesn't matter; an empty team is any. Settings are those his charts were made with: they aren't
// stored, so a season made with others is explained by slightly other weights than it was made by. Throws UserError if
// nobody has the name; the message tells who comes near.
std::string PlayerCard(Database& season, Database& common, std::string_view name, std::string_view team,
                       const ChartSettings& settings);

}  // namespace tarvane
