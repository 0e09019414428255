#include "import/roster.h"

#include <algorithm>
#include <tuple>

#include "base/rounding.h"
#include "base/text.h"
#include "records/player.h"

namespace tarvane {

namespace {

constexpr std::size_t kLongestName = 25;  // characters of a player's name

// The opponents' at bats and runs, where the source leaves them out, are estimated from what it has.
constexpr double kAtBatsPerOutOrHit = 0.96;
constexpr double kBattersPerAtBatOrWalk = 1.06;
constexpr double kRunsPerEarnedRun = 1.08;

std::int32_t BatsCode(std::string_view bats) {
    return bats == "L" ? kLeftHand : bats == "B" ? kSwitchHitter : kRightHand;
}
std::int32_t ThrowsCode(std::string_view hand) {
    return hand == "L" ? kLeftHand : kRightHand;
}

auto KeyOf(const SpellKey& key) {
    return std::tie(key.yearID, key.teamID, key.playerID, key.stint);
}

// The rows of a sorted table with a key.
template <class Line>
std::pair<const Line*, const Line*> SpellRows(const std::vector<Line>& table, const SpellKey& spell) {
    const auto before = [](const SpellKey& a, const SpellKey& b) { return KeyOf(a) < KeyOf(b); };
    const auto first = std::lower_bound(table.begin(), table.end(), spell, before);
    const auto last = std::upper_bound(first, table.end(), spell, before);
    return {table.data() + (first - table.begin()), table.data() + (last - table.begin())};
}

// The rows of a club in a year.
template <class Line>
std::pair<const Line*, const Line*> TeamRows(const std::vector<Line>& table, const LahmanTeam& team) {
    const auto key = std::tie(team.yearID, team.LahmanTeamID);
    const auto first = std::lower_bound(table.begin(), table.end(), key, [](const SpellKey& line, const auto& wanted) {
        return std::tie(line.yearID, line.teamID) < wanted;
    });
    const auto last = std::upper_bound(first, table.end(), key, [](const auto& wanted, const SpellKey& line) {
        return wanted < std::tie(line.yearID, line.teamID);
    });
    return {table.data() + (first - table.begin()), table.data() + (last - table.begin())};
}

// Some years mark an unknown average with 9.99; none is above 1.
double OpponentAtBats(const LahmanPitchingLine& line) {
    const double average = line.BAOpp.value_or(0);
    const int H = line.H.value_or(0);
    if (average > 0 && average <= 1) return H / average;
    return (line.IPouts.value_or(0) + H) * kAtBatsPerOutOrHit;
}

std::optional<int> FilledIfZero(std::optional<int> count, double estimate) {
    if (!count || *count != 0) return count;
    return static_cast<int>(std::min(RoundHalfEven(estimate), 32767L));
}

struct OutfieldGames {
    std::string_view Pos;
    int G;
};

std::vector<OutfieldGames> OutfieldSplit(const LahmanTables& tables, const SpellKey& spell) {
    const auto before = [](const OutfieldLine& line, const SpellKey& wanted) {
        return std::tie(line.yearID, line.playerID, line.stint) <
               std::tie(wanted.yearID, wanted.playerID, wanted.stint);
    };
    const auto found = std::lower_bound(tables.FieldingOF.begin(), tables.FieldingOF.end(), spell, before);
    if (found != tables.FieldingOF.end() && found->yearID == spell.yearID && found->playerID == spell.playerID &&
        found->stint == spell.stint)
        return {{"LF", found->Glf.value_or(0)}, {"CF", found->Gcf.value_or(0)}, {"RF", found->Grf.value_or(0)}};
    std::vector<OutfieldGames> games{{"LF", 0}, {"CF", 0}, {"RF", 0}};
    const auto [first, last] = SpellRows(tables.FieldingOFSplit, spell);
    for (const OutfieldSplitLine* line = first; line != last; ++line)
        for (OutfieldGames& position : games)
            if (position.Pos == line->POS) position.G += line->G.value_or(0);
    return games;
}

}  // namespace

std::string_view PitcherTypes(int GS, int G) {
    if (100 * GS >= 67 * G) return "S";
    return 4 * GS <= G ? "R" : "SR";
}

RosterImporter::Person RosterImporter::PersonOf(const std::string& playerID) {
    const auto found =
        std::lower_bound(tables_.Master.begin(), tables_.Master.end(), playerID,
                         [](const PersonLine& line, const std::string& id) { return line.playerID < id; });
    if (found == tables_.Master.end() || found->playerID != playerID) {
        nameless_.insert(playerID);
        return {playerID, kRightHand, kRightHand};
    }
    const std::string name = found->nameFirst + " " + found->nameLast;
    return {std::string(Utf8Truncate(Trim(name), kLongestName)), BatsCode(found->bats), ThrowsCode(found->throws_)};
}

void RosterImporter::SetKeys(const SpellKey& spell, std::string& teamID, std::string& KorvTeamID) const {
    teamID = filter_.freeAgents ? kFreeAgentTeam : spell.teamID;
    KorvTeamID = filter_.freeAgents ? kFreeAgentTeam : team_->KorvTeamID;
}

TeamImport RosterImporter::Import(const LahmanTeam& team) {
    TeamImport result;
    team_ = &team;
    const auto [firstBatter, lastBatter] = TeamRows(tables_.Batting, team);
    for (const LahmanBattingLine* line = firstBatter; line != lastBatter; ++line) TakeBatter(*line, result);
    // Those whom the batting table lacks, as in seasons with the designated hitter.
    const auto [firstPitcher, lastPitcher] = TeamRows(tables_.Pitching, team);
    for (const LahmanPitchingLine* line = firstPitcher; line != lastPitcher; ++line) {
        std::string teamID, KorvTeamID;
        SetKeys(*line, teamID, KorvTeamID);
        if (pitchers_.contains({KorvTeamID, line->playerID})) continue;
        if (TakePitcher(*line, result)) TakeFielding(*line, result);
    }
    return result;
}

// One row of the batting table. A pitcher comes in by his innings or by his at bats, any other man by his at bats
// alone.
void RosterImporter::TakeBatter(const LahmanBattingLine& line, TeamImport& result) {
    const int AB = line.AB.value_or(0);
    const bool pitched = TakePitcher(line, result);
    if (AB <= filter_.minAB && !pitched) return;
    TakeFielding(line, result);
    AddBatter(line, result);
}

bool RosterImporter::TakePitcher(const SpellKey& spell, TeamImport& result) {
    const auto [first, last] = SpellRows(tables_.Pitching, spell);
    if (first == last || first->IPouts.value_or(0) <= filter_.minIPOuts) return false;
    AddPitcher(*first, result);
    return true;
}

void RosterImporter::AddPitcher(const LahmanPitchingLine& line, TeamImport& result) {
    const auto count = [](const Count& value) { return value.value_or(0); };
    LahmanPitchingRow row;
    row.playerID = line.playerID;
    row.lgID = line.lgID;
    SetKeys(line, row.teamID, row.KorvTeamID);
    row.yearID = line.yearID;
    row.stint = line.stint;
    row.W = count(line.W), row.L = count(line.L), row.G = count(line.G), row.GS = count(line.GS),
    row.CG = count(line.CG);
    row.SHO = count(line.SHO), row.SV = count(line.SV), row.IPouts = count(line.IPouts), row.H = count(line.H);
    row.ER = count(line.ER), row.HR = count(line.HR), row.BB = count(line.BB), row.SO = count(line.SO);
    row.IBB = line.IBB, row.WP = line.WP, row.HBP = line.HBP, row.BK = line.BK, row.GF = line.GF;
    row.ERA = line.ERA.value_or(0);
    row.OppAB = OpponentAtBats(line);
    row.BFP = FilledIfZero(line.BFP, (row.OppAB + row.BB) * kBattersPerAtBatOrWalk);
    row.R = FilledIfZero(line.R, row.ER * kRunsPerEarnedRun);

    const Person person = PersonOf(line.playerID);
    for (const char type : PitcherTypes(row.GS, row.G))
        result.pitchers.push_back({row.KorvTeamID, person.name, line.playerID, person.bats, person.throws_, type});
    pitchers_.emplace(row.KorvTeamID, line.playerID);
    result.pitching.push_back(std::move(row));
}

void RosterImporter::AddBatter(const LahmanBattingLine& line, TeamImport& result) {
    const auto count = [](const Count& value) { return value.value_or(0); };
    LahmanBattingRow row;
    row.playerID = line.playerID;
    row.lgID = line.lgID;
    SetKeys(line, row.teamID, row.KorvTeamID);
    row.yearID = line.yearID;
    row.stint = line.stint;
    row.G = count(line.G), row.AB = count(line.AB), row.R = count(line.R), row.H = count(line.H);
    row.Doubles = count(line.Doubles), row.Triples = count(line.Triples), row.HR = count(line.HR);
    row.RBI = count(line.RBI), row.SB = count(line.SB), row.BB = count(line.BB);
    row.CS = line.CS, row.SO = line.SO, row.IBB = line.IBB, row.HBP = line.HBP, row.SH = line.SH, row.SF = line.SF;
    row.GIDP = line.GIDP;
    // A pitcher who never batted has his line of statistics, but isn't one of the club's batters.
    if (row.AB > filter_.minAB) {
        const Person person = PersonOf(line.playerID);
        result.batters.push_back({row.KorvTeamID, person.name, line.playerID, person.bats});
    }
    result.batting.push_back(std::move(row));
}

void RosterImporter::TakeFielding(const SpellKey& spell, TeamImport& result) {
    const auto [first, last] = SpellRows(tables_.Fielding, spell);
    for (const LahmanFieldingLine* line = first; line != last; ++line) {
        if (line->POS == "DH") continue;
        if (line->POS == "OF") {
            TakeOutfield(spell, *line, result);
            continue;
        }
        LahmanFieldingRow& row = result.fielding.emplace_back();
        row.playerID = line->playerID;
        row.lgID = line->lgID;
        SetKeys(*line, row.teamID, row.KorvTeamID);
        row.Pos = line->POS;
        row.yearID = line->yearID;
        row.stint = line->stint;
        row.G = line->G.value_or(0), row.PO = line->PO.value_or(0), row.A = line->A.value_or(0);
        row.E = line->E.value_or(0), row.DP = line->DP.value_or(0), row.PB = line->PB.value_or(0);
    }
}

// The source tells the whole outfield's figures in one row: each field gets its share by games.
void RosterImporter::TakeOutfield(const SpellKey& spell, const LahmanFieldingLine& line, TeamImport& result) {
    const std::vector<OutfieldGames> split = OutfieldSplit(tables_, spell);
    const int all = split[0].G + split[1].G + split[2].G;
    if (all == 0) outfieldUnknown_.insert(line.playerID);
    for (const OutfieldGames& field : split) {
        if (field.G == 0) continue;
        const auto share = [&](const Count& count) { return static_cast<double>(count.value_or(0)) * field.G / all; };
        LahmanFieldingRow& row = result.fielding.emplace_back();
        row.playerID = line.playerID;
        row.lgID = line.lgID;
        SetKeys(line, row.teamID, row.KorvTeamID);
        row.Pos = field.Pos;
        row.yearID = line.yearID;
        row.stint = line.stint;
        row.G = field.G, row.PO = share(line.PO), row.A = share(line.A), row.E = share(line.E), row.DP = share(line.DP);
    }
}

}  // namespace tarvane
