#pragma once

#include "engine/gamestate.h"

namespace tarvane {

// The preferences of the installation that the game screen reads, under the columns' names.
struct GameOptions {
    PerSide<SideControl> computer;      // CompRoadMgr..., CompHomeMgr...
    bool ComputerMgrAutoClick = false;  // "1-Click Result": a click plays the whole at-bat
    bool AuxChartsAutoClick = false;    // a computer manager's strategies are put to the user
    bool ManualDiceRolls = false;
    bool HideChartDuringGame = false;
    bool DisplayChances = true;
    bool ShowBanner = true;  // FieldZ
    bool DiceRollSounds = false;
    bool PromptSpectatorMode = true;
    bool DisplayCompMgrChanges = false;  // a computer manager's substitutions are put to the user
    bool PitcherRestWarning = false, PitcherBatterWarning = false;
    bool QuickPlayMode = false;   // a game between two computer managers is played at once, without its screen
    char DefaultChartType = 'C';  // 'C' charts, 'P' percentages, 'R' statistics on the line-up screen
    int PlayResultDelay = 0;      // seconds that a result stays before the next sheet

    bool ComputerPlaysBoth() const {
        return computer[Side::Visitor].game && computer[Side::Visitor].subs && computer[Side::Home].game &&
               computer[Side::Home].subs;
    }
};

}  // namespace tarvane
