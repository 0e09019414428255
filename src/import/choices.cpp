#include "import/choices.h"

#include <fmt/core.h>

#include <algorithm>

#include "base/error.h"
#include "base/rounding.h"
#include "base/text.h"
#include "data/seasons.h"

namespace tarvane {

namespace {

constexpr std::array<std::string_view, 3> kLeagueOrder{"AL", "NL", "FL"};
constexpr double kOutsPerInning = 3;
constexpr double kGreatestFilter = 32767;  // of the columns it is compared with

std::optional<int> ReadFilter(std::string_view text, double unit) {
    if (Trim(text).empty()) return 0;
    const std::optional<double> number = ParseDouble(text);
    if (!number || *number < 0 || *number * unit > kGreatestFilter) return std::nullopt;
    return static_cast<int>(RoundHalfEven(*number * unit));
}

// Whole innings, a point and the odd outs; none at 0.
std::string InningsText(int outs) {
    if (outs == 0) return "None";
    return outs % 3 == 0 ? fmt::format("{}", outs / 3) : fmt::format("{}.{}", outs / 3, outs % 3);
}

const char* YesNo(bool yes) {
    return yes ? "Yes" : "No";
}

bool ErasMissing(const FinishSettings& settings, std::size_t leagues) {
    return std::any_of(settings.eras.begin(),
                       settings.eras.begin() + static_cast<long>(std::min<std::size_t>(leagues, 3)),
                       [](const auto& era) { return !era; });
}

std::string FirstEraControl(const FinishSettings& settings) {
    for (std::size_t i = 0; i < settings.eras.size(); ++i)
        if (!settings.eras[i]) return fmt::format("cmbEra{}", i + 1);
    return "cmbEra1";
}

std::optional<FormFault> CheckAdjustments(const FinishSettings& settings) {
    if (!settings.LHBAdjust || *settings.LHBAdjust <= -1 || *settings.LHBAdjust >= 0)
        return FormFault{"Invalid LH Batter vs Lefty Pitcher Adjustment.", "txtLHBvsLHP"};
    if (!settings.RHBAdjust || *settings.RHBAdjust <= 0 || *settings.RHBAdjust >= 1)
        return FormFault{"Invalid RH Batter vs Lefty Pitcher Adjustment.", "txtRHBvsLHP"};
    return std::nullopt;
}

std::optional<FormFault> CheckCells(const FinishSettings& settings, bool erasMissing) {
    if (settings.genBatterPitcherCells && !settings.genLRSplits)
        return FormFault{"Must Generate L/R Splits to Generate Batter/Pitcher Cells", "chkGenLRSplits"};
    if (settings.genBatterPitcherCells && erasMissing)
        return FormFault{"Please select Year Effect to Generate Batter/Pitcher Cells", FirstEraControl(settings)};
    if (!settings.PAFactor || *settings.PAFactor <= 0 || *settings.PAFactor >= 1)
        return FormFault{"Invalid PA Percentage to Generate Batter Cells.", "txtPAFactor"};
    if (!settings.PitcherOutFactor || *settings.PitcherOutFactor <= 0)
        return FormFault{"Invalid Pitcher Out Normalization Percentage.", "txtPitcherOut"};
    return std::nullopt;
}

std::optional<FormFault> CheckManagers(const FinishSettings& settings) {
    const LineupChoice& lineups = settings.lineups;
    const bool anyLineup = lineups.includeDH || lineups.noDH || lineups.both;
    if (settings.genComputerMgr && !settings.genRatings)
        return FormFault{"Must Generate Player Ratings to Generate Computer Manager", "chkGenRatings"};
    if (settings.genComputerMgr && !settings.genBatterPitcherCells)
        return FormFault{"Must Generate Batter and Pitcher Cells to Generate Computer Manager",
                         "chkGenBatterPitcherCells"};
    if (lineups.basedOnUsage && !settings.genComputerMgr)
        return FormFault{"Must Generate Computer Managers if Generate Based on Actual Usage box is specified",
                         "chkGenComputerMgr"};
    if (anyLineup && !settings.genComputerMgr)
        return FormFault{"Must Generate Computer Managers if Lineup Types box is specified", "chkGenComputerMgr"};
    if (settings.genComputerMgr && !anyLineup)
        return FormFault{"Please specify a Lineup Type box to Generate Computer Managers", "chkDHAndNoDH"};
    return std::nullopt;
}

}  // namespace

std::optional<FormFault> ReadSeasonForm(std::string_view seasonName, std::string_view minIP, std::string_view minAB,
                                        ImportSettings& settings) {
    settings.seasonName = std::string(Trim(seasonName));
    try {
        CheckSeasonName(settings.seasonName);
    } catch (const UserError& error) {
        return FormFault{error.what(), "txtLeagueName"};
    }
    const std::optional<int> outs = ReadFilter(minIP, kOutsPerInning), atBats = ReadFilter(minAB, 1);
    if (!outs) return FormFault{"Invalid Min IP Filter", "txtMinIP"};
    if (!atBats) return FormFault{"Invalid Min AB Filter", "txtMinAB"};
    settings.minIPOuts = *outs;
    settings.minAB = *atBats;
    return std::nullopt;
}

std::optional<FormFault> CheckSelection(const std::vector<LahmanTeam>& teams) {
    if (teams.empty()) return FormFault{"There are no teams selected for Import", "lstTeams"};
    if (FindDuplicateCode(teams))
        return FormFault{
            "All Team ID'S must be unique. Please enter unique Team ID for one of the teams below, then click Ok.",
            "txtTeamID1"};
    return std::nullopt;
}

std::vector<std::string> ConfirmationLines(const ImportSettings& settings) {
    return {fmt::format("Season Name: {}", settings.seasonName),
            fmt::format("Min IP Filter: {}", InningsText(settings.minIPOuts)),
            settings.minAB == 0 ? std::string("Min AB Filter: None") : fmt::format("Min AB Filter: {}", settings.minAB),
            fmt::format("Set Team Colors: {}", YesNo(settings.setTeamColors)),
            fmt::format("Include Year in Team Name: {}", YesNo(settings.yearInName)),
            fmt::format("Make Players Free Agents: {}", YesNo(settings.freeAgents))};
}

std::vector<std::string> LeaguesOf(const std::vector<LahmanTeam>& teams) {
    std::vector<std::string> leagues;
    for (const std::string_view league : kLeagueOrder)
        if (std::any_of(teams.begin(), teams.end(), [&](const LahmanTeam& team) { return team.lgID == league; }))
            leagues.emplace_back(league);
    return leagues;
}

bool SameYear(const std::vector<LahmanTeam>& teams) {
    return std::all_of(teams.begin(), teams.end(),
                       [&](const LahmanTeam& team) { return team.yearID == teams.front().yearID; });
}

bool CanAlign(const std::vector<LahmanTeam>& teams) {
    const auto known = [](const LahmanTeam& team) {
        return std::find(kLeagueOrder.begin(), kLeagueOrder.end(), team.lgID) != kLeagueOrder.end();
    };
    return !teams.empty() && SameYear(teams) && std::all_of(teams.begin(), teams.end(), known);
}

std::size_t LeagueCount(const std::vector<LahmanTeam>& teams, bool align) {
    return align && CanAlign(teams) ? LeaguesOf(teams).size() : 1;
}

std::optional<FormFault> CheckFinish(const FinishSettings& settings, std::size_t leagues) {
    const bool erasMissing = ErasMissing(settings, leagues);
    if (settings.genRatings && erasMissing)
        return FormFault{"Please select Year Effect to Generate Player Ratings", FirstEraControl(settings)};
    if (auto fault = CheckAdjustments(settings)) return fault;
    if (auto fault = CheckCells(settings, erasMissing)) return fault;
    if (settings.assignImages && !settings.genBatterPitcherCells)
        return FormFault{"Must Generate Batter and Pitcher Cells to Assign Player Images", "chkGenBatterPitcherCells"};
    return CheckManagers(settings);
}

}  // namespace tarvane
