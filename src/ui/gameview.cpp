#include "ui/gameview.h"

#include <fmt/format.h>

#include <algorithm>

#include "ui/names.h"

namespace tarvane {

namespace {

std::string AutoOutText(std::uint8_t bits) {
    std::string text;
    for (int i = 0; i < 6; ++i)
        if ((bits >> i & 1) != 0) text += fmt::format("{} ", kFirstRoll + i);
    return text;
}

std::string AutoOuts(const GameData& data, const GameState& state) {
    const std::string visitor = TeamName(data, Side::Visitor);
    const std::string home = TeamName(data, Side::Home);
    const TeamState& v = state[Side::Visitor];
    const TeamState& h = state[Side::Home];
    if (data.rules.DefensiveErasInForce())
        return fmt::format("{} DR Totals: {} ({})  {} ({})", data.defensiveEra.EraName, visitor, v.DRTotal, home,
                           h.DRTotal);
    return fmt::format("Auto Outs (DR Total):  {}: {} ({})  {}: {} ({})", visitor, AutoOutText(v.AutoOuts), v.DRTotal,
                       home, AutoOutText(h.AutoOuts), h.DRTotal);
}

std::string Adjustment(bool used, int value) {
    return used ? std::to_string(value) : "N/A";
}

// An inning that a team has begun, or could have: what its runs show.
std::string InningRuns(const GameState& state, Side side, int inning) {
    if (inning > kMaxInnings || inning > state.Inning) return {};
    const bool home = side == Side::Home;
    const bool begun = inning < state.Inning || !home || state.BattingSide == Side::Home;
    if (home && inning == state.Inning && state.BottomNotPlayed) return "x";
    if (!begun) return {};
    const bool now = inning == state.Inning && side == state.BattingSide && !state.GameOverFlag;
    return std::to_string(now ? state.HalfInningRuns : state[side].InningRuns[static_cast<std::size_t>(inning - 1)]);
}

const char* Stars(const TeamState& team) {
    return team.PitcherTired ? "**" : team.PitcherIntermediateTired ? "*" : "";
}

// With a DH the pitcher stands in no slot: his ratings come from his own record.
std::string PitcherBesideDH(const GameData& data, const GameState& state, Side side) {
    const TeamState& team = state[side];
    const PlayerRef man = team.pitcher;
    std::string text = LastNameOf(data, side, man) + Stars(team);
    if (man.Nobody()) return text;
    for (const PositionRating& entry : data[side].roster.pitchers[static_cast<std::size_t>(man.index)].Pos) {
        if (entry.position != Position::P) continue;
        text += fmt::format(" {}", entry.rating);
        if (data.rules.UseErrorRatings) text += fmt::format(" {}", entry.errorRating);
        break;
    }
    return text;
}

std::string FielderText(const GameData& data, const GameState& state, Side side, Position position) {
    const TeamState& team = state[side];
    const bool pitcher = position == Position::P;
    if (pitcher && data.DHUsed) return PitcherBesideDH(data, state, side);
    for (const LineupSlot& slot : team.lineup) {
        if (slot.position != position) continue;
        std::string text = LastNameOf(data, side, slot.player);
        if (pitcher) text += Stars(team);
        text += fmt::format(" {}", slot.SlotDR);
        if (data.rules.UseErrorRatings) text += fmt::format(" {}", slot.SlotErrorRating);
        if (position == Position::C && team.CatcherIRated) text += " I";
        if (position == Position::C && team.CatcherORated) text += " O";
        return text;
    }
    return {};
}

bool PitcherRolls(SheetCode sheet) {
    return sheet == SheetCode::P || sheet == SheetCode::PS;
}

}  // namespace

ScoreBoardView MakeScoreBoard(const GameData& data, const GameState& state) {
    ScoreBoardView board;
    const int first = (std::max<int>(state.Inning, 1) - 1) / kInningsShown * kInningsShown + 1;
    for (int i = 0; i < kInningsShown; ++i) {
        const auto at = static_cast<std::size_t>(i);
        board.inning[at] = std::to_string(first + i);
        for (const Side side : kBothSides) board.runs[side][at] = InningRuns(state, side, first + i);
    }
    for (const Side side : kBothSides) {
        board.name[side] = TeamName(data, side);
        board.totals[side] = {state[side].Runs, state[side].Hits, state[side].Errors};
    }
    board.batting = state.BattingSide;
    board.current = state.Inning - first;
    board.outs = fmt::format("Outs: {}", state.Outs);
    board.innings = fmt::format("Inning: {}", state.Inning);
    board.autoOuts = AutoOuts(data, state);
    board.defAdj =
        fmt::format("Def Adj:  Park: {}  Year: {}", Adjustment(data.rules.UseParkEffects, data.park.DefAdjustment),
                    Adjustment(data.rules.UseYearEffects, data.year.DefAdjustment));
    constexpr int kNoYear = 9999;
    board.ballPark =
        data.park.yearID == kNoYear ? data.park.Stadium : fmt::format("{} {}", data.park.yearID, data.park.Stadium);
    return board;
}

FieldLabels MakeFieldLabels(const GameData& data, const GameState& state) {
    FieldLabels labels;
    const Side field = state.FieldingSide();
    const Side bat = state.BattingSide;
    for (int number = 1; number <= 9; ++number)
        labels.fielder[static_cast<std::size_t>(number - 1)].text =
            FielderText(data, state, field, static_cast<Position>(number));
    const bool pitcher = PitcherRolls(state.sheet);
    labels.fielder[0].framed = pitcher;
    const LineupSlot& slot = state.AtBat();
    FieldLabel& batter = StandsLeft(state) ? labels.leftBatter : labels.rightBatter;
    batter = {fmt::format("{} {}", LastNameOf(data, bat, slot.player), slot.BuntRating), !pitcher};
    for (std::size_t base = 1; base <= 3; ++base) {
        const Runner& runner = state[bat].runner[base];
        if (!runner.On()) continue;
        const int rating = state[bat].lineup[static_cast<std::size_t>(runner.slot - 1)].runRating;
        labels.runner[base - 1].text = fmt::format("{} {}", SlotLastName(data, state, bat, runner.slot), rating);
    }
    return labels;
}

std::vector<LineupLine> MakeLineup(const GameData& data, const GameState& state, Side side) {
    std::vector<LineupLine> lines;
    const TeamState& team = state[side];
    for (std::size_t i = 0; i < team.lineup.size(); ++i) {
        const LineupSlot& slot = team.lineup[i];
        std::string defence = std::to_string(slot.SlotDR);
        if (slot.position == Position::C && team.CatcherIRated) defence += " I";
        if (slot.position == Position::C && team.CatcherORated) defence += " O";
        const bool next = i + 1U == team.BatterSlot;
        lines.push_back({fmt::format("{}{}", next ? ">" : "", i + 1), PlayerName(data, side, slot.player),
                         std::string(PositionText(slot.position)), defence, std::to_string(slot.runRating),
                         std::string(1, slot.BuntRating)});
    }
    return lines;
}

}  // namespace tarvane
