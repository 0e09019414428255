#pragma once

#include <map>
#include <set>
#include <string>

#include "base/random.h"
#include "sample/league.h"

namespace tarvane::sample {

// Gives each player a name that nobody else in the league has, and an id in the manner of the Lahman tables: five
// letters of the surname, two of the given name, a number.
class NameGiver {
  public:
    explicit NameGiver(Random& random) : random_(random) {}
    void Name(Player& player);

  private:
    Random& random_;
    std::set<std::string> taken_;
    std::map<std::string, int> stems_;
};

}  // namespace tarvane::sample
