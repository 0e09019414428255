#include "season/fixedlineups.h"

#include <fmt/core.h>

#include "data/teams.h"
#include "manager/lineups.h"

namespace tarvane {

namespace {

std::string InsertText() {
    std::string columns, marks;
    for (const char* column : {"playerID", "Position", "PlayerType"})
        for (int slot = 1; slot <= 9; ++slot) {
            columns += fmt::format(", {}{}", column, slot);
            marks += ", ?";
        }
    return fmt::format(
        "INSERT INTO Lineups (teamID, LineupType, DepthType, LineupName, playerIDP, GameID{}) VALUES (?, 'L', '', ?, "
        "?, ?{})",
        columns, marks);
}

}  // namespace

FixedLineupWriter::FixedLineupWriter(Database& season)
    : season_(season),
      insert_(season.Prepare(InsertText())),
      tie_{{season.Prepare("UPDATE Schedule SET VisitorLineupNbr = ? WHERE GameID = ?"),
            season.Prepare("UPDATE Schedule SET HomeLineupNbr = ? WHERE GameID = ?")}} {}

void FixedLineupWriter::Write(const LineupList& list, std::int64_t gameID, Side side) {
    insert_.Reset();
    insert_.Bind(1, list.teamID);
    insert_.Bind(2, list.LineupName);
    insert_.Bind(3, std::int64_t{list.playerIDP});
    insert_.Bind(4, gameID);
    int at = 5;
    for (const ListSlot& slot : list.slot) {
        insert_.Bind(at, std::int64_t{slot.playerID});
        insert_.Bind(at + 9, std::string(PositionText(slot.position)));
        insert_.Bind(at + 18, std::string(1, slot.PlayerType));
        ++at;
    }
    insert_.Step();
    insert_.Reset();
    Statement& tie = tie_[side];
    tie.Reset();
    tie.Bind(1, season_.LastInsertId());
    tie.Bind(2, gameID);
    tie.Step();
    tie.Reset();
}

LineupFixer::LineupFixer(Database& season, const std::vector<Team>& teams)
    : teams_(teams), players_(season), writer_(season) {}

void LineupFixer::Fix(const Game& game, const LoggedTeam& logged, ScheduleImportResult& result) {
    const Team* team = FindTeamByIndex(teams_, game.teamIdx);
    if (!team) return;
    LineupList list;
    list.teamID = team->teamID;
    list.LineupName = fmt::format("{} as played", game.date);
    const bool whole = Fill(team->teamID, logged, list, result);
    if (!whole || (game.dhUsed && !HasDH(list))) {
        ++result.incomplete;
        return;
    }
    writer_.Write(list, game.gameID, game.side);
    ++result.lineups;
}

// False if the list has a hole. All the men are looked up, so that one run names everybody who is missing.
bool LineupFixer::Fill(const std::string& teamID, const LoggedTeam& logged, LineupList& list,
                       ScheduleImportResult& result) {
    const LoggedPlayers::Found starter = players_.Pitcher(teamID, logged.starter);
    bool whole = starter.playerID != 0;
    if (!whole) NoteMissing(logged.starter, true, result);
    if (whole && !starter.starter) ++result.relieversStarting;
    list.playerIDP = starter.playerID;
    for (std::size_t slot = 0; slot < list.slot.size(); ++slot) {
        const LoggedMan& man = logged.nine[slot];
        const bool pitches = man.position == Position::P;
        list.slot[slot] = {pitches ? starter.playerID : players_.Batter(teamID, man).playerID, man.position,
                           pitches ? 'P' : 'B'};
        if (list.slot[slot].playerID != 0 && man.position != Position::None) continue;
        whole = false;
        if (!pitches) NoteMissing(man, false, result);
    }
    return whole;
}

void LineupFixer::NoteMissing(const LoggedMan& man, bool starter, ScheduleImportResult& result) {
    const auto [at, isNew] =
        missingAt_.try_emplace(fmt::format("{},{},{}", man.retroID, man.name, starter), result.missing.size());
    if (isNew) result.missing.push_back({man.retroID, man.name, starter, 0});
    ++result.missing[at->second].games;
}

}  // namespace tarvane
