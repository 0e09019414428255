#include "data/settings.h"

#include <fmt/core.h>

#include <algorithm>
#include <limits>
#include <string_view>
#include <type_traits>

#include "base/text.h"
#include "data/schema.h"

namespace tarvane {

namespace {

// Calls visit(column, field) for each preference: reading and writing go by the same list.
template <class Settings, class Visit>
void VisitPlay(Settings& s, Visit visit) {
    visit("ManualDiceRolls", s.ManualDiceRolls);
    visit("PromptSpectatorMode", s.PromptSpectatorMode);
    visit("SoundWhenMsgReceived", s.SoundWhenMsgReceived);
    visit("MainMenuImage", s.MainMenuImage);
    visit("SaveBoxScore", s.SaveBoxScore);
    visit("SaveScoreSheet", s.SaveScoreSheet);
    visit("SaveStats", s.SaveStats);
    visit("ResultsFormat", s.ResultsFormat);
    visit("DisplayChances", s.DisplayChances);
    visit("DisplayCompMgrChanges", s.DisplayCompMgrChanges);
    visit("QuickPlayMode", s.QuickPlayMode);
    visit("CompRoadMgrLineups", s.CompRoadMgrLineups);
    visit("CompRoadMgrSubs", s.CompRoadMgrSubs);
    visit("CompRoadMgrGame", s.CompRoadMgrGame);
    visit("CompHomeMgrLineups", s.CompHomeMgrLineups);
    visit("CompHomeMgrSubs", s.CompHomeMgrSubs);
    visit("CompHomeMgrGame", s.CompHomeMgrGame);
    visit("GameAnimation", s.GameAnimation);
    visit("BaseRunnerAnimation", s.BaseRunnerAnimation);
    visit("GameAnimationLite", s.GameAnimationLite);
    visit("PlayResultDelay", s.PlayResultDelay);
    visit("PitcherRestWarning", s.PitcherRestWarning);
    visit("PitcherBatterWarning", s.PitcherBatterWarning);
    visit("PlayerImageMode", s.PlayerImageMode);
    visit("PlayerCardMode", s.PlayerCardMode);
    visit("DefaultChartType", s.DefaultChartType);
    visit("BoxScoreType", s.BoxScoreType);
    visit("ChartMode", s.ChartMode);
    visit("PlayByPlaySpeech", s.PlayByPlaySpeech);
    visit("InternetPauseTime", s.InternetPauseTime);
    visit("FieldZ", s.FieldZ);
}

template <class Settings, class Visit>
void VisitLook(Settings& s, Visit visit) {
    visit("ScoreBoardBackColor", s.ScoreBoardBackColor);
    visit("ScoreBoardForeColor", s.ScoreBoardForeColor);
    visit("PlayByPlayBackColor", s.PlayByPlayBackColor);
    visit("PlayByPlayForeColor", s.PlayByPlayForeColor);
    visit("ReportGridsBackColor", s.ReportGridsBackColor);
    visit("ReportGridsForeColor", s.ReportGridsForeColor);
    visit("MainGridsBackColor", s.MainGridsBackColor);
    visit("MainGridsForeColor", s.MainGridsForeColor);
    visit("ScoreBoardFontSize", s.ScoreBoardFontSize);
    visit("PlayByPlayFontSize", s.PlayByPlayFontSize);
    visit("ReportsFontSize", s.ReportsFontSize);
    visit("DBVersion", s.DBVersion);
    visit("AuxFilesConverted", s.AuxFilesConverted);
    visit("PlayerImagesExtracted", s.PlayerImagesExtracted);
}

template <class Settings, class Visit>
void VisitSounds(Settings& s, Visit visit) {
    visit("MiscSounds", s.MiscSounds);
    visit("GameSounds", s.GameSounds);
    visit("GameSoundFromEvents", s.GameSoundFromEvents);
    visit("DiceRollSounds", s.DiceRollSounds);
    visit("BetweenInningsSounds", s.BetweenInningsSounds);
    visit("BetweeInnRandom", s.BetweeInnRandom);
    visit("IntroSound", s.IntroSound);
    visit("LeagueOrgDropSound", s.LeagueOrgDropSound);
    visit("LineupDropSound", s.LineupDropSound);
    visit("LineupRemoveSound", s.LineupRemoveSound);
    visit("AnthemCASound", s.AnthemCASound);
    visit("AnthemUSSound", s.AnthemUSSound);
    visit("AnthemOtherSound", s.AnthemOtherSound);
    visit("SeventhInnStretchSound", s.SeventhInnStretchSound);
    visit("AnthemDuration", s.AnthemDuration);
    visit("SoundDuration", s.SoundDuration);
    int number = 0;
    for (auto& sound : s.Sound) visit(fmt::format("Sound{}", ++number), sound);
}

// Preferences that mean something only in data of the second version.
template <class Settings, class Visit>
void VisitSecondVersion(Settings& s, Visit visit) {
    visit("UserGamePlaySounds", s.UserGamePlaySounds);
    visit("HideChartDuringGame", s.HideChartDuringGame);
    visit("PlayByPlayResults", s.PlayByPlayResults);
    visit("PlayByPlayAndKorvResults", s.PlayByPlayAndKorvResults);
    visit("ComputerMgrAutoClick", s.ComputerMgrAutoClick);
    visit("AuxChartsAutoClick", s.AuxChartsAutoClick);
    visit("InternetLocalPort", s.InternetLocalPort);
    visit("GameAniSpeed2", s.GameAniSpeed2);
}

// Null leaves the field's own default.
struct ReadSetting {
    const Recordset& rs;

    void operator()(std::string_view column, bool& field) const { field = rs.GetBool(column, field); }
    void operator()(std::string_view column, double& field) const { field = rs.GetDouble(column, field); }
    void operator()(std::string_view column, std::string& field) const { field = rs.GetText(column, field); }
    template <class T>
    void operator()(std::string_view column, T& field) const {
        const std::int64_t value = rs.GetInt(column, field);
        field = static_cast<T>(
            std::clamp<std::int64_t>(value, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
    }
};

struct WriteSetting {
    Recordset& rs;

    void operator()(std::string_view column, bool field) const { rs.SetBool(column, field); }
    template <class T>
    void operator()(std::string_view column, const T& field) const {
        rs.Set(column, field);
    }
};

Recordset OnlyRow(Database& common, std::string_view table) {
    Recordset rs = common.OpenRecordset(table);
    if (rs.EndOfFile())
        throw DatabaseError(DatabaseError::kNoCurrentRecord,
                            fmt::format("{}: the table {} holds no row.", common.Path().string(), table));
    return rs;
}

}  // namespace

GameSettings LoadGameSettings(Database& common) {
    Recordset rs = OnlyRow(common, "GameSettings");
    GameSettings settings;
    const ReadSetting read{rs};
    VisitPlay(settings, read);
    VisitLook(settings, read);
    VisitSounds(settings, read);
    if (rs.GetInt("DBVersion") > 1) VisitSecondVersion(settings, read);
    if (settings.InternetLocalPort == 5010) {
        settings.InternetLocalPort = 1001;
        rs.Edit();
        rs.Set("InternetLocalPort", 1001);
        rs.Update();
    }
    // A path from an old file is cut to its name.
    settings.MainMenuImage.erase(0, settings.MainMenuImage.find_last_of("/\\") + 1);
    return settings;
}

void SaveGameSettings(Database& common, const GameSettings& settings) {
    Recordset rs = OnlyRow(common, "GameSettings");
    rs.Edit();
    const WriteSetting write{rs};
    VisitPlay(settings, write);
    VisitLook(settings, write);
    VisitSounds(settings, write);
    VisitSecondVersion(settings, write);
    rs.Update();
}

ScreenSettings LoadScreenSettings(Database& common) {
    const Recordset rs = OnlyRow(common, "ScreenSettings");
    ScreenSettings settings;
    const ReadSetting read{rs};
    for (const ColumnDef& column : FindTableDef("ScreenSettings")->columns) {
        const std::string screen = column.name.substr(0, column.name.size() - 1);
        if (column.type.kind != ColumnKind::Integer) continue;
        ScreenPlace& place = settings.place[screen];
        read(column.name, column.name.back() == 'H' ? place.H : column.name.back() == 'W' ? place.W : place.S);
    }
    settings.CondensedBoxScore = rs.GetBool("CondensedBoxScore");
    return settings;
}

void SaveScreenSettings(Database& common, const ScreenSettings& settings) {
    Recordset rs = OnlyRow(common, "ScreenSettings");
    rs.Edit();
    for (const auto& [screen, place] : settings.place) {
        rs.Set(screen + "H", place.H);
        rs.Set(screen + "W", place.W);
        rs.Set(screen + "S", place.S);
    }
    rs.SetBool("CondensedBoxScore", settings.CondensedBoxScore);
    rs.Update();
}

GamePlaySounds LoadGamePlaySounds(Database& common) {
    GamePlaySounds sounds;
    const Recordset rs = common.OpenRecordset("GamePlaySounds");
    if (rs.EndOfFile()) return sounds;
    for (const std::string& column : common.ColumnNames("GamePlaySounds")) {
        std::string name(Trim(rs.GetText(column)));
        if (!name.empty()) sounds.emplace(column, std::move(name));
    }
    return sounds;
}

void SaveGamePlaySounds(Database& common, const GamePlaySounds& sounds) {
    Recordset rs = common.OpenRecordset("GamePlaySounds");
    if (rs.EndOfFile())
        rs.AddNew();
    else
        rs.Edit();
    for (const std::string& column : common.ColumnNames("GamePlaySounds")) {
        const auto sound = sounds.find(column);
        rs.Set(column, sound == sounds.end() ? std::string() : sound->second);
    }
    rs.Update();
}

std::filesystem::path SoundFile(const DataPaths& paths, const std::string& name) {
    return Trim(name).empty() ? std::filesystem::path() : paths.SoundFiles() / name;
}

std::filesystem::path MainMenuImageFile(const DataPaths& paths, const GameSettings& settings) {
    std::error_code ignored;
    const std::filesystem::path chosen = paths.BallparkImages() / settings.MainMenuImage;
    if (!settings.MainMenuImage.empty() && std::filesystem::is_regular_file(chosen, ignored)) return chosen;
    return paths.BallparkImages() / "BallparkArlington2.JPG";
}

}  // namespace tarvane
