#include "ratings/explain.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>

namespace tarvane {

namespace {

using Out = std::back_insert_iterator<std::string>;

std::string_view ResultName(const PlacedResult& result) {
    if (result.text != " ") return result.text;
    return result.color == kBlueWord ? "strikeout" : "walk";
}

// The weight a chart really holds of a result; a pitcher's outs are grounders and flies together.
int WeightOnChart(const ChartCells& cells, const PlacedResult& result) {
    int weight = 0;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const bool out = result.text == "G/F" && (cells[i].text == "G" || cells[i].text == "F");
        if (cells[i].color == result.color && (out || cells[i].text == result.text)) weight += kCellWeight[i];
    }
    return weight;
}

void TellPlaced(Out out, const std::vector<PlacedResult>& placed, const ChartCells& cells) {
    fmt::format_to(out, "    {:<12}{:>7}{:>8}{:>8}\n", "placed", "asked", "holds", "over");
    for (const PlacedResult& result : placed) {
        const int holds = WeightOnChart(cells, result);
        const int over = holds - std::max(result.asked, 0);
        fmt::format_to(out, "    {:<12}{:>7}{:>8}{:>+8}\n", ResultName(result), result.asked, holds, over);
    }
}

void TellShare(Out out, std::string_view name, const std::string& made, double share, int full, int count) {
    const std::string changed = count == full ? "" : fmt::format("  ->{:>4}", count);
    fmt::format_to(out, "    {:<12}{:<44}{:>9.4f}{:>8}{}\n", name, made, share, full, changed);
}

std::string LineText(const SplitLine& l) {
    return fmt::format("{} AB, {} H, {} 2B, {} 3B, {} HR, {} RBI, {} BB, {} SO, {} HBP", l.AB, l.H, l.Doubles,
                       l.Triples, l.HR, l.RBI, l.BB, l.SO, l.HBP);
}

void TellShares(Out out, const CountsDerivation& d, const LeagueBaseline& league, double hitFactor, double walkShare) {
    const SplitLine& l = d.line;
    const BattingShares& s = d.shares;
    const BattingWeights& f = d.full;
    const BattingWeights& c = d.counts;
    const int singles = l.H - l.Doubles - l.Triples - l.HR;
    const auto hits = [&](int count) { return fmt::format("{} / {} AB * {:.3f}", count, l.AB, hitFactor); };
    const double PA = league.PAFactor;
    fmt::format_to(out, "    {:<12}{:<44}{:>9}{:>8}\n", "chance", "made of", "share", "of 216");
    TellShare(out, "singles", hits(singles), s.p1B, f.n1B, c.n1B);
    TellShare(out, "doubles", hits(l.Doubles), s.p2B, f.n2B, c.n2B);
    TellShare(out, "triples", hits(l.Triples), s.p3B, f.n3B, c.n3B);
    TellShare(out, "home runs", hits(l.HR), s.pHR, f.nHR, c.nHR);
    TellShare(out, "walks",
              fmt::format("{} * {:.3f} / {} AB * {:.3f} - league {:.4f}", l.BB, walkShare, l.AB, PA, league.BBAvg),
              s.pBB, f.nBB, c.nBB);
    TellShare(out, "strikeouts", fmt::format("{} / {} AB * {:.3f}", l.SO, l.AB, PA), s.pSO, f.nSO, c.nSO);
    TellShare(out, "hit by p.", fmt::format("{} / {} AB * {:.3f} - league {:.4f}", l.HBP, l.AB, PA, league.HBPRate),
              s.pHBP, f.nHBP, c.nHBP);
    TellShare(out, "outs", "the rest", s.pOut, f.nOut, c.nOut);
}

void TellCounts(Out out, const CountsDerivation& d, const LeagueBaseline& league, double hitFactor, double walkShare) {
    if (d.line.AB > 0) TellShares(out, d, league, hitFactor, walkShare);
    if (d.smallSample) {
        fmt::format_to(out, "    Fewer than {} at bats: weights shrink by {}/{}, outs take the room.\n", d.sampleLimit,
                       d.line.AB, d.sampleLimit);
    }
    if (d.walksCapped) fmt::format_to(out, "    Walks are held to a weight of 54.\n");
    if (d.fallback) fmt::format_to(out, "    No at bats or no hit: the chart of an unknown batter.\n");
    fmt::format_to(out,
                   "    Errors 3 or 4 by a draw. RBI rate {:.4f}, league {:.4f}: \"SF\" and \"G*\" take {:.2f} of the "
                   "outs each.\n",
                   d.RBIRate, league.RBIAvg, d.sfShare);
}

void TellChances(Out out, const BattingChances& c) {
    fmt::format_to(
        out,
        "    chances: singles {:.4f}, doubles {:.4f}, triples {:.4f}, home runs {:.4f}, walks and hit batters "
        "{:.4f}, strikeouts {:.4f}\n",
        c.Singles, c.Doubles, c.Triples, c.HR, c.BBorHBP, c.SO);
}

void TellControl(Out out, const ControlRatings& r) {
    fmt::format_to(out, "  BBRating {} ({:.1f} % of the league's walks), SORating {} ({:.1f} % of its strikeouts)\n",
                   r.BBRating, r.BBPct, r.SORating, r.SOPct);
}

void TellPitchingCount(Out out, std::string_view name, const std::string& made, double difference, int count) {
    fmt::format_to(out, "    {:<16}{:<44}{:>+9.4f}{:>8}\n", name, made, difference, count);
}

void TellPitching(Out out, const PitcherDerivation& d) {
    const PitchingDerivation& p = d.pitching;
    const LahmanPitchingRow& l = p.line;
    const PitchingCounts& c = p.counts;
    const auto rate = [&](double count, double average) {
        return fmt::format("{:g} / {:g} batters - league {:.4f}", count, p.BF, average);
    };
    fmt::format_to(out, "    {:<16}{:<44}{:>9}{:>8}\n", "chance", "made of", "per BF", "weight");
    TellPitchingCount(out, "walks", fmt::format("{:g} / {:g} batters, at most 42", p.NetBB, p.BF),
                      p.BF > 0 ? p.NetBB / p.BF : 0, c.nPitchBB);
    TellPitchingCount(out, "strikeouts", rate(l.SO, d.league.AvgSOBFP), p.SODiff, c.nPitchSO);
    TellPitchingCount(out, p.HitDiff < 0 ? "outs" : "hits", rate(l.H, d.league.AvgHBFP), p.HitDiff,
                      p.HitDiff < 0 ? c.nPitchOut : c.nPitchHit);
    TellPitchingCount(out, p.HRDiff < 0 ? "home runs down" : "home runs up", rate(l.HR, d.league.AvgHRBFP), p.HRDiff,
                      p.HRDiff < 0 ? c.nPitchHRDown : c.nPitchHRUp);
}

}  // namespace

char ColorLetter(std::int32_t color) {
    switch (color) {
        case kGreenWord: return 'G';
        case kRedWord: return 'R';
        case kBlueWord: return 'B';
        case kYellowWord:
        case kStoredYellowWord: return 'Y';
        case kWhiteWord: return 'W';
        default: return '?';
    }
}

std::string ChartText(const std::vector<TitledChart>& charts) {
    std::string text;
    Out out(text);
    fmt::format_to(out, "Roll Weight");
    for (const TitledChart& chart : charts) fmt::format_to(out, "  {:<10}", chart.title);
    text.erase(text.find_last_not_of(' ') + 1);
    text += '\n';
    for (std::size_t i = 0; i < kChartRows; ++i) {
        fmt::format_to(out, "{:>4}{:>7}", static_cast<int>(i) + kFirstRoll, kCellWeight[i]);
        for (const TitledChart& chart : charts) {
            const ChartCell& cell = (*chart.cells)[i];
            const std::size_t width = std::max<std::size_t>(10, chart.title.size());
            fmt::format_to(out, "  {:<5}{:<{}}", cell.text, ColorLetter(cell.color), width - 5);
        }
        text.erase(text.find_last_not_of(' ') + 1);
        text += '\n';
    }
    return text;
}

std::string ExplainBatter(const BatterDerivation& d, std::string_view name) {
    std::string text;
    Out out(text);
    fmt::format_to(out, "{}: {} at bats of the season, hits by {:.3f}, all else by {:.3f}\n", name, d.line.AB, d.F,
                   d.league.PAFactor);
    TellControl(out, d.control);
    const auto side = [&](std::string_view hand, const CountsDerivation& counts, const BattingChart& chart) {
        fmt::format_to(out, "  Against {}-handed pitching: {}\n", hand, LineText(counts.line));
        TellCounts(out, counts, d.league, d.F, d.NIBBRatio);
        TellPlaced(out, chart.placed, chart.cells);
        TellChances(out, chart.chances);
    };
    side("left", d.vsL, d.charts.vsL);
    side("right", d.vsR, d.charts.vsR);
    fmt::format_to(out, "  \"DP\" takes {:.3f} of the outs at running rating {}; the cells left are \"G\" or \"F\".\n",
                   DoublePlayShare(d.runRating), d.runRating);
    return text;
}

std::string ExplainPitcher(const PitcherDerivation& d, std::string_view name) {
    std::string text;
    Out out(text);
    const PitchingDerivation& p = d.pitching;
    const LahmanPitchingRow& l = p.line;
    fmt::format_to(out, "{}: {} games, {} starts, {}.{} innings, {} H, {} BB, {} SO, {} HR\n", name, l.G, l.GS,
                   l.IPouts / 3, l.IPouts % 3, l.H, l.BB, l.SO, l.HR);
    fmt::format_to(
        out, "  tiredRating {} ({:.2f} innings a game times {:.2f}), secondWindRating {} ({:.1f} % complete games)\n",
        p.tiredRating, p.IPG, p.IPGFactor, p.secondWindRating, p.CGPct);
    TellPitching(out, d);
    TellPlaced(out, d.chart.placed, d.chart.cells);
    if (d.stockBatting) {
        fmt::format_to(out, "  At bat: {}; the stock chart.\n",
                       d.hasBattingLine ? "no at bats or no hit" : "no batting line");
    } else {
        fmt::format_to(out, "  At bat: {}\n", LineText(d.batting.line));
        TellCounts(out, d.batting, d.league, d.league.PAFactor, 1);
        TellPlaced(out, d.batChart.placed, d.batChart.cells);
    }
    TellChances(out, d.batChart.chances);
    TellControl(out, d.control);
    return text;
}

std::string ExplainRunning(const RunningDerivation& d) {
    return fmt::format(
        "  runRating {}: value {:.2f} of success {:.2f}, attempts {:.2f}, triples {:.2f} (runs {:.2f} and double plays "
        "{:.2f} have no weight); BuntRating {}\n",
        d.runRating, d.value, d.RateScore, d.FreqScore, d.TriplesScore, d.RunsScore, d.GIDPScore, d.BuntRating);
}

std::string ExplainFielding(const std::vector<FieldingDerivation>& entries) {
    std::string text;
    Out out(text);
    for (const FieldingDerivation& d : entries) {
        fmt::format_to(out, "  {} {:+d}{}: {:g} games", PositionText(d.entry.position), d.entry.rating,
                       d.entry.errorRating, d.line.G);
        if (d.noBaseline) {
            fmt::format_to(out, ", no league figures for the position\n");
            continue;
        }
        fmt::format_to(out, ", a game PO {:+.3f}, A {:+.3f}, DP {:+.3f}, E {:+.3f} against the league", d.PODiff,
                       d.ADiff, d.DPDiff, d.EDiff);
        fmt::format_to(out, "; gain {}, loss {:.2f}, raw {}; error index {}{}\n", d.Gain, d.Loss, d.rawRating,
                       d.ErrorIndex,
                       d.strongArm ? "; arm (I)"
                       : d.weakArm ? "; arm (O)"
                                   : "");
    }
    return text;
}

void UseStoredCharts(BatterDerivation& d, const Batter& stored) {
    d.charts.vsL.cells = stored.vsL;
    d.charts.vsR.cells = stored.vsR;
    d.charts.vsL.chances = stored.vsLChance;
    d.charts.vsR.chances = stored.vsRChance;
    d.control.BBRating = stored.BBRating;
    d.control.SORating = stored.SORating;
}

void UseStoredCharts(PitcherDerivation& d, const Pitcher& stored) {
    d.chart.cells = stored.pitch;
    d.batChart.cells = stored.Bat;
    d.batChart.chances = stored.batChance;
    d.pitching.tiredRating = stored.tiredRating;
    d.pitching.secondWindRating = stored.secondWindRating;
    d.control.BBRating = stored.BBRating;
    d.control.SORating = stored.SORating;
}

}  // namespace tarvane
