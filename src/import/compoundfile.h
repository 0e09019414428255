#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "import/bytes.h"

namespace tarvane {

// A compound file: a small file system of sectors inside one file, the shell of old spreadsheets. The bytes must
// outlive it. Everything throws OutOfBytes on a damaged file; no chain of sectors is followed longer than the file is.
class CompoundFile {
  public:
    explicit CompoundFile(std::string_view bytes);

    static bool LooksLikeOne(std::string_view bytes);

    // The contents of a stream anywhere in the file, by its name in any letter case.
    std::optional<std::string> ReadStream(std::string_view name) const;

  private:
    struct Entry {
        std::string name;
        std::uint8_t type = 0;
        std::uint32_t start = 0, size = 0;
    };

    void ReadFat();
    void ReadDirectory();
    ByteView Sector(std::uint32_t number) const;
    std::string Chain(std::uint32_t start) const;
    std::string MiniChain(std::uint32_t start, std::size_t size) const;

    ByteView bytes_;
    std::size_t sectorSize_ = 0, miniSectorSize_ = 0, miniCutoff_ = 0;
    std::vector<std::uint32_t> fat_, miniFat_;
    std::string miniStream_;
    std::vector<Entry> entries_;
};

}  // namespace tarvane
