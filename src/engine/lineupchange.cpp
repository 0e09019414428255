#include <algorithm>
#include <vector>

#include "engine/availability.h"
#include "engine/step.h"

namespace tarvane {

namespace {

constexpr std::uint8_t kPitcherSlot = 10;  // the slot of box lines of a pitcher for whom a DH bats

template <class Lines>
void CloseLines(Lines& lines, int count, int slot) {
    for (int i = 0; i < count; ++i) {
        auto& line = lines[static_cast<std::size_t>(i)];
        if (line.Slot == slot) line.Active = false;
    }
}

void OpenBatterLine(BoxLines& box, PlayerRef player, Position position, std::uint8_t slot) {
    CloseLines(box.batter, box.BatterLineCount, slot);
    if (box.BatterLineCount >= kMaxBatterLines) return;
    BatterLine& line = box.batter[box.BatterLineCount++];
    line = BatterLine{};
    line.player = player;
    line.position = position;
    line.Slot = slot;
    line.Active = true;
}

// A man who comes back to a position he has held in this game goes on with the line he had there.
void OpenFielderLine(BoxLines& box, PlayerRef player, Position position, std::uint8_t slot) {
    CloseLines(box.fielder, box.FielderLineCount, slot);
    for (int i = 0; i < box.FielderLineCount; ++i) {
        FielderLine& line = box.fielder[static_cast<std::size_t>(i)];
        if (line.player != player || line.position != position || line.Slot != slot) continue;
        line.Active = true;
        return;
    }
    if (box.FielderLineCount >= kMaxFielderLines) return;
    FielderLine& line = box.fielder[box.FielderLineCount++];
    line = FielderLine{};
    line.player = player;
    line.position = position;
    line.Slot = slot;
    line.Active = true;
}

// A lead of one to three from the fifth on, or one that the men on base and the next batters could wipe out. The two
// sides differ in what counts as the end of the game: for the home team it is the ninth alone.
bool EntersForSave(const GameState& state, Side side) {
    const int lead = state[side].Runs - state[Other(side)].Runs;
    if (lead < 1) return false;
    const auto& bases = state[Other(side)].runner;
    const auto on = static_cast<int>(std::count_if(bases.begin() + 1, bases.end(), [](Runner r) { return r.On(); }));
    if (state.Inning >= 5 && state.Inning <= 8) return lead <= 3 || lead <= on + 1;
    const bool last = side == Side::Visitor ? state.Inning >= 9 : state.Inning == 9;
    const int outs = side == state.FieldingSide() ? state.Outs : 0;
    return last && ((lead <= 3 && outs == 0) || lead <= on + 2);
}

void OpenPitchingLine(const GameData& data, GameState& state, Side side) {
    TeamState& team = state[side];
    BoxLines& box = team.box;
    for (int i = 0; i < box.PitchersUsed; ++i) box.pitching[static_cast<std::size_t>(i)].Save = false;
    if (box.PitchersUsed >= kMaxPitchingLines) return;
    const bool relief = box.PitchersUsed > 0;
    PitchingLine& line = box.pitching[box.PitchersUsed++];
    line = PitchingLine{};
    line.player = team.pitcher;
    line.Role = data[side].roster.pitchers[static_cast<std::size_t>(team.pitcher.index)].pitcherType;
    line.Save = relief && EntersForSave(state, side);
}

// A starter who leaves after five innings with a lead has won unless the lead is lost.
void CreditLeavingStarter(GameState& state, Side side) {
    TeamState& team = state[side];
    PitchingLine& starter = team.box.pitching[0];
    if (team.box.PitchersUsed != 1 || starter.IPOuts < 15 || team.Runs <= state[Other(side)].Runs) return;
    starter.Win = true;
    starter.Loss = false;
}

// The lines and marks of a pitcher who has just come in; in a DH game he has lines of his own outside the order.
void OpenPitcher(const GameData& data, GameState& state, Side side) {
    TeamState& team = state[side];
    OpenPitchingLine(data, state, side);
    if (data.DHUsed) {
        OpenBatterLine(team.box, team.pitcher, Position::P, kPitcherSlot);
        OpenFielderLine(team.box, team.pitcher, Position::P, kPitcherSlot);
    }
    MarkUsed(team, team.pitcher);
    EnterPitcher(data, state, side);
}

struct SlotChange {
    bool player = false, position = false;
};

SlotChange ChangeSlot(TeamState& team, std::uint8_t slotNumber, PlayerRef player, Position position) {
    LineupSlot& slot = team.lineup[slotNumber - 1U];
    const SlotChange change{slot.player != player, slot.position != position};
    slot.player = player;
    slot.position = position;
    if (change.player) OpenBatterLine(team.box, player, position, slotNumber);
    // Every position has its fielding line, those of a pinch hitter and a DH too: it counts the games at the position.
    if (change.player || change.position) OpenFielderLine(team.box, player, position, slotNumber);
    MarkUsed(team, player);
    return change;
}

bool Rests(const GameData& data, Side side, PlayerRef pitcher) {
    return IsResting(data[side].roster.pitchers[static_cast<std::size_t>(pitcher.index)], data.dayNumber);
}

// The pitcher who has just come in should be resting, and is the first such: nobody else was left.
bool RestedRunOut(const GameData& data, const GameState& state, Side side) {
    const BoxLines& box = state[side].box;
    if (!Rests(data, side, state[side].pitcher)) return false;
    return std::none_of(box.pitching.begin(), box.pitching.begin() + (box.PitchersUsed - 1),
                        [&](const PitchingLine& line) { return Rests(data, side, line.player); });
}

Tag ChangeTag(Position position) {
    if (position == Position::P) return Tag::NewPitcher;
    if (position == Position::PH) return Tag::PinchHitter;
    if (position == Position::PR) return Tag::PinchRunner;
    return Tag::DefensiveChange;
}

GameEvent ChangeEvent(Side side, Tag tag, Position position, std::uint8_t slot) {
    GameEvent event;
    event.kind = EventKind::Substitution;
    event.tag = tag;
    event.side = side;
    event.position = position;
    event.slot = slot;
    return event;
}

}  // namespace

void SetupBoxScore(const GameData& data, GameState& state) {
    for (const Side side : kBothSides) {
        TeamState& team = state[side];
        team.box = BoxLines{};
        team.battersUsed = {};
        team.pitchersUsedMask = {};
        for (std::uint8_t slot = 1; slot <= 9; ++slot) {
            const LineupSlot& man = team.lineup[slot - 1U];
            OpenBatterLine(team.box, man.player, man.position, slot);
            OpenFielderLine(team.box, man.player, man.position, slot);
            MarkUsed(team, man.player);
        }
        OpenPitcher(data, state, side);
    }
}

void ChangeLineup(Step& step, const LineupInput& lineup) {
    const Side side = lineup.side;
    TeamState& team = step.state[side];
    std::vector<GameEvent> events;
    for (std::uint8_t slot = 1; slot <= 9; ++slot) {
        const Position position = lineup.position[slot - 1U];
        const SlotChange change = ChangeSlot(team, slot, lineup.player[slot - 1U], position);
        // The pitcher's own event tells of him; a slot is told once whatever changed in it.
        if ((change.player || change.position) && position != Position::P) {
            events.push_back(ChangeEvent(side, ChangeTag(position), position, slot));
        }
    }
    if (lineup.pitcher != team.pitcher) {
        CreditLeavingStarter(step.state, side);
        team.pitcher = lineup.pitcher;
        OpenPitcher(step.data, step.state, side);
        events.insert(events.begin(), ChangeEvent(side, Tag::NewPitcher, Position::P, 0));
        if (RestedRunOut(step.data, step.state, side)) {
            events.insert(events.begin(), ChangeEvent(side, Tag::NoRestedPitchers, Position::P, 0));
            events.front().kind = EventKind::Message;
        }
    }
    team.PitcherChangePending = false;
    RebuildLineupDetails(step.data, step.state, side);
    for (const GameEvent& event : events) step.Tell(event);
}

}  // namespace tarvane
