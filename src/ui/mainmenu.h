#pragma once

#include <string>
#include <vector>

namespace tarvane {

// The five rows of commands of the main menu.
enum class MenuRow { GamePlay, Reports, Settings, Leagues, Charts };

enum class MenuScreen {
    PreSchedGame,
    PreExGame,
    InternetGuest,
    Standings,
    TeamVsTeam,
    TeamStats,
    LeadersBatting,
    LeadersPitching,
    LeagueStats,
    GameResults,
    InjuryReport,
    GameLogs,
    ExportReports,
    TourneySetup,
    SettingsGame,
    SettingsLeague,
    SettingsSound,
    SettingsPark,
    YearEffectEditor,
    EmailDirectory,
    Seasons,
    Leagues,
    Team,
    TeamInfo,
    LahmanImport,
    LahmanLink,
    ExportSeasonExcel,
    ChartEditor,
    ImportExcel
};

struct MenuCommand {
    std::string text;
    MenuScreen opens;
    bool needsSeason = false;
    std::string refusalTitle;  // title of the refusal while there is no active season
    bool enabled = true;       // drawn grey and deaf when false
};

// What the menu's rows depend on.
struct MenuContext {
    bool activeSeason = false;
    bool tourneyMode = false;
    std::string tourneyType;  // "T", "D", "P" or empty
    bool tournamentGamePlayed = false;
    bool spreadsheet = false;  // a spreadsheet program is installed
};

// The commands of one row from left to right.
std::vector<MenuCommand> MenuCommands(MenuRow row, const MenuContext& context);

// The caption above a row.
std::string MenuCaption(MenuRow row);

// The warning for a command that needs a season when none is active; empty if it may go ahead.
std::string MenuRefusal(const MenuCommand& command, const MenuContext& context);

// "Active Season: <name>", empty without one.
std::string ActiveSeasonLabel(const std::string& season);

}  // namespace tarvane
