// The command that shows a player's charts and where their numbers come from.

#include <fmt/format.h>

#include <algorithm>

#include "base/error.h"
#include "base/text.h"
#include "data/players.h"
#include "data/rules.h"
#include "installation.h"
#include "ratings/explain.h"
#include "ratings/generators.h"
#include "ratings/season_tables.h"

namespace tarvane::replay {

namespace {

// The season's statistics and eras, read once for all players found.
struct ChartSource {
    Database& season;
    LeagueRules rules;
    std::vector<LeagueBaseline> leagues;
    StatisticsTable<LahmanBattingRow> batting;
    StatisticsTable<LahmanPitchingRow> pitching;
    StatisticsTable<LahmanFieldingRow> fielding;
    ChartSettings settings;

    ChartSource(Database& s, Database& common)
        : season(s),
          rules(LoadLeagueRules(s)),
          leagues(ReadLeagueBaselines(s, common)),
          batting(ReadLahmanBatting(s)),
          pitching(ReadLahmanPitching(s)),
          fielding(ReadLahmanFielding(s)) {
        settings.PAFactorOverride = MeanPAFactor(s, common);
    }

    const LeagueBaseline* League(int lgIdx) const {
        const auto found =
            std::find_if(leagues.begin(), leagues.end(), [&](const LeagueBaseline& l) { return l.lgIdx == lgIdx; });
        return found == leagues.end() ? nullptr : &*found;
    }
};

void ShowBatter(const ChartSource& source, const Batter& batter) {
    fmt::print("{} ({}), batter   {}\n\n", batter.playerName, batter.teamID, batter.DefText);
    const LahmanBattingRow* line = source.batting.First(batter.LahmanPlayerID, batter.teamID);
    const LeagueBaseline* league = source.League(batter.lgIdx);
    if (!line || !league) {
        fmt::print("{}\n", ChartText({{"vs L", &batter.vsL}, {"vs R", &batter.vsR}}));
        fmt::print("His real statistics aren't in the season, so the way to these numbers can't be told.\n");
        return;
    }
    Random random(1);
    BatterDerivation derivation = DeriveBatter(*line, *league, source.settings, batter.runRating, random);
    UseStoredCharts(derivation, batter);
    fmt::print("{}\n", ExplainBatter(derivation, batter.playerName));
    fmt::print("{}\n", ExplainRunning(RateRunning(*line, false)));
    fmt::print("{}\n", ExplainFielding(RateFielding(source.fielding.All(batter.LahmanPlayerID, batter.teamID), *league,
                                                    FielderKind::Batter)));
}

void ShowPitcher(const ChartSource& source, const Pitcher& pitcher) {
    fmt::print("{} ({}), pitcher ({})   {}\n\n", pitcher.playerName, pitcher.teamID, pitcher.pitcherType,
               pitcher.DefText);
    const LahmanPitchingRow* line = source.pitching.First(pitcher.LahmanPlayerID, pitcher.teamID);
    const LahmanBattingRow* batting = source.batting.First(pitcher.LahmanPlayerID, pitcher.teamID);
    const LeagueBaseline* league = source.League(pitcher.lgIdx);
    if (!line || !league) {
        fmt::print("{}\n", ChartText({{"pitching", &pitcher.pitch}, {"at bat", &pitcher.Bat}}));
        fmt::print("His real statistics aren't in the season, so the way to these numbers can't be told.\n");
        return;
    }
    Random random(1);
    PitcherDerivation derivation = DerivePitcher(*line, batting, *league, source.settings, random);
    UseStoredCharts(derivation, pitcher);
    fmt::print("{}\n", ExplainPitcher(derivation, pitcher.playerName));
    fmt::print("{}\n", ExplainFielding(RateFielding(source.fielding.All(pitcher.LahmanPlayerID, pitcher.teamID),
                                                    *league, FielderKind::Pitcher)));
}

// Codes of the teams that have a player of this name, in either table.
std::vector<std::string> TeamsOf(Database& season, const std::string& name) {
    std::vector<std::string> teams;
    for (const char* table : {"KorvBatters", "KorvPitchers"}) {
        for (Recordset rows = season.OpenRecordset(table, "playerName = ? COLLATE NOCASE", {name}, "teamID");
             !rows.EndOfFile(); rows.MoveNext()) {
            const std::string team = rows.GetText("teamID");
            if (std::find(teams.begin(), teams.end(), team) == teams.end()) teams.push_back(team);
        }
    }
    return teams;
}

}  // namespace

int ShowChart(const Context& context, const Options& options) {
    Installation installation(context);
    Database season = installation.OpenSeason(options.Positional(0));
    const std::string name = options.Text("--player");
    std::vector<std::string> teams = TeamsOf(season, name);
    if (options.Has("--team"))
        std::erase_if(teams, [&](const std::string& t) { return !EqualsIgnoreCase(t, options.Text("--team")); });
    if (teams.empty())
        throw UserError(
            fmt::format("nobody called \"{}\" {} in the season; names are as in the statistics, at most 25 letters",
                        name, options.Has("--team") ? "plays for " + options.Text("--team") : "is"));
    const ChartSource source(season, installation.Common());
    for (const std::string& team : teams) {
        for (const Batter& batter : LoadTeamBatters(season, team, source.rules))
            if (EqualsIgnoreCase(batter.playerName, name)) ShowBatter(source, batter);
        for (const Pitcher& pitcher : LoadTeamPitchers(season, team, source.rules))
            if (EqualsIgnoreCase(pitcher.playerName, name)) ShowPitcher(source, pitcher);
    }
    return 0;
}

}  // namespace tarvane::replay
