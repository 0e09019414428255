#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

#include "core/database.h"
#include "core/errorlog.h"
#include "core/messages.h"
#include "core/paths.h"
#include "data/seasons.h"
#include "records/settings.h"

namespace tarvane {

struct ScreenSize {
    int width = 0, height = 0;  // pixels
};

// What the start asks of the world around it.
struct StartupEnvironment {
    std::optional<std::filesystem::path> dataFolder;  // none: in the user's documents
    std::filesystem::path seeds = AssetsPath() / "seeds";
    std::optional<ScreenSize> screen;                           // none: a program without a screen
    std::function<bool(const DataPaths&)> anotherInstanceRuns;  // may be empty
};

enum class StartResult { Running, NoDataFolder, NoCommonDatabase, ScreenTooSmall, AlreadyRunning, Failed };

// A running program: the data folder, the common database, the preferences and the seasons, from the start to the exit.
class Session {
  public:
    explicit Session(MessageSink& messages) : messages_(messages), log_(messages) {}

    // Finds or makes the data folder and its databases, refuses a screen under 1024 x 768 and a second copy, brings the
    // common tables up to date, loads the preferences and opens the active season, in this order. Anything but Running
    // has been told to the user, and the program ends.
    StartResult StartUp(const StartupEnvironment& environment);

    // Closes the databases. If the start ended well they are compacted: the common one unless a failure set the error
    // flag, the open season always.
    void Exit();

    const DataPaths& Paths() const { return paths_; }
    Database& Common() { return *common_; }
    SeasonCatalogue& Seasons() { return *seasons_; }
    GameSettings& Settings() { return settings_; }
    ScreenSettings& Screens() { return screens_; }
    ErrorLog& Log() { return log_; }

  private:
    bool OpenCommonFile(const std::filesystem::path& seeds);
    StartResult Refuse(StartResult result);
    bool LoadPreferences();

    MessageSink& messages_;
    ErrorLog log_;
    DataPaths paths_;
    std::unique_ptr<Database> common_;
    std::unique_ptr<SeasonCatalogue> seasons_;
    GameSettings settings_;
    ScreenSettings screens_;
    bool compactOnExit_ = false;
};

// Replaces a closed database by a compacted copy of itself, made as temporary. A failure leaves the file as it was.
void CompactInPlace(const std::filesystem::path& file, const std::filesystem::path& temporary);

}  // namespace tarvane
