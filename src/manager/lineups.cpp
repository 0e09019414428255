#include "manager/lineups.h"

#include <algorithm>
#include <array>
#include <tuple>

#include <fmt/core.h>

#include "manager/roster.h"

namespace tarvane {

namespace {

// A nine in the making. Positions are settled first; the order of the list, or of merit, follows.
struct Nine {
    std::array<PlayerRef, 9> man{};
    std::array<Position, 9> position{};

    PlayerRef starter;  // pitches whether he stands in the order or not; as DH he may bat under his other record

    bool Holds(const TeamRoster& roster, PlayerRef player, Position at) const {
        if (at != Position::DH && SamePerson(roster, starter, player)) return true;
        return std::any_of(man.begin(), man.end(), [&](PlayerRef m) { return SamePerson(roster, m, player); });
    }
    bool HasPosition(Position wanted) const {
        return std::find(position.begin(), position.end(), wanted) != position.end();
    }
};

std::vector<Position> PositionsWanted(bool dhUsed) {
    return {Position::C,  Position::SS, Position::CF,
            Position::B2, Position::B3, Position::LF,
            Position::RF, Position::B1, dhUsed ? Position::DH : Position::P};
}

const LineupList* StoredLineup(const TeamRoster& roster, const LineupRequest& request) {
    for (const LineupList& list : roster.lists)
        if (request.scheduledLineup != 0 && list.LineupType == 'L' && list.lineupID == request.scheduledLineup)
            return &list;
    for (const LineupList& list : roster.lists) {
        if (list.LineupType != 'L' || HasDH(list) != request.dhUsed) continue;
        if ((request.opponentThrowsLeft ? list.BattingvsL : list.BattingvsR) != 0) return &list;
    }
    return nullptr;
}

// The men of the stored list who can play, each in his slot; the pitcher's slot takes the starter. Holes stay open.
void PlaceListed(const TeamRoster& roster, const LineupList& list, const LineupRequest& request, Nine& nine,
                 std::vector<std::string>& messages) {
    const std::vector<Position> wanted = PositionsWanted(request.dhUsed);
    for (std::size_t slot = 0; slot < 9; ++slot) {
        Position at = list.slot[slot].position;
        if (request.dhUsed && at == Position::P) at = Position::DH;
        if (std::find(wanted.begin(), wanted.end(), at) == wanted.end() || nine.HasPosition(at)) continue;
        nine.position[slot] = at;
        if (at == Position::P) {
            nine.man[slot] = nine.starter;
            continue;
        }
        const PlayerRef man = ManInSlot(roster, list.slot[slot]);
        if (man.type == 'B' && CanPlay(roster, man) && !nine.Holds(roster, man, at)) {
            nine.man[slot] = man;
        } else if (!man.Nobody() && !CanPlay(roster, man)) {
            messages.push_back(
                fmt::format("{} is inactive and has been replaced by Computer Manager.", NameOf(roster, man)));
        }
    }
}

PlayerRef FirstOfDepth(const TeamRoster& roster, const Nine& nine, Position position) {
    const LineupList* depth = FindList(roster, 'D', position);
    if (!depth) return {};
    for (const ListSlot& slot : depth->slot) {
        const PlayerRef man = ManInSlot(roster, slot);
        if (man.type == 'B' && CanPlay(roster, man) && !nine.Holds(roster, man, position)) return man;
    }
    return {};
}

// --- filling by the men's own positions ---

int PlaceOf(const Batter& batter, Position position) {
    for (std::size_t i = 0; i < batter.Pos.size(); ++i)
        if (batter.Pos[i].position == position) return static_cast<int>(i);
    return -1;
}

// The free men who know a position: those who played it most first (it stands earlier among their positions), the
// better glove and then the better bat parting them.
std::vector<int> CandidatesAt(const TeamRoster& roster, const Nine& nine, Position position) {
    std::vector<int> men;
    for (std::size_t i = 0; i < roster.batters.size(); ++i) {
        const PlayerRef man{'B', static_cast<std::int16_t>(i)};
        if (!CanPlay(roster.batters[i]) || nine.Holds(roster, man, position)) continue;
        if (position == Position::DH || PlaceOf(roster.batters[i], position) >= 0) men.push_back(static_cast<int>(i));
    }
    const auto key = [&roster, position](int index) {
        const Batter& batter = roster.batters[static_cast<std::size_t>(index)];
        const PositionRating* entry = RatingAt(batter, position);
        return std::make_tuple(entry ? PlaceOf(batter, position) : 0, entry ? -entry->rating : 0, -OnBase(batter),
                               batter.playerID);
    };
    std::sort(men.begin(), men.end(), [&key](int a, int b) { return key(a) < key(b); });
    return men;
}

// Who stands where, by a search that moves men between positions they know until nobody can be fitted in any more.
class Fitting {
  public:
    Fitting(const TeamRoster& roster, const Nine& nine, const std::vector<Position>& open) : holder_(open.size(), -1) {
        for (const Position position : open) candidates_.push_back(CandidatesAt(roster, nine, position));
        for (std::size_t place = 0; place < open.size(); ++place) {
            std::vector<bool> tried(open.size(), false);
            Fit(place, tried);
        }
    }
    int HolderOf(std::size_t place) const { return holder_[place]; }

  private:
    bool Fit(std::size_t place, std::vector<bool>& tried) {
        tried[place] = true;
        for (const int man : candidates_[place]) {
            const auto at = std::find(holder_.begin(), holder_.end(), man);
            const auto his = static_cast<std::size_t>(at - holder_.begin());
            if (at != holder_.end() && (tried[his] || !Fit(his, tried))) continue;
            holder_[place] = man;
            return true;
        }
        return false;
    }

    std::vector<std::vector<int>> candidates_;
    std::vector<int> holder_;
};

// Anybody who can stand up: the best bat left, out of position, then a pitcher other than the starter.
PlayerRef AnyMan(const TeamRoster& roster, const Nine& nine, Position at) {
    PlayerRef best;
    for (std::size_t i = 0; i < roster.batters.size(); ++i) {
        const PlayerRef man{'B', static_cast<std::int16_t>(i)};
        if (!CanPlay(roster, man) || nine.Holds(roster, man, at)) continue;
        const bool better =
            best.Nobody() || OnBase(roster.batters[i]) > OnBase(roster.batters[static_cast<std::size_t>(best.index)]);
        if (better) best = man;
    }
    for (std::size_t i = 0; best.Nobody() && i < roster.pitchers.size(); ++i) {
        const PlayerRef man{'P', static_cast<std::int16_t>(i)};
        if (CanPlay(roster, man) && !nine.Holds(roster, man, Position::P)) best = man;
    }
    return best;
}

void FillOpen(const TeamRoster& roster, Nine& nine) {
    std::vector<std::size_t> slots;
    std::vector<Position> open;
    for (const Position position : PositionsWanted(true))  // scarce positions first
        for (std::size_t slot = 0; slot < 9; ++slot)
            if (nine.man[slot].Nobody() && nine.position[slot] == position) {
                slots.push_back(slot);
                open.push_back(position);
            }
    const Fitting fitting(roster, nine, open);
    for (std::size_t i = 0; i < open.size(); ++i) {
        const PlayerRef man{'B', static_cast<std::int16_t>(fitting.HolderOf(i))};
        if (!nine.Holds(roster, man, open[i])) nine.man[slots[i]] = man;
    }
    for (const std::size_t slot : slots)
        if (nine.man[slot].Nobody()) nine.man[slot] = AnyMan(roster, nine, nine.position[slot]);
}

// Positions that no slot holds go to the slots without one, the pitcher last in the order.
void SettlePositions(Nine& nine, bool dhUsed) {
    std::size_t slot = 0;
    for (const Position position : PositionsWanted(dhUsed)) {
        if (nine.HasPosition(position)) continue;
        while (nine.position[slot] != Position::None) ++slot;
        nine.position[slot] = position;
        if (position == Position::P) nine.man[slot] = nine.starter;
    }
}

// A nine without a stored order bats by how often its men reach base, the pitcher ninth.
void OrderByMerit(const TeamRoster& roster, Nine& nine) {
    const auto merit = [&roster](PlayerRef man) {
        return man.type == 'B' && !man.Nobody() ? OnBase(roster.batters[static_cast<std::size_t>(man.index)]) : -1;
    };
    std::array<std::size_t, 9> order{0, 1, 2, 3, 4, 5, 6, 7, 8};
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return merit(nine.man[a]) > merit(nine.man[b]); });
    const Nine before = nine;
    for (std::size_t slot = 0; slot < 9; ++slot) {
        nine.man[slot] = before.man[order[slot]];
        nine.position[slot] = before.position[order[slot]];
    }
}

}  // namespace

bool HasDH(const LineupList& list) {
    return std::any_of(list.slot.begin(), list.slot.end(),
                       [](const ListSlot& s) { return s.position == Position::DH; });
}

ChosenLineup ChooseLineup(const TeamRoster& roster, const LineupRequest& request) {
    ChosenLineup choice;
    const PlayerRef starter{'P', static_cast<std::int16_t>(request.pitcher)};
    const LineupList* list = StoredLineup(roster, request);
    Nine nine;
    nine.starter = starter;
    if (list) PlaceListed(roster, *list, request, nine, choice.messages);
    SettlePositions(nine, request.dhUsed);
    for (std::size_t slot = 0; list && slot < 9; ++slot)
        if (nine.man[slot].Nobody()) nine.man[slot] = FirstOfDepth(roster, nine, nine.position[slot]);
    FillOpen(roster, nine);
    if (!list) OrderByMerit(roster, nine);
    choice.lineup.side = request.side;
    choice.lineup.player = nine.man;
    choice.lineup.position = nine.position;
    choice.lineup.pitcher = starter;
    for (const PlayerRef man : nine.man)
        if (man.Nobody())
            choice.trouble = fmt::format("{} has fewer than nine healthy players for a game.", roster.team.fullName);
    if (starter.Nobody()) choice.trouble = fmt::format("{} has no pitcher who can start.", roster.team.fullName);
    return choice;
}

}  // namespace tarvane
