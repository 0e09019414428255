#pragma once

#include <stdexcept>
#include <string>

namespace tarvane {

// A fault of the user's data or request (a file, a line, a field, an option), told in one sentence that says what is
// wrong and what to do. It is thrown at the edges (files, databases, command line) and shown as it stands.
class UserError : public std::runtime_error {
  public:
    explicit UserError(const std::string& message) : std::runtime_error(message) {}
};

}  // namespace tarvane
