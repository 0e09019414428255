#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "import/choices.h"
#include "records/team.h"

namespace tarvane {

// How the teams are grouped: the rows of Leagues and Divisions, and where each team stands.
struct Alignment {
    struct Place {
        std::int16_t lgIdx = 1, divIdx = 1;
    };
    std::vector<League> leagues;
    std::vector<Division> divisions;
    std::map<std::string, Place> places;  // by KorvTeamID
    bool aligned = false;                 // the real leagues; else one league of all teams, named as the season
};

// With align, if the teams allow it, the leagues and divisions of their year: none before 1969, East and West to 1993,
// East, Central and West from 1994. Otherwise one league.
Alignment AlignTeams(const std::vector<LahmanTeam>& teams, bool align, const std::string& seasonName,
                     const std::array<std::optional<std::int32_t>, 3>& eras);

}  // namespace tarvane
