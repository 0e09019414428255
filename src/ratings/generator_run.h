#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "ratings/generators.h"
#include "ratings/season_tables.h"

namespace tarvane {

// What the runs share: which players they cover, which era each is measured by, and how a row is written back.

// Finds the baseline of a player: his league's, or in a run for one player that of the chosen era.
class BaselineFinder {
  public:
    // Throws NoLeaguesError in a whole-season run without leagues; what names the thing that isn't generated.
    BaselineFinder(Database& season, Database& common, const GeneratorScope& scope, std::string_view what,
                   std::string_view title);
    const LeagueBaseline* Find(const PlayerRow& player) const;  // null if his league has no era

  private:
    bool single_;
    std::vector<LeagueBaseline> baselines_;
};

// The rows of a table that a run covers: all, the one player's, or none when he is of the other kind.
std::vector<PlayerRow> PlayersInScope(Database& season, PlayerTable table, const GeneratorScope& scope);

// One prepared UPDATE of named columns. Values are put in the order of the columns, then the row is written.
class RowUpdate {
  public:
    // A column text that holds '=' is taken as it stands, with one ? for its value.
    RowUpdate(Database& database, std::string_view table, const std::vector<std::string>& columns);
    RowUpdate& Put(const Value& value);
    RowUpdate& PutInt(std::int64_t value) { return Put(Value(value)); }
    void Write(std::int64_t rowid);

  private:
    std::size_t columns_;
    Statement statement_;
    int next_ = 1;
};

// Appends <prefix>10, <prefix>10Color, ... of the rolls from first to last.
void AddCellColumns(std::vector<std::string>& columns, std::string_view prefix, int first = kFirstRoll,
                    int last = kLastRoll);
void PutCells(RowUpdate& update, const ChartCells& cells);

// Appends the six chance columns of a batting chart.
void AddChanceColumns(std::vector<std::string>& columns, std::string_view prefix);
void PutChances(RowUpdate& update, const BattingChances& chances);

// How often a watcher hears of a run.
inline constexpr int kReportEvery = 50;

}  // namespace tarvane
