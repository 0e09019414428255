#include <algorithm>
#include <numeric>
#include <string>

#include "engine/availability.h"
#include "engine/step.h"

namespace tarvane {

namespace {

std::string Fault(Side side, const std::string& what) {
    return std::string(side == Side::Visitor ? "Visitors: " : "Home team: ") + what;
}

std::string Unequal(Side side, const std::string& what, int is, int due) {
    if (is == due) return {};
    return Fault(side, what + " is " + std::to_string(is) + ", should be " + std::to_string(due));
}

// The first of the faults that is one.
std::string FirstOf(std::initializer_list<std::string> faults) {
    for (const std::string& fault : faults) {
        if (!fault.empty()) return fault;
    }
    return {};
}

// No play is under way: every play taken so far stands in the lines.
bool BetweenPlays(const GameState& state) {
    if (state.GameOverFlag) return true;
    if (state.awaited.kind == Await::Decision) return false;
    return state.sheet == SheetCode::P || state.sheet == SheetCode::PS;
}

bool AwaitsLineup(const GameState& state, Side side) {
    return state.awaited.kind == Await::LineupChange && state.awaited.side == side;
}

// The next thing is a pitch, so nine men stand in the field.
bool PitchDue(const GameState& state) {
    return state.awaited.kind == Await::Roll && state.sheet == SheetCode::P;
}

template <class Lines, class Value>
int SumOf(const Lines& lines, int count, Value value) {
    int sum = 0;
    for (int i = 0; i < count; ++i) sum += value(lines[static_cast<std::size_t>(i)]);
    return sum;
}

template <class Value>
int BatterSum(const BoxLines& box, Value value) {
    return SumOf(box.batter, box.BatterLineCount, value);
}
template <class Value>
int PitcherSum(const BoxLines& box, Value value) {
    return SumOf(box.pitching, box.PitchersUsed, value);
}
template <class Value>
int FielderSum(const BoxLines& box, Value value) {
    return SumOf(box.fielder, box.FielderLineCount, value);
}

int MenOnBase(const TeamState& team) {
    return static_cast<int>(
        std::count_if(team.runner.begin() + 1, team.runner.end(), [](const Runner& runner) { return runner.On(); }));
}

// --- The situation ---

std::string Situation(const GameState& state) {
    if (state.Inning < 1) return "no inning";
    if (state.Outs > 3 || (state.Outs == 3 && !state.GameOverFlag)) return "too many outs between steps";
    if (state.sheet == SheetCode::None) return "no sheet";
    if (state.GameOverFlag != (state.awaited.kind == Await::GameOver)) return "the end of the game is told two ways";
    if (state.awaited.kind == Await::Decision && state.awaited.decision == DecisionKind::None) {
        return "a decision is awaited that is none";
    }
    if (state.awaited.kind == Await::LineupChange && state.awaited.cause == LineupCause::None) {
        return "a line-up change is awaited without a cause";
    }
    if (state.injuryCount > state.injury.size()) return "more injuries than there is room for";
    return {};
}

std::string Bases(const GameState& state, Side side) {
    const TeamState& team = state[side];
    if (team.BatterSlot < 1 || team.BatterSlot > 9) return Fault(side, "batter slot out of range");
    if (side != state.BattingSide && MenOnBase(team) > 0) return Fault(side, "men on base while in the field");
    for (std::size_t base = 1; base <= 3; ++base) {
        const Runner& runner = team.runner[base];
        if (runner.slot > 9) return Fault(side, "a runner of no slot");
        if (!runner.On()) continue;
        for (std::size_t other = base + 1; other <= 3; ++other) {
            if (team.runner[other].slot == runner.slot) return Fault(side, "one man on two bases");
        }
        const bool batter = BetweenPlays(state) && !state.GameOverFlag && runner.slot == team.BatterSlot;
        if (batter) return Fault(side, "the batter is on base");
    }
    return {};
}

std::string PlayAtRest(const GameState& state) {
    if (!BetweenPlays(state)) return {};
    const Play& play = state.play;
    const bool counters = play.RunsScoredCount != 0 || play.EarnedRunsOnPlay != 0 || play.RBIOnPlay != 0;
    return counters ? "the play's counters aren't zero between plays" : std::string();
}

std::string Fatigue(const GameState& state, Side side) {
    const TeamState& team = state[side];
    if (team.PitcherTired && team.PitcherIntermediateTired) return Fault(side, "pitcher tired twice over");
    const auto legal = [](int rating) { return rating >= 10 && rating <= 40; };
    if (legal(team.PitcherStamina) && legal(team.PitcherSecondWind)) return {};
    return Fault(side, "fatigue rating out of range");
}

// --- The line score ---

std::string RunsByInning(const GameState& state, Side side) {
    if (state.Inning > kMaxInnings) return {};
    const TeamState& team = state[side];
    int runs = std::accumulate(team.InningRuns.begin(), team.InningRuns.end(), 0);
    if (side == state.BattingSide) {
        const int noted = team.InningRuns[state.Inning - 1U];
        if (BetweenPlays(state) && noted != state.HalfInningRuns) return Fault(side, "runs of the half aren't noted");
        runs += state.HalfInningRuns - noted;
    }
    return Unequal(side, "sum of the innings' runs", runs, team.Runs);
}

// --- The order and the field ---

bool IsUsed(const TeamState& team, PlayerRef player) {
    const auto index = static_cast<std::size_t>(player.index);
    if (index >= static_cast<std::size_t>(kMaxRosterRecords)) return false;
    const auto& mask = player.type == 'P' ? team.pitchersUsedMask : team.battersUsed;
    return (mask[index / 64] >> (index % 64) & 1U) != 0;
}

std::string Order(const GameData& data, const GameState& state, Side side) {
    const TeamState& team = state[side];
    for (std::size_t i = 0; i < team.lineup.size(); ++i) {
        const PlayerRef player = team.lineup[i].player;
        if (player.Nobody()) {
            if (!AwaitsLineup(state, side)) return Fault(side, "slot " + std::to_string(i + 1) + " is empty");
            continue;
        }
        if (!KnownPlayer(data[side], player)) return Fault(side, "a man who isn't on the roster");
        if (!IsUsed(team, player)) return Fault(side, "a man in the order isn't marked as used");
        for (std::size_t j = i + 1; j < team.lineup.size(); ++j) {
            if (team.lineup[j].player == player) return Fault(side, "one man twice in the order");
        }
    }
    const bool pitcher = AwaitsLineup(state, side) || KnownPlayer(data[side], team.pitcher);
    if (!pitcher) return Fault(side, "no pitcher");
    return team.AutoOuts == AutoOutsFromTotal(team.DRTotal) ? std::string() : Fault(side, "automatic outs don't fit");
}

std::string Field(const GameData& data, const GameState& state) {
    if (!PitchDue(state)) return {};
    const Side side = state.FieldingSide();
    const TeamState& team = state[side];
    const auto men = [&](Position position) {
        return std::count_if(team.lineup.begin(), team.lineup.end(),
                             [&](const LineupSlot& slot) { return slot.position == position; });
    };
    for (int p = static_cast<int>(Position::P); p <= static_cast<int>(Position::RF); ++p) {
        const auto position = static_cast<Position>(p);
        const bool outside = position == Position::P && data.DHUsed;
        if (men(position) != (outside ? 0 : 1)) {
            return Fault(side, "not one man at " + std::string(PositionText(position)));
        }
    }
    if (men(Position::DH) != (data.DHUsed ? 1 : 0)) return Fault(side, "the DH doesn't fit the game");
    for (const LineupSlot& slot : team.lineup) {
        if (slot.position == Position::P && slot.player != team.pitcher) return Fault(side, "two pitchers");
    }
    return {};
}

// --- The lines ---

std::string LineLimits(const GameState& state, Side side) {
    const BoxLines& box = state[side].box;
    if (box.BatterLineCount < 9 || box.BatterLineCount > kMaxBatterLines) return Fault(side, "batter lines");
    if (box.FielderLineCount < 9 || box.FielderLineCount > kMaxFielderLines) return Fault(side, "fielder lines");
    if (box.PitchersUsed < 1 || box.PitchersUsed > kMaxPitchingLines) return Fault(side, "pitching lines");
    return {};
}

// Each slot has one active line, which is that of the man in the slot. Past the capacity a man may have none.
template <class Lines>
std::string ActiveLines(const TeamState& team, Side side, const Lines& lines, int count, bool withPosition) {
    std::array<int, 11> active{};
    for (int i = 0; i < count; ++i) {
        const auto& line = lines[static_cast<std::size_t>(i)];
        if (line.Slot < 1 || line.Slot > 10) return Fault(side, "a line of no slot");
        if (!line.Active) continue;
        if (++active[line.Slot] > 1) return Fault(side, "two active lines of one slot");
        if (line.Slot == 10) {
            if (!team.pitcher.Nobody() && line.player != team.pitcher) return Fault(side, "line of a pitcher gone");
            continue;
        }
        const LineupSlot& slot = team.lineup[line.Slot - 1U];
        if (slot.player.Nobody()) continue;
        if (slot.player != line.player) return Fault(side, "active line of a man who is out of the game");
        if (withPosition && slot.position != line.position) return Fault(side, "fielding line at the wrong position");
    }
    if (count == static_cast<int>(lines.size())) return {};
    for (std::size_t slot = 1; slot <= 9; ++slot) {
        if (active[slot] == 0) return Fault(side, "no active line in slot " + std::to_string(slot));
    }
    return {};
}

std::string Lines(const GameState& state, Side side) {
    const TeamState& team = state[side];
    const BoxLines& box = team.box;
    return FirstOf({ActiveLines(team, side, box.batter, box.BatterLineCount, false),
                    ActiveLines(team, side, box.fielder, box.FielderLineCount, true)});
}

BattingCounts Minus(const BattingCounts& total, const BattingCounts& part) {
    const auto less = [](int a, int b) { return static_cast<std::uint8_t>(a - b); };
    return {less(total.AB, part.AB),           less(total.H, part.H),   less(total.Doubles, part.Doubles),
            less(total.Triples, part.Triples), less(total.HR, part.HR), less(total.RBI, part.RBI),
            less(total.BB, part.BB),           less(total.SO, part.SO), less(total.HBP, part.HBP),
            less(total.SH, part.SH),           less(total.SF, part.SF), less(total.GIDP, part.GIDP)};
}

std::string EachLine(const GameState& state, Side side) {
    const BoxLines& box = state[side].box;
    for (int i = 0; i < box.BatterLineCount; ++i) {
        const BatterLine& line = box.batter[static_cast<std::size_t>(i)];
        const BattingCounts& t = line.total;
        if (Minus(t, line.vsLeft) != line.vsRight) return Fault(side, "the splits of a batter aren't his total");
        if (t.H > t.AB || t.Doubles + t.Triples + t.HR > t.H || t.SO + t.GIDP + t.H > t.AB) {
            return Fault(side, "a batter with more hits or outs than at bats");
        }
    }
    for (int i = 0; i < box.PitchersUsed; ++i) {
        const PitchingLine& line = box.pitching[static_cast<std::size_t>(i)];
        if (line.ER < 0 || line.R < 0 || line.IPOuts < 0) return Fault(side, "a pitcher with less than nothing");
        if (line.HR > line.H || line.SO > line.IPOuts || line.AutoOuts > line.IPOuts) {
            return Fault(side, "a pitcher with more of a part than of the whole");
        }
    }
    return {};
}

int PlateAppearances(const BatterLine& line) {
    return line.total.AB + line.total.BB + line.total.HBP + line.total.SH + line.total.SF;
}

// One side's batting against the other's pitching.
std::string BattingAgainstPitching(const GameState& state, Side side) {
    const BoxLines& bat = state[side].box;
    const BoxLines& pitch = state[Other(side)].box;
    const TeamState& team = state[side];
    const auto pitched = [&](std::int16_t PitchingLine::*count) {
        return PitcherSum(pitch, [&](const PitchingLine& line) { return line.*count; });
    };
    const auto batted = [&](std::uint8_t BattingCounts::*count) {
        return BatterSum(bat, [&](const BatterLine& line) { return line.total.*count; });
    };
    std::string fault = FirstOf({Unequal(side, "runs against the pitchers", pitched(&PitchingLine::R), team.Runs),
                                 Unequal(side, "hits against the pitchers", pitched(&PitchingLine::H), team.Hits)});
    // A man without a line leaves no trace among the batters.
    if (!fault.empty() || bat.BatterLineCount == kMaxBatterLines) return fault;
    const int runs = BatterSum(bat, [](const BatterLine& line) { return line.R; });
    const int appearances = BatterSum(bat, PlateAppearances);
    if (batted(&BattingCounts::RBI) > team.Runs) return Fault(side, "more runs batted in than runs");
    return FirstOf({Unequal(side, "sum of the batters' runs", runs, team.Runs),
                    Unequal(side, "sum of the batters' hits", batted(&BattingCounts::H), team.Hits),
                    Unequal(side, "batters faced", pitched(&PitchingLine::BF), appearances),
                    Unequal(side, "home runs", pitched(&PitchingLine::HR), batted(&BattingCounts::HR)),
                    Unequal(side, "walks", pitched(&PitchingLine::BB), batted(&BattingCounts::BB)),
                    Unequal(side, "strikeouts", pitched(&PitchingLine::SO), batted(&BattingCounts::SO)),
                    Unequal(side, "hit batsmen", pitched(&PitchingLine::HBP), batted(&BattingCounts::HBP))});
}

// Outs and errors of a side in the field. No put-out is booked for a runner caught stealing or picked off.
std::string Fielding(const GameState& state, Side side) {
    const BoxLines& box = state[side].box;
    const Side batting = Other(side);
    const int halves = batting == state.BattingSide ? state.Inning - 1
                       : batting == Side::Visitor   ? state.Inning
                                                    : state.Inning - 1;
    const int outs = 3 * halves + (batting == state.BattingSide ? state.Outs : 0);
    const int pitched = PitcherSum(box, [](const PitchingLine& line) { return line.IPOuts; });
    const std::string fault = Unequal(side, "sum of the pitchers' outs", pitched, outs);
    if (!fault.empty() || box.FielderLineCount == kMaxFielderLines) return fault;
    const int errors = FielderSum(box, [](const FielderLine& line) { return line.Errors; });
    const int putOuts = FielderSum(box, [](const FielderLine& line) { return line.PutOuts; });
    if (putOuts > outs) return Fault(side, "more put-outs than outs");
    return Unequal(side, "sum of the fielders' errors", errors, state[side].Errors);
}

// The men whom the pitchers answer for are at least those on base: an out on the bases is taken off the current pitcher
// only, so a relieved man can be left with one too many, never with one too few.
std::string ChargedRunners(const GameState& state) {
    if (state.GameOverFlag) return {};
    const int charged = PitcherSum(state.Fielding().box, [](const PitchingLine& line) { return line.RunnersCharged; });
    const int on = MenOnBase(state.Batting());
    if (charged < on) return Fault(state.FieldingSide(), "men on base whom no pitcher answers for");
    if (state.Fielding().box.PitchersUsed == 1) return Unequal(state.FieldingSide(), "runners charged", charged, on);
    return {};
}

std::string Decisions(const GameState& state, Side side) {
    const BoxLines& box = state[side].box;
    const int wins = PitcherSum(box, [](const PitchingLine& line) { return line.Win; });
    const int losses = PitcherSum(box, [](const PitchingLine& line) { return line.Loss; });
    const int saves = PitcherSum(box, [](const PitchingLine& line) { return line.Save; });
    const int both = PitcherSum(box, [](const PitchingLine& line) { return line.Win + line.Loss + line.Save > 1; });
    if (wins > 1 || losses > 1 || saves > 1) return Fault(side, "two decisions of one kind");
    if (both > 0) return Fault(side, "two decisions for one pitcher");
    if (!state.GameOverFlag) return {};
    const bool won = state[side].Runs > state[Other(side)].Runs;
    if (!won && saves > 0) return Fault(side, "a save in a game that isn't won");
    return FirstOf(
        {Unequal(side, "number of wins", wins, won ? 1 : 0), Unequal(side, "number of losses", losses, won ? 0 : 1)});
}

std::string BoxOk(const GameState& state, Side side) {
    if (!BetweenPlays(state)) return {};
    return FirstOf({EachLine(state, side), BattingAgainstPitching(state, side), Fielding(state, side)});
}

}  // namespace

std::string StateOk(const GameData& data, const GameState& state) {
    if (std::string fault = FirstOf({Situation(state), PlayAtRest(state)}); !fault.empty()) return fault;
    for (const Side side : kBothSides) {
        const std::string limits = LineLimits(state, side);
        if (!limits.empty()) return limits;
        const std::string fault =
            FirstOf({Bases(state, side), RunsByInning(state, side), Fatigue(state, side), Order(data, state, side),
                     Lines(state, side), BoxOk(state, side), Decisions(state, side)});
        if (!fault.empty()) return fault;
    }
    return FirstOf({Field(data, state), BetweenPlays(state) ? ChargedRunners(state) : std::string()});
}

}  // namespace tarvane
