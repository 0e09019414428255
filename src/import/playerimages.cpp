#include "import/playerimages.h"

#include <filesystem>

namespace tarvane {

namespace {

// The part before the first blank, "_", the part after it.
std::string ImageBase(const std::string& playerName) {
    const std::size_t blank = playerName.find(' ');
    if (blank == std::string::npos) return playerName + "_";
    return playerName.substr(0, blank) + "_" + playerName.substr(blank + 1);
}

std::string FindImage(const std::filesystem::path& folder, const std::string& playerName, const std::string& teamID) {
    const std::string base = ImageBase(playerName);
    if (base.find('/') != std::string::npos) return {};
    for (const std::string& name : {base + teamID, base})
        for (const char* ending : {".jpg", ".bmp", ".png"})
            if (std::filesystem::exists(folder / (name + ending))) return name + ending;
    return {};
}

}  // namespace

void AssignPlayerImages(Database& season, const DataPaths& paths) {
    if (!std::filesystem::is_directory(paths.PlayerImages())) return;
    for (const char* table : {"KorvBatters", "KorvPitchers"}) {
        for (Recordset player = season.OpenRecordset(table); !player.EndOfFile(); player.MoveNext()) {
            const std::string image =
                FindImage(paths.PlayerImages(), player.GetText("playerName"), player.GetText("teamID"));
            if (image.empty()) continue;
            player.Edit();
            player.Set("ImageFile", image);
            player.Update();
        }
    }
}

}  // namespace tarvane
