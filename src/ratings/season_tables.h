#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/database.h"
#include "records/era.h"
#include "records/lahman.h"

namespace tarvane {

// The tables that the generators work on, each read once into memory in its stored order.

// The part of a player's row that the generators go by.
struct PlayerRow {
    std::int64_t rowid = 0;
    std::int32_t playerID = 0;
    std::string LahmanPlayerID, teamID, playerName;
    int lgIdx = 0;
    std::int32_t bats = 0;
    std::int32_t throws_ = 0;  // pitchers only
    int runRating = 0;
};

enum class PlayerTable { Batters, Pitchers };

// All rows, or the one of a playerID and team.
std::vector<PlayerRow> ReadPlayers(Database& season, PlayerTable table);
std::vector<PlayerRow> ReadPlayer(Database& season, PlayerTable table, std::int32_t playerID,
                                  const std::string& teamID);

// A statistics table with the place of each row. Rows of one player and team follow each other in the table's order.
template <class Row>
class StatisticsTable {
  public:
    void Add(std::int64_t rowid, Row row) {
        index_[Key(row.playerID, row.KorvTeamID)].push_back(rows.size());
        rowids.push_back(rowid);
        rows.push_back(std::move(row));
    }

    // The places of a player's rows with a team; two stints there are two rows.
    const std::vector<std::size_t>& Find(const std::string& LahmanPlayerID, const std::string& teamID) const {
        static const std::vector<std::size_t> kNone;
        const auto found = index_.find(Key(LahmanPlayerID, teamID));
        return found == index_.end() ? kNone : found->second;
    }

    // The first of them, or null.
    const Row* First(const std::string& LahmanPlayerID, const std::string& teamID) const {
        const auto& places = Find(LahmanPlayerID, teamID);
        return places.empty() ? nullptr : &rows[places.front()];
    }

    std::vector<Row> All(const std::string& LahmanPlayerID, const std::string& teamID) const {
        std::vector<Row> found;
        for (const std::size_t place : Find(LahmanPlayerID, teamID)) found.push_back(rows[place]);
        return found;
    }

    std::vector<Row> rows;
    std::vector<std::int64_t> rowids;

  private:
    static std::string Key(const std::string& player, const std::string& team) { return player + '\t' + team; }
    std::unordered_map<std::string, std::vector<std::size_t>> index_;
};

// All teams, or the one whose KorvTeamID is given.
StatisticsTable<LahmanBattingRow> ReadLahmanBatting(Database& season, const std::optional<std::string>& team = {});
StatisticsTable<LahmanPitchingRow> ReadLahmanPitching(Database& season, const std::optional<std::string>& team = {});
StatisticsTable<LahmanFieldingRow> ReadLahmanFielding(Database& season, const std::optional<std::string>& team = {});

bool HasLeagues(Database& season);

}  // namespace tarvane
