// The moves of a line-up, and what is wrong with it in the end.

#include <fmt/format.h>

#include <algorithm>

#include "engine/availability.h"
#include "manager/changes.h"
#include "manager/computermanager.h"
#include "manager/roster.h"
#include "ui/lineupmodel.h"
#include "ui/names.h"

namespace tarvane {

namespace {

constexpr const char* kCannotPitch = "Selected player cannot pitch.";

const char* SideWord(Side side) {
    return side == Side::Visitor ? "Visitor" : "Home";
}

bool IsPlace(Position position) {
    return IsFielder(position) || position == Position::DH;
}

}  // namespace

bool LineupModel::PitchersRow(Side side, int row) const {
    return row == kPitcherRow || lineup_[side].position[static_cast<std::size_t>(row)] == Position::P;
}

// Without a DH the pitcher is the man who stands in the order as one. While nobody does, a side in a game keeps the man
// it has on the mound.
void LineupModel::SettlePitcher(Side side) {
    if (game_.data.DHUsed) return;
    LineupInput& lineup = lineup_[side];
    for (std::size_t i = 0; i < lineup.player.size(); ++i) {
        if (lineup.position[i] != Position::P) continue;
        lineup.pitcher = lineup.player[i].type == 'P' ? lineup.player[i] : PlayerRef{'P', -1};
        return;
    }
    if (state_) lineup.pitcher = (*state_)[side].pitcher;
}

std::string LineupModel::Place(Side side, int row, PlayerRef man) {
    if (std::string why = Locked(side); !why.empty()) return why;
    if (man.Nobody() || row < 0 || row > (game_.data.DHUsed ? kPitcherRow : kPitcherRow - 1)) return "No such place.";
    if (MarkOf(side, man) == RosterMark::Gone)
        return fmt::format("{} has left the game and can't come back.", NameOf(side, man));
    if (PitchersRow(side, row) && man.type != 'P') return kCannotPitch;
    LineupInput& lineup = lineup_[side];
    if (row == kPitcherRow) {
        lineup.pitcher = man;
        return {};
    }
    lineup.player[static_cast<std::size_t>(row)] = man;
    if (!game_.data.DHUsed && lineup.position[static_cast<std::size_t>(row)] == Position::P) lineup.pitcher = man;
    SettlePitcher(side);
    return {};
}

std::string LineupModel::Swap(Side side, int from, int to) {
    if (std::string why = Locked(side); !why.empty()) return why;
    if (from == to) return {};
    if (from < 0 || to < 0 || from >= 9 || to >= 9) return "The pitcher bats in no slot here.";
    LineupInput& lineup = lineup_[side];
    const auto a = static_cast<std::size_t>(from), b = static_cast<std::size_t>(to);
    if (!state_) {
        std::swap(lineup.player[a], lineup.player[b]);
        std::swap(lineup.position[a], lineup.position[b]);
        return {};
    }
    for (const auto& [slot, position] : {std::pair{a, lineup.position[b]}, std::pair{b, lineup.position[a]}})
        if (position == Position::P && lineup.player[slot].type != 'P') return kCannotPitch;
    std::swap(lineup.position[a], lineup.position[b]);
    SettlePitcher(side);
    return {};
}

std::string LineupModel::SetPosition(Side side, int slot, Position position) {
    if (std::string why = Locked(side); !why.empty()) return why;
    if (slot < 0 || slot >= 9) return "The pitcher pitches.";
    LineupInput& lineup = lineup_[side];
    const auto at = static_cast<std::size_t>(slot);
    const PlayerRef man = lineup.player[at];
    if (position == Position::P && !man.Nobody() && man.type != 'P') return kCannotPitch;
    if (position == Position::P && man.Nobody() && !lineup.pitcher.Nobody() && !state_)
        lineup.player[at] = lineup.pitcher;
    const Position free = IsPlace(lineup.position[at]) ? lineup.position[at] : Position::None;
    for (std::size_t i = 0; i < lineup.position.size(); ++i) {
        if (i == at || lineup.position[i] != position || !IsPlace(position)) continue;
        const bool pitches = free == Position::P && lineup.player[i].type != 'P';
        lineup.position[i] = pitches ? Position::None : free;
    }
    lineup.position[at] = position;
    SettlePitcher(side);
    return {};
}

std::string LineupModel::Remove(Side side, int row) {
    if (std::string why = Locked(side); !why.empty()) return why;
    if (state_) return "In a game a man leaves when another takes his place.";
    if (row == kPitcherRow)
        lineup_[side].pitcher = {'P', -1};
    else if (row >= 0 && row < 9)
        lineup_[side].player[static_cast<std::size_t>(row)] = {};
    SettlePitcher(side);
    return {};
}

std::string LineupModel::PinchHit(Side side, PlayerRef man) {
    if (!state_ || state_->BattingSide != side) return "Only the team at bat can send a pinch hitter.";
    const int slot = SlotAtBat(side);
    const Position before = lineup_[side].position[static_cast<std::size_t>(slot)];
    lineup_[side].position[static_cast<std::size_t>(slot)] = Position::PH;
    std::string why = Place(side, slot, man);
    if (!why.empty()) lineup_[side].position[static_cast<std::size_t>(slot)] = before;
    SettlePitcher(side);
    return why;
}

std::string LineupModel::PinchRun(Side side, int slot, PlayerRef man) {
    if (slot < 0 || slot >= 9 || !OnBase(side, slot)) return "Select a runner in the lineup for the pinch runner.";
    const Position before = lineup_[side].position[static_cast<std::size_t>(slot)];
    lineup_[side].position[static_cast<std::size_t>(slot)] = Position::PR;
    std::string why = Place(side, slot, man);
    if (!why.empty()) lineup_[side].position[static_cast<std::size_t>(slot)] = before;
    SettlePitcher(side);
    return why;
}

bool LineupModel::AsksForPinch(Side side, int slot, Position position) const {
    return state_ && position == Position::PH && slot != SlotAtBat(side);
}

bool LineupModel::LetComputerChoose(Side side) {
    if (!Locked(side).empty()) return false;
    if (!state_) {
        TakeList(side, 0);
        return true;
    }
    if (ForcedSide() != side) return false;
    std::optional<LineupInput> answer = AnswerForcedChange(game_.data, *state_, side);
    if (!answer) {
        LineupInput plain;
        Manager anybody;  // the first man who will do
        if (!anybody.ForcedLineup(game_.data, *state_, side, plain)) return false;
        answer = plain;
    }
    lineup_[side] = *answer;
    return true;
}

void LineupModel::Undo(Side side) {
    lineup_[side] = before_[side];
    chosen_[side] = chosenBefore_[side];
}

// --- The end ---------------------------------------------------------------------------------------------------------

// The man about whom a refusal is.
PlayerRef LineupModel::Blamed(Side side, Reject reject) const {
    const LineupInput& lineup = lineup_[side];
    const TeamRoster& roster = RosterOf(side);
    const auto wanted = [&](PlayerRef man) {
        if (man.Nobody()) return false;
        if (reject == Reject::Injured) return MarkOf(side, man) == RosterMark::Injured;
        if (reject == Reject::Inactive) return MarkOf(side, man) == RosterMark::Inactive;
        return false;
    };
    if (reject == Reject::DuplicatePlayer) {
        for (std::size_t i = 0; i < 9; ++i)
            for (std::size_t j = 0; j < i; ++j)
                if (SamePerson(roster, lineup.player[i], lineup.player[j])) return lineup.player[i];
        return lineup.pitcher;
    }
    if (reject == Reject::AlreadyOut)
        for (std::size_t i = 0; i < 9; ++i) {
            const PlayerRef man = lineup.player[i];
            const bool stays = SamePerson(roster, (*state_)[side].lineup[i].player, man);
            if (!stays && (MarkOf(side, man) == RosterMark::Gone || InGame(game_.data, *state_, side, man))) return man;
        }
    const auto found = std::find_if(lineup.player.begin(), lineup.player.end(), wanted);
    return found != lineup.player.end() ? *found : lineup.pitcher;
}

LineupNotice LineupModel::Told(Side side, Reject reject, PlayerRef man) const {
    const char* word = SideWord(side);
    const std::string name = NameOf(side, man);
    const char* kind = man.type == 'P' ? "pitcher" : "batter";
    switch (reject) {
        case Reject::PlayerMissing: return {fmt::format("Player missing in {} Lineup.", word)};
        case Reject::PositionMissing: return {fmt::format("Position missing in {} Lineup.", word)};
        case Reject::DuplicatePlayer: return {fmt::format("Duplicate player in {} lineup. ( {})", word, name)};
        case Reject::PositionsIncomplete: return {fmt::format("{} Team Lineup positions are Incomplete", word)};
        case Reject::UnknownPlayer:
        case Reject::PitcherMissing: return {fmt::format("{} Team Lineup is Incomplete", word)};
        case Reject::NotAStarter: return {fmt::format("Selected {} Relief Pitcher cannot start a game", word)};
        case Reject::Resting:
            return {state_ ? fmt::format("Selected {} Pitcher {} is resting - cannot enter the game", word, name)
                           : fmt::format("Selected {} Pitcher {} is resting - cannot start a game", word, name)};
        case Reject::Injured:
        case Reject::Inactive:
            return {fmt::format("Selected {} {} {} is {} - cannot {} game.", word, kind, name,
                                reject == Reject::Injured ? "injured" : "inactive", state_ ? "enter" : "start")};
        case Reject::AlreadyOut:
            return {fmt::format("{} has left his place in the {} Lineup and can't take another.", name, word)};
        default: return {fmt::format("{} Team Lineup: {}", word, RejectText(reject))};
    }
}

LineupNotice LineupModel::FaultBefore(Side side) const {
    const LineupInput& lineup = lineup_[side];
    const auto nobody = [](PlayerRef man) { return man.Nobody(); };
    if (chosen_[side] < 0 && std::all_of(lineup.player.begin(), lineup.player.end(), nobody))
        return {fmt::format("Choose Lineup for {} Team", SideWord(side))};
    const Reject reject = CheckStartingLineup(game_.data, lineup);
    return reject == Reject::None ? LineupNotice{} : Told(side, reject, Blamed(side, reject));
}

LineupNotice LineupModel::FaultDuring(Side side) const {
    if (!Changed(side) && ForcedSide() != side) return {};
    const Reject reject = Check(game_.data, *state_, lineup_[side]);
    if (reject == Reject::None) return {};
    const TeamState& team = (*state_)[side];
    if (reject == Reject::CannotPitch && lineup_[side].pitcher == team.pitcher && team.box.PitchersUsed > 0 &&
        team.box.pitching[team.box.PitchersUsed - 1U].MustBeReplaced)
        return {fmt::format("{} Pitcher has thrown 5 Innings - Must be replaced.",
                            side == Side::Visitor ? "Visitors" : "Home"),
                "Pitcher Fatigue"};
    return Told(side, reject, Blamed(side, reject));
}

LineupNotice LineupModel::Fault() const {
    for (const Side side : kBothSides) {
        LineupNotice fault = state_ ? FaultDuring(side) : FaultBefore(side);
        if (fault.Any()) return fault;
    }
    const GameData& data = game_.data;
    constexpr const char* kGoTo = "Go to Work with Leagues and Team Screen, then click Choose";
    if (!state_ && data.rules.UseYearEffects && data.year.EraName.empty())
        return {fmt::format("Must define Year Effect for league. {} Year Effects.", kGoTo)};
    if (!state_ && data.rules.DefensiveErasInForce() && data.defensiveEra.EraName.empty())
        return {fmt::format("Must define Defensive Era for league. {} Defensive Era.", kGoTo)};
    return {};
}

std::vector<LineupInput> LineupModel::Changes() const {
    std::vector<LineupInput> changes;
    for (const Side side : kBothSides)
        if (Changed(side) || ForcedSide() == side) changes.push_back(lineup_[side]);
    return changes;
}

LineupNotice LineupModel::ForcedNotice() const {
    const auto forced = ForcedSide();
    if (!forced) return {};
    const Awaited& awaited = state_->awaited;
    const char* word = SideWord(*forced);
    std::string name;
    if (state_->injuryCount > 0) name = NameOf(*forced, state_->injury[state_->injuryCount - 1U].player);
    std::string position(PositionText(awaited.position));
    switch (awaited.cause) {
        case LineupCause::InjuredFielder:
            return {fmt::format("{} Team fielder {}, {}, is injured. Lineup change required", word, name, position),
                    fmt::format("{} Team Fielder Injured", word)};
        case LineupCause::InjuredBatter:
            return {fmt::format("{} Team batter {}, is injured.\nPinch Runner or Lineup replacement is required.", word,
                                name),
                    fmt::format("{} Team Batter Injured", word)};
        case LineupCause::RelieverLimit:
            return {fmt::format("{} Pitcher has thrown Max Allowed Innings - Must be replaced.",
                                *forced == Side::Visitor ? "Visitors" : "Home"),
                    "Pitcher Fatigue"};
        default: return {fmt::format("{} Team Lineup positions are Incomplete", word)};
    }
}

}  // namespace tarvane
