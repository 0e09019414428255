#include "import/teamtables.h"

#include <filesystem>

namespace tarvane {

namespace {

constexpr int kLists = 64;
constexpr const char* kDepthTypes[] = {"C", "1B", "2B", "SS", "3B", "LF", "CF", "RF", "DH", "PH"};

void AddList(Recordset& lineups, const std::string& teamID, const char* type, const char* depth = "") {
    lineups.AddNew();
    lineups.Set("teamID", teamID);
    lineups.Set("LineupType", std::string(type));
    lineups.Set("DepthType", std::string(depth));
    lineups.Update();
}

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

void CreateTeamLineups(Database& season, const std::string& teamID) {
    if (teamID.empty()) return;
    Recordset lineups = season.OpenRecordset("Lineups", "0");
    constexpr int kOthers = static_cast<int>(std::size(kDepthTypes)) + 3;
    for (int i = 0; i < kLists - kOthers; ++i) AddList(lineups, teamID, "L");
    for (const char* depth : kDepthTypes) AddList(lineups, teamID, "D", depth);
    for (const char* type : {"S", "R", "C"}) AddList(lineups, teamID, type);
}

void CreateTeamVsTeam(Database& season) {
    season.Execute("DELETE FROM TeamVsTeam");
    season.Execute(
        "INSERT INTO TeamVsTeam (TeamIndex, vsTeamIndex, vsTeamWins) "
        "SELECT a.TeamIdx, b.TeamIdx, 0 FROM KorvTeams a, KorvTeams b ORDER BY a.TeamIdx, b.TeamIdx");
}

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
