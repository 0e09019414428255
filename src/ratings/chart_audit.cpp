#include "ratings/chart_audit.h"

#include <fmt/format.h>

#include <iterator>
#include <map>
#include <tuple>

#include "ratings/season_tables.h"

namespace tarvane {

std::string_view AuditResultName(AuditResult result) {
    constexpr std::array<std::string_view, kAuditResults> kNames{
        "singles", "doubles", "triples", "home runs", "walks", "hit batters", "strikeouts", "errors", "outs"};
    return kNames[static_cast<std::size_t>(result)];
}

double HitBattersOnYellowX(Database& common, bool injuryChart) {
    Statement query = common.Prepare(injuryChart ? "SELECT * FROM KorvYellowXChartInjuries WHERE YellowXRow = 'YellowX'"
                                                 : "SELECT * FROM KorvYellowXChartBasic");
    if (!query.Step()) return 0;
    int weight = 0;
    for (int column = 0; column < query.ColumnCount(); ++column) {
        for (int roll = kFirstRoll; roll <= kLastRoll; ++roll) {
            if (query.ColumnName(column) == fmt::format("Roll{}", roll) && query.Text(column) == "H") {
                weight += CellWeight(roll);
            }
        }
    }
    return weight / 216.0;
}

namespace {

constexpr std::size_t kLeft = 0;
constexpr std::size_t kRight = 1;

ChartCells ReadCells(const Statement& query, int& column) {
    ChartCells cells;
    for (ChartCell& cell : cells) {
        cell.text = query.Text(column++);
        cell.color = static_cast<std::int32_t>(query.Int(column++));
    }
    return cells;
}

std::string CellColumns(std::string_view prefix) {
    std::string list;
    for (int roll = kFirstRoll; roll <= kLastRoll; ++roll) list += fmt::format(", {0}{1}, {0}{1}Color", prefix, roll);
    return list;
}

// The mean chart of a league's pitchers, by hand, weighted by the batters they faced.
struct LeaguePitching {
    std::array<PitchingWeights, 2> weights{};  // left, right
    std::array<double, 2> battersFaced{};

    PitchingWeights Mean(std::size_t hand) const;
    double Share(std::size_t hand) const { return battersFaced[hand] / (battersFaced[0] + battersFaced[1]); }
};

constexpr std::array kPitchingFields{
    &PitchingWeights::swing,   &PitchingWeights::hit,       &PitchingWeights::out,         &PitchingWeights::strikeout,
    &PitchingWeights::walk,    &PitchingWeights::homeRunUp, &PitchingWeights::homeRunDown, &PitchingWeights::defence,
    &PitchingWeights::yellowX, &PitchingWeights::hitBatter, &PitchingWeights::error};

PitchingWeights LeaguePitching::Mean(std::size_t hand) const {
    // Where nobody of a hand pitched, the others' mean stands for it: no batter's split has at bats there to speak of.
    const std::size_t from = battersFaced[hand] > 0 ? hand : 1 - hand;
    PitchingWeights mean = weights[from];
    for (const auto field : kPitchingFields) mean.*field /= battersFaced[from];
    return mean;
}

// What a batter did against one hand, and how it counts in his league.
struct Meetings {
    int lgIdx = 0;
    double PA = 0;
    std::size_t hand = 0;
    AuditRates chart{};
    int BBRating = 40, SORating = 40;
};

class Auditor {
  public:
    explicit Auditor(Database& season)
        : season_(season), batting_(ReadLahmanBatting(season)), pitching_(ReadLahmanPitching(season)) {}

    std::vector<LeagueAudit> Run(const AuditSettings& settings) {
        ReadPitcherRows();
        ReadBatterRows();
        std::map<int, LeagueAudit> leagues;
        AddReal(leagues);
        AddCharts(leagues, settings);
        return Finish(leagues);
    }

  private:
    void ReadPitcherRows();
    void ReadBatterRows();
    // A man can stand in both tables; who pitched in half of his games bats by his pitcher's chart.
    bool BatsAsPitcher(const std::string& LahmanPlayerID, const std::string& team) const {
        const LahmanPitchingRow* pitched = pitching_.First(LahmanPlayerID, team);
        const LahmanBattingRow* batted = batting_.First(LahmanPlayerID, team);
        return pitched != nullptr && (batted == nullptr || pitched->G * 2 >= batted->G);
    }
    void AddReal(std::map<int, LeagueAudit>& leagues) const;
    void AddCharts(std::map<int, LeagueAudit>& leagues, const AuditSettings& settings) const;
    static std::vector<LeagueAudit> Finish(std::map<int, LeagueAudit>& leagues);

    Database& season_;
    StatisticsTable<LahmanBattingRow> batting_;
    StatisticsTable<LahmanPitchingRow> pitching_;
    std::map<int, LeaguePitching> staffs_;
    std::vector<Meetings> meetings_;
    std::map<std::string, int> leagueOf_;  // by team code
};

double RealPA(const LahmanBattingRow& row) {
    return row.AB + row.BB + row.HBP.value_or(0) + row.SF.value_or(0);
}
double SidePA(const SplitLine& line) {
    return line.AB + line.BB + line.HBP + line.SF;
}

void Auditor::ReadPitcherRows() {
    Statement query = season_.Prepare("SELECT LahmanPlayerID, teamID, lgIdx, throws, BBRating, SORating" +
                                      CellColumns("pitch") + CellColumns("Bat") + " FROM KorvPitchers ORDER BY rowid");
    std::map<std::string, int> rowsOfMan;  // a starter who relieved as well has two
    std::vector<std::pair<std::string, Meetings>> atBat;
    std::vector<std::tuple<std::string, int, std::size_t, PitchingWeights, double>> charts;
    while (query.Step()) {
        const std::string team = query.Text(1);
        const LahmanPitchingRow* line = pitching_.First(query.Text(0), team);
        const std::string key = query.Text(0) + '\t' + team;
        const int lgIdx = static_cast<int>(query.Int(2));
        const std::size_t hand = query.Int(3) == kLeftHand ? 0 : 1;
        leagueOf_.emplace(team, lgIdx);
        ++rowsOfMan[key];
        int column = 6;
        const ChartCells pitch = ReadCells(query, column);
        const ChartCells bat = ReadCells(query, column);
        if (line != nullptr) {
            charts.emplace_back(key, lgIdx, hand, WeightsOfPitchingChart(pitch), line->BFP.value_or(line->G * 30));
        }
        const LahmanBattingRow* own = batting_.First(query.Text(0), team);
        if (own != nullptr && BatsAsPitcher(query.Text(0), team)) {
            Meetings m{lgIdx,
                       RealPA(*own),
                       0,
                       WeightsOfBattingChart(bat),
                       static_cast<int>(query.Int(4)),
                       static_cast<int>(query.Int(5))};
            atBat.emplace_back(key, m);
        }
    }
    for (const auto& [key, lgIdx, hand, weights, BF] : charts) {
        LeaguePitching& staff = staffs_[lgIdx];
        const double share = BF / rowsOfMan[key];
        for (const auto field : kPitchingFields) staff.weights[hand].*field += weights.*field * share;
        staff.battersFaced[hand] += share;
    }
    for (auto& [key, m] : atBat) {
        const double PA = m.PA / rowsOfMan[key];
        for (const std::size_t hand : {kLeft, kRight}) {
            m.hand = hand;
            m.PA = PA * staffs_[m.lgIdx].Share(hand);
            meetings_.push_back(m);
        }
    }
}

void Auditor::ReadBatterRows() {
    Statement query = season_.Prepare("SELECT LahmanPlayerID, teamID, lgIdx, BBRating, SORating" + CellColumns("vsL") +
                                      CellColumns("vsR") + " FROM KorvBatters ORDER BY rowid");
    while (query.Step()) {
        const std::string team = query.Text(1);
        leagueOf_.emplace(team, static_cast<int>(query.Int(2)));
        const LahmanBattingRow* line = batting_.First(query.Text(0), team);
        if (line == nullptr || BatsAsPitcher(query.Text(0), team)) continue;
        int column = 5;
        Meetings m;
        m.lgIdx = static_cast<int>(query.Int(2));
        m.BBRating = static_cast<int>(query.Int(3));
        m.SORating = static_cast<int>(query.Int(4));
        for (const std::size_t hand : {kLeft, kRight}) {
            m.hand = hand;
            m.PA = SidePA(hand == 0 ? line->vsLeft : line->vsRight);
            m.chart = WeightsOfBattingChart(ReadCells(query, column));
            if (m.PA > 0) meetings_.push_back(m);
        }
    }
}

void Auditor::AddReal(std::map<int, LeagueAudit>& leagues) const {
    for (const LahmanBattingRow& row : batting_.rows) {
        const auto league = leagueOf_.find(row.KorvTeamID);
        if (league == leagueOf_.end()) continue;
        LeagueAudit& audit = leagues[league->second];
        const double strikeouts = row.SO.value_or(0);
        audit.PA += RealPA(row);
        At(audit.real, AuditResult::Single) += row.H - row.Doubles - row.Triples - row.HR;
        At(audit.real, AuditResult::Double) += row.Doubles;
        At(audit.real, AuditResult::Triple) += row.Triples;
        At(audit.real, AuditResult::HomeRun) += row.HR;
        At(audit.real, AuditResult::Walk) += row.BB;
        At(audit.real, AuditResult::HitBatter) += row.HBP.value_or(0);
        At(audit.real, AuditResult::Strikeout) += strikeouts;
        At(audit.real, AuditResult::Out) += row.AB - row.H - strikeouts + row.SF.value_or(0);
    }
}

void Auditor::AddCharts(std::map<int, LeagueAudit>& leagues, const AuditSettings& settings) const {
    std::map<int, double> met;
    for (const Meetings& m : meetings_) {
        const auto staff = staffs_.find(m.lgIdx);
        if (staff == staffs_.end()) continue;
        const AuditRates rates = MeetingRates(staff->second.Mean(m.hand), m.chart, m.BBRating, m.SORating, settings);
        AddTimes(leagues[m.lgIdx].charts, rates, m.PA);
        met[m.lgIdx] += m.PA;
    }
    for (auto& [lgIdx, audit] : leagues) {
        // Charts are told per meeting, then brought to the league's plate appearances, so that leagues can be summed.
        for (double& rate : audit.charts) rate *= met[lgIdx] > 0 ? audit.PA / met[lgIdx] : 0;
    }
}

std::vector<LeagueAudit> Auditor::Finish(std::map<int, LeagueAudit>& leagues) {
    std::vector<LeagueAudit> audits;
    LeagueAudit all;
    for (auto& [lgIdx, audit] : leagues) {
        audit.lgIdx = lgIdx;
        all.PA += audit.PA;
        AddTimes(all.real, audit.real, 1);
        AddTimes(all.charts, audit.charts, 1);
        audits.push_back(audit);
    }
    audits.push_back(all);
    for (LeagueAudit& audit : audits) {
        if (!(audit.PA > 0)) continue;
        for (double& rate : audit.real) rate /= audit.PA;
        for (double& rate : audit.charts) rate /= audit.PA;
    }
    return audits;
}

}  // namespace

std::vector<LeagueAudit> AuditCharts(Database& season, const AuditSettings& settings) {
    return Auditor(season).Run(settings);
}

std::string AuditText(const std::vector<LeagueAudit>& audit) {
    std::string text;
    const auto out = std::back_inserter(text);
    for (const LeagueAudit& league : audit) {
        const std::string name = league.lgIdx == 0 ? "All leagues" : fmt::format("League {}", league.lgIdx);
        fmt::format_to(out, "{}, {:.0f} plate appearances\n  {:<12}{:>8}{:>8}{:>8}\n", name, league.PA, "per 1000",
                       "real", "charts", "ratio");
        for (std::size_t i = 0; i < kAuditResults; ++i) {
            const double real = league.real[i];
            const double charts = league.charts[i];
            fmt::format_to(out, "  {:<12}{:>8.1f}{:>8.1f}", AuditResultName(static_cast<AuditResult>(i)), real * 1000,
                           charts * 1000);
            if (real > 0) fmt::format_to(out, "{:>8.3f}", charts / real);
            fmt::format_to(out, "\n");
        }
    }
    return text;
}

}  // namespace tarvane
