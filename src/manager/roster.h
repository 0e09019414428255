#pragma once

#include <cstdint>
#include <string_view>

#include "engine/boxlines.h"
#include "records/team.h"

namespace tarvane {

// Look-ups in a team's records that every list and every search needs. Indexes count from 0; -1 is nobody.

int BatterIndexOf(const TeamRoster& roster, std::int32_t playerID);
int PitcherIndexOf(const TeamRoster& roster, std::int32_t playerID);

// The man of a list's slot, or nobody where the slot is empty or names somebody who has left the roster.
PlayerRef ManInSlot(const TeamRoster& roster, const ListSlot& slot);

// Healthy, active and with the team.
bool CanPlay(const Batter& batter);
bool CanPlay(const Pitcher& pitcher);
bool CanPlay(const TeamRoster& roster, PlayerRef man);

std::string_view NameOf(const TeamRoster& roster, PlayerRef man);

// Both records belong to one person: one record, one Lahman key, or one name where a key is missing. A pitcher can have
// a record as starter, as reliever and as batter.
bool SamePerson(const TeamRoster& roster, PlayerRef a, PlayerRef b);

// The list of a type; for 'D' that of a depth position (C to RF, DH, PH). Null if the team has none.
const LineupList* FindList(const TeamRoster& roster, char type, Position depth = Position::None);
LineupList* FindList(TeamRoster& roster, char type, Position depth = Position::None);

// The rating at a position, or null if it isn't among the man's positions.
const PositionRating* RatingAt(const Batter& batter, Position position);
const PositionRating* RatingAt(const TeamRoster& roster, PlayerRef man, Position position);

// How often he reaches base, in thousandths, over both charts: the one figure of a batter where no hand is known.
int OnBase(const Batter& batter);
// Outs, strikeouts and green strikeouts on his chart in thousandths: the first measure of a pitcher.
int OutShare(const Pitcher& pitcher);

// The chance of a chart column in thousandths, as lists show and compare it.
int Thousandths(double chance);

// The ten depth charts in the order in which a team gets them.
inline constexpr Position kDepthPositions[] = {Position::C,  Position::B1, Position::B2, Position::SS, Position::B3,
                                               Position::LF, Position::CF, Position::RF, Position::DH, Position::PH};

}  // namespace tarvane
