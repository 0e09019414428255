#include "base/file.h"

#include <fmt/core.h>

#include <fstream>
#include <sstream>

#include "base/error.h"

namespace tarvane {

std::string ReadFile(const std::filesystem::path& path) {
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored))
        throw UserError(fmt::format("{} is a folder, not a file.", path.string()));
    std::ifstream in(path, std::ios::binary);
    if (!in) throw UserError(fmt::format("The file {} can't be opened. Check that it is there.", path.string()));
    std::ostringstream content;
    if (in.peek() != std::ifstream::traits_type::eof()) content << in.rdbuf();
    if (in.bad()) throw UserError(fmt::format("The file {} can't be read to its end.", path.string()));
    return std::move(content).str();
}

void WriteFile(const std::filesystem::path& path, std::string_view content) {
    std::filesystem::path temporary = path;
    temporary += ".part";
    std::error_code error;
    {
        std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
        out.write(content.data(), static_cast<std::streamsize>(content.size()));
        out.close();
        if (!out) error = std::make_error_code(std::errc::io_error);
    }
    if (!error) std::filesystem::rename(temporary, path, error);
    if (!error) return;
    std::error_code ignored;
    std::filesystem::remove(temporary, ignored);
    throw UserError(
        fmt::format("The file {} can't be written. Check the folder and the space on the disk.", path.string()));
}

}  // namespace tarvane
