#include "data/session.h"

#include "data/seeds.h"
#include "data/settings.h"
#include "data/upgrade.h"

namespace tarvane {

namespace {

constexpr const char* kTitle = "Tarvane PC Baseball";
constexpr int kLeastWidth = 1024;
constexpr int kLeastHeight = 768;
constexpr const char* kScreenTooSmall =
    "Tarvane PC Baseball requires minimum display properties to ensure that screens can be displayed correctly.\n"
    "Please ensure that your screen resolution is at least 1024 (width) x 768 (height). \n"
    "This error can also occur with the Windows option for Large text and other items - please try a smaller setting.";

}  // namespace

void CompactInPlace(const std::filesystem::path& file, const std::filesystem::path& temporary) {
    std::error_code ignored;
    std::filesystem::remove(temporary, ignored);  // of an exit that was cut short
    Database::Compact(file, temporary);
    // Renamed rather than copied back: there is a whole database under the name at every moment.
    std::error_code error;
    std::filesystem::rename(temporary, file, error);
    if (!error) return;
    std::filesystem::remove(temporary, ignored);
    throw DatabaseError(DatabaseError::kNotADatabase, file.string() + " can't be replaced by its compacted copy.");
}

// The file may have been opened by now; a refused program leaves it alone.
StartResult Session::Refuse(StartResult result) {
    compactOnExit_ = false;
    seasons_.reset();
    common_.reset();
    return result;
}

bool Session::OpenCommonFile(const std::filesystem::path& seeds) {
    try {
        MakeDataFiles(paths_, seeds);
        common_ = std::make_unique<Database>(paths_.CommonFile());
        return true;
    } catch (const std::exception& failure) {
        log_.errorFlag = true;
        log_.LogRuntimeError(",OpenKorvCommon", failure);
        return false;
    }
}

bool Session::LoadPreferences() {
    try {
        UpgradeCommonTables(*common_);
        settings_ = LoadGameSettings(*common_);
        screens_ = LoadScreenSettings(*common_);
        return true;
    } catch (const std::exception& failure) {
        log_.errorFlag = true;
        log_.LogRuntimeError("Module1, LoadGameSettings", failure);
        return false;
    }
}

StartResult Session::StartUp(const StartupEnvironment& environment) {
    log_.errorFlag = false;
    try {
        paths_ = DetermineDataPath(environment.dataFolder);
    } catch (const UserError& error) {
        messages_.Warn(kTitle, error.what());
        return StartResult::NoDataFolder;
    }
    log_.SetPath(paths_.ErrorLog());
    if (!OpenCommonFile(environment.seeds)) return Refuse(StartResult::NoCommonDatabase);
    const auto& screen = environment.screen;
    if (screen && (screen->height < kLeastHeight || screen->width < kLeastWidth)) {
        messages_.Warn(kTitle, kScreenTooSmall);
        return Refuse(StartResult::ScreenTooSmall);
    }
    if (environment.anotherInstanceRuns && environment.anotherInstanceRuns(paths_)) {
        messages_.Warn(kTitle, "Tarvane PC Baseball is already running");
        return Refuse(StartResult::AlreadyRunning);
    }
    if (LoadPreferences()) {
        seasons_ = std::make_unique<SeasonCatalogue>(paths_, *common_, messages_, log_);
        seasons_->CheckActiveSeason();
    }
    if (log_.errorFlag) return Refuse(StartResult::Failed);
    compactOnExit_ = true;
    return StartResult::Running;
}

void Session::Exit() {
    const bool seasonOpen = seasons_ && seasons_->SeasonOpen();
    const std::filesystem::path season = seasonOpen ? seasons_->SeasonPath() : std::filesystem::path();
    const std::filesystem::path seasonTemp = seasonOpen ? seasons_->SeasonTempPath() : std::filesystem::path();
    const bool compactCommon = compactOnExit_ && !log_.errorFlag;
    seasons_.reset();
    common_.reset();
    try {
        if (compactCommon) CompactInPlace(paths_.CommonFile(), paths_.CommonTempFile());
    } catch (const std::exception& failure) {
        log_.LogRuntimeError("frmMain,Form_Unload", failure);
    }
    try {
        if (compactOnExit_ && seasonOpen) CompactInPlace(season, seasonTemp);
    } catch (const std::exception& failure) {
        log_.LogRuntimeError("frmMain,Form_Unload", failure);
    }
    compactOnExit_ = false;
}

}  // namespace tarvane
