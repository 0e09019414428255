#include "ui/mainmenu.h"

namespace tarvane {

namespace {

constexpr const char* kPlayTitle = "Tarvane PC Baseball Game Play";
constexpr const char* kReportsTitle = "Tarvane PC Baseball Reports";
constexpr const char* kRulesTitle = "League Rules/Setttings";

std::string PlayCommandText(const MenuContext& context) {
    if (!context.tourneyMode) return "Play Scheduled Game(s)";
    return context.tourneyType == "P" ? "Play Post Season Game(s)" : "Play Tournament Game(s)";
}

MenuCommand WithSeason(std::string text, MenuScreen opens, const char* refusalTitle) {
    return {std::move(text), opens, true, refusalTitle, true};
}

MenuCommand Always(std::string text, MenuScreen opens) {
    return {std::move(text), opens, false, {}, true};
}

std::vector<MenuCommand> GamePlayRow(const MenuContext& context) {
    return {WithSeason(PlayCommandText(context), MenuScreen::PreSchedGame, kPlayTitle),
            WithSeason("Play Exhibition Game", MenuScreen::PreExGame, kPlayTitle),
            Always("Join Internet Game", MenuScreen::InternetGuest)};
}

std::vector<MenuCommand> ReportsRow(const MenuContext& context) {
    std::vector<MenuCommand> row{WithSeason("Standings", MenuScreen::Standings, kReportsTitle),
                                 WithSeason("Team Versus Team", MenuScreen::TeamVsTeam, kReportsTitle),
                                 WithSeason("Team Stats", MenuScreen::TeamStats, kReportsTitle),
                                 WithSeason("Batting Leaders", MenuScreen::LeadersBatting, kReportsTitle),
                                 WithSeason("Pitching Leaders", MenuScreen::LeadersPitching, kReportsTitle),
                                 WithSeason("League Stats", MenuScreen::LeagueStats, kReportsTitle),
                                 WithSeason("Game Results", MenuScreen::GameResults, kReportsTitle),
                                 WithSeason("Injury Report", MenuScreen::InjuryReport, kReportsTitle),
                                 WithSeason("Notable Games and Game Logs", MenuScreen::GameLogs, kReportsTitle),
                                 WithSeason("Export Reports/Build Website", MenuScreen::ExportReports, kReportsTitle)};
    if (context.tourneyMode && context.tournamentGamePlayed)
        row.push_back(WithSeason(context.tourneyType == "P" ? "Post Season Results" : "Tournament Results",
                                 MenuScreen::TourneySetup, kReportsTitle));
    return row;
}

std::vector<MenuCommand> SettingsRow() {
    return {Always("Game Play Settings", MenuScreen::SettingsGame),
            WithSeason("League Rules and Settings", MenuScreen::SettingsLeague, kRulesTitle),
            Always("Sound Preferences", MenuScreen::SettingsSound),
            Always("Ballpark Editor", MenuScreen::SettingsPark),
            Always("Year Effect Editor", MenuScreen::YearEffectEditor),
            Always("Email Directory", MenuScreen::EmailDirectory)};
}

std::vector<MenuCommand> LeaguesRow() {
    return {Always("Work with Seasons", MenuScreen::Seasons),
            WithSeason("Work with League or Teams", MenuScreen::Leagues, kRulesTitle),
            WithSeason("Team Management", MenuScreen::Team, kReportsTitle),
            WithSeason("Team Settings", MenuScreen::TeamInfo, kReportsTitle)};
}

std::vector<MenuCommand> ChartsRow(const MenuContext& context) {
    std::vector<MenuCommand> row{Always("Create Season from Lahman Database", MenuScreen::LahmanImport),
                                 Always("Link to Lahman Database", MenuScreen::LahmanLink),
                                 Always("Export Teams to Excel Charts", MenuScreen::ExportSeasonExcel),
                                 Always("Team Chart Design/Editor", MenuScreen::ChartEditor),
                                 Always("Import Teams from Excel", MenuScreen::ImportExcel)};
    row[2].enabled = context.spreadsheet;
    return row;
}

}  // namespace

std::vector<MenuCommand> MenuCommands(MenuRow row, const MenuContext& context) {
    switch (row) {
        case MenuRow::GamePlay: return GamePlayRow(context);
        case MenuRow::Reports: return ReportsRow(context);
        case MenuRow::Settings: return SettingsRow();
        case MenuRow::Leagues: return LeaguesRow();
        case MenuRow::Charts: return ChartsRow(context);
    }
    return {};
}

std::string MenuCaption(MenuRow row) {
    switch (row) {
        case MenuRow::GamePlay: return "Game Play";
        case MenuRow::Reports: return "Tarvane Baseball Reports";
        case MenuRow::Settings: return "Settings, Preferences and Rules";
        case MenuRow::Leagues: return "Leagues, Teams, Seasons";
        case MenuRow::Charts: return "Chart Design and Editing";
    }
    return {};
}

std::string MenuRefusal(const MenuCommand& command, const MenuContext& context) {
    if (!command.needsSeason || context.activeSeason) return {};
    return "There is no Active Season. Click on Work with Seasons, then Choose an Active Season.";
}

std::string ActiveSeasonLabel(const std::string& season) {
    return season.empty() ? std::string() : "Active Season: " + season;
}

}  // namespace tarvane
