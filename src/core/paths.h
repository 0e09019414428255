#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace tarvane {

// The data folder and what lies below it. Season names are folder and file names as they stand, blanks included.
struct DataPaths {
    std::filesystem::path root;

    std::filesystem::path Data08() const { return root / "Data08"; }
    std::filesystem::path ErrorLog() const { return Data08() / "TarvaneErrorLog.txt"; }
    std::filesystem::path CommonFile() const { return Data08() / "Korv Common.mdb"; }
    std::filesystem::path CommonTempFile() const { return Data08() / "Korv Common Temp.mdb"; }
    std::filesystem::path BaseFile() const { return Data08() / "Korv Base.mdb"; }
    std::filesystem::path DefensiveErasFile() const { return Data08() / "DefensiveEras.txt"; }
    std::filesystem::path SeasonFolder(std::string_view season) const { return Data08() / season; }
    std::filesystem::path SeasonFile(std::string_view season) const;
    std::filesystem::path SeasonTempFile(std::string_view season) const;  // only during compaction
    std::filesystem::path GameResults(std::string_view season) const { return SeasonFolder(season) / "Game Results"; }
    std::filesystem::path SeasonScratch(std::string_view season) const { return SeasonFolder(season) / "Temp"; }
    std::filesystem::path SoundFiles() const { return root / "Sound Files"; }
    std::filesystem::path BallparkImages() const { return root / "Ballpark Images"; }
    std::filesystem::path PlayerImages() const { return root / "Player Images"; }
    std::filesystem::path TeamImages() const { return root / "Team Images"; }
};

// The user's personal documents folder: the one his desktop names, else Documents in his home folder. Throws UserError
// if he has no home folder.
std::filesystem::path DocumentsFolder();

// The folder given, else "Tarvane Baseball Files" in the documents folder; it and the folders below it are made if they
// aren't there. Throws UserError that names the folder.
DataPaths DetermineDataPath(const std::optional<std::filesystem::path>& given = std::nullopt);

// What is shipped with the program (seeds, sounds, pictures): beside the installed program in ../share/tarvane, else in
// the source tree it was built from.
std::filesystem::path AssetsPath();

}  // namespace tarvane
