#include "savegame/saveheader.h"

#include "engine/availability.h"
#include "season/calendar.h"

namespace tarvane {

namespace {

constexpr std::int64_t kByte = 255;
constexpr std::int64_t kMostLists = 2000;  // far more than any team stores
constexpr std::int64_t kMostReal = 500;

void TeamFields(SaveFields& f, SaveHeader::Team& team, TeamState& state) {
    f.Text("fullName", team.fullName);
    f.Text("shortName", team.shortName);
    f.Text("teamID", team.teamID);
    f.Number("TeamIdx", team.TeamIdx);
    f.Number("the number of the line-up in use", team.lineupInUse);
    f.Number("divIdx", team.divIdx, 0, kByte);
    f.Number("the background colour", team.backClr);
    f.Number("the text colour", team.foreClr);
    f.Text("the team's image", team.imagePath);
    f.SkipText("the team's second image");
    f.Number("the number of batters", team.batters, 0, kMaxRosterRecords);
    f.Number("the number of pitchers", team.pitchers, 0, kMaxRosterRecords);
    f.Number("the number of lists", team.lists, 0, kMostLists);
    f.Number("the number of batter lines", team.batterLines, 0, kMaxBatterLines);
    f.Number("the number of fielder lines", team.fielderLines, 0, kMaxFielderLines);
    f.Number("W", team.W);
    f.Number("L", team.L);
    f.Number("the number of pitchers used", team.pitchersUsed, 1, kMaxPitchingLines);
    f.Number("the number of resting men", team.resting, 0, kByte);
    f.Number("the number of real batters", team.realBatters, 0, kMostReal);
    f.Number("the number of real pitchers", team.realPitchers, 0, kMostReal);
    f.Number("BatterSlot", state.BatterSlot, 1, 9);
    for (std::size_t base = 1; base <= 3; ++base) f.Number("a runner's slot", state.runner[base].slot, 0, 9);
    f.Number("Runs", state.Runs, 0);
    f.Number("Hits", state.Hits, 0);
    f.Number("Errors", state.Errors, 0);
    f.Number("LOB", state.LOB, 0);
}

void SituationFields(SaveFields& f, GameState& state) {
    f.Number("Inning", state.Inning, 1, kByte);
    f.Number("Outs", state.Outs, 0, 3);
    f.Number("HalfInningRuns", state.HalfInningRuns, 0);
    char batting = SideLetter(state.BattingSide);
    f.Letter("BattingSide", batting);
    if (batting != 'V' && batting != 'H') f.Fail("BattingSide must be V or H");
    state.BattingSide = batting == 'V' ? Side::Visitor : Side::Home;
    std::string sheet(SheetCodeText(state.sheet));
    f.Text("SheetCode", sheet);
    state.sheet = SheetCodeFromText(sheet);
    if (state.sheet == SheetCode::None) f.Fail("SheetCode names no sheet");
}

}  // namespace

void SaveHeaderRecord(SaveFields& f, SaveHeader& header, GameState& state) {
    f.Begin("head of the game");
    for (const Side side : kBothSides) TeamFields(f, header.team[side], state[side]);
    std::string dh = header.DHUsed ? "Y" : "N";
    f.Text("DHUsed", dh);
    header.DHUsed = dh == "Y";
    f.Number("ParkID", header.ParkID);
    f.Text("the date", header.gameDate);
    f.Number("the day number", header.dayNumber);
    f.Number("GameID", header.GameID);
    f.SkipNumber("the number of the day's games");
    f.Number("EraId", header.EraId);
    bool internet = false;
    f.Flag("the Internet mark", internet);
    f.SkipText("InternetGuestSide");
    f.SkipText("InternetControl");
    f.Number("the league's real AB", header.realAB);
    f.Number("the league's real IPOuts", header.realIPOuts);
    SituationFields(f, state);
    constexpr std::int64_t kMostColumns = 400, kMostRows = 1000;
    for (GridSize& grid : header.grid) {
        f.Number("a grid's columns", grid.columns, 0, kMostColumns);
        f.Number("a grid's rows", grid.rows, 0, kMostRows);
    }
    f.End();
}

std::string SavedDate(const std::string& date) {
    if (!DayOfYear(date)) return " ";
    return date.substr(5, 2) + "/" + date.substr(8, 2) + "/" + date.substr(0, 4);
}

std::string DateOfSaved(const std::string& saved) {
    if (saved.size() != 10) return {};
    std::string date = saved.substr(6, 4) + "-" + saved.substr(0, 2) + "-" + saved.substr(3, 2);
    return DayOfYear(date) ? date : std::string();
}

}  // namespace tarvane
