// A replay's totals from what the posted games have written.

#include "accuracy/figures.h"
#include "accuracy/seasonteams.h"
#include "base/error.h"

namespace tarvane {

namespace {

std::string BattingColumns(const std::string& prefix, bool spelledOut) {
    std::string columns;
    for (const char* name : {"AB", "H", "2B", "3B", "HR", "BB", "SO", "HBP", "SH", "SF"}) {
        std::string column = prefix + name;
        if (spelledOut && column == "2B") column = "Doubles";
        if (spelledOut && column == "3B") column = "Triples";
        columns += ", \"" + column + "\"";
    }
    return columns;
}

void AddBattingFrom(Statement& row, int column, BattingFigures& to) {
    for (double* value : {&to.AB, &to.H, &to.Doubles, &to.Triples, &to.HR, &to.BB, &to.SO, &to.HBP, &to.SH, &to.SF})
        *value += row.Double(column++);
}

class ReplayReader {
  public:
    explicit ReplayReader(Database& season) : season_(season), teams_(season), figures_(teams_.Empty()) {
        ReadTeams();
        ReadBatters();
        ReadPitchers();
        ReadGames();
        if (figures_.games == 0)
            throw UserError("no game of this season has been played; play some, or say --replays N");
        for (std::size_t i = 0; i < figures_.leagues.size(); ++i) Close(i);
    }
    SeasonFigures Take() { return std::move(figures_); }

  private:
    void ReadTeams() {
        Statement row =
            season_.Prepare("SELECT teamID, W, L, RF, RA, GS, Games, CG, SV, GIDP, SB, CS, Errors, PassBalls" +
                            BattingColumns("", false) + " FROM KorvTeams");
        while (row.Step()) {
            const auto place = teams_.Find(row.Text(0));
            TeamFigures& team = figures_.teams[place->team];
            team.W = row.Double(1), team.L = row.Double(2), team.RF = row.Double(3), team.RA = row.Double(4);
            team.games = row.Double(5);
            BattingFigures f;
            AddBattingFrom(row, 14, f);
            const std::pair<Figure, double> known[] = {
                {Figure::Games, team.games},
                {Figure::R, team.RF},
                {Figure::Pitchers, row.Double(6)},
                {Figure::CG, row.Double(7)},
                {Figure::SV, row.Double(8)},
                {Figure::GIDP, row.Double(9)},
                {Figure::SB, row.Double(10)},
                {Figure::CS, row.Double(11)},
                {Figure::E, row.Double(12)},
                {Figure::PB, row.Double(13)},
                {Figure::PA, f.PA()},
                {Figure::AB, f.AB},
                {Figure::H, f.H},
                {Figure::Singles, f.H - f.Doubles - f.Triples - f.HR},
                {Figure::Doubles, f.Doubles},
                {Figure::Triples, f.Triples},
                {Figure::HR, f.HR},
                {Figure::BB, f.BB},
                {Figure::SO, f.SO},
                {Figure::HBP, f.HBP},
                {Figure::SH, f.SH},
                {Figure::SF, f.SF},
            };
            Counts& counts = figures_.leagues[place->league].counts;
            for (const auto& [count, value] : known) counts.Add(count, value);
        }
    }

    void ReadBatters() {
        Statement row =
            season_.Prepare("SELECT LahmanPlayerID, teamID, playerName, bats" + BattingColumns("", true) +
                            BattingColumns("vsLeft", false) + BattingColumns("vsRight", false) + " FROM KorvBatters");
        while (row.Step()) {
            if (!teams_.Find(row.Text(1))) continue;
            BatterFigures& man = figures_.batters[{row.Text(0), row.Text(1)}];
            man.name = row.Text(2);
            man.bats = static_cast<std::int32_t>(row.Int(3));
            AddBattingFrom(row, 4, man.total);
            AddBattingFrom(row, 14, man.vsLeft);
            AddBattingFrom(row, 24, man.vsRight);
        }
    }

    // A man who starts and relieves has a row for each.
    void ReadPitchers() {
        Statement row = season_.Prepare(
            "SELECT LahmanPlayerID, teamID, playerName, BF, OppHits, OppHR, OppBB, OppSO, Games, GS, IPOuts, SHO" +
            BattingColumns("", false) + " FROM KorvPitchers");
        lines_.resize(figures_.leagues.size());
        while (row.Step()) {
            const auto place = teams_.Find(row.Text(1));
            if (!place) continue;
            PitcherFigures& man = figures_.pitchers[{row.Text(0), row.Text(1)}];
            man.name = row.Text(2);
            int column = 3;
            for (double* value : {&man.BF, &man.H, &man.HR, &man.BB, &man.SO, &man.G, &man.GS, &man.IPOuts})
                *value += row.Double(column++);
            figures_.leagues[place->league].counts.Add(Figure::SHO, row.Double(11));
            BatterFigures& batting = figures_.batters[{row.Text(0), row.Text(1)}];
            if (batting.name.empty()) batting.name = man.name;
            AddBattingFrom(row, 12, batting.total);
        }
        for (const auto& [key, man] : figures_.pitchers)
            lines_[teams_.Find(key.second)->league].push_back({man.G, man.GS, man.IPOuts});
    }

    void ReadGames() {
        for (const TeamFigures& team : figures_.teams) figures_.parks.emplace_back().teamID = team.teamID;
        Statement row = season_.Prepare(
            "SELECT VisitorTeamIndex, HomeTeamIndex, VisitorScore, HomeScore, VisitorAB + HomeAB, VisitorHR + HomeHR "
            "FROM Schedule WHERE Played <> 0");
        while (row.Step()) {
            const auto visitor = teams_.FindByIndex(row.Int(0)), home = teams_.FindByIndex(row.Int(1));
            if (!visitor || !home) continue;
            figures_.games += 1;
            figures_.homeWins += row.Int(3) > row.Int(2) ? 1 : 0;
            const double runs = row.Double(2) + row.Double(3), AB = row.Double(4), HR = row.Double(5);
            ParkFigures& at = figures_.parks[home->team];
            at.homeGames += 1, at.homeRuns += runs, at.homeRunsSquared += runs * runs;
            at.homeAB += AB, at.homeHR += HR;
            ParkFigures& away = figures_.parks[visitor->team];
            away.roadGames += 1, away.roadRuns += runs, away.roadRunsSquared += runs * runs;
            away.roadAB += AB, away.roadHR += HR;
            away.roadGamesAt[at.teamID] += 1;
        }
    }

    void Close(std::size_t league) {
        Counts& counts = figures_.leagues[league].counts;
        if (const auto outs = EstimateStarterOuts(lines_[league]))
            counts[Figure::StarterOuts] = *outs * counts.Of(Figure::Games);
    }

    Database& season_;
    SeasonTeams teams_;
    SeasonFigures figures_;
    std::vector<std::vector<SeasonLine>> lines_;  // pitchers by league
};

void FliesAsAtBats(BattingFigures& f) {
    f.AB += f.SF;
    f.SF = 0;
}

void FliesAsSacrifices(BattingFigures& f) {
    f.SH += f.SF;
    f.SF = 0;
}

}  // namespace

SeasonFigures ReadReplayedFigures(Database& season) {
    return ReplayReader(season).Take();
}

void BookSacrificeFlies(SeasonFigures& replayed, const SeasonFigures& real) {
    for (const LeagueFigures& league : real.leagues)
        if (league.counts[Figure::SF]) return;
    const bool sacrifices = (real.year >= 1908 && real.year <= 1930) || real.year == 1939;
    for (LeagueFigures& league : replayed.leagues) {
        league.counts.Add(sacrifices ? Figure::SH : Figure::AB, league.counts.Of(Figure::SF));
        league.counts[Figure::SF].reset();
    }
    for (auto& [key, man] : replayed.batters)
        for (BattingFigures* f : {&man.total, &man.vsLeft, &man.vsRight})
            sacrifices ? FliesAsSacrifices(*f) : FliesAsAtBats(*f);
}

}  // namespace tarvane
