#include "reports/playerlog.h"

#include <fmt/core.h>

#include <set>

#include "base/text.h"
#include "data/rowreader.h"

namespace tarvane {

namespace {

struct LogColumn {
    const char* title;
    const char* column;
    CellFormat format = CellFormat::Whole;
};

const std::vector<LogColumn> kBatterLogColumns{{"AB", "AB"},   {"R", "R"},   {"H", "H"},   {"HR", "HR"},
                                               {"RBI", "RBI"}, {"SB", "SB"}, {"BB", "BB"}, {"SO", "SO"}};
const std::vector<LogColumn> kPitcherLogColumns{{"IP", "IPOuts", CellFormat::Innings},
                                                {"H", "OppHits"},
                                                {"HR", "OppHR"},
                                                {"BB", "OppBB"},
                                                {"SO", "OppSO"},
                                                {"R", "OppRuns"},
                                                {"ER", "ER"},
                                                {"BF", "BF"}};

struct LogRows {
    std::set<std::string> keys;  // the men who answer to the name
    std::vector<std::int64_t> playerIDs;
};

LogRows FindRows(Database& season, const char* table, const std::string& name, const std::string& teamID) {
    LogRows found;
    Statement rows = season.Prepare(fmt::format(
        "SELECT playerID, LahmanPlayerID, playerName, teamID, ActualTeamID FROM {} ORDER BY playerID", table));
    while (rows.Step()) {
        if (!EqualsIgnoreCase(Trim(rows.Text(2)), Trim(name))) continue;
        if (!teamID.empty() && !EqualsIgnoreCase(rows.Text(3), teamID) && !EqualsIgnoreCase(rows.Text(4), teamID))
            continue;
        found.keys.insert(rows.IsNull(1) ? fmt::format("{} {}", table, rows.Int(0)) : rows.Text(1));
        found.playerIDs.push_back(rows.Int(0));
    }
    return found;
}

ReportTable LogTable(Database& season, const std::string& title, const char* log, const std::vector<LogColumn>& columns,
                     const std::vector<std::int64_t>& playerIDs, const std::string& condition) {
    ReportTable table{title, {{"Date", "Date", CellFormat::Text}, {"Team", "Team", CellFormat::Text}}, {}};
    std::string query = "SELECT GameDate, TeamID", ids;
    for (const LogColumn& column : columns) {
        table.columns.push_back({column.title, column.column, column.format});
        query += fmt::format(", {}", column.column);
    }
    for (const std::int64_t id : playerIDs) ids += fmt::format("{}{}", ids.empty() ? "" : ", ", id);
    Statement rows = season.Prepare(fmt::format(
        "{} FROM {} WHERE PlayerID IN ({}) AND {} ORDER BY GameDate, GameID, rowid", query, log, ids, condition));
    while (rows.Step()) {
        std::vector<Value>& row = table.rows.emplace_back();
        row = {rows.Text(0), rows.Text(1)};
        for (int c = 2; c < rows.ColumnCount(); ++c) row.emplace_back(rows.Int(c));
    }
    return table;
}

void CheckOneMan(const LogRows& batting, const LogRows& pitching, const std::string& name, const std::string& teamID) {
    std::set<std::string> men = batting.keys;
    men.insert(pitching.keys.begin(), pitching.keys.end());
    if (men.empty())
        throw UserError(
            fmt::format("there is no player \"{}\"{}; names are written as in the team lists, first name "
                        "first.",
                        name, teamID.empty() ? "" : " with " + teamID));
    if (men.size() > 1)
        throw UserError(
            fmt::format("{} players are called \"{}\"; say --team CODE to tell them apart.", men.size(), name));
}

}  // namespace

std::vector<ReportTable> PlayerLog(Database& season, const std::string& playerName, const std::string& teamID,
                                   bool tournament) {
    const LogRows batting = FindRows(season, "KorvBatters", playerName, teamID);
    const LogRows pitching = FindRows(season, "KorvPitchers", playerName, teamID);
    CheckOneMan(batting, pitching, playerName, teamID);
    // Old logs know no tournament.
    const auto condition = [&](const char* log) {
        for (const std::string& name : season.ColumnNames(log))
            if (EqualsIgnoreCase(name, "TourneyGame"))
                return fmt::format("(TourneyGame <> 0) = {}", tournament ? 1 : 0);
        return std::string("1");
    };
    std::vector<ReportTable> tables;
    if (!batting.playerIDs.empty())
        tables.push_back(LogTable(season, fmt::format("Game Log: {} (batting)", Trim(playerName)),
                                  "KorvBatterResultsLog", kBatterLogColumns, batting.playerIDs,
                                  condition("KorvBatterResultsLog")));
    if (!pitching.playerIDs.empty())
        tables.push_back(LogTable(season, fmt::format("Game Log: {} (pitching)", Trim(playerName)),
                                  "KorvPitcherResultsLog", kPitcherLogColumns, pitching.playerIDs,
                                  condition("KorvPitcherResultsLog") + " AND Games > 0"));
    return tables;
}

}  // namespace tarvane
