#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/team.h"

namespace tarvane {

// Finds the season's team behind a code of a schedule or a game log. Those files and the statistics that seasons are
// made from name three clubs differently, and a season of several years marks the later of two clubs of one code by
// its year ("NYA61").
class FileCodes {
  public:
    explicit FileCodes(const std::vector<Team>& teams);

    // Null if the season has no such team. year is that of the game: of teams that answer to the code, one of that
    // year is meant; else the team that bears the code in the season; else the only one that answers.
    const Team* Find(std::string_view code, int year) const;

  private:
    struct Names {
        const Team* team;
        std::string source;  // code without the mark of the year
        std::string file;    // code in the files
    };
    std::vector<Names> names_;
};

}  // namespace tarvane
