#include "season/seasonaudit.h"

#include <fmt/format.h>

#include <map>

#include "data/resets.h"

namespace tarvane {

namespace {

using Names = std::vector<std::string>;

const Names kSplit{"AB", "H", "2B", "3B", "HR", "RBI", "BB", "SO", "HBP", "SH", "SF", "GIDP"};
const Names kBatting{"AB", "H", "2B", "3B", "HR", "RBI", "BB", "SO", "HBP", "SH", "SF", "GIDP", "SB", "CS"};
const Names kTeamPitching{"Games", "GS",    "CG",    "SV",     "IPOuts",         "ER",
                          "OppHR", "OppBB", "OppSO", "OppHBP", "PitcherAutoOuts"};
const Names kPitching{"OppHits", "OppRuns", "BF", "W", "L", "SHO"};  // and those of the team
const Names kFielding{"PutOuts",   "Assists",    "Errors",     "DoublePlays",
                      "PassBalls", "OpponentSB", "OpponentCS", "GreatDefensivePlays"};

// ", a AS b" for each name, by a pattern with the name in it: sum("{0}").
std::string Each(const Names& names, std::string_view pattern) {
    std::string list;
    for (const std::string& name : names)
        list += fmt::format(", {} AS \"{}\"", fmt::format(fmt::runtime(pattern), name), name);
    return list;
}

// The batters' own rows write Doubles and Triples where all others have 2B and 3B.
std::string BattersOwn(const Names& names, std::string_view pattern) {
    std::string list;
    for (const std::string& name : names) {
        const std::string own = name == "2B" ? "Doubles" : name == "3B" ? "Triples" : name;
        list += fmt::format(", {} AS \"{}\"", fmt::format(fmt::runtime(pattern), own), name);
    }
    return list;
}

// What a table of men, or a log of theirs, holds of batting by either kind of player.
std::string Batters(std::string_view columns, const std::string& counts, std::string_view table,
                    std::string_view where) {
    return fmt::format("SELECT {}, R{} FROM {} WHERE {}", columns, counts, table, where);
}

// Every game that was played, once from each side of it: a team, its opponent and what the team did.
std::string TeamGames() {
    const auto half = [](const char* own, const char* other, int home) {
        const auto from = [own](const Names& names) { return Each(names, std::string("\"") + own + "{0}\""); };
        const auto code = [](const char* side) {
            return fmt::format("(SELECT teamID FROM KorvTeams WHERE TeamIdx = {}TeamIndex)", side);
        };
        return fmt::format(
            "SELECT GameID, Innings, DivGame <> 0 AS DivGame, {2} AS Home, {0}TeamIndex AS TeamIdx, {1}TeamIndex AS "
            "vsIdx, {6} AS team, {7} AS opponent, {0}Score AS RF, {1}Score AS RA, {0}Score > {1}Score AS W, {0}Score < "
            "{1}Score AS L, {0}oppH AS oppH, {0}SHO AS SHO{3}{4}{5} FROM Schedule WHERE Played <> 0",
            own, other, home, from(kBatting), from(kTeamPitching), from(kFielding), code(own), code(other));
    };
    return "(" + half("Visitor", "Home", 0) + " UNION ALL " + half("Home", "Visitor", 1) + ")";
}

class Auditor {
  public:
    explicit Auditor(Database& season) : season_(season) {}

    // Two queries whose first column is the key, all others whole numbers under the same names. A key that one lacks
    // counts zeros there.
    void Compare(std::string_view account, const std::string& left, const std::string& right) {
        std::map<std::string, std::vector<std::int64_t>> rows;
        Names names;
        for (const std::size_t place : {0U, 1U}) {
            Statement query = season_.Prepare(place == 0 ? left : right);
            const auto columns = static_cast<std::size_t>(query.ColumnCount() - 1);
            names.resize(columns);
            while (query.Step()) {
                std::vector<std::int64_t>& row = rows[query.Text(0)];
                row.resize(2 * columns);
                for (std::size_t i = 0; i < columns; ++i) {
                    names[i] = query.ColumnName(static_cast<int>(i) + 1);
                    row[2 * i + place] = query.Int(static_cast<int>(i) + 1);
                }
            }
        }
        for (const auto& [key, row] : rows)
            for (std::size_t i = 0; i < names.size(); ++i)
                if (row[2 * i] != row[2 * i + 1])
                    faults.push_back(
                        fmt::format("{}: {}, {}: {} and {}", account, key, names[i], row[2 * i], row[2 * i + 1]));
    }

    // Each row of the query is a fault.
    void None(std::string_view account, const std::string& sql) {
        Statement query = season_.Prepare(sql);
        while (query.Step()) {
            std::string row;
            for (int column = 0; column < query.ColumnCount(); ++column)
                row += fmt::format("{}{} {}", column == 0 ? "" : ", ", query.ColumnName(column), query.Text(column));
            faults.push_back(fmt::format("{}: {}", account, row));
        }
    }

    void Teams();
    void Men();
    void Games();
    void GameRules();
    void Rates();
    void RestAndInjuries();
    void Streaks();

    std::vector<std::string> faults;

  private:
    Names ReadStreaks();

    Database& season_;
};

void Auditor::Teams() {
    const std::string own = "SELECT teamID, RF AS R" + Each(kBatting, "\"{0}\"") + " FROM KorvTeams";
    const std::string ofTeams = "teamID IN (SELECT teamID FROM KorvTeams)";
    Compare("a team and its men at bat", own,
            fmt::format("SELECT teamID, sum(R) AS R{} FROM ({} UNION ALL {}) GROUP BY teamID",
                        Each(kBatting, "sum(\"{0}\")"),
                        Batters("teamID", BattersOwn(kBatting, "{0}"), "KorvBatters", ofTeams),
                        Batters("teamID", Each(kBatting, "\"{0}\""), "KorvPitchers", ofTeams)));
    Compare("a team and its pitchers", "SELECT teamID, W, L, RA, oppH" + Each(kTeamPitching, "{0}") + " FROM KorvTeams",
            fmt::format("SELECT teamID, sum(W) AS W, sum(L) AS L, sum(OppRuns) AS RA, sum(OppHits) AS oppH{} FROM "
                        "KorvPitchers WHERE {} GROUP BY teamID",
                        Each(kTeamPitching, "sum({0})"), ofTeams));
    Compare("a team and its fielders", "SELECT teamID" + Each(kFielding, "{0}") + " FROM KorvTeams",
            fmt::format("SELECT teamID{} FROM FieldingStats WHERE {} AND Position NOT IN ('PH', 'PR', 'DH') GROUP BY "
                        "teamID",
                        Each(kFielding, "sum({0})"), ofTeams));
    Names all{"RF", "RA", "oppH", "SHO"};
    for (const Names* names : {&kBatting, &kTeamPitching, &kFielding})
        all.insert(all.end(), names->begin(), names->end());
    Compare("a team and its games",
            "SELECT TeamIdx, W, L, HomeWins, HomeLosses, DivWins, DivLosses" + Each(all, "\"{0}\"") + " FROM KorvTeams",
            fmt::format("SELECT TeamIdx, sum(W) AS W, sum(L) AS L, sum(W AND Home) AS HomeWins, sum(L AND Home) AS "
                        "HomeLosses, sum(W AND DivGame) AS DivWins, sum(L AND DivGame) AS DivLosses{} "
                        "FROM {} GROUP BY TeamIdx",
                        Each(all, "sum(\"{0}\")"), TeamGames()));
    Compare("wins of one team against another",
            "SELECT TeamIndex || ' against ' || vsTeamIndex, vsTeamWins AS wins FROM TeamVsTeam WHERE vsTeamWins <> 0",
            "SELECT TeamIdx || ' against ' || vsIdx, count(*) AS wins FROM " + TeamGames() +
                " WHERE W GROUP BY TeamIdx, vsIdx");
}

void Auditor::Men() {
    const std::string splits = Each(kSplit, "sum(\"vsLeft{0}\")") + Each(kSplit, "sum(\"vsRight{0}\")");
    const std::string name = "p.playerID || ' ' || p.playerName";
    const auto logged = [&](const char* log, const char* table, const std::string& counts) {
        return fmt::format(
            "SELECT {}{} FROM {} l LEFT JOIN {} p ON p.playerID = l.PlayerID WHERE l.TourneyGame = 0 "
            "GROUP BY l.PlayerID",
            name, counts, log, table);
    };
    Compare("a batter and his games",
            fmt::format("SELECT {}, G, R{}{}{} FROM KorvBatters p WHERE teamID <> '998'", name,
                        BattersOwn(kBatting, "{0}"), Each(kSplit, "\"vsLeft{0}\""), Each(kSplit, "\"vsRight{0}\"")),
            logged("KorvBatterResultsLog", "KorvBatters",
                   ", count(DISTINCT l.GameID) AS G, sum(l.R) AS R" + Each(kBatting, "sum(l.\"{0}\")") +
                       Each(kSplit, "sum(l.\"vsLeft{0}\")") + Each(kSplit, "sum(l.\"vsRight{0}\")")));
    Names counts = kBatting;
    for (const Names* names : {&kTeamPitching, &kPitching}) counts.insert(counts.end(), names->begin(), names->end());
    counts.push_back("R");
    Compare("a pitcher and his games",
            fmt::format("SELECT {}{} FROM KorvPitchers p WHERE teamID <> '998'", name, Each(counts, "p.\"{0}\"")),
            logged("KorvPitcherResultsLog", "KorvPitchers", Each(counts, "sum(l.\"{0}\")")));
    Compare("a batter and his splits", "SELECT " + name + BattersOwn(kSplit, "{0}") + " FROM KorvBatters p",
            "SELECT " + name + Each(kSplit, "\"vsLeft{0}\" + \"vsRight{0}\"") + " FROM KorvBatters p");
    None("a man's place in the field stands twice",
         "SELECT playerID, playerType, Position, teamID FROM FieldingStats GROUP BY playerID, playerType, Position, "
         "teamID HAVING count(*) > 1");
    Compare("games on the mound and in its fielding rows", "SELECT 'all', sum(Games) AS games FROM KorvTeams",
            "SELECT 'all', sum(GamesAtPos) AS games FROM FieldingStats WHERE Position = 'P '");
}

void Auditor::Games() {
    const auto ofGames = [](const std::string& columns) {
        return "SELECT GameID || ' ' || " + columns + " FROM " + TeamGames();
    };
    const auto ofPitchers = [](const std::string& columns) {
        return "SELECT GameID || ' ' || TeamID" + columns +
               " FROM KorvPitcherResultsLog WHERE TourneyGame = 0 GROUP BY GameID, TeamID";
    };
    const std::string batting = Each(kBatting, "\"{0}\"");
    const char* const mark = "TourneyGame = 0";
    Compare(
        "a team's game and its men's at bat", ofGames("team, RF AS R" + batting),
        fmt::format("SELECT GameID || ' ' || TeamID, sum(R) AS R{} FROM ({} UNION ALL {}) GROUP BY GameID, TeamID",
                    Each(kBatting, "sum(\"{0}\")"), Batters("GameID, TeamID", batting, "KorvBatterResultsLog", mark),
                    Batters("GameID, TeamID", batting, "KorvPitcherResultsLog", mark)));
    // So one man has the win and one the loss, each of the right team.
    Compare("a team's game and its pitchers'", ofGames("team, W, L, RA, oppH" + Each(kTeamPitching, "{0}")),
            ofPitchers(", sum(W) AS W, sum(L) AS L, sum(OppRuns) AS RA, sum(OppHits) AS oppH" +
                       Each(kTeamPitching, "sum({0})")));
    Compare("batters faced", ofGames("opponent, AB + BB + HBP + SH + SF AS BF"), ofPitchers(", sum(BF) AS BF"));
    Compare("a game from its two sides", ofGames("Home, RF, H, HR, BB, SO, HBP, SB, CS"),
            ofGames("(1 - Home), RA, oppH, OppHR, OppBB, OppSO, OppHBP, OpponentSB, OpponentCS"));
}

void Auditor::GameRules() {
    const auto games = [this](std::string_view account, const std::string& condition) {
        None(account, fmt::format("SELECT GameID, team FROM {} WHERE {}", TeamGames(), condition));
    };
    games("fewer than nine innings", "Innings < 9");
    // The visitors' last half is played to its end; the home team's ends with the game's last run, or isn't played.
    games("outs and innings",
          "CASE WHEN Home THEN IPOuts <> 3 * Innings ELSE IPOuts > 3 * Innings OR IPOuts < 3 * Innings - 3 OR (W AND "
          "IPOuts < 3 * Innings) END");
    games("starts and complete games", "GS <> 1 OR Games < 1 OR CG <> (Games = 1) OR (RA = 0) <> (SHO <> 0)");
    games("a save without a win", "SV > W");
    games("more of a kind than can be",
          "ER > RA OR RBI > RF OR HR > RBI OR H < \"2B\" + \"3B\" + HR OR H + SO > AB OR PutOuts > IPOuts OR PutOuts < "
          "0");
    for (const char* log : {"KorvBatterResultsLog", "KorvPitcherResultsLog"})
        None("a logged game that isn't in the schedule as played",
             fmt::format("SELECT DISTINCT l.GameID, l.GameDate FROM {} l LEFT JOIN Schedule s ON s.GameID = l.GameID "
                         "WHERE l.TourneyGame = 0 AND (s.GameDate IS NOT l.GameDate OR s.Played = 0)",
                         log));
}

// A ratio by its counts; 0 where one of them is 0.
std::string WrongRatio(std::string_view column, const std::string& above, const std::string& below) {
    return fmt::format("abs({0} - CASE WHEN ({1}) = 0 OR ({2}) = 0 THEN 0 ELSE ({1}) * 1.0 / ({2}) END) > 1e-9", column,
                       above, below);
}

std::string WrongBatting(const std::string& side, std::string_view doubles, std::string_view triples) {
    const auto n = [&side](std::string_view name) { return fmt::format("\"{}{}\"", side, name); };
    const std::string onBase = n("BB") + " + " + n("H") + " + " + n("HBP");
    const std::string bases = fmt::format("{} + {} + 2 * {} + 3 * {}", n("H"), n(doubles), n(triples), n("HR"));
    return fmt::format("{} OR {} OR {} OR abs({} - {} - {}) > 1e-9 OR abs({} - {} * {} * {}) > 1e-6",
                       WrongRatio(n("Avg"), n("H"), n("AB")),
                       WrongRatio(n("OBP"), onBase, n("BB") + " + " + n("AB") + " + " + n("HBP")),
                       WrongRatio(n("SLG"), bases, n("AB")), n("OPS"), n("SLG"), n("OBP"), n("RC"), n("SLG"), n("OBP"),
                       n("AB"));
}

std::string WrongPitching(const std::string& walksAndHits) {
    return WrongRatio("WHIP", "3 * (" + walksAndHits + ")", "IPOuts") + " OR " +
           WrongRatio("ERA", "9 * ER", "IPOuts / 3 + CASE IPOuts % 3 WHEN 1 THEN 0.333 WHEN 2 THEN 0.667 ELSE 0 END") +
           " OR " + WrongRatio("Pct", "W", "W + L");
}

void Auditor::Rates() {
    const std::string fielding = WrongRatio("FieldingPct", "PutOuts + Assists", "PutOuts + Assists + Errors");
    const char* const account = "rates and their counts";
    None(account, fmt::format("SELECT teamID AS team FROM KorvTeams WHERE {} OR {} OR {}", WrongBatting("", "2B", "3B"),
                              WrongPitching("OppBB + oppH"), fielding));
    None(account, fmt::format("SELECT playerID, playerName FROM KorvPitchers WHERE {} OR {}",
                              WrongBatting("", "2B", "3B"), WrongPitching("OppBB + OppHits")));
    None(account, fmt::format("SELECT playerID, playerName FROM KorvBatters WHERE {} OR {} OR {}",
                              WrongBatting("", "Doubles", "Triples"), WrongBatting("vsLeft", "2B", "3B"),
                              WrongBatting("vsRight", "2B", "3B")));
    None(account, "SELECT playerID, Position FROM FieldingStats WHERE " + fielding);
}

void Auditor::RestAndInjuries() {
    // A pitcher who owes rest worked on the day from which it counts.
    None("rest without work",
         "SELECT playerID, playerName, PitcherRestDays, PitchedOnDay FROM KorvPitchers p WHERE PitcherRestDays < 0 OR "
         "PitcherRestDays > 0 AND NOT EXISTS (SELECT 1 FROM KorvPitcherResultsLog l WHERE l.PlayerID = p.playerID AND "
         "l.Games > 0 AND CAST(strftime('%j', l.GameDate) AS INTEGER) = p.PitchedOnDay)");
    // An injury is over at a batter's count of zero or less; a pitcher whose count ran below zero keeps his date.
    for (const bool pitcher : {false, true}) {
        None("an injury without its game",
             fmt::format("SELECT playerID, playerName, InjuryDate, InjuredDays, InjuredDaysRemaining AS remaining FROM "
                         "Korv{0}s p WHERE remaining > 0 AND (remaining > InjuredDays OR NOT EXISTS (SELECT 1 FROM "
                         "Korv{0}ResultsLog l WHERE l.PlayerID = p.playerID AND l.GameDate = p.InjuryDate)) OR "
                         "remaining {1} 0 AND InjuredDays <> 0",
                         pitcher ? "Pitcher" : "Batter", pitcher ? "=" : "<="));
    }
}

Names Auditor::ReadStreaks() {
    std::string columns;
    for (int game = 1; game <= 10; ++game) columns += fmt::format(" || coalesce(nullif(Game{}WL, ''), ' ')", game);
    Statement query = season_.Prepare(
        "SELECT teamID || ' ' || coalesce(WinLossStreak, '') || "
        "coalesce(StreakNumberGames, 0) || ' '" +
        columns + " FROM KorvTeams ORDER BY TeamIdx");
    Names streaks;
    while (query.Step()) streaks.push_back(query.Text(0));
    return streaks;
}

void Auditor::Streaks() {
    const Names before = ReadStreaks();
    const Transaction takenBack(season_);
    RebuildStreaks(season_);
    const Names rebuilt = ReadStreaks();
    for (std::size_t i = 0; i < before.size(); ++i)
        if (before[i] != rebuilt[i]) faults.push_back(fmt::format("streaks: {} and {}", before[i], rebuilt[i]));
}

}  // namespace

std::vector<std::string> AuditSeason(Database& season) {
    Auditor auditor(season);
    auditor.Teams();
    auditor.Men();
    auditor.Games();
    auditor.GameRules();
    auditor.Rates();
    auditor.RestAndInjuries();
    auditor.Streaks();
    return std::move(auditor.faults);
}

}  // namespace tarvane
