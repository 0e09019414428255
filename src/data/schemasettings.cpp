#include "data/columnlist.h"

namespace tarvane {

namespace {

constexpr std::string_view kScreens =
    "Main Team TeamStats Lineup League LeagueStats Game GameResults GameLog Standings TeamvsTeam BattingLeaders "
    "PitchingLeaders Injury ChartEditor ScoreSheet BoxScore";

constexpr std::string_view kPlaySounds =
    "MDSafe MDOut RunsScored Single Double Triple HR Error FOSF FOSFGlove GOFC GOFCGlove1 GOFCGlove2 DP DPGlove1 "
    "DPGlove2 "
    "DPGlove3 SO BB Bunt SB CS PK WPOrPB HBP GoodPlay BadPlay";

constexpr int kSoundWidth = 100;

TableDef Rules() {
    ColumnList list;
    list.Boolean("LeagueDH HometeamDH UseParkEffects UseYearEffects").Long("DefChartEraID");
    list.Boolean("UseYellowXInjuryChart CatcherORating PitcherStamina PitcherStaminaSecondary BatterBBSORating");
    list.Boolean("UseErrorRatings DoNotCauseErrorsFromOuts AutoOutsForOF SpecialErrorRule FactorActualUsage");
    list.Boolean("IgnoreSchedLineups").Integer("RelieverMaxIPOuts");
    list.Integer("OFOutOfPos CFOutOfPos IFOutOfPos FirstBaseOutOfPos COutOfPos");
    list.Text(1,
              "OFOutOfPosErrorRating CFOutOfPosErrorRating IFOutOfPosErrorRating FirstBaseOutOfPosErrorRating "
              "COutOfPosErrorRating");
    list.Boolean("TourneyMode").Text(1, "TourneyType").Long("NextResultsFile");
    list.Boolean("EnhancedInjury HitAndRun EnhancedPitcherRestRule UseSBRatings UsePowerRatings");
    list.Long("PowerRatingEraID").Boolean("SpecialCharts");
    list.MissingAt(28, "TourneyMode TourneyType").MissingAt(30, "FactorActualUsage SpecialErrorRule");
    list.MissingAt(32, "IgnoreSchedLineups");
    list.MissingAt(33, "UseSBRatings UsePowerRatings PowerRatingEraID DefChartEraID");
    return {"LeagueRules", TableHome::Season, list.columns, {}, UpgradeRule::Exactly};
}

TableDef GameSettings() {
    ColumnList list;
    list.Boolean("ManualDiceRolls ComputerMgrAutoClick AuxChartsAutoClick PromptSpectatorMode SoundWhenMsgReceived");
    list.Text(100, "MainMenuImage").Boolean("SaveBoxScore SaveScoreSheet SaveStats").Text(1, "ResultsFormat");
    list.Boolean("DisplayChances DisplayCompMgrChanges QuickPlayMode CompRoadMgrLineups CompRoadMgrSubs");
    list.Boolean("CompRoadMgrGame CompHomeMgrLineups CompHomeMgrSubs CompHomeMgrGame");
    list.Boolean("GameAnimation BaseRunnerAnimation GameAnimationLite").Double("GameAniSpeed2").Byte("PlayResultDelay");
    list.Boolean("PitcherRestWarning PitcherBatterWarning PlayerImageMode PlayerCardMode").Text(1, "DefaultChartType");
    list.Text(1, "BoxScoreType").Boolean("ChartMode PlayByPlayResults PlayByPlayAndKorvResults PlayByPlaySpeech");
    list.Boolean("UserGamePlaySounds HideChartDuringGame").Long("InternetLocalPort").Byte("InternetPauseTime");
    list.Integer("FieldZ").Long("ScoreBoardBackColor ScoreBoardForeColor PlayByPlayBackColor PlayByPlayForeColor");
    list.Long("ReportGridsBackColor ReportGridsForeColor MainGridsBackColor MainGridsForeColor");
    list.Integer("ScoreBoardFontSize PlayByPlayFontSize ReportsFontSize DBVersion");
    list.Boolean("AuxFilesConverted PlayerImagesExtracted MiscSounds GameSounds GameSoundFromEvents DiceRollSounds");
    list.Boolean("BetweenInningsSounds BetweeInnRandom");  // the second is spelled so in every file
    list.Text(kSoundWidth,
              "IntroSound LeagueOrgDropSound LineupDropSound LineupRemoveSound AnthemCASound AnthemUSSound");
    list.Text(kSoundWidth, "AnthemOtherSound SeventhInnStretchSound").Integer("AnthemDuration SoundDuration");
    for (int i = 1; i <= 25; ++i) list.Text(kSoundWidth, "Sound" + std::to_string(i));
    list.Spares(5);
    list.MissingAt(83, "BaseRunnerAnimation GameAnimationLite PitcherRestWarning PitcherBatterWarning");
    list.MissingAt(90,
                   "InternetPauseTime ScoreBoardBackColor ScoreBoardForeColor PlayByPlayBackColor "
                   "PlayByPlayForeColor ReportGridsBackColor ReportGridsForeColor");
    list.MissingAt(94, "ScoreBoardFontSize PlayByPlayFontSize ReportsFontSize PlayByPlaySpeech");
    list.MissingAt(96, "MainGridsBackColor MainGridsForeColor").MissingAt(98, "PlayerCardMode PlayerImageMode");
    return {"GameSettings", TableHome::Common, list.columns, {}, UpgradeRule::AtMost};
}

TableDef ScreenSettings() {
    ColumnList list;
    for (const std::string& screen : Words(kScreens)) list.Integers(screen, "H W S");
    list.Boolean("CondensedBoxScore").MissingAt(51, "CondensedBoxScore");
    return {"ScreenSettings", TableHome::Common, list.columns, {}, UpgradeRule::AtMost};
}

}  // namespace

void AddSettingsTables(std::vector<TableDef>& tables) {
    tables.push_back(Rules());
    ColumnList rest;
    rest.Long("RestID").Text(1, "pitcherType").Integer("IPOutsFrom IPOutsTo RestDays");
    tables.push_back({"PitcherRestSettings", TableHome::Season, rest.columns, {}});
    tables.push_back(GameSettings());
    tables.push_back(ScreenSettings());
    ColumnList sounds;
    for (const std::string side : {"Visitor", "Home"})
        for (const std::string& name : Words(kPlaySounds)) sounds.Text(kSoundWidth, side + name);
    tables.push_back({"GamePlaySounds", TableHome::Common, sounds.columns, {}});
}

}  // namespace tarvane
