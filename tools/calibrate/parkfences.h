#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace tarvane::calibrate {

// The table of fence distances: which park had which in which years.
class ParkFences {
  public:
    // UserError names the line that has a distance no park had (under 240 or over 520 feet), years the wrong way round,
    // or years that another line of the same park has already.
    explicit ParkFences(const std::filesystem::path& file);

    // The distances known, in feet by the column of the park table; empty for a park that isn't there.
    using Distances = std::map<std::string, int>;
    const Distances& Of(const std::string& stadium, const std::string& location, int year) const;

  private:
    struct Span {
        int from = 0, to = 0;
        Distances distances;
    };
    std::map<std::pair<std::string, std::string>, std::vector<Span>> parks_;
};

}  // namespace tarvane::calibrate
