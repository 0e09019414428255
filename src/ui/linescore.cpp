#include "ui/linescore.h"

#include <fmt/format.h>

#include <algorithm>

#include "ui/names.h"

namespace tarvane {

LineScoreView MakeLineScore(const GameData& data, const GameState& state) {
    LineScoreView view;
    const int innings = std::min<int>(state.Inning, kMaxInnings);
    for (int inning = 1; inning <= innings; ++inning) view.heads.push_back(std::to_string(inning));
    for (const char* total : {"R", "H", "E", "LOB"}) view.heads.emplace_back(total);
    for (const Side side : kBothSides) {
        const TeamState& team = state[side];
        view.name[side] = TeamName(data, side);
        std::vector<std::string>& cells = view.cells[side];
        for (int inning = 1; inning <= innings; ++inning)
            cells.push_back(std::to_string(team.InningRuns[static_cast<std::size_t>(inning - 1)]));
        if (side == Side::Home && state.BottomNotPlayed) cells.back() = "x";
        for (const int total : {team.Runs, team.Hits, team.Errors, team.LOB}) cells.push_back(std::to_string(total));
    }
    return view;
}

std::string FinalScoreText(const GameData& data, const GameState& state) {
    const Side first = state[Side::Home].Runs >= state[Side::Visitor].Runs ? Side::Home : Side::Visitor;
    const auto part = [&](Side side) { return fmt::format("{} {}", TeamName(data, side), state[side].Runs); };
    const std::string score = part(first) + ", " + part(Other(first));
    return state.Inning == 9 ? score : fmt::format("{} ({} innings)", score, state.Inning);
}

std::string DecisionsText(const GameData& data, const GameState& state) {
    std::string winner, loser, save;
    for (const Side side : kBothSides) {
        const BoxLines& box = state[side].box;
        for (const PitchingLine& line : box.pitching) {
            if (line.player.Nobody()) continue;
            const std::string name = PlayerName(data, side, line.player);
            if (line.Win) winner = "Winning pitcher:  " + name;
            if (line.Loss) loser = "Losing pitcher:  " + name;
            if (line.Save) save = "Save:  " + name;
        }
    }
    std::string text;
    for (const std::string& part : {winner, loser, save})
        if (!part.empty()) text += (text.empty() ? "" : "      ") + part;
    return text;
}

}  // namespace tarvane
