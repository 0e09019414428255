#include "reports/schedulereport.h"

#include <map>
#include <utility>

#include "data/teams.h"

namespace tarvane {

namespace {

using Meetings = std::map<std::pair<std::int64_t, std::int64_t>, std::int64_t>;  // of a visitor at a home team

Meetings CountMeetings(Database& season) {
    Meetings meetings;
    Statement rows = season.Prepare(
        "SELECT VisitorTeamIndex, HomeTeamIndex, COUNT(*) FROM Schedule GROUP BY VisitorTeamIndex, HomeTeamIndex");
    while (rows.Step()) meetings[{rows.Int(0), rows.Int(1)}] = rows.Int(2);
    return meetings;
}

}  // namespace

ReportTable ScheduleReport(Database& season) {
    const std::vector<Team> teams = LoadTeamList(season, {});
    const Meetings meetings = CountMeetings(season);
    const auto count = [&meetings](const Team& visitor, const Team& home) {
        const auto found = meetings.find({visitor.TeamIdx, home.TeamIdx});
        return found == meetings.end() ? std::int64_t{0} : found->second;
    };
    ReportTable table{"Schedule Report",
                      {{"Team Name", "Team", CellFormat::Text},
                       {"Abbrev", "Abbrev", CellFormat::Text},
                       {"Road", "Road", CellFormat::Whole},
                       {"Home", "Home", CellFormat::Whole}},
                      {}};
    for (const Team& team : teams) {
        const std::size_t totals = table.rows.size();
        table.rows.emplace_back();
        std::int64_t roadTotal = 0, homeTotal = 0;
        for (const Team& other : teams) {
            const std::int64_t road = count(team, other), home = count(other, team);
            roadTotal += road;
            homeTotal += home;
            if (road + home > 0) table.rows.push_back({std::string("      Versus"), other.teamID, road, home});
        }
        table.rows[totals] = {team.fullName, team.teamID, roadTotal, homeTotal};
    }
    return table;
}

}  // namespace tarvane
