#include "ui/lineupfigures.h"

#include <fmt/format.h>

#include "engine/boxtext.h"

namespace tarvane {

namespace {

const Pitcher& PitcherRecord(const TeamRoster& roster, PlayerRef man) {
    return roster.pitchers[static_cast<std::size_t>(man.index)];
}
const Batter& BatterRecord(const TeamRoster& roster, PlayerRef man) {
    return roster.batters[static_cast<std::size_t>(man.index)];
}

bool Pitches(PlayerRef man, const FigureView& view) {
    return man.type == 'P' && !view.pitcherBats;
}

std::string Share(double chance) {
    return fmt::format("{:.1f}", chance * 100);
}

std::string ShareOf(int part, int whole) {
    const std::string text = fmt::format("{:.3f}", whole == 0 ? 0.0 : static_cast<double>(part) / whole);
    return text.front() == '0' ? text.substr(1) : text;
}

std::string PerNine(int count, int outs) {
    return outs == 0 ? "-" : fmt::format("{:.2f}", count * 27.0 / outs);
}

// What the table of batting statistics needs, wherever it comes from.
struct BattingFigures {
    int AB = 0, H = 0, Doubles = 0, Triples = 0, HR = 0, RBI = 0, BB = 0, SO = 0, HBP = 0, SF = 0;
    int R = -1, SB = -1;  // not known by hand

    template <class Counts>
    static BattingFigures Of(const Counts& c) {
        return {c.AB, c.H, c.Doubles, c.Triples, c.HR, c.RBI, c.BB, c.SO, c.HBP, c.SF, -1, -1};
    }
    std::vector<std::string> Texts() const {
        const int bases = H + Doubles + 2 * Triples + 3 * HR;
        const auto known = [](int figure) { return figure < 0 ? std::string() : std::to_string(figure); };
        std::vector<std::string> texts{ShareOf(H, AB), ShareOf(H + BB + HBP, AB + BB + HBP + SF), ShareOf(bases, AB)};
        for (const int figure : {AB, R, H, Doubles, Triples, HR, RBI, BB, SO, SB}) texts.push_back(known(figure));
        return texts;
    }
};

struct PitchingFigures {
    int W = 0, L = 0, G = 0, GS = 0, SV = 0, IPOuts = 0, H = 0, ER = 0, HR = 0, BB = 0, SO = 0;

    std::vector<std::string> Texts() const {
        std::vector<std::string> texts{std::to_string(W), std::to_string(L), PerNine(ER, IPOuts)};
        for (const int figure : {G, GS, SV}) texts.push_back(std::to_string(figure));
        texts.push_back(InningsText(IPOuts));
        for (const int figure : {H, ER, HR, BB, SO}) texts.push_back(std::to_string(figure));
        return texts;
    }
};

BattingFigures ReplayedBattingFigures(const TeamRoster& roster, PlayerRef man, const FigureView& view) {
    if (man.type == 'B' && view.split)
        return BattingFigures::Of(view.vsLeft ? BatterRecord(roster, man).vsLeft : BatterRecord(roster, man).vsRight);
    const BattingTotals& all = man.type == 'P' ? PitcherRecord(roster, man).batting : BatterRecord(roster, man).total;
    BattingFigures figures = BattingFigures::Of(all);
    figures.R = all.R;
    figures.SB = all.SB;
    return figures;
}

BattingFigures RealBattingFigures(const LahmanRecord& record, const FigureView& view) {
    if (view.split) return BattingFigures::Of(view.vsLeft ? record.vsLeft.counts : record.vsRight.counts);
    BattingFigures figures = BattingFigures::Of(record.total.counts);
    figures.R = record.R;
    figures.SB = record.SB;
    return figures;
}

std::vector<std::string> PitchingTexts(const PreparedGame& game, Side side, PlayerRef man, bool actual) {
    const Pitcher& pitcher = PitcherRecord(game.data[side].roster, man);
    if (!actual) {
        const PitchingTotals& t = pitcher.total;
        return PitchingFigures{t.W, t.L, t.Games, t.GS, t.SV, t.IPOuts, t.OppHits, t.ER, t.OppHR, t.OppBB, t.OppSO}
            .Texts();
    }
    const LahmanPitchRecord* real = game.real[side].FindPitcher(pitcher.LahmanPlayerID);
    if (real == nullptr) return {};
    return PitchingFigures{real->W, real->L,  real->G,  real->GS, real->SV, real->IPOuts,
                           real->H, real->ER, real->HR, real->BB, real->SO}
        .Texts();
}

}  // namespace

std::string HandText(std::int32_t hand) {
    if (hand == kSwitchHitter) return " (S)";
    return hand == kLeftHand ? " (L)" : " (R)";
}

SheetView ManChart(const TeamRoster& roster, PlayerRef man, const FigureView& view) {
    SheetView chart;
    if (man.Nobody()) return chart;
    if (man.type == 'P') {
        const Pitcher& pitcher = PitcherRecord(roster, man);
        chart.cell[0] = view.pitcherBats ? pitcher.Bat : pitcher.pitch;
        chart.title = fmt::format("{} ({})", pitcher.playerName, view.pitcherBats ? 'B' : pitcher.pitcherType);
        return chart;
    }
    const Batter& batter = BatterRecord(roster, man);
    chart.cell[0] = view.vsLeft ? batter.vsL : batter.vsR;
    chart.title = fmt::format("{} vs{}", batter.playerName, view.vsLeft ? 'L' : 'R');
    return chart;
}

std::vector<std::string> ChanceHeads(bool pitching) {
    if (pitching) return {"Chrt % SO", "Chrt % GO/FO", "Chrt % GrnK", "Chrt % BB/HP"};
    return {"Chrt % Hit", "Chrt % HR", "Chrt % 1B", "Chrt % 2B", "Chrt % 3B"};
}

std::vector<std::string> ChanceTexts(const TeamRoster& roster, PlayerRef man, const FigureView& view) {
    if (Pitches(man, view)) {
        const PitchingChances& c = PitcherRecord(roster, man).chance;
        return {Share(c.SO), Share(c.Out), Share(c.GreenK), Share(c.BBorHBP)};
    }
    const BattingChances& c = man.type == 'P' ? PitcherRecord(roster, man).batChance
                              : view.vsLeft   ? BatterRecord(roster, man).vsLChance
                                              : BatterRecord(roster, man).vsRChance;
    return {Share(c.Singles + c.Doubles + c.Triples + c.HR), Share(c.HR), Share(c.Singles), Share(c.Doubles),
            Share(c.Triples)};
}

std::vector<std::string> StatHeads(bool pitching) {
    if (pitching) return {"W", "L", "ERA", "G", "GS", "SV", "IP", "H", "ER", "HR", "BB", "SO"};
    return {"Avg", "OBP", "SLG", "AB", "R", "H", "2B", "3B", "HR", "RBI", "BB", "SO", "SB"};
}

std::vector<std::string> StatTexts(const PreparedGame& game, Side side, PlayerRef man, const FigureView& view) {
    if (Pitches(man, view)) return PitchingTexts(game, side, man, view.actual);
    const TeamRoster& roster = game.data[side].roster;
    if (!view.actual) return ReplayedBattingFigures(roster, man, view).Texts();
    const std::string& key =
        man.type == 'P' ? PitcherRecord(roster, man).LahmanPlayerID : BatterRecord(roster, man).LahmanPlayerID;
    const LahmanRecord* real = game.real[side].FindBatter(key);
    return real == nullptr ? std::vector<std::string>() : RealBattingFigures(*real, view).Texts();
}

std::vector<std::string> RosterTexts(const TeamRoster& roster, PlayerRef man) {
    const auto line = [](const auto& record, std::int32_t hand, const std::string& role) {
        return std::vector<std::string>{record.playerName + HandText(hand), role, std::to_string(record.runRating),
                                        record.BuntRating};
    };
    if (man.type == 'B') {
        const Batter& batter = BatterRecord(roster, man);
        return line(batter, batter.bats, batter.DefText);
    }
    const Pitcher& pitcher = PitcherRecord(roster, man);
    return line(pitcher, pitcher.throws_, pitcher.pitcherType == 'S' ? "Starter" : "Reliever");
}

}  // namespace tarvane
