#pragma once

#include <chrono>
#include <filesystem>

#include "import/rawtables.h"

namespace tarvane {

// The Access file's reader, a program of its own: the library in it hangs or crashes on damaged files.
struct MdbHelper {
    std::filesystem::path program;  // tarvane-import; empty: the one beside the running program
    std::chrono::milliseconds limit{60'000};
};

// An Access file (Jet or ACE). Whatever the file does to the helper, the reader ends in time, with rows or with one
// UserError that names the file: also if the helper gave fewer or more rows than the file says it has.
class MdbTables : public RawTables {
  public:
    explicit MdbTables(std::filesystem::path file, MdbHelper helper = {});

    void Read(const std::vector<TableRequest>& requests, const YearSet& years, const Sink& sink,
              Progress* progress) override;

  private:
    std::filesystem::path file_;
    MdbHelper helper_;
};

// Throws UserError with what the file is and what to do, unless it begins as an Access file does.
void CheckAccessFile(const std::filesystem::path& file);

}  // namespace tarvane
