#include <algorithm>
#include <array>
#include <functional>
#include <vector>

#include "manager/generate.h"
#include "manager/roster.h"

namespace tarvane {

namespace {

constexpr int kHitterColumns = 16;  // numbered from 1

struct HitterRow {
    int index = -1;  // in the roster
    std::int32_t playerID = 0;
    std::array<int, kHitterColumns> column{};
    std::vector<PositionRating> positions;  // in the order in which he is tried
    bool placed = false;
};

struct KeyRange {
    int first, last;
};

// The columns that a batting place is sorted on, main key first: places 1st, 2nd, 3rd and 4th, 5th, 6th and later;
// against left-handers, then right-handers.
constexpr KeyRange kPlainKeys[5][2] = {
    {{3, 3}, {8, 8}}, {{6, 6}, {11, 11}}, {{2, 4}, {7, 9}}, {{4, 6}, {9, 11}}, {{3, 5}, {8, 10}}};
constexpr KeyRange kUsageKeys[5][2] = {
    {{3, 4}, {10, 11}}, {{7, 7}, {14, 14}}, {{2, 5}, {9, 12}}, {{5, 8}, {13, 15}}, {{3, 5}, {8, 10}}};

KeyRange KeysOf(int place, bool vsRight, bool usage) {
    const int group = place <= 2 ? place - 1 : place <= 4 ? 2 : place == 5 ? 3 : 4;
    return (usage ? kUsageKeys : kPlainKeys)[group][vsRight ? 1 : 0];
}

// Hits, hits and walks, extra bases, home runs: the four measures of one chart.
std::array<int, 4> ChartMeasures(const BattingChances& c) {
    const double hit = c.Singles + c.Doubles + c.Triples + c.HR;
    return {Thousandths(hit), Thousandths(hit + c.BBorHBP), Thousandths(c.Doubles + c.Triples), Thousandths(c.HR)};
}

void FillColumns(HitterRow& row, const Batter& batter, const RealBatting* real) {
    const auto left = ChartMeasures(batter.vsLChance), right = ChartMeasures(batter.vsRChance);
    auto& column = row.column;
    column[1] = batter.playerID;
    column[2] = batter.runRating;
    if (real == nullptr) {
        std::copy(left.begin(), left.end(), column.begin() + 3);
        column[7] = batter.runRating;
        std::copy(right.begin(), right.end(), column.begin() + 8);
        return;
    }
    column[3] = column[8] = real->PAvsLeft;
    std::copy_n(left.begin(), 3, column.begin() + 4);
    column[7] = real->HRvsLeft;
    column[9] = batter.runRating;
    column[10] = column[15] = real->PAvsRight;
    std::copy_n(right.begin(), 3, column.begin() + 11);
    column[14] = real->HRvsRight;
}

// A man's positions by real games where these decide, else by rating; the order of the record parts equals.
std::vector<PositionRating> PositionsOf(const Batter& batter, const RealBatting* real) {
    std::vector<PositionRating> positions;
    for (const PositionRating& entry : batter.Pos)
        if (entry.position != Position::None) positions.push_back(entry);
    std::stable_sort(positions.begin(), positions.end(), [real](const PositionRating& a, const PositionRating& b) {
        if (real == nullptr) return a.rating > b.rating;
        return real->gamesAt[static_cast<std::size_t>(a.position)] >
               real->gamesAt[static_cast<std::size_t>(b.position)];
    });
    return positions;
}

std::vector<HitterRow> HitterTable(const TeamRoster& roster, const GenerateOptions& options, const RealUse* real) {
    std::vector<HitterRow> table;
    for (std::size_t i = 0; i < roster.batters.size(); ++i) {
        const Batter& batter = roster.batters[i];
        if (batter.NoLongerWithTeam || (options.ignoreInactive && !CanPlay(batter))) continue;
        const RealBatting* known = real ? &real->BatterAt(static_cast<int>(i)) : nullptr;
        HitterRow row;
        row.index = static_cast<int>(i);
        row.playerID = batter.playerID;
        FillColumns(row, batter, known);
        row.positions = PositionsOf(batter, known);
        table.push_back(std::move(row));
    }
    return table;
}

void SortTable(std::vector<HitterRow>& table, KeyRange keys) {
    std::sort(table.begin(), table.end(), [keys](const HitterRow& a, const HitterRow& b) {
        for (auto k = static_cast<std::size_t>(keys.first); k <= static_cast<std::size_t>(keys.last); ++k)
            if (a.column[k] != b.column[k]) return a.column[k] > b.column[k];
        return a.playerID < b.playerID;
    });
}

// One line-up in the making: the positions still open, and the men placed by batting slot.
struct LineupDraft {
    std::vector<Position> open;
    std::array<HitterRow*, 9> man{};
    std::array<Position, 9> position{};
    int places = 9;

    bool TakeOpen(Position wanted) {
        const auto found = std::find(open.begin(), open.end(), wanted);
        if (found == open.end()) return false;
        open.erase(found);
        return true;
    }
};

Position FirstOpenFor(LineupDraft& draft, const HitterRow& row) {
    for (const PositionRating& entry : row.positions)
        if (draft.TakeOpen(entry.position)) return entry.position;
    return draft.TakeOpen(Position::DH) ? Position::DH : Position::None;
}

int RatingOf(const HitterRow& row, Position position) {
    for (const PositionRating& entry : row.positions)
        if (entry.position == position) return entry.rating;
    return 0;
}

// A DH who fields his best position better than the man who stands there changes places with him.
void SwapInBetterFielder(LineupDraft& draft) {
    for (std::size_t dh = 0; dh < 9; ++dh) {
        if (draft.position[dh] != Position::DH || draft.man[dh]->positions.empty()) continue;
        const PositionRating best = draft.man[dh]->positions.front();
        for (std::size_t slot = 0; slot < 9; ++slot) {
            if (draft.position[slot] != best.position || !draft.man[slot]) continue;
            if (RatingOf(*draft.man[slot], best.position) >= best.rating) continue;
            draft.position[slot] = Position::DH;
            draft.position[dh] = best.position;
            return;
        }
        return;
    }
}

// Real use names the regulars before speed or power may order them: a man who came to bat less than half as often as
// the ninth busiest waits until no regular fits. Without real use everybody counts as one.
int RegularBound(const std::vector<HitterRow>& rows, bool vsRight, bool usage) {
    constexpr std::size_t kNinth = 8;
    if (!usage || rows.size() <= kNinth) return 0;
    std::vector<int> times;
    for (const HitterRow& row : rows) times.push_back(row.column[vsRight ? 10 : 3]);
    std::nth_element(times.begin(), times.begin() + kNinth, times.end(), std::greater<>());
    return times[kNinth] / 2;
}

// The first man of the sorted table who isn't placed and fits; his position is taken. Null if nobody fits.
HitterRow* FirstFit(LineupDraft& draft, std::vector<HitterRow>& rows, std::size_t timesColumn, int bound,
                    Position& at) {
    for (const bool regulars : {true, false})
        for (HitterRow& row : rows) {
            if (row.placed || (row.column[timesColumn] >= bound) != regulars) continue;
            at = FirstOpenFor(draft, row);
            if (at != Position::None) return &row;
        }
    return nullptr;
}

// The table is put in order anew for each place, so the men are remembered by index until the last sort is done.
void FillDraft(LineupDraft& draft, std::vector<HitterRow>& rows, bool vsRight, bool usage) {
    std::array<int, 9> chosen{};  // roster index by slot
    chosen.fill(-1);
    for (HitterRow& row : rows) row.placed = false;
    const int bound = RegularBound(rows, vsRight, usage);
    for (int place = 1; place <= draft.places; ++place) {
        const auto slot = static_cast<std::size_t>(place - 1);
        SortTable(rows, KeysOf(place, vsRight, usage));
        Position at = Position::None;
        HitterRow* row = FirstFit(draft, rows, vsRight ? 10 : 3, bound, at);
        if (row == nullptr) continue;
        row->placed = true;
        draft.position[slot] = at;
        chosen[slot] = row->index;
    }
    for (std::size_t slot = 0; slot < static_cast<std::size_t>(draft.places); ++slot) {
        if (chosen[slot] >= 0) continue;
        const auto row = std::find_if(rows.begin(), rows.end(), [](const HitterRow& r) { return !r.placed; });
        if (row == rows.end() || draft.open.empty()) break;
        row->placed = true;
        chosen[slot] = row->index;
        draft.position[slot] = draft.open.front();
        draft.open.erase(draft.open.begin());
    }
    for (std::size_t slot = 0; slot < 9; ++slot)
        for (HitterRow& row : rows)
            if (row.index == chosen[slot]) draft.man[slot] = &row;
}

void WriteLineup(LineupList& list, const LineupDraft& draft, const char* name, bool vsRight) {
    list.LineupName = name;
    list.BattingvsL = vsRight ? 0 : -1;
    list.BattingvsR = vsRight ? -1 : 0;
    list.slot = {};
    for (std::size_t slot = 0; slot < 9; ++slot)
        if (draft.man[slot]) list.slot[slot] = {draft.man[slot]->playerID, draft.position[slot], 'B'};
    if (draft.places == 8) list.slot[8] = {0, Position::P, 'P'};
}

void ClearLineup(LineupList& list) {
    list.LineupName.clear();
    list.BattingvsL = list.BattingvsR = 0;
    list.slot = {};
    list.playerIDP = 0;
}

void GenerateLineups(TeamRoster& roster, std::vector<HitterRow>& rows, DHLists kind, bool usage) {
    for (int number = 1; number <= 4; ++number) ClearLineup(EnsureList(roster, 'L', Position::None, number));
    int number = 1;
    for (const bool dh : {true, false}) {
        if (kind != DHLists::Both && (kind == DHLists::DH) != dh) continue;
        for (const bool vsRight : {false, true}) {
            LineupDraft draft;
            draft.open = {Position::C,  Position::B1, Position::B2, Position::B3,
                          Position::SS, Position::LF, Position::CF, Position::RF};
            if (dh) draft.open.push_back(Position::DH);
            draft.places = dh ? 9 : 8;
            FillDraft(draft, rows, vsRight, usage);
            if (dh) SwapInBetterFielder(draft);
            WriteLineup(EnsureList(roster, 'L', Position::None, number++), draft, kGeneratedNames[dh ? 0 : 1][vsRight],
                        vsRight);
        }
    }
}

// How a depth chart ranks a man: fielders by rating (by games where real use decides), DH and PH by the bat.
struct DepthRow {
    std::int32_t playerID = 0;
    double first = 0;
    int second = 0;
    bool regular = false;
};

bool Regular(const TeamRoster& roster, std::int32_t playerID) {
    int lists = 0, regular = 0;
    for (const LineupList& list : roster.lists) {
        if (list.LineupType != 'L' || list.LineupName.rfind("#1 vs ", 0) != 0) continue;
        ++lists;
        for (const ListSlot& slot : list.slot)
            if (slot.PlayerType == 'B' && slot.playerID == playerID) ++regular;
    }
    return lists > 0 && regular == lists;
}

std::vector<DepthRow> DepthRows(const TeamRoster& roster, const std::vector<HitterRow>& rows, Position position,
                                const RealUse* real) {
    std::vector<DepthRow> men;
    for (const HitterRow& row : rows) {
        const Batter& batter = roster.batters[static_cast<std::size_t>(row.index)];
        const RealBatting* known = real ? &real->BatterAt(row.index) : nullptr;
        DepthRow man{row.playerID, 0, OnBase(batter), false};
        if (position == Position::DH || position == Position::PH) {
            if (known && position == Position::DH) man.first = known->PAvsLeft + known->PAvsRight;
            man.regular = position == Position::PH && Regular(roster, row.playerID);
        } else {
            const PositionRating* entry = RatingAt(batter, position);
            if (!entry) continue;
            man.first = known ? known->gamesAt[static_cast<std::size_t>(position)] : entry->rating;
        }
        men.push_back(man);
    }
    return men;
}

// A pinch hitter must come from the bench: men who start every day stand behind it on that chart.
void GenerateDepth(TeamRoster& roster, const std::vector<HitterRow>& rows, const RealUse* real) {
    for (const Position position : kDepthPositions) {
        std::vector<DepthRow> men = DepthRows(roster, rows, position, real);
        std::sort(men.begin(), men.end(), [](const DepthRow& a, const DepthRow& b) {
            if (a.regular != b.regular) return b.regular;
            if (a.first != b.first) return a.first > b.first;
            if (a.second != b.second) return a.second > b.second;
            return a.playerID < b.playerID;
        });
        LineupList& list = EnsureList(roster, 'D', position);
        list.slot = {};
        for (std::size_t i = 0; i < men.size() && i < kDepthMen; ++i) list.slot[i] = {men[i].playerID, position, 'B'};
    }
}

}  // namespace

void GenerateHitters(TeamRoster& roster, const GenerateOptions& options, const RealUse* real, bool usage) {
    std::vector<HitterRow> rows = HitterTable(roster, options, usage ? real : nullptr);
    if (options.lineups != DHLists::None) GenerateLineups(roster, rows, options.lineups, usage);
    if (options.depth) GenerateDepth(roster, rows, usage ? real : nullptr);
}

}  // namespace tarvane
