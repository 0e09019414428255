#include "core/paths.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "base/error.h"
#include "base/file.h"
#include "base/tempfolder.h"

namespace tarvane {

namespace fs = std::filesystem;

TEST(Paths, DataFolderIsGivenOrInTheDocuments) {
    TempFolder folder;
    const std::string oldHome = std::getenv("HOME") ? std::getenv("HOME") : "";
    setenv("HOME", folder.Path().c_str(), 1);
    unsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(DetermineDataPath().root, folder.Path() / "Documents" / "Tarvane Baseball Files");
    EXPECT_TRUE(fs::is_directory(folder.Path() / "Documents" / "Tarvane Baseball Files" / "Data08"));
    fs::create_directories(folder / ".config");
    WriteFile(folder / ".config/user-dirs.dirs",
              "# c\nXDG_MUSIC_DIR=\"$HOME/M\"\nXDG_DOCUMENTS_DIR=\"$HOME/Meine Texte\"\n");
    EXPECT_EQ(DocumentsFolder(), folder.Path() / "Meine Texte");
    unsetenv("HOME");
    EXPECT_THROW(DocumentsFolder(), UserError);
    if (!oldHome.empty()) setenv("HOME", oldHome.c_str(), 1);

    const DataPaths paths = DetermineDataPath(folder / "given folder");
    EXPECT_EQ(paths.SeasonFile("My League"), folder / "given folder/Data08/My League/Korv My League.mdb");
    EXPECT_EQ(paths.SeasonTempFile("My League"), folder / "given folder/Data08/My League/Korv My LeagueTemp.mdb");
    WriteFile(folder / "a file", "x");
    EXPECT_THROW(DetermineDataPath(folder / "a file"), UserError);
}

}  // namespace tarvane
