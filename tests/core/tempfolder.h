#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace tarvane {

// A folder of its own for each test, removed at the end.
class TempFolder {
  public:
    TempFolder() {
        std::random_device device;
        path_ = std::filesystem::temp_directory_path() / ("tarvane test " + std::to_string(device()));
        std::filesystem::create_directories(path_);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    std::filesystem::path operator/(std::string_view name) const { return path_ / name; }
    const std::filesystem::path& Path() const { return path_; }

  private:
    std::filesystem::path path_;
};

}  // namespace tarvane
