#pragma once

#include <filesystem>

#include "engine/gamestate.h"
#include "records/settings.h"

namespace tarvane {

// What of a game is heard, under the columns' names.
struct SoundOptions {
    bool GameSounds = false, UserGamePlaySounds = false;  // either lets plays be heard
    bool BetweenInningsSounds = false, BetweeInnRandom = false;
    std::string SeventhInnStretchSound;
    std::int16_t SoundDuration = 0;  // seconds of a song between innings; 0: all of it
    std::array<std::string, 25> Sound;
    GamePlaySounds user;           // the user's set
    std::filesystem::path folder;  // of the user's files; what isn't there is looked for among the built-in clips

    bool PlaysAreHeard() const { return GameSounds || UserGamePlaySounds; }
};

// How a play is shown on the field.
struct AnimationOptions {
    bool GameAnimation = false, BaseRunnerAnimation = false;
    bool GameAnimationLite = false;  // hits and runs only, without the pitch, the throws and the fielders
    double GameAniSpeed2 = 1;        // factor of all times: 0.33 fastest to 1.67 slowest
};

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
    SoundOptions sounds;
    AnimationOptions animation;

    bool PlayByPlayResults = true, ChartMode = false;

    // The game is told in words; only these two together silence it.
    bool Narrated() const { return PlayByPlayResults || !ChartMode; }
    // Seconds that a result stays on its chart. A chart that is hidden keeps nobody waiting.
    int ResultSeconds() const { return HideChartDuringGame ? 0 : PlayResultDelay; }

    bool ComputerPlaysBoth() const {
        return computer[Side::Visitor].game && computer[Side::Visitor].subs && computer[Side::Home].game &&
               computer[Side::Home].subs;
    }
};

}  // namespace tarvane
