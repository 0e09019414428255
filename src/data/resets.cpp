#include "data/resets.h"

#include <fmt/core.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "data/schema.h"

namespace tarvane {

namespace {

constexpr std::size_t kGamesKept = 10;

struct StreakState {
    std::string kind;
    int length = 0;
    std::vector<std::string> lastGames;

    void Add(const std::string& result) {
        length = result == kind ? length + 1 : 1;
        kind = result;
        if (lastGames.size() == kGamesKept) lastGames.erase(lastGames.begin());
        lastGames.push_back(result);
    }
};

StreakState ReadStreak(Database& season, std::int64_t teamIdx) {
    Statement games = season.Prepare(
        "SELECT HomeTeamIndex = ?1, VisitorScore, HomeScore FROM Schedule "
        "WHERE Played <> 0 AND (VisitorTeamIndex = ?1 OR HomeTeamIndex = ?1) "
        "ORDER BY GameDate, GameID");
    games.Bind(1, teamIdx);
    StreakState streak;
    while (games.Step()) {
        const std::int64_t margin = games.Int(2) - games.Int(1);
        const bool won = games.Int(0) != 0 ? margin > 0 : margin < 0;
        streak.Add(won ? "W" : "L");
    }
    return streak;
}

// The columns of a table from one to another, in the table's order.
std::vector<const ColumnDef*> ColumnsBetween(std::string_view table, std::string_view first, std::string_view last) {
    std::vector<const ColumnDef*> columns;
    bool inside = false;
    for (const ColumnDef& column : FindTableDef(table)->columns) {
        inside = inside || EqualsIgnoreCase(column.name, first);
        if (inside) columns.push_back(&column);
        if (EqualsIgnoreCase(column.name, last)) break;
    }
    return columns;
}

// Sets the columns of all rows back to what a new row holds. Columns that an old file lacks are passed over.
void ClearColumns(Database& season, std::string_view table, const std::vector<const ColumnDef*>& columns) {
    const std::vector<std::string> names = season.ColumnNames(table);
    std::string set;
    for (const ColumnDef* column : columns) {
        bool present = false;
        for (const std::string& name : names) present = present || EqualsIgnoreCase(name, column->name);
        if (!present) continue;
        const bool text = column->type.kind == ColumnKind::Text;
        const bool blank = column->defaultValue == Value(std::string(" "));
        if (!set.empty()) set += ", ";
        set += fmt::format("\"{}\" = {}", column->name, !text ? "0" : blank ? "' '" : "''");
    }
    if (!set.empty()) season.Execute(fmt::format("UPDATE \"{}\" SET {}", table, set));
}

void ClearRange(Database& season, std::string_view table, std::string_view first, std::string_view last) {
    ClearColumns(season, table, ColumnsBetween(table, first, last));
}

void ResetTeams(Database& season, bool tournament) {
    const std::string_view table = tournament ? "TourneyTeams" : "KorvTeams";
    ClearRange(season, table, "W", "FieldingPct");
    ClearRange(season, table, "Round1W", "Round4L");
    ClearRange(season, table, "LRound1W", "LRound4L");
    if (!tournament) season.Execute("UPDATE TeamVsTeam SET vsTeamWins = 0");
}

void ResetPlayers(Database& season, const LeagueRules& rules) {
    const std::string_view batters = rules.TourneyMode ? "TourneyBatters" : "KorvBatters";
    ClearRange(season, batters, "G", "InjuredDaysRemaining");
    const std::string_view pitchers = rules.TourneyMode ? "TourneyPitchers" : "KorvPitchers";
    ClearRange(season, pitchers, "W", "RC");
    ClearRange(season, pitchers, "PitchedOnDay", "InjuredDaysRemaining");
    // A post season goes on with the rest that the regular season left.
    if (rules.TourneyType != "P") ClearRange(season, pitchers, "PitcherRestDays", "PitcherRestDays");
}

void DeleteLogRows(Database& season, std::string_view table, bool tournament) {
    bool tells = false;
    for (const std::string& name : season.ColumnNames(table)) tells = tells || EqualsIgnoreCase(name, "TourneyGame");
    if (tells)
        season.Execute(fmt::format("DELETE FROM {} WHERE (TourneyGame <> 0) = {}", table, tournament ? 1 : 0));
    else if (!tournament)
        season.Execute(fmt::format("DELETE FROM {}", table));
}

// Results files begin with the letter of their kind.
void DeleteResults(const std::filesystem::path& folder, std::string_view letters) {
    std::error_code ignored;
    std::vector<std::filesystem::path> doomed;
    for (const auto& entry : std::filesystem::directory_iterator(folder, ignored)) {
        const std::string name = ToLower(entry.path().filename().string());
        if (entry.is_regular_file(ignored) && letters.find(name[0]) != std::string_view::npos)
            doomed.push_back(entry.path());
    }
    for (const std::filesystem::path& file : doomed) std::filesystem::remove(file, ignored);
}

std::string_view ResultLetters(const LeagueRules& rules) {
    if (!rules.TourneyMode) return "bsg";
    if (rules.TourneyType == "P") return "p";
    return rules.TourneyType == "T" || rules.TourneyType == "D" ? "t" : "";
}

}  // namespace

void RebuildStreaks(Database& season, std::optional<std::int32_t> teamIdx) {
    Transaction transaction(season);
    Recordset teams = teamIdx ? season.OpenRecordset("KorvTeams", "TeamIdx = ?", {std::int64_t{*teamIdx}})
                              : season.OpenRecordset("KorvTeams");
    for (; !teams.EndOfFile(); teams.MoveNext()) {
        const StreakState streak = ReadStreak(season, teams.GetInt("TeamIdx"));
        teams.Edit();
        if (streak.length > 0) teams.Set("WinLossStreak", streak.kind);
        teams.Set("StreakNumberGames", streak.length);
        for (std::size_t i = 0; i < kGamesKept; ++i)
            teams.Set(fmt::format("Game{}WL", i + 1), i < streak.lastGames.size() ? streak.lastGames[i] : " ");
        teams.Update();
    }
    transaction.Commit();
}

void ResetScheduleStats(Database& season, const LeagueRules& rules, MessageSink& messages) {
    const std::string_view table = rules.TourneyMode ? "TourneySchedule" : "Schedule";
    Transaction transaction(season);
    if (season.OpenRecordset(table).EndOfFile()) {
        messages.Warn("Reset League Stats", "Schedule data error - contact Tarvane");
        return;
    }
    // From Played to the last column of the home team: marks, scores, files and what the teams did.
    ClearRange(season, table, "Played", "HomePitcherAutoOuts");
    if (rules.TourneyMode) {
        // The bracket is filled again as it is played.
        season.Execute(
            "UPDATE TourneySchedule SET VisitorTeamIndex = 0, HomeTeamIndex = 0 "
            "WHERE TourneyRound > 1 OR LosersBracket <> 0");
        ClearRange(season, table, "GameNotNeeded", "GameNotNeeded");
    }
    transaction.Commit();
}

void ResetLeagueStats(Database& season, LeagueRules& rules, const std::filesystem::path& gameResults,
                      MessageSink& messages) {
    Transaction transaction(season);
    ResetTeams(season, rules.TourneyMode);
    ResetPlayers(season, rules);
    for (const std::string_view log : {"KorvBatterResultsLog", "KorvPitcherResultsLog"})
        DeleteLogRows(season, log, rules.TourneyMode);
    season.Execute(rules.TourneyMode ? "DELETE FROM TourneyFieldingStats" : "DELETE FROM FieldingStats");
    season.Execute("UPDATE LeagueRules SET NextResultsFile = 1");
    transaction.Commit();
    rules.NextResultsFile = 1;
    DeleteResults(gameResults, ResultLetters(rules));
    messages.Inform("Organize Teams and Leagues", "League stats have been reset");
}

}  // namespace tarvane
