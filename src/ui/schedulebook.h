#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "data/session.h"
#include "records/team.h"
#include "season/schedulesetup.h"

namespace tarvane {

// A game of the schedule as the screens list it.
struct ScheduleEntry {
    ScheduledGame game;
    PerSide<int> score{{0, 0}};
    bool played = false;
    bool saved = false;  // it was broken off and lies in a file
    std::string resultsFile1, resultsFile2;
};

struct DayCount {
    int games = 0, played = 0;
};

// The schedule of the open season and its teams, in memory, in the order in which games are played.
class ScheduleBook {
  public:
    explicit ScheduleBook(Session& session) : session_(session) {}

    // Reads all from the tables.
    void Load();

    const std::vector<ScheduleEntry>& Games() const { return games_; }
    const std::vector<Team>& Teams() const { return teams_; }
    // The full name, or "Team 12" for one that isn't in the season.
    std::string TeamName(std::int32_t teamIdx) const;
    const Team* FindTeam(std::int32_t teamIdx) const;

    int PlayedCount() const { return played_; }
    int UnplayedCount() const { return static_cast<int>(games_.size()) - played_; }
    // The places of a day's games.
    std::vector<std::size_t> On(const std::string& date) const;
    const std::map<std::string, DayCount>& Days() const { return days_; }
    std::optional<std::size_t> NextUnplayed() const;
    // Neither team has an unplayed game on an earlier day.
    bool InTurn(std::size_t game) const;
    // How many unplayed games there are up to this one, itself included, and whether one of them was broken off.
    struct Range {
        long games = 0;
        bool saved = false;
    };
    Range Through(std::size_t game) const;

    // Where a game lies that was broken off.
    std::filesystem::path SaveFile(std::int32_t gameID) const;

    // Takes over the result of a game that was posted elsewhere.
    void MarkPlayed(std::int32_t gameID, const PerSide<int>& score, const std::string& resultsFile1);

    // "412 games played out of 1944 scheduled".
    std::string CountText() const;

  private:
    Session& session_;
    std::vector<ScheduleEntry> games_;
    std::map<std::int32_t, std::size_t> byID_;
    std::map<std::string, DayCount> days_;
    std::vector<Team> teams_;
    int played_ = 0;
};

}  // namespace tarvane
