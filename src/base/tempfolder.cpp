#include "base/tempfolder.h"

#include <fmt/core.h>
#include <stdlib.h>

#include "base/error.h"

namespace tarvane {

TempFolder::TempFolder(const std::filesystem::path& parent, std::string_view prefix) {
    std::string name = (parent / fmt::format("{}-XXXXXX", prefix)).string();
    if (mkdtemp(name.data()) == nullptr)
        throw UserError(
            fmt::format("No folder can be made in {}. Check its rights and the space on the disk.", parent.string()));
    path_ = name;
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace tarvane
