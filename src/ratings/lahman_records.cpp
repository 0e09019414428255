#include "ratings/lahman_records.h"

#include <algorithm>
#include <array>

#include "base/rounding.h"
#include "ratings/season_tables.h"
#include "records/player.h"

namespace tarvane {

namespace {

// A count of several seasons as one of a single season.
int OfOneSeason(int count, int seasons) {
    return seasons > 1 ? static_cast<int>(RoundHalfEven(static_cast<double>(count) / seasons)) : count;
}

SplitLine SeasonCounts(const LahmanBattingRow& r) {
    return {r.AB,
            r.H,
            r.Doubles,
            r.Triples,
            r.HR,
            r.RBI,
            r.BB,
            r.SO.value_or(0),
            r.HBP.value_or(0),
            r.SH.value_or(0),
            r.SF.value_or(0),
            r.GIDP.value_or(0)};
}

std::vector<RealGamesAt> PositionsOf(const LahmanBattingRow& row, const StatisticsTable<LahmanFieldingRow>& fielding) {
    std::array<double, kPositionCount> games{};
    for (const std::size_t place : fielding.Find(row.playerID, row.KorvTeamID)) {
        const LahmanFieldingRow& line = fielding.rows[place];
        if (line.yearID != row.yearID || line.stint != row.stint) continue;
        games[static_cast<std::size_t>(PositionFromText(line.Pos))] += line.G;
    }
    std::vector<RealGamesAt> positions;
    for (int i = static_cast<int>(Position::P); i <= static_cast<int>(Position::RF); ++i) {
        const double G = games[static_cast<std::size_t>(i)];
        if (G > 0) positions.push_back({static_cast<Position>(i), G});
    }
    return positions;
}

LahmanRecord MakeRecord(const LahmanBattingRow& row, const StatisticsTable<LahmanFieldingRow>& fielding) {
    const int seasons = row.HitRunRating;
    LahmanRecord record;
    record.playerID = row.playerID;
    record.teamID = row.KorvTeamID;
    record.stint = row.stint;
    record.yearID = row.yearID;
    record.G = OfOneSeason(row.G, seasons);
    record.R = OfOneSeason(row.R, seasons);
    record.SB = OfOneSeason(row.SB, seasons);
    record.CS = OfOneSeason(row.CS.value_or(0), seasons);
    record.total = MakeRealBattingLine(SeasonCounts(row), seasons);
    record.vsLeft = MakeRealBattingLine(row.vsLeft, seasons);
    record.vsRight = MakeRealBattingLine(row.vsRight, seasons);
    record.positions = PositionsOf(row, fielding);
    return record;
}

LahmanPitchRecord MakePitchRecord(const LahmanPitchingRow& r) {
    const auto count = [&](int value) { return OfOneSeason(value, r.EPC); };
    LahmanPitchRecord record;
    record.playerID = r.playerID;
    record.teamID = r.KorvTeamID;
    record.stint = r.stint;
    record.yearID = r.yearID;
    record.G = count(r.G), record.GS = count(r.GS), record.W = count(r.W), record.L = count(r.L);
    record.SV = count(r.SV), record.CG = count(r.CG), record.SHO = count(r.SHO), record.IPOuts = count(r.IPouts);
    record.BFP = count(r.BFP.value_or(0)), record.H = count(r.H), record.ER = count(r.ER), record.HR = count(r.HR);
    record.BB = count(r.BB), record.SO = count(r.SO), record.HBP = count(r.HBP.value_or(0));
    record.WP = count(r.WP.value_or(0)), record.BK = count(r.BK.value_or(0));
    record.OppAB = count(static_cast<int>(RoundHalfEven(r.OppAB)));
    record.ERA = r.ERA;
    return record;
}

template <class Record>
const Record* FindByKey(const std::vector<Record>& records, std::string_view LahmanPlayerID) {
    const auto found = std::find_if(records.begin(), records.end(),
                                    [&](const Record& record) { return record.playerID == LahmanPlayerID; });
    return found == records.end() ? nullptr : &*found;
}

}  // namespace

RealBattingLine MakeRealBattingLine(SplitLine counts, int seasons) {
    for (int SplitLine::*column :
         {&SplitLine::AB, &SplitLine::H, &SplitLine::Doubles, &SplitLine::Triples, &SplitLine::HR, &SplitLine::RBI,
          &SplitLine::BB, &SplitLine::SO, &SplitLine::HBP, &SplitLine::SH, &SplitLine::SF, &SplitLine::GIDP}) {
        counts.*column = OfOneSeason(counts.*column, seasons);
    }
    RealBattingLine line;
    line.counts = counts;
    line.PA = counts.AB + counts.BB + counts.HBP;
    const int onBase = counts.H + counts.BB + counts.HBP;
    const int bases = counts.H + counts.Doubles + 2 * counts.Triples + 3 * counts.HR;
    if (onBase != 0 && line.PA != 0) line.OBP = static_cast<double>(onBase) / line.PA;
    if (bases != 0 && counts.AB != 0) line.SLG = static_cast<double>(bases) / counts.AB;
    if (counts.AB > 0) line.AVG = static_cast<double>(counts.H) / counts.AB;
    line.OPS = line.SLG + line.OBP;
    line.RunsCreated = line.SLG * line.OBP * counts.AB;
    return line;
}

const LahmanRecord* LahmanRecordSet::FindBatter(std::string_view LahmanPlayerID) const {
    return FindByKey(batters, LahmanPlayerID);
}

const LahmanPitchRecord* LahmanRecordSet::FindPitcher(std::string_view LahmanPlayerID) const {
    return FindByKey(pitchers, LahmanPlayerID);
}

LahmanRecordSet LoadLahmanRecords(Database& season, std::string_view teamID, bool allTeams) {
    std::optional<std::string> team;
    if (!allTeams && teamID != kFreeAgentTeam) team = std::string(teamID);
    const auto fielding = ReadLahmanFielding(season, team);
    LahmanRecordSet set;
    for (const LahmanBattingRow& row : ReadLahmanBatting(season, team).rows) {
        const LahmanRecord& record = set.batters.emplace_back(MakeRecord(row, fielding));
        set.SB += record.SB;
        set.SH += record.total.counts.SH;
        set.AB += record.total.counts.AB;
        set.vsLeftAB += record.vsLeft.counts.AB;
        set.vsRightAB += record.vsRight.counts.AB;
    }
    for (const LahmanPitchingRow& row : ReadLahmanPitching(season, team).rows) {
        set.IPOuts += set.pitchers.emplace_back(MakePitchRecord(row)).IPOuts;
    }
    return set;
}

}  // namespace tarvane
