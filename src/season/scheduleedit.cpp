#include "season/scheduleedit.h"

#include <fmt/core.h>

#include <map>
#include <tuple>

#include "base/error.h"
#include "base/text.h"
#include "data/lineups.h"
#include "data/rules.h"
#include "data/schema.h"
#include "data/teams.h"
#include "season/calendar.h"
#include "season/filecodes.h"
#include "season/fixedlineups.h"
#include "season/gamesetup.h"

namespace tarvane {

namespace {

const char* LineupColumn(Side side) {
    return side == Side::Visitor ? "VisitorLineupNbr" : "HomeLineupNbr";
}

// The line-up fixed for a side of a game goes: one of the lists that every team has is free again, one that was made
// for the game is deleted.
void ReleaseLineup(Database& season, std::int32_t gameID, Side side) {
    Statement fixed = season.Prepare(fmt::format("SELECT {} FROM Schedule WHERE GameID = ?", LineupColumn(side)));
    fixed.Bind(1, std::int64_t{gameID});
    if (!fixed.Step() || fixed.Int(0) == 0) return;
    const std::int64_t lineupID = fixed.Int(0);
    fixed.Reset();
    Statement place = season.Prepare(
        "SELECT COUNT(*) FROM Lineups WHERE lineupID <= ?1 AND teamID = (SELECT teamID FROM Lineups WHERE lineupID = "
        "?1)");
    place.Bind(1, lineupID);
    const bool made = place.Step() && place.Int(0) > kLineupsPerTeam;
    place.Reset();
    season.Execute(fmt::format("UPDATE Schedule SET {} = 0 WHERE GameID = ?", LineupColumn(side)),
                   {std::int64_t{gameID}});
    season.Execute(made ? "DELETE FROM Lineups WHERE lineupID = ? AND GameID = ?"
                        : "UPDATE Lineups SET GameID = 0 WHERE lineupID = ? AND GameID = ?",
                   {lineupID, std::int64_t{gameID}});
}

void RefuseUnlessUnplayed(Database& season, std::int32_t gameID) {
    Statement row = season.Prepare("SELECT Played FROM Schedule WHERE GameID = ?");
    row.Bind(1, std::int64_t{gameID});
    if (!row.Step()) throw UserError(fmt::format("Game {} is not in the schedule. Open the screen anew.", gameID));
    if (row.Int(0) != 0) throw UserError("Played games cannot be selectively removed. Use Remove All Games");
}

// The unplayed games of a schedule by date and teams, so that a log's games find theirs; those of one day in order.
using GameKey = std::tuple<std::string, std::int32_t, std::int32_t>;
struct ListedGame {
    std::int32_t gameID = 0;
    bool played = false;
};
std::map<GameKey, std::vector<ListedGame>> ListGames(Database& season) {
    std::map<GameKey, std::vector<ListedGame>> games;
    Statement rows = season.Prepare(
        "SELECT GameDate, VisitorTeamIndex, HomeTeamIndex, GameID, Played FROM Schedule ORDER BY GameDate, GameID");
    while (rows.Step())
        games[{rows.Text(0), static_cast<std::int32_t>(rows.Int(1)), static_cast<std::int32_t>(rows.Int(2))}].push_back(
            {static_cast<std::int32_t>(rows.Int(3)), rows.Int(4) != 0});
    return games;
}

}  // namespace

void AddSeries(Database& season, const std::string& first, int games, const PerSide<std::int32_t>& teamIdx) {
    const auto day = DayCount(first);
    if (!day) throw UserError(fmt::format("\"{}\" is no date: write yyyy-mm-dd.", first));
    Transaction transaction(season);
    for (int game = 0; game < games; ++game)
        season.Execute(
            "INSERT INTO Schedule (GameDate, VisitorTeamIndex, HomeTeamIndex, VisitorLineupNbr, HomeLineupNbr) "
            "VALUES (?, ?, ?, 0, 0)",
            {DateText(*day + game), std::int64_t{teamIdx[Side::Visitor]}, std::int64_t{teamIdx[Side::Home]}});
    transaction.Commit();
}

void RemoveGames(Database& season, const std::vector<std::int32_t>& gameIDs) {
    Transaction transaction(season);
    for (const std::int32_t gameID : gameIDs) {
        RefuseUnlessUnplayed(season, gameID);
        for (const Side side : kBothSides) ReleaseLineup(season, gameID, side);
        season.Execute("DELETE FROM Schedule WHERE GameID = ?", {std::int64_t{gameID}});
    }
    transaction.Commit();
}

void FixLineup(Database& season, std::int32_t gameID, Side side, std::int32_t lineupID) {
    Transaction transaction(season);
    ReleaseLineup(season, gameID, side);
    if (lineupID != 0) {
        Statement own = season.Prepare(
            fmt::format("SELECT 1 FROM Schedule JOIN KorvTeams ON TeamIdx = {} JOIN Lineups ON Lineups.teamID = "
                        "KorvTeams.teamID WHERE Schedule.GameID = ? AND lineupID = ?",
                        side == Side::Visitor ? "VisitorTeamIndex" : "HomeTeamIndex"));
        own.Bind(1, std::int64_t{gameID});
        own.Bind(2, std::int64_t{lineupID});
        if (!own.Step())
            throw UserError(fmt::format("Line-up {} is not one of the team's of game {}.", lineupID, gameID));
        own.Reset();
        season.Execute(fmt::format("UPDATE Schedule SET {} = ? WHERE GameID = ?", LineupColumn(side)),
                       {std::int64_t{lineupID}, std::int64_t{gameID}});
        season.Execute("UPDATE Lineups SET GameID = ? WHERE lineupID = ?",
                       {std::int64_t{gameID}, std::int64_t{lineupID}});
    }
    transaction.Commit();
}

ScheduleImportResult ImportLineups(Database& season, const ScheduleFile& log) {
    if (!log.gameLog)
        throw UserError(fmt::format("{} is a schedule and has no line-ups. Choose a game log.", log.name));
    const std::vector<Team> teams = LoadTeamList(season, {});
    const LeagueRules rules = LoadLeagueRules(season);
    const FileCodes codes(teams);
    const auto games = ListGames(season);
    std::map<GameKey, std::size_t> taken;
    ScheduleImportResult result;
    Transaction transaction(season);
    UpgradeTable(season, "Lineups");
    LineupFixer fixer(season, teams);
    for (std::size_t i = 0; i < log.games.size(); ++i) {
        const FileGame& line = log.games[i];
        const auto year = static_cast<int>(ParseInt(std::string_view(line.date).substr(0, 4)).value_or(0));
        const Team* visitor = codes.Find(line.code[Side::Visitor], year);
        const Team* home = codes.Find(line.code[Side::Home], year);
        if (visitor == nullptr || home == nullptr) {
            ++result.leftOut;
            continue;
        }
        const GameKey key{line.date, visitor->TeamIdx, home->TeamIdx};
        const auto found = games.find(key);
        const std::size_t place = taken[key]++;
        if (found == games.end() || place >= found->second.size()) {
            ++result.leftOut;
            continue;
        }
        const ListedGame& game = found->second[place];
        if (game.played) continue;
        ++result.games;
        for (const Side side : kBothSides) {
            ReleaseLineup(season, game.gameID, side);
            const std::int32_t teamIdx = (side == Side::Visitor ? visitor : home)->TeamIdx;
            fixer.Fix({game.gameID, line.date, side, teamIdx, DHUsedIn(rules, *home)}, log.logged[i][side], result);
        }
    }
    transaction.Commit();
    return result;
}

}  // namespace tarvane
