#include "import/dhrule.h"

#include <algorithm>

namespace tarvane {

bool PlayedWithDH(std::string_view lgID, int year) {
    if (lgID == "AL") return year >= 1973;
    return lgID == "NL" && (year == 2020 || year >= 2022);
}

void WriteDHRule(Database& season, const std::vector<LahmanTeam>& teams) {
    const auto had = std::count_if(teams.begin(), teams.end(),
                                   [](const LahmanTeam& team) { return PlayedWithDH(team.lgID, team.yearID); });
    const bool all = had > 0 && had == static_cast<std::ptrdiff_t>(teams.size());
    Recordset rules = season.OpenRecordset("LeagueRules");
    if (rules.EndOfFile()) return;
    rules.Edit();
    rules.SetBool("LeagueDH", all);
    rules.SetBool("HometeamDH", had > 0 && !all);
    rules.Update();
}

}  // namespace tarvane
