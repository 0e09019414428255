#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>

namespace tarvane {

// The preferences of the installation: the one row of GameSettings, under the columns' names. Sounds and pictures are
// file names as stored; where they lie is the data folder's business. Colours of 0 in both of a pair mean the built-in
// ones.
struct GameSettings {
    bool ManualDiceRolls = false, ComputerMgrAutoClick = false, AuxChartsAutoClick = false, PromptSpectatorMode = false,
         SoundWhenMsgReceived = false;
    std::string MainMenuImage;
    bool SaveBoxScore = true, SaveScoreSheet = true, SaveStats = true;
    std::string ResultsFormat = "H";  // "T" text, "H" HTML, "X" Excel
    bool DisplayChances = false, DisplayCompMgrChanges = false, QuickPlayMode = false;
    bool CompRoadMgrLineups = false, CompRoadMgrSubs = false, CompRoadMgrGame = false, CompHomeMgrLineups = false,
         CompHomeMgrSubs = false, CompHomeMgrGame = false;
    bool GameAnimation = false, BaseRunnerAnimation = false, GameAnimationLite = false;
    double GameAniSpeed2 = 1;          // 0.33 fastest to 1.67 slowest
    std::uint8_t PlayResultDelay = 0;  // seconds
    bool PitcherRestWarning = false, PitcherBatterWarning = false, PlayerImageMode = false, PlayerCardMode = false;
    std::string DefaultChartType = "C", BoxScoreType = "O";
    bool ChartMode = false, PlayByPlayResults = false, PlayByPlayAndKorvResults = false, PlayByPlaySpeech = false,
         UserGamePlaySounds = false, HideChartDuringGame = false;
    std::int32_t InternetLocalPort = 1001;
    std::uint8_t InternetPauseTime = 5;  // seconds
    std::int16_t FieldZ = 0;             // 1 shows the banner of instructions
    std::int32_t ScoreBoardBackColor = 0, ScoreBoardForeColor = 0, PlayByPlayBackColor = 0, PlayByPlayForeColor = 0,
                 ReportGridsBackColor = 0, ReportGridsForeColor = 0, MainGridsBackColor = 0, MainGridsForeColor = 0;
    std::int16_t ScoreBoardFontSize = 9, PlayByPlayFontSize = 9, ReportsFontSize = 8;
    std::int16_t DBVersion = 2;
    bool AuxFilesConverted = false, PlayerImagesExtracted = false;
    bool MiscSounds = false, GameSounds = false, GameSoundFromEvents = false, DiceRollSounds = false,
         BetweenInningsSounds = false, BetweeInnRandom = false;
    std::string IntroSound, LeagueOrgDropSound, LineupDropSound, LineupRemoveSound, AnthemCASound, AnthemUSSound,
        AnthemOtherSound, SeventhInnStretchSound;
    std::int16_t AnthemDuration = 0, SoundDuration = 0;
    std::array<std::string, 25> Sound;
};

// Where a screen stood when it was last left. 0 in the size lets the program choose.
struct ScreenPlace {
    std::int16_t H = 0, W = 0, S = 0;
    friend bool operator==(const ScreenPlace&, const ScreenPlace&) = default;
};

struct ScreenSettings {
    std::map<std::string, ScreenPlace> place;  // by screen: Main, Team, TeamStats, ...
    bool CondensedBoxScore = false;
};

// The user's own sounds of a game by column name, VisitorSingle to HomeBadPlay; empty names are left out.
using GamePlaySounds = std::map<std::string, std::string>;

// Which line-ups an import asks for from the generated computer managers.
struct LineupChoice {
    bool includeDH = false, noDH = false, both = true;
    bool basedOnUsage = false;
};

}  // namespace tarvane
