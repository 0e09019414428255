#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <vector>

#include "manager/generate.h"
#include "manager/roster.h"

namespace tarvane {

namespace {

struct PitcherRow {
    std::int32_t playerID = 0;
    char pitcherType = 'S';
    std::string name;
    std::array<int, 4>
        column{};  // chart: outs, home runs taken, hits and walks, home runs given; real: GS, IPOuts, G, SV
};

enum RealColumn : std::size_t { kGS, kIPOuts, kGames, kSaves };

std::vector<PitcherRow> PitcherTable(const TeamRoster& roster, const GenerateOptions& options, const RealUse* real) {
    std::vector<PitcherRow> table;
    for (std::size_t i = 0; i < roster.pitchers.size(); ++i) {
        const Pitcher& pitcher = roster.pitchers[i];
        if (pitcher.NoLongerWithTeam || (options.ignoreInactive && !CanPlay(pitcher))) continue;
        PitcherRow row{pitcher.playerID, pitcher.pitcherType, pitcher.playerName, {}};
        if (real) {
            const RealPitching& known = real->PitcherAt(static_cast<int>(i));
            row.column = {known.GS, known.IPOuts, known.G, known.SV};
        } else {
            row.column = {OutShare(pitcher), Thousandths(pitcher.chance.HRReduce),
                          Thousandths(pitcher.chance.AllowHit + pitcher.chance.BBorHBP),
                          Thousandths(pitcher.chance.HRIncrease)};
        }
        table.push_back(std::move(row));
    }
    return table;
}

// Sorts on the columns in the order named, descending.
void SortPitchers(std::vector<PitcherRow>& table, std::initializer_list<std::size_t> keys) {
    std::sort(table.begin(), table.end(), [keys](const PitcherRow& a, const PitcherRow& b) {
        for (const std::size_t key : keys)
            if (a.column[key] != b.column[key]) return a.column[key] > b.column[key];
        return a.playerID < b.playerID;
    });
}

// The first men of a role whose names aren't taken, and takes their names.
std::vector<PitcherRow> TakeMen(const std::vector<PitcherRow>& table, char role, std::size_t most,
                                std::set<std::string>& taken, bool skipZero = false) {
    std::vector<PitcherRow> men;
    for (const PitcherRow& row : table) {
        if (men.size() == most) break;
        if (row.pitcherType != role || (skipZero && row.column[0] == 0)) continue;
        if (taken.insert(row.name).second) men.push_back(row);
    }
    return men;
}

void WriteMen(LineupList& list, const std::vector<PitcherRow>& men) {
    list.slot = {};
    for (std::size_t i = 0; i < men.size(); ++i) list.slot[i] = {men[i].playerID, Position::P, 'P'};
}

std::size_t CountMen(const std::vector<PitcherRow>& table, char role, std::set<std::string> taken) {
    std::size_t count = 0;
    for (const PitcherRow& row : table)
        if (row.pitcherType == role && taken.insert(row.name).second) ++count;
    return count;
}

// A staff of starters only: those of them with a relief record fill the pen to its least size, the last one first; then,
// as in the years when there were no relievers, starters outside the rotation and at last its own last men.
void AddSpareRelievers(std::vector<PitcherRow>& relievers, const std::vector<PitcherRow>& table,
                       const std::vector<PitcherRow>& rotation, std::size_t least) {
    const auto add = [&](const PitcherRow& row) {
        const auto same = [&row](const PitcherRow& man) { return man.name == row.name; };
        if (relievers.size() < least && std::none_of(relievers.begin(), relievers.end(), same)) relievers.push_back(row);
    };
    const auto starts = [&](const PitcherRow& row) {
        return std::any_of(rotation.begin(), rotation.end(), [&](const PitcherRow& man) { return man.name == row.name; });
    };
    for (auto row = table.rbegin(); row != table.rend(); ++row)
        if (row->pitcherType == 'R') add(*row);
    for (const PitcherRow& row : table)
        if (row.pitcherType == 'S' && !starts(row)) add(row);
    for (auto row = rotation.rbegin(); row != rotation.rend(); ++row) add(*row);
}

}  // namespace

void GeneratePitchers(TeamRoster& roster, const GenerateOptions& options, const RealUse* real, bool usage) {
    constexpr std::size_t kMen = kDepthMen, kLeastRelievers = 2;
    std::vector<PitcherRow> table = PitcherTable(roster, options, usage ? real : nullptr);
    std::set<std::string> taken;  // a starter who also relieves has two records and stands in one list

    SortPitchers(table, {0, 1, 2, 3});
    const auto starters = TakeMen(table, 'S', kMen, taken, usage);
    if (options.starters) WriteMen(EnsureList(roster, 'S'), starters);

    // The closers are the busiest third of the pen, the man with the saves first among them: more of them would leave
    // the other innings to the men who really pitched least.
    constexpr std::size_t kPenPerCloser = 3;
    const std::size_t most = std::min(kMen, CountMen(table, 'R', taken) / kPenPerCloser);
    if (usage) SortPitchers(table, {kGames, kSaves, kIPOuts});
    auto closers = TakeMen(table, 'R', most, taken);
    if (usage) SortPitchers(closers, {kSaves, kGames, kIPOuts});
    if (options.closers) WriteMen(EnsureList(roster, 'C'), closers);

    if (usage) SortPitchers(table, {kGames, kIPOuts, kSaves});
    auto relievers = TakeMen(table, 'R', kMen, taken);
    if (relievers.size() < kLeastRelievers) AddSpareRelievers(relievers, table, starters, kLeastRelievers);
    if (options.relievers) WriteMen(EnsureList(roster, 'R'), relievers);
}

}  // namespace tarvane
