#pragma once

#include <filesystem>
#include <string_view>

namespace tarvane {

// A folder of its own, gone at the end with whatever is still in it.
class TempFolder {
  public:
    // In the system's temporary folder. Both throw UserError if no folder can be made there.
    TempFolder() : TempFolder(std::filesystem::temp_directory_path(), "tarvane files") {}
    // In parent, its name beginning with prefix.
    TempFolder(const std::filesystem::path& parent, std::string_view prefix);
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder();

    const std::filesystem::path& Path() const { return path_; }
    std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

  private:
    std::filesystem::path path_;
};

}  // namespace tarvane
