#include "accuracy/comparisonpage.h"

#include <fmt/format.h>

#include <cmath>

#include "accuracy/comparisontables.h"
#include "accuracy/plots.h"
#include "documents/page.h"

namespace tarvane {

namespace {

constexpr const char* kPageStyle =
    "body{font:15px/1.45 system-ui,sans-serif;color:#1b2733;background:#fff;max-width:1120px;margin:24px auto;"
    "padding:0 20px}\n"
    "h1{font-size:26px;margin:0 0 4px}h2{font-size:19px;margin:32px 0 8px;border-bottom:2px solid #d5dde5;"
    "padding-bottom:4px}p{margin:6px 0 12px;max-width:75ch}\n"
    ".plots{display:grid;grid-template-columns:repeat(auto-fill,minmax(310px,1fr));gap:14px}\n"
    ".wide{display:grid;grid-template-columns:repeat(auto-fit,minmax(440px,1fr));gap:14px}\n"
    "svg.plot{width:100%;height:auto;border:1px solid #d5dde5;border-radius:6px;background:#fff}\n"
    ".title{font-size:13px;font-weight:600;fill:#1b2733}.axis{font-size:12px;fill:#465563}"
    ".tick{font-size:11px;fill:#465563}\n"
    ".grid{stroke:#e6ebf0}.even{stroke:#5c6b79;stroke-dasharray:4 3}.dot{fill:#1f6fb2;fill-opacity:.55}\n"
    ".band{fill:#dfe9f2}.inner{fill:#bcd3e6}.bar{fill:#2f855a}.bad{fill:#c2410c}\n"
    "table{border-collapse:collapse;margin:6px 0 4px;font-variant-numeric:tabular-nums}\n"
    "caption{text-align:left;font-weight:600;padding:10px 0 4px}\n"
    "th,td{padding:2px 10px;text-align:right;border-bottom:1px solid #e6ebf0}th{background:#f1f5f8}\n"
    "th.left,td.left{text-align:left}td.FAIL{color:#b32d00;font-weight:700}td.aim{color:#1d6b44}td.ok{color:#4d5b00}\n"
    "@media print{body{margin:0;max-width:none;font-size:11px}svg.plot,table{break-inside:avoid}h2,p{break-after:avoid}"
    ".plots{grid-template-columns:repeat(3,1fr)}.wide{grid-template-columns:repeat(2,1fr)}}\n";

std::string RateBars(const Comparison& comparison) {
    std::string svg;
    std::string league;
    std::vector<PlotBar> bars;
    const auto flush = [&] {
        if (!bars.empty()) svg += BarsSvg(league + ", replay against real", bars);
        bars.clear();
    };
    for (const RateComparison& row : comparison.rates) {
        if (row.league != league) flush();
        league = row.league;
        if (const auto off = row.Off()) bars.push_back({std::string(row.rate->name), *off, row.rate->bound});
    }
    flush();
    return svg;
}

// The trials behind the noise of the men, on average: the noise at any value follows from them.
double TrialsBehind(const std::vector<ManPoint>& points) {
    double sum = 0, counted = 0;
    for (const ManPoint& p : points)
        if (p.noise > 0) sum += p.real * (1 - p.real) / (p.noise * p.noise), counted += 1;
    return counted > 0 ? sum / counted : 0;
}

std::vector<PlotPoint> PlotPoints(const std::vector<ManPoint>& men, int decimals) {
    std::vector<PlotPoint> points;
    for (const ManPoint& man : men)
        points.push_back(
            {man.real, man.replay,
             fmt::format("{}: real {:.{}f}, replay {:.{}f}", man.name, man.real, decimals, man.replay, decimals)});
    return points;
}

std::string PlayerPlots(const Comparison& comparison) {
    std::string svg;
    for (const SpreadComparison& row : comparison.spreads) {
        if (row.points.empty()) continue;
        ScatterPlot plot;
        plot.title = fmt::format("{}: {} (spread {:.2f}, mean {:+.2f})", row.men, row.what, row.spread.deviation,
                                 row.spread.mean);
        plot.points = PlotPoints(row.points, 3);
        plot.replays = static_cast<double>(comparison.replays);
        const double trials = TrialsBehind(row.points);
        if (trials > 0)
            plot.noise = [trials](double share) {
                return std::sqrt(std::max(share, 0.0) * std::max(1 - share, 0.0) / trials);
            };
        svg += ScatterSvg(plot);
    }
    return svg;
}

std::string UsePlots(const Comparison& comparison) {
    std::string svg;
    for (const UsageComparison& row : comparison.usage) {
        ScatterPlot plot;
        plot.title = fmt::format("{}: {:.0f} % within a tenth", row.what, row.within * 100);
        plot.across = "real, a team's game";
        plot.decimals = 1;
        plot.points = PlotPoints(row.points, 2);
        plot.noise = [](double value) { return value * 0.05; };  // the band of a tenth, which the bound speaks of
        if (!plot.points.empty()) svg += ScatterSvg(plot);
    }
    return svg;
}

std::string ClubPlots(const Comparison& comparison) {
    ScatterPlot runs, against, wins;
    runs.title = "runs scored a game", against.title = "runs allowed a game", wins.title = "wins";
    runs.decimals = against.decimals = 1, wins.decimals = 0;
    for (const TeamComparison& t : comparison.teams) {
        const auto label = [&](double real, double replay) {
            return fmt::format("{}: real {:.2f}, replay {:.2f}", t.name, real, replay);
        };
        runs.points.push_back({t.RF, t.replayRF.mean, label(t.RF, t.replayRF.mean)});
        against.points.push_back({t.RA, t.replayRA.mean, label(t.RA, t.replayRA.mean)});
        wins.points.push_back({t.W, t.replayW.mean, label(t.W, t.replayW.mean)});
    }
    if (comparison.teams.empty()) return {};
    return ScatterSvg(runs) + ScatterSvg(against) + ScatterSvg(wins);
}

std::string ParkPlots(const Comparison& comparison) {
    ScatterPlot runs, HR;
    runs.title = "runs a game, home over road", HR.title = "home runs an at bat, home over road";
    runs.decimals = HR.decimals = 2;
    runs.across = HR.across = "as the park's factors let expect";
    for (const ParkComparison& p : comparison.parks) {
        const auto label = [&](const ParkComparison::Ratio& r) {
            return fmt::format("{} ({}): expected {:.3f}, replay {:.3f}", p.stadium, p.teamID, r.expected, r.replay);
        };
        runs.points.push_back({p.runs.expected, p.runs.replay, label(p.runs)});
        HR.points.push_back({p.HR.expected, p.HR.replay, label(p.HR)});
    }
    return comparison.parks.empty() ? std::string() : ScatterSvg(runs) + ScatterSvg(HR);
}

std::string TableOf(const ReportTable& table) {
    std::string html = fmt::format("<table><caption>{}</caption>\n<thead><tr>", EscapeHtml(table.title));
    const auto left = [&](std::size_t c) { return table.columns[c].format == CellFormat::Text ? "left" : ""; };
    for (std::size_t c = 0; c < table.columns.size(); ++c)
        html += fmt::format("<th class=\"{}\">{}</th>", left(c), EscapeHtml(table.columns[c].title));
    html += "</tr></thead>\n<tbody>\n";
    for (const auto& row : table.rows) {
        html += "<tr>";
        for (std::size_t c = 0; c < row.size(); ++c) {
            const std::string text = FieldText(row[c], table.columns[c].format);
            const bool verdict = table.columns[c].key == "verdict";
            html += fmt::format("<td class=\"{}{}\">{}</td>", left(c), verdict ? " " + text : "", EscapeHtml(text));
        }
        html += "</tr>\n";
    }
    return html + "</tbody></table>\n";
}

std::string Section(const char* title, const char* text, const char* cssClass, const std::string& plots) {
    if (plots.empty()) return {};
    return fmt::format("<h2>{}</h2>\n<p>{}</p>\n<div class=\"{}\">\n{}</div>\n", title, text, cssClass, plots);
}

}  // namespace

std::string ComparisonPage(const Comparison& comparison, const std::string& seasonName) {
    const std::string title = fmt::format("{}: replay and reality", seasonName);
    std::string body = fmt::format(
        "<h1>{}</h1>\n<p>Season of {}, {} {} by computer managers, held against the real season.</p>\n",
        EscapeHtml(title), comparison.year, comparison.replays, comparison.replays == 1 ? "replay" : "replays");
    body +=
        Section("League rates",
                "Each bar tells how far the replays lie from the real rate; green bars stay within their allowance, "
                "the pale field behind them.",
                "wide", RateBars(comparison));
    body +=
        Section("Players",
                "One dot a man, at his real rate and his mean over the replays. The pale band holds 19 of 20 men in "
                "a single replay if dice alone move them, the darker band 19 of 20 of these means.",
                "plots", PlayerPlots(comparison));
    body += Section("Use", "At bats and innings of the same men; the band is a tenth up and down.", "plots",
                    UsePlots(comparison));
    body += Section("Clubs", "One dot a club.", "plots", ClubPlots(comparison));
    body += Section("Parks", "One dot a club's park.", "plots", ParkPlots(comparison));
    body += "<h2>Tables</h2>\n";
    for (const ReportTable& table : ComparisonTables(comparison)) body += TableOf(table);
    return fmt::format(
        "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>{}</title>\n"
        "<style>\n{}</style>\n</head>\n<body>\n{}</body>\n</html>\n",
        EscapeHtml(title), kPageStyle, body);
}

}  // namespace tarvane
