#include <fmt/format.h>

#include "engine/boxtext.h"
#include "ui/gameview.h"
#include "ui/names.h"

namespace tarvane {

namespace {

std::string Hand(std::int32_t hand) {
    if (hand == kSwitchHitter) return " (S)";
    return hand == kLeftHand ? " (L)" : " (R)";
}

std::string Rate(int part, int whole) {
    const std::string text = fmt::format("{:.3f}", whole == 0 ? 0.0 : static_cast<double>(part) / whole);
    return text.front() == '0' ? text.substr(1) : text;
}

std::string EarnedRunAverage(int earned, int outs) {
    return outs == 0 ? "-" : fmt::format("{:.2f}", earned * 27.0 / outs);
}

// The figures of one column of a batter's panel.
struct BattingColumn {
    int AB = 0, R = 0, H = 0, HR = 0, RBI = 0, BB = 0, SO = 0, SB = 0;
    std::vector<std::string> Texts() const {
        std::vector<std::string> texts;
        for (const int figure : {AB, R, H, HR, RBI, BB, SO, SB}) texts.push_back(std::to_string(figure));
        texts.push_back(Rate(H, AB));
        return texts;
    }
};

struct PitchingColumn {
    int G = 0, IPOuts = 0, H = 0, BB = 0, SO = 0, R = 0, ER = 0, BF = 0;
    bool knowsRuns = true;  // the real lines hold earned runs only
    std::vector<std::string> Texts() const {
        return {std::to_string(G),  InningsText(IPOuts),          std::to_string(H),
                std::to_string(BB), std::to_string(SO),           knowsRuns ? std::to_string(R) : std::string(),
                std::to_string(ER), EarnedRunAverage(ER, IPOuts), std::to_string(BF)};
    }
};

void Fill(PlayerPanel& panel, const std::vector<const char*>& names, const std::vector<std::string>& season,
          const std::vector<std::string>& game, const std::vector<std::string>& real) {
    panel.hasReal = !real.empty();
    for (std::size_t i = 0; i < names.size(); ++i)
        panel.rows.push_back({names[i], season[i], game[i], panel.hasReal ? real[i] : std::string()});
}

BattingColumn SeasonBatting(const TeamData& team, PlayerRef player) {
    const auto index = static_cast<std::size_t>(player.index);
    const BattingTotals& t =
        player.type == 'P' ? team.roster.pitchers[index].batting : team.roster.batters[index].total;
    return {t.AB, t.R, t.H, t.HR, t.RBI, t.BB, t.SO, t.SB};
}

BattingColumn GameBatting(const TeamState& team, PlayerRef player) {
    for (std::size_t i = 0; i < team.box.BatterLineCount; ++i) {
        const BatterLine& line = team.box.batter[i];
        if (!line.Active || line.player != player) continue;
        const BattingCounts& t = line.total;
        return {t.AB, line.R, t.H, t.HR, t.RBI, t.BB, t.SO, line.SB};
    }
    return {};
}

std::vector<std::string> RealBattingTexts(const LahmanRecordSet& real, const std::string& lahmanID) {
    const LahmanRecord* record = real.FindBatter(lahmanID);
    if (record == nullptr) return {};
    const SplitLine& t = record->total.counts;
    return BattingColumn{t.AB, record->R, t.H, t.HR, t.RBI, t.BB, t.SO, record->SB}.Texts();
}

std::vector<std::string> RealPitchingTexts(const LahmanRecordSet& real, const std::string& lahmanID) {
    const LahmanPitchRecord* t = real.FindPitcher(lahmanID);
    if (t == nullptr) return {};
    return PitchingColumn{t->G, t->IPOuts, t->H, t->BB, t->SO, 0, t->ER, t->BFP, false}.Texts();
}

const std::string& LahmanID(const TeamData& team, PlayerRef player) {
    const auto index = static_cast<std::size_t>(player.index);
    return player.type == 'P' ? team.roster.pitchers[index].LahmanPlayerID : team.roster.batters[index].LahmanPlayerID;
}

const std::string& PictureOf(const TeamRoster& roster, PlayerRef player) {
    const auto index = static_cast<std::size_t>(player.index);
    return player.type == 'P' ? roster.pitchers[index].imagePath : roster.batters[index].imagePath;
}

PlayerPanel BatterPanel(const PreparedGame& game, const GameState& state, Side side) {
    const LineupSlot& slot = state[side].lineup[static_cast<std::size_t>(state[side].BatterSlot - 1)];
    PlayerPanel panel{
        TeamName(game.data, side), PlayerName(game.data, side, slot.player) + Hand(slot.bats), false, false, {}};
    if (slot.player.Nobody()) return panel;
    const TeamData& team = game.data[side];
    panel.picture = PictureOf(team.roster, slot.player);
    Fill(panel, {"AB", "R", "H", "HR", "RBI", "BB", "SO", "SB", "Avg"}, SeasonBatting(team, slot.player).Texts(),
         GameBatting(state[side], slot.player).Texts(), RealBattingTexts(game.real[side], LahmanID(team, slot.player)));
    return panel;
}

PlayerPanel PitcherPanel(const PreparedGame& game, const GameState& state, Side side) {
    const TeamState& team = state[side];
    const PlayerRef man = team.pitcher;
    PlayerPanel panel{
        TeamName(game.data, side), PlayerName(game.data, side, man) + Hand(team.PitcherThrows), true, false, {}};
    if (man.Nobody() || man.type != 'P') return panel;
    panel.picture = PictureOf(game.data[side].roster, man);
    const PitchingTotals& t = game.data[side].roster.pitchers[static_cast<std::size_t>(man.index)].total;
    const PitchingLine line =
        team.box.PitchersUsed > 0 ? team.box.pitching[team.box.PitchersUsed - 1U] : PitchingLine{};
    Fill(panel, {"G", "IP", "H", "BB", "SO", "R", "ER", "ERA", "BF"},
         PitchingColumn{t.Games, t.IPOuts, t.OppHits, t.OppBB, t.OppSO, t.OppRuns, t.ER, t.BF}.Texts(),
         PitchingColumn{1, line.IPOuts, line.H, line.BB, line.SO, line.R, line.ER, line.BF}.Texts(),
         RealPitchingTexts(game.real[side], LahmanID(game.data[side], man)));
    return panel;
}

}  // namespace

PlayerPanel MakePlayerPanel(const PreparedGame& game, const GameState& state, Side side) {
    return side == state.BattingSide ? BatterPanel(game, state, side) : PitcherPanel(game, state, side);
}

}  // namespace tarvane
