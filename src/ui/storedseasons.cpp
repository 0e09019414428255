#include "ui/storedseasons.h"

#include "data/settings.h"
#include "data/teams.h"

namespace tarvane {

std::vector<SeasonEntry> StoredSeasons::Seasons() {
    return ListSeasons(session_.Common());
}

std::string StoredSeasons::ActiveSeason() const {
    return session_.Seasons().ActiveSeason();
}

// The catalogue itself tells the user what went wrong.
std::string StoredSeasons::SetActive(std::int64_t LeagueID) {
    session_.Seasons().SetActiveSeason(LeagueID);
    return {};
}

LeagueRules StoredSeasons::Rules() const {
    return session_.Seasons().Rules();
}

std::vector<TeamEntry> StoredSeasons::Teams() {
    std::vector<TeamEntry> teams;
    for (const Team& team : LoadTeamList(session_.Seasons().Season(), Rules()))
        teams.push_back(
            {team.TeamIdx, team.teamID, team.fullName, team.ParkID, team.ComputerManaged, team.AlwaysHumanManaged});
    return teams;
}

std::vector<ParkEntry> StoredSeasons::Parks() {
    std::vector<ParkEntry> parks;
    Statement row =
        session_.Common().Prepare("SELECT parkID, Stadium, yearID FROM KorvBallparks ORDER BY yearID, Stadium");
    while (row.Step())
        parks.push_back({static_cast<std::int32_t>(row.Int(0)), row.Text(1), static_cast<int>(row.Int(2))});
    return parks;
}

GamePtr StoredSeasons::Exhibition(const ExhibitionGame& game) {
    ExhibitionOptions options;
    options.parkID = game.parkID;
    options.control = game.control;
    options.pictures = {session_.Paths().BallparkImages(), session_.Paths().PlayerImages()};
    Database& season = session_.Seasons().Season();
    auto prepared = std::make_shared<PreparedGame>();
    static_cast<GameSetup&>(*prepared) =
        LoadExhibition(session_.Common(), season, game.visitorID, game.homeID, options);
    for (const Side side : kBothSides)
        prepared->real[side] = LoadLahmanRecords(season, prepared->data[side].roster.team.teamID);
    return prepared;
}

namespace {

SoundOptions SoundsFrom(Session& session) {
    const GameSettings& settings = session.Settings();
    SoundOptions sounds;
    sounds.GameSounds = settings.GameSounds;
    sounds.UserGamePlaySounds = settings.UserGamePlaySounds;
    sounds.BetweenInningsSounds = settings.BetweenInningsSounds;
    sounds.BetweeInnRandom = settings.BetweeInnRandom;
    sounds.SeventhInnStretchSound = settings.SeventhInnStretchSound;
    sounds.SoundDuration = settings.SoundDuration;
    sounds.Sound = settings.Sound;
    sounds.user = LoadGamePlaySounds(session.Common());
    sounds.folder = session.Paths().SoundFiles();
    return sounds;
}

}  // namespace

GameOptions OptionsFrom(Session& session) {
    const GameSettings& settings = session.Settings();
    GameOptions options;
    options.computer[Side::Visitor] = {settings.CompRoadMgrLineups, settings.CompRoadMgrSubs, settings.CompRoadMgrGame};
    options.computer[Side::Home] = {settings.CompHomeMgrLineups, settings.CompHomeMgrSubs, settings.CompHomeMgrGame};
    options.ComputerMgrAutoClick = settings.ComputerMgrAutoClick;
    options.AuxChartsAutoClick = settings.AuxChartsAutoClick;
    options.ManualDiceRolls = settings.ManualDiceRolls;
    options.HideChartDuringGame = settings.HideChartDuringGame;
    options.DisplayChances = settings.DisplayChances;
    options.ShowBanner = settings.FieldZ == 1;
    options.DiceRollSounds = settings.DiceRollSounds;
    options.DisplayCompMgrChanges = settings.DisplayCompMgrChanges;
    options.PitcherRestWarning = settings.PitcherRestWarning;
    options.PitcherBatterWarning = settings.PitcherBatterWarning;
    options.PromptSpectatorMode = settings.PromptSpectatorMode;
    options.PlayResultDelay = settings.PlayResultDelay;
    if (!settings.DefaultChartType.empty()) options.DefaultChartType = settings.DefaultChartType.front();
    options.QuickPlayMode = settings.QuickPlayMode;
    options.PlayByPlayResults = settings.PlayByPlayResults;
    options.ChartMode = settings.ChartMode;
    options.sounds = SoundsFrom(session);
    options.animation = {settings.GameAnimation, settings.BaseRunnerAnimation, settings.GameAnimationLite,
                         settings.GameAniSpeed2};
    return options;
}

}  // namespace tarvane
