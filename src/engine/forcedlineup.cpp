#include <algorithm>
#include <vector>

#include "engine/availability.h"
#include "engine/step.h"

namespace tarvane {

namespace {

// The line-up under repair. A man can be taken once; one who has just been taken out of the order is out of the game.
struct Repair {
    const GameData& data;
    const GameState& state;
    LineupInput& lineup;

    const TeamData& team() const { return data[lineup.side]; }

    bool Taken(PlayerRef man) const {
        const auto same = [&](PlayerRef other) { return SameMan(team(), man, other); };
        const auto& order = state[lineup.side].lineup;
        return same(lineup.pitcher) || std::any_of(lineup.player.begin(), lineup.player.end(), same) ||
               std::any_of(order.begin(), order.end(), [&](const LineupSlot& slot) { return same(slot.player); });
    }
};

bool HasPlace(Position position) {
    return IsFielder(position) || position == Position::DH;
}

int RecordsOf(const TeamRoster& roster, char type) {
    return static_cast<int>(
        std::min<std::size_t>(type == 'P' ? roster.pitchers.size() : roster.batters.size(), kMaxRosterRecords));
}

bool RatedAt(const TeamRoster& roster, PlayerRef man, Position position) {
    const auto rated = [&](const auto& record) {
        return std::any_of(record.Pos.begin(), record.Pos.end(),
                           [&](const PositionRating& p) { return p.position == position; });
    };
    const auto index = static_cast<std::size_t>(man.index);
    return man.type == 'P' ? rated(roster.pitchers[index]) : rated(roster.batters[index]);
}

// The first man of the bench for a position: one who is rated there, or, if anyone will do, whoever comes first.
PlayerRef BenchMan(const Repair& repair, Position position, bool anyone) {
    const TeamRoster& roster = repair.team().roster;
    for (const char type : {'B', 'P'}) {
        for (int i = 0; i < RecordsOf(roster, type); ++i) {
            const PlayerRef man{type, static_cast<std::int16_t>(i)};
            if (!anyone && !RatedAt(roster, man, position)) continue;
            if (repair.Taken(man)) continue;
            if (CheckEntering(repair.data, repair.state, repair.lineup.side, man) == Reject::None) return man;
        }
    }
    return {};
}

PlayerRef FirstReliever(const Repair& repair) {
    const auto& pitchers = repair.team().roster.pitchers;
    for (const char role : {'R', 'S'}) {
        for (int i = 0; i < RecordsOf(repair.team().roster, 'P'); ++i) {
            const PlayerRef man{'P', static_cast<std::int16_t>(i)};
            if (pitchers[static_cast<std::size_t>(i)].pitcherType != role || repair.Taken(man)) continue;
            if (CheckEnteringPitcher(repair.data, repair.state, repair.lineup.side, man) == Reject::None) return man;
        }
    }
    return {};
}

bool NeedsPitcher(const Repair& repair) {
    const LineupInput& lineup = repair.lineup;
    const TeamState& team = repair.state[lineup.side];
    if (lineup.pitcher.Nobody()) return true;
    const int used = team.box.PitchersUsed;
    if (used > 0 && team.box.pitching[static_cast<std::size_t>(used) - 1].MustBeReplaced) return true;
    const bool inField = lineup.side == repair.state.FieldingSide();
    return inField && !repair.data.DHUsed &&
           std::find(lineup.position.begin(), lineup.position.end(), Position::P) == lineup.position.end();
}

// The places in the field, and the DH's, that nobody in the order holds; the pitcher's is looked at apart.
std::vector<Position> OpenPositions(const Repair& repair) {
    std::vector<Position> open;
    for (int p = static_cast<int>(Position::C); p <= static_cast<int>(Position::DH); ++p) {
        const auto position = static_cast<Position>(p);
        if (position == Position::DH && !repair.data.DHUsed) continue;
        const auto& stand = repair.lineup.position;
        if (std::find(stand.begin(), stand.end(), position) == stand.end()) open.push_back(position);
    }
    return open;
}

bool FitsAnOpenPosition(const Repair& repair, PlayerRef man) {
    const std::vector<Position> open = OpenPositions(repair);
    return std::any_of(open.begin(), open.end(),
                       [&](Position position) { return RatedAt(repair.team().roster, man, position); });
}

// Where the new pitcher bats: in the old one's slot, or in that of a man without a place, if it can be one whom no open
// position needs.
std::size_t PitchersSlot(const Repair& repair) {
    const LineupInput& lineup = repair.lineup;
    const auto pitchers = std::find(lineup.position.begin(), lineup.position.end(), Position::P);
    if (pitchers != lineup.position.end()) return static_cast<std::size_t>(pitchers - lineup.position.begin());
    std::size_t open = 0;
    for (std::size_t i = lineup.position.size(); i-- > 0;) {
        if (HasPlace(lineup.position[i])) continue;
        open = i;
        if (lineup.player[i].Nobody() || !FitsAnOpenPosition(repair, lineup.player[i])) return i;
    }
    return open;
}

bool BringPitcher(Repair& repair) {
    const PlayerRef man = FirstReliever(repair);
    if (man.Nobody()) return false;
    repair.lineup.pitcher = man;
    if (repair.data.DHUsed) return true;
    const std::size_t slot = PitchersSlot(repair);
    repair.lineup.player[slot] = man;
    repair.lineup.position[slot] = Position::P;
    return true;
}

// The man hurt is replaced at his own position.
bool FillEmptySlots(Repair& repair) {
    for (std::size_t i = 0; i < repair.lineup.player.size(); ++i) {
        if (!repair.lineup.player[i].Nobody()) continue;
        const Position position = repair.state.awaited.position;
        PlayerRef man = BenchMan(repair, position, false);
        if (man.Nobody()) man = BenchMan(repair, position, true);
        if (man.Nobody()) return false;
        repair.lineup.player[i] = man;
        repair.lineup.position[i] = position;
    }
    return true;
}

// Pinch hitters and runners take the positions that their own ratings fit; each place left goes to a man of the bench
// who is rated there, and failing him to whoever is in the order without a place.
void FillPositions(Repair& repair) {
    LineupInput& lineup = repair.lineup;
    for (const bool byRating : {true, false}) {
        for (const Position position : OpenPositions(repair)) {
            for (std::size_t i = 0; i < lineup.position.size(); ++i) {
                if (HasPlace(lineup.position[i])) continue;
                const bool rated = RatedAt(repair.team().roster, lineup.player[i], position);
                if (byRating && !rated) continue;
                const PlayerRef bench = byRating ? PlayerRef{} : BenchMan(repair, position, false);
                if (!bench.Nobody()) lineup.player[i] = bench;
                lineup.position[i] = position;
                break;
            }
        }
    }
}

}  // namespace

bool Manager::ForcedLineup(const GameData& data, const GameState& state, Side side, LineupInput& lineup) {
    const TeamState& team = state[side];
    lineup.side = side;
    lineup.pitcher = team.pitcher;
    for (std::size_t i = 0; i < team.lineup.size(); ++i) {
        lineup.player[i] = team.lineup[i].player;
        lineup.position[i] = team.lineup[i].position;
    }
    Repair repair{data, state, lineup};
    if (NeedsPitcher(repair) && !BringPitcher(repair)) return false;
    if (!FillEmptySlots(repair)) return false;
    if (side == state.FieldingSide()) FillPositions(repair);
    return CheckLineupChange(data, state, lineup) == Reject::None;
}

}  // namespace tarvane
