#include "ui/schedulebook.h"

#include <fmt/format.h>

#include "data/teams.h"
#include "savegame/savefile.h"

namespace tarvane {

namespace {

ScheduleEntry ReadEntry(const Statement& row) {
    ScheduleEntry entry;
    entry.game.GameID = static_cast<std::int32_t>(row.Int(0));
    entry.game.GameDate = row.Text(1);
    int column = 2;
    for (const Side side : kBothSides) entry.game.teamIdx[side] = static_cast<std::int32_t>(row.Int(column++));
    for (const Side side : kBothSides) entry.game.lineupNbr[side] = static_cast<std::int32_t>(row.Int(column++));
    entry.played = row.Int(column++) != 0;
    for (const Side side : kBothSides) entry.score[side] = static_cast<int>(row.Int(column++));
    entry.resultsFile1 = row.Text(column++);
    entry.resultsFile2 = row.Text(column++);
    return entry;
}

}  // namespace

void ScheduleBook::Load() {
    Database& season = session_.Seasons().Season();
    teams_ = LoadTeamList(season, session_.Seasons().Rules());
    games_.clear();
    byID_.clear();
    days_.clear();
    played_ = 0;
    Statement rows = season.Prepare(
        "SELECT GameID, GameDate, VisitorTeamIndex, HomeTeamIndex, VisitorLineupNbr, HomeLineupNbr, Played, "
        "VisitorScore, HomeScore, ResultsFile1, ResultsFile2 FROM Schedule ORDER BY GameDate, GameID");
    while (rows.Step()) {
        ScheduleEntry entry = ReadEntry(rows);
        if (!entry.played) entry.saved = std::filesystem::exists(SaveFile(entry.game.GameID));
        byID_[entry.game.GameID] = games_.size();
        DayCount& day = days_[entry.game.GameDate];
        ++day.games;
        if (entry.played) {
            ++day.played;
            ++played_;
        }
        games_.push_back(std::move(entry));
    }
}

std::filesystem::path ScheduleBook::SaveFile(std::int32_t gameID) const {
    return SaveGameFile(session_.Paths().SeasonFolder(session_.Seasons().ActiveSeason()), gameID);
}

const Team* ScheduleBook::FindTeam(std::int32_t teamIdx) const {
    return FindTeamByIndex(teams_, teamIdx);
}

std::string ScheduleBook::TeamName(std::int32_t teamIdx) const {
    const Team* team = FindTeam(teamIdx);
    return team != nullptr ? team->fullName : fmt::format("Team {}", teamIdx);
}

std::vector<std::size_t> ScheduleBook::On(const std::string& date) const {
    std::vector<std::size_t> games;
    for (std::size_t i = 0; i < games_.size(); ++i)
        if (games_[i].game.GameDate == date) games.push_back(i);
    return games;
}

std::optional<std::size_t> ScheduleBook::NextUnplayed() const {
    for (std::size_t i = 0; i < games_.size(); ++i)
        if (!games_[i].played) return i;
    return std::nullopt;
}

bool ScheduleBook::InTurn(std::size_t game) const {
    const ScheduledGame& asked = games_[game].game;
    for (const ScheduleEntry& entry : games_) {
        if (entry.game.GameDate >= asked.GameDate) return true;
        if (entry.played) continue;
        for (const Side side : kBothSides)
            if (entry.game.teamIdx[side] == asked.teamIdx[Side::Visitor] ||
                entry.game.teamIdx[side] == asked.teamIdx[Side::Home])
                return false;
    }
    return true;
}

ScheduleBook::Range ScheduleBook::Through(std::size_t game) const {
    Range range;
    for (std::size_t i = 0; i <= game; ++i) {
        if (games_[i].played) continue;
        ++range.games;
        range.saved = range.saved || games_[i].saved;
    }
    return range;
}

void ScheduleBook::MarkPlayed(std::int32_t gameID, const PerSide<int>& score, const std::string& resultsFile1) {
    const auto found = byID_.find(gameID);
    if (found == byID_.end()) return;
    ScheduleEntry& entry = games_[found->second];
    entry.score = score;
    entry.resultsFile1 = resultsFile1;
    if (entry.played) return;
    entry.played = true;
    ++played_;
    ++days_[entry.game.GameDate].played;
}

std::string ScheduleBook::CountText() const {
    return fmt::format("{} game{} played out of {} scheduled", played_, played_ == 1 ? "" : "s", games_.size());
}

}  // namespace tarvane
