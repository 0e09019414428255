#pragma once

#include "data/rowreader.h"
#include "records/player.h"

namespace tarvane {

// A row of KorvBatters or KorvPitchers as it is stored; the loaders apply the rules of the season to it.
void ReadBatter(RowReader& row, Batter& batter);
void ReadPitcher(RowReader& row, Pitcher& pitcher);

// Statistics and injury alone: what the tournament tables hold under the same names.
void ReadBatterTotals(RowReader& row, Batter& batter);
void ReadPitcherTotals(RowReader& row, Pitcher& pitcher);

}  // namespace tarvane
