#include <algorithm>
#include <span>

#include "engine/availability.h"
#include "engine/step.h"

namespace tarvane {

namespace {

struct SlotDefence {
    std::int16_t rating = 0;
    char errorRating = 'V';
};

// What the league's rules give a man who has no rating where he stands.
SlotDefence OutOfPosition(const LeagueRules& rules, Position position) {
    switch (position) {
        case Position::LF:
        case Position::RF: return {rules.OFOutOfPos, rules.OFOutOfPosErrorRating};
        case Position::CF: return {rules.CFOutOfPos, rules.CFOutOfPosErrorRating};
        case Position::B2:
        case Position::B3:
        case Position::SS: return {rules.IFOutOfPos, rules.IFOutOfPosErrorRating};
        case Position::B1: return {rules.FirstBaseOutOfPos, rules.FirstBaseOutOfPosErrorRating};
        case Position::C: return {rules.COutOfPos, rules.COutOfPosErrorRating};
        default: return {};
    }
}

SlotDefence DefenceAt(const LeagueRules& rules, std::span<const PositionRating> ratings, Position position) {
    if (!IsFielder(position)) return {};
    for (const PositionRating& entry : ratings) {
        if (entry.position != position) continue;
        return {entry.rating, entry.errorRating == ' ' ? 'V' : entry.errorRating};
    }
    return OutOfPosition(rules, position);
}

char FirstLetter(const std::string& text) {
    return text.empty() ? 'B' : text.front();
}

template <class Record>
void FillSlot(LineupSlot& slot, const Record& record, const LeagueRules& rules) {
    const SlotDefence defence = DefenceAt(rules, record.Pos, slot.position);
    slot.SlotDR = defence.rating;
    slot.SlotErrorRating = defence.errorRating;
    slot.runRating = record.runRating;
    slot.BuntRating = FirstLetter(record.BuntRating);
    slot.bats = record.bats;
}

// A hurt man's slot stays empty until the line-up is changed: it defends nothing.
void ClearSlot(LineupSlot& slot) {
    slot.SlotDR = 0;
    slot.SlotErrorRating = 'V';
    slot.runRating = 0;
    slot.BuntRating = ' ';
    slot.bats = kRightHand;
}

void MarkCatcher(TeamState& team, const TeamData& roster) {
    team.CatcherIRated = team.CatcherORated = false;
    for (const LineupSlot& slot : team.lineup) {
        if (slot.position != Position::C || slot.player.type != 'B' || slot.player.Nobody()) continue;
        const Batter& catcher = roster.roster.batters[static_cast<std::size_t>(slot.player.index)];
        team.CatcherIRated = catcher.CatcherIRating;
        team.CatcherORated = catcher.CatcherORating;
    }
}

constexpr std::uint8_t Rolls(std::initializer_list<int> rolls) {
    unsigned bits = 0;
    for (const int roll : rolls) bits |= 1U << (roll - kFirstRoll);
    return static_cast<std::uint8_t>(bits);
}

struct AutoOutRange {
    int from = 0;
    std::uint8_t rolls = 0;
};

// The staircase of automatic outs: each step is worth one more of the 216 raw rolls than the step below it.
constexpr std::array<AutoOutRange, 24> kAutoOutStairs{{
    {109, Rolls({10, 11, 12, 13, 14, 15})},
    {104, Rolls({11, 12, 13, 14, 15})},
    {100, Rolls({10, 12, 13, 14, 15})},
    {95, Rolls({10, 11, 13, 14, 15})},
    {91, Rolls({12, 13, 14, 15})},
    {86, Rolls({11, 13, 14, 15})},
    {82, Rolls({11, 12, 14, 15})},
    {77, Rolls({10, 12, 14, 15})},
    {73, Rolls({13, 14, 15})},
    {68, Rolls({12, 14, 15})},
    {64, Rolls({12, 13, 14})},
    {59, Rolls({11, 13, 14})},
    {55, Rolls({11, 12, 14})},
    {50, Rolls({11, 12, 13})},
    {46, Rolls({13, 14})},
    {41, Rolls({12, 14})},
    {37, Rolls({12, 13})},
    {32, Rolls({11, 13})},
    {28, Rolls({11, 12})},
    {23, Rolls({14})},
    {19, Rolls({13})},
    {14, Rolls({12})},
    {10, Rolls({11})},
    {0, Rolls({10})},
}};

}  // namespace

std::uint8_t AutoOutsFromTotal(int drTotal) {
    for (const AutoOutRange& range : kAutoOutStairs) {
        if (drTotal >= range.from) return range.rolls;
    }
    return 0;
}

void RebuildLineupDetails(const GameData& data, GameState& state, Side side) {
    TeamState& team = state[side];
    const TeamRoster& roster = data[side].roster;
    int total = 0;
    for (LineupSlot& slot : team.lineup) {
        const auto index = static_cast<std::size_t>(slot.player.index);
        if (slot.player.Nobody()) {
            ClearSlot(slot);
        } else if (slot.player.type == 'P') {
            FillSlot(slot, roster.pitchers[index], data.rules);
        } else {
            FillSlot(slot, roster.batters[index], data.rules);
        }
        total += slot.SlotDR;
    }
    if (data.DHUsed && !team.pitcher.Nobody()) {
        const Pitcher& pitcher = roster.pitchers[static_cast<std::size_t>(team.pitcher.index)];
        total += DefenceAt(data.rules, pitcher.Pos, Position::P).rating;
    }
    if (data.rules.UseParkEffects) total += data.park.DefAdjustment;
    if (data.rules.UseYearEffects) total += data.year.DefAdjustment;
    team.DRTotal = static_cast<std::int16_t>(total);
    team.AutoOuts = AutoOutsFromTotal(total);
    MarkCatcher(team, data[side]);
}

namespace {

// A fatigue rating as the game uses it: 10 can't be rolled under; the park moves a rating only where there is one.
std::uint8_t FatigueRating(int rating, int adjustment) {
    if (rating <= 10) return 10;
    return static_cast<std::uint8_t>(std::clamp(rating + adjustment, 10, 40));
}

}  // namespace

void EnterPitcher(const GameData& data, GameState& state, Side side) {
    TeamState& team = state[side];
    const auto index = static_cast<std::size_t>(team.pitcher.index);
    const Pitcher& pitcher = data[side].roster.pitchers[index];
    const bool park = data.rules.UseParkEffects;
    team.PitcherThrows = pitcher.throws_;
    team.PitcherStamina = FatigueRating(pitcher.tiredRating, park ? data.park.PitcherTiredAdjustment : 0);
    team.PitcherSecondWind = FatigueRating(pitcher.secondWindRating, park ? data.park.SecondWindAdjustment : 0);
    team.PitcherTired = team.PitcherIntermediateTired = false;
    team.PitcherHasOutCells = index < data[side].pitcherCharts.size() && data[side].pitcherCharts[index].HasOutCells;
    team.PitcherLastBattedInning = 0;
    // A man who enters while his side bats is tested when his half begins, not in place of the pitcher on the mound.
    if (data.rules.PitcherStamina && side == state.FieldingSide()) state.StaminaCheckPending = true;
}

}  // namespace tarvane
