#pragma once

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "base/error.h"
#include "base/file.h"
#include "base/tempfolder.h"
#include "import/mdbreader.h"

namespace tarvane::test {

namespace fs = std::filesystem;

inline std::size_t EntryCount(const fs::path& folder) {
    return static_cast<std::size_t>(std::distance(fs::recursive_directory_iterator(folder), {}));
}

// The folder of real statistics, if this machine has one.
inline std::optional<fs::path> RealData() {
    const char* folder = std::getenv("TARVANE_REAL_DATA");
    if (folder == nullptr || !fs::is_directory(folder)) return std::nullopt;
    return fs::path(folder);
}

inline MdbHelper Helper(std::chrono::milliseconds limit = std::chrono::milliseconds{20'000}) {
    return {TARVANE_IMPORT_HELPER, limit};
}

// What the user is told; empty if nothing was wrong.
inline std::string MessageOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const UserError& error) {
        return error.what();
    }
    return {};
}

// Texts of CSV files by name.
using Files = std::map<std::string, std::string>;

inline void WriteFiles(const fs::path& folder, const Files& files) {
    for (const auto& [name, text] : files) WriteFile(folder / name, text);
}

// Two invented clubs of 1930 and one of them again in 1950, with a few men each: the cases that an import must tell
// apart.
Files SmallLeague();

// The text with the first occurrence of what replaced; a test mistake if there is none.
std::string Replaced(std::string text, const std::string& what, const std::string& with);

}  // namespace tarvane::test
