#include "engine/availability.h"
#include "engine/step.h"

namespace tarvane {

namespace {

constexpr std::uint8_t kNoRating = 10;  // no roll is below it: the check can't succeed in that direction

enum class Fatigue : std::uint8_t { Fresh, Intermediate, Tired };

// Where a roll on the tired row leads. The plain level knows no state between fresh and tired; on the moderate level
// the rolls next to the rating are the intermediate ones: two of them below a rating of 24, three from there on.
Fatigue TiredRow(int roll, int rating, bool moderate) {
    if (roll >= rating) return Fatigue::Fresh;
    if (!moderate) return Fatigue::Tired;
    const int band = rating < 24 ? 2 : 3;
    return roll >= rating - band ? Fatigue::Intermediate : Fatigue::Tired;
}

GameEvent PitcherEvent(const Step& step, Side side, EventKind kind, Tag tag) {
    GameEvent event;
    event.kind = kind;
    event.tag = tag;
    event.side = side;
    event.sheet = step.state.sheet;
    event.position = Position::P;
    return event;
}

void SetFatigue(Step& step, Fatigue fatigue, Tag tag) {
    step.fielding().PitcherTired = fatigue == Fatigue::Tired;
    step.fielding().PitcherIntermediateTired = fatigue == Fatigue::Intermediate;
    step.Tell(PitcherEvent(step, step.state.FieldingSide(), EventKind::Narration, tag));
}

void RemindOfRest(Step& step, Side side, PitchingLine& line) {
    if (line.Reminded || step.state.computer[side].subs) return;
    for (const PitcherRestRow& row : step.data.rules.rest) {
        if (row.IPOutsFrom < 0 || row.pitcherType != line.Role) continue;
        if (line.IPOuts != row.IPOutsTo - 1 || line.IPOuts < row.IPOutsFrom) continue;
        line.Reminded = true;
        step.Tell(PitcherEvent(step, side, EventKind::Message, Tag::PitcherRestReminder));
        return;
    }
}

void DemandChange(Step& step, Side side, PitchingLine& line) {
    GameState& state = step.state;
    line.MustBeReplaced = true;
    if (step.data.rules.PitcherStamina) {
        state.StaminaCheckPending = true;
        state[side].PitcherChangePending = true;
    }
    state.awaited = Awaited{};
    state.awaited.kind = Await::LineupChange;
    state.awaited.cause = LineupCause::RelieverLimit;
    state.awaited.side = side;
    state.awaited.position = Position::P;
    for (std::size_t i = 0; i < state[side].lineup.size(); ++i) {
        if (state[side].lineup[i].position == Position::P) state.awaited.slot = static_cast<std::uint8_t>(i + 1);
    }
    step.Tell(PitcherEvent(step, side, EventKind::Message, Tag::PitcherFatigue));
}

// Whose turn comes after the man at bat; for the side in the field, who leads off when it comes to bat.
const LineupSlot& NextUp(const GameState& state, Side side) {
    const TeamState& team = state[side];
    const std::size_t now = team.BatterSlot - 1U;
    return team.lineup[side == state.BattingSide ? (now + 1) % team.lineup.size() : now];
}

}  // namespace

void BattingReminder(Step& step, Side side) {
    constexpr int kFirstInning = 6;
    TeamState& team = step.state[side];
    if (step.state.Inning < kFirstInning || !(NextUp(step.state, side).player == team.pitcher)) return;
    PitchingLine& line = CurrentPitchingLine(team);
    if (line.BatReminded) return;
    line.BatReminded = true;
    step.Tell(PitcherEvent(step, side, EventKind::Message, Tag::PitcherBatterReminder));
}

bool TakeStaminaCheck(GameState& state, const LeagueRules& rules) {
    if (!rules.PitcherStamina || !state.StaminaCheckPending) return false;
    for (const Side side : kBothSides) {
        if (state[side].PitcherChangePending) return false;
    }
    state.StaminaCheckPending = false;
    const TeamState& team = state.Fielding();
    if (team.PitcherTired) return team.PitcherSecondWind != kNoRating || rules.PitcherStaminaSecondary;
    return team.PitcherStamina != kNoRating;
}

void ReadStamina(Step& step, int chartRoll) {
    const TeamState& team = step.fielding();
    const bool moderate = step.data.rules.PitcherStaminaSecondary;
    const Fatigue rolled = TiredRow(chartRoll, team.PitcherStamina, moderate);
    if (!team.PitcherTired && !team.PitcherIntermediateTired) {
        if (rolled == Fatigue::Tired) SetFatigue(step, rolled, Tag::PitcherTired);
        if (rolled == Fatigue::Intermediate) SetFatigue(step, rolled, Tag::PitcherIntermediateTired);
        return;
    }
    // A weary man gets his second wind first; only a roll that misses it can move him between the two weary states.
    if (chartRoll < team.PitcherSecondWind) {
        SetFatigue(step, Fatigue::Fresh, Tag::Pitcher2ndWind);
    } else if (team.PitcherTired && rolled == Fatigue::Intermediate) {
        SetFatigue(step, rolled, Tag::PitcherIntermediateTired);
    } else if (team.PitcherIntermediateTired && rolled == Fatigue::Tired) {
        SetFatigue(step, rolled, Tag::PitcherTired);
    }
}

void FatigueReminders(Step& step, Side side) {
    TeamState& team = step.state[side];
    if (team.box.PitchersUsed < 2) return;
    PitchingLine& line = CurrentPitchingLine(team);
    RemindOfRest(step, side, line);
    const bool atLimit = line.Role != 'S' && line.IPOuts >= step.data.rules.RelieverMaxIPOuts;
    if (!atLimit || line.MustBeReplaced) return;
    // With nobody left to relieve him he stays: a demand that nothing can meet would stop the game for good.
    if (PitcherLeft(step.data, step.state, side)) DemandChange(step, side, line);
}

}  // namespace tarvane
