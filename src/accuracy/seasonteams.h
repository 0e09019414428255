#pragma once

#include <map>
#include <optional>
#include <string>

#include "accuracy/figures.h"

namespace tarvane {

// The clubs and leagues of a season, and where each club stands in its figures.
class SeasonTeams {
  public:
    struct Place {
        std::size_t team = 0, league = 0;
    };

    explicit SeasonTeams(Database& season);

    // Figures with the names of clubs and leagues, all totals 0.
    SeasonFigures Empty() const { return empty_; }
    std::optional<Place> Find(const std::string& teamID) const;
    std::optional<Place> FindByIndex(std::int64_t teamIdx) const;

  private:
    SeasonFigures empty_;
    std::map<std::string, Place> byCode_;
    std::map<std::int64_t, Place> byIndex_;
};

}  // namespace tarvane
