#pragma once

#include <exception>
#include <string>
#include <string_view>

#include "core/messages.h"
#include "core/paths.h"

namespace tarvane {

// The one place where runtime failures are told and written down. The log file holds one line, the last failure.
class ErrorLog {
  public:
    explicit ErrorLog(MessageSink& messages) : messages_(messages) {}

    // Until the data folder is known failures are only shown.
    void SetPath(std::filesystem::path file) { file_ = std::move(file); }

    // Writes "<place>,Runtime Error: <number>" with what is known about the failure, and shows it. place is
    // "<form>,<procedure>", or "Module1, <procedure>" outside the forms. Never throws.
    void LogRuntimeError(std::string_view place, const std::exception& failure);

    // Set by a failure that must stop the start or keep the common database from being compacted.
    bool errorFlag = false;
    // The last message of an Internet game; its first 255 characters are shown with a failure.
    std::string InternetMessage;

    // The line last logged.
    const std::string& ErrorText() const { return errorText_; }

  private:
    MessageSink& messages_;
    std::filesystem::path file_;
    std::string errorText_;
};

// A number for a failure: the store's own for a DatabaseError, 5 for bad data of the user, 51 for anything else.
int RuntimeErrorNumber(const std::exception& failure);

}  // namespace tarvane
