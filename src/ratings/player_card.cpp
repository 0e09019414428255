#include "ratings/player_card.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>

#include "base/error.h"
#include "base/text.h"
#include "data/parks.h"
#include "data/players.h"
#include "data/rules.h"
#include "ratings/explain.h"
#include "ratings/season_tables.h"

namespace tarvane {

namespace {

std::string_view HandName(std::int32_t hand) {
    return hand == kLeftHand ? "left" : hand == kSwitchHitter ? "both" : "right";
}

// What the cards of one season share.
class CardWriter {
  public:
    CardWriter(Database& season, Database& common, const ChartSettings& settings)
        : season_(season), settings_(settings), baselines_(LoadLeagueBaselines(common, season)) {
        rules_ = LoadLeagueRules(season);
        rules_.DefChartEraID = -1;  // the chart as it stands, not as a defensive era would have it
        load_.chartEditorLoad = true;
    }

    std::string BatterCard(const PlayerRow& row) const;
    std::string PitcherCard(const PlayerRow& row) const;

  private:
    const LeagueBaseline* Baseline(const PlayerRow& row) const {
        const auto found = std::find_if(baselines_.begin(), baselines_.end(),
                                        [&](const LeagueBaseline& baseline) { return baseline.lgIdx == row.lgIdx; });
        return found == baselines_.end() ? nullptr : &*found;
    }
    std::string Fielding(const PlayerRow& row, const LeagueBaseline& league, FielderKind kind) const {
        const auto lines = ReadLahmanFielding(season_, row.teamID).All(row.LahmanPlayerID, row.teamID);
        return ExplainFielding(RateFielding(lines, league, kind));
    }

    Database& season_;
    ChartSettings settings_;
    std::vector<LeagueBaseline> baselines_;
    LeagueRules rules_;
    PlayerLoad load_;
};

template <class Player>
const Player* FindByID(const std::vector<Player>& players, std::int32_t playerID) {
    const auto found =
        std::find_if(players.begin(), players.end(), [&](const Player& p) { return p.playerID == playerID; });
    return found == players.end() ? nullptr : &*found;
}

constexpr std::string_view kNoStatistics =
    "  No real statistics: the charts were made by hand or came from elsewhere.\n";

std::string CardWriter::BatterCard(const PlayerRow& row) const {
    const std::vector<Batter> team = LoadTeamBatters(season_, row.teamID, rules_, load_);
    const Batter* batter = FindByID(team, row.playerID);
    if (batter == nullptr) return {};
    std::string text =
        fmt::format("{}, {}, batter, bats {}\n  {}\n  running {}, bunting {}, walks {}, strikeouts {}\n\n",
                    batter->playerName, batter->teamID, HandName(batter->bats), batter->DefText, batter->runRating,
                    batter->BuntRating, batter->BBRating, batter->SORating);
    text += ChartText({{"vs left", &batter->vsL}, {"vs right", &batter->vsR}}) + "\n";
    const auto lines = ReadLahmanBatting(season_, row.teamID);
    const LahmanBattingRow* line = lines.First(row.LahmanPlayerID, row.teamID);
    const LeagueBaseline* league = Baseline(row);
    if (line == nullptr || league == nullptr) return text.append(kNoStatistics);
    Random random(0);
    BatterDerivation d = DeriveBatter(*line, *league, settings_, row.runRating, random);
    UseStoredCharts(d, *batter);
    text += ExplainBatter(d, batter->playerName) + ExplainRunning(RateRunning(*line, false));
    return text + Fielding(row, *league, FielderKind::Batter);
}

std::string CardWriter::PitcherCard(const PlayerRow& row) const {
    const std::vector<Pitcher> team = LoadTeamPitchers(season_, row.teamID, rules_, load_);
    const Pitcher* pitcher = FindByID(team, row.playerID);
    if (pitcher == nullptr) return {};
    std::string text = fmt::format(
        "{}, {}, {}, throws {}, bats {}\n  {}\n  tires {}, second wind {}, running {}, bunting {}, walks {}, "
        "strikeouts "
        "{}\n\n",
        pitcher->playerName, pitcher->teamID, pitcher->pitcherType == 'S' ? "starter" : "reliever",
        HandName(pitcher->throws_), HandName(pitcher->bats), pitcher->DefText, pitcher->tiredRating,
        pitcher->secondWindRating, pitcher->runRating, pitcher->BuntRating, pitcher->BBRating, pitcher->SORating);
    text += ChartText({{"pitching", &pitcher->pitch}, {"at bat", &pitcher->Bat}}) + "\n";
    const auto lines = ReadLahmanPitching(season_, row.teamID);
    const auto batting = ReadLahmanBatting(season_, row.teamID);
    const LahmanPitchingRow* line = lines.First(row.LahmanPlayerID, row.teamID);
    const LeagueBaseline* league = Baseline(row);
    if (line == nullptr || league == nullptr) return text.append(kNoStatistics);
    const LahmanBattingRow* atBat = batting.First(row.LahmanPlayerID, row.teamID);
    Random random(0);
    PitcherDerivation d = DerivePitcher(*line, atBat, *league, settings_, random);
    UseStoredCharts(d, *pitcher);
    text += ExplainPitcher(d, pitcher->playerName);
    if (atBat != nullptr) text += ExplainRunning(RateRunning(*atBat, true));
    return text + Fielding(row, *league, FielderKind::Pitcher);
}

std::vector<PlayerRow> RowsOfName(Database& season, PlayerTable table, std::string_view name, std::string_view team) {
    std::vector<PlayerRow> rows;
    for (PlayerRow& row : ReadPlayers(season, table)) {
        const bool named = EqualsIgnoreCase(TrimRight(row.playerName), Trim(name));
        if (named && (team.empty() || EqualsIgnoreCase(row.teamID, team))) rows.push_back(std::move(row));
    }
    return rows;
}

// Names that hold any word of the one asked for, the last word first.
std::string NearNames(Database& season, std::string_view name) {
    constexpr std::size_t kMost = 5;
    const std::string wanted = ToLower(Trim(name));
    const std::string last = wanted.substr(wanted.find_last_of(' ') + 1);
    std::vector<std::string> near;
    for (const PlayerTable table : {PlayerTable::Batters, PlayerTable::Pitchers}) {
        for (const PlayerRow& row : ReadPlayers(season, table)) {
            if (last.empty() || ToLower(row.playerName).find(last) == std::string::npos) continue;
            near.push_back(fmt::format("{} ({})", TrimRight(row.playerName), row.teamID));
        }
    }
    std::sort(near.begin(), near.end());
    near.erase(std::unique(near.begin(), near.end()), near.end());
    if (near.size() > kMost) near.resize(kMost);
    return fmt::format("{}", fmt::join(near, ", "));
}

}  // namespace

std::string PlayerCard(Database& season, Database& common, std::string_view name, std::string_view team,
                       const ChartSettings& settings) {
    const CardWriter writer(season, common, settings);
    std::vector<std::string> cards;
    for (const PlayerRow& row : RowsOfName(season, PlayerTable::Batters, name, team)) {
        cards.push_back(writer.BatterCard(row));
    }
    for (const PlayerRow& row : RowsOfName(season, PlayerTable::Pitchers, name, team)) {
        cards.push_back(writer.PitcherCard(row));
    }
    if (!cards.empty()) return fmt::format("{}", fmt::join(cards, "\n"));
    const std::string near = NearNames(season, name);
    throw UserError(fmt::format("No player \"{}\"{} in this season.{}", name,
                                team.empty() ? "" : fmt::format(" of team {}", team),
                                near.empty() ? " Give the first and last name." : " Do you mean " + near + "?"));
}

}  // namespace tarvane
