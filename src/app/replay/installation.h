#pragma once

#include <chrono>
#include <string>

#include "base/progress.h"
#include "commands.h"
#include "core/database.h"
#include "core/paths.h"
#include "data/seasons.h"

namespace tarvane::replay {

// The data folder of this run, its files made on first use, and the common database open.
class Installation {
  public:
    explicit Installation(const Context& context);

    const DataPaths& Paths() const { return paths_; }
    Database& Common() { return common_; }
    // Opens a season by its name, up to date. Throws UserError that lists the seasons there are.
    Database OpenSeason(const std::string& name);
    // The desktop program opens on this season from now on.
    void Activate(const std::string& name);

  private:
    SeasonEntry FindSeason(const std::string& name);

    DataPaths paths_;
    Database common_;
};

// Progress as one line on standard error, rewritten in place on a terminal and left out elsewhere.
class TerminalProgress : public Progress {
  public:
    TerminalProgress();
    ~TerminalProgress() override;
    bool Report(std::string_view what, int done, int total) override;

  private:
    void Clear();

    bool terminal_;
    bool shown_ = false;
    std::chrono::steady_clock::time_point last_;
};

}  // namespace tarvane::replay
