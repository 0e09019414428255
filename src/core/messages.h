#pragma once

#include <string>

namespace tarvane {

// Where messages go: boxes on the desktop, lines on the terminal, a list in a test. Texts are shown as they stand;
// lines are joined by line feeds.
class MessageSink {
  public:
    virtual ~MessageSink() = default;
    virtual void Warn(const std::string& title, const std::string& text) = 0;
    virtual void Inform(const std::string& title, const std::string& text) = 0;
};

}  // namespace tarvane
