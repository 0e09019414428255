// The real season's totals from the imported statistics.

#include <array>
#include <cmath>

#include "accuracy/figures.h"
#include "accuracy/seasonteams.h"
#include "base/error.h"
#include "ratings/season_tables.h"

namespace tarvane {

namespace {

// Sums a count that may be missing in rows, with the plate appearances of the rows that have it.
struct PartlyRecorded {
    double sum = 0, weight = 0;
    void Add(std::optional<int> value, double rowWeight) {
        if (!value) return;
        sum += *value;
        weight += rowWeight;
    }
    std::optional<double> Of(double all) const {
        return weight >= kRecordedShare * all ? std::optional<double>(sum) : std::nullopt;
    }
};

struct LeagueSums {
    double PA = 0;
    PartlyRecorded SO, IBB, HBP, SH, SF, GIDP, CS;
    double pitchersSO = 0, E = 0, PB = 0;
    std::vector<SeasonLine> lines;
};

BattingFigures TotalOf(const LahmanBattingRow& r) {
    BattingFigures f;
    f.AB = r.AB, f.H = r.H, f.Doubles = r.Doubles, f.Triples = r.Triples, f.HR = r.HR;
    f.BB = r.BB - r.IBB.value_or(0), f.SO = r.SO.value_or(0), f.HBP = r.HBP.value_or(0);
    f.SH = r.SH.value_or(0), f.SF = r.SF.value_or(0);
    return f;
}

BattingFigures SplitOf(const SplitLine& s) {
    BattingFigures f;
    f.AB = s.AB, f.H = s.H, f.Doubles = s.Doubles, f.Triples = s.Triples, f.HR = s.HR;
    f.BB = s.BB, f.SO = s.SO, f.HBP = s.HBP, f.SH = s.SH, f.SF = s.SF;
    return f;
}

void Add(BattingFigures& to, const BattingFigures& f) {
    to.AB += f.AB, to.H += f.H, to.Doubles += f.Doubles, to.Triples += f.Triples, to.HR += f.HR;
    to.BB += f.BB, to.SO += f.SO, to.HBP += f.HBP, to.SH += f.SH, to.SF += f.SF;
}

// Reads the three tables of real statistics into one SeasonFigures.
class RealReader {
  public:
    explicit RealReader(Database& season) : teams_(season) {
        figures_ = teams_.Empty();
        sums_.resize(figures_.leagues.size());
        for (const LahmanBattingRow& row : ReadLahmanBatting(season).rows) AddBatting(row);
        for (const LahmanPitchingRow& row : ReadLahmanPitching(season).rows) AddPitching(row);
        for (const LahmanFieldingRow& row : ReadLahmanFielding(season).rows) AddFielding(row);
        for (std::size_t i = 0; i < sums_.size(); ++i) Close(figures_.leagues[i].counts, sums_[i]);
        if (figures_.batters.empty())
            throw UserError("this season holds no real statistics to compare with; import it from a Lahman database");
        NameMen(season);
        ReadRecords(season);
    }
    SeasonFigures Take() { return std::move(figures_); }

  private:
    void AddBatting(const LahmanBattingRow& r) {
        const auto place = teams_.Find(r.KorvTeamID);
        if (!place) return;
        const BattingFigures f = TotalOf(r);
        BatterFigures& man = figures_.batters[{r.playerID, r.KorvTeamID}];
        Add(man.total, f);
        man.SORecorded = man.SORecorded && r.SO.has_value();
        Add(man.vsLeft, SplitOf(r.vsLeft));
        Add(man.vsRight, SplitOf(r.vsRight));
        figures_.teams[place->team].RF += r.R;

        Counts& counts = figures_.leagues[place->league].counts;
        const std::pair<Figure, double> known[] = {
            {Figure::PA, f.PA()},
            {Figure::AB, f.AB},
            {Figure::R, double(r.R)},
            {Figure::H, f.H},
            {Figure::Doubles, f.Doubles},
            {Figure::Triples, f.Triples},
            {Figure::HR, f.HR},
            {Figure::BB, f.BB},
            {Figure::Singles, f.H - f.Doubles - f.Triples - f.HR},
            {Figure::SB, double(r.SB)},
        };
        for (const auto& [count, value] : known) counts.Add(count, value);
        LeagueSums& sums = sums_[place->league];
        sums.PA += f.PA();
        sums.SO.Add(r.SO, f.PA()), sums.HBP.Add(r.HBP, f.PA()), sums.SH.Add(r.SH, f.PA()), sums.SF.Add(r.SF, f.PA());
        sums.GIDP.Add(r.GIDP, f.PA()), sums.CS.Add(r.CS, f.PA());
    }

    void AddPitching(const LahmanPitchingRow& r) {
        const auto place = teams_.Find(r.KorvTeamID);
        if (!place) return;
        PitcherFigures& man = figures_.pitchers[{r.playerID, r.KorvTeamID}];
        man.BF += r.BFP.value_or(0) - r.IBB.value_or(0), man.H += r.H, man.HR += r.HR;
        man.BB += r.BB - r.IBB.value_or(0), man.SO += r.SO, man.G += r.G, man.GS += r.GS, man.IPOuts += r.IPouts;
        TeamFigures& team = figures_.teams[place->team];
        team.games += r.GS;
        team.RA += r.R.value_or(0);
        Counts& counts = figures_.leagues[place->league].counts;
        const std::pair<Figure, int> known[] = {{Figure::Games, r.GS},
                                                {Figure::Pitchers, r.G},
                                                {Figure::CG, r.CG},
                                                {Figure::SV, r.SV},
                                                {Figure::SHO, r.SHO}};
        for (const auto& [count, value] : known) counts.Add(count, value);
        LeagueSums& sums = sums_[place->league];
        sums.pitchersSO += r.SO;
        sums.lines.push_back({double(r.G), double(r.GS), double(r.IPouts)});
    }

    void AddFielding(const LahmanFieldingRow& r) {
        const auto place = teams_.Find(r.KorvTeamID);
        if (!place) return;
        sums_[place->league].E += r.E;
        sums_[place->league].PB += r.PB;
    }

    static void Close(Counts& counts, const LeagueSums& sums) {
        const auto recorded = [&](Figure figure, const PartlyRecorded& value) { counts[figure] = value.Of(sums.PA); };
        recorded(Figure::SO, sums.SO), recorded(Figure::HBP, sums.HBP), recorded(Figure::SH, sums.SH);
        recorded(Figure::GIDP, sums.GIDP), recorded(Figure::CS, sums.CS), recorded(Figure::SF, sums.SF);
        if (!counts[Figure::SO]) counts[Figure::SO] = sums.pitchersSO;
        counts[Figure::E] = std::round(sums.E);  // shares of outfield lines add up to whole errors
        counts[Figure::PB] = sums.PB;
        if (const auto outs = EstimateStarterOuts(sums.lines))
            counts[Figure::StarterOuts] = *outs * counts.Of(Figure::Games);
    }

    void ReadRecords(Database& season) {
        Statement row = season.Prepare("SELECT teamID, ActualWins, ActualLosses FROM KorvTeams");
        while (row.Step()) {
            TeamFigures& team = figures_.teams[teams_.Find(row.Text(0))->team];
            team.W = row.Double(1);
            team.L = row.Double(2);
        }
    }

    // Names and hands as the season's rosters have them.
    void NameMen(Database& season) {
        Statement batters = season.Prepare("SELECT LahmanPlayerID, teamID, playerName, bats FROM KorvBatters");
        while (batters.Step()) {
            const auto man = figures_.batters.find({batters.Text(0), batters.Text(1)});
            if (man == figures_.batters.end()) continue;
            man->second.name = batters.Text(2);
            man->second.bats = static_cast<std::int32_t>(batters.Int(3));
        }
        Statement pitchers = season.Prepare("SELECT LahmanPlayerID, teamID, playerName FROM KorvPitchers");
        while (pitchers.Step()) {
            const auto man = figures_.pitchers.find({pitchers.Text(0), pitchers.Text(1)});
            if (man != figures_.pitchers.end()) man->second.name = pitchers.Text(2);
        }
    }

    SeasonTeams teams_;
    SeasonFigures figures_;
    std::vector<LeagueSums> sums_;
};

}  // namespace

SeasonFigures ReadRealFigures(Database& season) {
    return RealReader(season).Take();
}

bool HasRealFigures(Database& season) {
    return season.Prepare("SELECT 1 FROM LahmanBatting LIMIT 1").Step();
}

std::optional<double> EstimateStarterOuts(const std::vector<SeasonLine>& lines) {
    // Normal equations of outs = s * starts + r * relief games.
    double ss = 0, sr = 0, rr = 0, so = 0, ro = 0;
    for (const SeasonLine& line : lines) {
        const double s = line.GS, r = line.G - line.GS;
        ss += s * s, sr += s * r, rr += r * r, so += s * line.IPOuts, ro += r * line.IPOuts;
    }
    const double determinant = ss * rr - sr * sr;
    if (ss <= 0) return std::nullopt;
    if (determinant <= 1e-9 * ss * (rr + 1)) return so / ss;  // nobody relieved, or all in one measure
    return (so * rr - ro * sr) / determinant;
}

}  // namespace tarvane
