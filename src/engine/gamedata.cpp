#include "engine/gamedata.h"

#include <algorithm>
#include <map>

namespace tarvane {

namespace {

// A rating of 40 means that no test is made. An empty one counts as 40, and no chart roll is below 10.
std::uint8_t TestRating(int stored) {
    if (stored <= 0 || stored > 40) return 40;
    return static_cast<std::uint8_t>(std::max(stored, 10));
}

bool AnyOutCell(const Chart& chart) {
    return std::any_of(chart.begin(), chart.end(),
                       [](const Cell& c) { return c.color == CellColor::Red || c.color == CellColor::Blue; });
}

// Numbers the texts from 1 in the order in which they come.
class Numbering {
  public:
    std::int32_t Of(const std::string& text) {
        if (text.empty()) return 0;
        return numbers_.try_emplace(text, static_cast<std::int32_t>(numbers_.size()) + 1).first->second;
    }

  private:
    std::map<std::string, std::int32_t> numbers_;
};

void CompileTeam(TeamData& team) {
    CompileIdentities(team);
    team.batterCharts.clear();
    for (const Batter& b : team.roster.batters)
        team.batterCharts.push_back(
            {CompileChart(b.vsL), CompileChart(b.vsR), TestRating(b.BBRating), TestRating(b.SORating)});
    team.pitcherCharts.clear();
    for (const Pitcher& p : team.roster.pitchers) {
        PitcherCharts charts{CompileChart(p.pitch), CompileChart(p.Bat), false, TestRating(p.BBRating),
                             TestRating(p.SORating)};
        charts.HasOutCells = AnyOutCell(charts.pitch);
        team.pitcherCharts.push_back(charts);
    }
}

template <class Rows>
int IndexOf(const Rows& rows, std::int32_t playerID) {
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const auto& r) { return r.playerID == playerID; });
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

}  // namespace

int TeamData::BatterIndex(std::int32_t playerID) const {
    return IndexOf(roster.batters, playerID);
}
int TeamData::PitcherIndex(std::int32_t playerID) const {
    return IndexOf(roster.pitchers, playerID);
}

void CompileIdentities(TeamData& team) {
    Numbering keys, names;
    const auto fill = [&](const auto& records, std::vector<ManIdentity>& identities) {
        identities.clear();
        for (const auto& record : records)
            identities.push_back({keys.Of(record.LahmanPlayerID), names.Of(record.playerName)});
    };
    fill(team.roster.batters, team.batterIdentity);
    fill(team.roster.pitchers, team.pitcherIdentity);
}

void CompileGameData(GameData& data) {
    for (const Side side : kBothSides) CompileTeam(data.team[side]);
    data.compiled = CompileGameCharts(data.charts);
    data.parkChart = CompileChart(data.park.Roll);
    data.yearChart = CompileChart(data.year.Roll);
    for (std::size_t range = 0; range < data.eraCells.size(); ++range)
        for (std::size_t roll = 0; roll < 6; ++roll)
            data.eraCells[range][roll] = CompileCell(data.defensiveEra.range[range].cell[roll]);
}

}  // namespace tarvane
