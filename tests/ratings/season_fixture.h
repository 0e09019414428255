#pragma once

#include <string>
#include <vector>

#include "base/tempfolder.h"
#include "core/database.h"
#include "data/schema.h"
#include "ratings/generators.h"
#include "sample_lines.h"

namespace tarvane::test {

// A season of random players in one league, and the common database with its era, in files of their own.
class SeasonFixture {
  public:
    SeasonFixture()
        : common(folder_ / "common.mdb", Database::Mode::Create),
          season(folder_ / "season.mdb", Database::Mode::Create) {
        CreateTables(common, TableHome::Common);
        CreateTables(season, TableHome::Season);
        AddEra(kEra);
        season.Execute("INSERT INTO Leagues (lgIdx, lgName, shortName, EraID) VALUES (1, 'Sample League', 'SL', ?)",
                       {Value(std::int64_t{kEra})});
    }

    void AddEra(std::int64_t eraID) {
        const LeagueBaseline l = SampleLeague();
        common.Execute(
            "INSERT INTO KorvYears (EraId, EraName, PAFactor, BBAvg, SOAvg, HBPRate, RBIAvg, AvgSOBFP, AvgBBBFP, "
            "AvgHBFP, "
            "AvgHRBFP, CPctPOSO) VALUES (?, 'Sample', ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
            {Value(eraID), Value(l.PAFactor), Value(l.BBAvg), Value(l.SOAvg), Value(l.HBPRate), Value(l.RBIAvg),
             Value(l.AvgSOBFP), Value(l.AvgBBBFP), Value(l.AvgHBFP), Value(l.AvgHRBFP), Value(l.CPctPOSO)});
        const auto position = [&](const std::string& p, const PositionBaseline& r) {
            common.Execute("UPDATE KorvYears SET \"" + p + "ErrorsRate\" = ?, \"" + p + "PORate\" = ?, \"" + p +
                               "ARate\" = ?, \"" + p + "DPRate\" = ? WHERE EraId = ?",
                           {Value(r.ErrorsRate), Value(r.PORate), Value(r.ARate), Value(r.DPRate), Value(eraID)});
        };
        position("P", l.P), position("C", l.C), position("1B", l.B1), position("2B", l.B2), position("3B", l.B3);
        position("SS", l.SS), position("OF", l.OF);
    }

    void AddBattingLine(const std::string& key, const LahmanBattingRow& r) {
        const auto count = [](const std::optional<int>& c) { return c ? Value(std::int64_t{*c}) : Value(); };
        const auto whole = [](int c) { return Value(std::int64_t{c}); };
        season.Execute(
            "INSERT INTO LahmanBatting (playerID, yearID, lgID, stint, teamID, KorvTeamID, G, AB, R, H, \"2B\", "
            "\"3B\", HR, "
            "RBI, SB, BB, CS, SO, IBB, HBP, SH, SF, GIDP) VALUES (?, 1975, 'SL', 1, 'AAA', 'AAA', ?, ?, ?, ?, ?, ?, ?, "
            "?, "
            "?, ?, ?, ?, ?, ?, ?, ?, ?)",
            {Value(key), whole(r.G), whole(r.AB), whole(r.R), whole(r.H), whole(r.Doubles), whole(r.Triples),
             whole(r.HR), whole(r.RBI), whole(r.SB), whole(r.BB), count(r.CS), count(r.SO), count(r.IBB), count(r.HBP),
             count(r.SH), count(r.SF), count(r.GIDP)});
    }

    void AddBatter(const std::string& key, std::int32_t bats, int lgIdx = 1) {
        season.Execute(
            "INSERT INTO KorvBatters (LahmanPlayerID, lgIdx, teamID, playerName, bats) VALUES (?, ?, 'AAA', ?, ?)",
            {Value(key), Value(std::int64_t{lgIdx}), Value("Name " + key), Value(std::int64_t{bats})});
    }

    void AddPitcher(const std::string& key, std::int32_t throws_, const LahmanPitchingRow& r) {
        season.Execute(
            "INSERT INTO KorvPitchers (LahmanPlayerID, lgIdx, teamID, playerName, bats, throws, pitcherType) VALUES "
            "(?, 1, "
            "'AAA', ?, ?, ?, 'S')",
            {Value(key), Value("Name " + key), Value(std::int64_t{throws_}), Value(std::int64_t{throws_})});
        const auto whole = [](int c) { return Value(std::int64_t{c}); };
        season.Execute(
            "INSERT INTO LahmanPitching (playerID, stint, teamID, KorvTeamID, G, GS, CG, IPouts, H, HR, BB, SO, BFP, "
            "IBB) "
            "VALUES (?, 1, 'AAA', 'AAA', ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
            {Value(key), whole(r.G), whole(r.GS), whole(r.CG), whole(r.IPouts), whole(r.H), whole(r.HR), whole(r.BB),
             whole(r.SO), r.BFP ? whole(*r.BFP) : Value(), r.IBB ? whole(*r.IBB) : Value()});
    }

    void AddFielding(const std::string& key, const std::string& pos, int G, double PO, double A, double E, double DP) {
        season.Execute(
            "INSERT INTO LahmanFielding (playerID, stint, teamID, KorvTeamID, Pos, G, PO, A, E, DP) VALUES (?, 1, "
            "'AAA', "
            "'AAA', ?, ?, ?, ?, ?, ?)",
            {Value(key), Value(pos), Value(std::int64_t{G}), Value(PO), Value(A), Value(E), Value(DP)});
    }

    // Batters b0, b1, ... and pitchers p0, p1, ...; every pitcher has a batting line, every other batter is
    // left-handed.
    void AddRandomPlayers(int batters, int pitchers, std::uint64_t seed) {
        Random random(seed);
        Transaction transaction(season);
        for (int i = 0; i < pitchers; ++i) {
            const std::string key = "p" + std::to_string(i);
            AddPitcher(key, i % 3 == 0 ? kLeftHand : kRightHand, RandomPitchingLine(random));
            AddBattingLine(key, RandomBattingLine(random));
            AddFielding(key, "P", 30, 10, 20, 1, 1);
        }
        for (int i = 0; i < batters; ++i) {
            const std::string key = "b" + std::to_string(i);
            AddBatter(key, i % 2 == 0 ? kLeftHand : kRightHand);
            AddBattingLine(key, RandomBattingLine(random));
            AddFielding(key, i % 2 == 0 ? "SS" : "C", 100, 150, 250, 12, 50);
            AddFielding(key, "1B", 10, 80, 5, 1, 9);
        }
        transaction.Commit();
    }

    // All values of a table in one text.
    static std::string Dump(Database& database, const std::string& table) {
        std::string text;
        Statement query = database.Prepare("SELECT * FROM " + table + " ORDER BY rowid");
        while (query.Step()) {
            for (int column = 0; column < query.ColumnCount(); ++column) {
                text += query.IsNull(column) ? "-" : query.Text(column);
                text += '|';
            }
            text += '\n';
        }
        return text;
    }
    std::string DumpAll() {
        return Dump(season, "LahmanBatting") + Dump(season, "KorvBatters") + Dump(season, "KorvPitchers");
    }

    std::int64_t Int(const std::string& sql) {
        Statement query = season.Prepare(sql);
        return query.Step() ? query.Int(0) : -999;
    }
    std::string Text(const std::string& sql) {
        Statement query = season.Prepare(sql);
        return query.Step() ? query.Text(0) : "no row";
    }

    static constexpr std::int64_t kEra = 19750;

  private:
    TempFolder folder_;

  public:
    Database common, season;
};

// All four steps in their order.
inline void GenerateAll(SeasonFixture& f, std::uint64_t seed, Progress* progress = nullptr) {
    Random random(seed);
    GenerateSplits(f.season, {}, nullptr, random, progress);
    GeneratePlayerRatings(f.season, f.common, {}, progress);
    GenerateBatterCells(f.season, f.common, {}, random, progress);
    GeneratePitcherCells(f.season, f.common, {}, random, progress);
}

}  // namespace tarvane::test
