#include "reports/leaders.h"

#include <fmt/core.h>

#include <algorithm>
#include <array>
#include <map>

#include "base/rounding.h"
#include "base/text.h"

namespace tarvane {

namespace {

// Who is let into a list.
enum class Admission { Above0, PlateAppearances, Outs, Decisions };

struct LeaderList {
    const char* heading;
    const char* column;
    Admission admission;
    CellFormat format;
    const char* notZero;  // a rate that must not be 0; null if it may
};

constexpr auto kWhole = CellFormat::Whole;
constexpr auto kRate = CellFormat::Rate;
constexpr auto kAbove0 = Admission::Above0;
constexpr auto kByPA = Admission::PlateAppearances;

constexpr std::array<LeaderList, 12> kBattingLists{{
    {"Hits", "H", kAbove0, kWhole, nullptr},
    {"Doubles", "Doubles", kAbove0, kWhole, nullptr},
    {"Triples", "Triples", kAbove0, kWhole, nullptr},
    {"HR", "HR", kAbove0, kWhole, nullptr},
    {"RBI", "RBI", kAbove0, kWhole, nullptr},
    {"Average", "Avg", kByPA, kRate, "Avg"},
    {"On-Base Pct", "OBP", kByPA, kRate, "OBP"},
    {"Slugging Pct", "SLG", kByPA, kRate, "SLG"},
    {"OPS", "OPS", kByPA, kRate, "OBP"},
    {"Runs", "R", kAbove0, kWhole, nullptr},
    {"Stolen Bases", "SB", kAbove0, kWhole, nullptr},
    {"Walks", "BB", kAbove0, kWhole, nullptr},
}};

constexpr std::array<LeaderList, 12> kPitchingLists{{
    {"Wins", "W", kAbove0, kWhole, nullptr},
    {"W-L Pct", "Pct", Admission::Decisions, kRate, nullptr},
    {"ERA", "ERA", Admission::Outs, CellFormat::Fixed2, nullptr},
    {"WHIP", "WHIP", Admission::Outs, CellFormat::Fixed2, nullptr},
    {"Strike Outs", "OppSO", kAbove0, kWhole, nullptr},
    {"Games", "Games", kAbove0, kWhole, nullptr},
    {"Innings Pitched", "IPOuts", kAbove0, CellFormat::Innings, nullptr},
    {"Complete Games", "CG", kAbove0, kWhole, nullptr},
    {"Shut Outs", "SHO", kAbove0, kWhole, nullptr},
    {"Saves", "SV", kAbove0, kWhole, nullptr},
    {"Walks", "OppBB", kAbove0, kWhole, nullptr},
    {"Batters Faced", "BF", kAbove0, kWhole, nullptr},
}};

std::string LeaderQuery(const LeaderList& list, const LeaderMinimums& minimums, const std::string& table) {
    std::string admission;
    switch (list.admission) {
        case Admission::Above0: admission = fmt::format("{} > 0", list.column); break;
        case Admission::PlateAppearances:
            admission = fmt::format("AB + BB + HBP >= {} AND {} <> 0", minimums.plateAppearances, list.notZero);
            break;
        case Admission::Outs: admission = fmt::format("IPOuts >= {}", minimums.outs); break;
        case Admission::Decisions: admission = fmt::format("W + L >= {}", minimums.decisions); break;
    }
    // The fewer runs and runners, the better.
    const char* order = list.admission == Admission::Outs ? "ASC" : "DESC";
    return fmt::format(
        "SELECT playerName, teamID, ActualTeamID, lgIdx, {0} FROM {1} WHERE NoLongerWithTeam = 0 AND {2} "
        "ORDER BY {0} {3}, rowid",
        list.column, table, admission, order);
}

using TeamLeagues = std::map<std::string, std::int64_t>;

TeamLeagues ReadTeamLeagues(Database& season) {
    TeamLeagues leagues;
    Statement rows = season.Prepare("SELECT teamID, lgIdx FROM KorvTeams");
    while (rows.Step()) leagues[rows.Text(0)] = rows.Int(1);
    return leagues;
}

ReportTable FillList(Database& season, const LeaderList& list, const std::string& query, const TeamLeagues& leagues,
                     const LeadersChoice& choice) {
    constexpr const char* kLeftHisTeam = "998";
    ReportTable table{list.heading,
                      {{"", "Player", CellFormat::Text},
                       {"", "Team", CellFormat::Text},
                       {"", list.format == CellFormat::Innings ? "Outs" : "Value", list.format}},
                      {}};
    Statement rows = season.Prepare(query);
    std::string above;
    while (rows.Step()) {
        std::string team = rows.Text(1);
        std::int64_t league = rows.Int(3);
        if (team == kLeftHisTeam) {
            team = rows.Text(2);
            const auto found = leagues.find(team);
            league = found == leagues.end() ? 0 : found->second;
        }
        if (choice.lgIdx != 0 && league != choice.lgIdx) continue;
        const std::string name(TrimRight(rows.Text(0)));
        if (!table.rows.empty() && name == above) continue;
        table.rows.push_back({name, team, rows.Column(4)});
        above = name;
        if (choice.top > 0 && table.rows.size() == static_cast<std::size_t>(choice.top)) break;
    }
    return table;
}

template <std::size_t N>
std::vector<ReportTable> FillLists(Database& season, const std::array<LeaderList, N>& lists, const std::string& table,
                                   const LeadersChoice& choice) {
    const LeaderMinimums minimums = LeaderMinimumsOf(season, choice.tournament);
    const TeamLeagues leagues = ReadTeamLeagues(season);
    std::vector<ReportTable> tables;
    for (const LeaderList& list : lists) {
        if (!choice.category.empty() && !EqualsIgnoreCase(choice.category, list.heading) &&
            !EqualsIgnoreCase(choice.category, list.column))
            continue;
        tables.push_back(FillList(season, list, LeaderQuery(list, minimums, table), leagues, choice));
    }
    return tables;
}

}  // namespace

LeaderMinimums LeaderMinimumsOf(Database& season, bool tournament) {
    Statement mean =
        season.Prepare(fmt::format("SELECT AVG(W + L) FROM {}", tournament ? "TourneyTeams" : "KorvTeams"));
    const double games = mean.Step() ? mean.Double(0) : 0;
    LeaderMinimums minimums;
    minimums.plateAppearances = RoundHalfEven(games * (tournament ? 2.5 : 3.098));
    minimums.outs = 3 * std::max(1L, RoundHalfEven(games));
    minimums.decisions = std::max(1L, RoundHalfEven(games * 0.123));
    return minimums;
}

std::vector<ReportTable> BattingLeaders(Database& season, const LeadersChoice& choice) {
    return FillLists(season, kBattingLists, choice.tournament ? "TourneyBatters" : "KorvBatters", choice);
}

std::vector<ReportTable> PitchingLeaders(Database& season, const LeadersChoice& choice) {
    return FillLists(season, kPitchingLists, choice.tournament ? "TourneyPitchers" : "KorvPitchers", choice);
}

std::vector<std::string> LeaderCategories() {
    std::vector<std::string> headings;
    for (const auto* lists : {&kBattingLists, &kPitchingLists})
        for (const LeaderList& list : *lists)
            if (std::find(headings.begin(), headings.end(), list.heading) == headings.end())
                headings.emplace_back(list.heading);
    return headings;
}

}  // namespace tarvane
