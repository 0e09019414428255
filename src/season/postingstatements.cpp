#include "season/postingstatements.h"

#include <fmt/core.h>
#include "data/rules.h"

namespace tarvane {

namespace {

template <class Books, class Visit>
void TeamColumns(Books& t, Visit& visit) {
    visit("", "RF", t.RF);
    visit("", "RA", t.RA);
    visit("", "W", t.W);
    visit("", "L", t.L);
    visit("", "Pct", t.Pct);
    visit("", "HomeWins", t.HomeWins);
    visit("", "HomeLosses", t.HomeLosses);
    visit("", "DivWins", t.DivWins);
    visit("", "DivLosses", t.DivLosses);
    TeamBattingColumns(t.batting, "", visit);
    RateColumns(t.rates, "", visit);
    TeamPitchingColumns(t.pitching, "", visit);
    visit("", "ERA", t.ERA);
    visit("", "WHIP", t.WHIP);
    visit("", "PitcherAutoOuts", t.PitcherAutoOuts);
    FieldingColumns(t.fielding, "", visit);
    visit("", "FieldingPct", t.FieldingPct);
}

template <class Visit>
void ScheduleColumns(const PostingStatements::ScheduleResult& s, bool tourney, Visit& visit) {
    visit("", "VisitorScore", s.team[Side::Visitor].runs);
    visit("", "HomeScore", s.team[Side::Home].runs);
    visit("", "Innings", s.innings);
    if (!tourney) visit("", "DivGame", s.divisionGame ? -1 : 0);
    visit("", "ResultsFile1", s.resultsFile1);
    visit("", "ResultsFile2", s.resultsFile2);
    for (const Side side : kBothSides) {
        const std::string_view prefix = side == Side::Visitor ? "Visitor" : "Home";
        const TeamGame& game = s.team[side];
        TeamBattingColumns(game.batting, prefix, visit);
        TeamPitchingColumns(game.pitching, prefix, visit);
        FieldingColumns(game.fielding, prefix, visit);
        visit(prefix, "PitcherAutoOuts", game.autoOuts);
    }
}

template <class Visit>
void HeadColumns(const LogHead& h, bool injuries, Visit& visit) {
    visit("", "GameID", h.GameID);
    visit("", "GameDate", h.GameDate);
    visit("", "PlayerID", h.PlayerID);
    visit("", "TeamID", h.TeamID);
    visit("", "Position", h.Position);
    visit("", "TourneyGame", h.TourneyGame ? -1 : 0);
    FieldingColumns(h.fielding, "", visit);
    if (injuries) InjuryColumns(h.injury, visit);
}

template <class Visit>
void LogColumns(const BatterLogRow& row, bool injuries, Visit& visit) {
    HeadColumns(row.head, injuries, visit);
    PlayerBattingColumns(row.total, visit);
    SplitColumns(row.vsLeft, "vsLeft", false, visit);
    SplitColumns(row.vsRight, "vsRight", false, visit);
}

template <class Visit>
void LogColumns(const PitcherLogRow& row, bool injuries, Visit& visit) {
    HeadColumns(row.head, injuries, visit);
    PlayerPitchingColumns(row.pitching, visit);
    visit("", "PitcherAutoOuts", row.PitcherAutoOuts);
    visit("", "PitcherRestDays", row.PitcherRestDays);
    visit("", "PitchedOnDay", row.PitchedOnDay);
    PlayerBattingColumns(row.batting, visit);
}

const char* TeamTable(bool tourney) {
    return tourney ? "TourneyTeams" : "KorvTeams";
}
const char* BattersOf(bool tourney) {
    return tourney ? "TourneyBatters" : "KorvBatters";
}
const char* PitchersOf(bool tourney) {
    return tourney ? "TourneyPitchers" : "KorvPitchers";
}
const char* FieldersOf(bool tourney) {
    return tourney ? "TourneyFieldingStats" : "FieldingStats";
}

// A player's whole row as a game changes it; and what of it changes for a man who sat.
template <class Man, class Visit>
void PlayerColumns(Man& man, bool injuries, Visit& visit) {
    if constexpr (std::is_same_v<std::remove_const_t<Man>, Batter>) {
        BatterColumns(man, visit);
    } else {
        PitcherColumns(man, visit);
        RestColumns(man, visit);
    }
    if (injuries) InjuryColumns(man.injury, visit);
}

template <class Man, class Visit>
void IdleColumns(Man& man, bool injuries, Visit& visit) {
    if constexpr (std::is_same_v<std::remove_const_t<Man>, Pitcher>) RestColumns(man, visit);
    if (injuries) InjuryColumns(man.injury, visit);
}

template <class Row>
std::string InsertLog(std::string_view table, bool injuries) {
    ColumnNamer names;
    LogColumns(Row{}, injuries, names);
    return fmt::format("INSERT INTO {} ({}) VALUES ({})", table, names.Joined(), names.Marks());
}

template <class Man>
std::string UpdatePlayer(std::string_view table, bool injuries, std::string_view where) {
    const Man none;
    ColumnNamer names;
    PlayerColumns(none, injuries, names);
    return fmt::format("UPDATE {} SET {} WHERE {} RETURNING playerID", table, names.Joined(" = ?"), where);
}

// Writes only where something differs: most men sit with nothing to tell.
template <class Man>
std::string UpdateIdle(std::string_view table, bool injuries) {
    const Man none;
    ColumnNamer names;
    IdleColumns(none, injuries, names);
    if (names.names.empty()) return "SELECT NULL";  // a batter of a season without injuries: never written
    std::string set, differs;
    for (std::size_t i = 0; i < names.names.size(); ++i) {
        set += fmt::format("{}{} = ?{}", i == 0 ? "" : ", ", names.names[i], i + 1);
        differs += fmt::format("{}{} IS NOT ?{}", i == 0 ? "" : " OR ", names.names[i], i + 1);
    }
    const std::size_t next = names.names.size() + 1;
    return fmt::format("UPDATE {} SET {} WHERE playerID = ?{} AND teamID = ?{} AND ({})", table, set, next, next + 1,
                       differs);
}

template <class Man>
std::string SelectPlayer(std::string_view table) {
    const Man none;
    ColumnNamer names;
    PlayerColumns(none, false, names);
    return fmt::format("SELECT {} FROM {} WHERE playerID = ?", names.Joined(), table);
}

std::string SelectTeam(bool tourney) {
    const TeamBooks none;
    ColumnNamer names;
    TeamColumns(none, names);
    return fmt::format("SELECT {} FROM {} WHERE TeamIdx = ?", names.Joined(), TeamTable(tourney));
}

std::string UpdateTeam(bool tourney) {
    const TeamBooks none;
    ColumnNamer names;
    TeamColumns(none, names);
    return fmt::format("UPDATE {} SET {} WHERE TeamIdx = ?", TeamTable(tourney), names.Joined(" = ?"));
}

std::string UpdateSchedule(bool tourney) {
    ColumnNamer names;
    ScheduleColumns({}, tourney, names);
    return fmt::format("UPDATE {} SET Played = -1, {} WHERE GameID = ? RETURNING GameID",
                       tourney ? "TourneySchedule" : "Schedule", names.Joined(" = ?"));
}

std::string FieldingNames(std::string_view suffix) {
    const FieldingTotals none;
    ColumnNamer names;
    FieldingColumns(none, "", names);
    return names.Joined(suffix);
}

// Runs a write to its end; true if it met a row.
bool RunOnce(Statement& statement) {
    const bool met = statement.Step();
    statement.Reset();
    return met;
}

template <class Man>
std::optional<Man> ReadMan(Statement& statement, std::int32_t playerID) {
    statement.Bind(1, std::int64_t{playerID});
    std::optional<Man> man;
    if (statement.Step()) {
        man.emplace();
        man->playerID = playerID;
        ColumnReader read{statement};
        PlayerColumns(*man, false, read);
    }
    statement.Reset();
    return man;
}

template <class Man>
bool WriteMan(Statement& statement, const Man& man, bool injuries, const std::string* teamID) {
    ColumnBinder bind{statement};
    PlayerColumns(man, injuries, bind);
    bind("", "", man.playerID);
    if (teamID) bind("", "", *teamID);
    return RunOnce(statement);
}

template <class Man>
void WriteSeated(Statement& statement, const Man& man, bool injuries, const std::string& teamID) {
    ColumnBinder bind{statement};
    IdleColumns(man, injuries, bind);
    bind("", "", man.playerID);
    bind("", "", teamID);
    RunOnce(statement);
}

}  // namespace

PostingStatements::PostingStatements(Database& season, bool injuries, bool tourney)
    : season_(season),
      injuries_(injuries),
      tourney_(tourney),
      readTeam_(Make(SelectTeam(tourney))),
      writeTeam_(Make(UpdateTeam(tourney))),
      writeBatter_(Make(UpdatePlayer<Batter>(BattersOf(tourney), injuries, "playerID = ? AND teamID = ?"))),
      writePitcher_(Make(UpdatePlayer<Pitcher>(PitchersOf(tourney), injuries, "playerID = ? AND teamID = ?"))),
      idleBatter_(Make(UpdateIdle<Batter>(BattersOf(tourney), injuries))),
      idlePitcher_(Make(UpdateIdle<Pitcher>(PitchersOf(tourney), injuries))),
      readBatter_(Make(SelectPlayer<Batter>("KorvBatters"))),
      readPitcher_(Make(SelectPlayer<Pitcher>("KorvPitchers"))),
      writeMovedBatter_(Make(UpdatePlayer<Batter>("KorvBatters", false, "playerID = ?"))),
      writeMovedPitcher_(Make(UpdatePlayer<Pitcher>("KorvPitchers", false, "playerID = ?"))),
      // The key of a man and the letter of his table; ids of batters and pitchers overlap. The sign keeps the search on
      // the index of players, whose entries are few.
      readFielding_(Make(
          fmt::format("SELECT rowid, GamesAtPos, {} FROM {} WHERE playerID = ? AND Position = ? AND playerType = ? "
                      "AND +teamID = ?",
                      FieldingNames(""), FieldersOf(tourney)))),
      writeFielding_(Make(fmt::format("UPDATE {} SET GamesAtPos = ?, {}, FieldingPct = ? WHERE rowid = ?",
                                      FieldersOf(tourney), FieldingNames(" = ?")))),
      addFielding_(Make(fmt::format(
          "INSERT INTO {} (GamesAtPos, {}, FieldingPct, teamID, playerID, playerType, PlayerName, Position) "
          "VALUES (1, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
          FieldersOf(tourney), FieldingNames("")))),
      batterLog_(Make(InsertLog<BatterLogRow>("KorvBatterResultsLog", injuries))),
      pitcherLog_(Make(InsertLog<PitcherLogRow>("KorvPitcherResultsLog", injuries))),
      versus_(Make("UPDATE TeamVsTeam SET vsTeamWins = coalesce(vsTeamWins, 0) + 1 WHERE TeamIndex = ? AND "
                   "vsTeamIndex = ?")),
      schedule_(Make(UpdateSchedule(tourney))),
      resultsFile_(Make(kCountResultsFile)) {}

std::optional<TeamBooks> PostingStatements::ReadTeam(std::int32_t teamIdx) {
    readTeam_.Bind(1, std::int64_t{teamIdx});
    std::optional<TeamBooks> books;
    if (readTeam_.Step()) {
        books.emplace();
        ColumnReader read{readTeam_};
        TeamColumns(*books, read);
        if (readTeam_.Step()) books.reset();
    }
    readTeam_.Reset();
    return books;
}

void PostingStatements::WriteTeam(std::int32_t teamIdx, const TeamBooks& books) {
    ColumnBinder bind{writeTeam_};
    TeamColumns(books, bind);
    bind("", "", teamIdx);
    RunOnce(writeTeam_);
}

bool PostingStatements::WriteBatter(const std::string& teamID, const Batter& batter) {
    return WriteMan(writeBatter_, batter, injuries_, &teamID);
}
bool PostingStatements::WritePitcher(const std::string& teamID, const Pitcher& pitcher) {
    return WriteMan(writePitcher_, pitcher, injuries_, &teamID);
}

void PostingStatements::WriteIdle(const std::string& teamID, const Batter& batter) {
    if (injuries_) WriteSeated(idleBatter_, batter, true, teamID);
}
void PostingStatements::WriteIdle(const std::string& teamID, const Pitcher& pitcher) {
    WriteSeated(idlePitcher_, pitcher, injuries_, teamID);
}

std::optional<Batter> PostingStatements::ReadBatter(std::int32_t playerID) {
    return ReadMan<Batter>(readBatter_, playerID);
}
std::optional<Pitcher> PostingStatements::ReadPitcher(std::int32_t playerID) {
    return ReadMan<Pitcher>(readPitcher_, playerID);
}
void PostingStatements::WriteMoved(const Batter& batter) {
    WriteMan(writeMovedBatter_, batter, false, nullptr);
}
void PostingStatements::WriteMoved(const Pitcher& pitcher) {
    WriteMan(writeMovedPitcher_, pitcher, false, nullptr);
}

void PostingStatements::AddFieldingRow(const std::string& teamID, const std::string& name, std::int32_t playerID,
                                       const FielderLine& line) {
    const std::string position(PositionText(line.position)), type(1, line.player.type);
    ColumnBinder find{readFielding_};
    find("", "", playerID);
    for (const std::string* key : {&position, &type, &teamID}) find("", "", *key);
    std::int64_t rowid = 0;
    int games = 0;
    FieldingTotals totals;
    if (readFielding_.Step()) {
        rowid = readFielding_.Int(0);
        games = static_cast<int>(readFielding_.Int(1));
        ColumnReader read{readFielding_, 2};
        FieldingColumns(totals, "", read);
    }
    readFielding_.Reset();
    AddFielding(totals, line);
    Statement& write = rowid != 0 ? writeFielding_ : addFielding_;
    ColumnBinder bind{write};
    if (rowid != 0) bind("", "", games + 1);
    FieldingColumns(totals, "", bind);
    bind("", "", FieldingPctOf(totals));
    if (rowid != 0) {
        bind("", "", rowid);
    } else {
        bind("", "", teamID);
        bind("", "", playerID);
        for (const std::string* text : {&type, &name, &position}) bind("", "", *text);
    }
    RunOnce(write);
}

void PostingStatements::AddLog(const BatterLogRow& row) {
    ColumnBinder bind{batterLog_};
    LogColumns(row, injuries_, bind);
    RunOnce(batterLog_);
}
void PostingStatements::AddLog(const PitcherLogRow& row) {
    ColumnBinder bind{pitcherLog_};
    LogColumns(row, injuries_, bind);
    RunOnce(pitcherLog_);
}

void PostingStatements::AddWinAgainst(std::int32_t teamIdx, std::int32_t opponentIdx) {
    versus_.Bind(1, std::int64_t{teamIdx});
    versus_.Bind(2, std::int64_t{opponentIdx});
    RunOnce(versus_);
}

bool PostingStatements::WriteSchedule(std::int32_t gameID, const ScheduleResult& result) {
    ColumnBinder bind{schedule_};
    ScheduleColumns(result, tourney_, bind);
    bind("", "", gameID);
    return RunOnce(schedule_);
}

std::optional<SeriesGame> PostingStatements::ReadSeriesGame(std::int32_t gameID) {
    Statement row = Make(
        "SELECT SeriesNbr, TourneyRound, LosersBracket, GamesNeededToWin, AdvanceToSeriesNbr, AdvanceToSeriesNbrL FROM "
        "TourneySchedule WHERE GameID = ?");
    row.Bind(1, std::int64_t{gameID});
    if (!row.Step()) return std::nullopt;
    const auto number = [&row](int column) { return static_cast<int>(row.Int(column)); };
    return SeriesGame{number(0), number(1), row.Int(2) != 0, number(3), number(4), number(5)};
}

int PostingStatements::AddToSeries(std::int32_t teamIdx, const SeriesGame& game, bool won) {
    constexpr int kRounds = 4;
    if (game.round < 1 || game.round > kRounds) return 0;
    Statement add =
        Make(fmt::format("UPDATE TourneyTeams SET {0} = coalesce({0}, 0) + 1 WHERE TeamIdx = ? RETURNING {0}",
                         fmt::format("{}Round{}{}", game.losersBracket ? "L" : "", game.round, won ? "W" : "L")));
    add.Bind(1, std::int64_t{teamIdx});
    return add.Step() ? static_cast<int>(add.Int(0)) : 0;
}

void PostingStatements::CountResultsFile() {
    RunOnce(resultsFile_);
}

}  // namespace tarvane
