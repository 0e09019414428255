#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "records/player.h"

namespace tarvane {

// What a game and the lists need of a row of KorvTeams.
struct Team {
    std::int32_t TeamIdx = 0;
    std::string teamID, fullName, shortName;
    std::int16_t yearID = 0, lgIdx = 0, divIdx = 0;
    std::string lgId, divId;
    bool HomeDH = false;
    std::int32_t ParkID = 0;
    char AnthemType = 'U';
    bool ComputerManaged = false, AlwaysHumanManaged = false;
    std::string ImageFile;
    std::int32_t HmBackClr = kWhiteWord, HmForeClr = 0, RdBackClr = 0, RdForeClr = kWhiteWord;
    std::int16_t ActualWins = 0, ActualLosses = 0, W = 0, L = 0;
    bool inTournament = false;
};

struct League {
    std::int16_t lgIdx = 0;
    std::string lgName, shortName;
    std::int32_t EraID = 0;
};

struct Division {
    std::int16_t lgIdx = 0, divIdx = 0;
    std::string divName;
};

// One slot of a stored list. PlayerType 'B' names a row of KorvBatters, 'P' one of KorvPitchers.
struct ListSlot {
    std::int32_t playerID = 0;
    Position position = Position::None;
    char PlayerType = 'B';
};

// A row of Lineups: 'L' a batting line-up, 'D' a depth chart, 'S' starters, 'R' relievers, 'C' closers.
struct LineupList {
    std::int32_t lineupID = 0;
    std::string teamID;
    char LineupType = 'L';
    std::string DepthType, LineupName;
    std::int16_t BattingvsL = 0, BattingvsR = 0;
    std::array<ListSlot, 9> slot{};
    std::int32_t playerIDP = 0;
    std::int32_t GameID = 0;
};

// A row of ComputerManager. Each tendency is 1 (aggressive, more often), 2 or 3.
struct ManagerTendencies {
    std::uint8_t Bunting = 2, BaseStealing = 2, BaseRunning = 2, PinchHitting = 2, PinchRunning = 2, RelieverUsage = 2,
                 DefensiveSubs = 2;
};

// A team as a game loads it.
struct TeamRoster {
    Team team;
    std::vector<Batter> batters;
    std::vector<Pitcher> pitchers;
    std::vector<LineupList> lists;
    ManagerTendencies tendencies;
};

}  // namespace tarvane
