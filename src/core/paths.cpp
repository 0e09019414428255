#include "core/paths.h"

#include <fmt/core.h>

#include <cstdlib>
#include <fstream>
#include <string>

#include "base/error.h"
#include "base/text.h"

namespace tarvane {

namespace fs = std::filesystem;

namespace {

fs::path Environment(const char* name) {
    const char* value = std::getenv(name);  // read before any thread starts
    return value == nullptr ? fs::path() : fs::path(value);
}

// The folder that a line XDG_DOCUMENTS_DIR="$HOME/..." of the desktop's list names; empty if there is none.
fs::path DesktopDocuments(const fs::path& home) {
    fs::path config = Environment("XDG_CONFIG_HOME");
    if (config.empty()) config = home / ".config";
    std::ifstream in(config / "user-dirs.dirs");
    constexpr std::string_view kKey = "XDG_DOCUMENTS_DIR=";
    for (std::string line; std::getline(in, line);) {
        std::string_view value = Trim(line);
        if (value.substr(0, kKey.size()) != kKey) continue;
        value.remove_prefix(kKey.size());
        if (value.size() < 2 || value.front() != '"' || value.back() != '"') continue;
        value = value.substr(1, value.size() - 2);
        constexpr std::string_view kHome = "$HOME/";
        if (value.substr(0, kHome.size()) == kHome) return home / value.substr(kHome.size());
        if (fs::path(value).is_absolute()) return value;
    }
    return {};
}

}  // namespace

fs::path DataPaths::SeasonFile(std::string_view season) const {
    return SeasonFolder(season) / fmt::format("Korv {}.mdb", season);
}

fs::path DataPaths::SeasonTempFile(std::string_view season) const {
    return SeasonFolder(season) / fmt::format("Korv {}Temp.mdb", season);
}

fs::path DocumentsFolder() {
    const fs::path home = Environment("HOME");
    if (home.empty()) throw UserError("Unable to resolve Tarvane PC Baseball data folder - please contact Tarvane.");
    const fs::path documents = DesktopDocuments(home);
    return documents.empty() ? home / "Documents" : documents;
}

DataPaths DetermineDataPath(const std::optional<fs::path>& given) {
    DataPaths paths{given ? fs::absolute(*given).lexically_normal() : DocumentsFolder() / "Tarvane Baseball Files"};
    for (const fs::path& folder :
         {paths.Data08(), paths.SoundFiles(), paths.BallparkImages(), paths.PlayerImages(), paths.TeamImages()}) {
        std::error_code error;
        fs::create_directories(folder, error);
        if (error || !fs::is_directory(folder, error))
            throw UserError(fmt::format("The data folder {} can't be made. Choose a folder that you may write to.",
                                        folder.string()));
    }
    return paths;
}

fs::path AssetsPath() {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    if (!error) {
        const fs::path installed = program.parent_path().parent_path() / "share" / "tarvane";
        if (fs::is_directory(installed, error)) return installed;
    }
    return TARVANE_ASSETS_DIR;
}

}  // namespace tarvane
