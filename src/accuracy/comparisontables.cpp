#include "accuracy/comparisontables.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace tarvane {

namespace {

Value Maybe(const std::optional<double>& value) {
    return value ? Value(*value) : Value();
}

Value TextOf(Verdict verdict) {
    return std::string(VerdictText(verdict));
}

// Standard errors are unknown of a single replay.
Value ErrorOf(const Comparison& comparison, const Estimate& estimate) {
    return comparison.replays > 1 ? Value(estimate.error) : Value();
}

std::vector<ReportTable> RateTables(const Comparison& comparison) {
    std::vector<ReportTable> tables;
    for (const RateComparison& row : comparison.rates) {
        const std::string title = row.league + ", a plate appearance (H to HBP) and a team's game (the rest)";
        if (tables.empty() || tables.back().title != title)
            tables.push_back({title,
                              {{"rate", "rate"},
                               {"real", "real", CellFormat::Fixed4},
                               {"replay", "replay", CellFormat::Fixed4},
                               {"+-", "standardError", CellFormat::Fixed4},
                               {"off", "off", CellFormat::Percent},
                               {"bound", "bound", CellFormat::Percent},
                               {"", "verdict"}},
                              {}});
        tables.back().rows.push_back({std::string(row.rate->name), Maybe(row.real), row.replay.mean,
                                      ErrorOf(comparison, row.replay), Maybe(row.Off()),
                                      row.real ? Value(row.rate->bound) : Value(), TextOf(row.Judge())});
    }
    return tables;
}

ReportTable TeamTable(const Comparison& comparison) {
    ReportTable table{"Clubs: runs a game for and against, wins, and the wins that the runs would bring",
                      {{"club", "club"},
                       {"RF", "runsFor", CellFormat::Fixed2},
                       {"replay", "replayRunsFor", CellFormat::Fixed2},
                       {"RA", "runsAgainst", CellFormat::Fixed2},
                       {"replay", "replayRunsAgainst", CellFormat::Fixed2},
                       {"W", "wins", CellFormat::Fixed1},
                       {"by runs", "pythagorean", CellFormat::Fixed1},
                       {"replay", "replayWins", CellFormat::Fixed1},
                       {"+-", "winsStandardError", CellFormat::Fixed1},
                       {"by runs", "replayPythagorean", CellFormat::Fixed1}},
                      {}};
    for (const TeamComparison& t : comparison.teams)
        table.rows.push_back({t.teamID, t.RF, t.replayRF.mean, t.RA, t.replayRA.mean, t.W, t.pythagorean,
                              t.replayW.mean, ErrorOf(comparison, t.replayW), t.replayPythagorean.mean});
    return table;
}

ReportTable SpreadTable(const Comparison& comparison) {
    ReportTable table{
        fmt::format("Players (batters with {} at bats, pitchers with {} batters faced): replay less real, "
                    "over the noise of the dice",
                    kRegularAB, kRegularBF),
        {{"men", "men"},
         {"rate", "rate"},
         {"men", "number", CellFormat::Whole},
         {"mean", "mean", CellFormat::Fixed2},
         {"spread", "spread", CellFormat::Fixed2},
         {"bound", "bound", CellFormat::Fixed2},
         {"", "verdict"}},
        {}};
    for (const SpreadComparison& row : comparison.spreads)
        table.rows.push_back({row.men, row.what, static_cast<std::int64_t>(row.points.size()), row.spread.mean,
                              row.spread.deviation, row.bound, TextOf(row.Judge())});
    return table;
}

ReportTable UsageTable(const Comparison& comparison) {
    ReportTable table{"Use of these players, replay over real",
                      {{"", "what"},
                       {"men", "number", CellFormat::Whole},
                       {"median", "median", CellFormat::Fixed2},
                       {"share from 0.9 to 1.1", "within", CellFormat::Fixed2},
                       {"bound", "bound", CellFormat::Fixed2},
                       {"", "verdict"}},
                      {}};
    for (const UsageComparison& row : comparison.usage)
        table.rows.push_back({row.what, static_cast<std::int64_t>(row.points.size()), row.median, row.within,
                              kUsageBound, TextOf(row.Judge())});
    return table;
}

ReportTable PlatoonTable(const Comparison& comparison) {
    ReportTable table{"OPS by hand",
                      {{"batters", "batters"},
                       {"pitchers", "pitchers"},
                       {"real", "real", CellFormat::Rate},
                       {"replay", "replay", CellFormat::Rate},
                       {"+-", "standardError", CellFormat::Rate},
                       {"off", "off", CellFormat::Percent},
                       {"", "verdict"}},
                      {}};
    for (const PlatoonComparison& row : comparison.platoon)
        table.rows.push_back({row.batters, row.pitchers, row.real, row.replay.mean, ErrorOf(comparison, row.replay),
                              row.real > 0 ? Value(row.replay.mean / row.real - 1) : Value(), TextOf(row.Judge())});
    return table;
}

ReportTable ParkTable(const Comparison& comparison) {
    ReportTable table{
        "Parks, home over road: runs a game and home runs an at bat, what their factors let expect, and how many "
        "standard deviations apart",
        {{"club", "club"},
         {"park", "park"},
         {"runs", "runs", CellFormat::Fixed3},
         {"expected", "runsExpected", CellFormat::Fixed3},
         {"apart", "runsScore", CellFormat::Fixed1},
         {"HR", "homeRuns", CellFormat::Fixed3},
         {"expected", "homeRunsExpected", CellFormat::Fixed3},
         {"apart", "homeRunsScore", CellFormat::Fixed1}},
        {}};
    for (const ParkComparison& p : comparison.parks)
        table.rows.push_back({p.teamID, p.stadium, p.runs.replay, p.runs.expected, p.runs.score, p.HR.replay,
                              p.HR.expected, p.HR.score});
    return table;
}

// One line for each group of judgements, with its worst.
ReportTable JudgementTable(const Comparison& comparison) {
    ReportTable table{"What must hold",
                      {{"", "what"},
                       {"held", "held", CellFormat::Whole},
                       {"of", "judged", CellFormat::Whole},
                       {"worst", "worst"},
                       {"value", "value", CellFormat::Fixed3},
                       {"bound", "bound", CellFormat::Fixed3},
                       {"", "verdict"}},
                      {}};
    const std::vector<Judgement> lines = JudgementsOf(comparison);
    // A share is the worse the smaller it is, everything else the farther from 0 in its bound's measure.
    const auto badness = [](const Judgement& j) {
        return j.bound >= kUsageBound && j.bound < 1 ? j.bound - j.value : std::abs(j.value) / j.bound;
    };
    for (std::size_t first = 0, last = 0; first < lines.size(); first = last) {
        std::int64_t held = 0;
        Verdict verdict = Verdict::Aim;
        const Judgement* worst = &lines[first];
        for (last = first; last < lines.size() && lines[last].group == lines[first].group; ++last) {
            held += lines[last].verdict != Verdict::Fail ? 1 : 0;
            verdict = std::max(verdict, lines[last].verdict);
            if (badness(lines[last]) > badness(*worst)) worst = &lines[last];
        }
        table.rows.push_back({worst->group, held, static_cast<std::int64_t>(last - first), worst->what, worst->value,
                              worst->bound, TextOf(verdict)});
    }
    return table;
}

ReportTable OverallTable(const Comparison& comparison) {
    ReportTable table{
        fmt::format("{}: {} {}", comparison.year, comparison.replays, comparison.replays == 1 ? "replay" : "replays"),
        {{"", "what"}, {"", "value", CellFormat::Fixed3}, {"", "standardError", CellFormat::Fixed3}},
        {}};
    table.rows = {{std::string("home team's share of wins"), comparison.homeShare.mean,
                   ErrorOf(comparison, comparison.homeShare)},
                  {std::string("team runs for and against, root mean square off"), comparison.runsError, Value()},
                  {std::string("team wins, root mean square off"), comparison.winsError, Value()},
                  {std::string("the same of the real wins against the real runs"), comparison.luck, Value()}};
    return table;
}

}  // namespace

std::vector<ReportTable> ComparisonTables(const Comparison& comparison) {
    std::vector<ReportTable> tables{OverallTable(comparison)};
    for (ReportTable& table : RateTables(comparison)) tables.push_back(std::move(table));
    tables.push_back(TeamTable(comparison));
    tables.push_back(SpreadTable(comparison));
    tables.push_back(UsageTable(comparison));
    tables.push_back(PlatoonTable(comparison));
    tables.push_back(ParkTable(comparison));
    tables.push_back(JudgementTable(comparison));
    return tables;
}

}  // namespace tarvane
