#include "import/lahmansource.h"

#include <fmt/core.h>

#include <algorithm>
#include <tuple>

#include "base/error.h"
#include "base/text.h"
#include "import/csvtables.h"

namespace tarvane {

namespace {

template <class Line>
struct CountColumn {
    const char* name;
    Count Line::*field;
};

constexpr CountColumn<LahmanBattingLine> kBattingCounts[]{
    {"G", &LahmanBattingLine::G},     {"AB", &LahmanBattingLine::AB},      {"R", &LahmanBattingLine::R},
    {"H", &LahmanBattingLine::H},     {"2B", &LahmanBattingLine::Doubles}, {"3B", &LahmanBattingLine::Triples},
    {"HR", &LahmanBattingLine::HR},   {"RBI", &LahmanBattingLine::RBI},    {"SB", &LahmanBattingLine::SB},
    {"CS", &LahmanBattingLine::CS},   {"BB", &LahmanBattingLine::BB},      {"SO", &LahmanBattingLine::SO},
    {"IBB", &LahmanBattingLine::IBB}, {"HBP", &LahmanBattingLine::HBP},    {"SH", &LahmanBattingLine::SH},
    {"SF", &LahmanBattingLine::SF},   {"GIDP", &LahmanBattingLine::GIDP}};

constexpr CountColumn<LahmanPitchingLine> kPitchingCounts[]{
    {"W", &LahmanPitchingLine::W},   {"L", &LahmanPitchingLine::L},
    {"G", &LahmanPitchingLine::G},   {"GS", &LahmanPitchingLine::GS},
    {"CG", &LahmanPitchingLine::CG}, {"SHO", &LahmanPitchingLine::SHO},
    {"SV", &LahmanPitchingLine::SV}, {"IPouts", &LahmanPitchingLine::IPouts},
    {"H", &LahmanPitchingLine::H},   {"ER", &LahmanPitchingLine::ER},
    {"HR", &LahmanPitchingLine::HR}, {"BB", &LahmanPitchingLine::BB},
    {"SO", &LahmanPitchingLine::SO}, {"IBB", &LahmanPitchingLine::IBB},
    {"WP", &LahmanPitchingLine::WP}, {"HBP", &LahmanPitchingLine::HBP},
    {"BK", &LahmanPitchingLine::BK}, {"BFP", &LahmanPitchingLine::BFP},
    {"GF", &LahmanPitchingLine::GF}, {"R", &LahmanPitchingLine::R}};

constexpr CountColumn<LahmanFieldingLine> kFieldingCounts[]{
    {"G", &LahmanFieldingLine::G}, {"PO", &LahmanFieldingLine::PO}, {"A", &LahmanFieldingLine::A},
    {"E", &LahmanFieldingLine::E}, {"DP", &LahmanFieldingLine::DP}, {"PB", &LahmanFieldingLine::PB}};

constexpr CountColumn<OutfieldLine> kOutfieldCounts[]{
    {"Glf", &OutfieldLine::Glf}, {"Gcf", &OutfieldLine::Gcf}, {"Grf", &OutfieldLine::Grf}};

// Columns of a table of spells: the key first, then what else, then the counts.
template <class Counts>
TableRequest SpellRequest(const char* name, const Counts& counts, const std::vector<std::string>& others = {}) {
    TableRequest request{{name}, {"playerID", "yearID", "stint", "teamID", "lgID"}, 1, false};
    request.columns.insert(request.columns.end(), others.begin(), others.end());
    for (const auto& count : counts) request.columns.emplace_back(count.name);
    return request;
}
constexpr std::size_t kAfterKey = 5;

TableRequest TeamsRequest() {
    return {{"Teams"}, {"yearID", "lgID", "teamID", "franchID", "divID", "name", "W", "L"}, -1, false};
}

TableRequest OutfieldRequest() {
    TableRequest request{{"FieldingOF"}, {"playerID", "yearID", "stint"}, 1, false};
    for (const auto& count : kOutfieldCounts) request.columns.emplace_back(count.name);
    return request;
}

TableRequest OutfieldSplitRequest() {
    return {{"FieldingOFSplit"}, {"playerID", "yearID", "stint", "teamID", "lgID", "POS", "G"}, 1, true};
}

TableRequest MasterRequest() {
    return {{"Master", "People"}, {"playerID", "nameFirst", "nameLast", "bats", "throws"}, -1, false};
}

int Year(const RowCells& cells, std::size_t column) {
    return cells.Whole(column, 1800, 2999);
}
int Stint(const RowCells& cells, std::size_t column) {
    return cells.Whole(column, 0, 99);
}

template <class Line>
Line SpellOf(const RowCells& cells) {
    Line line;
    line.playerID = cells.Key(0);
    line.yearID = Year(cells, 1);
    line.stint = Stint(cells, 2);
    line.teamID = cells.Key(3);
    line.lgID = cells.Text(4);
    return line;
}

template <class Line, class Counts>
void ReadCounts(Line& line, const Counts& counts, const RowCells& cells, std::size_t first) {
    for (const auto& count : counts) line.*count.field = cells.Count(first++);
}

TeamLine TeamOf(const RowCells& cells) {
    TeamLine team;
    team.yearID = Year(cells, 0);
    team.lgID = cells.Text(1);
    team.teamID = cells.Key(2);
    team.franchID = cells.Text(3);
    team.divID = cells.Text(4);
    team.name = cells.Text(5);
    team.W = cells.Count(6).value_or(0);
    team.L = cells.Count(7).value_or(0);
    return team;
}

LahmanBattingLine BattingOf(const RowCells& cells) {
    auto line = SpellOf<LahmanBattingLine>(cells);
    ReadCounts(line, kBattingCounts, cells, kAfterKey);
    return line;
}

LahmanPitchingLine PitchingOf(const RowCells& cells) {
    auto line = SpellOf<LahmanPitchingLine>(cells);
    line.BAOpp = cells.Number(kAfterKey);
    line.ERA = cells.Number(kAfterKey + 1);
    ReadCounts(line, kPitchingCounts, cells, kAfterKey + 2);
    return line;
}

LahmanFieldingLine FieldingOf(const RowCells& cells) {
    auto line = SpellOf<LahmanFieldingLine>(cells);
    line.POS = cells.Key(kAfterKey);
    ReadCounts(line, kFieldingCounts, cells, kAfterKey + 1);
    return line;
}

OutfieldLine OutfieldOf(const RowCells& cells) {
    OutfieldLine line{cells.Key(0), Year(cells, 1), Stint(cells, 2), {}, {}, {}};
    ReadCounts(line, kOutfieldCounts, cells, 3);
    return line;
}

OutfieldSplitLine OutfieldSplitOf(const RowCells& cells) {
    auto line = SpellOf<OutfieldSplitLine>(cells);
    line.POS = cells.Key(kAfterKey);
    line.G = cells.Count(kAfterKey + 1);
    return line;
}

PersonLine PersonOf(const RowCells& cells) {
    return {cells.Key(0), cells.Text(1), cells.Text(2), cells.Text(3), cells.Text(4)};
}

auto SpellOrder(const SpellKey& key) {
    return std::tie(key.yearID, key.teamID, key.playerID, key.stint);
}

void SortTables(LahmanTables& tables) {
    const auto bySpell = [](const SpellKey& a, const SpellKey& b) { return SpellOrder(a) < SpellOrder(b); };
    std::stable_sort(tables.Batting.begin(), tables.Batting.end(), bySpell);
    std::stable_sort(tables.Pitching.begin(), tables.Pitching.end(), bySpell);
    std::stable_sort(tables.Fielding.begin(), tables.Fielding.end(),
                     [](const LahmanFieldingLine& a, const LahmanFieldingLine& b) {
                         if (SpellOrder(a) != SpellOrder(b)) return SpellOrder(a) < SpellOrder(b);
                         if (a.G != b.G) return a.G > b.G;
                         return a.POS < b.POS;
                     });
    std::stable_sort(tables.FieldingOF.begin(), tables.FieldingOF.end(),
                     [](const OutfieldLine& a, const OutfieldLine& b) {
                         return std::tie(a.yearID, a.playerID, a.stint) < std::tie(b.yearID, b.playerID, b.stint);
                     });
    std::stable_sort(tables.FieldingOFSplit.begin(), tables.FieldingOFSplit.end(),
                     [](const OutfieldSplitLine& a, const OutfieldSplitLine& b) {
                         return std::tuple_cat(SpellOrder(a), std::tie(a.POS)) <
                                std::tuple_cat(SpellOrder(b), std::tie(b.POS));
                     });
    std::stable_sort(tables.Master.begin(), tables.Master.end(),
                     [](const PersonLine& a, const PersonLine& b) { return a.playerID < b.playerID; });
}

// The folder of CSV files that the user means: some editions keep the main tables in a folder "core".
std::filesystem::path CsvFolder(const std::filesystem::path& chosen) {
    const bool here = !CsvTables(chosen).FindFile(TeamsRequest()).empty();
    const std::filesystem::path core = chosen / "core";
    return !here && std::filesystem::is_directory(core) ? core : chosen;
}

}  // namespace

LahmanSource::LahmanSource(const std::filesystem::path& path, const MdbHelper& helper) {
    if (std::filesystem::is_directory(path)) {
        tables_ = std::make_unique<CsvTables>(CsvFolder(path));
    } else if (EqualsIgnoreCase(path.extension().string(), ".csv") && std::filesystem::exists(path)) {
        tables_ = std::make_unique<CsvTables>(path.parent_path());
    } else {
        CheckAccessFile(path);
        tables_ = std::make_unique<MdbTables>(path, helper);
    }
}

std::vector<TeamLine> LahmanSource::ReadTeams(Progress* progress) {
    const std::vector<TableRequest> requests{TeamsRequest()};
    std::vector<TeamLine> teams;
    const auto take = [&](std::size_t, const RawRow& row) {
        TeamLine team = TeamOf(RowCells(requests[0], row));
        if (team.yearID >= kFirstYear) teams.push_back(std::move(team));
    };
    tables_->Read(requests, {}, take, progress);
    std::stable_sort(teams.begin(), teams.end(), [](const TeamLine& a, const TeamLine& b) {
        return std::tie(a.yearID, a.lgID, a.teamID) < std::tie(b.yearID, b.lgID, b.teamID);
    });
    return teams;
}

LahmanTables LahmanSource::ReadYears(const YearSet& years, Progress* progress) {
    const std::vector<TableRequest> requests{SpellRequest("Batting", kBattingCounts),
                                             SpellRequest("Pitching", kPitchingCounts, {"BAOpp", "ERA"}),
                                             SpellRequest("Fielding", kFieldingCounts, {"POS"}),
                                             OutfieldRequest(),
                                             OutfieldSplitRequest(),
                                             MasterRequest()};
    LahmanTables tables;
    std::set<std::string, std::less<>> players;
    const auto take = [&](std::size_t table, const RawRow& row) {
        const RowCells cells(requests[table], row);
        switch (table) {
            case 0: players.insert(tables.Batting.emplace_back(BattingOf(cells)).playerID); break;
            case 1: players.insert(tables.Pitching.emplace_back(PitchingOf(cells)).playerID); break;
            case 2: tables.Fielding.push_back(FieldingOf(cells)); break;
            case 3: tables.FieldingOF.push_back(OutfieldOf(cells)); break;
            case 4: tables.FieldingOFSplit.push_back(OutfieldSplitOf(cells)); break;
            default:
                if (players.contains(row.cells[0])) tables.Master.push_back(PersonOf(cells));
        }
    };
    tables_->Read(requests, years, take, progress);
    SortTables(tables);
    return tables;
}

}  // namespace tarvane
