#include "season/gamesetup.h"

#include <fmt/core.h>

#include "base/error.h"
#include "core/messages.h"
#include "data/gamecharts.h"
#include "data/parks.h"
#include "data/rules.h"
#include "data/teams.h"
#include "season/calendar.h"
#include "season/realstats.h"

namespace tarvane {

namespace {

class MessageList final : public MessageSink {
  public:
    explicit MessageList(std::vector<std::string>& texts) : texts_(texts) {}
    void Warn(const std::string& title, const std::string& text) override { texts_.push_back(title + ": " + text); }
    void Inform(const std::string& title, const std::string& text) override { Warn(title, text); }

  private:
    std::vector<std::string>& texts_;
};

std::int32_t EraOfLeague(Database& season, std::int16_t lgIdx) {
    for (const League& league : LoadLeagues(season).leagues)
        if (league.lgIdx == lgIdx) return league.EraID;
    return 0;
}

// Without a date nobody rests; with one the rests that are over are cleared.
void SettleRest(GameData& data, const std::string& date) {
    if (!date.empty()) {
        const auto day = DayOfYear(date);
        if (!day) throw UserError(fmt::format("\"{}\" is no date: write yyyy-mm-dd.", date));
        data.dayNumber = static_cast<std::int16_t>(*day);
        data.gameDate = date;
    }
    for (const Side side : kBothSides) {
        TeamRoster& roster = data.team[side].roster;
        GetPitcherRest(roster, data.dayNumber);
        if (!date.empty()) continue;
        for (Pitcher& pitcher : roster.pitchers) pitcher.PitcherRestDays = 0;
    }
}

ChosenStarter StarterOf(GameSetup& setup, Side side, std::int32_t lastStarter) {
    TeamRoster& roster = setup.data.team[side].roster;
    StarterRequest request;
    request.side = side;
    request.lastStarter = lastStarter;
    request.dayNumber = setup.data.dayNumber;
    request.actualUsage = setup.knowledge[side].actualUsage;
    return ChooseStarter(roster, request, &setup.knowledge[side].real);
}

}  // namespace

void LoadSurroundings(Database& common, Database& season, const ExhibitionOptions& options, GameSetup& setup) {
    GameData& data = setup.data;
    const Team& home = data[Side::Home].roster.team;
    MessageList messages(setup.messages);
    const std::int32_t parkID = options.parkID != 0 ? options.parkID : home.ParkID;
    if (parkID == 0)
        throw UserError(
            "Home Team does not have a ballpark defined. Go to Organize Teams and choose ballpark for Home Team.");
    EraAverages baseline;
    if (!LoadBallpark(common, parkID, options.pictures.parks, messages, data.park, baseline))
        throw UserError(
            fmt::format("{}: there is no ballpark {}. Choose another park.", common.Path().string(), parkID));
    // The season's code of leagues, as the tables have it: in a bracket all teams count as one league.
    Statement league = season.Prepare("SELECT lgIdx FROM KorvTeams WHERE teamID = ?");
    league.Bind(1, home.teamID);
    const auto lgIdx = league.Step() ? static_cast<std::int16_t>(league.Int(0)) : home.lgIdx;
    const std::int32_t eraID = EraOfLeague(season, lgIdx);
    std::int32_t normalizeEraID = 0;
    LoadYearEffects(common, data.rules, eraID, normalizeEraID, messages, data.year, baseline);
    if (data.rules.DefensiveErasInForce()) LoadDefensiveEra(common, eraID, messages, data.defensiveEra);
    data.charts = LoadGameCharts(common);
}

bool DHUsedIn(const LeagueRules& rules, const Team& home) {
    return rules.LeagueDH || (rules.HometeamDH && home.HomeDH);
}

SideControl ControlOf(const Team& team, const SideControl& chosen) {
    if (team.ComputerManaged) return {true, true, true};
    return team.AlwaysHumanManaged ? SideControl{} : chosen;
}

std::int32_t FindLastStarter(Database& season, const std::string& teamID) {
    Statement row = season.Prepare(
        "SELECT PlayerID FROM KorvPitcherResultsLog WHERE TeamID = ? AND GS > 0 ORDER BY GameDate DESC, GameID DESC "
        "LIMIT 1");
    row.Bind(1, teamID);
    return row.Step() ? static_cast<std::int32_t>(row.Int(0)) : 0;
}

void ChooseBothLineups(GameSetup& setup, const PerSide<std::int32_t>& lastStarter) {
    PerSide<int> starter;
    for (const Side side : kBothSides) {
        const ChosenStarter chosen = StarterOf(setup, side, lastStarter[side]);
        starter[side] = chosen.pitcher;
        setup.messages.insert(setup.messages.end(), chosen.messages.begin(), chosen.messages.end());
    }
    for (const Side side : kBothSides) {
        LineupRequest request;
        request.side = side;
        request.dhUsed = setup.data.DHUsed;
        request.pitcher = starter[side];
        const auto& opponents = setup.data[Other(side)].roster.pitchers;
        const int facing = starter[Other(side)];
        request.opponentThrowsLeft = facing >= 0 && opponents[static_cast<std::size_t>(facing)].throws_ == kLeftHand;
        const ChosenLineup chosen = ChooseLineup(setup.data[side].roster, request);
        if (!chosen.trouble.empty()) throw UserError(chosen.trouble);
        setup.lineup[side] = chosen.lineup;
        setup.messages.insert(setup.messages.end(), chosen.messages.begin(), chosen.messages.end());
    }
}

GameSetup LoadExhibition(Database& common, Database& season, const std::string& visitorCode,
                         const std::string& homeCode, const ExhibitionOptions& options) {
    GameSetup setup;
    setup.data.rules = LoadLeagueRules(season);
    PerSide<std::int32_t> lastStarter;
    for (const Side side : kBothSides) {
        TeamRoster& roster = setup.data.team[side].roster;
        PlayerLoad load;
        load.playerImages = options.pictures.players;
        roster = LoadTeamRoster(season, side == Side::Visitor ? visitorCode : homeCode, setup.data.rules, load);
        if (roster.batters.empty() || roster.pitchers.empty())
            throw UserError(fmt::format("{} has no players. Import or add them first.", roster.team.fullName));
        setup.knowledge[side] = LoadManagerKnowledge(season, roster, setup.data.rules);
        setup.control[side] = ControlOf(roster.team, options.control[side]);
        lastStarter[side] = FindLastStarter(season, roster.team.teamID);
    }
    setup.data.DHUsed = DHUsedIn(setup.data.rules, setup.data[Side::Home].roster.team);
    LoadSurroundings(common, season, options, setup);
    SettleRest(setup.data, options.date);
    ChooseBothLineups(setup, lastStarter);
    for (const Side side : kBothSides) MakeRestingIneffective(setup.data.team[side].roster);
    CompileGameData(setup.data);
    return setup;
}

}  // namespace tarvane
