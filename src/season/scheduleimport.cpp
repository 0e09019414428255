#include "season/scheduleimport.h"

#include <fmt/core.h>

#include <algorithm>
#include <numeric>

#include "base/error.h"
#include "base/text.h"
#include "data/lineups.h"
#include "data/rules.h"
#include "data/schema.h"
#include "data/teams.h"
#include "season/filecodes.h"
#include "season/fixedlineups.h"
#include "season/gamesetup.h"

namespace tarvane {

namespace {

// Line-ups made for single games stand behind the lists that every team has; one of those lists that a person fixed for
// a game is free again.
void DropFixedLineups(Database& season) {
    UpgradeTable(season, "Lineups");
    season.Execute(
        fmt::format("DELETE FROM Lineups WHERE lineupID IN (SELECT lineupID FROM (SELECT lineupID, GameID, "
                    "ROW_NUMBER() OVER (PARTITION BY teamID ORDER BY lineupID) AS place FROM Lineups) WHERE GameID <> "
                    "0 AND place > {})",
                    kLineupsPerTeam));
    season.Execute("UPDATE Lineups SET GameID = 0 WHERE GameID <> 0");
}

// The games of a file that the season can play, and which games of the file they are.
struct KnownGames {
    std::vector<NewGame> games;
    std::vector<std::size_t> place;
};

std::string UnknownTeamFault(Side side, const FileGame& game) {
    return fmt::format("Import file {} team id {} was not found - Line {} - Import Aborted",
                       side == Side::Visitor ? "visitor" : "home", game.code[side], game.line);
}

// Gives the fault that ended the look-up, or an empty text.
std::string LookUpGames(const ScheduleFile& file, const FileCodes& codes, bool leaveOutUnknown, KnownGames& known,
                        ScheduleImportResult& result) {
    for (std::size_t i = 0; i < file.games.size(); ++i) {
        const FileGame& game = file.games[i];
        const auto year = ParseInt(std::string_view(game.date).substr(0, 4)).value_or(0);
        NewGame made{game.date, {}};
        bool left = false;
        for (const Side side : kBothSides) {
            const Team* team = codes.Find(game.code[side], static_cast<int>(year));
            if (!team && !leaveOutUnknown) return UnknownTeamFault(side, game);
            if (!team) ++result.unknown[game.code[side]];
            left = left || !team;
            made.teamIdx[side] = team ? team->TeamIdx : 0;
        }
        if (game.date.empty())
            return fmt::format("Import file date is not valid - Line {} - Import Aborted", game.line);
        if (left) {
            ++result.leftOut;
            continue;
        }
        known.games.push_back(std::move(made));
        known.place.push_back(i);
    }
    return {};
}

}  // namespace

std::string MissingMan::LogLine() const {
    return fmt::format(", Retro Game Log {} Not Found in Season, {},{}", starter ? "Starting Pitcher" : "Player",
                       retroID, name);
}

int CountPlayedGames(Database& season) {
    Statement count = season.Prepare("SELECT COUNT(*) FROM Schedule WHERE Played <> 0");
    return count.Step() ? static_cast<int>(count.Int(0)) : 0;
}

void RefusePlayedSchedule(Database& season) {
    const int played = CountPlayedGames(season);
    if (played == 0) return;
    throw UserError(
        fmt::format("{} games of this schedule have been played. A new schedule would take their results and "
                    "statistics away; to do "
                    "that, say --replace.",
                    played));
}

std::vector<std::int64_t> ReplaceSchedule(Database& season, const std::vector<NewGame>& games) {
    std::vector<std::size_t> order(games.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&games](std::size_t a, std::size_t b) { return games[a].date < games[b].date; });
    std::vector<std::int64_t> ids(games.size());
    Transaction transaction(season);
    season.Execute("DELETE FROM Schedule");
    DropFixedLineups(season);
    Statement insert = season.Prepare(
        "INSERT INTO Schedule (GameDate, VisitorTeamIndex, HomeTeamIndex, VisitorLineupNbr, HomeLineupNbr) "
        "VALUES (?, ?, ?, 0, 0)");
    for (const std::size_t i : order) {
        insert.Reset();
        insert.Bind(1, games[i].date);
        insert.Bind(2, std::int64_t{games[i].teamIdx[Side::Visitor]});
        insert.Bind(3, std::int64_t{games[i].teamIdx[Side::Home]});
        insert.Step();
        ids[i] = season.LastInsertId();
    }
    insert.Reset();
    transaction.Commit();
    return ids;
}

ScheduleImportResult ImportSchedule(Database& season, const ScheduleFile& file, const ScheduleImportChoice& choice) {
    ScheduleImportResult result;
    const std::vector<Team> teams = LoadTeamList(season, {});
    KnownGames known;
    result.fault = LookUpGames(file, FileCodes(teams), choice.leaveOutUnknown, known, result);
    if (!result.fault.empty() && !choice.keepBeforeFault)
        throw UserError(fmt::format("{}: {}. Nothing was changed.", file.name, result.fault));
    if (known.games.empty() && result.leftOut > 0 && !choice.keepBeforeFault)
        throw UserError(
            fmt::format("{}: no game of the file is between teams of this season. Nothing was changed.", file.name));
    Transaction transaction(season);
    const std::vector<std::int64_t> ids = ReplaceSchedule(season, known.games);
    result.games = static_cast<int>(ids.size());
    if (file.gameLog && choice.lineups) {
        LineupFixer fixer(season, teams);
        const LeagueRules rules = LoadLeagueRules(season);
        for (std::size_t i = 0; i < ids.size(); ++i) {
            const NewGame& game = known.games[i];
            const bool dhUsed = DHUsedIn(rules, *FindTeamByIndex(teams, game.teamIdx[Side::Home]));
            for (const Side side : kBothSides)
                fixer.Fix({ids[i], game.date, side, game.teamIdx[side], dhUsed}, file.logged[known.place[i]][side],
                          result);
        }
    }
    transaction.Commit();
    return result;
}

std::string ExportSchedule(Database& season) {
    const std::vector<Team> teams = LoadTeamList(season, {});
    const auto code = [&teams](std::int64_t index) {
        const Team* team = FindTeamByIndex(teams, static_cast<std::int32_t>(index));
        return team ? team->teamID : std::string();
    };
    std::string text;
    Statement rows = season.Prepare(
        "SELECT GameDate, VisitorTeamIndex, HomeTeamIndex FROM Schedule WHERE GameDate IS NOT NULL "
        "ORDER BY GameDate, GameID");
    while (rows.Step()) text += ScheduleFileLine(rows.Text(0), code(rows.Int(1)), code(rows.Int(2)));
    return text;
}

}  // namespace tarvane
