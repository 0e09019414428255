#include "season/filecodes.h"

#include <fmt/core.h>

#include <array>

namespace tarvane {

namespace {

struct RenamedClub {
    const char* source;
    const char* file;
    int firstYear, lastYear;
};

constexpr std::array<RenamedClub, 3> kRenamedClubs{{
    {"ML1", "MLN", 1953, 1965},  // Milwaukee Braves
    {"ML4", "MIL", 1970, 1997},  // Milwaukee Brewers, until they changed leagues
    {"LAA", "ANA", 2005, 9999},  // Angels, of Anaheim in the files since 1997
}};

std::string WithoutYear(const Team& team) {
    for (const std::string& mark : {fmt::format("{}", team.yearID), fmt::format("{:02}", team.yearID % 100)})
        if (team.teamID.size() == 3 + mark.size() && team.teamID.ends_with(mark)) return team.teamID.substr(0, 3);
    return team.teamID;
}

std::string FileCode(const std::string& source, int year) {
    for (const RenamedClub& club : kRenamedClubs)
        if (source == club.source && year >= club.firstYear && year <= club.lastYear) return club.file;
    return source;
}

}  // namespace

FileCodes::FileCodes(const std::vector<Team>& teams) {
    for (const Team& team : teams) {
        const std::string source = WithoutYear(team);
        names_.push_back({&team, source, FileCode(source, team.yearID)});
    }
}

const Team* FileCodes::Find(std::string_view code, int year) const {
    if (code.empty()) return nullptr;
    const auto answers = [code](const Names& n) {
        return n.team->teamID == code || n.source == code || n.file == code;
    };
    for (const Names& n : names_)
        if (n.team->yearID == year && answers(n)) return n.team;
    for (const Names& n : names_)
        if (n.team->teamID == code) return n.team;
    const Team* only = nullptr;
    for (const Names& n : names_) {
        if (!answers(n)) continue;
        if (only) return nullptr;
        only = n.team;
    }
    return only;
}

}  // namespace tarvane
