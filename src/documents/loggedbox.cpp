#include "documents/loggedbox.h"

#include <fmt/core.h>

#include <algorithm>
#include <array>

#include "base/error.h"
#include "base/text.h"

namespace tarvane {

namespace {

constexpr std::array<const char*, 5> kNoted{"2B", "3B", "HR", "RBI", "SB"};

struct LoggedGame {
    std::string date, resultsFile;
    PerSide<std::string> teamID, fullName, shortName;
    PerSide<std::array<std::int64_t, 3>> score{};  // runs, hits, errors
};

LoggedGame FindGame(Database& season, std::int32_t gameID) {
    Statement row = season.Prepare(
        "SELECT s.GameDate, s.Played, s.ResultsFile1, s.VisitorScore, s.VisitorH, s.VisitorErrors, s.HomeScore, "
        "s.HomeH, s.HomeErrors, v.teamID, v.fullname, v.shortname, h.teamID, h.fullname, h.shortname FROM Schedule s "
        "JOIN KorvTeams v ON v.TeamIdx = s.VisitorTeamIndex JOIN KorvTeams h ON h.TeamIdx = s.HomeTeamIndex "
        "WHERE s.GameID = ?");
    row.Bind(1, std::int64_t{gameID});
    if (!row.Step()) throw UserError(fmt::format("There is no game {} in the schedule.", gameID));
    LoggedGame game;
    game.date = row.Text(0);
    if (row.Int(1) == 0) throw UserError(fmt::format("Game {} of {} hasn't been played yet.", gameID, game.date));
    game.resultsFile = std::string(Trim(row.Text(2)));
    int figure = 3, name = 9;
    for (const Side side : kBothSides) {
        for (std::int64_t& value : game.score[side]) value = row.Int(figure++);
        game.teamID[side] = row.Text(name);
        game.fullName[side] = row.Text(name + 1);
        game.shortName[side] = row.Text(name + 2);
        name += 3;
    }
    return game;
}

// Both log tables name a man's batting alike.
constexpr const char* kBattingColumns =
    "l.AB, l.R, l.H, l.\"2B\", l.\"3B\", l.HR, l.RBI, l.BB, l.SO, l.SB, l.CS, l.HBP, l.SH, l.SF";

// A query of rows of name, position, and the nineteen figures of a batting line.
void AddBatting(Statement& rows, DocumentTable& table, std::vector<std::int64_t>& totals,
                std::vector<DocumentNote>& notes) {
    while (rows.Step()) {
        std::vector<std::string> cells{rows.Text(0), std::string(Trim(rows.Text(1)))};
        for (std::size_t i = 0; i < totals.size(); ++i) {
            const std::int64_t figure = rows.Int(static_cast<int>(i) + 2);
            totals[i] += figure;
            cells.push_back(std::to_string(figure));
            for (DocumentNote& note : notes)
                if (figure > 0 && note.label == table.heads[i + 2] + ":")
                    note.text +=
                        (note.text.empty() ? "" : ", ") + cells[0] + (figure > 1 ? fmt::format(" {}", figure) : "");
        }
        cells.emplace_back();
        table.rows.push_back(std::move(cells));
    }
}

void FillBatting(Database& season, std::int32_t gameID, const std::string& teamID, BoxSide& side) {
    DocumentTable& table = side.batting;
    table.totals = true;
    table.heads = {side.team, "POS", "AB",  "R",  "H",  "2B", "3B", "HR", "RBI", "BB",  "SO",
                   "SB",      "CS",  "HBP", "SH", "SF", "PO", "A",  "E",  "DP",  "GDP", "AVG"};
    for (const char* label : kNoted) side.notes.push_back({std::string(label) + ":", {}});
    std::vector<std::int64_t> totals(table.heads.size() - 3, 0);
    // A pitcher's fielding stands in the row of his pitching, his batting in another.
    for (const std::string& query :
         {fmt::format("SELECT b.playerName, l.Position, {}, l.PutOuts, l.Assists, l.Errors, l.DoublePlays, l.GIDP FROM "
                      "KorvBatterResultsLog l JOIN KorvBatters b ON b.playerID = l.PlayerID AND b.teamID = l.TeamID "
                      "WHERE l.GameID = ? AND l.TeamID = ? ORDER BY l.rowid",
                      kBattingColumns),
          fmt::format("SELECT p.playerName, 'P', {}, f.PutOuts, f.Assists, f.Errors, f.DoublePlays, l.GIDP FROM "
                      "KorvPitcherResultsLog l JOIN KorvPitchers p ON p.playerID = l.PlayerID AND p.teamID = l.TeamID "
                      "LEFT JOIN KorvPitcherResultsLog f ON f.GameID = l.GameID AND f.PlayerID = l.PlayerID AND "
                      "f.Games = 1 WHERE l.GameID = ? AND l.TeamID = ? AND l.Games = 0 ORDER BY l.rowid",
                      kBattingColumns)}) {
        Statement rows = season.Prepare(query);
        rows.Bind(1, std::int64_t{gameID});
        rows.Bind(2, teamID);
        AddBatting(rows, table, totals, side.notes);
    }
    std::vector<std::string> sum{"Totals", ""};
    for (const std::int64_t figure : totals) sum.push_back(std::to_string(figure));
    sum.emplace_back();
    table.rows.push_back(std::move(sum));
    side.notes.erase(
        std::remove_if(side.notes.begin(), side.notes.end(), [](const DocumentNote& n) { return n.text.empty(); }),
        side.notes.end());
}

void FillPitching(Database& season, std::int32_t gameID, const std::string& teamID, BoxSide& side) {
    side.pitching.heads = {side.team, "IP", "H", "R", "ER", "BB", "SO", "AO"};
    Statement rows = season.Prepare(
        "SELECT p.playerName, l.W, l.L, l.SV, l.IPOuts, l.OppHits, l.OppRuns, l.ER, l.OppBB, l.OppSO, "
        "l.PitcherAutoOuts FROM KorvPitcherResultsLog l JOIN KorvPitchers p ON p.playerID = l.PlayerID AND p.teamID = "
        "l.TeamID WHERE l.GameID = ? AND l.TeamID = ? AND l.Games > 0 ORDER BY l.rowid");
    rows.Bind(1, std::int64_t{gameID});
    rows.Bind(2, teamID);
    while (rows.Step()) {
        std::string name = rows.Text(0);
        for (const auto& [column, mark] : {std::pair{1, " (W)"}, {2, " (L)"}, {3, " (SV)"}})
            if (rows.Int(column) > 0) name += mark;
        std::vector<std::string> cells{name, fmt::format("{}.{}", rows.Int(4) / 3, rows.Int(4) % 3)};
        for (int column = 5; column <= 10; ++column) cells.push_back(std::to_string(rows.Int(column)));
        side.pitching.rows.push_back(std::move(cells));
    }
}

}  // namespace

std::string BoxScoreFileOf(Database& season, std::int32_t gameID) {
    return FindGame(season, gameID).resultsFile;
}

BoxDocument LoggedBox(Database& season, std::int32_t gameID) {
    const LoggedGame game = FindGame(season, gameID);
    BoxDocument box;
    box.title = game.fullName[Side::Visitor] + " at " + game.fullName[Side::Home];
    box.place = game.date;
    box.lineScore.heads = {"", "R", "H", "E"};
    for (const Side side : kBothSides) {
        std::vector<std::string> score{game.shortName[side]};
        for (const std::int64_t figure : game.score[side]) score.push_back(std::to_string(figure));
        box.lineScore.rows.push_back(std::move(score));
        box.side[side].team = game.shortName[side];
        FillBatting(season, gameID, game.teamID[side], box.side[side]);
        FillPitching(season, gameID, game.teamID[side], box.side[side]);
        box.side[side].team = game.fullName[side];
    }
    return box;
}

}  // namespace tarvane
