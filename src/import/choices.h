#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "import/teamlist.h"
#include "ratings/splits.h"
#include "records/settings.h"

namespace tarvane {

// What the user chose for an import, and what must hold before it may start. The checks give the text for the user, so
// that a screen and a command line say the same.

// Something the user must mend: the text and the control to go to.
struct FormFault {
    std::string message;
    std::string control;
    friend bool operator==(const FormFault&, const FormFault&) = default;
};

inline constexpr const char* kImportTitle = "Import Stats from Lahman Database";
inline constexpr const char* kFinishTitle = "Finalize Season Settings";

// Asked when the season's file is there already. Yes replaces it, No stays.
inline constexpr const char* kOverwriteQuestion =
    "Data already exists for Season Name specified.\n"
    "Please confirm that you want to override existing data. All existing data will be lost.\n"
    "Click Yes to continue with the import.\n"
    "Click No to cancel the import.";

// Which players come in, and how their clubs look.
struct ImportSettings {
    std::string seasonName;
    std::vector<LahmanTeam> teams;  // in the order of the list
    int minIPOuts = 0, minAB = 0;   // 0: no filter
    bool setTeamColors = true;
    bool yearInName = false;
    bool freeAgents = false;
};

// The season's name and filters as they were typed: fills the three values, or says what is wrong.
std::optional<FormFault> ReadSeasonForm(std::string_view seasonName, std::string_view minIP, std::string_view minAB,
                                        ImportSettings& settings);

// Nothing selected, or two teams of one code.
std::optional<FormFault> CheckSelection(const std::vector<LahmanTeam>& teams);

// "Season Name: ...", "Min IP Filter: None" and so on: the choices once more before the import runs.
std::vector<std::string> ConfirmationLines(const ImportSettings& settings);

// The leagues among the teams, in the order in which they are numbered: AL, NL, FL.
std::vector<std::string> LeaguesOf(const std::vector<LahmanTeam>& teams);
bool SameYear(const std::vector<LahmanTeam>& teams);
// True if the teams can stand in their real leagues and divisions: one year, and no league but these three.
bool CanAlign(const std::vector<LahmanTeam>& teams);
// Leagues that the season will have: one unless the teams are aligned. Each needs an era.
std::size_t LeagueCount(const std::vector<LahmanTeam>& teams, bool align);

// The last screen: what is generated, and with which figures.
struct FinishSettings {
    std::array<std::optional<std::int32_t>, 3> eras;  // EraID of each league, by its number less 1
    bool align = false;
    bool genLRSplits = true, genRatings = true, genBatterPitcherCells = true;
    bool assignImages = false;
    bool genComputerMgr = true;
    std::optional<double> PAFactor;              // between 0 and 1; empty: what was typed is no number
    std::optional<double> PitcherOutFactor = 1;  // above 0
    std::optional<double> LHBAdjust = -0.125, RHBAdjust = 0.065;
    bool randomNoSplit = false;
    bool retro = false;
    LineupChoice lineups;
};

// The first thing wrong, in the order of the screen; leagues is LeagueCount.
std::optional<FormFault> CheckFinish(const FinishSettings& settings, std::size_t leagues);

}  // namespace tarvane
