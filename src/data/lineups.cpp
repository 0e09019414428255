#include "data/lineups.h"

#include <fmt/core.h>

#include <array>
#include <string_view>

#include "data/rowreader.h"
#include "data/schema.h"

namespace tarvane {

namespace {

constexpr int kBattingLineups = 50;
constexpr std::array<const char*, 10> kDepthTypes{"C", "1B", "2B", "SS", "3B", "LF", "CF", "RF", "DH", "PH"};

std::vector<LineupList> ReadLists(Database& season, const std::string& teamID) {
    Statement statement = season.Prepare("SELECT * FROM Lineups WHERE teamID = ? ORDER BY lineupID");
    statement.Bind(1, teamID);
    RowReader row(std::move(statement));
    std::vector<LineupList> lists;
    while (row.Next()) {
        LineupList& list = lists.emplace_back();
        list.lineupID = row.Number<std::int32_t>("lineupID");
        list.teamID = row.Text("teamID");
        list.LineupType = row.Letter("LineupType", 'L');
        list.DepthType = row.Text("DepthType");
        list.LineupName = row.Text("LineupName");
        list.BattingvsL = row.Number<std::int16_t>("BattingvsL");
        list.BattingvsR = row.Number<std::int16_t>("BattingvsR");
        int number = 0;
        for (ListSlot& slot : list.slot) {
            slot.playerID = row.NumberOf<std::int32_t>("playerID", ++number);
            slot.position = PositionFromText(row.TextOf("Position", number));
            slot.PlayerType = row.TextOf("PlayerType", number) == "P" ? 'P' : 'B';
        }
        list.playerIDP = row.Number<std::int32_t>("playerIDP");
        list.GameID = row.Number<std::int32_t>("GameID");
    }
    return lists;
}

void AddList(Statement& insert, const std::string& teamID, const char* type, const char* depthType) {
    insert.Reset();
    insert.Bind(1, teamID);
    insert.Bind(2, std::string(type));
    insert.Bind(3, std::string(depthType));
    insert.Step();
}

}  // namespace

void CreateTeamLineups(Database& season, const std::string& teamID) {
    if (teamID.empty()) return;
    Transaction transaction(season);
    Statement insert = season.Prepare("INSERT INTO Lineups (teamID, LineupType, DepthType) VALUES (?, ?, ?)");
    for (int i = 0; i < kBattingLineups; ++i) AddList(insert, teamID, "L", "");
    for (const char* depthType : kDepthTypes) AddList(insert, teamID, "D", depthType);
    for (const char* type : {"S", "R", "C", "L"}) AddList(insert, teamID, type, "");
    insert.Reset();
    transaction.Commit();
}

std::vector<LineupList> LoadTeamLineups(Database& season, const std::string& teamID) {
    UpgradeTable(season, "Lineups");
    std::vector<LineupList> lists = ReadLists(season, teamID);
    if (!lists.empty()) return lists;
    CreateTeamLineups(season, teamID);
    return ReadLists(season, teamID);
}

void SaveLineup(Database& season, const LineupList& list) {
    Recordset rs = season.OpenRecordset("Lineups", "lineupID = ?", {std::int64_t{list.lineupID}});
    if (rs.EndOfFile())
        throw DatabaseError(DatabaseError::kNoCurrentRecord, fmt::format("{}: there is no line-up with the number {}.",
                                                                         season.Path().string(), list.lineupID));
    rs.Edit();
    rs.Set("LineupName", list.LineupName);
    rs.Set("BattingvsL", list.BattingvsL);
    rs.Set("BattingvsR", list.BattingvsR);
    int number = 0;
    for (const ListSlot& slot : list.slot) {
        ++number;
        const bool empty = slot.position == Position::None;
        rs.Set(fmt::format("playerID{}", number), slot.playerID);
        rs.Set(fmt::format("Position{}", number), empty ? std::string() : std::string(PositionText(slot.position)));
        rs.Set(fmt::format("PlayerType{}", number), std::string(1, slot.PlayerType));
    }
    rs.Set("playerIDP", list.playerIDP);
    rs.Set("GameID", list.GameID);
    rs.Update();
}

void RemovePlayerFromLineups(Database& season, const std::string& teamID, std::int32_t playerID, char playerType) {
    Transaction transaction(season);
    for (int slot = 1; slot <= 9; ++slot)
        season.Execute(fmt::format("UPDATE Lineups SET playerID{0} = 0, Position{0} = '' "
                                   "WHERE teamID = ? AND playerID{0} = ? AND PlayerType{0} = ?",
                                   slot),
                       {teamID, std::int64_t{playerID}, std::string(1, playerType)});
    transaction.Commit();
}

}  // namespace tarvane
