#include "ratings/season_tables.h"

#include <fmt/format.h>

#include <array>
#include <optional>

namespace tarvane {

namespace {

// Reads the columns of a row one after the other.
class StatReader {
  public:
    explicit StatReader(const Statement& statement, int first = 0) : statement_(statement), next_(first) {}
    int Int() { return static_cast<int>(statement_.Int(next_++)); }
    double Double() { return statement_.Double(next_++); }
    std::string Text() { return statement_.Text(next_++); }
    std::optional<int> Count() {
        if (statement_.IsNull(next_)) {
            ++next_;
            return std::nullopt;
        }
        return Int();
    }

  private:
    const Statement& statement_;
    int next_;
};

constexpr std::string_view kSplitColumns = "AB H 2B 3B HR RBI BB SO HBP SH SF GIDP";

// "vsLeftAB", "vsLeftH", ... in the order of a split line.
std::string SplitColumnList(std::string_view prefix) {
    std::string list;
    std::string_view names = kSplitColumns;
    while (!names.empty()) {
        const std::string_view name = names.substr(0, names.find(' '));
        names.remove_prefix(std::min(names.size(), name.size() + 1));
        list += fmt::format(", \"{}{}\"", prefix, name);
    }
    return list;
}

SplitLine ReadSplitLine(StatReader& row) {
    SplitLine line;
    for (int SplitLine::*column :
         {&SplitLine::AB, &SplitLine::H, &SplitLine::Doubles, &SplitLine::Triples, &SplitLine::HR, &SplitLine::RBI,
          &SplitLine::BB, &SplitLine::SO, &SplitLine::HBP, &SplitLine::SH, &SplitLine::SF, &SplitLine::GIDP}) {
        line.*column = row.Int();
    }
    return line;
}

constexpr std::string_view kKeyColumns = "rowid, playerID, lgID, teamID, KorvTeamID, yearID, stint";

template <class Row>
void ReadKeys(StatReader& reader, Row& row) {
    row.playerID = reader.Text();
    row.lgID = reader.Text();
    row.teamID = reader.Text();
    row.KorvTeamID = reader.Text();
    row.yearID = reader.Int();
    row.stint = reader.Int();
}

std::string_view OfTeam(const std::optional<std::string>& team) {
    return team ? " WHERE KorvTeamID = ? ORDER BY rowid" : " ORDER BY rowid";
}

constexpr std::string_view TableName(PlayerTable table) {
    return table == PlayerTable::Batters ? "KorvBatters" : "KorvPitchers";
}

std::string PlayerQuery(PlayerTable table) {
    return fmt::format("SELECT rowid, playerID, LahmanPlayerID, teamID, playerName, lgIdx, bats, runRating{} FROM {}",
                       table == PlayerTable::Pitchers ? ", throws" : "", TableName(table));
}

PlayerRow ReadPlayerRow(const Statement& statement, PlayerTable table) {
    PlayerRow row;
    row.rowid = statement.Int(0);
    StatReader reader(statement, 1);
    row.playerID = reader.Int();
    row.LahmanPlayerID = reader.Text();
    row.teamID = reader.Text();
    row.playerName = reader.Text();
    row.lgIdx = reader.Int();
    row.bats = reader.Int();
    row.runRating = reader.Int();
    if (table == PlayerTable::Pitchers) row.throws_ = reader.Int();
    return row;
}

}  // namespace

std::vector<PlayerRow> ReadPlayers(Database& season, PlayerTable table) {
    std::vector<PlayerRow> rows;
    Statement query = season.Prepare(PlayerQuery(table) + " ORDER BY rowid");
    while (query.Step()) rows.push_back(ReadPlayerRow(query, table));
    return rows;
}

std::vector<PlayerRow> ReadPlayer(Database& season, PlayerTable table, std::int32_t playerID,
                                  const std::string& teamID) {
    std::vector<PlayerRow> rows;
    Statement query = season.Prepare(PlayerQuery(table) + " WHERE playerID = ? AND teamID = ? ORDER BY rowid");
    query.Bind(1, std::int64_t{playerID});
    query.Bind(2, teamID);
    while (query.Step()) rows.push_back(ReadPlayerRow(query, table));
    return rows;
}

StatisticsTable<LahmanBattingRow> ReadLahmanBatting(Database& season, const std::optional<std::string>& team) {
    StatisticsTable<LahmanBattingRow> table;
    Statement query =
        season.Prepare(fmt::format("SELECT {}, G, AB, R, H, \"2B\", \"3B\", HR, RBI, SB, BB, CS, SO, IBB, HBP, SH, SF, "
                                   "GIDP{}{}, HitRunRating FROM LahmanBatting{}",
                                   kKeyColumns, SplitColumnList("vsLeft"), SplitColumnList("vsRight"), OfTeam(team)));
    if (team) query.Bind(1, *team);
    using Row = LahmanBattingRow;
    while (query.Step()) {
        Row row;
        StatReader reader(query, 1);
        ReadKeys(reader, row);
        for (int Row::*column : {&Row::G, &Row::AB, &Row::R, &Row::H, &Row::Doubles, &Row::Triples, &Row::HR, &Row::RBI,
                                 &Row::SB, &Row::BB}) {
            row.*column = reader.Int();
        }
        for (std::optional<int> Row::*column :
             {&Row::CS, &Row::SO, &Row::IBB, &Row::HBP, &Row::SH, &Row::SF, &Row::GIDP}) {
            row.*column = reader.Count();
        }
        row.vsLeft = ReadSplitLine(reader);
        row.vsRight = ReadSplitLine(reader);
        row.HitRunRating = reader.Int();
        table.Add(query.Int(0), std::move(row));
    }
    return table;
}

StatisticsTable<LahmanPitchingRow> ReadLahmanPitching(Database& season, const std::optional<std::string>& team) {
    StatisticsTable<LahmanPitchingRow> table;
    Statement query = season.Prepare(fmt::format(
        "SELECT {}, W, L, G, GS, CG, SHO, SV, IPouts, H, ER, HR, BB, SO, IBB, WP, HBP, BK, GF, BFP, R, ERA, "
        "OppAB, EPC FROM LahmanPitching{}",
        kKeyColumns, OfTeam(team)));
    if (team) query.Bind(1, *team);
    using Row = LahmanPitchingRow;
    while (query.Step()) {
        Row row;
        StatReader reader(query, 1);
        ReadKeys(reader, row);
        for (int Row::*column : {&Row::W, &Row::L, &Row::G, &Row::GS, &Row::CG, &Row::SHO, &Row::SV, &Row::IPouts,
                                 &Row::H, &Row::ER, &Row::HR, &Row::BB, &Row::SO}) {
            row.*column = reader.Int();
        }
        for (std::optional<int> Row::*column :
             {&Row::IBB, &Row::WP, &Row::HBP, &Row::BK, &Row::GF, &Row::BFP, &Row::R}) {
            row.*column = reader.Count();
        }
        row.ERA = reader.Double();
        row.OppAB = reader.Double();
        row.EPC = reader.Int();
        table.Add(query.Int(0), std::move(row));
    }
    return table;
}

StatisticsTable<LahmanFieldingRow> ReadLahmanFielding(Database& season, const std::optional<std::string>& team) {
    StatisticsTable<LahmanFieldingRow> table;
    Statement query = season.Prepare(
        fmt::format("SELECT {}, Pos, G, PO, A, E, DP, PB FROM LahmanFielding{}", kKeyColumns, OfTeam(team)));
    if (team) query.Bind(1, *team);
    using Row = LahmanFieldingRow;
    while (query.Step()) {
        Row row;
        StatReader reader(query, 1);
        ReadKeys(reader, row);
        row.Pos = reader.Text();
        for (double Row::*column : {&Row::G, &Row::PO, &Row::A, &Row::E, &Row::DP, &Row::PB})
            row.*column = reader.Double();
        table.Add(query.Int(0), std::move(row));
    }
    return table;
}

bool HasLeagues(Database& season) {
    return season.Prepare("SELECT lgIdx FROM Leagues LIMIT 1").Step();
}

}  // namespace tarvane
