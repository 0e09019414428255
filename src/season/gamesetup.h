#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "core/database.h"
#include "manager/computermanager.h"
#include "manager/lineups.h"

namespace tarvane {

// A game ready for StartGame.
struct GameSetup {
    GameData data;
    PerSide<LineupInput> lineup;
    PerSide<ManagerKnowledge> knowledge;  // for the computer managers of the two sides
    PerSide<SideControl> control;
    std::vector<std::string> messages;  // what was replaced, passed over or couldn't be read
};

// The user's folders of pictures; an empty one has none.
struct PictureFolders {
    std::filesystem::path parks, players;
};

struct ExhibitionOptions {
    std::int32_t parkID = 0;  // 0: the home team's
    std::string date;         // yyyy-mm-dd; empty: a game outside the calendar, for which nobody needs rest
    // What a computer manages. A team's own marks (always computer, always human) go before these.
    PerSide<SideControl> control{{SideControl{true, true, true}, SideControl{true, true, true}}};
    PictureFolders pictures;
};

// Loads two teams of a season with everything that a game between them is played on, and makes both line-ups. Throws
// UserError if a team or its park isn't there, or if no legal line-up can be made.
GameSetup LoadExhibition(Database& common, Database& season, const std::string& visitorCode,
                         const std::string& homeCode, const ExhibitionOptions& options = {});

// Fills the park, the year's chart or the defensive era of the home team's league, and the charts of the game; rules
// and the home team's row are there. Throws UserError if the team has no park.
void LoadSurroundings(Database& common, Database& season, const ExhibitionOptions& options, GameSetup& setup);

// The DH bats: in the whole league, or where the home team's rule says so.
bool DHUsedIn(const LeagueRules& rules, const Team& home);

// What a computer manages for a team: all of it, nothing, or what was chosen.
SideControl ControlOf(const Team& team, const SideControl& chosen);

// The starters and nines of both sides, for data whose rosters are loaded and whose rests are settled; lastStarter is
// the playerID of each side's last starter, 0 if unknown. Throws UserError if a side has no legal line-up.
void ChooseBothLineups(GameSetup& setup, const PerSide<std::int32_t>& lastStarter);

// The man who started a team's last game, by the season's log of pitchers; 0 if none is there.
std::int32_t FindLastStarter(Database& season, const std::string& teamID);

}  // namespace tarvane
