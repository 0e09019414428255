#pragma once

#include <stdexcept>
#include <string_view>

namespace tarvane {

// Who watches long work: a progress screen, a line on a terminal, nobody. The work calls Report now and then; done
// counts up to total, in whatever unit what names ("Generating Player Ratings"). False asks the work to stop.
class Progress {
  public:
    virtual ~Progress() = default;
    virtual bool Report(std::string_view what, int done, int total) = 0;
};

// Leaves long work that was asked to stop. What it was writing is rolled back on the way out.
class Cancelled : public std::runtime_error {
  public:
    Cancelled() : std::runtime_error("Stopped at your request; nothing was changed.") {}
};

// Reports to the watcher, if there is one, and throws Cancelled when he wants an end.
inline void ReportProgress(Progress* progress, std::string_view what, int done, int total) {
    if (progress != nullptr && !progress->Report(what, done, total)) throw Cancelled();
}

}  // namespace tarvane
