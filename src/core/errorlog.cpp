#include "core/errorlog.h"

#include <fmt/core.h>

#include <algorithm>

#include "base/file.h"
#include "base/text.h"
#include "core/database.h"

namespace tarvane {

int RuntimeErrorNumber(const std::exception& failure) {
    if (const auto* store = dynamic_cast<const DatabaseError*>(&failure)) return store->Number();
    return dynamic_cast<const UserError*>(&failure) != nullptr ? 5 : 51;
}

void ErrorLog::LogRuntimeError(std::string_view place, const std::exception& failure) {
    std::string text = fmt::format("{},Runtime Error: {} - {}", place, RuntimeErrorNumber(failure), failure.what());
    std::replace(text.begin(), text.end(), '\n', ' ');
    errorText_ = text;
    if (!file_.empty()) {
        try {
            WriteFile(file_, errorText_ + "\r\n");
        } catch (const UserError&) {
            // A full disk must not hide the failure itself, which is shown below.
        }
    }
    messages_.Warn("Tarvane Baseball", fmt::format("Run Time Error Occurred - Contact Tarvane\n{}\n{}", errorText_,
                                                   Utf8Truncate(InternetMessage, 255)));
}

}  // namespace tarvane
