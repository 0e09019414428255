#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "import/lahmanrows.h"
#include "import/teamlist.h"
#include "records/lahman.h"

namespace tarvane {

// Who is let in. At most so many outs and at bats keep a man out, so 0 keeps out those with none.
struct RosterFilter {
    int minIPOuts = 0;
    int minAB = 0;
    bool freeAgents = false;  // all players go to the team of free agents instead of their clubs
};

// New rows of KorvBatters and KorvPitchers, before anything is generated.
struct NewBatter {
    std::string teamID, playerName, LahmanPlayerID;
    std::int32_t bats = 0;
};
struct NewPitcher {
    std::string teamID, playerName, LahmanPlayerID;
    std::int32_t bats = 0, throws_ = 0;
    char pitcherType = 'S';
};

// All that one club brings into a season, each list in the order of its table.
struct TeamImport {
    std::vector<LahmanBattingRow> batting;
    std::vector<LahmanPitchingRow> pitching;
    std::vector<LahmanFieldingRow> fielding;
    std::vector<NewBatter> batters;
    std::vector<NewPitcher> pitchers;
};

// "S" if he started at least 67 of 100 games, "R" if at most 25; between them he is both: "SR".
std::string_view PitcherTypes(int GS, int G);

// Makes the clubs' players out of the source's rows.
class RosterImporter {
  public:
    // tables must outlive the importer.
    RosterImporter(const LahmanTables& tables, RosterFilter filter) : tables_(tables), filter_(filter) {}

    TeamImport Import(const LahmanTeam& team);

    // Players whom the source has no name for; they bear their key as name.
    const std::set<std::string>& Nameless() const { return nameless_; }
    // Outfielders of whom the source doesn't tell who played where: they have no row for the outfield.
    const std::set<std::string>& OutfieldUnknown() const { return outfieldUnknown_; }

  private:
    struct Person {
        std::string name;
        std::int32_t bats = 0, throws_ = 0;
    };

    Person PersonOf(const std::string& playerID);
    // True if the man pitched in this spell, and enough to come in as a pitcher.
    bool TakePitcher(const SpellKey& spell, TeamImport& result);
    void TakeFielding(const SpellKey& spell, TeamImport& result);
    void TakeOutfield(const SpellKey& spell, const LahmanFieldingLine& line, TeamImport& result);
    void TakeBatter(const LahmanBattingLine& line, TeamImport& result);
    void AddBatter(const LahmanBattingLine& line, TeamImport& result);
    void AddPitcher(const LahmanPitchingLine& line, TeamImport& result);
    // Puts the keys of a row: the club's code and the season's, or the free agents' for both.
    void SetKeys(const SpellKey& spell, std::string& teamID, std::string& KorvTeamID) const;

    const LahmanTables& tables_;
    RosterFilter filter_;
    const LahmanTeam* team_ = nullptr;                        // the one being imported
    std::set<std::pair<std::string, std::string>> pitchers_;  // team and player of the rows of KorvPitchers so far
    std::set<std::string> nameless_, outfieldUnknown_;
};

}  // namespace tarvane
