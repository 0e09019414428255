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

std::string FielderText(const GameData& data, const GameState& state, Side side, Position position) {
    const TeamState& team = state[side];
    const bool pitcher = position == Position::P;
    for (const LineupSlot& slot : team.lineup) {
        if (slot.position != position) continue;
        std::string text = LastNameOf(data, side, slot.player);
        if (pitcher && team.PitcherTired)
            text += "**";
        else if (pitcher && team.PitcherIntermediateTired)
            text += "*";
        text += fmt::format(" {}", slot.SlotDR);
        if (data.rules.UseErrorRatings) text += fmt::format(" {}", slot.SlotErrorRating);
        if (position == Position::C && team.CatcherIRated) text += " I";
        if (position == Position::C && team.CatcherORated) text += " O";
        return text;
    }
    if (!pitcher) return {};
    return LastNameOf(data, side, team.pitcher) + (team.PitcherTired ? "**" : team.PitcherIntermediateTired ? "*" : "");
}

bool PitcherRolls(SheetCode sheet) {
    return sheet == SheetCode::P || sheet == SheetCode::PS;
}

std::string Hand(std::int32_t hand) {
    if (hand == kSwitchHitter) return " (S)";
    return hand == kLeftHand ? " (L)" : " (R)";
}

std::string Rate(double value) {
    std::string text = fmt::format("{:.3f}", value);
    return value < 1 ? text.substr(1) : text;
}

std::string Average(int hits, int atBats) {
    return Rate(atBats == 0 ? 0.0 : static_cast<double>(hits) / atBats);
}

std::string Innings(int outs) {
    return fmt::format("{}.{}", outs / 3, outs % 3);
}

std::string EarnedRunAverage(int earned, int outs) {
    return outs == 0 ? "-" : fmt::format("{:.2f}", earned * 27.0 / outs);
}

const BattingTotals& SeasonBatting(const TeamData& team, PlayerRef player) {
    const auto index = static_cast<std::size_t>(player.index);
    return player.type == 'P' ? team.roster.pitchers[index].batting : team.roster.batters[index].total;
}

const BatterLine* LineOf(const TeamState& team, PlayerRef player) {
    for (std::size_t i = 0; i < team.box.BatterLineCount; ++i)
        if (team.box.batter[i].Active && team.box.batter[i].player == player) return &team.box.batter[i];
    return nullptr;
}

PlayerPanel BatterPanel(const GameData& data, const GameState& state, Side side) {
    const LineupSlot& slot = state[side].lineup[static_cast<std::size_t>(state[side].BatterSlot - 1)];
    PlayerPanel panel{TeamName(data, side), PlayerName(data, side, slot.player) + Hand(slot.bats), false, {}};
    if (slot.player.Nobody()) return panel;
    const BattingTotals& season = SeasonBatting(data[side], slot.player);
    const BatterLine* line = LineOf(state[side], slot.player);
    const BatterLine game = line != nullptr ? *line : BatterLine{};
    const auto row = [&](const char* name, int cmp, int gm) {
        panel.rows.push_back({name, std::to_string(cmp), std::to_string(gm)});
    };
    row("AB", season.AB, game.total.AB);
    row("R", season.R, game.R);
    row("H", season.H, game.total.H);
    row("HR", season.HR, game.total.HR);
    row("RBI", season.RBI, game.total.RBI);
    row("BB", season.BB, game.total.BB);
    row("SO", season.SO, game.total.SO);
    row("SB", season.SB, game.SB);
    panel.rows.push_back({"Avg", Average(season.H, season.AB), Average(game.total.H, game.total.AB)});
    return panel;
}

PlayerPanel PitcherPanel(const GameData& data, const GameState& state, Side side) {
    const TeamState& team = state[side];
    const PlayerRef pitcher = team.pitcher;
    PlayerPanel panel{TeamName(data, side), PlayerName(data, side, pitcher) + Hand(team.PitcherThrows), true, {}};
    if (pitcher.Nobody() || pitcher.type != 'P') return panel;
    const PitchingTotals& season = data[side].roster.pitchers[static_cast<std::size_t>(pitcher.index)].total;
    const PitchingLine game =
        team.box.PitchersUsed > 0 ? team.box.pitching[team.box.PitchersUsed - 1U] : PitchingLine{};
    const auto row = [&](const char* name, int cmp, int gm) {
        panel.rows.push_back({name, std::to_string(cmp), std::to_string(gm)});
    };
    row("G", season.Games, 1);
    panel.rows.push_back({"IP", Innings(season.IPOuts), Innings(game.IPOuts)});
    row("H", season.OppHits, game.H);
    row("BB", season.OppBB, game.BB);
    row("SO", season.OppSO, game.SO);
    row("R", season.OppRuns, game.R);
    row("ER", season.ER, game.ER);
    panel.rows.push_back({"ERA", EarnedRunAverage(season.ER, season.IPOuts), EarnedRunAverage(game.ER, game.IPOuts)});
    row("BF", season.BF, game.BF);
    return panel;
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

PlayerPanel MakePlayerPanel(const GameData& data, const GameState& state, Side side) {
    return side == state.BattingSide ? BatterPanel(data, state, side) : PitcherPanel(data, state, side);
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
