#include "ui/exhibition.h"

namespace tarvane {

std::optional<std::string> ExhibitionFault(const ExhibitionChoice& choice) {
    if (choice.visitor < 0) return "Please select Visitor team";
    if (choice.home < 0) return "Please select Home team";
    if (choice.park < 0) return "Please select ball park";
    return std::nullopt;
}

ManagerChoice ManagerChoiceOf(const TeamEntry& team, const SideControl& before) {
    if (team.ComputerManaged) return {{true, true, true}, true};
    if (team.AlwaysHumanManaged) return {{false, false, false}, false};
    return {before, false};
}

int ParkOf(const TeamEntry& team, const std::vector<ParkEntry>& parks) {
    for (std::size_t i = 0; i < parks.size(); ++i)
        if (parks[i].parkID == team.ParkID) return static_cast<int>(i);
    return -1;
}

std::string ParkText(const ParkEntry& park) {
    constexpr int kNoYear = 9999;
    return park.yearID == kNoYear ? park.Stadium : std::to_string(park.yearID) + " " + park.Stadium;
}

}  // namespace tarvane
