#include "season/posting.h"

#include <fmt/core.h>

#include <array>
#include <map>

#include "data/resets.h"
#include "season/postingstatements.h"
#include "season/rest.h"
#include "season/resttables.h"

namespace tarvane {

namespace {

constexpr const char* kTeamFault = "Save Game Stats: Team data error - contact Tarvane";
constexpr const char* kBatterFault = "Save Game Stats: Batter database error - contact Tarvane";
constexpr const char* kPitcherFault = "Save Game Stats: Pitcher database error - contact Tarvane";
constexpr const char* kScheduleFault = "Save Game Stats: Schedule data error - contact Tarvane";

// Without divisions (0) no game is one within a division.
bool InOneDivision(const GameData& data) {
    const int division = data[Side::Home].roster.team.divIdx;
    return division != 0 && division == data[Side::Visitor].roster.team.divIdx;
}

void AddResult(TeamBooks& books, const TeamGame& game, bool division, bool home) {
    if (!game.Won() && !game.Lost()) return;
    const bool won = game.Won();
    ++(won ? books.W : books.L);
    if (division) ++(won ? books.DivWins : books.DivLosses);
    if (home) ++(won ? books.HomeWins : books.HomeLosses);
    books.Pct = WinningPct(books.W, books.L);
}

// Adds member by member: the lists of columns pair the counts of both.
class Adder {
  public:
    template <class T>
    void operator()(std::string_view, std::string_view, const T& value) {
        values_.push_back(static_cast<int>(value));
    }
    struct Into {
        const std::vector<int>& values;
        std::size_t next = 0;
        template <class T>
        void operator()(std::string_view, std::string_view, T& value) {
            value = static_cast<T>(value + values[next++]);
        }
    };
    Into To() const { return {values_}; }

  private:
    std::vector<int> values_;
};

void AddTeamGame(TeamBooks& books, const TeamGame& game) {
    books.RF += game.runs;
    books.RA += game.runsAgainst;
    Adder counts;
    TeamBattingColumns(game.batting, "", counts);
    TeamPitchingColumns(game.pitching, "", counts);
    FieldingColumns(game.fielding, "", counts);
    Adder::Into add = counts.To();
    TeamBattingColumns(books.batting, "", add);
    TeamPitchingColumns(books.pitching, "", add);
    FieldingColumns(books.fielding, "", add);
    books.PitcherAutoOuts += game.autoOuts;
    books.rates = RatesOf(books.batting);
    books.ERA = EarnedRunAverage(books.pitching.ER, books.pitching.IPOuts);
    books.WHIP = WhipOf(books.pitching.OppBB, books.pitching.OppHits, books.pitching.IPOuts);
    books.FieldingPct = FieldingPctOf(books.fielding);
}

// The fielding of a man's first position in the game; a blank for one who never stood anywhere.
void FillFielding(LogHead& head, const BoxLines& box, PlayerRef man) {
    for (std::size_t i = 0; i < box.FielderLineCount; ++i) {
        if (!(box.fielder[i].player == man)) continue;
        head.Position = PositionText(box.fielder[i].position);
        AddFielding(head.fielding, box.fielder[i]);
        return;
    }
}

}  // namespace

// One team's part of a posting.
struct TeamPosting {
    const GameToPost& game;
    GameData& data;
    const GameState& state;
    Side side;
    PostingReport& report;

    TeamRoster& Roster() const { return data.team[side].roster; }
    const Team& Opponent() const { return data[Other(side)].roster.team; }
    const BoxLines& Box() const { return state[side].box; }
};

struct GamePoster::Impl {
    explicit Impl(Database& database) : season(database), streak(database.Prepare(StreakSql())) {}

    static std::string StreakSql();
    PostingStatements& StatementsFor(const LeagueRules& rules);

    void PostTeam(const TeamPosting& post);
    void WriteBatters(const TeamPosting& post);
    void WritePitchers(const TeamPosting& post, const std::vector<std::uint8_t>& restBefore);
    void LogBatters(const TeamPosting& post);
    void LogPitching(const TeamPosting& post, const std::vector<std::uint8_t>& restBefore);
    void LogPitchersAtBat(const TeamPosting& post);
    LogHead HeadOf(const TeamPosting& post, std::int32_t playerID, const Injury& injury) const;
    void PostFielding(const TeamPosting& post);
    void AddToMoved(const TeamPosting& post, std::int32_t id, const BatterLogRow& row, bool firstLine);
    void AddToMoved(const TeamPosting& post, std::int32_t id, const PitcherLogRow& row);
    bool PostSchedule(const GameToPost& game, const GameData& data, const GameState& state);
    void PostStreaks(const GameToPost& game, const GameData& data, const GameState& state, PostingReport& report);
    bool IsLatest(std::int32_t teamIdx, const GameToPost& game, const std::string& date);

    using Place = std::pair<std::string, std::int64_t>;  // of a game in the schedule: date and GameID
    Database& season;
    std::unique_ptr<PostingStatements> statements;
    bool injuries = false;
    Statement streak;
    std::map<std::int32_t, Place> lastPlayed;  // of the teams met so far
};

// A streak grows by the result of the latest game; the ten results move up when all slots are taken.
std::string GamePoster::Impl::StreakSql() {
    std::string slots;
    for (int slot = 1; slot <= 10; ++slot) {
        const std::string own = fmt::format("Game{}WL", slot);
        const std::string next = slot < 10 ? fmt::format("Game{}WL", slot + 1) : "?1";
        // Full: everything moves. Else the first free slot, whose forerunner is taken, takes the result.
        const std::string free =
            slot == 1 ? fmt::format("coalesce({}, '') NOT IN ('W', 'L')", own)
                      : fmt::format("coalesce({}, '') NOT IN ('W', 'L') AND Game{}WL IN ('W', 'L')", own, slot - 1);
        slots += fmt::format(", {0} = CASE WHEN Game10WL IN ('W', 'L') THEN {1} WHEN {2} THEN ?1 ELSE {0} END", own,
                             next, free);
    }
    return "UPDATE KorvTeams SET StreakNumberGames = CASE WHEN WinLossStreak = ?1 THEN coalesce(StreakNumberGames, 0) "
           "+ 1 ELSE 1 END, WinLossStreak = ?1" +
           slots + " WHERE TeamIdx = ?2";
}

PostingStatements& GamePoster::Impl::StatementsFor(const LeagueRules& rules) {
    if (!statements || injuries != rules.UseYellowXInjuryChart)
        statements = std::make_unique<PostingStatements>(season, rules.UseYellowXInjuryChart);
    injuries = rules.UseYellowXInjuryChart;
    return *statements;
}

void GamePoster::Impl::PostTeam(const TeamPosting& post) {
    TeamRoster& roster = post.Roster();
    auto books = statements->ReadTeam(roster.team.TeamIdx);
    if (!books) {
        post.report.messages.push_back(fmt::format("{} ({})", kTeamFault, roster.team.fullName));
        return;
    }
    const TeamGame game = SumTeamGame(post.state, post.side);
    AddTeamGame(*books, game);
    AddResult(*books, game, InOneDivision(post.data), post.side == Side::Home);
    roster.team.W = static_cast<std::int16_t>(books->W);
    roster.team.L = static_cast<std::int16_t>(books->L);

    std::vector<std::uint8_t> restBefore;
    for (const Pitcher& pitcher : roster.pitchers) restBefore.push_back(pitcher.PitcherRestDays);
    AddGameToRecords(roster, post.Box());
    AssignPitcherRest(roster, post.Box(), post.data.rules, post.data.dayNumber);
    if (injuries) {
        AddInjuries(roster, post.state, post.side, post.data.gameDate, post.data.dayNumber);
        CountDownInjuries(roster, post.data.gameDate);
    }
    PostFielding(post);
    statements->WriteTeam(roster.team.TeamIdx, *books);
    if (game.Won()) statements->AddWinAgainst(roster.team.TeamIdx, post.Opponent().TeamIdx);
    WriteBatters(post);
    WritePitchers(post, restBefore);
}

void GamePoster::Impl::WriteBatters(const TeamPosting& post) {
    const TeamRoster& roster = post.Roster();
    std::vector<bool> played(roster.batters.size(), false);
    const BoxLines& box = post.Box();
    for (std::size_t i = 0; i < box.BatterLineCount; ++i)
        if (!box.batter[i].player.Nobody() && box.batter[i].player.type == 'B')
            played[static_cast<std::size_t>(box.batter[i].player.index)] = true;
    for (std::size_t i = 0; i < played.size(); ++i) {
        const Batter& batter = roster.batters[i];
        if (!played[i]) {
            statements->WriteIdle(roster.team.teamID, batter);
        } else if (!statements->WriteBatter(roster.team.teamID, batter)) {
            post.report.messages.push_back(fmt::format("{} ({})", kBatterFault, batter.playerName));
        }
    }
    LogBatters(post);
}

void GamePoster::Impl::WritePitchers(const TeamPosting& post, const std::vector<std::uint8_t>& restBefore) {
    const TeamRoster& roster = post.Roster();
    std::vector<bool> played(roster.pitchers.size(), false);
    const BoxLines& box = post.Box();
    const auto mark = [&played](PlayerRef man) {
        if (!man.Nobody() && man.type == 'P') played[static_cast<std::size_t>(man.index)] = true;
    };
    for (std::size_t i = 0; i < box.PitchersUsed; ++i) mark(box.pitching[i].player);
    for (std::size_t i = 0; i < box.BatterLineCount; ++i) mark(box.batter[i].player);
    for (std::size_t i = 0; i < played.size(); ++i) {
        const Pitcher& pitcher = roster.pitchers[i];
        if (!played[i]) {
            statements->WriteIdle(roster.team.teamID, pitcher);
        } else if (!statements->WritePitcher(roster.team.teamID, pitcher)) {
            post.report.messages.push_back(fmt::format("{} ({})", kPitcherFault, pitcher.playerName));
        }
    }
    LogPitching(post, restBefore);
    LogPitchersAtBat(post);
}

LogHead GamePoster::Impl::HeadOf(const TeamPosting& post, std::int32_t playerID, const Injury& injury) const {
    LogHead head;
    head.GameID = post.game.GameID;
    head.PlayerID = playerID;
    head.GameDate = post.data.gameDate;
    head.TeamID = post.Roster().team.teamID;
    head.injury = injury;
    return head;
}

void GamePoster::Impl::LogBatters(const TeamPosting& post) {
    const BoxLines& box = post.Box();
    for (std::size_t i = 0; i < box.BatterLineCount; ++i) {
        const BatterLine& line = box.batter[i];
        if (line.player.Nobody() || line.player.type != 'B') continue;
        const Batter& batter = post.Roster().batters[static_cast<std::size_t>(line.player.index)];
        BatterLogRow row{HeadOf(post, batter.playerID, batter.injury), {}, {}, {}};
        // A man with several lines has several rows; what he did in the field stands in the first.
        const bool first = FirstBatterLine(box, i);
        if (first) FillFielding(row.head, box, line.player);
        AddBatting(row.total, line);
        AddSplit(row.vsLeft, line.vsLeft);
        AddSplit(row.vsRight, line.vsRight);
        statements->AddLog(row);
        AddToMoved(post, batter.CombinedPlayerID, row, first);
    }
}

void GamePoster::Impl::LogPitching(const TeamPosting& post, const std::vector<std::uint8_t>& restBefore) {
    const BoxLines& box = post.Box();
    for (std::size_t i = 0; i < box.PitchersUsed; ++i) {
        const PitchingLine& line = box.pitching[i];
        if (line.player.Nobody()) continue;
        const auto index = static_cast<std::size_t>(line.player.index);
        const Pitcher& pitcher = post.Roster().pitchers[index];
        PitcherLogRow row{HeadOf(post, pitcher.playerID, pitcher.injury), {}, line.AutoOuts, 0, 0, {}};
        FillFielding(row.head, box, line.player);
        row.head.Position = PositionText(Position::P);
        AddPitching(row.pitching, line, i, box.PitchersUsed);
        if (pitcher.PitcherRestDays > restBefore[index]) {
            row.PitcherRestDays = pitcher.PitcherRestDays;
            row.PitchedOnDay = pitcher.PitchedOnDay;
        }
        statements->AddLog(row);
        AddToMoved(post, pitcher.CombinedPlayerID, row);
    }
}

// A pitcher's turns at bat stand in a row of their own, which counts no game.
void GamePoster::Impl::LogPitchersAtBat(const TeamPosting& post) {
    const BoxLines& box = post.Box();
    for (std::size_t i = 0; i < box.BatterLineCount; ++i) {
        const BatterLine& line = box.batter[i];
        if (line.player.Nobody() || line.player.type != 'P') continue;
        const Pitcher& pitcher = post.Roster().pitchers[static_cast<std::size_t>(line.player.index)];
        PitcherLogRow row{HeadOf(post, pitcher.playerID, pitcher.injury), {}, 0, 0, 0, {}};
        row.head.Position = PositionText(Position::P);
        AddBatting(row.batting, line);
        statements->AddLog(row);
        AddToMoved(post, pitcher.CombinedPlayerID, row);
    }
}

void GamePoster::Impl::PostFielding(const TeamPosting& post) {
    const TeamRoster& roster = post.Roster();
    const BoxLines& box = post.Box();
    for (std::size_t i = 0; i < box.FielderLineCount; ++i) {
        const FielderLine& line = box.fielder[i];
        if (line.player.Nobody()) continue;
        const auto index = static_cast<std::size_t>(line.player.index);
        if (line.player.type == 'P') {
            const Pitcher& man = roster.pitchers[index];
            statements->AddFieldingRow(roster.team.teamID, man.playerName, man.playerID, line);
        } else {
            const Batter& man = roster.batters[index];
            statements->AddFieldingRow(roster.team.teamID, man.playerName, man.playerID, line);
        }
    }
}

// The row that a man who changed teams keeps for all of them together grows by the game too.
void GamePoster::Impl::AddToMoved(const TeamPosting& post, std::int32_t id, const BatterLogRow& row, bool firstLine) {
    if (id == 0) return;
    auto man = statements->ReadBatter(id);
    if (!man) return;
    Adder counts;
    PlayerBattingColumns(row.total, counts);
    SplitColumns(row.vsLeft, "", false, counts);
    SplitColumns(row.vsRight, "", false, counts);
    Adder::Into add = counts.To();
    PlayerBattingColumns(man->total, add);
    SplitColumns(man->vsLeft, "", false, add);
    SplitColumns(man->vsRight, "", false, add);
    if (firstLine) ++man->G;
    RenewRates(*man);
    statements->WriteMoved(*man);
    post.report.movedMen = true;
}

void GamePoster::Impl::AddToMoved(const TeamPosting& post, std::int32_t id, const PitcherLogRow& row) {
    if (id == 0) return;
    auto man = statements->ReadPitcher(id);
    if (!man) return;
    Adder counts;
    PlayerPitchingColumns(row.pitching, counts);
    PlayerBattingColumns(row.batting, counts);
    Adder::Into add = counts.To();
    PlayerPitchingColumns(man->total, add);
    PlayerBattingColumns(man->batting, add);
    man->PitcherAutoOuts = static_cast<std::int16_t>(man->PitcherAutoOuts + row.PitcherAutoOuts);
    RenewRates(*man);
    statements->WriteMoved(*man);
    post.report.movedMen = true;
}

bool GamePoster::Impl::PostSchedule(const GameToPost& game, const GameData& data, const GameState& state) {
    PostingStatements::ScheduleResult result;
    result.innings = state.Inning;
    result.divisionGame = InOneDivision(data);
    result.resultsFile1 = game.resultsFile1;
    result.resultsFile2 = game.resultsFile2;
    for (const Side side : kBothSides) result.team[side] = SumTeamGame(state, side);
    return statements->WriteSchedule(game.GameID, result);
}

bool GamePoster::Impl::IsLatest(std::int32_t teamIdx, const GameToPost& game, const std::string& date) {
    const auto [last, unknown] = lastPlayed.try_emplace(teamIdx);
    if (unknown) {
        Statement row = season.Prepare(
            "SELECT GameDate, GameID FROM Schedule WHERE Played <> 0 AND (VisitorTeamIndex = ?1 OR HomeTeamIndex = ?1) "
            "AND GameID <> ?2 ORDER BY GameDate DESC, GameID DESC LIMIT 1");
        row.Bind(1, std::int64_t{teamIdx});
        row.Bind(2, std::int64_t{game.GameID});
        if (row.Step()) last->second = {row.Text(0), row.Int(1)};
    }
    const Place own{date, game.GameID};
    if (own < last->second) return false;
    last->second = own;
    return true;
}

void GamePoster::Impl::PostStreaks(const GameToPost& game, const GameData& data, const GameState& state,
                                   PostingReport& report) {
    for (const Side side : kBothSides) {
        const std::int32_t teamIdx = data[side].roster.team.TeamIdx;
        report.latest[side] = IsLatest(teamIdx, game, data.gameDate);
        if (!report.latest[side]) {
            RebuildStreaks(season, teamIdx);
            continue;
        }
        streak.Bind(1, std::string(state[side].Runs > state[Other(side)].Runs ? "W" : "L"));
        streak.Bind(2, std::int64_t{teamIdx});
        streak.Step();
        streak.Reset();
    }
}

GamePoster::GamePoster(Database& season) : impl_(std::make_unique<Impl>(season)) {}
GamePoster::~GamePoster() = default;

PostingReport GamePoster::Post(const GameToPost& game, GameData& data, const GameState& state) {
    PostingReport report;
    try {
        impl_->StatementsFor(data.rules);
        Transaction transaction(impl_->season);
        for (int day = 0; day < game.daysReduced; ++day) ReduceRestAndInjuries(impl_->season, false);
        for (const Side side : kBothSides) impl_->PostTeam({game, data, state, side, report});
        report.schedulePosted = impl_->PostSchedule(game, data, state);
        if (report.schedulePosted) {
            impl_->PostStreaks(game, data, state, report);
        } else {
            report.messages.push_back(fmt::format("{} (game {})", kScheduleFault, game.GameID));
        }
        if (game.resultsFile1 != " " || game.resultsFile2 != " ") impl_->statements->CountResultsFile();
        transaction.Commit();
    } catch (...) {
        // A statement stopped half-way would keep the next game from beginning.
        impl_->statements.reset();
        impl_->lastPlayed.clear();
        throw;
    }
    return report;
}

}  // namespace tarvane
