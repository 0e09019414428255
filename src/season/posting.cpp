#include "season/posting.h"

#include <fmt/core.h>

#include "season/postingstatements.h"
#include "season/rest.h"
#include "season/resttables.h"
#include "season/resultlogs.h"
#include "season/streaks.h"
#include "season/tourneybracket.h"

namespace tarvane {

namespace {

constexpr const char* kTeamFault = "Save Game Stats: Team data error - contact Tarvane";
constexpr const char* kBatterFault = "Save Game Stats: Batter database error - contact Tarvane";
constexpr const char* kPitcherFault = "Save Game Stats: Pitcher database error - contact Tarvane";
constexpr const char* kScheduleFault = "Save Game Stats: Schedule data error - contact Tarvane";

// Without divisions (0) no game is one within a division, and a tournament has none.
bool InOneDivision(const GameData& data) {
    const int division = data[Side::Home].roster.team.divIdx;
    return !data.rules.TourneyMode && division != 0 && division == data[Side::Visitor].roster.team.divIdx;
}

}  // namespace

struct GamePoster::Impl {
    explicit Impl(Database& database) : season(database), streaks(database) {}

    void MakeStatements(const LeagueRules& rules);
    void PostTeam(const TeamPosting& post);
    void WriteBatters(const TeamPosting& post);
    void WritePitchers(const TeamPosting& post, const std::vector<std::uint8_t>& restBefore);
    void PostFielding(const TeamPosting& post);
    bool PostSchedule(const GameToPost& game, const GameData& data, const GameState& state,
                      const PerSide<TeamGame>& played);
    void PostStreaks(const GameToPost& game, const GameData& data, const PerSide<TeamGame>& played,
                     PostingReport& report);
    void PostSeries(const GameToPost& game, const GameData& data, const PerSide<TeamGame>& played,
                    PostingReport& report);

    Database& season;
    StreakKeeper streaks;
    std::unique_ptr<PostingStatements> statements;
    bool injuries = false, tourney = false;  // what the statements were made for
};

void GamePoster::Impl::MakeStatements(const LeagueRules& rules) {
    if (statements && injuries == rules.UseYellowXInjuryChart && tourney == rules.TourneyMode) return;
    injuries = rules.UseYellowXInjuryChart;
    tourney = rules.TourneyMode;
    statements = std::make_unique<PostingStatements>(season, injuries, tourney);
}

void GamePoster::Impl::PostTeam(const TeamPosting& post) {
    TeamRoster& roster = post.Roster();
    auto books = statements->ReadTeam(roster.team.TeamIdx);
    if (!books) {
        post.report.messages.push_back(fmt::format("{} ({})", kTeamFault, roster.team.fullName));
        return;
    }
    AddTeamGame(*books, post.played);
    AddResult(*books, post.played, InOneDivision(post.data), post.side == Side::Home);
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
    if (post.played.Won() && !tourney) statements->AddWinAgainst(roster.team.TeamIdx, post.Opponent().TeamIdx);
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
    LogBatters(*statements, post);
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
    LogPitchers(*statements, post, restBefore);
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

bool GamePoster::Impl::PostSchedule(const GameToPost& game, const GameData& data, const GameState& state,
                                    const PerSide<TeamGame>& played) {
    PostingStatements::ScheduleResult result;
    result.innings = state.Inning;
    result.divisionGame = InOneDivision(data);
    result.resultsFile1 = game.resultsFile1;
    result.resultsFile2 = game.resultsFile2;
    result.team = played;
    return statements->WriteSchedule(game.GameID, result);
}

void GamePoster::Impl::PostStreaks(const GameToPost& game, const GameData& data, const PerSide<TeamGame>& played,
                                   PostingReport& report) {
    for (const Side side : kBothSides)
        report.latest[side] =
            streaks.Add(data[side].roster.team.TeamIdx, game.GameID, data.gameDate, played[side].Won());
}

void GamePoster::Impl::PostSeries(const GameToPost& game, const GameData& data, const PerSide<TeamGame>& played,
                                  PostingReport& report) {
    report.latest = {{true, true}};  // a bracket is played in its order
    const auto series = statements->ReadSeriesGame(game.GameID);
    if (!series) return;
    for (const Side side : kBothSides) {
        const bool won = played[side].Won();
        if (!won && !played[side].Lost()) continue;
        const int count = statements->AddToSeries(data[side].roster.team.TeamIdx, *series, won);
        if (won && count >= series->winsNeeded) report.seriesWinner = side;
    }
    if (!report.seriesWinner) return;
    const Side winner = *report.seriesWinner;
    UpdateTourneyBracket(season, series->series, series->winnerTo, data[winner].roster.team.TeamIdx);
    if (data.rules.TourneyType == "D" && series->loserTo != 0)
        UpdateTourneyBracket(season, series->series, series->loserTo, data[Other(winner)].roster.team.TeamIdx);
}

GamePoster::GamePoster(Database& season) : impl_(std::make_unique<Impl>(season)) {}
GamePoster::~GamePoster() = default;

PostingReport GamePoster::Post(const GameToPost& game, GameData& data, const GameState& state) {
    PostingReport report;
    try {
        impl_->MakeStatements(data.rules);
        const bool tourney = data.rules.TourneyMode;
        const PerSide<TeamGame> played{{SumTeamGame(state, Side::Visitor), SumTeamGame(state, Side::Home)}};
        Transaction transaction(impl_->season);
        for (int day = 0; day < game.daysReduced; ++day) ReduceRestAndInjuries(impl_->season, tourney);
        for (const Side side : kBothSides) impl_->PostTeam({game, data, state, side, played[side], report});
        report.schedulePosted = impl_->PostSchedule(game, data, state, played);
        if (!report.schedulePosted) {
            report.messages.push_back(fmt::format("{} (game {})", kScheduleFault, game.GameID));
        } else if (tourney) {
            impl_->PostSeries(game, data, played, report);
        } else {
            impl_->PostStreaks(game, data, played, report);
        }
        if (game.resultsFile1 != " " || game.resultsFile2 != " ") impl_->statements->CountResultsFile();
        transaction.Commit();
    } catch (...) {
        // A statement stopped half-way would keep the next game from beginning.
        impl_->statements.reset();
        impl_->streaks.Forget();
        throw;
    }
    return report;
}

}  // namespace tarvane
