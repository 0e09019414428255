#include "data/images.h"

#include <fmt/core.h>

#include <map>
#include <string>
#include <string_view>

#include "base/text.h"

namespace tarvane {

namespace {

using FileNames = std::map<std::string, std::string, LessIgnoreCase>;

// The names are compared without case but not in the order of the folder, which differs from one disk to the next.
FileNames ListFiles(const std::filesystem::path& folder) {
    FileNames files;
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator(folder, ignored)) {
        const std::string name = entry.path().filename().string();
        const auto [place, fresh] = files.emplace(name, name);
        if (!fresh && name < place->second) place->second = name;
    }
    return files;
}

std::string FindPhotograph(const FileNames& files, std::string_view playerName, const std::string& teamID) {
    const std::size_t blank = playerName.find(' ');
    std::string base(playerName.substr(0, blank));
    if (blank != std::string_view::npos) base += '_' + std::string(playerName.substr(blank + 1));
    for (const std::string& stem : {base + teamID, base})
        for (const char* ending : {".jpg", ".bmp", ".png"})
            if (const auto found = files.find(stem + ending); found != files.end()) return found->second;
    return {};
}

}  // namespace

int AssignPlayerImages(Database& season, const std::filesystem::path& folder) {
    const FileNames files = ListFiles(folder);
    Transaction transaction(season);
    int found = 0;
    for (const char* table : {"KorvBatters", "KorvPitchers"}) {
        Statement players = season.Prepare(fmt::format("SELECT playerID, playerName, teamID FROM {}", table));
        std::vector<std::pair<std::int64_t, std::string>> images;
        while (players.Step()) {
            std::string image = FindPhotograph(files, TrimRight(players.Text(1)), players.Text(2));
            if (!image.empty()) images.emplace_back(players.Int(0), std::move(image));
        }
        for (const auto& [playerID, image] : images)
            season.Execute(fmt::format("UPDATE {} SET ImageFile = ? WHERE playerID = ?", table), {image, playerID});
        found += static_cast<int>(images.size());
    }
    transaction.Commit();
    return found;
}

}  // namespace tarvane
