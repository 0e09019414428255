#include "savegame/savefile.h"

#include <fmt/format.h>

#include "base/error.h"
#include "base/file.h"
#include "core/messages.h"
#include "data/gamecharts.h"
#include "data/parks.h"
#include "data/rules.h"
#include "data/teams.h"
#include "manager/rest.h"
#include "season/realstats.h"

namespace tarvane {

namespace {

// What a table lacks is no reason to keep a game from going on: the file has what the game needs.
class Unheard final : public MessageSink {
  public:
    void Warn(const std::string&, const std::string&) override {}
    void Inform(const std::string&, const std::string&) override {}
};

bool HasTeam(Database& season, const std::string& teamID) {
    Statement row = season.Prepare("SELECT count(*) FROM KorvTeams WHERE teamID = ?");
    row.Bind(1, teamID);
    return row.Step() && row.Int(0) == 1;
}

void FillFromSeason(Database& common, Database& season, const SaveHead& head, PreparedGame& game) {
    GameData& data = game.data;
    Unheard unheard;
    data.rules = LoadLeagueRules(season);
    data.charts = LoadGameCharts(common);
    EraAverages baseline;
    LoadBallpark(common, head.parkID, {}, unheard, data.park, baseline);
    PlayerLoad load;
    load.useTourneyStats = data.rules.TourneyMode;
    for (const Side side : kBothSides) {
        if (!HasTeam(season, head.teamID[side])) continue;
        data.team[side].roster = LoadTeamRoster(season, head.teamID[side], data.rules, load);
        game.knowledge[side] = LoadManagerKnowledge(season, data[side].roster, data.rules);
    }
    if (!data.rules.DefensiveErasInForce()) return;
    for (const League& league : LoadLeagues(season).leagues)
        if (league.lgIdx == data[Side::Home].roster.team.lgIdx)
            LoadDefensiveEra(common, league.EraID, unheard, data.defensiveEra);
}

void TakeFigures(Batter& man, const Batter& now) {
    man.G = now.G;
    man.total = now.total;
    man.vsLeft = now.vsLeft;
    man.vsRight = now.vsRight;
    man.rates = now.rates;
    man.vsLeftRates = now.vsLeftRates;
    man.vsRightRates = now.vsRightRates;
    man.injury = now.injury;
    man.CombinedPlayerID = now.CombinedPlayerID;
}
void TakeFigures(Pitcher& man, const Pitcher& now) {
    man.total = now.total;
    man.Pct = now.Pct;
    man.ERA = now.ERA;
    man.WHIP = now.WHIP;
    man.PitcherAutoOuts = now.PitcherAutoOuts;
    man.batting = now.batting;
    man.battingRates = now.battingRates;
    man.PitcherRestDays = now.PitcherRestDays;
    man.PitchedOnDay = now.PitchedOnDay;
    man.IPOutsToday = now.IPOutsToday;
    man.injury = now.injury;
    man.CombinedPlayerID = now.CombinedPlayerID;
}

template <class Man>
void TakeAll(std::vector<Man>& men, const std::vector<Man>& now) {
    for (Man& man : men)
        for (const Man& one : now)
            if (one.playerID == man.playerID) TakeFigures(man, one);
}

}  // namespace

std::filesystem::path SaveGameFile(const std::filesystem::path& seasonFolder, std::int32_t GameID) {
    return seasonFolder /
           (GameID == kExhibitionGameID ? std::string("ExhGame.txt") : fmt::format("SaveGame{}.txt", GameID));
}

void WriteSaveFile(const std::filesystem::path& file, const SavedGame& game) {
    WriteFile(file, WriteSaveGame(game));
}

SavedGame ResumeSavedGame(Database& common, Database& season, const std::filesystem::path& file) {
    const std::string text = ReadFile(file);
    SavedGame game = ReadSaveGame(text, file.string(), [&](const SaveHead& head, PreparedGame& basis) {
        if (SaveGameFile(file.parent_path(), head.GameID) != file)
            throw UserError(fmt::format(
                "{} holds {} and not the game of its name: move it away, and the game is played from its start.",
                file.string(), head.scheduled ? fmt::format("game {}", head.GameID) : "an exhibition game"));
        FillFromSeason(common, season, head, basis);
    });
    for (const Side side : kBothSides) {
        const TeamRoster& roster = game.game.data[side].roster;
        game.game.real[side] = LoadLahmanRecords(season, roster.team.teamID);
        ManagerKnowledge& knowledge = game.game.knowledge[side];
        if (!game.session) knowledge.topBatter = FindTopBatters(season, roster, game.game.data.rules.TourneyMode);
        // The figures stand beside the roster of the file, man for man.
        if (knowledge.actualUsage) knowledge.real = LoadRealUse(season, roster);
    }
    return game;
}

void DeleteSavedGame(const std::filesystem::path& file) {
    std::error_code error;
    std::filesystem::remove(file, error);
    if (error)
        throw UserError(fmt::format("The saved game {} can't be deleted. Delete it, or the game counts as unfinished.",
                                    file.string()));
}

void TakeSeasonFigures(Database& season, GameData& data, int daysReduced) {
    PlayerLoad load;
    load.useTourneyStats = data.rules.TourneyMode;
    for (const Side side : kBothSides) {
        TeamRoster& roster = data.team[side].roster;
        if (!HasTeam(season, roster.team.teamID)) continue;
        TeamRoster now = LoadTeamRoster(season, roster.team.teamID, data.rules, load);
        for (int day = 0; day < daysReduced; ++day) ReduceRestAndInjuries(now);
        GetPitcherRest(now, data.dayNumber);
        TakeAll(roster.batters, now.batters);
        TakeAll(roster.pitchers, now.pitchers);
        roster.team.lgIdx = now.team.lgIdx;
    }
}

}  // namespace tarvane
