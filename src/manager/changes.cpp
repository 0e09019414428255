#include "manager/changes.h"

#include <algorithm>
#include <tuple>

#include "engine/availability.h"
#include "engine/step.h"
#include "manager/roster.h"

namespace tarvane {

namespace {

constexpr std::size_t kSlots = 9;
constexpr int kRated = 1000;  // what being rated somewhere is worth: more than any difference of ratings

bool HasPlace(Position position) {
    return IsFielder(position) || position == Position::DH;
}

std::optional<LineupInput> IfLegal(const GameData& data, const GameState& state, const LineupInput& lineup) {
    if (CheckLineupChange(data, state, lineup) != Reject::None) return std::nullopt;
    return lineup;
}

// How well a man stands at a position; a man who isn't rated there is worth nothing beside one who is.
int WorthAt(const TeamRoster& roster, PlayerRef man, Position position) {
    if (position == Position::DH) return kRated + (man.type == 'B' ? 1 : 0);
    const PositionRating* rating = RatingAt(roster, man, position);
    return rating ? kRated + rating->rating : 0;
}

// The places of a game that the slots other than the pitcher's fill.
std::vector<Position> PlacesOf(bool dhUsed) {
    std::vector<Position> places;
    for (int p = static_cast<int>(Position::C); p <= static_cast<int>(Position::RF); ++p)
        places.push_back(static_cast<Position>(p));
    if (dhUsed) places.push_back(Position::DH);
    return places;
}

// Fills the open places of one line-up.
class Defence {
  public:
    Defence(const GameData& data, const GameState& state, LineupInput& lineup)
        : data_(data), roster_(data[lineup.side].roster), lineup_(lineup) {
        for (const PlayerRef man : Bench(data, state, lineup.side))
            if (!Taken(man)) bench_.push_back(man);
    }

    void Fill() {
        if (Open().empty()) return;
        if (!FillOpenPlaces()) Rearrange();
    }

  private:
    bool Taken(PlayerRef man) const {
        const TeamData& team = data_[lineup_.side];
        if (SameMan(team, man, lineup_.pitcher)) return true;
        return std::any_of(lineup_.player.begin(), lineup_.player.end(),
                           [&](PlayerRef other) { return SameMan(team, man, other); });
    }

    std::vector<Position> Open() const {
        std::vector<Position> open;
        for (const Position place : PlacesOf(data_.DHUsed)) {
            const auto& held = lineup_.position;
            if (std::find(held.begin(), held.end(), place) == held.end()) open.push_back(place);
        }
        return open;
    }

    std::vector<std::size_t> Placeless() const {
        std::vector<std::size_t> slots;
        for (std::size_t slot = 0; slot < kSlots; ++slot)
            if (!HasPlace(lineup_.position[slot])) slots.push_back(slot);
        return slots;
    }

    // The best man for the place in this slot: its own, or, if he isn't rated there, one of the bench who is.
    PlayerRef ManFor(std::size_t slot, Position place) const {
        PlayerRef best = lineup_.player[slot];
        if (!best.Nobody() && WorthAt(roster_, best, place) > 0) return best;
        int worth = 0;
        for (const PlayerRef man : bench_) {
            if (Taken(man) || WorthAt(roster_, man, place) <= worth) continue;
            worth = WorthAt(roster_, man, place);
            best = man;
        }
        return best;
    }

    // Gives each open place, the hardest to fill first, to the slot without one that fills it best. Undone if a man
    // would stand where he isn't rated.
    bool FillOpenPlaces() {
        const LineupInput before = lineup_;
        std::vector<Position> open = Open();
        std::stable_sort(open.begin(), open.end(), [&](Position a, Position b) { return Fillers(a) < Fillers(b); });
        for (const Position place : open) {
            std::size_t best = kSlots;
            int worth = 0;
            for (const std::size_t slot : Placeless()) {
                const int his = WorthAt(roster_, ManFor(slot, place), place);
                if (his > worth) std::tie(best, worth) = std::make_tuple(slot, his);
            }
            if (best == kSlots) {
                lineup_ = before;
                return false;
            }
            lineup_.player[best] = ManFor(best, place);
            lineup_.position[best] = place;
        }
        return true;
    }

    long Fillers(Position place) const {
        const auto rated = [&](PlayerRef man) { return !man.Nobody() && WorthAt(roster_, man, place) > 0; };
        long men = std::count_if(bench_.begin(), bench_.end(), rated);
        for (const std::size_t slot : Placeless()) men += rated(lineup_.player[slot]) ? 1 : 0;
        return men;
    }

    // Everybody may move: the best places for the men who stand in the order, and then, as long as it helps, a man of
    // the bench in the slot of one who would stand where he isn't rated.
    void Rearrange() {
        SettleEmptySlots();
        Assignment best = Assign(lineup_);
        for (bool better = true; better;) {
            better = false;
            for (const std::size_t slot : Placeless()) {
                for (const PlayerRef man : bench_) {
                    if (Taken(man)) continue;
                    LineupInput trial = lineup_;
                    trial.player[slot] = man;
                    const Assignment with = Assign(trial);
                    if (with.worth < best.worth + kRated / 2) continue;
                    lineup_ = trial;
                    best = with;
                    better = true;
                }
            }
        }
        for (std::size_t slot = 0; slot < kSlots; ++slot)
            if (best.place[slot] != Position::None) lineup_.position[slot] = best.place[slot];
    }

    // A slot that nobody stands in takes anyone, so that there is somebody to place.
    void SettleEmptySlots() {
        for (std::size_t slot = 0; slot < kSlots; ++slot) {
            if (!lineup_.player[slot].Nobody()) continue;
            const auto man = std::find_if(bench_.begin(), bench_.end(), [&](PlayerRef m) { return !Taken(m); });
            if (man != bench_.end()) lineup_.player[slot] = *man;
        }
    }

    struct Assignment {
        int worth = -1;
        std::array<Position, kSlots> place{};
    };

    // The best distribution of the places over the slots, by sets of places already given: exact, and small enough.
    Assignment Assign(const LineupInput& lineup) const {
        const std::vector<Position> places = PlacesOf(data_.DHUsed);
        std::vector<std::size_t> slots;
        for (std::size_t slot = 0; slot < kSlots; ++slot)
            if (lineup.position[slot] != Position::P) slots.push_back(slot);
        if (slots.size() != places.size()) return {};
        const std::size_t sets = std::size_t{1} << places.size();
        std::vector<int> worth(sets, -1), last(sets, 0);
        worth[0] = 0;
        for (std::size_t set = 0; set + 1 < sets; ++set) {
            if (worth[set] < 0) continue;
            const std::size_t slot = slots[static_cast<std::size_t>(Bits(set))];
            for (std::size_t p = 0; p < places.size(); ++p) {
                if ((set >> p & 1U) != 0) continue;
                const std::size_t next = set | std::size_t{1} << p;
                const int total = worth[set] + Stand(lineup, slot, places[p]);
                if (total <= worth[next]) continue;
                worth[next] = total;
                last[next] = static_cast<int>(p);
            }
        }
        Assignment assignment;
        assignment.worth = worth[sets - 1];
        for (std::size_t set = sets - 1, n = slots.size(); n-- > 0;) {
            const auto p = static_cast<std::size_t>(last[set]);
            assignment.place[slots[n]] = places[p];
            set &= ~(std::size_t{1} << p);
        }
        return assignment;
    }

    static int Bits(std::size_t set) {
        int bits = 0;
        for (; set != 0; set &= set - 1) ++bits;
        return bits;
    }

    // Ratings can be below zero; a man moves only for more than the trouble is worth.
    int Stand(const LineupInput& lineup, std::size_t slot, Position place) const {
        constexpr int kLift = 100, kStays = 10;
        const PlayerRef man = lineup.player[slot];
        const int worth = man.Nobody() ? 0 : WorthAt(roster_, man, place);
        return kLift + worth + (lineup_.position[slot] == place ? kStays : 0);
    }

    const GameData& data_;
    const TeamRoster& roster_;
    LineupInput& lineup_;
    std::vector<PlayerRef> bench_;
};

bool OldPitcherGone(const GameData& data, const LineupInput& lineup) {
    if (lineup.pitcher.Nobody()) return true;
    const auto& positions = lineup.position;
    return !data.DHUsed && std::find(positions.begin(), positions.end(), Position::P) == positions.end();
}

// Puts the pitcher in the order where he belongs; false if there is no slot for him.
bool SetPitcher(const GameData& data, LineupInput& lineup, PlayerRef man) {
    lineup.pitcher = man;
    if (data.DHUsed) return true;
    const auto takes = [](Position p) { return p == Position::P || !HasPlace(p); };
    for (std::size_t slot = 0; slot < kSlots; ++slot) {
        const bool his = SameMan(data[lineup.side], lineup.player[slot], man);
        if (!his && !takes(lineup.position[slot])) continue;
        lineup.player[slot] = man;
        lineup.position[slot] = Position::P;
        return true;
    }
    return false;
}

std::optional<LineupInput> Complete(const GameData& data, const GameState& state, LineupInput lineup) {
    if (lineup.side == state.FieldingSide()) Defence(data, state, lineup).Fill();
    return IfLegal(data, state, lineup);
}

}  // namespace

LineupInput CurrentLineup(const GameState& state, Side side) {
    LineupInput lineup;
    lineup.side = side;
    lineup.pitcher = state[side].pitcher;
    for (std::size_t slot = 0; slot < kSlots; ++slot) {
        lineup.player[slot] = state[side].lineup[slot].player;
        lineup.position[slot] = state[side].lineup[slot].position;
    }
    return lineup;
}

std::vector<PlayerRef> Bench(const GameData& data, const GameState& state, Side side) {
    std::vector<PlayerRef> bench;
    for (const char type : {'B', 'P'}) {
        const TeamRoster& roster = data[side].roster;
        const std::size_t men = type == 'P' ? roster.pitchers.size() : roster.batters.size();
        for (std::size_t i = 0; i < men && i < kMaxRosterRecords; ++i) {
            const PlayerRef man{type, static_cast<std::int16_t>(i)};
            if (InGame(data, state, side, man)) continue;
            if (CheckEntering(data, state, side, man) == Reject::None) bench.push_back(man);
        }
        if (!bench.empty()) break;
    }
    return bench;
}

std::vector<PlayerRef> Bullpen(const GameData& data, const GameState& state, Side side) {
    const auto& pitchers = data[side].roster.pitchers;
    std::vector<PlayerRef> men;
    for (std::size_t i = 0; i < pitchers.size() && i < kMaxRosterRecords; ++i) {
        const PlayerRef man{'P', static_cast<std::int16_t>(i)};
        if (InGame(data, state, side, man)) continue;
        if (CheckEnteringPitcher(data, state, side, man) == Reject::None) men.push_back(man);
    }
    const auto key = [&](PlayerRef man) {
        const Pitcher& pitcher = pitchers[static_cast<std::size_t>(man.index)];
        return std::make_tuple(-OutShare(pitcher), -Thousandths(pitcher.chance.HRReduce), man.index);
    };
    std::sort(men.begin(), men.end(), [&](PlayerRef a, PlayerRef b) { return key(a) < key(b); });
    return men;
}

std::optional<LineupInput> BringInPitcher(const GameData& data, const GameState& state, Side side, PlayerRef man) {
    LineupInput lineup = CurrentLineup(state, side);
    if (man.Nobody()) {
        const std::vector<PlayerRef> bullpen = Bullpen(data, state, side);
        if (bullpen.empty()) return std::nullopt;
        man = bullpen.front();
    }
    if (!SetPitcher(data, lineup, man)) return std::nullopt;
    return Complete(data, state, lineup);
}

std::optional<LineupInput> Pinch(const GameData& data, const GameState& state, Side side, int slot, PlayerRef man,
                                 Position as) {
    if (slot < 1 || slot > 9 || side != state.BattingSide || InGame(data, state, side, man)) return std::nullopt;
    LineupInput lineup = CurrentLineup(state, side);
    lineup.player[static_cast<std::size_t>(slot - 1)] = man;
    lineup.position[static_cast<std::size_t>(slot - 1)] = as;
    return IfLegal(data, state, lineup);
}

std::optional<LineupInput> FullDefence(const GameData& data, const GameState& state, Side side) {
    LineupInput lineup = CurrentLineup(state, side);
    if (OldPitcherGone(data, lineup)) return BringInPitcher(data, state, side);
    Defence(data, state, lineup).Fill();
    return IfLegal(data, state, lineup);
}

std::optional<LineupInput> ReplaceInjured(const GameData& data, const GameState& state, Side side, PlayerRef man) {
    const Awaited& awaited = state.awaited;
    if (awaited.kind != Await::LineupChange || awaited.side != side) return std::nullopt;
    if (awaited.position == Position::P)
        return BringInPitcher(data, state, side, man.type == 'P' ? man : PlayerRef{'P', -1});
    LineupInput lineup = CurrentLineup(state, side);
    if (awaited.slot == 0) return std::nullopt;
    const std::size_t slot = awaited.slot - 1U;
    if (man.Nobody()) {
        int worth = -1;
        for (const PlayerRef other : Bench(data, state, side)) {
            const int his = WorthAt(data[side].roster, other, awaited.position);
            if (his > worth) std::tie(man, worth) = std::make_tuple(other, his);
        }
    }
    if (man.Nobody() || InGame(data, state, side, man)) return std::nullopt;
    lineup.player[slot] = man;
    lineup.position[slot] = HasPlace(awaited.position) ? awaited.position : Position::PR;
    return Complete(data, state, lineup);
}

std::optional<LineupInput> AnswerForcedChange(const GameData& data, const GameState& state, Side side) {
    if (state.awaited.kind != Await::LineupChange || state.awaited.side != side) return std::nullopt;
    switch (state.awaited.cause) {
        case LineupCause::InjuredFielder:
        case LineupCause::InjuredBatter: return ReplaceInjured(data, state, side);
        case LineupCause::RelieverLimit: return BringInPitcher(data, state, side);
        default: return FullDefence(data, state, side);
    }
}

}  // namespace tarvane
