#include <algorithm>

#include "engine/availability.h"
#include "engine/sheets.h"

namespace tarvane {

namespace {

// The results that both charts have; any other text leaves the result that called the chart, and nobody moves.
void TakeWildResult(Play& play, const Cell& cell) {
    if (cell.text == CellText::H) play.PlayResult = Result::HBP;
    if (cell.result == Result::WP || cell.result == Result::PB || cell.result == Result::BK)
        play.PlayResult = cell.result;
}

void PlayWildResult(Step& step) {
    const Result result = step.play().PlayResult;
    step.Sound();
    ApplyResult(step);
    if (result != Result::BK) step.Narrate(Tag::PitcherThrow);
    if (result == Result::WP || result == Result::PB) step.Animate(Tag::WPOrPB);
    if (result == Result::HBP) step.Animate(Tag::HBP);
    const bool told = result == Result::WP || result == Result::PB || result == Result::BK || result == Result::HBP;
    if (told) step.Narrate(Tag::PitcherResult);
    FinishPlay(step);
}

void ForgetInjury(Play& play) {
    play.InjuryPending = play.InjuredBatter = false;
    play.InjuredPosition = Position::None;
    play.InjuredSlot = 0;
    play.InjuryDays = 0;
}

void NobodyHurt(Step& step) {
    step.Narrate(Tag::PossibleInjury2);
    ForgetInjury(step.play());
    NextSheet(step);
}

// Somebody can take the place: a club with nobody left plays the hurt man on, so that the game can end.
bool SomebodyLeft(const Step& step, Side side, Position position) {
    if (position == Position::P) return PitcherLeft(step.data, step.state, side);
    const TeamRoster& roster = step.data[side].roster;
    const auto mayEnter = [&](char type, std::size_t count) {
        for (std::size_t i = 0; i < count && i < kMaxRosterRecords; ++i) {
            const PlayerRef man{type, static_cast<std::int16_t>(i)};
            if (CheckEntering(step.data, step.state, side, man) == Reject::None) return true;
        }
        return false;
    };
    return mayEnter('B', roster.batters.size()) || mayEnter('P', roster.pitchers.size());
}

// The slot of the man concerned, 1 to 9; 0 for a pitcher who bats nowhere, or if nobody stands there.
std::uint8_t SlotConcerned(const TeamState& team, const Play& play) {
    if (play.InjuredBatter) return play.InjuredSlot;
    const auto found = std::find_if(team.lineup.begin(), team.lineup.end(),
                                    [&](const LineupSlot& s) { return s.position == play.InjuredPosition; });
    return found == team.lineup.end() ? std::uint8_t{0} : static_cast<std::uint8_t>(found - team.lineup.begin() + 1);
}

void RecordInjury(GameState& state, Side side, PlayerRef man, int chartDays) {
    if (state.injuryCount >= state.injury.size()) return;
    const auto days = static_cast<std::uint8_t>(std::min(chartDays + 1, 255));
    state.injury[state.injuryCount++] = {side, man, days};
}

// Takes the hurt man out of his slot, and off the mound if he is the pitcher; a man has to come in before play goes on.
void TakeOut(Step& step, Side side, std::uint8_t slot) {
    TeamState& team = step.state[side];
    Position position = step.play().InjuredPosition;
    if (slot != 0) {
        LineupSlot& hurt = team.lineup[slot - 1U];
        position = hurt.position;
        hurt.position = Position::Inj;
        hurt.player = {hurt.player.type, -1};
    }
    if (position == Position::P) team.pitcher = {'P', -1};
    RebuildLineupDetails(step.data, step.state, side);
    const LineupCause cause = step.play().InjuredBatter ? LineupCause::InjuredBatter : LineupCause::InjuredFielder;
    step.state.awaited = {Await::LineupChange, DecisionKind::None, cause, side, position, slot};
}

// A hurt batter of a club whose changes a computer makes stays in: its injury replacement knows fielders only.
void ApplyInjury(Step& step) {
    Play& play = step.play();
    GameState& state = step.state;
    const Side side = play.InjuredBatter ? state.BattingSide : state.FieldingSide();
    const std::uint8_t slot = SlotConcerned(state[side], play);
    const bool pitcherOutsideOrder = slot == 0 && play.InjuredPosition == Position::P;
    const bool computerBatter = play.InjuredBatter && state.computer[side].subs;
    const Position place = slot != 0 ? state[side].lineup[slot - 1U].position : play.InjuredPosition;
    if ((slot == 0 && !pitcherOutsideOrder) || computerBatter || !SomebodyLeft(step, side, place)) {
        ForgetInjury(play);
        return NextSheet(step);
    }
    const PlayerRef man = slot != 0 ? state[side].lineup[slot - 1U].player : state[side].pitcher;
    RecordInjury(state, side, man, play.InjuryDays);
    TakeOut(step, side, slot);
    step.Narrate(Tag::InjuryResult);
    ForgetInjury(play);
}

void ReadDays(Step& step) {
    const Cell& cell = CellAt(step.data.compiled.YellowXInjuries[2], step.play().ChartRoll);
    if (cell.color == CellColor::Blue) return NobodyHurt(step);
    step.play().InjuryDays = static_cast<std::uint8_t>(std::clamp<int>(cell.number, 0, 254));
    ApplyInjury(step);
}

void ReadInjuredPosition(Step& step) {
    const Cell& cell = CellAt(step.data.compiled.YellowXInjuries[1], step.play().ChartRoll);
    if (!IsFielder(cell.position)) return NobodyHurt(step);
    step.play().InjuredPosition = cell.position;
    step.Narrate(Tag::PossibleInjury);
}

void ReadWhatHappened(Step& step) {
    Play& play = step.play();
    const Cell& cell = CellAt(step.data.compiled.YellowXInjuries[0], play.ChartRoll);
    if (cell.text == CellText::I) {
        play.PlayResult = Result::Inj;
        play.InjuredPosition = Position::None;
        play.InjuryPending = true;
        step.Narrate(Tag::PossibleInjury);
        return;
    }
    TakeWildResult(play, cell);
    if (play.PlayResult == Result::HBP) {
        play.InjuredSlot = step.batting().BatterSlot;
        play.InjuredBatter = play.InjuryPending = true;
    }
    PlayWildResult(step);
    if (play.InjuryPending && step.state.sheet == SheetCode::XI) step.Narrate(Tag::PossibleInjury);
}

}  // namespace

void ReadYellowX(Step& step) {
    TakeWildResult(step.play(), CellAt(step.data.compiled.YellowXBasic, step.play().ChartRoll));
    PlayWildResult(step);
}

void ReadYellowXInjury(Step& step) {
    const Play& play = step.play();
    if (!play.InjuryPending)
        ReadWhatHappened(step);
    else if (!play.InjuredBatter && play.InjuredPosition == Position::None)
        ReadInjuredPosition(step);
    else
        ReadDays(step);
}

}  // namespace tarvane
