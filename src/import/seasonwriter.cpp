#include "import/seasonwriter.h"

#include <fmt/core.h>

#include <algorithm>
#include <filesystem>

#include "base/csv.h"
#include "base/file.h"
#include "base/text.h"
#include "data/lineups.h"
#include "data/teams.h"
#include "import/dhrule.h"
#include "import/penrules.h"
#include "import/roster.h"
#include "import/teamcolors.h"
#include "records/player.h"

namespace tarvane {

namespace {

Value Number(std::int64_t number) {
    return number;
}
Value OrNull(const std::optional<int>& count) {
    return count ? Value(std::int64_t{*count}) : Value();
}

template <class Row>
void SetSpell(Recordset& table, const Row& row) {
    table.Set("playerID", row.playerID);
    table.Set("yearID", Number(row.yearID));
    table.Set("lgID", row.lgID);
    table.Set("stint", Number(row.stint));
    table.Set("teamID", row.teamID);
    table.Set("KorvTeamID", row.KorvTeamID);
}

void WriteBatting(Recordset& table, const LahmanBattingRow& row) {
    const std::pair<const char*, int> counts[]{
        {"G", row.G},        {"AB", row.AB}, {"R", row.R},     {"H", row.H},   {"2B", row.Doubles},
        {"3B", row.Triples}, {"HR", row.HR}, {"RBI", row.RBI}, {"SB", row.SB}, {"BB", row.BB}};
    const std::pair<const char*, std::optional<int>> maybe[]{{"CS", row.CS},    {"SO", row.SO}, {"IBB", row.IBB},
                                                             {"HBP", row.HBP},  {"SH", row.SH}, {"SF", row.SF},
                                                             {"GIDP", row.GIDP}};
    table.AddNew();
    SetSpell(table, row);
    for (const auto& [column, count] : counts) table.Set(column, Number(count));
    for (const auto& [column, count] : maybe) table.Set(column, OrNull(count));
    table.Update();
}

void WritePitching(Recordset& table, const LahmanPitchingRow& row) {
    const std::pair<const char*, int> counts[]{{"W", row.W},   {"L", row.L},     {"G", row.G},   {"GS", row.GS},
                                               {"CG", row.CG}, {"SHO", row.SHO}, {"SV", row.SV}, {"IPouts", row.IPouts},
                                               {"H", row.H},   {"ER", row.ER},   {"HR", row.HR}, {"BB", row.BB},
                                               {"SO", row.SO}};
    const std::pair<const char*, std::optional<int>> maybe[]{{"BFP", row.BFP}, {"IBB", row.IBB}, {"WP", row.WP},
                                                             {"HBP", row.HBP}, {"BK", row.BK},   {"GF", row.GF},
                                                             {"R", row.R}};
    table.AddNew();
    SetSpell(table, row);
    for (const auto& [column, count] : counts) table.Set(column, Number(count));
    for (const auto& [column, count] : maybe) table.Set(column, OrNull(count));
    table.Set("ERA", row.ERA);
    table.Set("OppAB", row.OppAB);
    table.Update();
}

void WriteFielding(Recordset& table, const LahmanFieldingRow& row) {
    table.AddNew();
    SetSpell(table, row);
    table.Set("Pos", row.Pos);
    const std::pair<const char*, double> figures[]{{"G", row.G}, {"PO", row.PO}, {"A", row.A},
                                                   {"E", row.E}, {"DP", row.DP}, {"PB", row.PB}};
    for (const auto& [column, figure] : figures) table.Set(column, figure);
    table.Update();
}

template <class Player>
void SetPlayer(Recordset& table, const Player& player) {
    table.Set("teamID", player.teamID);
    table.Set("playerName", player.playerName);
    table.Set("bats", Number(player.bats));
    table.Set("LahmanPlayerID", player.LahmanPlayerID);
}

// The tables that an import appends to.
class SeasonTables {
  public:
    explicit SeasonTables(Database& season)
        : teams(Empty(season, "KorvTeams")),
          managers(Empty(season, "ComputerManager")),
          batting(Empty(season, "LahmanBatting")),
          pitching(Empty(season, "LahmanPitching")),
          fielding(Empty(season, "LahmanFielding")),
          batters(Empty(season, "KorvBatters")),
          pitchers(Empty(season, "KorvPitchers")) {}

    void WritePlayers(const TeamImport& import) {
        for (const LahmanBattingRow& row : import.batting) WriteBatting(batting, row);
        for (const LahmanPitchingRow& row : import.pitching) WritePitching(pitching, row);
        for (const LahmanFieldingRow& row : import.fielding) WriteFielding(fielding, row);
        for (const NewBatter& player : import.batters) {
            batters.AddNew();
            SetPlayer(batters, player);
            batters.Update();
        }
        for (const NewPitcher& player : import.pitchers) {
            pitchers.AddNew();
            SetPlayer(pitchers, player);
            pitchers.Set("throws", Number(player.throws_));
            pitchers.Set("pitcherType", std::string(1, player.pitcherType));
            pitchers.Update();
        }
    }

    Recordset teams, managers, batting, pitching, fielding, batters, pitchers;

  private:
    static Recordset Empty(Database& season, const char* table) { return season.OpenRecordset(table, "0"); }
};

std::string FullName(const LahmanTeam& team, const ImportSettings& settings) {
    return settings.yearInName ? fmt::format("{} {}", team.yearID, team.name) : team.name;
}

void WriteTeam(SeasonTables& tables, const LahmanTeam& team, const ImportSettings& settings, const HomeParks& parks,
               const DataPaths& paths) {
    const std::string shortName = ShortName(team.name);
    const TeamColors colors = settings.setTeamColors ? ColorsOf(team.franchID) : kPlainColors;
    auto park = parks.find({team.yearID, team.lgID, team.LahmanTeamID});
    // A club whose park isn't known plays in the one for any club: without a park it couldn't play at all.
    if (park == parks.end()) park = parks.find({0, "", ""});
    Recordset& row = tables.teams;
    row.AddNew();
    row.Set("teamID", team.KorvTeamID);
    row.Set("lgId", team.lgID);
    row.Set("divId", team.divID);
    row.Set("yearID", Number(team.yearID));
    row.Set("fullName", FullName(team, settings));
    row.Set("shortName", shortName);
    row.Set("ActualWins", Number(team.W));
    row.Set("ActualLosses", Number(team.L));
    row.Set("HmForeClr", Number(colors.HmForeClr));
    row.Set("HmBackClr", Number(colors.HmBackClr));
    row.Set("RdForeClr", Number(colors.RdForeClr));
    row.Set("RdBackClr", Number(colors.RdBackClr));
    if (settings.setTeamColors) row.Set("ImageFile", FindTeamImage(paths.TeamImages(), shortName));
    if (park != parks.end()) row.Set("ParkID", Number(park->second));
    row.SetBool("HomeDH", PlayedWithDH(team.lgID, team.yearID));
    row.Update();
}

// A club's manager goes to his relievers as its real one did; the generator of tendencies leaves this one alone.
int RelieverUsageOf(const TeamImport& players) {
    constexpr double kFew = 2.0, kMany = 3.0;  // pitchers a game
    double games = 0, starts = 0;
    for (const LahmanPitchingRow& row : players.pitching) games += row.G, starts += row.GS;
    if (starts <= 0) return 2;
    return games < kFew * starts ? 3 : games > kMany * starts ? 1 : 2;
}

void WriteManager(Recordset& managers, const std::string& teamID, const TeamImport& players) {
    managers.AddNew();
    managers.Set("teamID", teamID);
    managers.Set("RelieverUsage", Number(RelieverUsageOf(players)));
    managers.Update();
}

std::vector<std::string> Notes(const RosterImporter& importer) {
    std::vector<std::string> notes;
    const auto tell = [&](const std::set<std::string>& players, const char* what) {
        if (!players.empty())
            notes.push_back(fmt::format("{} player{} {} ({}{}).", players.size(), players.size() == 1 ? "" : "s", what,
                                        *players.begin(), players.size() == 1 ? "" : ", ..."));
    };
    tell(importer.Nameless(), "without a row in the table of people: named by the key and taken as right-handed");
    tell(importer.OutfieldUnknown(),
         "without games by outfield position in FieldingOF or FieldingOFSplit: no outfield position");
    return notes;
}

}  // namespace

std::string FindTeamImage(const std::filesystem::path& folder, const std::string& shortName) {
    std::string wanted = ToLower(shortName);
    std::erase(wanted, ' ');
    std::vector<std::string> found;
    std::error_code missing;
    for (const auto& entry : std::filesystem::directory_iterator(folder, missing)) {
        const std::string ending = ToLower(entry.path().extension().string());
        const std::string name = entry.path().filename().string();
        const bool picture = ending == ".jpg" || ending == ".bmp" || ending == ".gif";
        if (picture && ToLower(name).find(wanted) != std::string::npos) found.push_back(name);
    }
    const auto before = [](const std::string& a, const std::string& b) {
        const int order = CompareIgnoreCase(a, b);
        return order != 0 ? order < 0 : a < b;
    };
    return found.empty() || wanted.empty() ? std::string() : *std::min_element(found.begin(), found.end(), before);
}

HomeParks ReadHomeParks(Database& common, const std::filesystem::path& file) {
    std::set<std::int64_t> known;
    for (Recordset park = common.OpenRecordset("KorvBallparks"); !park.EndOfFile(); park.MoveNext())
        known.insert(park.GetInt("parkID"));
    const std::string text = ReadFile(file);
    CsvReader reader(text, file.filename().string(), {',', true});
    HomeParks parks;
    std::vector<std::string_view> cells;
    for (bool heading = true; reader.Next(cells); heading = false) {
        if (cells.size() != 4) reader.Fail("a year, a league, a team and a park are expected.");
        if (heading) continue;
        const auto year = ParseInt(cells[0]), park = ParseInt(cells[3]);
        if (!year || !park) reader.Fail("the year or the park is no number.");
        if (known.contains(*park))
            parks[{static_cast<int>(*year), std::string(cells[1]), std::string(cells[2])}] =
                static_cast<std::int32_t>(*park);
    }
    return parks;
}

ImportCounts FillSeason(Database& season, const ImportSettings& settings, const LahmanTables& tables,
                        const HomeParks& parks, const DataPaths& paths, Progress* progress) {
    Transaction transaction(season);
    SeasonTables out(season);
    RosterImporter importer(tables, {settings.minIPOuts, settings.minAB, settings.freeAgents});
    ImportCounts counts;
    const int total = static_cast<int>(settings.teams.size());
    for (const LahmanTeam& team : settings.teams) {
        ReportProgress(progress, fmt::format("Importing {} {} - Please Wait", team.yearID, team.name), counts.teams,
                       total);
        WriteTeam(out, team, settings, parks, paths);
        const TeamImport players = importer.Import(team);
        WriteManager(out.managers, team.KorvTeamID, players);
        out.WritePlayers(players);
        CreateTeamLineups(season, team.KorvTeamID);
        ++counts.teams;
        counts.batters += static_cast<int>(players.batters.size());
        counts.pitchers += static_cast<int>(players.pitchers.size());
        if (players.batting.empty() && players.pitching.empty())
            counts.notes.push_back(fmt::format("{} {} has no players in the statistics.", team.yearID, team.name));
    }
    CreateTeamVsTeam(season);
    WriteDHRule(season, settings.teams);
    WritePenRules(season, settings.teams);
    transaction.Commit();
    const std::vector<std::string> notes = Notes(importer);
    counts.notes.insert(counts.notes.end(), notes.begin(), notes.end());
    return counts;
}

void WriteAlignment(Database& season, const Alignment& alignment) {
    Transaction transaction(season);
    season.Execute("DELETE FROM Leagues");
    season.Execute("DELETE FROM Divisions");
    for (const League& league : alignment.leagues)
        season.Execute("INSERT INTO Leagues (lgIdx, lgName, shortName, EraID) VALUES (?, ?, ?, ?)",
                       {Number(league.lgIdx), league.lgName, league.shortName, Number(league.EraID)});
    for (const Division& division : alignment.divisions)
        season.Execute("INSERT INTO Divisions (lgIdx, divIdx, divName) VALUES (?, ?, ?)",
                       {Number(division.lgIdx), Number(division.divIdx), division.divName});
    for (const char* table : {"KorvBatters", "KorvPitchers"})
        season.Execute(fmt::format("UPDATE {} SET lgIdx = 1", table));
    for (const auto& [teamID, place] : alignment.places) {
        season.Execute("UPDATE KorvTeams SET lgIdx = ?, divIdx = ? WHERE teamID = ?",
                       {Number(place.lgIdx), Number(place.divIdx), teamID});
        for (const char* table : {"KorvBatters", "KorvPitchers"})
            season.Execute(fmt::format("UPDATE {} SET lgIdx = ? WHERE teamID = ?", table),
                           {Number(place.lgIdx), teamID});
    }
    if (!alignment.aligned) season.Execute("UPDATE KorvTeams SET lgId = '**', divId = ''");
    transaction.Commit();
}

}  // namespace tarvane
