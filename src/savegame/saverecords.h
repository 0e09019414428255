#pragma once

#include <string>

#include "engine/gamestate.h"
#include "ratings/lahman_records.h"
#include "records/park.h"
#include "records/team.h"
#include "savegame/savefields.h"

namespace tarvane {

// The records that a save file is made of. Each function tells one kind of record, for writing and for reading; who is
// the file's name for it in messages, such as "visitor batter 3".

// "visitor" and "home", as messages name the sides.
std::string SideWord(Side side);

// --- saveplayers.cpp ---

// Thirty lines of text and colour; name is the chart's.
void SaveChart(SaveFields& f, ChartCells& cells, const std::string& name);
// The record line of a batter, his 8 positions, his charts against left and right.
void SaveBatter(SaveFields& f, Batter& man, const std::string& who);
// The record line of a pitcher, his 4 positions, his pitching and his batting chart.
void SavePitcher(SaveFields& f, Pitcher& man, const std::string& who);

// --- savesurroundings.cpp ---

void SavePark(SaveFields& f, Ballpark& park);
void SaveYear(SaveFields& f, YearEffects& year);
// A stored list: its head and nine slots.
void SaveList(SaveFields& f, LineupList& list, const std::string& who);
// The figures of real men that the screens show.
void SaveRealBatter(SaveFields& f, LahmanRecord& man, const std::string& who);
void SaveRealPitcher(SaveFields& f, LahmanPitchRecord& man, const std::string& who);

// --- savelines.cpp ---

// Who a line is about, as the file has him: the record's key and the kind of record.
struct SavedMan {
    std::int32_t playerID = 0;
    char type = 'B';
    std::string name;
};
void SaveBatterLine(SaveFields& f, BatterLine& line, SavedMan& man, const std::string& who);
void SaveFielderLine(SaveFields& f, FielderLine& line, SavedMan& man, const std::string& who);
// Fatigue and fatigue ratings are those of the team's pitcher now, on every line.
void SavePitchingLine(SaveFields& f, PitchingLine& line, SavedMan& man, TeamState& team, const std::string& who);

}  // namespace tarvane
