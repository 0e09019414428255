#include "data/players.h"

#include <fmt/core.h>

#include <algorithm>

#include "base/text.h"
#include "data/playerrows.h"
#include "data/rowreader.h"
#include "records/deftext.h"

namespace tarvane {

namespace {

// A row with its charts is five thousand bytes: moving the first rows for each few more costs as much as reading them.
constexpr std::size_t kUsualRoster = 40;

std::string PlayerOrder(const LeagueRules& rules, const PlayerLoad& load) {
    if (rules.EnhancedInjury) return "LahmanPlayerID, playerID";
    if (load.hasBaseballReference && !load.chartEditorLoad) return "playerName COLLATE NOCASE, playerID";
    return "playerID";
}

RowReader OpenTeam(Database& season, std::string_view table, const std::string& teamID, const std::string& order) {
    Statement statement = season.Prepare(fmt::format("SELECT * FROM {} WHERE teamID = ? ORDER BY {}", table, order));
    statement.Bind(1, teamID);
    return RowReader(std::move(statement));
}

template <class Player>
void SetPositionsText(Player& player, bool catcherI, bool catcherO, const LeagueRules& rules) {
    const std::string text =
        PositionsText(player.Pos.data(), player.Pos.size(), catcherI, catcherO, rules.UseErrorRatings);
    if (!text.empty()) player.DefText = text;
    player.positionsShown =
        static_cast<std::uint8_t>(std::count_if(player.Pos.begin(), player.Pos.end(), [](const PositionRating& slot) {
            return slot.position != Position::None;
        }));
}

// Shows the positions that the man really played, most games first.
void OrderByActualUse(Batter& batter, const ActualPositions& actual, const LeagueRules& rules) {
    const auto found = actual.find(batter.LahmanPlayerID);
    if (found == actual.end()) return;
    std::vector<std::pair<Position, double>> played = found->second;
    if (played.size() > batter.Pos.size()) played.resize(batter.Pos.size());
    std::stable_sort(played.begin(), played.end(), [](const auto& a, const auto& b) { return a.second > b.second; });
    std::vector<PositionRating> shown;
    for (const auto& [position, games] : played) {
        if (games <= 0) continue;
        const auto slot = std::find_if(
            batter.Pos.begin(), batter.Pos.end(),
            [p = position](const PositionRating& entry) { return p != Position::None && entry.position == p; });
        if (slot != batter.Pos.end()) shown.push_back(*slot);
    }
    if (shown.size() > 1)
        batter.DefText = PositionsText(shown.data(), shown.size(), batter.CatcherIRating, batter.CatcherORating,
                                       rules.UseErrorRatings);
    if (!shown.empty()) batter.positionsShown = static_cast<std::uint8_t>(shown.size());
}

template <class Player>
void FindImage(Player& player, const std::filesystem::path& folder) {
    if (player.ImageFile.empty() || folder.empty()) return;
    std::error_code ignored;
    const std::filesystem::path file = folder / player.ImageFile;
    if (std::filesystem::is_regular_file(file, ignored)) player.imagePath = file.string();
}

// Calls read(reader, player) for each row of the tournament table whose player is in the list.
template <class Player, class Read>
void OverlayTourney(Database& season, std::string_view table, const std::string& teamID, std::vector<Player>& players,
                    Read read) {
    RowReader reader = OpenTeam(season, table, teamID, "playerID");
    Player elsewhere;
    while (reader.Next()) {
        const auto id = reader.Number<std::int32_t>("playerID");
        const auto found =
            std::find_if(players.begin(), players.end(), [id](const Player& player) { return player.playerID == id; });
        read(reader, found == players.end() ? elsewhere : *found);
    }
}

std::string NameOf(Database& season, std::string_view table, std::int64_t playerID) {
    Statement statement = season.Prepare(fmt::format("SELECT playerName FROM {} WHERE playerID = ?", table));
    statement.Bind(1, playerID);
    return statement.Step() ? std::string(TrimRight(statement.Text(0))) : "Unknown";
}

}  // namespace

std::vector<Batter> LoadTeamBatters(Database& season, const std::string& teamID, const LeagueRules& rules,
                                    const PlayerLoad& load) {
    std::vector<Batter> batters;
    batters.reserve(kUsualRoster);
    RowReader reader = OpenTeam(season, "KorvBatters", teamID, PlayerOrder(rules, load));
    while (reader.Next()) {
        Batter& batter = batters.emplace_back();
        ReadBatter(reader, batter);
        if (!rules.UseYellowXInjuryChart) batter.injury = {};
        SetPositionsText(batter, batter.CatcherIRating, batter.CatcherORating, rules);
        if (load.actualPositions != nullptr && !load.hasBaseballReference)
            OrderByActualUse(batter, *load.actualPositions, rules);
        FindImage(batter, load.playerImages);
    }
    if (load.useTourneyStats && !load.chartEditorLoad)
        OverlayTourney(season, "TourneyBatters", teamID, batters, [&rules](RowReader& row, Batter& batter) {
            const Injury before = batter.injury;
            ReadBatterTotals(row, batter);
            if (!rules.UseYellowXInjuryChart) batter.injury = before;
        });
    return batters;
}

std::vector<Pitcher> LoadTeamPitchers(Database& season, const std::string& teamID, const LeagueRules& rules,
                                      const PlayerLoad& load) {
    std::vector<Pitcher> pitchers;
    pitchers.reserve(kUsualRoster);
    RowReader reader = OpenTeam(season, "KorvPitchers", teamID, PlayerOrder(rules, load));
    while (reader.Next()) {
        Pitcher& pitcher = pitchers.emplace_back();
        ReadPitcher(reader, pitcher);
        if (!rules.UseYellowXInjuryChart) pitcher.injury = {};
        if (!rules.EnhancedPitcherRestRule) pitcher.PitchLessRest = pitcher.PitchLessRest2 = 0;
        // Rest in a post season is counted in the tournament table.
        if (rules.TourneyType == "P") pitcher.PitcherRestDays = 0, pitcher.PitchedOnDay = 0;
        // The team behind him decides these cells during the game.
        if (rules.DefensiveErasInForce()) std::fill_n(pitcher.pitch.begin(), 6, ChartCell{"tbd", kGreenWord});
        SetPositionsText(pitcher, false, false, rules);
        FindImage(pitcher, load.playerImages);
    }
    if (load.useTourneyStats && !load.chartEditorLoad)
        OverlayTourney(season, "TourneyPitchers", teamID, pitchers, [&rules](RowReader& row, Pitcher& pitcher) {
            const Injury before = pitcher.injury;
            ReadPitcherTotals(row, pitcher);
            if (!rules.UseYellowXInjuryChart) pitcher.injury = before;
        });
    return pitchers;
}

ActualPositions LoadActualPositions(Database& season, const std::string& teamID) {
    ActualPositions positions;
    const bool all = teamID == kFreeAgentTeam;
    Statement statement = season.Prepare(fmt::format("SELECT playerID, Pos, G FROM LahmanFielding {} ORDER BY rowid",
                                                     all ? "" : "WHERE KorvTeamID = ?"));
    if (!all) statement.Bind(1, teamID);
    while (statement.Step())
        positions[statement.Text(0)].emplace_back(PositionFromText(statement.Text(1)), statement.Double(2));
    return positions;
}

std::string GetBatterName(Database& season, std::int64_t playerID) {
    return NameOf(season, "KorvBatters", playerID);
}
std::string GetPitcherName(Database& season, std::int64_t playerID) {
    return NameOf(season, "KorvPitchers", playerID);
}

}  // namespace tarvane
