#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tarvane {

// The whole file, byte for byte. Throws UserError that names the file if it is missing or can't be read.
std::string ReadFile(const std::filesystem::path& path);

// Writes a file whole: first under a temporary name beside it, then renamed, so that nobody meets half of it. Replaces
// an earlier file. Throws UserError that names the file; the earlier file then stays as it was.
void WriteFile(const std::filesystem::path& path, std::string_view content);

}  // namespace tarvane
