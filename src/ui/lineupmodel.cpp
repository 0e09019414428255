#include "ui/lineupmodel.h"

#include <fmt/format.h>

#include <algorithm>

#include "engine/availability.h"
#include "manager/changes.h"
#include "manager/lineups.h"
#include "manager/rest.h"
#include "manager/roster.h"
#include "ui/names.h"

namespace tarvane {

namespace {

bool HasPlaceInField(Position position) {
    return IsFielder(position) || position == Position::DH;
}

template <class Record>
bool FitRecord(const Record& record, RosterMark& mark) {
    if (record.injury.InjuredDaysRemaining > 0)
        mark = RosterMark::Injured;
    else if (record.Inactive || record.NoLongerWithTeam)
        mark = RosterMark::Inactive;
    else
        return true;
    return false;
}

}  // namespace

LineupInput StandingLineup(const GameState& state, Side side) {
    LineupInput lineup = CurrentLineup(state, side);
    for (Position& position : lineup.position)
        if (position == Position::Inj) position = state.awaited.position;
    return lineup;
}

LineupModel::LineupModel(const PreparedGame& game) : game_(game) {
    for (const Side side : kBothSides) {
        const std::vector<LineupList>& lists = RosterOf(side).lists;
        for (std::size_t i = 0; i < lists.size(); ++i) {
            const auto holdsMan = [](const ListSlot& slot) { return slot.playerID != 0; };
            if (lists[i].LineupType == 'L' && std::any_of(lists[i].slot.begin(), lists[i].slot.end(), holdsMan))
                lists_[side].push_back(i);
        }
        lineup_[side].side = side;
        lineup_[side].pitcher = game.lineup[side].pitcher;
        if (game.control[side].lineups) TakeList(side, 0);
    }
    before_ = lineup_;
    chosenBefore_ = chosen_;
}

LineupModel::LineupModel(const PreparedGame& game, const GameState& state) : game_(game), state_(&state) {
    for (const Side side : kBothSides) lineup_[side] = StandingLineup(state, side);
    before_ = lineup_;
}

std::optional<Side> LineupModel::ForcedSide() const {
    if (!state_ || state_->awaited.kind != Await::LineupChange) return std::nullopt;
    return state_->awaited.side;
}

std::string LineupModel::Locked(Side side) const {
    const auto forced = ForcedSide();
    if (forced && *forced != side) return "The game waits for the other team's change.";
    return {};
}

std::string LineupModel::NameOf(Side side, PlayerRef man) const {
    return PlayerName(game_.data, side, man);
}

// --- What stands -----------------------------------------------------------------------------------------------------

std::vector<LineupRow> LineupModel::Rows(Side side) const {
    const LineupInput& lineup = lineup_[side];
    const auto hand = [&](PlayerRef man, bool throws) {
        if (man.Nobody()) return 0;
        const auto index = static_cast<std::size_t>(man.index);
        if (man.type == 'B') return RosterOf(side).batters[index].bats;
        return throws ? RosterOf(side).pitchers[index].throws_ : RosterOf(side).pitchers[index].bats;
    };
    const auto useless = [&](PlayerRef man) {
        const RosterMark mark = MarkOf(side, man);
        return man.Nobody() || (mark != RosterMark::Free && mark != RosterMark::InLineup);
    };
    std::vector<LineupRow> rows;
    for (int slot = 0; slot < 9; ++slot) {
        const auto at = static_cast<std::size_t>(slot);
        const PlayerRef man = lineup.player[at];
        const Position position = lineup.position[at];
        LineupRow row{std::to_string(slot + 1), NameOf(side, man), std::string(PositionText(position)), man, 0, {}, {}};
        row.hand = hand(man, position == Position::P);
        row.atBat = slot == SlotAtBat(side) && state_ && state_->BattingSide == side;
        for (int base = 1; state_ && base <= 3; ++base)
            if ((*state_)[side].runner[static_cast<std::size_t>(base)].slot == slot + 1)
                row.name += fmt::format(" <{}>", base);
        if (row.atBat) row.name += " >";
        const auto& all = lineup.position;
        row.trouble = useless(man) || position == Position::None ||
                      (HasPlaceInField(position) && std::count(all.begin(), all.end(), position) > 1);
        rows.push_back(std::move(row));
    }
    if (game_.data.DHUsed)
        rows.push_back({"P", NameOf(side, lineup.pitcher), "P ", lineup.pitcher, hand(lineup.pitcher, true),
                        useless(lineup.pitcher), false});
    return rows;
}

int LineupModel::SlotAtBat(Side side) const {
    return state_ ? (*state_)[side].BatterSlot - 1 : -1;
}

bool LineupModel::OnBase(Side side, int slot) const {
    if (!state_ || state_->BattingSide != side) return false;
    const auto& runner = (*state_)[side].runner;
    return std::any_of(runner.begin() + 1, runner.end(), [slot](Runner r) { return r.slot == slot + 1; });
}

bool LineupModel::Changed(Side side) const {
    const LineupInput &now = lineup_[side], &then = before_[side];
    return now.player != then.player || now.position != then.position || now.pitcher != then.pitcher;
}

std::vector<Position> LineupModel::Positions() const {
    std::vector<Position> positions;
    for (int p = static_cast<int>(Position::C); p <= static_cast<int>(Position::RF); ++p)
        positions.push_back(static_cast<Position>(p));
    positions.push_back(game_.data.DHUsed ? Position::DH : Position::P);
    if (state_) {
        positions.push_back(Position::PH);
        positions.push_back(Position::PR);
    }
    return positions;
}

std::string LineupModel::DefenceText(Side side) const {
    GameState scratch = state_ ? *state_ : GameState{};
    TeamState& team = scratch[side];
    const LineupInput& lineup = lineup_[side];
    for (std::size_t i = 0; i < team.lineup.size(); ++i) {
        team.lineup[i].player = lineup.player[i];
        team.lineup[i].position = lineup.position[i];
    }
    team.pitcher = lineup.pitcher;
    RebuildLineupDetails(game_.data, scratch, side);
    if (game_.data.rules.DefensiveErasInForce())
        return fmt::format("Defensive Era Active:  Pitcher {} ({})", NameOf(side, lineup.pitcher), team.DRTotal);
    std::string rolls;
    for (int bit = 0; bit < 6; ++bit)
        if ((team.AutoOuts >> bit & 1) != 0) rolls += fmt::format(" {}", kFirstRoll + bit);
    return fmt::format("Automatic Outs:{} ({})", rolls, team.DRTotal);
}

// --- Men -------------------------------------------------------------------------------------------------------------

std::vector<RosterFilter> LineupModel::Filters() {
    std::vector<RosterFilter> filters{{"All Batters", false, ' ', Position::None},
                                      {"All Pitchers", true, ' ', Position::None},
                                      {"Starting Pitchers", true, 'S', Position::None},
                                      {"Relief Pitchers", true, 'R', Position::None}};
    for (int p = static_cast<int>(Position::C); p <= static_cast<int>(Position::RF); ++p) {
        const auto position = static_cast<Position>(p);
        filters.push_back({std::string(PositionText(position)), false, ' ', position});
    }
    return filters;
}

std::vector<PlayerRef> LineupModel::Roster(Side side, const RosterFilter& filter) const {
    const TeamRoster& roster = RosterOf(side);
    struct Man {
        PlayerRef ref;
        RosterMark mark;
        int rating;
    };
    std::vector<Man> men;
    const std::size_t count = filter.pitchers ? roster.pitchers.size() : roster.batters.size();
    for (std::size_t i = 0; i < count && i < kMaxRosterRecords; ++i) {
        const PlayerRef man{filter.pitchers ? 'P' : 'B', static_cast<std::int16_t>(i)};
        if (filter.role != ' ' && roster.pitchers[i].pitcherType != filter.role) continue;
        const PositionRating* rated =
            filter.position == Position::None ? nullptr : RatingAt(roster, man, filter.position);
        if (filter.position != Position::None && !rated) continue;
        const RosterMark mark = MarkOf(side, man);
        if (mark != RosterMark::Gone) men.push_back({man, mark, rated ? rated->rating : 0});
    }
    std::stable_sort(men.begin(), men.end(), [](const Man& a, const Man& b) {
        return std::make_pair(a.mark, -a.rating) < std::make_pair(b.mark, -b.rating);
    });
    std::vector<PlayerRef> refs;
    for (const Man& man : men) refs.push_back(man.ref);
    return refs;
}

std::vector<PlayerRef> LineupModel::Gone(Side side) const {
    std::vector<PlayerRef> men;
    const TeamRoster& roster = RosterOf(side);
    for (const char type : {'B', 'P'}) {
        const std::size_t count = type == 'P' ? roster.pitchers.size() : roster.batters.size();
        for (std::size_t i = 0; i < count && i < kMaxRosterRecords; ++i) {
            const PlayerRef man{type, static_cast<std::int16_t>(i)};
            const auto same = [&](PlayerRef other) { return SamePerson(roster, man, other); };
            if (MarkOf(side, man) == RosterMark::Gone && std::none_of(men.begin(), men.end(), same)) men.push_back(man);
        }
    }
    return men;
}

bool LineupModel::InDraft(Side side, PlayerRef man) const {
    const auto same = [&](PlayerRef other) { return SamePerson(RosterOf(side), man, other); };
    const LineupInput& lineup = lineup_[side];
    return same(lineup.pitcher) || std::any_of(lineup.player.begin(), lineup.player.end(), same);
}

RosterMark LineupModel::MarkOf(Side side, PlayerRef man) const {
    RosterMark mark = RosterMark::Free;
    if (man.Nobody()) return mark;
    if (state_ && IsOutOfGame(game_.data, *state_, side, man)) return RosterMark::Gone;
    const TeamRoster& roster = RosterOf(side);
    const auto index = static_cast<std::size_t>(man.index);
    const bool fit = man.type == 'P' ? FitRecord(roster.pitchers[index], mark) : FitRecord(roster.batters[index], mark);
    if (!fit) return mark;
    const bool mound = man.type == 'P' && !(state_ && InGame(game_.data, *state_, side, man));
    if (mound && IsResting(roster, roster.pitchers[index])) {
        // Once nobody who is rested is left the others may come in, for what their tired arms are worth.
        const bool must = state_ && CheckEnteringPitcher(game_.data, *state_, side, man) != Reject::Resting;
        if (!must) return RosterMark::Resting;
    }
    return InDraft(side, man) ? RosterMark::InLineup : RosterMark::Free;
}

std::string LineupModel::MarkText(Side side, PlayerRef man) const {
    const TeamRoster& roster = RosterOf(side);
    const auto index = static_cast<std::size_t>(std::max<int>(man.index, 0));
    switch (MarkOf(side, man)) {
        case RosterMark::Free: return {};
        case RosterMark::InLineup: return "in lineup";
        case RosterMark::Gone: {
            const auto& hurt = state_->injury;
            const bool injured =
                std::any_of(hurt.begin(), hurt.begin() + state_->injuryCount,
                            [&](const GameInjury& i) { return i.side == side && SamePerson(roster, i.player, man); });
            return injured ? "injured in this game" : "out of the game";
        }
        case RosterMark::Injured: {
            const Injury& injury = man.type == 'P' ? roster.pitchers[index].injury : roster.batters[index].injury;
            return fmt::format("injured {} day{}", injury.InjuredDaysRemaining,
                               injury.InjuredDaysRemaining == 1 ? "" : "s");
        }
        case RosterMark::Inactive: return "inactive";
        case RosterMark::Resting: {
            const int days = RestDaysLeft(roster.pitchers[index], game_.data.dayNumber);
            return days > 0 ? fmt::format("resting {} day{}", days, days == 1 ? "" : "s") : "resting";
        }
    }
    return {};
}

// --- Stored line-ups -------------------------------------------------------------------------------------------------

std::vector<std::string> LineupModel::ListNames(Side side) const {
    std::vector<std::string> names{"Computer Manager's choice"};
    for (const std::size_t list : lists_[side]) {
        const LineupList& stored = RosterOf(side).lists[list];
        names.push_back(stored.LineupName.empty() ? fmt::format("Lineup {}", stored.lineupID) : stored.LineupName);
    }
    return names;
}

int LineupModel::ListAgainst(Side side, bool left) const {
    for (std::size_t i = 0; i < lists_[side].size(); ++i) {
        const LineupList& list = RosterOf(side).lists[lists_[side][i]];
        if (HasDH(list) == game_.data.DHUsed && (left ? list.BattingvsL : list.BattingvsR) != 0)
            return static_cast<int>(i) + 1;
    }
    return -1;
}

// A list made for the other kind of game gives its DH's slot to the pitcher, or the pitcher's to a DH still to be
// chosen.
void LineupModel::TakeList(Side side, int list) {
    if (state_ || list < 0 || list > static_cast<int>(lists_[side].size())) return;
    chosen_[side] = list;
    LineupInput& lineup = lineup_[side];
    if (list == 0) {
        lineup = game_.lineup[side];
        return;
    }
    const LineupList& stored = RosterOf(side).lists[lists_[side][static_cast<std::size_t>(list - 1)]];
    if (const int starter = PitcherIndexOf(RosterOf(side), stored.playerIDP); stored.playerIDP != 0 && starter >= 0)
        lineup.pitcher = {'P', static_cast<std::int16_t>(starter)};
    const Position wrong = game_.data.DHUsed ? Position::P : Position::DH;
    const Position right = game_.data.DHUsed ? Position::DH : Position::P;
    for (std::size_t i = 0; i < lineup.player.size(); ++i) {
        const Position position = stored.slot[i].position;
        lineup.position[i] = position == wrong ? right : position;
        lineup.player[i] = ManInSlot(RosterOf(side), stored.slot[i]);
        if (lineup.position[i] == Position::P) lineup.player[i] = lineup.pitcher;
        if (position == Position::P && game_.data.DHUsed) lineup.player[i] = {};
    }
}

}  // namespace tarvane
