#include "manager/useplan.h"

#include <algorithm>
#include <array>
#include <limits>
#include <numeric>

#include "base/assignment.h"
#include "manager/lineups.h"
#include "manager/roster.h"

namespace tarvane {

namespace {

constexpr Position kFielders[] = {Position::C,  Position::B1, Position::B2, Position::B3, Position::SS,
                                  Position::LF, Position::CF, Position::RF, Position::DH};
constexpr std::size_t kPlaces = std::size(kFielders), kDH = kPlaces - 1;
constexpr std::size_t kHands = 2;  // of the opposing starter: left, right

// Plate appearances that a start is worth to the man in a batting place, 1 to 9: about 0.11 fewer a place. Only their
// ratios count.
constexpr double kFirstPlacePA = 4.65, kPlacePA = 0.115;
constexpr int kUnlistedPlace = 7;

using Starts = std::array<std::array<double, kHands>, kPlaces>;

double SumOf(const Starts& starts) {
    double sum = 0;
    for (const auto& byHand : starts) sum += byHand[0] + byHand[1];
    return sum;
}

const LineupList* StandardList(const TeamRoster& roster, bool dh, bool left) {
    for (const LineupList& list : roster.lists)
        if (list.LineupType == 'L' && HasDH(list) == dh && (left ? list.BattingvsL : list.BattingvsR) != 0)
            return &list;
    return nullptr;
}

// His batting place from 1 in a list, or 0.
int PlaceIn(const LineupList* list, std::int32_t playerID) {
    if (!list) return 0;
    for (std::size_t slot = 0; slot < list->slot.size(); ++slot)
        if (list->slot[slot].PlayerType == 'B' && list->slot[slot].playerID == playerID)
            return static_cast<int>(slot) + 1;
    return 0;
}

// A club's season: what each man is to start, by position and hand.
class SeasonPlan {
  public:
    SeasonPlan(const TeamRoster& roster, const RealUse& real, const std::vector<PlanGame>& games);

    // The fit nine for a game; positions index by index with kFielders, roster indexes of the men, -1 without a DH.
    // Empty if a position can't be filled.
    std::vector<int> Choose(const PlanGame& game, PlayerRef starter);
    void Count(const PlanGame& game, const LineupList& fixed);

  private:
    struct Man {
        int index = -1;
        double starts = 0;               // wanted, over the season
        std::array<double, kHands> share{};  // of them, by the starter's hand
        Starts wanted{}, owed{};         // owed grows with every game and falls by one with a start
    };
    void Enlist(const RealUse& real);
    void Fill();
    void ScaleColumns();
    void ScaleMen();
    void Owe(const PlanGame& game);
    bool Open(const PlanGame& game, std::size_t place) const { return place != kDH || game.dhUsed; }

    const TeamRoster& roster_;
    std::vector<Man> men_;
    std::array<std::array<double, kHands>, kPlaces> games_{};  // that have the position, by hand
};

SeasonPlan::SeasonPlan(const TeamRoster& roster, const RealUse& real, const std::vector<PlanGame>& games)
    : roster_(roster) {
    for (const PlanGame& game : games)
        for (std::size_t place = 0; place < kPlaces; ++place)
            if (Open(game, place)) ++games_[place][game.opponentThrowsLeft ? 0 : 1];
    Enlist(real);
    Fill();
}

void SeasonPlan::Enlist(const RealUse& real) {
    double appearances = 0;
    for (std::size_t i = 0; i < roster_.batters.size(); ++i) {
        const Batter& batter = roster_.batters[i];
        const RealBatting& known = real.BatterAt(static_cast<int>(i));
        const double times = known.PAvsLeft + known.PAvsRight;
        if (batter.NoLongerWithTeam || times <= 0) continue;
        int place = 0;
        for (const bool dh : {true, false})
            for (const bool left : {false, true})
                if (place == 0) place = PlaceIn(StandardList(roster_, dh, left), batter.playerID);
        Man man;
        man.index = static_cast<int>(i);
        man.starts = times / (kFirstPlacePA - kPlacePA * ((place == 0 ? kUnlistedPlace : place) - 1));
        man.share = {known.PAvsLeft / times, known.PAvsRight / times};
        appearances += man.starts;
        men_.push_back(man);
    }
    const double all = SumOf(games_);
    for (std::size_t i = 0; i < men_.size(); ++i) {
        Man& man = men_[i];
        const RealBatting& known = real.BatterAt(man.index);
        man.starts *= all / appearances;
        double fielded = 0;
        for (std::size_t place = 0; place < kDH; ++place)
            if (RatingAt(roster_.batters[static_cast<std::size_t>(man.index)], kFielders[place])) {
                const double at = known.gamesAt[static_cast<std::size_t>(kFielders[place])];
                fielded += at;
                for (std::size_t hand = 0; hand < kHands; ++hand) man.wanted[place][hand] = at * man.share[hand];
            }
        // What he batted beyond the games he fielded, he batted as DH or as pinch hitter. Anybody may for a day.
        const double dh = std::max(man.starts - fielded, 0.02 * man.starts);
        for (std::size_t hand = 0; hand < kHands; ++hand) man.wanted[kDH][hand] = dh * man.share[hand];
    }
}

// Every game's position gets one man.
void SeasonPlan::ScaleColumns() {
    for (std::size_t place = 0; place < kPlaces; ++place)
        for (std::size_t hand = 0; hand < kHands; ++hand) {
            double sum = 0;
            for (const Man& man : men_) sum += man.wanted[place][hand];
            if (sum > 0)
                for (Man& man : men_) man.wanted[place][hand] *= games_[place][hand] / sum;
        }
}

// Every man gets his starts, but nobody more than one a game.
void SeasonPlan::ScaleMen() {
    for (Man& man : men_) {
        const double sum = SumOf(man.wanted);
        for (std::size_t hand = 0; hand < kHands; ++hand) {
            double ofHand = 0;
            for (auto& byHand : man.wanted) ofHand += byHand[hand] *= sum > 0 ? man.starts / sum : 0;
            if (ofHand > games_[0][hand])
                for (auto& byHand : man.wanted) byHand[hand] *= games_[0][hand] / ofHand;
        }
    }
}

// Iterative proportional fitting between the men's real shares and the games' positions.
void SeasonPlan::Fill() {
    constexpr int kRounds = 200;
    for (int round = 0; round < kRounds; ++round) {
        ScaleColumns();
        ScaleMen();
    }
    ScaleColumns();
}

void SeasonPlan::Owe(const PlanGame& game) {
    const std::size_t hand = game.opponentThrowsLeft ? 0 : 1;
    for (Man& man : men_)
        for (std::size_t place = 0; place < kPlaces; ++place)
            if (Open(game, place)) man.owed[place][hand] += man.wanted[place][hand] / games_[place][hand];
}

std::vector<int> SeasonPlan::Choose(const PlanGame& game, PlayerRef starter) {
    constexpr double kNever = -1e6;
    Owe(game);
    const std::size_t hand = game.opponentThrowsLeft ? 0 : 1, places = game.dhUsed ? kPlaces : kDH;
    if (men_.size() < places) return {};
    std::vector<std::vector<double>> value(places, std::vector<double>(men_.size(), kNever));
    for (std::size_t i = 0; i < men_.size(); ++i) {
        if (SamePerson(roster_, {'B', static_cast<std::int16_t>(men_[i].index)}, starter)) continue;
        for (std::size_t place = 0; place < places; ++place)
            if (men_[i].wanted[place][hand] > 0) value[place][i] = men_[i].owed[place][hand];
    }
    const std::vector<int> best = BestAssignment(value);
    std::vector<int> nine(kPlaces, -1);
    for (std::size_t place = 0; place < places; ++place) {
        const auto at = static_cast<std::size_t>(best[place]);
        if (value[place][at] <= kNever) return {};
        men_[at].owed[place][hand] -= 1;
        nine[place] = men_[at].index;
    }
    return nine;
}

void SeasonPlan::Count(const PlanGame& game, const LineupList& fixed) {
    Owe(game);
    const std::size_t hand = game.opponentThrowsLeft ? 0 : 1;
    for (const ListSlot& slot : fixed.slot)
        for (std::size_t place = 0; place < kPlaces; ++place) {
            if (slot.PlayerType != 'B' || slot.position != kFielders[place]) continue;
            for (Man& man : men_)
                if (roster_.batters[static_cast<std::size_t>(man.index)].playerID == slot.playerID)
                    man.owed[place][hand] -= 1;
        }
}

// The nine in batting order, the pitcher last where he bats.
LineupList InOrder(const TeamRoster& roster, const PlanGame& game, const std::vector<int>& nine) {
    struct Listed {
        double place = 0;
        ListSlot slot;
    };
    std::vector<Listed> order;
    const LineupList* own = StandardList(roster, game.dhUsed, game.opponentThrowsLeft);
    const LineupList* other = StandardList(roster, game.dhUsed, !game.opponentThrowsLeft);
    for (std::size_t at = 0; at < kPlaces; ++at) {
        if (nine[at] < 0) continue;
        const Batter& batter = roster.batters[static_cast<std::size_t>(nine[at])];
        double place = PlaceIn(own, batter.playerID);
        if (place == 0 && PlaceIn(other, batter.playerID) != 0) place = PlaceIn(other, batter.playerID) + 0.5;
        if (place == 0) place = 10 + 1.0 / (1 + OnBase(batter));
        order.push_back({place, {batter.playerID, kFielders[at], 'B'}});
    }
    std::stable_sort(order.begin(), order.end(), [](const Listed& a, const Listed& b) { return a.place < b.place; });
    LineupList list;
    for (std::size_t i = 0; i < order.size(); ++i) list.slot[i] = order[i].slot;
    return list;
}

}  // namespace

std::vector<int> PlanStarters(const TeamRoster& roster, const RealUse& real, int restDays,
                              const std::vector<PlanGame>& games) {
    struct Starter {
        int index = -1;
        double share = 0, owed = 0;
        long last = std::numeric_limits<long>::min() / 2;
    };
    std::vector<Starter> staff;
    double starts = 0;
    for (std::size_t i = 0; i < roster.pitchers.size(); ++i) {
        const RealPitching& known = real.PitcherAt(static_cast<int>(i));
        if (roster.pitchers[i].pitcherType != 'S' || roster.pitchers[i].NoLongerWithTeam || known.GS == 0) continue;
        staff.push_back({static_cast<int>(i), static_cast<double>(known.GS)});
        starts += known.GS;
    }
    std::vector<int> plan(games.size(), -1);
    if (staff.empty()) return plan;
    for (Starter& man : staff) man.share /= starts;
    for (std::size_t g = 0; g < games.size(); ++g) {
        for (Starter& man : staff) man.owed += man.share;
        const auto rested = [&](const Starter& man) { return games[g].day - man.last > restDays; };
        const auto fixed = [&](const Starter& man) {
            return games[g].fixed &&
                   roster.pitchers[static_cast<std::size_t>(man.index)].playerID == games[g].fixed->playerIDP;
        };
        auto chosen = games[g].fixed ? std::find_if(staff.begin(), staff.end(), fixed)
                                     : std::max_element(staff.begin(), staff.end(),
                                                        [&](const Starter& a, const Starter& b) {
                                                            if (rested(a) != rested(b)) return rested(b);
                                                            return rested(a) ? a.owed < b.owed : a.last > b.last;
                                                        });
        if (chosen == staff.end()) continue;
        chosen->owed -= 1;
        chosen->last = games[g].day;
        plan[g] = chosen->index;
    }
    return plan;
}

std::vector<LineupList> PlanLineups(const TeamRoster& roster, const RealUse& real, const std::vector<PlanGame>& games,
                                    const std::vector<int>& starters) {
    SeasonPlan plan(roster, real, games);
    std::vector<LineupList> lists(games.size());
    for (std::size_t g = 0; g < games.size(); ++g) {
        if (games[g].fixed) {
            plan.Count(games[g], *games[g].fixed);
            continue;
        }
        if (starters[g] < 0) continue;
        const std::vector<int> nine = plan.Choose(games[g], {'P', static_cast<std::int16_t>(starters[g])});
        if (nine.empty()) continue;
        lists[g] = InOrder(roster, games[g], nine);
        const std::int32_t pitcher = roster.pitchers[static_cast<std::size_t>(starters[g])].playerID;
        if (!games[g].dhUsed) lists[g].slot[8] = {pitcher, Position::P, 'P'};
        lists[g].playerIDP = pitcher;
    }
    return lists;
}

}  // namespace tarvane
